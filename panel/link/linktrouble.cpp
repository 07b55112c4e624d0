// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "linktrouble.h"

#include <QCoreApplication>

namespace Panel::Trouble
{

namespace
{

struct TroubleText {
    Q_DECLARE_TR_FUNCTIONS(Panel::Trouble)
};

constexpr int s_longestQuote = 24;

} // namespace

QString quoted(const QByteArray &what)
{
    QString result;
    for (const char c : what.trimmed().left(s_longestQuote))
        result += c >= ' ' && c <= '~' ? QLatin1Char(c) : QLatin1Char('?');
    return result;
}

QString unreachable(const QString &peer, const QString &reason)
{
    return TroubleText::tr("%1 cannot be reached: %2.").arg(peer, reason);
}

QString noPermission(const QString &peer)
{
    return TroubleText::tr("%1 cannot be opened: there is no permission to use it.").arg(peer);
}

QString noSuchPort(const QString &peer)
{
    return TroubleText::tr("%1 cannot be opened: there is no such port.").arg(peer);
}

QString busy(const QString &peer)
{
    return TroubleText::tr("%1 cannot be opened: another program uses it.").arg(peer);
}

QString silent(const QString &peer)
{
    return TroubleText::tr("%1 does not answer.").arg(peer);
}

QString slow(const QString &peer)
{
    return TroubleText::tr("%1 sends too slowly.").arg(peer);
}

QString closed(const QString &peer)
{
    return TroubleText::tr("%1 has ended the connection.").arg(peer);
}

QString tooMuch(const QString &peer, qint64 claimed, qint64 due)
{
    return TroubleText::tr("%1 sends %2 bytes where %3 are due.").arg(peer).arg(claimed).arg(due);
}

QString otherPoints(const QString &peer, qint64 points, qint64 due)
{
    return TroubleText::tr("%1 sends %2 points where %3 are due.").arg(peer).arg(points).arg(due);
}

QString notFinite(const QString &peer)
{
    return TroubleText::tr("%1 sends values that are no numbers.").arg(peer);
}

QString unreadable(const QString &peer, const QByteArray &what)
{
    return TroubleText::tr("%1 sends what cannot be understood: \"%2\".").arg(peer, quoted(what));
}

QString refused(const QString &peer, const QByteArray &command, const QByteArray &reason)
{
    return TroubleText::tr("%1 refuses \"%2\": %3.").arg(peer, quoted(command), quoted(reason));
}

QString unknownInstrument(const QString &peer, const QByteArray &identity)
{
    return TroubleText::tr("%1 is no instrument whose commands are known: \"%2\".")
        .arg(peer, quoted(identity));
}

QString otherInstrument(const QString &peer, const QString &identity, const QString &expected)
{
    return TroubleText::tr("%1 is another instrument than before: %2 in place of %3.")
        .arg(peer, identity, expected);
}

QString noDevice(const QString &peer)
{
    return TroubleText::tr("%1 answers, but has no device connected.").arg(peer);
}

QString binaryProtocol(const QString &peer)
{
    return TroubleText::tr("%1 speaks another protocol than the text shell.").arg(peer);
}

QString noSerialPorts()
{
    return TroubleText::tr("This panel was built without serial ports.");
}

QString neverEnds(const QString &peer)
{
    return TroubleText::tr("%1 does not finish its sweep.").arg(peer);
}

} // namespace Panel::Trouble
