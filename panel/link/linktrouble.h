// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    What can be wrong with an instrument at the other end of a cable, each one sentence. */
#pragma once

#include <QString>

namespace Panel::Trouble
{

QString unreachable(const QString &peer, const QString &reason);
QString noPermission(const QString &peer);
QString noSuchPort(const QString &peer);
QString busy(const QString &peer);
QString silent(const QString &peer);
QString slow(const QString &peer);
QString closed(const QString &peer);
QString tooMuch(const QString &peer, qint64 claimed, qint64 due);
QString otherPoints(const QString &peer, qint64 points, qint64 due);
QString notFinite(const QString &peer);
/// Quotes the beginning of what came, in printable characters.
QString unreadable(const QString &peer, const QByteArray &what);
QString refused(const QString &peer, const QByteArray &command, const QByteArray &reason);
QString unknownInstrument(const QString &peer, const QByteArray &identity);
QString otherInstrument(const QString &peer, const QString &identity, const QString &expected);
QString noDevice(const QString &peer);
QString binaryProtocol(const QString &peer);
QString noSerialPorts();
QString neverEnds(const QString &peer);

/// At most 24 printable characters of what came.
QString quoted(const QByteArray &what);

} // namespace Panel::Trouble
