// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QVector>

namespace SmithChart
{

/// How dense a Smith chart's grid is.
enum Preset : int {
    Basic = 0, ///< 4 resistance circles, 6 reactance values
    Standard = 1, ///< 6 resistance circles, 10 reactance values
    Detailed = 2, ///< 8 resistance circles, 14 reactance values
};

/// The normalised values that get a circle and a label each.
struct GridValues {
    QVector<double> resistances; ///< r >= 0, ascending
    QVector<double> reactances; ///< x, each magnitude with both signs, ascending, never 0
};

/// The value sets of \a preset; both are empty for a value that is no preset.
[[nodiscard]] VNAWIDGETS_EXPORT GridValues gridValues(Preset preset);

} // namespace SmithChart
