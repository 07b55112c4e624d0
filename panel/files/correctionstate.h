// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/correction.h>

#include <QJsonArray>
#include <QJsonObject>

namespace Panel
{

/// The delays of the ports, as a state keeps them under "delays".
QJsonArray delayState(const Correction &correction);
/// What is done to a network, from its state; what cannot be is left out.
Correction restoredCorrection(const QJsonObject &network);

} // namespace Panel
