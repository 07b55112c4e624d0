// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "linkaddress.h"

#include <QCoreApplication>

namespace Panel
{

namespace
{

struct AddressText {
    Q_DECLARE_TR_FUNCTIONS(Panel::LinkAddress)
};

struct Scheme {
    const char *name;
    int port; ///< customary one; 0: none, for a path
};

/// In the order of LinkAddress::Kind.
constexpr Scheme s_schemes[] = {{"nanovna", 0}, {"librevna", 19542}, {"scpi", 5025}};
constexpr int s_longest = 255;

/// Splits "host:port", "[host]:port" or a host alone; false if it is none of them.
bool splitHost(const QString &text, QString &host, int &port)
{
    QString rest;
    if (text.startsWith(QLatin1Char('['))) {
        const auto end = text.indexOf(QLatin1Char(']'));
        host = text.mid(1, end - 1);
        rest = end < 0 ? QStringLiteral("?") : text.mid(end + 1);
    } else {
        const auto colon = text.lastIndexOf(QLatin1Char(':'));
        host = text.left(colon);
        rest = colon < 0 ? QString() : text.mid(colon);
        if (host.contains(QLatin1Char(':')))
            return false;
    }
    // A bracket within would be taken for one around when the address is read again.
    const auto has = [&host](char character) { return host.contains(QLatin1Char(character)); };
    if (host.isEmpty() || has(' ') || has('[') || has(']'))
        return false;
    if (rest.isEmpty())
        return true;
    bool ok = false;
    port = rest.mid(1).toInt(&ok);
    return ok && rest.startsWith(QLatin1Char(':')) && port >= 1 && port <= 65535;
}

} // namespace

QString LinkAddress::text() const
{
    const QString scheme = QLatin1String(s_schemes[kind].name);
    if (kind == Shell)
        return QStringLiteral("%1:%2").arg(scheme, place);
    const QString host =
        place.contains(QLatin1Char(':')) ? QStringLiteral("[%1]").arg(place) : place;
    return QStringLiteral("%1:%2:%3").arg(scheme, host, QString::number(port));
}

bool parseLinkAddress(const QString &text, LinkAddress &address, QString &error)
{
    const auto colon = text.indexOf(QLatin1Char(':'));
    const QString place = text.mid(colon + 1);
    for (int kind = LinkAddress::Shell; kind <= LinkAddress::Scpi; ++kind) {
        const Scheme &scheme = s_schemes[kind];
        if (text.left(colon) != QLatin1String(scheme.name) || text.size() > s_longest)
            continue;
        address = {LinkAddress::Kind(kind), place, scheme.port};
        if (kind == LinkAddress::Shell ? !place.isEmpty()
                                       : splitHost(place, address.place, address.port))
            return true;
    }
    error = AddressText::tr("An instrument is written as nanovna:PORT, librevna:HOST or scpi:HOST, "
                            "not \"%1\".")
                .arg(text.left(s_longest));
    return false;
}

} // namespace Panel
