// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "samples.h"

#include <panel/model/network.h>

// Outside the namespace, because the macro declares a global function.
static void registerSamples()
{
    Q_INIT_RESOURCE(samples);
}

namespace Panel
{

QString sampleFolder()
{
    registerSamples();
    return QStringLiteral(":/samples");
}

QString startSample()
{
    return sampleFolder() + QStringLiteral("/band-pass.s2p");
}

bool isSample(const Network &network)
{
    return network.path.startsWith(sampleFolder());
}

} // namespace Panel
