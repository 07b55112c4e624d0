// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelserver.h"

#include <QNetworkProxy>
#include <QPointer>
#include <QTcpSocket>

namespace Panel
{

PanelServer::PanelServer(PanelModel *model, const std::function<QByteArray()> &screenshot,
                         QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_screenshot(screenshot)
{
    connect(&m_server, &QTcpServer::newConnection, this, &PanelServer::accept);
}

/// Connections that are open tell of their end when the server closes them, after those here are gone.
PanelServer::~PanelServer()
{
    for (const auto &connection : m_connections)
        connection.first->disconnect(this);
}

bool PanelServer::listen(const QHostAddress &address, int port)
{
    m_server.setProxy(QNetworkProxy::NoProxy);
    return m_server.listen(address, quint16(port));
}

QString PanelServer::place() const
{
    const QHostAddress address = m_server.serverAddress();
    const QString host = address.protocol() == QAbstractSocket::IPv6Protocol
        ? QStringLiteral("[%1]").arg(address.toString())
        : address.toString();
    return QStringLiteral("%1:%2").arg(host).arg(m_server.serverPort());
}

void PanelServer::accept()
{
    while (QTcpSocket *socket = m_server.nextPendingConnection()) {
        if (int(m_connections.size()) >= maximumConnections) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        socket->setReadBufferSize(qint64(2) * longestLine);
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        m_connections[socket] = std::make_unique<PanelCommands>(m_model, m_screenshot);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            m_connections.erase(socket);
            socket->deleteLater();
        });
        read(socket);
    }
}

void PanelServer::answer(QTcpSocket *socket, const QByteArray &text)
{
    if (text.isEmpty())
        return;
    socket->write(text + '\n');
    if (socket->bytesToWrite() > maximumUnsent)
        socket->abort();
}

/// Does what whole lines say, up to one that waits for a sweep.
void PanelServer::read(QTcpSocket *socket)
{
    const QPointer<QTcpSocket> alive(socket);
    for (;;) {
        const auto found = m_connections.find(socket);
        if (!alive || found == m_connections.end() || found->second->isWaiting())
            return;
        if (!socket->canReadLine()) {
            if (socket->bytesAvailable() > longestLine)
                socket->abort();
            return;
        }
        const QByteArray line = socket->readLine(longestLine + 1);
        if (!line.endsWith('\n')) {
            socket->abort();
            return;
        }
        const QByteArray text = found->second->execute(line.trimmed());
        if (alive)
            answer(socket, text);
    }
}

void PanelServer::sweepCompleted()
{
    QList<QTcpSocket *> sockets;
    for (const auto &connection : m_connections)
        sockets << connection.first;
    for (QTcpSocket *socket : qAsConst(sockets)) {
        const auto found = m_connections.find(socket);
        if (found == m_connections.end())
            continue;
        answer(socket, found->second->sweepCompleted());
        read(socket);
    }
}

bool parseServePlace(const QString &text, QHostAddress &address, int &port)
{
    const auto colon = text.lastIndexOf(QLatin1Char(':'));
    QString host = colon < 0 ? QString() : text.left(colon);
    if (host.startsWith(QLatin1Char('[')) && host.endsWith(QLatin1Char(']')))
        host = host.mid(1, host.size() - 2);
    bool ok = false;
    port = text.mid(colon + 1).toInt(&ok);
    address = colon < 0 ? QHostAddress(QHostAddress::LocalHost) : QHostAddress(host);
    return ok && port >= 0 && port <= 65535 && !address.isNull();
}

} // namespace Panel
