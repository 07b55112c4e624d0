// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "soundoutput.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

namespace Panel
{

std::unique_ptr<SoundOutput> makeSoundOutput()
{
    using Make = SoundOutput *(*)();
    QLibrary module(
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("vnapanel-sound")));
    const auto make = reinterpret_cast<Make>(module.resolve("vnapanelMakeSoundOutput"));
    return std::unique_ptr<SoundOutput>(make ? make() : nullptr);
}

} // namespace Panel
