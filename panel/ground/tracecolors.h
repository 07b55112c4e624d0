// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Colours that can be told apart by everybody, and how far apart colours are. */
#pragma once

#include <QColor>
#include <QVector>

namespace Panel
{

/// How an eye sees colours. The three without one kind of cones are those of one man in a hundred
/// each, and of one person in 10,000.
enum class Sight {
    Normal,
    Protan, ///< without cones for long waves
    Deutan, ///< without cones for middle ones
    Tritan, ///< without cones for short ones
};

/*! Eight colours of traces for a theme. Any two differ by a CIEDE2000 of 12 or more for every Sight,
    and all stand out from the theme's ground by 4.5:1 at least, so that texts can have them too. */
QVector<QColor> traceColors(bool dark);
/// Of stored data: half way from those to the ground.
QVector<QColor> memoryColors(bool dark);

/// The colour as an eye sees it (Machado, Oliveira and Fernandes, A physiologically-based model for
/// simulation of color vision deficiency, 2009; severity 1).
QColor seen(const QColor &color, Sight sight);
/// How different two colours look: 1 is just noticeable side by side (Sharma, Wu and Dalal, The
/// CIEDE2000 color-difference formula, 2005; all weights 1, D65).
double colorDifference(const QColor &a, const QColor &b);
/// From 1 to 21, by the relative luminances (Web Content Accessibility Guidelines 2.1).
double contrast(const QColor &a, const QColor &b);

} // namespace Panel
