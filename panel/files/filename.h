// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Panel
{

/// The name without what no file can be called on any system, and no longer than that; empty where
/// nothing is left.
inline QString toFileName(const QString &name, int longest)
{
    QString result;
    for (const QChar letter : name.simplified().left(longest)) {
        if (letter.isPrint() && !QStringLiteral("/\\:*?\"<>|").contains(letter))
            result += letter;
    }
    while (result.startsWith(QLatin1Char('.')))
        result.remove(0, 1);
    return result.trimmed();
}

} // namespace Panel
