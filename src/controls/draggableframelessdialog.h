// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QDialog>
#include <QFrame>

#include <memory>

class QPushButton;

namespace Controls
{

class DraggableDialogTitleBarPrivate;
class DraggableFramelessDialogPrivate;

/*! The title bar of a frameless dialog: its title and, on request, buttons to minimise, maximise
    and close. DraggableFramelessDialog makes its own; alone it serves dialogs that are moved some
    other way.

    Style sheets address it as "draggableDialogTitleBar", its label as "draggableDialogTitleLabel"
    and the buttons as "draggableDialogMinimizeButton", "draggableDialogMaximizeButton" (with the
    property "max" while maximised) and "draggableDialogCloseButton"; their icons come from there
    too.

    \code
    auto *bar = new Controls::DraggableDialogTitleBar(dialog);
    bar->setHeaderButton(Controls::DraggableDialogTitleBar::CloseButton);
    bar->setTitleHeight(40);
    bar->setWindowTitle(tr("Marker search"));
    bar->setGeometry(0, 0, dialog->width(), bar->titleHeight());
    \endcode */
class VNAWIDGETS_EXPORT DraggableDialogTitleBar : public QFrame
{
    Q_OBJECT

public:
    /// The buttons of the bar.
    enum Button {
        MinimizeButton = 0x1, ///< minimises the dialog
        MaximizeButton = 0x2, ///< fills the screen, and back
        CloseButton = 0x4, ///< rejects the dialog
    };
    Q_DECLARE_FLAGS(Buttons, Button)
    Q_FLAG(Buttons)

    /// A child of \a dialog, which the buttons act on; without one (null) they do nothing.
    explicit DraggableDialogTitleBar(QDialog *dialog);
    ~DraggableDialogTitleBar() override;

    /// Height in pixels; 35 at the start.
    int titleHeight() const;
    /// Alignment of the title.
    Qt::Alignment windowTitleAlignment() const;

    /// Shows exactly these buttons; none at the start.
    void setHeaderButton(QFlags<Button> buttons);
    /// The buttons are squares of the same height; a negative height counts as 0.
    void setTitleHeight(int height);
    /// Shows \a title; at the start it is the title that the dialog had.
    void setWindowTitle(const QString &title);
    /// Left and vertically centred at the start.
    void setWindowTitleAlignment(Qt::Alignment alignment);

private Q_SLOTS:
    void onMaximizeClicked(bool checked);
    void onMinimizeClicked(bool checked);

private:
    /// Makes or deletes \a button so that it exists when \a wanted; true when it was made.
    bool provideButton(QPushButton *&button, bool wanted, const QString &objectName,
                       const QString &accessibleName);
    void updateButtonSizes();

    const std::unique_ptr<DraggableDialogTitleBarPrivate> d;
};

/*! A dialog without a system frame for the touch screen, dragged by its own title bar.

    It centres itself over its parent when shown and stays inside the parent while dragged and when
    the parent shrinks; without a parent it stays on its screen. On Wayland, where windows cannot
    place themselves, the compositor moves it instead. The dialog's own layout must leave the height
    of the title bar free at the top. Not for dialogs that the window manager should
    frame.

    \code
    Controls::DraggableFramelessDialog dialog(mainWindow);
    dialog.setWindowTitle(tr("Marker search"));
    dialog.setHeaderButton(Controls::DraggableDialogTitleBar::CloseButton);
    auto *layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(12, 12 + 35, 12, 12);
    layout->addWidget(searchForm);
    dialog.open();
    \endcode */
class VNAWIDGETS_EXPORT DraggableFramelessDialog : public QDialog
{
    Q_OBJECT

public:
    /// A dialog over \a parent, without buttons in its title bar.
    explicit DraggableFramelessDialog(QWidget *parent = nullptr);
    ~DraggableFramelessDialog() override;

    /// The buttons of the title bar; none at the start.
    void setHeaderButton(QFlags<DraggableDialogTitleBar::Button> buttons);
    /// The title in the bar; QWidget::windowTitle() stays what it was. A title set through
    /// QWidget or the property windowTitle is shown as well.
    void setWindowTitle(const QString &title);
    /// Moves to the middle of the parent, if there is one.
    void centerInParent();
    /// Moves inside the parent, if there is one.
    void clampToParentVisibleRect();
    /// Moves to \a delta pixels from where the drag began, as far as the parent (or the screen)
    /// allows.
    void doMoveByDelta(const QPoint &delta);
    /// Always false: the dialog moves itself wherever a window can.
    bool startSystemMoveIfSupported() const;
    /// Whether a press at \a localPos of \a bar drags: not on buttons, sliders, entries or what
    /// takes focus.
    bool shouldStartDrag(QWidget *bar, const QPoint &localPos) const;
    /// Where the mouse or the first finger is on the screen; false for events that do not say.
    bool resolveGlobalPosFromEvent(QEvent *event, QPoint &position) const;

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    bool filterTitleBar(QEvent *event);
    bool startDrag(QEvent *event, const QPoint &localPos, const QPoint &globalPos);

    const std::unique_ptr<DraggableFramelessDialogPrivate> d;
};

} // namespace Controls

Q_DECLARE_OPERATORS_FOR_FLAGS(Controls::DraggableDialogTitleBar::Buttons)
