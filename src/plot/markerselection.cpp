// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <plot/markerselection.h>

#include <limits>

namespace Plot
{

namespace
{

constexpr double penWidth = 1.5;
constexpr double selectedPenWidth = 2.5;
constexpr int selectedLighterPercent = 130;

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
    int nearest = -1;
    const QCustomPlot *plot = nullptr;
    const QCPAbstractItem *underPointer = nullptr;
    double smallest = std::numeric_limits<double>::max();
    for (int i = 0; i < markers.size(); ++i) {
        if (!markers.at(i))
            continue;
        const QCPAbstractItem *const parts[] = {markers.at(i)->getTracer(),
                                                markers.at(i)->getLabel()};
        for (const QCPAbstractItem *const part : parts) {
            if (!part || !part->visible())
                continue;
            if (part->parentPlot() != plot) {
                plot = part->parentPlot();
                underPointer = plot->itemAt(pos, true);
            }
            if (part == underPointer)
                return i;
            const double distance = part->selectTest(pos, false);
            if (distance >= 0.0 && distance <= tolerancePx && distance < smallest) {
                smallest = distance;
                nearest = i;
            }
        }
    }
    return nearest;
}

} // namespace Plot
