// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "markernumbers.h"

#include <plot/marker.h>
#include <plot/qcp.h>

#include <QFontMetrics>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Panel
{

void fanOutNumbers(const QVector<const Plot::Marker *> &markers, const QColor &background)
{
    constexpr int groundOpacity = 190; // of 255
    QColor ground = background;
    ground.setAlpha(groundOpacity);
    struct Tip {
        QPointF place;
        QCPItemText *number;
    };
    std::vector<Tip> tips;
    for (const Plot::Marker *marker : markers) {
        if (!marker || !marker->isVisible())
            continue;
        marker->getLabel()->setBrush(ground);
        tips.push_back({marker->getTracer()->position->pixelPosition(), marker->getLabel()});
    }
    if (tips.empty())
        return;
    const QFontMetrics metrics = tips.front().number->parentPlot()->fontMetrics();
    std::stable_sort(tips.begin(), tips.end(),
                     [](const Tip &a, const Tip &b) { return a.place.x() < b.place.x(); });
    const double width = 1.4 * metrics.horizontalAdvance(QLatin1Char('0'));
    const double height = metrics.height();
    std::vector<bool> placed(tips.size(), false);
    for (size_t first = 0; first < tips.size(); ++first) {
        if (placed[first])
            continue;
        // A group grows by whichever number would stand in the way of its last one.
        std::vector<size_t> group{first};
        for (size_t next = first + 1; next < tips.size(); ++next) {
            const QPointF apart = tips[next].place - tips[group.back()].place;
            if (!placed[next] && apart.x() < width && std::abs(apart.y()) < height)
                group.push_back(next);
        }
        double middle = 0.0;
        for (const size_t member : group)
            middle += tips[member].place.x() / double(group.size());
        for (size_t i = 0; i < group.size(); ++i) {
            const Tip &tip = tips[group[i]];
            const double x = middle + (double(i) - double(group.size() - 1) / 2.0) * width;
            const QPointF before = tip.number->position->coords();
            tip.number->position->setCoords(group.size() == 1 ? 0.0 : x - tip.place.x(),
                                            before.y());
            placed[group[i]] = true;
        }
    }
}

} // namespace Panel
