// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The bytes of a Touchstone file: a network that can be drawn and that comes back whole when it is
// written, or a reason that can be read. And any network: written and read, or a reason again.
#include "input.h"

#include <panel/touchstone/csvwriter.h>
#include <panel/touchstone/touchstone.h>
#include <panel/touchstone/touchstonewriter.h>
#include <tests/panel/touchstone/networks.h>

#include <QBuffer>

#include <algorithm>
#include <cmath>

using namespace Panel;

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

void checkSentence(const QString &sentence)
{
    FUZZ_CHECK(sentence.size() < 200 && sentence.endsWith(QLatin1Char('.')));
    FUZZ_CHECK(std::all_of(sentence.begin(), sentence.end(),
                           [](QChar c) { return c.isPrint() || c.isSurrogate(); }));
}

void checkNetwork(const Network &network)
{
    FUZZ_CHECK(network.ports > 0 && network.points() > 0);
    FUZZ_CHECK(network.references.isEmpty() || network.references.size() == network.ports);
    for (int port = 1; port <= network.ports; ++port) {
        const std::complex<double> ohms = network.reference(port);
        FUZZ_CHECK(ohms.real() > 0.0 && std::isfinite(ohms.real()) && std::isfinite(ohms.imag()));
    }
    FUZZ_CHECK(allFinite(network.frequencies) && network.frequencies.first() >= 0.0);
    FUZZ_CHECK(std::is_sorted(network.frequencies.begin(), network.frequencies.end()));
    FUZZ_CHECK(network.parameters.size() == network.ports * network.ports);
    for (const Parameter &parameter : network.parameters) {
        FUZZ_CHECK(parameter.real.size() == network.points() && noneInfinite(parameter.real));
        FUZZ_CHECK(parameter.imag.size() == network.points() && noneInfinite(parameter.imag));
    }
    const NoiseData &noise = network.noise;
    FUZZ_CHECK(std::is_sorted(noise.frequencies.begin(), noise.frequencies.end()));
    for (const QVector<double> &values :
         {noise.frequencies, noise.minimumFigure, noise.optimumMagnitude, noise.optimumDegrees,
          noise.resistance})
        FUZZ_CHECK(values.size() == noise.frequencies.size() && allFinite(values));
    for (int i = 0; i < network.comments.size(); ++i)
        FUZZ_CHECK(network.comments.at(i).points
                   >= (i > 0 ? network.comments.at(i - 1).points : 0));
}

/// Written in every form that can hold it, and read again.
void checkForms(const Network &network)
{
    for (const int version : {1, 2}) {
        const QString obstacle = touchstoneObstacle(network, version);
        if (!obstacle.isEmpty()) {
            checkSentence(obstacle + QLatin1Char('.'));
            continue;
        }
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        writeTouchstone(buffer, network, version);
        for (const int ports : {network.ports, 0}) {
            const TouchstoneResult again = parseTouchstone(buffer.data(), ports);
            FUZZ_CHECK(again.ok());
            FUZZ_CHECK(Networks::difference(again.network, network).isEmpty());
        }
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    writeCsv(buffer, network);
    FUZZ_CHECK(buffer.data().count('\n') == network.points() + 2);
}

/// Any doubles, anywhere; mostly a network that can be written.
Network anyNetwork(Fuzz::Input &input)
{
    Network network;
    network.ports = input.integer(1, 8);
    const int points = input.integer(1, 5);
    const auto sweep = [&input](int count) {
        QVector<double> values;
        for (int i = 0; i < count; ++i)
            values << std::abs(input.real());
        if (!input.flag())
            std::sort(values.begin(), values.end());
        return values;
    };
    const auto values = [&input](int count) {
        QVector<double> result;
        for (int i = 0; i < count; ++i)
            result << input.real();
        return result;
    };
    network.frequencies = sweep(points);
    QVector<std::complex<double>> references(network.ports, 50.0);
    if (input.byte() > 200)
        std::generate(references.begin(), references.end(), [&input] {
            const double real = input.real();
            return std::complex(real, input.flag() ? 0.0 : 1.0);
        });
    network.setReferences(references);
    network.noise.referenceOhms = network.reference(1).real();
    if (input.flag()) {
        const int count = input.integer(1, 4);
        network.noise = {sweep(count),  values(count), values(count),
                         values(count), values(count), network.noise.referenceOhms};
    }
    const int comments = input.integer(0, 3);
    for (int i = 0; i < comments; ++i)
        network.comments.append(
            {i * points / 3, QString(input.integer(0, 30), QChar(input.integer(32, 126)))});
    for (int i = 0; i < network.ports * network.ports; ++i)
        network.parameters.append({values(points), values(points)});
    return network;
}

} // namespace

void Fuzz::run(Input &input)
{
    const int kind = input.byte();
    if (kind & 0x80) {
        checkForms(anyNetwork(input));
        return;
    }
    // A digit is the number of ports that the file's name has.
    const int ports = kind % 16;
    const QByteArray text = input.rest();
    const TouchstoneResult result = parseTouchstone(text, ports);
    const Network &network = result.network;
    if (result.ok()) {
        checkNetwork(network);
        checkForms(network);
        return;
    }
    FUZZ_CHECK(network.frequencies.isEmpty() && network.parameters.isEmpty());
    FUZZ_CHECK(result.line >= 0 && result.line <= text.size() + 1);
    checkSentence(result.sentence(QStringLiteral("a.s2p")));
}
