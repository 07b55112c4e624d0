// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

namespace Utils
{

/// Reads an ordinary file of at most \a largest bytes into \a text; false, and no wait, for
/// anything else: a folder, a pipe, a larger file or one that is not readable.
inline bool readSmallFile(const QString &path, qint64 largest, QByteArray &text)
{
    if (!QFileInfo(path).isFile())
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const qint64 size = file.size(); // of what is open now, whatever the name stands for meanwhile
    if (size > largest)
        return false;
    text = file.read(size);
    return file.error() == QFileDevice::NoError;
}

} // namespace Utils
