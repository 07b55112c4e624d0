// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/overlaycontainer.h>

#include <base/qtcompat_p.h>
#include <platform/placement.h>

#include <QApplication>
#include <QDialog>
#include <QLayout>
#include <QTouchEvent>

#include <algorithm>

namespace Controls
{

OverlayContainer::OverlayContainer(QWidget *parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("overlayContainer"));
    setAttribute(Qt::WA_AcceptTouchEvents);
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    hide();
    attachToHost(parent);
    updateBackground();
}

OverlayContainer::~OverlayContainer()
{
    // The dialog may be a child, which is destroyed after this class has ended.
    if (m_dialog)
        m_dialog->disconnect(this);
}

QDialog *OverlayContainer::activeDialog() const
{
    return m_dialog;
}

void OverlayContainer::attachToHost(QWidget *host)
{
    if (m_host == host)
        return;
    if (m_host)
        m_host->removeEventFilter(this);
    m_host = host;
    if (!host)
        return;
    if (parentWidget() != host) {
        const bool shown = isVisible();
        setParent(host);
        setVisible(shown);
    }
    host->installEventFilter(this);
    updateGeometryToHost();
    raise();
}

void OverlayContainer::showWithDialog(QDialog *dialog, OutsideClickAction action, bool dim,
                                      DialogPlacement placement, QWidget *anchor)
{
    if (!dialog)
        return;
    if (!m_host)
        attachToHost(dialog->parentWidget());
    if (m_dialog && m_dialog != dialog)
        m_dialog->hide();
    if (m_dialog)
        releaseDialog();

    m_anchor = anchor;
    m_outsideClickAction = action;
    m_placement = placement;
    setDimEnabled(dim);
    updateGeometryToHost();

    if (!dialog->isWindow() && dialog->parentWidget() != this)
        dialog->setParent(this);
    m_dialog = dialog;
    connect(dialog, &QDialog::finished, this, &OverlayContainer::releaseDialog);
    dialog->installEventFilter(this);
    // A press on this layer gives the focus to whoever has it already, and so takes it from nobody.
    setFocusProxy(dialog);

    dialog->ensurePolished();
    if (dialog->layout())
        dialog->layout()->activate();
    dialog->adjustSize();
    placeDialog();
    dialog->setAttribute(Qt::WA_Moved);
    dialog->setAttribute(Qt::WA_Resized);
    if (dialog->isWindow())
        dialog->winId();
    dialog->raise();
    raise();

    // One repaint for both. Showing runs code of the dialog, which may end anything here.
    const QPointer<OverlayContainer> self(this);
    const QPointer<QDialog> shown(dialog);
    const QPointer<QWidget> frozen(m_host && m_host->updatesEnabled() ? m_host.data() : nullptr);
    if (frozen)
        frozen->setUpdatesEnabled(false);
    show();
    if (self && shown)
        shown->show();
    if (frozen)
        frozen->setUpdatesEnabled(true);
}

void OverlayContainer::setDimEnabled(bool dim)
{
    if (m_dimEnabled == dim)
        return;
    m_dimEnabled = dim;
    updateBackground();
}

bool OverlayContainer::event(QEvent *event)
{
    if (!m_dialog)
        return QFrame::event(event);

    bool outside = false;
    bool pressed = false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        pressed = true;
        Q_FALLTHROUGH();
    case QEvent::MouseButtonRelease: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        outside = isOutside(QtCompat::position(mouse), QtCompat::globalPosition(mouse));
        break;
    }
    case QEvent::Wheel: {
        const auto *wheel = static_cast<QWheelEvent *>(event);
        outside = isOutside(wheel->position(), wheel->globalPosition());
        break;
    }
    case QEvent::TouchBegin:
        pressed = true;
        Q_FALLTHROUGH();
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel: {
        const auto *touch = static_cast<QTouchEvent *>(event);
        outside = QtCompat::touchPointCount(touch) > 0
            && isOutside(QtCompat::firstTouchPosition(touch),
                         QtCompat::firstTouchGlobalPosition(touch));
        break;
    }
    case QEvent::ContextMenu:
        // Ignored, it would reach the host below.
        outside = true;
        break;
    default:
        break;
    }
    if (!outside)
        return QFrame::event(event);
    event->accept();
    if (pressed)
        handleOutsideClick();
    return true;
}

bool OverlayContainer::eventFilter(QObject *object, QEvent *event)
{
    if (object == m_host && event->type() == QEvent::Resize) {
        updateGeometryToHost();
    } else if (object == m_dialog && event->type() == QEvent::Resize) {
        Utils::clampWidgetToHost(m_dialog, dialogArea());
    } else if (object == m_dialog && event->type() == QEvent::HideToParent) {
        // Hidden without having finished, the dialog must not leave the host blocked. This event
        // comes last, when the dialog has seen to its focus.
        releaseDialog();
    }
    return QFrame::eventFilter(object, event);
}

void OverlayContainer::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    if (m_dialog)
        placeDialog();
}

bool OverlayContainer::focusNextPrevChild(bool next)
{
    if (!m_dialog || m_dialog->isWindow())
        return QFrame::focusNextPrevChild(next);

    QWidget *const current = QApplication::focusWidget();
    QWidget *const start = current && m_dialog->isAncestorOf(current) ? current : m_dialog.data();
    QWidget *widget = start;
    do {
        widget = next ? widget->nextInFocusChain() : widget->previousInFocusChain();
        if (m_dialog->isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus)
            && !widget->focusProxy() && widget->isEnabled() && widget->isVisible()) {
            widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    } while (widget != start);
    return true;
}

void OverlayContainer::handleOutsideClick()
{
    const QPointer<OverlayContainer> self(this);
    Q_EMIT outsideClicked();
    if (!self || !m_dialog)
        return;
    if (m_outsideClickAction == Accept)
        m_dialog->accept();
    else if (m_outsideClickAction == Reject)
        m_dialog->reject();
}

void OverlayContainer::updateBackground()
{
    setAttribute(Qt::WA_NoSystemBackground, !m_dimEnabled);
    setAttribute(Qt::WA_StyledBackground, m_dimEnabled);
    setStyleSheet(m_dimEnabled
                      ? QStringLiteral("#overlayContainer { background-color: rgba(0, 0, 0, 80); }")
                      : QString());
}

void OverlayContainer::updateGeometryToHost()
{
    if (m_host)
        setGeometry(m_host->rect());
}

/// What the dialog has to stay inside of.
QWidget *OverlayContainer::dialogArea()
{
    return m_dialog->parentWidget() == this || !m_host ? this : m_host.data();
}

/// Puts the dialog beside the anchor, or into the middle.
void OverlayContainer::placeDialog()
{
    QWidget *area = dialogArea();
    if (m_placement != LeftOfAnchor || !m_anchor) {
        Utils::centerWidgetInHost(m_dialog, area);
        return;
    }
    const auto placedRect = [this](const QWidget *widget) {
        const QPoint global = widget->mapToGlobal(QPoint());
        const QPoint topLeft =
            m_dialog->isWindow() ? global : m_dialog->parentWidget()->mapFromGlobal(global);
        return QRect(topLeft, widget->size());
    };
    const QRect anchorRect = placedRect(m_anchor);
    const QPoint wanted(anchorRect.x() - m_dialog->width(), anchorRect.y());
    m_dialog->move(Utils::boundedTopLeft(wanted, m_dialog->size(), placedRect(area), 0));
}

/// Whether a position in this layer, or on the screen for a dialog with a window, misses the
/// dialog.
bool OverlayContainer::isOutside(const QPointF &position, const QPointF &globalPosition) const
{
    if (m_dialog->isWindow()) {
        return !QRect(m_dialog->mapToGlobal(QPoint()), m_dialog->size())
                    .contains(globalPosition.toPoint());
    }
    return !m_dialog->geometry().contains(position.toPoint());
}

/// Forgets the dialog and hides.
void OverlayContainer::releaseDialog()
{
    if (m_dialog) {
        m_dialog->disconnect(this);
        m_dialog->removeEventFilter(this);
    }
    m_dialog = nullptr;
    m_anchor = nullptr;
    setFocusProxy(nullptr);
    hide();
}

} // namespace Controls
