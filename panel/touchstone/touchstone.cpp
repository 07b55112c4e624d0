// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "touchstone.h"

#include "parser.h"
#include "text.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace Panel
{

namespace
{

constexpr qint64 s_mebibyte = 1 << 20;
constexpr qint64 s_largestFile = 4096 * s_mebibyte;

/// What is wrong with a file before it is opened, or nothing.
QString refusal(const QFileInfo &info)
{
    if (!info.exists())
        return Text::tr("there is no such file");
    if (info.isDir())
        return Text::tr("this is a folder, not a file");
    if (!info.isFile())
        return Text::tr("this is no ordinary file");
    if (!isTouchstoneName(info.fileName()))
        return Text::tr("the name of a Touchstone file ends in .s1p, .s2p and so on, or in .ts");
    const int ports = touchstonePorts(info.fileName());
    if (ports > s_maximumPorts)
        return Text::tr("a network of %1 ports, and at most %2 ports are read")
            .arg(ports)
            .arg(s_maximumPorts);
    if (info.size() > s_largestFile)
        return Text::tr("the file is larger than %1 MB").arg(s_largestFile / s_mebibyte);
    return QString();
}

TouchstoneResult readFile(const QFileInfo &info, const ReadProgress &progress)
{
    TouchstoneResult result;
    result.reason = refusal(info);
    if (!result.ok())
        return result;
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        result.reason = Text::tr("the file cannot be read (%1)").arg(file.errorString());
        return result;
    }
    return parseTouchstone(file, touchstonePorts(info.fileName()), progress);
}

} // namespace

QString TouchstoneResult::sentence(const QString &file) const
{
    if (line > 0)
        return Text::tr("%1, line %2: %3.").arg(file, QString::number(line), reason);
    return Text::tr("%1: %2.").arg(file, reason);
}

int touchstonePorts(const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (suffix.size() < 3 || !suffix.startsWith(QLatin1Char('s'))
        || !suffix.endsWith(QLatin1Char('p')))
        return 0;
    const QString digits = suffix.mid(1, suffix.size() - 2);
    const bool plain = std::all_of(digits.begin(), digits.end(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    });
    return plain ? digits.toInt() : 0;
}

bool isTouchstoneName(const QString &fileName)
{
    return touchstonePorts(fileName) > 0
        || QFileInfo(fileName).suffix().compare(QLatin1String("ts"), Qt::CaseInsensitive) == 0;
}

TouchstoneResult readTouchstone(const QString &path, const ReadProgress &progress)
{
    const QFileInfo info(path);
    // Asked for before the reading: what is written meanwhile is newer than what is read.
    const QDateTime fileTime = info.lastModified();
    TouchstoneResult result = readFile(info, progress);
    result.network.name = info.fileName();
    result.network.path = info.absoluteFilePath();
    result.network.fileTime = fileTime;
    return result;
}

TouchstoneResult parseTouchstone(const QByteArray &text, int ports, const ReadProgress &progress)
{
    QBuffer buffer;
    buffer.setData(text);
    buffer.open(QIODevice::ReadOnly);
    return parseTouchstone(buffer, ports, progress);
}

TouchstoneResult parseTouchstone(QIODevice &device, int ports, const ReadProgress &progress)
{
    return Parser(device, ports, progress).run();
}

} // namespace Panel
