// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/abstractbutton.h>

#include <base/fingersize_p.h>
#include <widgets/buttonaccessible_p.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>

struct AbstractButton::Private {
    bool clickable = true;
};

AbstractButton::AbstractButton(QWidget *parent)
    : QAbstractButton(parent)
    , d(std::make_unique<Private>())
{
    ButtonAccessible::install<AbstractButton, ButtonAccessible>();
}

AbstractButton::~AbstractButton() = default;

bool AbstractButton::clickable() const
{
    return d->clickable;
}

void AbstractButton::setClickable(bool clickable)
{
    d->clickable = clickable;
}

QSize AbstractButton::sizeHint() const
{
    const int finger = Utils::fingerSize(this);
    if (layout())
        return QAbstractButton::sizeHint().expandedTo({finger, finger});
    QStyleOptionButton option = styleOption();
    const QSize text = fontMetrics().size(Qt::TextShowMnemonic, option.text);
    option.rect.setSize(text);
    return style()
        ->sizeFromContents(QStyle::CT_PushButton, &option, text, this)
        .expandedTo({finger, finger});
}

QSize AbstractButton::minimumSizeHint() const
{
    const int finger = Utils::fingerSize(this);
    return layout() ? QAbstractButton::minimumSizeHint().expandedTo({finger, finger}) : sizeHint();
}

void AbstractButton::mousePressEvent(QMouseEvent *event)
{
    if (d->clickable)
        QAbstractButton::mousePressEvent(event);
    else
        event->ignore();
}

void AbstractButton::mouseReleaseEvent(QMouseEvent *event)
{
    // A button that became inert under the finger comes up without a click: one that is not down
    // ignores the release.
    if (!d->clickable)
        setDown(false);
    QAbstractButton::mouseReleaseEvent(event);
}

void AbstractButton::keyPressEvent(QKeyEvent *event)
{
    const bool presses = event->key() == Qt::Key_Space || event->key() == Qt::Key_Select;
    if (presses && !d->clickable)
        event->ignore();
    else
        QAbstractButton::keyPressEvent(event);
}

void AbstractButton::keyReleaseEvent(QKeyEvent *event)
{
    // Not down, QAbstractButton of Qt 5 would keep the release of a press that went to the parent,
    // which would stay down.
    if (!d->clickable) {
        setDown(false);
        event->ignore();
    } else {
        QAbstractButton::keyReleaseEvent(event);
    }
}

void AbstractButton::paintEvent(QPaintEvent *)
{
    const QStyleOptionButton option = styleOption();
    QPainter painter(this);
    style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
}

QStyleOptionButton AbstractButton::styleOption() const
{
    QStyleOptionButton option;
    option.initFrom(this);
    // A button whose part has the focus shows it as a whole.
    if (isAncestorOf(QApplication::focusWidget()))
        option.state |= QStyle::State_HasFocus;
    option.text = QAbstractButton::text();
    option.state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
    option.state |= isChecked() ? QStyle::State_On : QStyle::State_Off;
    return option;
}
