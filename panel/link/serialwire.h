// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "wire.h"

#include <QStringList>

#include <memory>

namespace Panel
{

/// The serial ports that the system knows, by their paths; those of small analysers first.
QStringList serialPorts();

/// A wire over a serial port, which may be a pseudo terminal, too. A program that was built without
/// serial ports gets one that does not open.
std::unique_ptr<Wire> makeSerialWire(const QString &path);

} // namespace Panel
