// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    How the panel shows its networks, as JSON: layout, grid, limits, zooms, and of each network the
    part on show, its correction, its traces and their markers. Measured data are not among it. */
#pragma once

#include <panel/model/tracedata.h>

#include <QHash>
#include <QJsonObject>

namespace Panel
{

class PanelModel;
class ViewSettings;

QJsonObject viewState(const PanelModel &model);

/// Whether every value is one that can be.
bool isViewState(const QJsonObject &state);

/// Layout, grid and what else does not depend on networks.
void restoreViewSettings(ViewSettings *settings, const QJsonObject &state);
/// Shows the networks in that way. What belongs to a network comes back with that network and no
/// other: one that the state does not know stays as it is. The state must be valid.
void restoreViewState(PanelModel *model, const QJsonObject &state);

/// What was stored of traces, by their ids in a state.
using Memories = QHash<int, TraceData>;
/// What is not in those settings, for networks that came later; and, where memories are given, the
/// memory of each trace that comes back, or none.
void restoreNetworks(PanelModel *model, const QJsonObject &state,
                     const Memories *memories = nullptr);
/// What tells a network apart: its file, or what was measured.
inline QString networkIdentity(const Network &network)
{
    return network.path.isEmpty() ? network.name : network.path;
}

/// Whether a value is a whole number from 0 to below a count.
bool isChoice(const QJsonValue &value, int count);

/// A key of an object.
inline QLatin1String operator""_key(const char *text, std::size_t size)
{
    return QLatin1String(text, int(size));
}

} // namespace Panel
