// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QColor>
#include <QMap>
#include <QString>
#include <QVector>

namespace Controls
{

/// What a settings file says about one theme, and nothing that it does not say.
struct ThemeSettings {
    QMap<QString, QColor> colors; ///< an invalid colour for a text that names none
    QVector<QColor> tracePalette; ///< empty where no colour of the list is one
    QVector<QColor> memoryTracePalette;

    bool isEmpty() const
    {
        return colors.isEmpty() && tracePalette.isEmpty() && memoryTracePalette.isEmpty();
    }
};

/// A settings file above this size (in bytes) counts as missing.
constexpr qint64 largestSettingsFile = 1 << 20;

/// The file named by the application's property "vnaSettingsPath", or else the one in the folder
/// "../configuration" beside the application.
QString themeSettingsPath();

/// Which colours are read from a file.
enum ReadColors {
    DiagramColors, ///< of grid, borders and background
    AllColors, ///< whatever name ends in "Color" and has a text that is one
};

/// Reads the group "ThemeColors" of an INI file. One that is missing, too large, no ordinary file
/// or not readable says nothing; of a damaged one counts what can be read.
void readThemeSettings(const QString &path, ThemeSettings &dark, ThemeSettings &light,
                       ReadColors which = DiagramColors);

} // namespace Controls
