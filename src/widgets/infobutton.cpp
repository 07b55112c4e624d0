// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/infobutton.h>

#include <widgets/buttonaccessible_p.h>

#include <QDebug>
#include <QGridLayout>
#include <QLabel>

// Qt 5 cannot hold margins in a property without being told of them.
Q_DECLARE_METATYPE(QMargins)

InfoButton::InfoButton(QWidget *parent)
    : AbstractButton(parent)
    , m_layout(new QGridLayout(this))
    , m_infoWidget(new QWidget(this))
    , m_nameLabel(new QLabel(this))
{
    ButtonAccessible::install<InfoButton, NamedButtonAccessible<InfoButton>>();
    qRegisterMetaType<QMargins>("QMargins");
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred); // soft keys share a column
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_nameLabel->setObjectName(QStringLiteral("nameLabel"));
    m_nameLabel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_nameLabel->setMinimumWidth(0);
    m_nameLabel->setIndent(0); // or a style sheet's padding would bring an indent along
    m_nameLabel->setAlignment(m_textAlignment);
    placeCells();
}

QString InfoButton::text() const
{
    return m_nameLabel->text();
}

void InfoButton::setText(const QString &text)
{
    if (m_nameLabel->text() == text)
        return;
    m_nameLabel->setText(text);
    Q_EMIT textChanged(text);
}

bool InfoButton::event(QEvent *event)
{
    if (event->type() == QEvent::Paint && !QAbstractButton::text().isEmpty()) {
        const QString text = QAbstractButton::text();
        QAbstractButton::setText({});
        setText(text);
    }
    return AbstractButton::event(event);
}

QWidget *InfoButton::infoWidget() const
{
    return isAncestorOf(m_infoWidget) ? m_infoWidget.data() : nullptr;
}

void InfoButton::setInfoWidget(QWidget *widget)
{
    if (widget && widget == infoWidget())
        return;
    if (!widget || widget == m_nameLabel || widget->isAncestorOf(this)) {
        qWarning() << "InfoButton::setInfoWidget: cannot show" << widget;
        return;
    }
    QWidget *const old = infoWidget();
    m_infoWidget = widget;
    placeCells(); // takes the widget out of the old one, where it may have lived
    delete old;
}

void InfoButton::setLayoutType(LayoutType type)
{
    if (m_layoutType == type)
        return;
    m_layoutType = type;
    placeCells();
}

void InfoButton::setTextAlignment(Qt::Alignment alignment)
{
    if (m_textAlignment == alignment)
        return;
    m_textAlignment = alignment;
    m_nameLabel->setAlignment(alignment);
}

void InfoButton::setTextMargins(QMargins margins)
{
    if (m_textMargins == margins)
        return;
    m_textMargins = margins;
    m_nameLabel->setContentsMargins(margins);
}

/// Puts name and information into the cells that the layout type asks for.
void InfoButton::placeCells()
{
    const bool sideBySide = m_layoutType == LeftRight || m_layoutType == RightLeft;
    const bool nameSecond = m_layoutType == BottomTop || m_layoutType == RightLeft;
    const auto place = [this, sideBySide](QWidget *widget, int cell) {
        m_layout->removeWidget(widget);
        m_layout->addWidget(widget, sideBySide ? 0 : cell, sideBySide ? cell : 0);
    };
    place(m_nameLabel, nameSecond ? 1 : 0);
    if (m_infoWidget)
        place(m_infoWidget, nameSecond ? 0 : 1);
    m_layout->setRowStretch(0, 1);
    m_layout->setRowStretch(1, sideBySide ? 0 : 1);
}
