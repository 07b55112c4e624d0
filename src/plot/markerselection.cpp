// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <plot/markerselection.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Plot
{

namespace
{

constexpr double penWidth = 1.5;
constexpr double selectedPenWidth = 2.5;
constexpr int selectedLighterPercent = 130;
constexpr double coincidencePx = 1.0; ///< nearer than this to each other, the order decides

QVector<const QCPAbstractItem *> visibleParts(const Marker *marker)
{
    QVector<const QCPAbstractItem *> parts;
    if (!marker)
        return parts;
    for (const QCPAbstractItem *const part : {static_cast<QCPAbstractItem *>(marker->getTracer()),
                                              static_cast<QCPAbstractItem *>(marker->getLabel())}) {
        if (part && part->visible())
            parts << part;
    }
    return parts;
}

/// The place of the marker with the smallest distance, at most \a reachPx; a later one has to be
/// nearer by more than \a leadPx. -1 if there is none.
template<typename Distance>
int nearest(const QVector<const Marker *> &markers, double reachPx, double leadPx,
            const Distance &distanceOf)
{
    int found = -1;
    double smallest = std::numeric_limits<double>::infinity();
    for (int i = 0; i < markers.size(); ++i) {
        const double distance = distanceOf(markers.at(i));
        if (distance <= reachPx && distance < smallest - leadPx) {
            smallest = distance;
            found = i;
        }
    }
    return found;
}

} // namespace

void drawMarker(Marker &marker, const QPen &tracePen, bool selected)
{
    QPen pen = tracePen;
    QBrush brush;
    pen.setWidthF(penWidth);
    if (selected) {
        pen.setWidthF(selectedPenWidth);
        pen.setColor(pen.color().lighter(selectedLighterPercent));
        brush = QBrush(pen.color());
    }
    marker.setColors(pen, brush);
    if (QCPItemText *const label = marker.getLabel()) {
        QFont font = label->font();
        font.setWeight(QFont::Normal);
        label->setFont(font);
    }
}

int markerAt(const QVector<const Marker *> &markers, const QPointF &pos, double tolerancePx)
{
    const QCustomPlot *plot = nullptr;
    const QCPAbstractItem *underPointer = nullptr;
    for (int i = 0; i < markers.size(); ++i) {
        for (const QCPAbstractItem *const part : visibleParts(markers.at(i))) {
            if (part->parentPlot() != plot) {
                plot = part->parentPlot();
                underPointer = plot->itemAt(pos, true);
            }
            if (part == underPointer)
                return i;
        }
    }
    return nearest(markers, tolerancePx, 0.0, [&pos](const Marker *marker) {
        double smallest = std::numeric_limits<double>::infinity();
        for (const QCPAbstractItem *const part : visibleParts(marker)) {
            const double distance = part->selectTest(pos, false);
            if (distance >= 0.0)
                smallest = std::min(smallest, distance);
        }
        return smallest;
    });
}

int markerInReach(const QVector<const Marker *> &markers, const QPointF &pos, double reachPx)
{
    return nearest(markers, reachPx, coincidencePx, [&pos](const Marker *marker) {
        if (!marker || !marker->isVisible())
            return std::numeric_limits<double>::infinity();
        const auto *tracer = static_cast<const QCPItemTracerMarker *>(marker->getTracer());
        const QPointF tip = tracer->position->pixelPosition();
        const double towardsEdge = tracer->isPointingDown() ? tip.y() - pos.y() : pos.y() - tip.y();
        const double beside = std::clamp(towardsEdge, 0.0, std::max(1.0, tracer->size()));
        return std::hypot(pos.x() - tip.x(), towardsEdge - beside);
    });
}

} // namespace Plot
