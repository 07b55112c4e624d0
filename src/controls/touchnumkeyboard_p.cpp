// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "touchnumkeyboard_p.h"

#include "keyglyph_p.h"

#include <base/qtcompat_p.h>
#include <controls/thememanager.h>

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QMainWindow>

#include <algorithm>
#include <cmath>

namespace Controls
{

namespace
{

constexpr int s_enterIcon = 2; // its id at the theme manager

/// A font of the same kind, so many times its size.
QFont scaledFont(QFont font, double factor)
{
    if (font.pixelSize() > 0)
        font.setPixelSize(int(std::lround(font.pixelSize() * factor)));
    else
        font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

} // namespace

void typeKey(QObject *target, const KeySpec &spec)
{
    if (spec.key == Qt::Key_unknown)
        return;
    const QPointer<QObject> alive(target);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (!alive)
            return;
        QKeyEvent event(type, spec.key, Qt::NoModifier, spec.text, false, 1);
        QCoreApplication::sendEvent(alive, &event);
    }
}

/// Enters a key into the basic-button map.
void TouchNumKeyboardPrivate::addKey(QPushButton *button, int key, const QString &text,
                                     const char *role)
{
    basicButtons.insert(button, {key, QString(), text});
    button->setProperty("keyRole", QString::fromLatin1(role));
    QObject::connect(button, &QPushButton::clicked, q, &TouchNumKeyboard::clickedKey);
}

/// Captions, and names for who cannot see them.
void TouchNumKeyboardPrivate::labelKeys()
{
    const auto label = [this](QPushButton *button, const QString &caption, const QString &name) {
        basicButtons[button].label = caption;
        button->setText(caption);
        button->setAccessibleName(name);
    };
    const auto draw = [](QPushButton *button, KeyGlyph glyph, const QString &name) {
        button->setIcon(keyGlyphIcon(glyph, button));
        button->setAccessibleName(name);
    };
    for (QPushButton *digit : digits())
        label(digit, basicButtons.value(digit).text, basicButtons.value(digit).text);
    label(ui.btnP, QStringLiteral("."), TouchNumKeyboard::tr("Point"));
    label(ui.btnC, QStringLiteral("\u00b1"), TouchNumKeyboard::tr("Plus minus"));
    label(ui.btnEsc, TouchNumKeyboard::tr("Esc", "key that cancels"),
          TouchNumKeyboard::tr("Cancel"));
    draw(ui.btnBack, KeyGlyph::Backspace, TouchNumKeyboard::tr("Backspace"));
    draw(ui.btnDown, KeyGlyph::Down, TouchNumKeyboard::tr("Step down"));
    draw(ui.btnUp, KeyGlyph::Up, TouchNumKeyboard::tr("Step up"));
    draw(ui.btnLeft, KeyGlyph::Left, TouchNumKeyboard::tr("Cursor left"));
    draw(ui.btnRight, KeyGlyph::Right, TouchNumKeyboard::tr("Cursor right"));
    label(ui.btnOk, TouchNumKeyboard::tr("OK", "key that enters"), TouchNumKeyboard::tr("Enter"));
    updateEnterKey();
}

/// The enter key shows the theme's icon, or its caption where the application brings none.
void TouchNumKeyboardPrivate::updateEnterKey()
{
    const ThemeManager *theme = ThemeManager::instance();
    const bool exists = QFile::exists(theme->getIconPath(s_enterIcon));
    ui.btnOk->setIcon(exists ? theme->icon(s_enterIcon) : QIcon());
    ui.btnOk->setText(exists ? QString() : basicButtons.value(ui.btnOk).label);
}

/// Keys fit a finger and their captions, whatever the resolution and the font.
void TouchNumKeyboardPrivate::updateMetrics()
{
    const auto pixels = [](double millimetres, int dpi) {
        return int(std::ceil(millimetres / 25.4 * dpi));
    };
    const auto wide = [&](double mm) { return pixels(mm, q->logicalDpiX()); };
    const auto high = [&](double mm) { return pixels(mm, q->logicalDpiY()); };

    const QFont keyFont = scaledFont(q->font(), 1.35);
    for (QPushButton *key : keys()) {
        key->setFont(keyFont);
        const QFontMetrics metrics(key->font());
        if (key != ui.btnOk)
            key->setIconSize({metrics.ascent(), metrics.ascent()});
        const bool isSide = units.buttons().contains(key) || key == ui.btnOk;
        key->setMinimumSize(
            std::max(wide(18.0),
                     metrics.horizontalAdvance(TouchNumKeyboard::tr("PgDn")) + metrics.height()),
            std::max(high(isSide ? 9.0 : 11.5), metrics.height() * 3 / 2));
    }
    QFont titleFont = q->font();
    titleFont.setBold(true);
    ui.nameLabel->setFont(titleFont);
    ui.nameLabel->setMinimumHeight(std::max(high(9.0), QFontMetrics(titleFont).height() * 3 / 2));
    ui.edit->setFont(scaledFont(q->font(), 1.7));
    ui.edit->setMinimumHeight(std::max(high(11.0), ui.edit->fontMetrics().height() * 3 / 2));
}

/// The window that the keypad covers: the host's choice, or else the main window; where that is
/// not to be seen, the anchor's. Null for a dialog of its own.
QWidget *TouchNumKeyboardPrivate::hostWindow() const
{
    if (chosenHost)
        return chosenHost;
    QWidget *const window = mainWindow();
    const bool isSeen = window && window->isVisible();
    return !isSeen && popupAnchor && popupAnchor->isVisible() ? popupAnchor->window() : window;
}

/// That of the parent, or else the first there is.
QMainWindow *TouchNumKeyboardPrivate::mainWindow() const
{
    if (const QWidget *parent = q->parentWidget()) {
        if (auto *window = qobject_cast<QMainWindow *>(parent->window()))
            return window;
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (auto *mainWindow = qobject_cast<QMainWindow *>(window))
            return mainWindow;
    }
    return nullptr;
}

/// Embeds the keypad in a main window, above an overlay that covers it.
void TouchNumKeyboardPrivate::showOver(QWidget *host)
{
    OverlayContainer *current = overlay();
    if (!current || current->parentWidget() != host) {
        leaveOverlay();
        if (current)
            current->deleteLater();
        current = new OverlayContainer(host);
        overlayWidget = current;
        QObject::connect(current, &QObject::destroyed, q, [this] {
            if (!goesWithHost)
                leaveOverlay();
        });
    }
    if (q->parentWidget() != current) {
        home = q->parentWidget();
        goesWithHost = home && home->window() == host;
        if (home)
            homeGone = QObject::connect(home, &QObject::destroyed, q, &QObject::deleteLater);
        q->setParent(current, Qt::Widget);
    }
    QObject::disconnect(current, &OverlayContainer::outsideClicked, q, nullptr);
    QObject::connect(current, &OverlayContainer::outsideClicked, q, [this] { pressOutside(); });
    current->showWithDialog(
        q, OverlayContainer::None, dims,
        popupAnchor ? OverlayContainer::LeftOfAnchor : OverlayContainer::Centered, popupAnchor);
}

/// Gives the keypad back to its own parent, so that it does not go with a host it was only shown
/// on.
void TouchNumKeyboardPrivate::leaveOverlay()
{
    if (!overlayWidget || q->parentWidget() != overlayWidget)
        return;
    QObject::disconnect(homeGone);
    q->setParent(home, keypadDialogFlags);
}

/// Return or Escape for the receiver, by the policy.
void TouchNumKeyboardPrivate::pressOutside()
{
    if (!receiver || pressOutsidePolicy == TouchNumKeyboard::PressOutsideIgnored)
        return;
    if (pressOutsidePolicy == TouchNumKeyboard::PressOutsideCommits)
        typeKey(receiver, {Qt::Key_Return, QString(), QStringLiteral("\n")});
    else
        typeKey(receiver, {Qt::Key_Escape, QString(), QString()});
}

/// Ends what a hidden keypad would never see the end of: a held key and a drag.
void TouchNumKeyboardPrivate::letGo()
{
    dragging = false;
    for (QPushButton *key : keys())
        key->setDown(false);
}

/// The focus returns to who had it before the keypad appeared, not to whoever comes next in the
/// window.
void TouchNumKeyboardPrivate::giveFocusBack()
{
    QWidget *now = QApplication::focusWidget();
    if (!q->isAncestorOf(now))
        return;
    if (formerFocus)
        formerFocus->setFocus(Qt::OtherFocusReason);
    else
        now->clearFocus();
}

void TouchNumKeyboardPrivate::handleIndicatorMouse(const QMouseEvent *event)
{
    const int position = ui.edit->cursorPositionAt(QtCompat::position(event).toPoint());
    const bool left = event->button() == Qt::LeftButton;
    if (event->type() == QEvent::MouseMove) {
        if (event->buttons() & Qt::LeftButton)
            Q_EMIT q->indicatorMove(position);
    } else if (left && event->type() == QEvent::MouseButtonPress) {
        Q_EMIT q->indicatorPress(position);
    } else if (left && event->type() == QEvent::MouseButtonDblClick) {
        Q_EMIT q->indicatorDoubleClick(position);
    } else if (left) {
        Q_EMIT q->indicatorRelease(position);
    }
}

/// Whether an event of the text area goes no further.
bool TouchNumKeyboardPrivate::filterIndicator(QEvent *event)
{
    const QPointer<QLineEdit> edit(ui.edit);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        handleIndicatorMouse(static_cast<QMouseEvent *>(event));
        // What mirrors another editor has no selection of its own to drag.
        return !edit || edit->isReadOnly();
    case QEvent::Wheel:
        event->ignore();
        Q_EMIT q->indicatorWheel(static_cast<QWheelEvent *>(event));
        return !edit || event->isAccepted();
    default:
        return false;
    }
}

} // namespace Controls
