// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QIcon>

namespace Panel
{

/// Small line drawings that stand for the pages of the soft keys, and for keys of the bar.
enum class Glyph {
    Stimulus,
    Trace,
    Math,
    Scale,
    Marker,
    Limits,
    Display,
    Sweep,
    System,
    Open,
    Save,
    Screenshot,
};

/// A glyph in two colours: while its button is off, and while it is on.
QIcon glyphIcon(Glyph glyph, const QColor &off, const QColor &on);

} // namespace Panel
