// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace Panel
{

/// Makes the theme's pictures known to the program; called once, before the first icon is asked
/// for.
void registerIcons();

/// The icon of a name such as "open" or "close" for the theme in force; ask again after
/// themeChanged().
QIcon icon(const char *name);

/// The panel's sign, a small Smith chart, \a side pixels wide on a screen of a device pixel ratio.
QPixmap mark(int side, const QColor &color, double ratio);

} // namespace Panel
