// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "ui_touchnumkeyboard.h"
#include "unitcolumn_p.h"

#include <controls/overlaycontainer.h>
#include <controls/touchnumkeyboard.h>

#include <QEventLoop>
#include <QMap>
#include <QPointer>
#include <QPushButton>

QT_BEGIN_NAMESPACE
class QMainWindow;
class QEvent;
class QMouseEvent;
QT_END_NAMESPACE

namespace Controls
{

/// Window flags of a keypad that is not embedded.
constexpr Qt::WindowFlags keypadDialogFlags = Qt::Dialog | Qt::FramelessWindowHint;

/// Presses and releases a key on an object that either event may destroy. Without one, or without
/// a key, nothing is sent.
void typeKey(QObject *target, const KeySpec &spec);

class TouchNumKeyboardPrivate
{
public:
    explicit TouchNumKeyboardPrivate(TouchNumKeyboard *keyboard)
        : q(keyboard)
    {
    }

    QList<QPushButton *> keys() const { return basicButtons.keys() + units.buttons(); }
    QList<QPushButton *> digits() const
    {
        return {ui.btn0, ui.btn1, ui.btn2, ui.btn3, ui.btn4,
                ui.btn5, ui.btn6, ui.btn7, ui.btn8, ui.btn9};
    }

    void addKey(QPushButton *button, int key, const QString &text, const char *role);
    void labelKeys();
    void updateEnterKey();
    void updateMetrics();

    QWidget *hostWindow() const;
    QMainWindow *mainWindow() const;
    /// Null from the moment the overlay's destructor has run, when its guarded pointer is not yet.
    OverlayContainer *overlay() const { return qobject_cast<OverlayContainer *>(overlayWidget); }
    void showOver(QWidget *host);
    void leaveOverlay();
    void pressOutside();
    void letGo();
    void giveFocusBack();
    void handleIndicatorMouse(const QMouseEvent *event);
    bool filterIndicator(QEvent *event);

    TouchNumKeyboard *const q;
    Ui::TouchNumKeyboard ui;
    QMap<QPushButton *, KeySpec> basicButtons;
    UnitColumn units;
    QPointer<QObject> receiver;
    QPointer<QWidget> chosenHost;
    QPointer<QWidget> popupAnchor;
    QPointer<QWidget> titleWidget;
    QPointer<QWidget> extraWidget;
    bool dims = false;
    QVBoxLayout *titleWidgetLayout = nullptr; ///< keeps the title widget off the edges
    TouchNumKeyboard::PressOutsidePolicy pressOutsidePolicy = TouchNumKeyboard::PressOutsideCancels;

    QPointer<QWidget> overlayWidget; ///< see overlay()
    QPointer<QWidget> home; ///< the parent when the overlay is not
    QMetaObject::Connection homeGone;
    bool goesWithHost = false; ///< the home is part of the host window
    QPointer<QWidget> formerFocus;
    QPointer<QEventLoop> loop;
    bool dragging = false;
    QPoint dragOffset; ///< from the pointer to the keypad's position
};

} // namespace Controls
