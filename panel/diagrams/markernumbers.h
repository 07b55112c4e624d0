// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QVector>

namespace Plot
{
class Marker;
}

namespace Panel
{

/*! Sets the numbers of markers whose tips all but coincide side by side, in the order of their tips,
    each on a ground on which it can be read before lines. Markers may be null or hidden. */
void fanOutNumbers(const QVector<const Plot::Marker *> &markers, const QColor &background);

} // namespace Panel
