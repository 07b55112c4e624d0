// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/overlaycontainer.h>

#include <base/qtcompat_p.h>
#include <platform/placement.h>

#include <QApplication>
#include <QDialog>
#include <QLayout>
#include <QPointer>
#include <QTouchEvent>

#include <algorithm>

namespace Controls
{

class OverlayContainerPrivate
{
public:
    QPointer<QWidget> host;
    QPointer<QWidget> dialog; ///< a QDialog, until the last events of its destruction
    QPointer<QWidget> anchor;
    OverlayContainer::OutsideClickAction outsideClickAction = OverlayContainer::None;
    OverlayContainer::DialogPlacement placement = OverlayContainer::Centered;
    bool dimEnabled = false;
};

OverlayContainer::OverlayContainer(QWidget *parent)
    : QFrame(parent)
    , d(std::make_unique<OverlayContainerPrivate>())
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
    if (d->dialog)
        d->dialog->disconnect(this);
}

QDialog *OverlayContainer::activeDialog() const
{
    return static_cast<QDialog *>(d->dialog.data());
}

void OverlayContainer::attachToHost(QWidget *host)
{
    if (d->host == host)
        return;
    if (d->host)
        d->host->removeEventFilter(this);
    d->host = host;
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
    if (!d->host)
        attachToHost(dialog->parentWidget());
    if (d->dialog && d->dialog != dialog)
        d->dialog->hide();
    if (d->dialog)
        releaseDialog();

    d->anchor = anchor;
    d->outsideClickAction = action;
    d->placement = placement;
    setDimEnabled(dim);
    updateGeometryToHost();

    if (!dialog->isWindow() && dialog->parentWidget() != this)
        dialog->setParent(this);
    d->dialog = dialog;
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
    const QPointer<QWidget> frozen(d->host && d->host->updatesEnabled() ? d->host.data() : nullptr);
    if (frozen)
        frozen->setUpdatesEnabled(false);
    show();
    if (self && shown)
        shown->show();
    else if (self)
        hide(); // nothing to show, nothing to cover
    if (frozen)
        frozen->setUpdatesEnabled(true);
}

OverlayContainer::OutsideClickAction OverlayContainer::outsideClickAction() const
{
    return d->outsideClickAction;
}

void OverlayContainer::setOutsideClickAction(OutsideClickAction action)
{
    d->outsideClickAction = action;
}

bool OverlayContainer::isDimEnabled() const
{
    return d->dimEnabled;
}

void OverlayContainer::setDimEnabled(bool dim)
{
    if (d->dimEnabled == dim)
        return;
    d->dimEnabled = dim;
    updateBackground();
}

bool OverlayContainer::event(QEvent *event)
{
    if (!d->dialog)
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
    if (object == d->host && event->type() == QEvent::Resize) {
        updateGeometryToHost();
    } else if (object == d->dialog && event->type() == QEvent::Resize) {
        Utils::clampWidgetToHost(d->dialog, dialogArea());
    } else if (object == d->dialog && event->type() == QEvent::HideToParent) {
        // Hidden without having finished, the dialog must not leave the host blocked. This event
        // comes last, when the dialog has seen to its focus.
        releaseDialog();
    }
    return QFrame::eventFilter(object, event);
}

void OverlayContainer::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    if (d->dialog)
        placeDialog();
}

bool OverlayContainer::focusNextPrevChild(bool next)
{
    if (!d->dialog || d->dialog->isWindow())
        return QFrame::focusNextPrevChild(next);

    QWidget *const current = QApplication::focusWidget();
    QWidget *const start = current && d->dialog->isAncestorOf(current) ? current : d->dialog.data();
    QWidget *widget = start;
    do {
        widget = next ? widget->nextInFocusChain() : widget->previousInFocusChain();
        if (d->dialog->isAncestorOf(widget) && (widget->focusPolicy() & Qt::TabFocus)
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
    if (!self || !d->dialog)
        return;
    if (d->outsideClickAction == Accept)
        activeDialog()->accept();
    else if (d->outsideClickAction == Reject)
        activeDialog()->reject();
}

void OverlayContainer::updateBackground()
{
    setAttribute(Qt::WA_NoSystemBackground, !d->dimEnabled);
    setAttribute(Qt::WA_StyledBackground, d->dimEnabled);
    setStyleSheet(d->dimEnabled
                      ? QStringLiteral("#overlayContainer { background-color: rgba(0, 0, 0, 80); }")
                      : QString());
}

void OverlayContainer::updateGeometryToHost()
{
    if (d->host)
        setGeometry(d->host->rect());
}

/// What the dialog has to stay inside of.
QWidget *OverlayContainer::dialogArea()
{
    return d->dialog->parentWidget() == this || !d->host ? this : d->host.data();
}

/// Puts the dialog beside the anchor, or into the middle.
void OverlayContainer::placeDialog()
{
    QWidget *area = dialogArea();
    if (d->placement != LeftOfAnchor || !d->anchor) {
        Utils::centerWidgetInHost(d->dialog, area);
        return;
    }
    const auto placedRect = [this](const QWidget *widget) {
        const QPoint global = widget->mapToGlobal(QPoint());
        const QPoint topLeft =
            d->dialog->isWindow() ? global : d->dialog->parentWidget()->mapFromGlobal(global);
        return QRect(topLeft, widget->size());
    };
    const QRect anchorRect = placedRect(d->anchor);
    const QPoint wanted(anchorRect.x() - d->dialog->width(), anchorRect.y());
    d->dialog->move(Utils::boundedTopLeft(wanted, d->dialog->size(), placedRect(area), 0));
}

/// Whether a position in this layer, or on the screen for a dialog with a window, misses the
/// dialog.
bool OverlayContainer::isOutside(const QPointF &position, const QPointF &globalPosition) const
{
    if (d->dialog->isWindow()) {
        return !QRect(d->dialog->mapToGlobal(QPoint()), d->dialog->size())
                    .contains(globalPosition.toPoint());
    }
    return !d->dialog->geometry().contains(position.toPoint());
}

/// Forgets the dialog and hides.
void OverlayContainer::releaseDialog()
{
    if (d->dialog) {
        d->dialog->disconnect(this);
        d->dialog->removeEventFilter(this);
    }
    d->dialog = nullptr;
    d->anchor = nullptr;
    setFocusProxy(nullptr);
    hide();
}

} // namespace Controls
