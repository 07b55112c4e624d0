// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <smithchart/tracewords.h>

#include <vnatest.h>

using namespace SmithChart;
using namespace VnaTest;

/// The words for points, features and whole traces; what a reader makes of them is tried with it.
class tst_TraceWords : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void valuesOfAPoint()
    {
        const auto texts = [](const std::complex<double> &reflection) {
            const PointValues point{2e9, reflection, 50.0 * normalisedImpedance(reflection),
                                    "\u03a9"_s};
            QStringList found;
            for (int column = 0; column < pointColumns({}).size(); ++column)
                found << pointValue(point, PointColumn(column));
            return found.join(u' ');
        };
        QCOMPARE(texts({0.0, 0.5}), "2000000000 30 40 0.5 90 3"_s);
        QCOMPARE(texts({1.0, 0.0}), "2000000000 infinite 0 1 0 infinite"_s); // open
        QCOMPARE(texts({-1.0, 0.0}), "2000000000 0 0 1 180 infinite"_s); // short
        QCOMPARE(texts({qQNaN(), 0.0}), "2000000000 \u2013 \u2013 \u2013 \u2013 \u2013"_s); // a gap
        QCOMPARE(pointColumns({}).at(1), "Resistance"_s);
        QCOMPARE(pointColumns("\u03a9"_s).at(2), "Reactance (\u03a9)"_s);
    }

    void frequencies()
    {
        const std::pair<double, QString> rows[] = {
            {2.4e9, "2.4 GHz"_s},
            {-1e6, "-1 MHz"_s},
            {999.0, "999 Hz"_s},
            {0.0, "0 Hz"_s},
            {-qInf(), "minus infinite GHz"_s},
            {1500.0, "1.5 kHz"_s},
        };
        for (const auto &[hertz, text] : rows)
            QCOMPARE(hertzText(hertz), text);
    }

    void placesAndWholeTraces()
    {
        const auto seconds = [](double value) { return QString::number(value) + u's'; };
        const PointValues match{1.0, {0.0, 0.0}, {1.0, 0.0}, {}};
        QCOMPARE(placeText({}, 2.0, match, seconds), "1s, 1 + j0, VSWR 1"_s);
        // From a match nothing can be told in decibels, nor can less than a decimal.
        const PointValues point{2.0, {0.5, 0.0}, {3.0, 0.0}, {}};
        const QString plain = "Minimum, marker: 2s, 3 + j0, VSWR 3"_s;
        const TraceFeatures there = Minimum | MarkedPoint;
        QCOMPARE(placeText(there, 2.0, point, seconds, match.reflection), plain);
        QCOMPARE(placeText(there, 2.0, point, seconds, {{0.501, 0.0}}), plain);
        QCOMPARE(placeText(there, 2.0, point, seconds, {{0.25, 0.0}}),
                 plain + ", 6.0 dB more reflection"_s);

        const QVector<double> stimulus{1.0, 2.0, 3.0}, flat(3, 0.0);
        const QVector<double> far{0.9, 0.5, 0.9};
        QCOMPARE(summaryText("A"_s, summarise(far, flat), stimulus, seconds, 2.0),
                 "A from 1s to 3s: best match at 2s with a VSWR of 3; VSWR nowhere below 2; "
                 "0 loop(s)."_s);
        QCOMPARE(summaryText("A"_s, summarise({}, {}), stimulus, seconds, 2.0), "A: no points."_s);
        QCOMPARE(summaryText("A"_s, summarise(far, flat), {1.0, 2.0}, seconds, 2.0),
                 "A: no points."_s);
    }
};

QTEST_MAIN(tst_TraceWords)
#include "tst_tracewords.moc"
