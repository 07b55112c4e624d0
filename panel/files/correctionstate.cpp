// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "correctionstate.h"

#include "viewstate.h"

namespace Panel
{

QJsonArray delayState(const Correction &correction)
{
    QJsonArray delays;
    for (const double delay : correction.delays)
        delays.append(delay);
    return delays;
}

Correction restoredCorrection(const QJsonObject &network)
{
    Correction correction;
    int port = 0;
    for (const QJsonValue delay : network["delays"_key].toArray())
        correction.setDelay(++port, delay.toDouble());
    const double ohms = network["referenceOhms"_key].toDouble();
    if (ohms >= Correction::smallestReference && ohms <= Correction::largestReference)
        correction.referenceOhms = ohms;
    return correction;
}

} // namespace Panel
