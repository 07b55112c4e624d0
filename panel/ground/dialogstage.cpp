// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogstage.h"

#include <controls/draggableframelessdialog.h>

#include <QAbstractItemView>
#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

namespace Panel
{

namespace
{

/// What is seen of the window around a dialog, in pixels at least.
constexpr int s_edge = 8;

} // namespace

DialogStage::DialogStage(QDialog *dialog, QWidget *window)
    : OverlayContainer(window)
    , m_dialog(dialog)
    , m_focusBefore(window->focusWidget())
{
    const QPointer<QWidget> first(dialog->focusWidget());
    setTitleHeight(dialog);
    dialog->setWindowFlags(Qt::Widget);
    dialog->setAttribute(Qt::WA_StyledBackground);
    // The layer ends all connections between the two when the dialog is finished.
    connect(dialog, &QDialog::finished, dialog, [self = QPointer<DialogStage>(this)] {
        if (self)
            self->leave();
    });
    const QSize wanted =
        dialog->testAttribute(Qt::WA_Resized) ? dialog->size() : dialog->sizeHint();
    showWithDialog(dialog, Reject, true, Centered, nullptr);
    dialog->resize(wanted);
    fit();
    dialog->move(rect().center() - dialog->rect().center());
    // Rows that were measured before they had the window's style.
    for (QAbstractItemView *view : dialog->findChildren<QAbstractItemView *>())
        view->doItemsLayout();
    if (first)
        first->setFocus();
    else if (!focusNextPrevChild(true))
        dialog->setFocus();
    // Tab comes to it, too, once it is clear that it is not where to begin.
    if (auto *close =
            dialog->findChild<QPushButton *>(QStringLiteral("draggableDialogCloseButton")))
        close->setFocusPolicy(Qt::TabFocus);
}

void DialogStage::show(QDialog *dialog, QWidget *window)
{
    new DialogStage(dialog, window->window());
}

void DialogStage::setTitleHeight(QDialog *dialog)
{
    if (auto *title = dialog->findChild<Controls::DraggableDialogTitleBar *>())
        title->setTitleHeight(dialogTitleHeight);
}

bool DialogStage::isOccupied(const QWidget *window)
{
    const auto stages = window->findChildren<DialogStage *>(QString(), Qt::FindDirectChildrenOnly);
    for (const DialogStage *stage : stages) {
        if (stage->m_dialog && stage->m_dialog->isVisible())
            return true;
    }
    return false;
}

/// Goes around within the dialog.
bool DialogStage::focusNextPrevChild(bool next)
{
    if (!m_dialog)
        return false;
    QWidget *from = m_dialog->isAncestorOf(focusWidget()) ? focusWidget() : m_dialog.data();
    for (QWidget *widget = from;;) {
        widget = next ? widget->nextInFocusChain() : widget->previousInFocusChain();
        if (widget == from)
            return false;
        const bool takesTab = (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->focusProxy();
        if (m_dialog->isAncestorOf(widget) && takesTab && widget->isEnabled()
            && widget->isVisible()) {
            widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
}

/// What the dialog has no use for is nobody's.
void DialogStage::keyPressEvent(QKeyEvent *event)
{
    event->accept();
}

void DialogStage::resizeEvent(QResizeEvent *event)
{
    OverlayContainer::resizeEvent(event);
    fit();
}

/// Keeps the dialog within the window.
void DialogStage::fit()
{
    if (!m_dialog)
        return;
    const QSize room = size() - QSize(2 * s_edge, 2 * s_edge);
    m_dialog->resize(m_dialog->size().boundedTo(room));
    const QPoint farthest(width() - m_dialog->width(), height() - m_dialog->height());
    m_dialog->move(qBound(0, m_dialog->x(), qMax(0, farthest.x())),
                   qBound(0, m_dialog->y(), qMax(0, farthest.y())));
}

void DialogStage::leave()
{
    if (m_focusBefore && m_focusBefore->isVisible())
        m_focusBefore->setFocus();
    m_focusBefore = nullptr;
    if (m_dialog)
        m_dialog->deleteLater();
    m_dialog = nullptr;
    hide();
    deleteLater();
}

} // namespace Panel
