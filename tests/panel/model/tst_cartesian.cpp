// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "slope.h"
#include "vnatest.h"

#include <panel/files/samples.h>
#include <panel/model/cartesian.h>
#include <panel/touchstone/touchstone.h>

#include <QRandomGenerator>

#include <algorithm>
#include <cmath>

using namespace VnaTest;
using namespace Panel;

class CartesianTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsDecibelsAndDegrees()
    {
        const auto value = [](double real, double imag, TraceFormat format) {
            return formatValue({real, imag}, 50.0, format);
        };
        QCOMPARE(value(0.0, -0.1, TraceFormat::LogMagnitude), -20.0);
        QCOMPARE(value(0.0, 0.0, TraceFormat::LogMagnitude), -300.0);
        QCOMPARE(value(-1.0, 0.0, TraceFormat::Phase), 180.0);
        QCOMPARE(value(1.0, -1.0, TraceFormat::Phase), -45.0);
        // 50 + j100 ohms.
        QCOMPARE(value(0.5, 0.5, TraceFormat::Resistance), 50.0);
        QCOMPARE(value(0.5, 0.5, TraceFormat::Reactance), 100.0);
        QCOMPARE(value(0.5, 0.5, TraceFormat::Quality), 2.0);
        QVERIFY(std::isnan(value(1.0, 0.0, TraceFormat::Reactance)));
        // What reflects nothing is the conjugate of its reference.
        QCOMPARE(formatValue(0.0, {40.0, -10.0}, TraceFormat::Reactance), 10.0);
        QCOMPARE(cartesianText(-1.324, TraceFormat::LogMagnitude), "\u22121.32 dB"_s);
        QCOMPARE(cartesianText(90.0, TraceFormat::Phase), "90.0\u00b0"_s);
    }

    /// A line of 3 ns and 20 degrees: its phase and its delay are known everywhere.
    void unwrapsAndDelays()
    {
        constexpr double delay = 3e-9, offset = 20.0;
        TraceData line;
        QRandomGenerator random(1);
        double hertz = 1e9;
        for (int i = 0; i < 2000; ++i) {
            hertz += random.bounded(0.2 / delay); // two are less than half a turn
            const double angle = offset / 180.0 * M_PI - 2.0 * M_PI * delay * (hertz - 1e9);
            line.frequencies << hertz;
            line.parameter.real << 0.7 * std::cos(angle);
            line.parameter.imag << 0.7 * std::sin(angle);
        }
        const QVector<double> phases = formatValues(line, TraceFormat::UnwrappedPhase);
        const QVector<double> delays = formatValues(line, TraceFormat::GroupDelay);
        const double turns = std::round(
            (phases.first() - offset + 360.0 * delay * (line.frequencies.first() - 1e9)) / 360.0);
        for (int i = 0; i < phases.size(); ++i) {
            const double wanted =
                offset + 360.0 * turns - 360.0 * delay * (line.frequencies.at(i) - 1e9);
            QVERIFY2(std::abs(phases.at(i) - wanted) < 1e-6, qPrintable(QString::number(i)));
            QCOMPARE(formatValueAt(line, i, TraceFormat::UnwrappedPhase), phases.at(i));
            if (i > 0 && i + 1 < phases.size())
                QVERIFY(std::abs(delays.at(i) - 3.0) < 1e-6);
        }
        // The phase of one turn is not joined where it jumps.
        const CartesianLine drawn = cartesianLine(line, TraceFormat::Phase, 4000);
        for (int i = 1; i < drawn.values.size(); ++i)
            QVERIFY(!(std::abs(drawn.values.at(i) - drawn.values.at(i - 1)) > 180.0));
        QVERIFY(drawn.values.size() > line.points());
    }

    void thinsWithoutLosingPeaks()
    {
        constexpr int columns = 100;
        QVERIFY(cartesianLine({}, TraceFormat::Phase, columns).values.isEmpty());
        for (const int points : {400, 100003}) { // few are all drawn
            const Network network = slope(points);
            const TraceData data = traceData(network, 2, 1);
            for (const auto format :
                 {TraceFormat::LogMagnitude, TraceFormat::Phase, TraceFormat::RealPart,
                  TraceFormat::ImaginaryPart, TraceFormat::UnwrappedPhase, TraceFormat::GroupDelay,
                  TraceFormat::Resistance, TraceFormat::Reactance, TraceFormat::Quality}) {
                const CartesianLine line = cartesianLine(data, format, columns);
                QCOMPARE(line.values.size(), line.frequencies.size());
                QVERIFY(line.values.size() <= 400 + 10); // and where the phase jumps
                // Both ends, and the extremes of the whole.
                QCOMPARE(line.frequencies.first(), network.frequencies.first());
                QCOMPARE(line.frequencies.last(), network.frequencies.last());
                QVERIFY(std::is_sorted(line.frequencies.begin(), line.frequencies.end()));
                const QVector<double> all = formatValues(data, format);
                auto drawn = line.frequencies.begin();
                for (int column = 0; column < columns; ++column) {
                    const int begin = int(qint64(points) * column / columns);
                    const int end = int(qint64(points) * (column + 1) / columns);
                    const auto first = drawn;
                    while (drawn != line.frequencies.end()
                           && *drawn <= network.frequencies.at(end - 1))
                        ++drawn;
                    const auto from = int(first - line.frequencies.begin());
                    const auto count = int(drawn - first);
                    const ValueRange shown = valueRange(line.values.mid(from, count));
                    const ValueRange wanted = valueRange(all.mid(begin, end - begin));
                    const double rounding =
                        1e-6 * (std::abs(wanted.lowest) + std::abs(wanted.highest));
                    QVERIFY(std::abs(shown.lowest - wanted.lowest) <= rounding);
                    QVERIFY(std::abs(shown.highest - wanted.highest) <= rounding);
                }
            }
        }
    }

    /// Each decade of a logarithmic diagram has its share of the points, and their extremes.
    void thinsByDecades()
    {
        TraceData data;
        for (int i = 1; i <= 1000000; ++i) {
            data.frequencies << 1e3 * i;
            data.parameter.real << (i == 5 || i == 777777 ? 1.0 : 0.1);
            data.parameter.imag << 0.0;
        }
        const CartesianLine line = cartesianLine(data, TraceFormat::LinearMagnitude, 600, 1e3, 1e9,
                                                 FrequencyScale::Logarithmic);
        QVERIFY(line.values.size() <= 4 * 600);
        QVERIFY(std::is_sorted(line.frequencies.begin(), line.frequencies.end()));
        for (double decade = 1e3; decade < 1e9; decade *= 10.0) {
            const auto inside =
                std::count_if(line.frequencies.begin(), line.frequencies.end(), [=](double hertz) {
                    return hertz >= decade && hertz < 10.0 * decade;
                });
            QVERIFY2(inside >= (decade < 1e5 ? 9 : 100), qPrintable(QString::number(decade)));
        }
        QVERIFY(line.frequencies.contains(5e3) && line.frequencies.contains(777777e3));
        QCOMPARE(std::count(line.values.begin(), line.values.end(), 1.0), 2);
    }

    /// Every format of a filter, against values that another program has computed of the file by other
    /// ways: R and X from 1 - |S|^2, phases from the quotients of neighbours.
    void agreesWithOthers()
    {
        const Network filter = readTouchstone(sampleFolder() + "/band-pass.s2p"_s).network;
        struct {
            TraceFormat format;
            double s11; // at 2.35 GHz
            double s21; // at 2.475 GHz, beyond a turn
        } const rows[] = {
            {TraceFormat::LogMagnitude, -0.32215, -1.32463},
            {TraceFormat::Phase, 83.9968, -145.7443},
            {TraceFormat::Vswr, 53.93068631, 13.139846388},
            {TraceFormat::LinearMagnitude, 0.963590478577, 0.858555747699},
            {TraceFormat::RealPart, 0.100776154017, -0.709625306093},
            {TraceFormat::ImaginaryPart, 0.958306202205, -0.483270004096},
            {TraceFormat::UnwrappedPhase, 83.9968, -505.7443},
            {TraceFormat::GroupDelay, 2.59111111111, 9.47277777778},
            {TraceFormat::Resistance, 2.06992708198, 4.16431131362},
            {TraceFormat::Reactance, 55.4911152478, -15.3109496315},
            {TraceFormat::Quality, 26.808246402, 3.6767062975},
            {TraceFormat::Polar, 0.963590478577, 0.858555747699},
        };
        const TraceData s11 = traceData(filter, 1, 1), s21 = traceData(filter, 2, 1);
        for (const auto &row : rows) {
            const Row shown(formatName(row.format));
            const auto isNear = [](double found, double wanted) {
                return std::abs(found - wanted) <= 1e-9 * std::max(1.0, std::abs(wanted));
            };
            QVERIFY(isNear(formatValues(s11, row.format).at(200), row.s11));
            QVERIFY(isNear(formatValueAt(s21, 700, row.format), row.s21));
        }
    }
};

QTEST_GUILESS_MAIN(CartesianTest)
#include "tst_cartesian.moc"
