// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <smithchart/columnextremes.h>

#include <tracesamples.h>
#include <vnatest.h>

#include <cmath>

using namespace VnaTest;
using namespace SmithRender;
using namespace TraceSamples;

class tst_ColumnExtremes : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// Each column keeps its ends and the extremes that a look at every point finds.
    void keepsWhatALookAtEveryPointFinds()
    {
        Random random(5);
        for (int round = 0; round < 400; ++round) {
            const Kind kind = static_cast<Kind>(round / 2 % KindCount);
            if (kind == Huge) // their sums overflow
                continue;
            const int count = uniformInt(random, 1, 900);
            Trace trace = randomTrace(random, kind, count);
            if (round % 4 == 0)
                punchGaps(random, trace, 0.3);
            const int first = uniformInt(random, 0, count - 1);
            const int part = uniformInt(random, 1, count - first);
            const int columns = uniformInt(random, 1, part);
            const bool phase = round % 2;
            const auto value = [&](int i) {
                // A zero has no sign here.
                const double re = trace.real[i] + 0.0, im = trace.imag[i];
                if (phase)
                    return std::isfinite(re + im) ? std::atan2(im, re) : notANumber;
                return re * re + im * im;
            };
            const QVector<int> kept =
                columnExtremes(trace.real, trace.imag, first, part, columns,
                               phase ? ColumnValue::Phase : ColumnValue::Magnitude);
            QVERIFY(std::is_sorted(kept.begin(), kept.end()));
            QVERIFY(std::adjacent_find(kept.begin(), kept.end()) == kept.end());
            QVERIFY(kept.size() <= 4 * columns);
            for (int column = 0; column < columns; ++column) {
                const int begin = first + int(qint64(part) * column / columns);
                const int end = first + int(qint64(part) * (column + 1) / columns);
                QVERIFY(kept.contains(begin) && kept.contains(end - 1));
                double low = infinity, high = -infinity;
                for (int i = begin; i < end; ++i) {
                    low = std::fmin(low, value(i));
                    high = std::fmax(high, value(i));
                }
                double keptLow = infinity, keptHigh = -infinity;
                for (const int i : kept) {
                    if (i >= begin && i < end) {
                        keptLow = std::fmin(keptLow, value(i));
                        keptHigh = std::fmax(keptHigh, value(i));
                    }
                }
                // The order by angle is another function than the arc tangent, within rounding.
                const double slack = phase ? 1e-12 : 0.0;
                QVERIFY(keptLow - low <= slack || keptLow == low);
                QVERIFY(high - keptHigh <= slack || keptHigh == high);
            }
        }
    }

    void ofEqualPointsTheEarlierOneIsKept()
    {
        const QVector<double> real{0.5, 0.9, 0.1, 0.9, 0.1, 0.5};
        const QVector<double> zero(6, 0.0);
        QCOMPARE(columnExtremes(real, zero, 0, 6, 1, ColumnValue::Magnitude),
                 (QVector<int>{0, 1, 2, 5}));
    }

    void oddRequestsKeepWhatThereIs()
    {
        const QVector<double> values{1.0, 2.0, 3.0};
        const auto kept = [&](int first, int count, int columns) {
            return columnExtremes(values, values.mid(0, 2), first, count, columns,
                                  ColumnValue::Magnitude);
        };
        QCOMPARE(kept(-5, 100, 100), (QVector<int>{0, 1}));
        QCOMPARE(kept(0, 2, 0), (QVector<int>{0, 1}));
        QCOMPARE(kept(1, 1, 5), (QVector<int>{1}));
        QVERIFY(kept(2, 5, 5).isEmpty());
        QVERIFY(kept(0, 0, 5).isEmpty());
        QVERIFY(
            kept(std::numeric_limits<int>::max(), std::numeric_limits<int>::max(), 5).isEmpty());
    }
};

QTEST_APPLESS_MAIN(tst_ColumnExtremes)
#include "tst_columnextremes.moc"
