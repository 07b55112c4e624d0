// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/infobutton.h>

#include <widgets/buttonaccessible_p.h>

#include <QDebug>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>

// Qt 5 cannot hold margins in a property without being told of them.
Q_DECLARE_METATYPE(QMargins)

struct InfoButton::Private {
    LayoutType layoutType = TopBottom;
    QGridLayout *layout = nullptr;
    QPointer<QWidget> infoWidget;
    QLabel *nameLabel = nullptr;
    Qt::Alignment textAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    QMargins textMargins;
};

InfoButton::InfoButton(QWidget *parent)
    : AbstractButton(parent)
    , d(std::make_unique<Private>())
{
    d->layout = new QGridLayout(this);
    d->infoWidget = new QWidget(this);
    d->nameLabel = new QLabel(this);
    ButtonAccessible::install<InfoButton, NamedButtonAccessible<InfoButton>>();
    qRegisterMetaType<QMargins>("QMargins");
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred); // soft keys share a column
    d->layout->setContentsMargins(0, 0, 0, 0);
    d->layout->setSpacing(0);
    d->nameLabel->setObjectName(QStringLiteral("nameLabel"));
    d->nameLabel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    d->nameLabel->setMinimumWidth(0);
    d->nameLabel->setIndent(0); // or a style sheet's padding would bring an indent along
    d->nameLabel->setAlignment(d->textAlignment);
    placeCells();
}

InfoButton::~InfoButton() = default;

InfoButton::LayoutType InfoButton::layoutType() const
{
    return d->layoutType;
}

Qt::Alignment InfoButton::textAlignment() const
{
    return d->textAlignment;
}

QMargins InfoButton::textMargins() const
{
    return d->textMargins;
}

QString InfoButton::text() const
{
    return d->nameLabel->text();
}

void InfoButton::setText(const QString &text)
{
    if (d->nameLabel->text() == text)
        return;
    d->nameLabel->setText(text);
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
    return isAncestorOf(d->infoWidget) ? d->infoWidget.data() : nullptr;
}

void InfoButton::setInfoWidget(QWidget *widget)
{
    if (widget && widget == infoWidget())
        return;
    if (!widget || widget == d->nameLabel || widget->isAncestorOf(this)) {
        qWarning() << "InfoButton::setInfoWidget: cannot show" << widget;
        return;
    }
    QWidget *const old = infoWidget();
    d->infoWidget = widget;
    placeCells(); // takes the widget out of the old one, where it may have lived
    delete old;
}

void InfoButton::setLayoutType(LayoutType type)
{
    if (d->layoutType == type)
        return;
    d->layoutType = type;
    placeCells();
}

void InfoButton::setTextAlignment(Qt::Alignment alignment)
{
    d->textAlignment = alignment;
    d->nameLabel->setAlignment(alignment);
}

void InfoButton::setTextMargins(QMargins margins)
{
    d->textMargins = margins;
    d->nameLabel->setContentsMargins(margins);
}

/// Puts name and information into the cells that the layout type asks for.
void InfoButton::placeCells()
{
    const bool sideBySide = d->layoutType == LeftRight || d->layoutType == RightLeft;
    const bool nameSecond = d->layoutType == BottomTop || d->layoutType == RightLeft;
    const auto place = [this, sideBySide](QWidget *widget, int cell) {
        d->layout->removeWidget(widget);
        d->layout->addWidget(widget, sideBySide ? 0 : cell, sideBySide ? cell : 0);
    };
    place(d->nameLabel, nameSecond ? 1 : 0);
    if (d->infoWidget)
        place(d->infoWidget, nameSecond ? 0 : 1);
    d->layout->setRowStretch(0, 1);
    d->layout->setRowStretch(1, sideBySide ? 0 : 1);
}
