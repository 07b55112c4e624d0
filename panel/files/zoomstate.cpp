// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "zoomstate.h"

#include "viewstate.h"

#include <panel/model/panelmodel.h>

namespace Panel
{

namespace
{

/// Earlier files told a Smith chart from the others only.
DiagramKind savedKind(const QJsonObject &zoom)
{
    if (zoom["kind"_key].isDouble())
        return DiagramKind(qBound(0, zoom["kind"_key].toInt(), int(DiagramKind::Cartesian)));
    return zoom["smith"_key].toBool() ? DiagramKind::Smith : DiagramKind::Cartesian;
}

} // namespace

QJsonArray zoomState(const PanelModel &model)
{
    QJsonArray zooms;
    for (const auto &[id, zoom] : model.zooms())
        zooms.append(QJsonObject{{"kind"_key, int(id.kind)},
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
            {savedKind(zoom), zoom["place"_key].toInt()},
            {zoom["factor"_key].toDouble(), zoom["x"_key].toDouble(), zoom["y"_key].toDouble()});
    }
}

} // namespace Panel
