// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The bytes of a Touchstone file: a network that can be drawn, or a reason that can be read.
#include "input.h"

#include <panel/files/touchstone.h>

#include <algorithm>
#include <cmath>

namespace
{

bool allFinite(const QVector<double> &values)
{
    return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
}

/// "nan" in a file is a point without a value.
bool noneInfinite(const QVector<double> &values)
{
    return std::none_of(values.begin(), values.end(), [](double v) { return std::isinf(v); });
}

} // namespace

void Fuzz::run(Input &input)
{
    const int ports = input.flag() ? 2 : 1;
    const QByteArray text = input.rest();
    const Panel::TouchstoneResult result = Panel::parseTouchstone(text, ports);
    const Panel::Network &network = result.network;
    if (!result.ok()) {
        FUZZ_CHECK(network.frequencies.isEmpty() && network.parameters.isEmpty());
        FUZZ_CHECK(result.line >= 0 && result.line <= text.size() + 1);
        const QString sentence = result.sentence(QStringLiteral("a.s2p"));
        FUZZ_CHECK(sentence.size() < 200 && sentence.endsWith(QLatin1Char('.')));
        FUZZ_CHECK(std::all_of(sentence.begin(), sentence.end(),
                               [](QChar c) { return c.isPrint() || c.isSurrogate(); }));
        return;
    }
    FUZZ_CHECK(network.ports == ports && network.points() > 0);
    FUZZ_CHECK(std::isfinite(network.referenceOhms) && network.referenceOhms > 0.0);
    FUZZ_CHECK(allFinite(network.frequencies) && network.frequencies.first() >= 0.0);
    FUZZ_CHECK(std::is_sorted(network.frequencies.begin(), network.frequencies.end()));
    FUZZ_CHECK(network.parameters.size() == ports * ports);
    for (const Panel::Parameter &parameter : network.parameters) {
        FUZZ_CHECK(parameter.real.size() == network.points() && noneInfinite(parameter.real));
        FUZZ_CHECK(parameter.imag.size() == network.points() && noneInfinite(parameter.imag));
    }
}
