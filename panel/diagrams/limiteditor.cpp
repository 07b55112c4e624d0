// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "limiteditor.h"

#include "circleeditor.h"
#include "lineeditor.h"
#include "readouts.h"

#include <panel/ground/look.h>

#include <plot/qcp.h>

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <cmath>

namespace Panel
{

namespace
{

/// Diameters of handles, and what is drawn around them, in pixels.
constexpr double s_end = 13.0;
constexpr double s_middle = 9.0;
constexpr double s_handleLine = 2.0;
constexpr double s_selectedLine = 4.0;
/// From a handle to its text, which a finger must not cover.
constexpr double s_textAway = 30.0;
/// Of a division, that an arrow key moves a handle.
constexpr double s_arrowStep = 0.1;
constexpr double s_fineStep = 0.01;

/// Draws the handles over all else; not in what is exported.
class LimitHandles : public QCPAbstractItem
{
public:
    LimitHandles(QCustomPlot *plot, const LimitEditor *editor)
        : QCPAbstractItem(plot)
        , m_editor(editor)
    {
        setSelectable(false);
        setClipToAxisRect(false);
    }

    double selectTest(const QPointF &, bool, QVariant *) const override { return -1.0; }

protected:
    void draw(QCPPainter *painter) override
    {
        if (!painter->modes().testFlag(QCPPainter::pmNoCaching))
            m_editor->draw(painter);
    }

private:
    const LimitEditor *m_editor;
};

double length(const QPointF &vector)
{
    return std::hypot(vector.x(), vector.y());
}

/// From a point to a chain of straight lines.
double distanceTo(const QPolygonF &chain, const QPointF &point)
{
    double nearest = qInf();
    for (int i = 1; i < chain.size(); ++i) {
        const QPointF from = chain.at(i - 1), along = chain.at(i) - from;
        const double square = QPointF::dotProduct(along, along);
        const double share = square > 0.0
            ? qBound(0.0, QPointF::dotProduct(point - from, along) / square, 1.0)
            : 0.0;
        nearest = qMin(nearest, length(point - from - share * along));
    }
    return nearest;
}

bool isSameGrip(const LimitEditor::Grip &a, const LimitEditor::Grip &b)
{
    return a.limit == b.limit && a.part == b.part;
}

} // namespace

LimitEditor::LimitEditor(PanelModel *model, DiagramView *view)
    : QObject(view)
    , m_model(model)
    , m_view(view)
{
    for (const auto signal : {&PanelModel::tracesChanged, &PanelModel::activeTraceChanged})
        connect(model, signal, this, &LimitEditor::follow);
    connect(model, &PanelModel::limitsChanged, this, &LimitEditor::follow);
    connect(model, &PanelModel::traceVisibleChanged, this, &LimitEditor::follow);
    connect(model->viewSettings(), &ViewSettings::changed, this, &LimitEditor::follow);
    connect(editing(), &LimitEditing::changed, this, &LimitEditor::follow);
}

const Trace *LimitEditor::edited() const
{
    const Trace *active = m_model->activeTrace();
    const bool ours = active && active->visible && m_view->traceIds().contains(active->id);
    return editing()->isOn() && ours ? active : nullptr;
}

void LimitEditor::follow()
{
    QCustomPlot *plot = m_view->plot();
    // A handle may lie under the read-outs.
    if (m_view->id().kind == DiagramKind::Cartesian)
        m_view->readOuts()->setAttribute(Qt::WA_TransparentForMouseEvents, edited());
    if (!edited()) {
        m_pressed = false;
        if (m_item) {
            plot->removeItem(m_item);
            plot->replot(QCustomPlot::rpQueuedReplot);
        }
        return;
    }
    if (!m_item)
        m_item = new LimitHandles(plot, this);
    m_item->setLayer(plot->layer(plot->layerCount() - 1));
    plot->replot(QCustomPlot::rpQueuedReplot);
}

/// At most one of each limit; handles before lines, what is near before what is far.
QVector<LimitEditor::Grip> LimitEditor::gripsAt(const QPointF &position) const
{
    struct Found {
        Grip grip;
        double distance;
    };
    QVector<Found> found;
    const double reach = DiagramView::reach;
    const auto note = [&found](const Grip &grip, double distance) {
        if (found.isEmpty() || found.constLast().grip.limit != grip.limit)
            found.append({grip, distance});
        else if (distance < found.constLast().distance)
            found.last() = {grip, distance};
    };
    const QVector<Grip> all = grips();
    for (const Grip &grip : all) {
        const double distance = length(position - grip.place);
        if (distance <= reach)
            note(grip, distance);
        else if (distanceTo(outline(grip.limit), position) <= reach)
            note({grip.limit, outlinePart(), position}, reach + distance);
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const Found &a, const Found &b) { return a.distance < b.distance; });
    QVector<Grip> result;
    for (const Found &each : qAsConst(found))
        result.append(each.grip);
    return result;
}

/// As it lies now; without a limit where nothing is selected, or what was is no more.
LimitEditor::Grip LimitEditor::selected() const
{
    const QVector<Grip> all = edited() ? grips() : QVector<Grip>();
    for (const Grip &grip : all) {
        if (isSameGrip(grip, {editing()->limit(), editing()->part(), {}}))
            return grip;
    }
    return {};
}

void LimitEditor::select(const Grip &grip)
{
    editing()->select(grip.limit, grip.part);
}

bool LimitEditor::press(const QPointF &position)
{
    giveUp();
    if (!edited())
        return false;
    const QVector<Grip> found = gripsAt(position);
    if (found.isEmpty()) {
        editing()->deselect();
        return false;
    }
    // Of limits that lie over each other, the selected one.
    int taken = 0;
    for (int i = 0; i < found.size(); ++i) {
        if (found.at(i).limit == editing()->limit())
            taken = i;
    }
    m_grip = found.at(taken);
    m_next = isSameGrip(m_grip, selected()) ? found.at((taken + 1) % found.size()) : m_grip;
    m_pressed = true;
    m_moved = false;
    m_pressedAt = position;
    begin(m_grip);
    select(m_grip);
    return true;
}

void LimitEditor::dragTo(const QPointF &position)
{
    if (!m_pressed)
        return;
    const QPointF moved = position - m_pressedAt;
    m_moved = m_moved || moved.manhattanLength() >= QApplication::startDragDistance();
    if (m_moved)
        move(m_grip, moved);
}

void LimitEditor::release()
{
    if (m_pressed && !m_moved)
        select(m_next);
    m_pressed = false;
}

void LimitEditor::giveUp()
{
    if (!m_pressed)
        return;
    m_pressed = false;
    if (m_moved)
        restore();
    select(m_grip);
}

bool LimitEditor::addAt(const QPointF &position)
{
    if (!edited() || !m_view->plot()->axisRect()->rect().contains(position.toPoint())
        || !gripsAt(position).isEmpty())
        return false;
    const QString obstacle = add(position);
    if (!obstacle.isEmpty())
        Q_EMIT refused(obstacle);
    return true;
}

/// False at either end, so that the focus leaves the diagram there.
bool LimitEditor::selectNext(int direction)
{
    const QVector<Grip> all = grips();
    int current = direction > 0 ? -1 : int(all.size());
    for (int i = 0; i < all.size(); ++i) {
        if (isSameGrip(all.at(i), selected()))
            current = i;
    }
    const int next = current + direction;
    if (next < 0 || next >= all.size()) {
        editing()->deselect();
        return false;
    }
    select(all.at(next));
    Q_EMIT said(text(selected()));
    return true;
}

bool LimitEditor::handleKey(const QKeyEvent *event)
{
    if (!edited())
        return false;
    if (event->key() == Qt::Key_Escape && m_pressed) {
        giveUp();
        return true;
    }
    if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab)
        return selectNext(event->key() == Qt::Key_Tab ? 1 : -1);
    const Grip grip = selected();
    if (grip.limit < 0)
        return false;
    const bool fine = event->modifiers().testFlag(Qt::ControlModifier);
    const auto go = [&](double right, double up) {
        step(grip, QPointF(right, up) * (fine ? s_fineStep : s_arrowStep));
        Q_EMIT said(text(selected()));
        return true;
    };
    switch (event->key()) {
    case Qt::Key_Left:
        return go(-1.0, 0.0);
    case Qt::Key_Right:
        return go(1.0, 0.0);
    case Qt::Key_Up:
        return go(0.0, 1.0);
    case Qt::Key_Down:
        return go(0.0, -1.0);
    case Qt::Key_Delete:
        editing()->deselect();
        remove(grip.limit);
        return true;
    case Qt::Key_Escape:
        editing()->deselect();
        return true;
    default:
        return false;
    }
}

void LimitEditor::draw(QCPPainter *painter) const
{
    if (!edited())
        return;
    const Look look = currentLook();
    const Grip chosen = selected();
    painter->setAntialiasing(true);
    if (chosen.limit >= 0) {
        painter->setClipRect(m_view->plot()->axisRect()->rect());
        painter->setPen(QPen(look.fail, s_selectedLine));
        painter->drawPolyline(outline(chosen.limit));
        painter->setClipping(false);
    }
    const QVector<Grip> all = grips();
    for (const Grip &grip : all) {
        const double radius = (grip.part == LimitPart::Whole ? s_middle : s_end) / 2.0;
        painter->setPen(QPen(look.fail, s_handleLine));
        painter->setBrush(isSameGrip(grip, chosen) ? look.fail : look.background);
        painter->drawEllipse(grip.place, radius, radius);
    }
    if (chosen.limit >= 0)
        drawText(painter, chosen);
}

void LimitEditor::drawText(QCPPainter *painter, const Grip &grip) const
{
    const Look look = currentLook();
    QCustomPlot *plot = m_view->plot();
    painter->setFont(m_view->font());
    const QString words = text(grip);
    QRectF box(QPointF(), QFontMetricsF(m_view->font()).size(0, words) + QSizeF(12.0, 8.0));
    const QRectF room = QRectF(plot->rect()).adjusted(4.0, 4.0, -4.0, -4.0);
    // Above the finger, and above what is moved as a whole.
    QRectF moved(grip.place, QSizeF());
    if (grip.part == LimitPart::Whole)
        moved = outline(grip.limit).boundingRect();
    box.moveCenter(grip.place);
    box.moveBottom(moved.top() - s_textAway / 2.0);
    if (box.top() < room.top())
        box.moveTop(moved.bottom() + s_textAway);
    if (box.bottom() > room.bottom())
        box.moveTop(room.top());
    box.moveLeft(qMax(room.left(), qMin(box.left(), room.right() - box.width())));
    painter->setPen(look.fail);
    painter->setBrush(look.bar);
    painter->drawRoundedRect(box, 4.0, 4.0);
    painter->setPen(look.text);
    painter->drawText(box, int(Qt::AlignCenter), words);
}

LimitEditor *makeLimitEditor(PanelModel *model, DiagramView *view)
{
    if (auto *cartesian = qobject_cast<CartesianView *>(view))
        return new LineEditor(model, cartesian);
    if (auto *smith = qobject_cast<SmithView *>(view))
        return new CircleEditor(model, smith);
    return nullptr;
}

} // namespace Panel
