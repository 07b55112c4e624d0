// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Panel
{

/*! Switches both themes to black and white: texts, edges and the focus at a contrast of at least
    7:1, and a dash pattern of its own for each trace. Off at the start. Everything follows as after a
    change of theme. */
void setHighContrast(bool on);
bool isHighContrast();

} // namespace Panel
