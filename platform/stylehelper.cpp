// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/stylehelper.h>

#include <QApplication>
#include <QDir>
#include <QFile>

namespace Utils
{

QStringList StyleHelper::defaultThemeFiles(bool dark)
{
    Q_UNUSED(dark)
    return {QStringLiteral("../configuration/theme-base.css")};
}

void StyleHelper::setThemes(const QStringList &files)
{
    auto *application = qobject_cast<QApplication *>(QCoreApplication::instance());
    if (!application)
        return;

    const QDir base(QCoreApplication::applicationDirPath());
    QString sheet;
    for (const QString &name : files) {
        QFile file(QDir::cleanPath(base.absoluteFilePath(name)));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        // The line break keeps a last line without one from running into the next file.
        sheet += QString::fromUtf8(file.readAll()) + QLatin1Char('\n');
    }
    if (application->styleSheet() != sheet)
        application->setStyleSheet(sheet);
}

} // namespace Utils
