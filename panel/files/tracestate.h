// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    A trace with its markers and limits as JSON, as far as it is not data. */
#pragma once

#include "viewstate.h"

namespace Panel
{

struct Trace;

QJsonObject traceState(const PanelModel &model, const Trace &trace);

/// Whether every value is one that can be.
bool isTraceState(const QJsonObject &trace);

/// Shows a trace in that way; its memory, too, where memories are given.
void restoreTraceState(PanelModel *model, int id, const QJsonObject &saved,
                       const Memories *memories);

/// Makes active and selected what was; true if a marker was.
bool restoreChoices(PanelModel *model, int id, const QJsonObject &saved);

} // namespace Panel
