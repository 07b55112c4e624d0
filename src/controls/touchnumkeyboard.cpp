// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/touchnumkeyboard.h>

#include "touchnumkeyboard_p.h"

#include <base/qtcompat_p.h>
#include <controls/keypadedit_p.h>
#include <controls/thememanager.h>
#include <platform/placement.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QScreen>

namespace Controls
{

TouchNumKeyboard::TouchNumKeyboard(QWidget *parent)
    : QDialog(parent, keypadDialogFlags)
    , d_ptr(std::make_unique<TouchNumKeyboardPrivate>(this))
{
    Q_D(TouchNumKeyboard);
    d->ui.setupUi(this);
    // The size follows the font, the title widget and the indicator.
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    d->titleWidgetLayout = new QVBoxLayout;
    d->titleWidgetLayout->setContentsMargins(6, 4, 0, 4);
    d->ui.titleGridLayout->addLayout(d->titleWidgetLayout, 0, 1);
    setAccessibleName(tr("Numeric keypad"));
    setLayoutDirection(Qt::LeftToRight); // digits stand alike wherever people read to the left
    setAutoFillBackground(true); // embedded, it would let the host show through
    // An entry that is committed accepts a modal dialog, and only closes one that is not.
    setWindowModality(Qt::WindowModal);

    for (int digit = 0; digit < 10; ++digit)
        d->addKey(d->digits().at(digit), Qt::Key_0 + digit, QString::number(digit), "digit");
    d->addKey(d->ui.btnP, Qt::Key_Period, QStringLiteral("."), "point");
    d->addKey(d->ui.btnC, Qt::Key_plusminus, QStringLiteral("\u00b1"), "sign");
    d->addKey(d->ui.btnEsc, Qt::Key_Escape, {}, "cancel");
    d->addKey(d->ui.btnBack, Qt::Key_Backspace, {}, "erase");
    d->addKey(d->ui.btnDown, Qt::Key_Down, {}, "step");
    d->addKey(d->ui.btnUp, Qt::Key_Up, {}, "step");
    d->addKey(d->ui.btnLeft, Qt::Key_Left, {}, "cursor");
    d->addKey(d->ui.btnRight, Qt::Key_Right, {}, "cursor");
    d->addKey(d->ui.btnOk, Qt::Key_Return, QStringLiteral("\n"), "enter");
    for (QPushButton *key :
         {d->ui.btnBack, d->ui.btnDown, d->ui.btnUp, d->ui.btnLeft, d->ui.btnRight})
        key->setAutoRepeat(true);

    d->units.setUp({d->ui.btnUnit1, d->ui.btnUnit2, d->ui.btnUnit3, d->ui.btnUnit4},
                   d->ui.gridLayout_2);
    for (QPushButton *button : d->units.buttons())
        connect(button, &QPushButton::clicked, this, &TouchNumKeyboard::shortCutsKeyClicked);
    setShortcutKeys({});

    setWindowTitleAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setIndicatorTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    d->ui.edit->setReadOnly(true);
    d->ui.edit->setFocusPolicy(Qt::NoFocus);
    d->ui.edit->hide();
    d->ui.edit->installEventFilter(this);
    connect(d->ui.edit, &QLineEdit::textChanged, this, &TouchNumKeyboard::indicatorTextChanged);

    d->labelKeys();
    d->updateMetrics();
    connect(this, &QDialog::finished, this, &TouchNumKeyboard::onFinished);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this,
            [d] { d->updateEnterKey(); });
}

TouchNumKeyboard::~TouchNumKeyboard()
{
    // While there still is somebody to give the focus back. The focus of the proxy counts as that
    // of this widget, and would be taken from it.
    setFocusProxy(nullptr);
    hide();
    // The overlay may be destroying this keypad, its child, just now: a later deletion then comes
    // to nothing.
    if (d_ptr->overlayWidget)
        d_ptr->overlayWidget->deleteLater();
}

TouchNumKeyboard::PressOutsidePolicy TouchNumKeyboard::pressOutsidePolicy() const
{
    return d_ptr->pressOutsidePolicy;
}

QObject *TouchNumKeyboard::receiver() const
{
    return d_ptr->receiver;
}

QList<KeySpec> TouchNumKeyboard::shortcutKeys() const
{
    return d_ptr->units.units();
}

QWidget *TouchNumKeyboard::titleWidget() const
{
    return d_ptr->titleWidget;
}

QString TouchNumKeyboard::windowTitle() const
{
    return QDialog::windowTitle();
}

Qt::Alignment TouchNumKeyboard::windowTitleAlignment() const
{
    return d_ptr->ui.nameLabel->alignment();
}

QString TouchNumKeyboard::indicatorText() const
{
    return d_ptr->ui.edit->text();
}

Qt::Alignment TouchNumKeyboard::indicatorTextAlignment() const
{
    return d_ptr->ui.edit->alignment();
}

void TouchNumKeyboard::setPopupAnchorWidget(QWidget *anchor)
{
    d_ptr->popupAnchor = anchor;
}

void TouchNumKeyboard::setPressOutsidePolicy(PressOutsidePolicy policy)
{
    d_ptr->pressOutsidePolicy = policy;
}

void TouchNumKeyboard::setReceiver(QObject *receiver)
{
    d_ptr->receiver = receiver;
}

bool TouchNumKeyboard::setShortcutKeys(const QList<KeySpec> &keys)
{
    d_ptr->units.setUnits(keys);
    return true;
}

void TouchNumKeyboard::setTitleWidget(QWidget *widget, Qt::Alignment alignment)
{
    Q_D(TouchNumKeyboard);
    if (d->titleWidget && d->titleWidget != widget)
        delete d->titleWidget;
    d->titleWidget = widget;
    if (!widget)
        return;
    d->titleWidgetLayout->removeWidget(widget);
    d->titleWidgetLayout->addWidget(widget, 0, alignment);
    widget->show();
}

void TouchNumKeyboard::setWindowTitle(const QString &title)
{
    QDialog::setWindowTitle(title);
}

/// A title that was set through the base class is one, too.
void TouchNumKeyboard::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowTitleChange)
        d_ptr->ui.nameLabel->setText(QDialog::windowTitle());
}

QWidget *TouchNumKeyboard::hostWindow() const
{
    return d_ptr->chosenHost;
}

void TouchNumKeyboard::setHostWindow(QWidget *widget)
{
    d_ptr->chosenHost = widget ? widget->window() : nullptr;
}

void TouchNumKeyboard::setWindowTitleAlignment(Qt::Alignment alignment)
{
    d_ptr->ui.nameLabel->setAlignment(alignment);
}

void TouchNumKeyboard::setIndicatorText(const QString &text, int selectionStart,
                                        int selectionLength, int cursorPosition)
{
    Q_D(TouchNumKeyboard);
    showText(d->ui.edit, text, selectionStart, selectionLength, cursorPosition);
    d->ui.edit->show();
}

void TouchNumKeyboard::setIndicatorTextAlignment(Qt::Alignment alignment)
{
    d_ptr->ui.edit->setAlignment(alignment);
}

void TouchNumKeyboard::open()
{
    Q_D(TouchNumKeyboard);
    setWindowModality(Qt::WindowModal);
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    QWidget *host = d->hostWindow();
    if (!host) {
        if (windowFlags() != keypadDialogFlags)
            setWindowFlags(keypadDialogFlags);
        QDialog::open();
        return;
    }
    d->showOver(host);
}

bool TouchNumKeyboard::isDimEnabled() const
{
    return d_ptr->dims;
}

void TouchNumKeyboard::setDimEnabled(bool dim)
{
    d_ptr->dims = dim;
    if (OverlayContainer *const overlay = d_ptr->overlay())
        overlay->setDimEnabled(dim);
}

void TouchNumKeyboard::setExtraWidget(QWidget *widget)
{
    if (widget == d_ptr->extraWidget)
        return;
    if (d_ptr->extraWidget) {
        // It may be the one whose signal led here.
        d_ptr->extraWidget->hide();
        d_ptr->ui.titleEditVerticalLayout->removeWidget(d_ptr->extraWidget);
        d_ptr->extraWidget->deleteLater();
    }
    d_ptr->extraWidget = widget;
    QVBoxLayout *const column = d_ptr->ui.titleEditVerticalLayout;
    if (widget)
        column->insertWidget(column->indexOf(d_ptr->ui.edit) + 1, widget);
}

QWidget *TouchNumKeyboard::extraWidget() const
{
    return d_ptr->extraWidget;
}

QLineEdit *TouchNumKeyboard::lineEdit() const
{
    return d_ptr->ui.edit;
}

int TouchNumKeyboard::exec()
{
    Q_D(TouchNumKeyboard);
    const QPointer<TouchNumKeyboard> self(this);
    QEventLoop loop;
    connect(this, &QDialog::finished, &loop, &QEventLoop::quit);
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    d->loop = &loop;
    setResult(Rejected);
    open();
    if (self && !isHidden())
        loop.exec();
    return self ? result() : int(Rejected);
}

void TouchNumKeyboard::showGlobal()
{
    Q_D(TouchNumKeyboard);
    hide();
    d->leaveOverlay();
    setWindowModality(Qt::NonModal);
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
                   | Qt::WindowDoesNotAcceptFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    ensurePolished();
    adjustSize();
    const QWidget *focused = QApplication::focusWidget();
    const QRect available = (focused ? focused : this)->screen()->availableGeometry();
    const QPoint bottomCentre(available.center().x() - width() / 2, available.bottom());
    move(Utils::boundedTopLeft(bottomCentre, size(), available, 5));
    show();
}

bool TouchNumKeyboard::event(QEvent *event)
{
    Q_D(TouchNumKeyboard);
    switch (event->type()) {
    case QEvent::KeyPress: {
        // With the focus on the keypad itself, or a child that leaves these keys alone, they still
        // end the entry the way its owner wants.
        const int key = static_cast<QKeyEvent *>(event)->key();
        if ((key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape)
            && sendEvent(event))
            return true;
        break;
    }
    case QEvent::Hide:
        if (isHidden()) {
            d->letGo();
            d->giveFocusBack();
            if (d->loop)
                d->loop->quit();
        }
        break;
    case QEvent::LanguageChange:
        d->labelKeys();
        if (d->units.isPaging())
            updateButtons();
        break;
    case QEvent::Polish:
    case QEvent::FontChange:
    case QEvent::StyleChange:
        d->updateMetrics();
        break;
    default:
        break;
    }
    return QDialog::event(event);
}

bool TouchNumKeyboard::eventFilter(QObject *object, QEvent *event)
{
    if (object == d_ptr->ui.edit)
        return d_ptr->filterIndicator(event);
    return QDialog::eventFilter(object, event);
}

void TouchNumKeyboard::showEvent(QShowEvent *event)
{
    Q_D(TouchNumKeyboard);
    QDialog::showEvent(event);
    if (event->spontaneous())
        return;
    QWidget *focused = QApplication::focusWidget();
    if (!isAncestorOf(focused))
        d->formerFocus = focused;
    if (!d->ui.edit->isReadOnly())
        d->ui.edit->setFocus(Qt::OtherFocusReason);
}

/// Sends the key of the pressed button to the focused widget.
void TouchNumKeyboard::clickedKey()
{
    Q_D(TouchNumKeyboard);
    typeKey(QApplication::focusWidget(),
            d->basicButtons.value(qobject_cast<QPushButton *>(sender())));
}

/// Pages the unit column, or sends the unit of the pressed button to the focused widget.
void TouchNumKeyboard::shortCutsKeyClicked()
{
    // A host may call a slot.
    if (auto *button = qobject_cast<QPushButton *>(sender()))
        typeKey(QApplication::focusWidget(), d_ptr->units.press(button));
}

void TouchNumKeyboard::updateButtons()
{
    d_ptr->units.showPage();
}

/// Takes the keypad off the host when the entry has ended.
void TouchNumKeyboard::onFinished(int result)
{
    Q_UNUSED(result)
    d_ptr->leaveOverlay();
}

/// Passes an event on to the receiver; false without one.
bool TouchNumKeyboard::sendEvent(QEvent *event)
{
    return d_ptr->receiver && QCoreApplication::sendEvent(d_ptr->receiver, event);
}

} // namespace Controls
