// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <panel/window/exports.h>
#include <panel/window/thinnedline.h>

#include <QLineF>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <map>

using namespace VnaTest;
using namespace Panel;

class ExportsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    /// Of noise, a picture has few lines, and they are where the noise is, to half a pixel.
    void thinsLinesOfPictures()
    {
        QRandomGenerator random(3);
        QPolygonF line;
        for (int i = 0; i < 40000; ++i) {
            const double angle = i / 4000.0, noise = i < 30000 ? 3.0 : 0.0;
            line << QPointF(100.0 + 80.0 * std::cos(angle) + noise * random.generateDouble(),
                            100.0 + 8.0 * angle * std::sin(angle)
                                + noise * random.generateDouble());
        }
        line << QPointF(20.0, 20.0) << QPointF(qQNaN(), 0.0) << QPointF(190.0, 15.0);
        QPolygonF drawn;
        int points = 0;
        const auto sample = [](QPolygonF &samples, const QPolygonF &stretch) {
            for (int i = 1; i < stretch.size(); ++i) {
                const QLineF part(stretch.at(i - 1), stretch.at(i));
                for (int k = 0; std::isfinite(part.length()) && k <= part.length() * 20.0; ++k)
                    samples << part.pointAt(k / std::max(1.0, part.length() * 20.0));
            }
        };
        for (const QPolygonF &stretch : thinnedLine(line, QRectF(0, 0, 200, 200))) {
            sample(drawn, stretch);
            points += int(stretch.size());
        }
        QVERIFY2(points < 4000, qPrintable(QString::number(points)));
        QPolygonF wanted;
        sample(wanted, line);
        // The farthest that any of some points is from its nearest of others.
        const auto farthest = [](const QPolygonF &some, const QPolygonF &others) {
            std::map<std::pair<int, int>, QPolygonF> boxes;
            for (const QPointF &point : others)
                boxes[{int(point.x()), int(point.y())}] << point;
            double result = 0.0;
            for (int i = 0; i < some.size(); i += 7) {
                double nearest = 2.0;
                for (int x = -1; x <= 1; ++x) {
                    for (int y = -1; y <= 1; ++y) {
                        const auto box =
                            boxes.find({int(some.at(i).x()) + x, int(some.at(i).y()) + y});
                        for (int k = 0; box != boxes.end() && k < box->second.size(); k += 3)
                            nearest =
                                std::min(nearest, QLineF(some.at(i), box->second.at(k)).length());
                    }
                }
                result = std::max(result, nearest);
            }
            return result;
        };
        QVERIFY2(farthest(wanted, drawn) < 0.55,
                 qPrintable(QString::number(farthest(wanted, drawn))));
        QVERIFY2(farthest(drawn, wanted) < 0.55,
                 qPrintable(QString::number(farthest(drawn, wanted))));
        QVERIFY(thinnedLine({}, QRectF(0, 0, 200, 200)).isEmpty());
    }

    void picturesStaySmall()
    {
        ChartDesk desk;
        Network network;
        network.ports = 1;
        network.parameters.resize(1);
        QRandomGenerator random(3);
        constexpr int points = 1000000;
        for (int i = 0; i < points; ++i) {
            const double angle = 40.0 * i / points, size = 0.6 + 0.3 * std::sin(9.0 * i / points);
            network.frequencies << 1e9 + 1e3 * i;
            network.parameters[0].real << size * std::cos(angle) + 0.01 * random.generateDouble();
            network.parameters[0].imag << size * std::sin(angle) + 0.01 * random.generateDouble();
        }
        desk.show({network});
        const QTemporaryDir folder;
        for (const QString &name : {"a.pdf"_s, "a.svg"_s}) {
            const QString path = folder.filePath(name);
            const int plottables = desk.plot()->plottableCount();
            QCOMPARE(saveDiagram(desk.view(), path), QString());
            QVERIFY2(QFileInfo(path).size() < 200000,
                     qPrintable(QString::number(QFileInfo(path).size())));
            QCOMPARE(desk.plot()->plottableCount(), plottables);
            QVERIFY(desk.chart()->getCurve(1)->visible());
        }
    }
};

QTEST_MAIN(ExportsTest)
#include "tst_exports.moc"
