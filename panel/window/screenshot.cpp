// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "screenshot.h"

#include <panel/model/preferences.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QStandardPaths>
#include <QWidget>

namespace Panel
{

namespace
{

/// Opens a file that did not exist before; a number follows the name where one of that name did.
bool openNew(QFile &file, const QString &stem)
{
    constexpr int mostNames = 1000;
    for (int number = 1; number <= mostNames; ++number) {
        const QString suffix = number == 1 ? QString() : QStringLiteral("-%1").arg(number);
        file.setFileName(stem + suffix + QStringLiteral(".png"));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return true;
        if (!file.exists())
            return false;
    }
    return false;
}

} // namespace

QString folderForScreenshots(const Preferences &preferences)
{
    if (!preferences.screenshotFolder().isEmpty())
        return preferences.screenshotFolder();
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return pictures.isEmpty() ? QDir::homePath() : pictures;
}

Screenshot saveScreenshot(QWidget *window, const QString &folder)
{
    // Taken first, so that it is the moment that the name tells.
    const QPixmap picture = window->grab();
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QString shown = QDir::toNativeSeparators(folder);
    if (!QDir().mkpath(folder))
        return {QString(),
                QCoreApplication::translate("Panel::Screenshot",
                                            "The folder %1 for the screenshot cannot be made.")
                    .arg(shown)};
    QFile file;
    if (openNew(file, QDir(folder).filePath(QStringLiteral("vnapanel-") + time))) {
        if (picture.save(&file, "PNG") && file.flush())
            return {file.fileName(), QString()};
        // Half a picture is of no use, and its name no longer needed.
        QFile::remove(file.fileName());
    }
    return {QString(),
            QCoreApplication::translate("Panel::Screenshot",
                                        "The screenshot cannot be written to %1 (%2).")
                .arg(shown, file.errorString())};
}

} // namespace Panel
