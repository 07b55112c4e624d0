// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
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

#include <algorithm>
#include <array>

namespace Controls
{

namespace
{

/// Where the unit keys stand in their grid.
constexpr std::array<int, 4> s_unitRows{0, 1, 2, 4};

} // namespace

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

    d->unitButtons = {d->ui.btnUnit1, d->ui.btnUnit2, d->ui.btnUnit3, d->ui.btnUnit4};
    for (QPushButton *button : d->unitButtons)
        connect(button, &QPushButton::clicked, this, &TouchNumKeyboard::shortCutsKeyClicked);
    setShortcutKeys({});

    setWindowTitleAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setIndicatorTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    d->ui.edit->setReadOnly(true);
    d->ui.edit->setFocusPolicy(Qt::NoFocus);
    d->ui.edit->hide();
    d->ui.edit->installEventFilter(this);

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
    return d_ptr->shortcutKeys;
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
    Q_D(TouchNumKeyboard);
    d->shortcutKeys = keys;
    d->shortcutMap.clear();
    d->startIndex = 0;
    // Keys share the column alike. While it pages, none moves under the finger because another one
    // is not there.
    for (int i = 0; i < d->unitButtons.size(); ++i) {
        QPushButton *button = d->unitButtons.at(i);
        QSizePolicy policy = button->sizePolicy();
        policy.setRetainSizeWhenHidden(d->isPaging());
        button->setSizePolicy(policy);
        d->ui.gridLayout_2->setRowStretch(s_unitRows.at(std::size_t(i)), i < keys.size() ? 1 : 0);
    }
    if (d->isPaging()) {
        updateButtons();
        return true;
    }
    for (int i = 0; i < d->unitButtons.size(); ++i) {
        if (i < keys.size())
            d->assignUnit(d->unitButtons.at(i), keys.at(i));
        else
            d->unitButtons.at(i)->hide();
    }
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
    d_ptr->ui.nameLabel->setText(title);
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
    QMainWindow *host = d->hostWindow();
    if (!host) {
        if (windowFlags() != keypadDialogFlags)
            setWindowFlags(keypadDialogFlags);
        QDialog::open();
        return;
    }

    OverlayContainer *overlay = d->overlay();
    if (!overlay || overlay->parentWidget() != host) {
        d->leaveOverlay();
        if (overlay)
            overlay->deleteLater();
        overlay = new OverlayContainer(host);
        d->overlayWidget = overlay;
        connect(overlay, &QObject::destroyed, this, [d] {
            if (!d->goesWithHost)
                d->leaveOverlay();
        });
    }
    if (parentWidget() != overlay) {
        d->home = parentWidget();
        d->goesWithHost = d->home && d->home->window() == host;
        if (d->home)
            d->homeGone = connect(d->home, &QObject::destroyed, this, &QObject::deleteLater);
        setParent(overlay, Qt::Widget);
    }
    disconnect(overlay, &OverlayContainer::outsideClicked, this, nullptr);
    connect(overlay, &OverlayContainer::outsideClicked, this, [d] { d->pressOutside(); });
    overlay->showWithDialog(this, OverlayContainer::None, d->dims,
                            d->popupAnchor ? OverlayContainer::LeftOfAnchor
                                           : OverlayContainer::Centered,
                            d->popupAnchor);
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
        if (d->isPaging())
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
    Q_D(TouchNumKeyboard);
    if (object != d->ui.edit)
        return QDialog::eventFilter(object, event);

    const QPointer<QLineEdit> edit(d->ui.edit);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        d->handleIndicatorMouse(static_cast<QMouseEvent *>(event));
        // What mirrors another editor has no selection of its own to drag.
        return !edit || edit->isReadOnly();
    case QEvent::Wheel:
        event->ignore();
        Q_EMIT indicatorWheel(static_cast<QWheelEvent *>(event));
        return !edit || event->isAccepted();
    default:
        return false;
    }
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

void TouchNumKeyboard::mousePressEvent(QMouseEvent *event)
{
    Q_D(TouchNumKeyboard);
    const int titleBottom = d->ui.titleGridLayout->geometry().bottom();
    if (event->button() != Qt::LeftButton || QtCompat::position(event).y() > titleBottom) {
        QDialog::mousePressEvent(event);
        return;
    }
    d->dragging = true;
    d->dragOffset = pos() - QtCompat::globalPosition(event).toPoint();
    event->accept();
}

void TouchNumKeyboard::mouseMoveEvent(QMouseEvent *event)
{
    Q_D(TouchNumKeyboard);
    if (!d->dragging) {
        QDialog::mouseMoveEvent(event);
        return;
    }
    move(QtCompat::globalPosition(event).toPoint() + d->dragOffset);
    if (isWindow())
        move(Utils::boundedTopLeft(pos(), size(), screen()->availableGeometry(), 0));
    else
        Utils::clampWidgetToHost(this, parentWidget());
    event->accept();
}

void TouchNumKeyboard::mouseReleaseEvent(QMouseEvent *event)
{
    d_ptr->dragging = false;
    QDialog::mouseReleaseEvent(event);
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
    Q_D(TouchNumKeyboard);
    auto *button = qobject_cast<QPushButton *>(sender());
    if (!button)
        return;
    const QString caption = button->text();
    int start = d->startIndex;
    if (d->isPaging() && caption == tr("PgUp")) {
        start -= start == 3 || start == 4 ? 3 : 2;
    } else if (d->isPaging() && caption == tr("PgDn")) {
        start += d->page() == 0 ? 3 : 2;
    } else if (d->isPaging() && caption == tr("More")) {
        start = d->page() == 0 ? 3 : 0;
    } else {
        typeKey(QApplication::focusWidget(), d->shortcutMap.value(button));
        return;
    }
    // A unit may be called like a page key, and then ask for a page that there is not.
    d->startIndex = std::clamp(start, 0, 2 * d->lastPage() + 1);
    updateButtons();
}

/// Lays out the current page of more unit keys than there are buttons: three units on the first
/// page, two on each that follows, up to three on the last.
void TouchNumKeyboard::updateButtons()
{
    Q_D(TouchNumKeyboard);
    for (QPushButton *button : d->unitButtons)
        button->hide();
    d->shortcutMap.clear();

    const bool isMiddle = d->page() != 0 && d->page() != d->lastPage();
    d->assignPaging(d->unitButtons.last(), isMiddle ? tr("PgDn") : tr("More"));
    if (isMiddle)
        d->assignPaging(d->unitButtons.first(), tr("PgUp"));
    const int first = isMiddle ? 1 : 0;
    const int shown = isMiddle ? 2 : std::min(3, int(d->shortcutKeys.size()) - d->startIndex);
    for (int i = 0; i < shown; ++i)
        d->assignUnit(d->unitButtons.at(first + i), d->shortcutKeys.at(d->startIndex + i));
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
