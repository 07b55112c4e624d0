// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <platform/stylehelper.h>

#include <base/smallfile_p.h>

#include <QApplication>
#include <QDir>

namespace Utils
{

namespace
{

constexpr qint64 largestFile = 1 << 20;

} // namespace

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
        QByteArray text;
        if (!readSmallFile(QDir::cleanPath(base.absoluteFilePath(name)), largestFile, text))
            continue;
        // The line break keeps a last line without one from running into the next file.
        sheet += QString::fromUtf8(text) + QLatin1Char('\n');
    }
    if (application->styleSheet() != sheet)
        application->setStyleSheet(sheet);
}

} // namespace Utils
