// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <panel/files/samples.h>
#include <panel/touchstone/touchstone.h>

#include <algorithm>
#include <cmath>

using namespace VnaTest;
using namespace Panel;

namespace
{

double decibel(const Parameter &parameter, int i)
{
    return 20.0 * std::log10(std::hypot(parameter.real.at(i), parameter.imag.at(i)));
}

/// Largest and smallest level of a parameter between two frequencies in GHz.
std::pair<double, double> levels(const Network &network, int to, int from, double low, double high)
{
    std::pair<double, double> result{-999.0, 999.0};
    for (int i = 0; i < network.points(); ++i) {
        const double gigahertz = network.frequencies.at(i) / 1e9;
        const double level = decibel(network.s(to, from), i);
        if (gigahertz >= low && gigahertz <= high)
            result = {std::max(result.first, level), std::min(result.second, level)};
    }
    return result;
}

Network sample(const char *name)
{
    return readTouchstone(sampleFolder() + QLatin1Char('/') + QLatin1String(name)).network;
}

} // namespace

class SamplesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void allOpen()
    {
        const QFileInfoList files = QDir(sampleFolder()).entryInfoList();
        QCOMPARE(files.size(), 4);
        for (const QFileInfo &file : files) {
            const TouchstoneResult result = readTouchstone(file.filePath());
            QVERIFY2(result.ok(), qPrintable(result.sentence(file.fileName())));
            QVERIFY(result.network.points() > 200);
        }
        QVERIFY(readTouchstone(startSample()).ok());
    }

    void passiveNetworksStayPassive()
    {
        for (const char *name : {"antenna.s1p", "band-pass.s2p", "matched-load.s1p"}) {
            const Network network = sample(name);
            for (int i = 0; i < network.frequencies.size(); ++i) {
                for (int from = 1; from <= network.ports; ++from) {
                    double power = 0.0;
                    for (int to = 1; to <= network.ports; ++to)
                        power += std::pow(10.0, decibel(network.s(to, from), i) / 10.0);
                    // The files are rounded to six digits or so.
                    QVERIFY2(power <= 1.0 + 1e-6, name);
                }
            }
        }
    }

    void networksAreWhatTheyAreCalled()
    {
        // Between two frequencies in GHz the levels lie between two in dB.
        const std::tuple<const char *, int, int, double, double, double, double> rows[] = {
            {"band-pass.s2p", 2, 1, 2.4, 2.5, -2.0, 1.0},
            {"band-pass.s2p", 1, 1, 2.4, 2.5, -999.0, -12.0},
            {"band-pass.s2p", 2, 1, 2.3, 2.34, -999.0, -30.0},
            {"band-pass.s2p", 2, 1, 2.56, 2.6, -999.0, -30.0},
            {"antenna.s1p", 1, 1, 3.0, 4.8, -3.0, 1.0},
            {"matched-load.s1p", 1, 1, 0.0, 9.0, -999.0, -28.0},
            {"amplifier.s2p", 2, 1, 0.5, 6.0, 11.0, 99.0},
            {"amplifier.s2p", 1, 2, 0.5, 6.0, -999.0, -18.0},
            {"amplifier.s2p", 1, 1, 0.0, 9.0, -999.0, 0.0},
            {"amplifier.s2p", 2, 2, 0.0, 9.0, -999.0, 0.0},
        };
        for (const auto &[file, to, from, low, high, least, most] : rows) {
            const auto [highest, lowest] = levels(sample(file), to, from, low, high);
            QVERIFY2(lowest > least && highest < most, file);
        }
        // The antenna resonates twice, and the filter is reciprocal.
        QVERIFY(levels(sample("antenna.s1p"), 1, 1, 2.35, 2.55).second < -12.0);
        QVERIFY(levels(sample("antenna.s1p"), 1, 1, 5.3, 5.7).second < -12.0);
        const Network filter = sample("band-pass.s2p");
        QCOMPARE(filter.s(2, 1).real, filter.s(1, 2).real);
    }
};

QTEST_GUILESS_MAIN(SamplesTest)
#include "tst_samples.moc"
