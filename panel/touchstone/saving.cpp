// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "saving.h"

#include "csvwriter.h"
#include "text.h"
#include "touchstone.h"
#include "touchstonewriter.h"

#include <QFileInfo>
#include <QSaveFile>

namespace Panel
{

namespace
{

bool isCsv(const QFileInfo &info)
{
    return info.suffix().compare(QLatin1String("csv"), Qt::CaseInsensitive) == 0;
}

/// The version to write, 1 or 2.
int versionFor(const QFileInfo &info, const Network &network, const SaveOptions &options)
{
    if (options.touchstoneVersion != 0)
        return options.touchstoneVersion;
    // Most readers of version 1 take the first reference for that of all ports.
    const bool fits = network.references.isEmpty() && touchstoneObstacle(network, 1).isEmpty();
    return touchstonePorts(info.fileName()) > 0 && fits ? 1 : 2;
}

/// Why a file is not written under this name, or nothing.
QString refusal(const QFileInfo &info, const Network &network, const SaveOptions &options)
{
    const int ports = touchstonePorts(info.fileName());
    if (!isCsv(info) && !isTouchstoneName(info.fileName()))
        return Text::tr("the name of a network's file ends in .s1p, .s2p and so on, .ts or .csv");
    if (ports > 0 && ports != network.ports)
        return Text::tr("the name of a file with %1 ports ends in .s%1p").arg(network.ports);
    if (!info.exists() || options.overwrite)
        return QString();
    if (!network.fileTime.isValid())
        return Text::tr("there is such a file already");
    return info.lastModified() > network.fileTime
        ? Text::tr("the file that is there is newer than what was to be saved")
        : QString();
}

/// Writes the file, or says why that cannot be.
QString write(const QFileInfo &info, const Network &network, const SaveOptions &options)
{
    QString reason = refusal(info, network, options);
    const int version = isCsv(info) ? 0 : versionFor(info, network, options);
    if (reason.isEmpty() && version > 0)
        reason = touchstoneObstacle(network, version);
    if (!reason.isEmpty())
        return reason;
    QSaveFile file(info.filePath());
    if (file.open(QIODevice::WriteOnly)) {
        if (version > 0)
            writeTouchstone(file, network, version);
        else
            writeCsv(file, network);
        // What only commit() writes may be lost untold where the disk is full.
        if (!file.flush())
            reason = file.errorString();
        if (!reason.isEmpty())
            file.cancelWriting();
    }
    if (file.commit())
        return QString();
    return Text::tr("the file cannot be written (%1)")
        .arg(reason.isEmpty() ? file.errorString() : reason);
}

} // namespace

QString saveNetwork(const QString &path, const Network &network, const SaveOptions &options)
{
    TouchstoneResult result;
    result.reason = write(QFileInfo(path), network, options);
    return result.ok() ? QString() : result.sentence(path);
}

Conversion convertFile(const QString &from, const QString &to, const SaveOptions &options)
{
    const TouchstoneResult result = readTouchstone(from);
    Conversion conversion;
    for (const QString &remark : result.network.remarks) {
        TouchstoneResult sentence;
        sentence.reason = remark;
        conversion.remarks << sentence.sentence(from);
    }
    conversion.error =
        result.ok() ? saveNetwork(to, result.network, options) : result.sentence(from);
    return conversion;
}

} // namespace Panel
