// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QIcon>

class QWidget;

namespace Controls
{

/// Signs on keys that are drawn, because not every font has them.
enum class KeyGlyph { Backspace, Down, Up, Left, Right };

/// The sign in the colour that \a key writes in.
QIcon keyGlyphIcon(KeyGlyph glyph, const QWidget *key);

} // namespace Controls
