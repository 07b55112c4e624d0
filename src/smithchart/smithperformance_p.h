// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QLoggingCategory>

/// "vna.smith.render.performance": off unless switched on by Qt's logging rules, and with it all
/// timing.
Q_DECLARE_LOGGING_CATEGORY(smithPerformance)
