// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "zoomstate.h"

#include "viewstate.h"

#include <panel/model/panelmodel.h>

namespace Panel
{

QJsonArray zoomState(const PanelModel &model)
{
    QJsonArray zooms;
    for (const auto &[id, zoom] : model.zooms())
        zooms.append(QJsonObject{{"smith"_key, id.smith},
                                 {"place"_key, id.place},
                                 {"factor"_key, zoom.factor},
                                 {"x"_key, zoom.x},
                                 {"y"_key, zoom.y}});
    return zooms;
}

void restoreZoomState(PanelModel *model, const QJsonArray &saved)
{
    const std::map<DiagramId, Zoom> before = model->zooms();
    for (const auto &[id, zoom] : before)
        model->setZoom(id, Zoom());
    for (const QJsonValue value : saved) {
        const QJsonObject zoom = value.toObject();
        model->setZoom(
            {zoom["smith"_key].toBool(), zoom["place"_key].toInt()},
            {zoom["factor"_key].toDouble(), zoom["x"_key].toDouble(), zoom["y"_key].toDouble()});
    }
}

} // namespace Panel
