// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelcommands.h"

#include <QHostAddress>
#include <QTcpServer>

#include <map>
#include <memory>

class QTcpSocket;

namespace Panel
{

/*! Answers scripts of a laboratory over TCP: lines of SCPI, each connection with a form and an error
    queue of its own. Whoever can connect can operate the panel; so it listens where it is told, and
    nowhere else.

    \code
    auto *server = new PanelServer(model, [window] { return pngOf(window); }, window);
    if (!server->listen(QHostAddress::LocalHost, 5025))
        tell(server->errorString());
    \endcode */
class PanelServer : public QObject
{
    Q_OBJECT

public:
    static constexpr int maximumConnections = 8;
    /// A line, in bytes; a longer one ends the connection.
    static constexpr int longestLine = 64 << 10;
    /// What waits to be sent, in bytes; who reads less than that is not answered any more.
    static constexpr qint64 maximumUnsent = qint64(256) << 20;

    PanelServer(PanelModel *model, const std::function<QByteArray()> &screenshot,
                QObject *parent = nullptr);
    ~PanelServer() override;

    /// Port 0 takes a free one.
    bool listen(const QHostAddress &address, int port);
    QString errorString() const { return m_server.errorString(); }
    /// "127.0.0.1:5025": where it listens.
    QString place() const;

    /// A sweep has been measured whole.
    void sweepCompleted();

private:
    void accept();
    void read(QTcpSocket *socket);
    static void answer(QTcpSocket *socket, const QByteArray &text);

    PanelModel *m_model;
    std::function<QByteArray()> m_screenshot;
    QTcpServer m_server;
    std::map<QTcpSocket *, std::unique_ptr<PanelCommands>> m_connections;
};

/// Reads "[ADDRESS:]PORT"; without an address it is the loopback one. False for what is neither.
bool parseServePlace(const QString &text, QHostAddress &address, int &port);

} // namespace Panel
