// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <smithchart/gridgeometry.h>
#include <smithchart/preset.h>
#include <smithchart/smithchartplot.h>

#include <vnatest.h>

#include <cmath>
#include <complex>

using namespace VnaTest;
using namespace SmithChart;

class tst_GridGeometry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // Every drawn point must have the resistance or reactance that its circle stands for.
    void circlesCarryTheirValue()
    {
        const GridValues values = gridValues(Detailed);
        const Grid grid = gridGeometry(values.resistances, values.reactances, 720);
        for (int side : {1, -1}) {
            const Runs &runs = side > 0 ? grid.impedance.circles : grid.admittance.circles;
            QCOMPARE(runs.x.size(), runs.y.size());
            for (int run = 0; run < runs.x.size(); ++run) {
                QCOMPARE(runs.x.at(run).size(), runs.y.at(run).size());
                for (int i = 0; i < runs.x.at(run).size(); ++i) {
                    const std::complex<double> g(runs.x.at(run).at(i) * side,
                                                 runs.y.at(run).at(i) * side);
                    QVERIFY(std::norm(g) <= 1.000001);
                    if (std::abs(1.0 - g) < 1e-6)
                        continue; // the open circuit lies on every circle
                    const std::complex<double> z = (1.0 + g) / (1.0 - g);
                    if (run < values.resistances.size()) {
                        QVERIFY(std::abs(z.real() - values.resistances.at(run))
                                < 1e-6 * std::norm(1.0 + z));
                        QCOMPARE(runs.x.at(run).size(), 721);
                    } else {
                        const bool known = std::any_of(
                            values.reactances.cbegin(), values.reactances.cend(), [z](double x) {
                                return std::abs(z.imag() - x) < 1e-6 * std::norm(1.0 + z);
                            });
                        QVERIFY(known);
                    }
                }
            }
        }
    }

    void circlesAreCutAtTheRimAndAtAngleZero()
    {
        const auto runsOf = [](double cx, double cy, double radius) {
            Runs runs;
            appendCircleInsideUnitDisk(cx, cy, radius, 720, runs);
            return runs.x.size();
        };
        QCOMPARE(runsOf(0.5, 0.0, 0.5), 1); // wholly inside
        QCOMPARE(runsOf(1.0, 0.5, 0.5), 1); // one arc that does not span angle 0
        QCOMPARE(runsOf(1.0, -0.5, -0.5), 2); // the walk starts inside the disk
        QCOMPARE(runsOf(1.0, 10.0, 0.05), 0); // far outside
        QCOMPARE(runsOf(2.0, 0.0, -1.0),
                 2); // touches the disk in the point where the walk starts and ends
        Runs none;
        appendCircleInsideUnitDisk(0.0, 0.0, 1.0, 0, none);
        QVERIFY(none.x.isEmpty());
    }

    void labels()
    {
        const Grid grid = gridGeometry({0, 0.5}, {-0.2, 10}, 36);
        QCOMPARE(grid.impedance.labels.text, (QVector<QString>{"0"_s, "0.5"_s, "-0.2"_s, "10"_s}));
        QCOMPARE(grid.impedance.labels.x.at(1), -1.0 / 3.0);
        QCOMPARE(grid.impedance.labels.y.at(1), -0.03);
        QCOMPARE(grid.admittance.labels.x.at(1), 1.0 / 3.0);
        QCOMPARE(grid.admittance.labels.y.at(1), -0.03);
        // On the rim at the angle whose reflection coefficient has that reactance.
        const std::complex<double> jx(0.0, -0.2);
        const std::complex<double> g = (jx - 1.0) / (jx + 1.0);
        QVERIFY(std::abs(grid.impedance.labels.x.at(2) - g.real()) < 1e-15);
        QVERIFY(std::abs(grid.impedance.labels.y.at(2) - g.imag()) < 1e-15);
        QVERIFY(std::abs(grid.admittance.labels.x.at(2) + g.real()) < 1e-15);
        QVERIFY(std::abs(grid.admittance.labels.y.at(2) + g.imag()) < 1e-15);
        QCOMPARE(grid.boundaryX.size(), 37);
        QCOMPARE(gridGeometry({}, {}, 1).boundaryX.size(), 2);
        QVERIFY(gridGeometry({}, {}, 0).boundaryX.isEmpty());
        QCOMPARE(grid.realAxisX, (QVector<double>{-1.0, 1.0}));
    }

    void labelAlignments()
    {
        QCOMPARE(int(labelAlignment(0.8, -0.03)), 36); // real axis
        QCOMPARE(int(labelAlignment(0.0, 1.0)), 4 | 192); // top
        QCOMPARE(int(labelAlignment(-0.6, -0.8)), 6 | 160); // bottom left
        QCOMPARE(int(labelAlignment(0.99, 0.1)), 5 | 128); // right, middle
        for (const double side : {0.1, -0.1})
            QCOMPARE(int(labelAlignment(side, -side)), 132); // centre
    }

    void listsOfTheGrid()
    {
        const Grid grid = gridGeometry({0.0, 1.0}, {-1.0, 1.0}, 24);
        QVector<QVector<double>> runs[4];
        QVector<double> lists[8];
        QVector<QString> texts[2];
        runs[0].resize(9); // of whatever was there nothing stays
        SmithChartPlot::generateSmithChartGridExtended(
            runs[0], runs[1], runs[2], runs[3], lists[0], lists[1], lists[2], lists[3], lists[4],
            lists[5], texts[0], lists[6], lists[7], texts[1], {0.0, 1.0}, {-1.0, 1.0}, 24);
        const auto &[z, y] = std::tie(grid.impedance, grid.admittance);
        QVERIFY(runs[0] == z.circles.x && runs[1] == z.circles.y);
        QVERIFY(runs[2] == y.circles.x && runs[3] == y.circles.y);
        QVERIFY(lists[0] == grid.boundaryX && lists[1] == grid.boundaryY);
        QVERIFY(lists[2] == grid.realAxisX && lists[3] == grid.realAxisY);
        QVERIFY(lists[4] == z.labels.x && lists[5] == z.labels.y && texts[0] == z.labels.text);
        QVERIFY(lists[6] == y.labels.x && lists[7] == y.labels.y && texts[1] == y.labels.text);
    }
};

QTEST_APPLESS_MAIN(tst_GridGeometry)
#include "tst_gridgeometry.moc"
