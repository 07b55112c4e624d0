// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    Style sheets name colours as "@textColor". Who knows the colours leaves them at the application;
    who loads a sheet fills them in. */
#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace Utils
{

/// The application's property that holds the colours by name, as texts of style sheets.
constexpr char styleColorsProperty[] = "vnaThemeColors";
/// The application's property that holds a host's sheet, with the names of colours.
constexpr char hostSheetProperty[] = "vnaHostSheet";

/// The sheet with colours in place of their names, outside of comments and quotes. A name that is
/// unknown becomes transparent and is added to \a unknown.
inline QString withStyleColors(const QString &sheet, const QVariantMap &colors,
                               QStringList *unknown = nullptr)
{
    static const QRegularExpression parts(QStringLiteral(R"(/\*.*?\*/|"[^"\n]*"|@([A-Za-z]+))"),
                                          QRegularExpression::DotMatchesEverythingOption);
    QString filled;
    filled.reserve(sheet.size());
    decltype(sheet.size()) at = 0; // an int, or with Qt 6 more
    for (auto it = parts.globalMatch(sheet); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        if (match.capturedLength(1) == 0)
            continue;
        filled += sheet.mid(at, match.capturedStart() - at);
        at = match.capturedEnd();
        const QString name = match.captured(1);
        const QString color = colors.value(name).toString();
        filled += color.isEmpty() ? QStringLiteral("transparent") : color;
        if (color.isEmpty() && unknown)
            *unknown << name;
    }
    return filled + sheet.mid(at);
}

} // namespace Utils
