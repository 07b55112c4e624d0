// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "analyser.h"
#include "linkaddress.h"

#include <atomic>
#include <memory>

namespace Panel
{

class LinkLog;
class Wire;

/*! One connection to an instrument, for the thread that waits for its answers: from the first
    question to the farewell.

    \code
    LinkSession session(address, nullptr, nullptr);
    Network network;
    if (!session.open() || !session.analyser()->sweep(network, {}))
        return session.trouble();
    \endcode */
class LinkSession
{
public:
    /// Once `cancel` is true, all that waits stops waiting. Log and flag may be null.
    LinkSession(const LinkAddress &address, LinkLog *log, const std::atomic_bool *cancel);
    /// Leaves the instrument as it was found, as far as that can be done.
    ~LinkSession();

    /// Connects, and asks who is there.
    bool open();
    Analyser *analyser() const { return m_analyser.get(); }
    Wire *wire() const { return m_wire.get(); }
    QString trouble() const;

private:
    Q_DISABLE_COPY(LinkSession)

    std::unique_ptr<Wire> m_wire;
    std::unique_ptr<Analyser> m_analyser;
    bool m_connected = false;
};

} // namespace Panel
