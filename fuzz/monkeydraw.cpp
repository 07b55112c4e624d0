// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What the monkey does next: any place at all, or one where something answers.
#include "monkeypanel.h"

#include <panel/diagrams/cartesianview.h>
#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/planeview.h>
#include <plot/qcp.h>
#include <smithchart/smithchartplot.h>

#include <QToolButton>

#include <cmath>
#include <iterator>

namespace Monkey
{

namespace
{

struct Stroke {
    int key;
    int modifiers = Qt::NoModifier;
};

const Stroke strokes[] = {
    {Qt::Key_Escape},
    {Qt::Key_Escape},
    {Qt::Key_Return},
    {Qt::Key_Enter},
    {Qt::Key_Tab},
    {Qt::Key_Backtab, Qt::ShiftModifier},
    {Qt::Key_Space},
    {Qt::Key_Left},
    {Qt::Key_Right},
    {Qt::Key_Up},
    {Qt::Key_Down},
    {Qt::Key_PageUp},
    {Qt::Key_PageDown},
    {Qt::Key_Home},
    {Qt::Key_End},
    {Qt::Key_Delete},
    {Qt::Key_Backspace},
    {Qt::Key_0},
    {Qt::Key_1},
    {Qt::Key_5},
    {Qt::Key_9},
    {Qt::Key_Period},
    {Qt::Key_Minus},
    {Qt::Key_Plus},
    {Qt::Key_Equal},
    {Qt::Key_G},
    {Qt::Key_M},
    {Qt::Key_E},
    {Qt::Key_F1},
    {Qt::Key_F3},
    {Qt::Key_F11},
    {Qt::Key_L, Qt::ControlModifier},
    {Qt::Key_Comma, Qt::ControlModifier},
    {Qt::Key_O, Qt::ControlModifier},
    {Qt::Key_PageDown, Qt::ControlModifier},
    {Qt::Key_PageUp, Qt::ControlModifier},
    {Qt::Key_A, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier},
};

/// Rare, because they cost the most or take the panel off the screen.
const Stroke rareStrokes[] = {
    {Qt::Key_T, Qt::ControlModifier},
    {Qt::Key_P, Qt::ControlModifier},
    {Qt::Key_Q, Qt::ControlModifier},
    {Qt::Key_F4, Qt::AltModifier},
    {Qt::Key_Menu},
};

struct Share {
    Species species;
    int share; ///< of a thousand, about; small for what takes long, such as another theme
};

/// With no pointer on the glass.
const Share shares[] = {
    {Species::Tap, 380},        {Species::DoubleTap, 60},  {Species::Press, 80},
    {Species::TouchPress, 110}, {Species::Wheel, 60},      {Species::Key, 200},
    {Species::Resize, 12},      {Species::HideAndShow, 4}, {Species::Theme, 1},
    {Species::Language, 2},     {Species::Lock, 4},        {Species::Load, 12},
    {Species::ChangeFile, 8},   {Species::Sweep, 8},       {Species::DropPanel, 2},
    {Species::Restart, 2},      {Species::Wait, 24},
};

Species drawSpecies(Random &random)
{
    int sum = 0;
    for (const Share &each : shares)
        sum += each.share;
    int at = random.below(sum);
    for (const Share &each : shares) {
        if (at < each.share)
            return each.species;
        at -= each.share;
    }
    return Species::Wait;
}

/// While a pointer is down: mostly what it does, and now and then something else.
Species drawHeld(Random &random, int fingers)
{
    const int at = random.below(100);
    if (fingers == 0)
        return at < 60 ? Species::Move : at < 88 ? Species::Release : drawSpecies(random);
    if (at < 50)
        return fingers == 2 ? Species::TouchSpread : Species::TouchMove;
    if (at < 62)
        return Species::TouchSecond;
    return at < 86 ? Species::TouchRelease : at < 90 ? Species::TouchCancel : drawSpecies(random);
}

} // namespace

/// A point of a trace, where a marker may be too; false where no trace is drawn.
bool Desk::drawPointOfTrace(Random &random, QPoint &position) const
{
    const QVector<Panel::DiagramView *> views = m_window->diagrams()->views();
    if (views.isEmpty())
        return false;
    Panel::DiagramView *view = views.at(random.below(int(views.size())));
    const QVector<int> ids = view->traceIds();
    if (ids.isEmpty())
        return false;
    const int id = ids.at(random.below(int(ids.size())));
    const Panel::Trace *trace = m_model->trace(id);
    if (!trace || !view->isVisible())
        return false;
    const QVector<Panel::Marker> markers = m_model->markersOf(id);
    const int points = m_model->network(*trace).points();
    const int index = markers.isEmpty() || random.oneIn(3)
        ? random.below(qMax(points, 1))
        : int(m_model->indexOf(markers.at(random.below(int(markers.size())))));
    if (index < 0 || index >= points)
        return false;
    QPointF pixel;
    if (const auto *plane = qobject_cast<Panel::PlaneView *>(view)) {
        const double full = plane->fullScale(*trace);
        const Panel::Parameter data = m_model->traceData(*trace).parameter;
        pixel = {view->plot()->xAxis->coordToPixel(data.real.at(index) / full),
                 view->plot()->yAxis->coordToPixel(data.imag.at(index) / full)};
    } else {
        const QCPGraph *graph = static_cast<Panel::CartesianView *>(view)->graph(id);
        if (!graph)
            return false;
        const auto point =
            graph->data()->findBegin(m_model->network(*trace).frequencies.at(index), false);
        if (point == graph->data()->constEnd())
            return false;
        pixel = graph->coordsToPixels(point->key, point->value);
    }
    // Also infinitely far away or nowhere, which no int can tell.
    if (!std::isfinite(pixel.x()) || !std::isfinite(pixel.y())
        || !QRectF(view->plot()->rect()).contains(pixel))
        return false;
    position = view->plot()->mapTo(m_window.get(), pixel.toPoint());
    return true;
}

QPoint Desk::drawPosition(Random &random, bool behind) const
{
    QWidget *widget = front(behind);
    const QRect all = widget->rect();
    QPoint position(random.below(qMax(all.width(), 1)), random.below(qMax(all.height(), 1)));
    const int kind = random.below(10);
    if (kind == 0) {
        // Beside a pop-up, which has the pointer all the same.
        if (widget != m_window.get() && random.oneIn(2))
            position += QPoint(random.between(-300, 300), random.between(-300, 300));
        return position;
    }
    if (kind < 4 && widget == m_window.get() && drawPointOfTrace(random, position))
        return position + QPoint(random.between(-6, 6), random.between(-6, 6));
    const QList<QWidget *> targets = widget->findChildren<QWidget *>();
    for (int tries = 0; tries < 20 && !targets.isEmpty(); ++tries) {
        const QWidget *target = targets.at(random.below(int(targets.size())));
        if (target->window() != widget || !target->isVisible() || !target->isEnabled())
            continue;
        // Another theme takes as long as a hundred other taps.
        if (target == m_window->themeButton() && !random.oneIn(8))
            continue;
        const QRect area = target->visibleRegion().boundingRect();
        if (area.isEmpty())
            continue;
        const QPoint within(area.left() + random.below(area.width()),
                            area.top() + random.below(area.height()));
        return target->mapTo(widget, random.oneIn(3) ? within : area.center());
    }
    return position;
}

Event Desk::draw(Random &random) const
{
    Event event;
    if (!m_window->isVisible() && random.oneIn(2)) {
        event.species = Species::Show;
        return event;
    }
    event.species =
        isPointerDown() ? drawHeld(random, m_touchScreen.fingers()) : drawSpecies(random);
    event.behind = random.oneIn(12);
    const auto at = [&](int &x, int &y) {
        const QPoint position = drawPosition(random, event.behind);
        x = position.x();
        y = position.y();
    };
    switch (event.species) {
    case Species::Tap:
        event.c = random.oneIn(30);
        at(event.a, event.b);
        break;
    case Species::TouchSpread:
        at(event.c, event.d);
        at(event.a, event.b);
        break;
    case Species::Wheel:
        event.c = random.oneIn(20) ? random.between(-60, 60) : random.between(-4, 4);
        at(event.a, event.b);
        break;
    case Species::DoubleTap:
    case Species::Press:
    case Species::Move:
    case Species::Release:
    case Species::TouchPress:
    case Species::TouchMove:
    case Species::TouchSecond:
        at(event.a, event.b);
        break;
    case Species::Key: {
        const Stroke stroke = random.oneIn(60) ? rareStrokes[random.below(std::size(rareStrokes))]
                                               : strokes[random.below(std::size(strokes))];
        event.a = stroke.key;
        event.b = stroke.modifiers;
        break;
    }
    case Species::Resize:
        // Mostly as large as a panel is; what is drawn takes most of the time.
        event.a = random.between(random.oneIn(4) ? 1 : 800, random.oneIn(5) ? 1600 : 1100);
        event.b = random.between(random.oneIn(4) ? 1 : 480, random.oneIn(5) ? 1000 : 640);
        break;
    case Species::HideAndShow:
    case Species::Language:
        event.a = random.below(3);
        break;
    case Species::Load:
        for (int file = random.between(1, 4); file > 0; --file)
            event.a |= 1 << random.below(m_files->count());
        break;
    case Species::ChangeFile:
        event.a = random.below(m_files->count());
        event.b = random.below(m_files->count());
        break;
    case Species::Sweep:
        event.a = random.below(3);
        event.b = random.oneIn(3) ? 20001 : random.between(2, 2001);
        break;
    case Species::DropPanel:
        event.a = random.below(3);
        event.b = random.below(2);
        break;
    case Species::Restart:
        event.a = random.below(6);
        event.b = random.below(2000);
        break;
    case Species::Wait:
        // Rarely as long as it takes for a tap to count as a new one.
        event.a = random.oneIn(24) ? 230 : random.between(1, 10);
        break;
    default:
        break;
    }
    return event;
}

} // namespace Monkey
