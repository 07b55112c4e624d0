// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/lockwidget.h>

#include <base/qtcompat_p.h>
#include <base/secondfinger_p.h>
#include <controls/thememanager.h>
#include <platform/widgetmousemovetool.h>

#include "ui_lockwidget.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QGraphicsOpacityEffect>
#include <QKeyEvent>
#include <QPainter>
#include <QPointer>
#include <QPropertyAnimation>
#include <QSequentialAnimationGroup>
#include <QStyleOption>
#include <QTimer>

using Controls::ThemeManager;

struct LockWidgetPrivate {
    Ui::LockWidget ui;
    bool locked = false;
    QPointer<QWidget> target;
    QPointer<QWidget> key;
    Utils::WidgetMouseMoveTool *mouseMoveTool = nullptr;
    QGraphicsOpacityEffect *opacityEffect = nullptr;
    QSequentialAnimationGroup *blinkGroup = nullptr;
    QPixmap pixmaps[2]; ///< open and closed; null until first on show
};

/// To a screen reader the padlock is a check box, checked while locked.
class LockWidget::Accessible : public QAccessibleWidget
{
public:
    explicit Accessible(LockWidget *lock)
        : QAccessibleWidget(lock, QAccessible::CheckBox)
    {
    }

    static QAccessibleInterface *create(const QString &className, QObject *object)
    {
        Q_UNUSED(className)
        auto *lock = qobject_cast<LockWidget *>(object);
        return lock ? new Accessible(lock) : nullptr;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = lock()->d->locked;
        return state;
    }

    QStringList actionNames() const override
    {
        return QStringList{toggleAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString &actionName) override
    {
        if (actionName == toggleAction())
            lock()->setLocked(!lock()->d->locked);
        else
            QAccessibleWidget::doAction(actionName);
    }

private:
    LockWidget *lock() const { return static_cast<LockWidget *>(widget()); }
};

LockWidget::LockWidget(QWidget *parent, QWidget *target)
    : QWidget(parent)
    , d(std::make_unique<LockWidgetPrivate>())
{
    d->target = target;
    QAccessible::installFactory(&Accessible::create);
    d->ui.setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral("LockWidget { background-color: transparent; }"));
    d->ui.label->setStyleSheet(QStringLiteral("QLabel { background-color: transparent; }"));
    setAttribute(Qt::WA_TranslucentBackground);
    setAccessibleName(tr("Screen lock"));
    // Tab reaches it; a tap leaves the focus with the editor that has it.
    setFocusPolicy(Qt::TabFocus);

    d->mouseMoveTool = new Utils::WidgetMouseMoveTool(this);
    connect(d->mouseMoveTool, &Utils::WidgetMouseMoveTool::clicked, this,
            [this] { setLocked(!d->locked); });
    setWindowFlags(windowFlags() | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    if (d->target)
        d->target->installEventFilter(this);
    qApp->installEventFilter(this);

    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this, &LockWidget::loadPixmaps);
    addAnimation();
    hide();
    loadPixmaps();
}

LockWidget::~LockWidget() = default;

void LockWidget::setScreenLockEnable(bool enable)
{
    if (enable) {
        show();
        scheduleDefaultPosition();
    } else {
        hide();
        setLocked(false);
    }
}

bool LockWidget::getScreenLockEnable() const
{
    return isVisible();
}

bool LockWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == d->target && (event->type() == QEvent::Move || event->type() == QEvent::Resize))
        scheduleDefaultPosition();
    if (!d->locked || !isVisible() || mustPass(watched, event))
        return false;
    d->blinkGroup->stop();
    d->blinkGroup->start();
    // Swallowed either way.
    event->setAccepted(!Utils::isSecondFinger(event));
    Q_EMIT pressBlocked();
    return true;
}

void LockWidget::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Select:
        if (!event->isAutoRepeat())
            setLocked(!d->locked);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void LockWidget::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    // Qt draws no styled background for a translucent widget; the style sheets' focus ring is part
    // of it.
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

void LockWidget::onClick()
{
    showPixmap();
    d->mouseMoveTool->setMovable(!d->locked);
    if (!d->locked)
        stopBlinking();
}

void LockWidget::addAnimation()
{
    constexpr int dip = 100; // ms, either way
    constexpr int dips = 4;

    d->opacityEffect = new QGraphicsOpacityEffect(d->ui.label);
    d->opacityEffect->setOpacity(1.0);
    d->ui.label->setGraphicsEffect(d->opacityEffect);

    d->blinkGroup = new QSequentialAnimationGroup(this);
    const auto addFade = [this](double from, double to) {
        auto *fade = new QPropertyAnimation(d->opacityEffect, "opacity", d->blinkGroup);
        fade->setDuration(dip);
        fade->setStartValue(from);
        fade->setEndValue(to);
        d->blinkGroup->addAnimation(fade);
    };
    addFade(1.0, 0.5);
    addFade(0.5, 1.0);
    d->blinkGroup->setLoopCount(dips);
}

void LockWidget::scheduleDefaultPosition()
{
    QTimer::singleShot(0, this, [this] {
        if (!d->target)
            return;
        const QRect area = d->target->geometry();
        move(area.right() - width(), area.center().y() - height() / 2);
        raise();
    });
}

void LockWidget::loadPixmaps()
{
    for (QPixmap &pixmap : d->pixmaps)
        pixmap = QPixmap();
    showPixmap();
}

void LockWidget::showPixmap()
{
    QPixmap &pixmap = d->pixmaps[d->locked];
    if (pixmap.isNull())
        pixmap = QPixmap(ThemeManager::instance()->getIconPath(d->locked ? 3 : 4));
    d->ui.label->setPixmap(pixmap);
}

void LockWidget::setKey(QWidget *key)
{
    d->key = key;
}

QWidget *LockWidget::key() const
{
    return d->key;
}

bool LockWidget::isLocked() const
{
    return d->locked;
}

void LockWidget::setLocked(bool lock)
{
    if (d->locked == lock)
        return;
    d->locked = lock;
    onClick();

    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
    Q_EMIT lockedChanged(d->locked);
}

void LockWidget::stopBlinking()
{
    d->blinkGroup->stop();
    // Stopped in the middle of a dip it would stay faded.
    d->opacityEffect->setOpacity(1.0);
}

/// While locked: whether the event is none that is blocked, or one for the padlock itself.
bool LockWidget::mustPass(QObject *watched, QEvent *event) const
{
    QPoint global;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        global = QtCompat::globalPosition(static_cast<QMouseEvent *>(event)).toPoint();
        break;
    case QEvent::TouchBegin: {
        const auto *touch = static_cast<QTouchEvent *>(event);
        if (QtCompat::touchPointCount(touch) == 0)
            return true;
        global = QtCompat::firstTouchGlobalPosition(touch).toPoint();
        break;
    }
    default:
        return true;
    }
    const auto isAt = [&](const QWidget *widget) {
        // A made-up event need not know its place on the screen.
        const auto *const target = qobject_cast<QWidget *>(watched);
        return widget
            && (widget == target || widget->isAncestorOf(target)
                || (widget->isVisible()
                    && QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size()).contains(global)));
    };
    return isAt(this) || isAt(d->key);
}
