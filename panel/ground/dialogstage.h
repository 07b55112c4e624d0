// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/overlaycontainer.h>

#include <QPointer>

namespace Panel
{

/// The height of a dialog's title, in pixels: a finger presses the key that closes it.
constexpr int dialogTitleHeight = 44;

/// What the layout of a frameless dialog keeps free: a margin on all sides, and its title above.
inline QMargins dialogMargins(int margin)
{
    return {margin, dialogTitleHeight + margin, margin, margin};
}

/*! Shows a dialog within a window, over all of it, which is dimmed: so it moves and closes alike
    under every window system, also where there is but one window on the whole screen.

    Keys and presses stay with the dialog; Escape and a press beside it reject it. The stage goes with
    the dialog, and the focus returns to where it was. */
class DialogStage : public Controls::OverlayContainer
{
    Q_OBJECT

public:
    /// Shows a dialog that was not shown yet, no larger than the window allows. It is deleted when it
    /// is finished.
    static void show(QDialog *dialog, QWidget *window);
    /// Gives a frameless dialog a title of dialogTitleHeight, as show() does.
    static void setTitleHeight(QDialog *dialog);
    /// Whether a dialog is on show in this window.
    static bool isOccupied(const QWidget *window);

protected:
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    DialogStage(QDialog *dialog, QWidget *window);
    void fit();
    void leave();

    QPointer<QDialog> m_dialog;
    QPointer<QWidget> m_focusBefore;
};

} // namespace Panel
