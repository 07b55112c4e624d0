// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QFrame>

#include <memory>

QT_BEGIN_NAMESPACE
class QDialog;
QT_END_NAMESPACE

namespace Controls
{

class OverlayContainerPrivate;

/*! Covers a widget completely and carries one dialog above it: input beside the dialog goes
    nowhere, and can accept or reject the dialog. The layer hides with the dialog, however that
    ends.

    Not for several dialogs at a time, and not for dialogs that must leave the window: give those
    a window and a modality of their own.
    \code
    auto *overlay = new Controls::OverlayContainer(mainWindow);
    auto *dialog = new QDialog(mainWindow);
    dialog->setWindowFlags(Qt::Widget); // no window of its own: it moves into the layer
    overlay->showWithDialog(dialog, Controls::OverlayContainer::Reject, true,
                            Controls::OverlayContainer::LeftOfAnchor, softKey);
    connect(dialog, &QDialog::accepted, this, &Panel::apply);
    \endcode

    A press beside the dialog leaves the keyboard focus where it is. Dimming is the rule
    "#overlayContainer" of its own style sheet. Host, dialog and anchor are not owned and may go
    at any time. */
class VNAWIDGETS_EXPORT OverlayContainer : public QFrame
{
    Q_OBJECT

    Q_PROPERTY(bool dimEnabled READ isDimEnabled WRITE setDimEnabled)
    Q_PROPERTY(
        OutsideClickAction outsideClickAction READ outsideClickAction WRITE setOutsideClickAction)

public:
    /// What a press beside the dialog does after outsideClicked().
    enum OutsideClickAction : int {
        None = 0, ///< nothing more
        Accept = 1, ///< accepts the dialog
        Reject = 2, ///< rejects it
    };
    Q_ENUM(OutsideClickAction)
    /// Where the dialog appears. Without an anchor it is always centred.
    enum DialogPlacement : int {
        Centered = 0, ///< in the middle of the host
        LeftOfAnchor = 1, ///< touching the anchor's left edge, level with its top, inside the host
    };
    Q_ENUM(DialogPlacement)

    /// Covers \a parent, hidden at first.
    explicit OverlayContainer(QWidget *parent = nullptr);
    ~OverlayContainer() override;

    /// The dialog on show, or null.
    QDialog *activeDialog() const;

    /// Moves to another widget and follows its size from now on; null stays in place and follows
    /// none.
    void attachToHost(QWidget *host);
    /// Shows the layer and the dialog on it. A dialog that is no window becomes a child of the
    /// layer. Ignores a null dialog; takes the dialog's parent for the host if there is none.
    void showWithDialog(QDialog *dialog, OutsideClickAction action, bool dim,
                        DialogPlacement placement, QWidget *anchor);
    /// What a press beside the dialog does; None at first.
    OutsideClickAction outsideClickAction() const;
    /// Sets outsideClickAction(), until the next showWithDialog().
    void setOutsideClickAction(OutsideClickAction action);
    /// Whether the host is darkened.
    bool isDimEnabled() const;
    /// Darkens the host, or leaves it clear, which is the default. Input is blocked either way.
    void setDimEnabled(bool dim);

Q_SIGNALS:
    /// A press, double click or first touch beside the dialog, before the action for it.
    void outsideClicked();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    /// Tab goes around inside the dialog, not into the host below.
    bool focusNextPrevChild(bool next) override;

private:
    void handleOutsideClick();
    void updateBackground();
    void updateGeometryToHost();
    QWidget *dialogArea();
    void placeDialog();
    bool isOutside(const QPointF &position, const QPointF &globalPosition) const;
    void releaseDialog();

    const std::unique_ptr<OverlayContainerPrivate> d;
};

} // namespace Controls
