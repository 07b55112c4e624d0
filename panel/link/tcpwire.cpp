// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tcpwire.h"

#include "linktrouble.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QNetworkProxy>
#include <QTimer>

namespace Panel
{

namespace
{

struct WireText {
    Q_DECLARE_TR_FUNCTIONS(Panel::TcpWire)
};

constexpr int s_cancelInterval = 20;
/// What the socket holds of what nobody has read yet, in bytes; the sender waits with the rest.
constexpr qint64 s_readBuffer = 4 << 20;

QString reason(const QTcpSocket &socket)
{
    switch (socket.error()) {
    case QAbstractSocket::ConnectionRefusedError:
        return WireText::tr("nothing answers at this port");
    case QAbstractSocket::HostNotFoundError:
        return WireText::tr("there is no host of this name");
    default:
        return WireText::tr("there is no way to this host");
    }
}

} // namespace

TcpWire::TcpWire(const QString &host, int port)
    : Wire(QStringLiteral("%1:%2").arg(host).arg(port))
    , m_host(host)
    , m_port(port)
{
    m_socket.setReadBufferSize(s_readBuffer);
    // An instrument is not beyond a proxy.
    m_socket.setProxy(QNetworkProxy::NoProxy);
}

bool TcpWire::open()
{
    // With an event loop, because a name may take longer to be found than a connection may take.
    QEventLoop loop;
    QTimer poll;
    const QDeadlineTimer deadline(connectTime);
    const auto quit = [&loop] { loop.quit(); };
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (isCancelled() || deadline.hasExpired())
            loop.quit();
    });
    QObject::connect(&m_socket, &QTcpSocket::stateChanged, &loop,
                     [quit](QAbstractSocket::SocketState state) {
                         if (state == QAbstractSocket::ConnectedState
                             || state == QAbstractSocket::UnconnectedState)
                             quit();
                     });
    m_socket.connectToHost(m_host, quint16(m_port));
    poll.start(s_cancelInterval);
    if (m_socket.state() != QAbstractSocket::UnconnectedState
        && m_socket.state() != QAbstractSocket::ConnectedState)
        loop.exec();
    if (m_socket.state() == QAbstractSocket::ConnectedState) {
        m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
        return true;
    }
    if (isCancelled())
        fail(QString());
    else if (m_socket.state() != QAbstractSocket::UnconnectedState)
        fail(Trouble::silent(peer()));
    else
        fail(Trouble::unreachable(peer(), reason(m_socket)));
    m_socket.abort();
    return false;
}

bool TcpWire::write(const QByteArray &bytes)
{
    if (m_socket.state() != QAbstractSocket::ConnectedState)
        return false;
    m_socket.write(bytes);
    m_socket.flush();
    return true;
}

qint64 TcpWire::receive(char *into, qint64 maximum, int milliseconds)
{
    if (m_socket.bytesAvailable() == 0 && m_socket.state() == QAbstractSocket::ConnectedState)
        m_socket.waitForReadyRead(milliseconds);
    if (m_socket.bytesAvailable() > 0)
        return m_socket.read(into, maximum);
    return m_socket.state() == QAbstractSocket::ConnectedState ? 0 : -1;
}

} // namespace Panel
