// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "linksession.h"

#include "programanalyser.h"
#include "scpianalyser.h"
#include "serialwire.h"
#include "shellanalyser.h"
#include "tcpwire.h"

namespace Panel
{

namespace
{

std::unique_ptr<Wire> makeWire(const LinkAddress &address)
{
    if (address.kind == LinkAddress::Shell)
        return makeSerialWire(address.place);
    return std::make_unique<TcpWire>(address.place, address.port);
}

std::unique_ptr<Analyser> makeAnalyser(LinkAddress::Kind kind, Wire &wire)
{
    switch (kind) {
    case LinkAddress::Shell:
        return std::make_unique<ShellAnalyser>(wire);
    case LinkAddress::Program:
        return std::make_unique<ProgramAnalyser>(wire);
    case LinkAddress::Scpi:
        break;
    }
    return std::make_unique<ScpiAnalyser>(wire);
}

} // namespace

LinkSession::LinkSession(const LinkAddress &address, LinkLog *log, const std::atomic_bool *cancel)
    : m_wire(makeWire(address))
    , m_analyser(makeAnalyser(address.kind, *m_wire))
{
    m_wire->setLog(log);
    m_wire->setCancel(cancel);
}

LinkSession::~LinkSession()
{
    if (m_connected)
        m_analyser->end();
}

bool LinkSession::open()
{
    m_connected = m_wire->open();
    return m_connected && m_analyser->begin();
}

QString LinkSession::trouble() const
{
    return m_wire->trouble();
}

} // namespace Panel
