// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "linktrouble.h"
#include "serialwire.h"

namespace Panel
{

namespace
{

/// Stands where Qt has no serial ports.
class NoWire : public Wire
{
public:
    using Wire::Wire;

    bool open() override
    {
        fail(Trouble::noSerialPorts());
        return false;
    }

protected:
    bool write(const QByteArray &) override { return false; }
    qint64 receive(char *, qint64, int) override { return -1; }
};

} // namespace

QStringList serialPorts()
{
    return {};
}

std::unique_ptr<Wire> makeSerialWire(const QString &path)
{
    return std::make_unique<NoWire>(path);
}

} // namespace Panel
