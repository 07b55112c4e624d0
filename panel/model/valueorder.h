// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Which of many points of a trace has the lowest or highest value in a format, without computing
    the values. */
#pragma once

#include "tracedata.h"

namespace Panel
{

/// How many whole turns a step adds to the phase: it passes the negative real axis, or it does not.
int turnsOfStep(const std::complex<double> &from, const std::complex<double> &to);
/// Whole turns from the first point to each of the first \a count; a point without a value keeps
/// those before it.
QVector<int> turns(const TraceData &data, int count);

/*! \name Of all points of a trace, numbers in the order of their values in a format
    Values that differ by less than 1e-7 of themselves may change places. NaN where there is none. */
///@{
QVector<double> realOrder(const TraceData &data);
QVector<double> imaginaryOrder(const TraceData &data);
/// The unwrapped phase in radians.
QVector<double> unwrappedOrder(const TraceData &data);
QVector<double> delayOrder(const TraceData &data);
QVector<double> resistanceOrder(const TraceData &data);
QVector<double> reactanceOrder(const TraceData &data);
QVector<double> qualityOrder(const TraceData &data);
///@}

} // namespace Panel
