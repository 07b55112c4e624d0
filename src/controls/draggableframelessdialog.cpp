// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/draggableframelessdialog.h>

#include <base/qtcompat_p.h>
#include <base/secondfinger_p.h>
#include <platform/placement.h>

#include <QAbstractSlider>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

namespace Controls
{

DraggableDialogTitleBar::DraggableDialogTitleBar(QDialog *dialog)
    : QFrame(dialog)
    , m_dialog(dialog)
{
    setObjectName(QStringLiteral("draggableDialogTitleBar"));
    setFixedHeight(m_titleHeight);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    m_titleLabel = new QLabel(dialog ? dialog->windowTitle() : QString(), this);
    m_titleLabel->setObjectName(QStringLiteral("draggableDialogTitleLabel"));
    m_titleLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    m_layout = new QHBoxLayout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    m_layout->addSpacing(8);
    m_layout->addWidget(m_titleLabel);
    m_layout->addStretch(1);
    m_layout->addSpacing(8);
}

Qt::Alignment DraggableDialogTitleBar::windowTitleAlignment() const
{
    return m_titleLabel->alignment();
}

void DraggableDialogTitleBar::setHeaderButton(QFlags<Button> buttons)
{
    if (provideButton(m_minimizeButton, buttons.testFlag(MinimizeButton),
                      QStringLiteral("draggableDialogMinimizeButton"), tr("Minimize")))
        connect(m_minimizeButton, &QPushButton::clicked, this,
                &DraggableDialogTitleBar::onMinimizeClicked);

    if (provideButton(m_maximizeButton, buttons.testFlag(MaximizeButton),
                      QStringLiteral("draggableDialogMaximizeButton"), tr("Maximize")))
        connect(m_maximizeButton, &QPushButton::clicked, this,
                &DraggableDialogTitleBar::onMaximizeClicked);
    if (m_maximizeButton && m_dialog)
        m_maximizeButton->setProperty("max", m_dialog->isMaximized());

    if (provideButton(m_closeButton, buttons.testFlag(CloseButton),
                      QStringLiteral("draggableDialogCloseButton"), tr("Close"))) {
        // Escape closes from the keyboard.
        m_closeButton->setFocusPolicy(Qt::NoFocus);
        m_closeButton->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        if (m_dialog)
            connect(m_closeButton, &QPushButton::clicked, m_dialog.data(), &QDialog::reject);
    }
    updateButtonSizes();
}

void DraggableDialogTitleBar::setTitleHeight(int height)
{
    height = qMax(height, 0);
    if (m_titleHeight == height)
        return;
    m_titleHeight = height;
    setFixedHeight(height);
    updateButtonSizes();
}

void DraggableDialogTitleBar::setWindowTitle(const QString &title)
{
    m_titleLabel->setText(title);
}

void DraggableDialogTitleBar::setWindowTitleAlignment(Qt::Alignment alignment)
{
    m_titleLabel->setAlignment(alignment);
}

void DraggableDialogTitleBar::onMaximizeClicked(bool checked)
{
    Q_UNUSED(checked)
    if (!m_dialog)
        return;
    const QPointer<DraggableDialogTitleBar> self(this);
    if (m_dialog->isMaximized())
        m_dialog->showNormal();
    else
        m_dialog->showMaximized();
    if (!self || !m_maximizeButton || !m_dialog)
        return;
    m_maximizeButton->setProperty("max", m_dialog->isMaximized());
    m_maximizeButton->style()->unpolish(m_maximizeButton);
    m_maximizeButton->style()->polish(m_maximizeButton);
    m_maximizeButton->update();
}

void DraggableDialogTitleBar::onMinimizeClicked(bool checked)
{
    Q_UNUSED(checked)
    if (m_dialog)
        m_dialog->setWindowState(Qt::WindowMinimized);
}

bool DraggableDialogTitleBar::provideButton(QPushButton *&button, bool wanted,
                                            const QString &objectName,
                                            const QString &accessibleName)
{
    if (wanted == (button != nullptr))
        return false;
    if (!wanted) {
        m_layout->removeWidget(button);
        // It may be the one whose click asks for this: it goes when the click is over.
        button->hide();
        button->deleteLater();
        button = nullptr;
        return false;
    }
    button = new QPushButton(this);
    button->setObjectName(objectName);
    button->setAccessibleName(accessibleName);
    // Enter in the dialog must not minimise it.
    button->setAutoDefault(false);
    m_layout->addWidget(button);
    return true;
}

void DraggableDialogTitleBar::updateButtonSizes()
{
    const int icon = qMax(m_titleHeight - 14, 12);
    for (QPushButton *button : {m_minimizeButton, m_maximizeButton, m_closeButton}) {
        if (button) {
            button->setFixedSize(m_titleHeight, m_titleHeight);
            button->setIconSize({icon, icon});
        }
    }
}

DraggableFramelessDialog::DraggableFramelessDialog(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::CustomizeWindowHint)
{
    setAttribute(Qt::WA_AcceptTouchEvents);
    setAttribute(Qt::WA_StyledBackground);
    m_titleBar = new DraggableDialogTitleBar(this);
    m_titleBar->installEventFilter(this);
    m_titleBar->setAttribute(Qt::WA_AcceptTouchEvents);
    m_titleBar->raise();
    if (parent)
        parent->installEventFilter(this);
}

void DraggableFramelessDialog::setHeaderButton(QFlags<DraggableDialogTitleBar::Button> buttons)
{
    if (m_titleBar)
        m_titleBar->setHeaderButton(buttons);
}

void DraggableFramelessDialog::setWindowTitle(const QString &title)
{
    setAccessibleName(title);
    if (m_titleBar)
        m_titleBar->setWindowTitle(title);
}

void DraggableFramelessDialog::centerInParent()
{
    if (parentWidget())
        Utils::centerWidgetInHost(this, parentWidget());
}

void DraggableFramelessDialog::clampToParentVisibleRect()
{
    if (parentWidget())
        Utils::clampWidgetToHost(this, parentWidget());
}

void DraggableFramelessDialog::doMoveByDelta(const QPoint &delta)
{
    move(m_dialogStartPos + delta);
    if (parentWidget())
        clampToParentVisibleRect();
    else
        move(Utils::boundedTopLeft(pos(), size(), screen()->availableGeometry(), 0));
}

bool DraggableFramelessDialog::startSystemMoveIfSupported()
{
    return false;
}

bool DraggableFramelessDialog::shouldStartDrag(QWidget *bar, const QPoint &localPos)
{
    if (!bar)
        return false;
    const QWidget *child = bar->childAt(localPos);
    if (!child || child == bar)
        return true;
    if (qobject_cast<const QAbstractButton *>(child) || qobject_cast<const QAbstractSlider *>(child)
        || qobject_cast<const QLineEdit *>(child))
        return false;
    return child->focusPolicy() == Qt::NoFocus;
}

bool DraggableFramelessDialog::resolveGlobalPosFromEvent(QEvent *event, QPoint &position)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        position = QtCompat::globalPosition(static_cast<QMouseEvent *>(event)).toPoint();
        return true;
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel: {
        const auto *touch = static_cast<QTouchEvent *>(event);
        if (QtCompat::touchPointCount(touch) == 0)
            return false;
        position = QtCompat::firstTouchGlobalPosition(touch).toPoint();
        return true;
    }
    default:
        return false;
    }
}

bool DraggableFramelessDialog::eventFilter(QObject *watched, QEvent *event)
{
    // The cast fails for a bar that is being destroyed, which still sends events to its filters.
    const auto *bar = qobject_cast<DraggableDialogTitleBar *>(watched);
    if (bar && bar == m_titleBar && filterTitleBar(event))
        return true;
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        clampToParentVisibleRect();
    return QDialog::eventFilter(watched, event);
}

void DraggableFramelessDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    if (m_titleBar) {
        m_titleBar->setGeometry(0, 0, width(), m_titleBar->titleHeight());
        m_titleBar->raise();
    }
}

void DraggableFramelessDialog::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    // A drag that was under way when the dialog was hidden is over.
    m_dragging = false;
    adjustSize();
    centerInParent();
    raise();
}

bool DraggableFramelessDialog::filterTitleBar(QEvent *event)
{
    QPoint global;
    const bool resolved = resolveGlobalPosFromEvent(event, global);
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        return mouse->button() == Qt::LeftButton
            && startDrag(event, QtCompat::position(mouse).toPoint(), global);
    }
    case QEvent::TouchBegin:
        return resolved && !Utils::isSecondFinger(event)
            && startDrag(event, m_titleBar->mapFromGlobal(global), global);
    case QEvent::MouseMove:
    case QEvent::TouchUpdate:
        if (!m_dragging)
            return false;
        if (resolved) {
            doMoveByDelta(global - m_pressGlobalPos);
            event->accept();
        }
        return true;
    case QEvent::MouseButtonRelease:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        if (!m_dragging)
            return false;
        m_dragging = false;
        event->accept();
        return true;
    default:
        return false;
    }
}

bool DraggableFramelessDialog::startDrag(QEvent *event, const QPoint &localPos,
                                         const QPoint &globalPos)
{
    if (!shouldStartDrag(m_titleBar, localPos))
        return false;
    m_pressGlobalPos = globalPos;
    m_dialogStartPos = pos();
    m_dragging = true;
    event->accept();
    return true;
}

} // namespace Controls
