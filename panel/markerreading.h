// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "network.h"

namespace Panel
{

/// What a marker shows of its point, as text.
struct MarkerReading {
    QString frequency; ///< "2.450 GHz"
    QString resistance; ///< "48.21 Ω"
    QString reactance; ///< "+j3.100 Ω"
    /// The inductance or capacitance in series that has this reactance: "204.5 pH"; empty where
    /// there is none.
    QString element;
};

/*! Reads a reflection parameter at a fractional index into its data as the impedance R (1 + Γ) / (1
   - Γ), with R the reference resistance. The index must lie within the data. */
MarkerReading readMarker(const Network &network, const Parameter &parameter, double index);

} // namespace Panel
