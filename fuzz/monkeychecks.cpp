// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkeychecks.h"

#include "monkeypanel.h"
#include "panelrules.h"

#include <controls/overlaycontainer.h>
#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/diagramview.h>
#include <plot/qcp.h>
#include <widgets/popupwidget.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>

#include <cmath>

namespace Monkey
{

namespace
{

/// A diagram has four traces and a file two diagrams' worth at most; what leaks goes far beyond.
constexpr int maximumItems = 3000;
constexpr int maximumWidgets = 3000;

QString nameOf(const QObject *object)
{
    const QString parent = object->parent()
        ? QString::fromLatin1(object->parent()->metaObject()->className())
        : QString();
    return QStringLiteral("%1 \"%2\" in %3")
        .arg(QString::fromLatin1(object->metaObject()->className()), object->objectName(), parent);
}

bool isFinite(const QCPRange &range)
{
    return std::isfinite(range.lower) && std::isfinite(range.upper) && range.lower < range.upper;
}

void checkAxes(const Panel::DiagramView *view, QStringList &broken)
{
    for (const QCPAxis *axis : view->plot()->axisRect()->axes()) {
        if (!isFinite(axis->range())) {
            broken << QStringLiteral("an axis of %1 shows %2 to %3")
                          .arg(nameOf(view), QString::number(axis->range().lower),
                               QString::number(axis->range().upper));
        }
    }
}

QStringList pressedButtons()
{
    QStringList pressed;
    for (const QWidget *widget : QApplication::allWidgets()) {
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        // One that has opened its list is down until that closes.
        const auto *list = button ? button->findChild<PopupWidget *>() : nullptr;
        if (button && button->isDown() && !(list && list->isVisible()))
            pressed << nameOf(button);
    }
    return pressed;
}

void checkButtons(const Desk &desk, QStringList &broken)
{
    if (desk.isPointerDown())
        return;
    // A button waits 0.2 s for the end of the tap that closed its list, and longer on a machine with other work.
    if (QTest::qWaitFor([] { return pressedButtons().isEmpty(); }, 1000))
        return;
    for (const QString &name : pressedButtons())
        broken << QStringLiteral("%1 is down without a pointer").arg(name);
}

void checkWidgets(QStringList &broken)
{
    QStringList popups;
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        // A menu opens its own from within; the panel itself has none.
        if (widget->isVisible() && widget->windowType() == Qt::Popup)
            popups << nameOf(widget);
        const auto *overlay = qobject_cast<const Controls::OverlayContainer *>(widget);
        const bool shown = overlay && !overlay->isHidden();
        const bool needed =
            overlay && overlay->activeDialog() && !overlay->activeDialog()->isHidden();
        if (shown != needed)
            broken
                << QStringLiteral("an overlay is shown: %1, its dialog: %2").arg(shown).arg(needed);
    }
    if (popups.size() > 1)
        broken << QStringLiteral("%1 are open").arg(popups.join(QStringLiteral(" and ")));
    if (widgets.size() > maximumWidgets)
        broken << QStringLiteral("there are %1 widgets").arg(widgets.size());
}

} // namespace

QStringList brokenRules(const Desk &desk)
{
    QStringList broken;
    for (const Panel::DiagramView *view : desk.window()->diagrams()->allViews()) {
        checkAxes(view, broken);
        const int items = view->plot()->itemCount() + view->plot()->plottableCount();
        if (items > maximumItems)
            broken << QStringLiteral("%1 holds %2 items").arg(nameOf(view)).arg(items);
    }
    // A zoom, for one, is taken over when the next picture is laid out.
    for (Panel::DiagramView *view : desk.window()->diagrams()->views()) {
        if (view->isVisible() && !view->window()->isMinimized())
            view->plot()->replot();
    }
    broken << Fuzz::brokenRules(*desk.model(), *desk.window()->diagrams());
    checkButtons(desk, broken);
    checkWidgets(broken);
    return broken;
}

} // namespace Monkey
