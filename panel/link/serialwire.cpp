// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "serialwire.h"

#include "linktrouble.h"

#include <QFileInfo>
#include <QSerialPort>
#include <QSerialPortInfo>

namespace Panel
{

namespace
{

constexpr int s_baudRate = 115200;
/// How small analysers show on USB.
constexpr quint16 s_vendor = 0x0483;
constexpr quint16 s_product = 0x5740;
/// What the port holds of what nobody has read yet, in bytes.
constexpr qint64 s_readBuffer = 1 << 20;

class SerialWire : public Wire
{
public:
    explicit SerialWire(const QString &path)
        : Wire(path)
    {
        m_port.setPortName(path);
        m_port.setBaudRate(s_baudRate);
        m_port.setReadBufferSize(s_readBuffer);
    }

    bool open() override
    {
        if (m_port.open(QIODevice::ReadWrite))
            return true;
        const bool refused = m_port.error() == QSerialPort::PermissionError;
        if (!QFileInfo::exists(peer()) || (isReadable() && !refused))
            fail(Trouble::noSuchPort(peer()));
        else if (isReadable())
            fail(Trouble::busy(peer()));
        else
            fail(Trouble::noPermission(peer()));
        return false;
    }

protected:
    bool write(const QByteArray &bytes) override
    {
        if (!m_port.isOpen() || m_port.write(bytes) != bytes.size())
            return false;
        // What nobody takes, nobody answers either.
        m_port.waitForBytesWritten(shortTime);
        return true;
    }

    qint64 receive(char *into, qint64 maximum, int milliseconds) override
    {
        if (m_port.bytesAvailable() == 0 && m_port.isOpen())
            m_port.waitForReadyRead(milliseconds);
        if (m_port.bytesAvailable() > 0)
            return m_port.read(into, maximum);
        const QSerialPort::SerialPortError error = m_port.error();
        m_port.clearError();
        return !m_port.isOpen() || error == QSerialPort::ResourceError
                || error == QSerialPort::ReadError
            ? -1
            : 0;
    }

private:
    bool isReadable() const
    {
        const QFileInfo port(peer());
        return port.isReadable() && port.isWritable();
    }

    QSerialPort m_port;
};

} // namespace

QStringList serialPorts()
{
    QStringList analysers, others;
    const auto ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &port : ports) {
        const bool analyser =
            port.vendorIdentifier() == s_vendor && port.productIdentifier() == s_product;
        (analyser ? analysers : others) << port.systemLocation();
    }
    return analysers + others;
}

std::unique_ptr<Wire> makeSerialWire(const QString &path)
{
    return std::make_unique<SerialWire>(path);
}

} // namespace Panel
