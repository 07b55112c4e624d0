// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkeychecks.h"

#include "monkeypanel.h"

#include <controls/overlaycontainer.h>
#include <panel/diagrams/cartesianview.h>
#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/markerreading.h>
#include <panel/diagrams/smithview.h>
#include <plot/qcp.h>
#include <smithchart/smithchartplot.h>
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
constexpr int mostItems = 3000;
constexpr int mostWidgets = 3000;

QString nameOf(const QObject *object)
{
    return QStringLiteral("%1 \"%2\"")
        .arg(QString::fromLatin1(object->metaObject()->className()), object->objectName());
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
    if (!std::isfinite(view->zoom()) || view->zoom() < 1.0
        || view->zoom() > Panel::DiagramView::mostZoom * 1.001)
        broken << QStringLiteral("%1 magnifies by %2").arg(nameOf(view)).arg(view->zoom());
}

/// Where a diagram draws a marker, or null.
QCPItemTracer *tracerOf(const Panel::DiagramView *view, const Panel::Marker &marker)
{
    const Plot::Marker *drawn = nullptr;
    if (const auto *smith = qobject_cast<const Panel::SmithView *>(view))
        drawn = smith->chart()->getMarker(marker.trace, marker.number);
    else
        drawn =
            static_cast<const Panel::CartesianView *>(view)->marker(marker.trace, marker.number);
    return drawn ? drawn->getTracer() : nullptr;
}

void checkMarker(const Panel::PanelModel *model, const Panel::DiagramView *view,
                 const Panel::Marker &marker, QStringList &broken)
{
    const Panel::Trace &trace = *model->trace(marker.trace);
    const QString name = QStringLiteral("M%1 of Tr%2").arg(marker.number).arg(marker.trace);
    QCPItemTracer *tracer = tracerOf(view, marker);
    if (!tracer) {
        broken << QStringLiteral("%1 is not drawn by %2").arg(name, nameOf(view));
        return;
    }
    const Panel::Parameter &data = model->data(trace);
    const bool onSmithChart = qobject_cast<const Panel::SmithView *>(view);
    const double wantedX =
        Panel::valueAt(onSmithChart ? data.real : model->network(trace).frequencies, marker.index);
    const double scale = std::max({1e-9, std::abs(wantedX)});
    tracer->updatePosition();
    const QPointF found(tracer->position->key(), tracer->position->value());
    if (!(std::abs(found.x() - wantedX) <= 1e-6 * scale)) {
        broken << QStringLiteral("%1 stands at %2, its trace at %3")
                      .arg(name, QString::number(found.x(), 'g', 12),
                           QString::number(wantedX, 'g', 12));
    }
    if (onSmithChart) {
        const double wantedY = Panel::valueAt(data.imag, marker.index);
        if (!(std::abs(found.y() - wantedY) <= 1e-6 * std::max(1e-9, std::abs(wantedY))))
            broken << QStringLiteral("%1 has left its trace").arg(name);
    } else if (std::isnan(found.y())) {
        broken << QStringLiteral("%1 has no value").arg(name);
    }
}

void checkMarkers(const Desk &desk, QStringList &broken)
{
    const Panel::PanelModel *model = desk.model();
    for (const Panel::Marker &marker : model->markers()) {
        const Panel::Trace *trace = model->trace(marker.trace);
        if (!trace || !(marker.index >= 0.0)
            || marker.index > model->network(*trace).points() - 1) {
            broken << QStringLiteral("M%1 of Tr%2 is off its trace at %3")
                          .arg(marker.number)
                          .arg(marker.trace)
                          .arg(marker.index);
            continue;
        }
        for (const Panel::DiagramView *view : desk.window()->diagrams()->views()) {
            // A hidden diagram catches up when it is shown.
            if (view->isVisible() && view->traceIds().contains(marker.trace) && trace->visible)
                checkMarker(model, view, marker, broken);
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
    if (desk.isPointerDown() || pressedButtons().isEmpty())
        return;
    QTest::qWait(250); // as long as a button waits for the end of the tap that closed its list
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
    if (widgets.size() > mostWidgets)
        broken << QStringLiteral("there are %1 widgets").arg(widgets.size());
}

} // namespace

QStringList brokenRules(const Desk &desk)
{
    QStringList broken;
    for (const Panel::DiagramView *view : desk.window()->diagrams()->allViews()) {
        checkAxes(view, broken);
        const int items = view->plot()->itemCount() + view->plot()->plottableCount();
        if (items > mostItems)
            broken << QStringLiteral("%1 holds %2 items").arg(nameOf(view)).arg(items);
    }
    checkMarkers(desk, broken);
    checkButtons(desk, broken);
    checkWidgets(broken);
    return broken;
}

} // namespace Monkey
