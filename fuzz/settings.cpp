// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The bytes of a settings file, and of a palette in one that is sound otherwise.
#include "input.h"

#include <controls/themesettings_p.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>

using Controls::ThemeSettings;

namespace
{

QString write(const QByteArray &bytes)
{
    const QString name = QDir::temp().filePath(
        QStringLiteral("vna-fuzz-%1.ini").arg(QCoreApplication::applicationPid()));
    QFile file(name);
    FUZZ_CHECK(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return name;
}

void check(const ThemeSettings &theme)
{
    const auto valid = [](const QColor &color) { return color.isValid(); };
    FUZZ_CHECK(std::all_of(theme.tracePalette.begin(), theme.tracePalette.end(), valid));
    FUZZ_CHECK(
        std::all_of(theme.memoryTracePalette.begin(), theme.memoryTracePalette.end(), valid));
    FUZZ_CHECK(theme.colors.size() <= 3);
}

} // namespace

void Fuzz::run(Input &input)
{
    QByteArray bytes;
    if (input.flag())
        bytes = "[ThemeColors]\nDark\\tracePalette=";
    bytes += input.rest();
    const QString name = write(bytes);
    ThemeSettings dark;
    ThemeSettings light;
    Controls::readThemeSettings(name, dark, light);
    check(dark);
    check(light);
    QFile file(name);
    FUZZ_CHECK(file.open(QIODevice::ReadOnly) && file.readAll() == bytes); // nothing written back
    file.remove();
}
