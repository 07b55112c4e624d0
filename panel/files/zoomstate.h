// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonArray>

namespace Panel
{

class PanelModel;

/// Which part of each diagram is seen.
QJsonArray zoomState(const PanelModel &model);
/// A diagram that was not saved shows all.
void restoreZoomState(PanelModel *model, const QJsonArray &saved);

} // namespace Panel
