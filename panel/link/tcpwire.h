// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wire.h"

#include <QTcpSocket>

namespace Panel
{

/// A wire over TCP. It lives in the thread that waits for it.
class TcpWire : public Wire
{
public:
    /// What a connection may take, in milliseconds.
    static constexpr int connectTime = 3000;

    TcpWire(const QString &host, int port);

    bool open() override;

protected:
    bool write(const QByteArray &bytes) override;
    qint64 receive(char *into, qint64 maximum, int milliseconds) override;

private:
    QString m_host;
    int m_port;
    QTcpSocket m_socket;
};

} // namespace Panel
