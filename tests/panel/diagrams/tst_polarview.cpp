// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <panel/diagrams/markerreading.h>
#include <panel/diagrams/polarlines.h>
#include <panel/diagrams/polarview.h>
#include <panel/files/viewstate.h>

#include <QRandomGenerator>

#include <cmath>

using namespace VnaTest;
using namespace Panel;

class PolarViewTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// Wherever the view lies: labels are inside, and stand at what they say.
    void linesOfAnyView()
    {
        QRandomGenerator random(3);
        const QSizeF label(40.0, 14.0);
        const QRectF whole(0.0, 0.0, 500.0, 400.0);
        int inner = 0;
        for (int i = 0; i < 2000; ++i) {
            PolarPlace place{{}, 0.0, whole.adjusted(30, 20, -30, -20), whole};
            place.radius = 170.0 * std::pow(200.0, i == 0 ? 0.0 : random.generateDouble());
            const double away = (place.radius - 170.0) / place.radius * random.generateDouble();
            place.centre = whole.center()
                - (PolarPlace{{}, place.radius, {}, {}}.at(away, 360.0 * random.generateDouble()));
            const PolarLines lines = polarLines(place, 5, label);
            if (i == 0) {
                QCOMPARE(int(lines.circles.size()), 5);
                QCOMPARE(int(lines.rays.size()), 12);
            }
            QVERIFY2(lines.circles.size() + lines.rays.size() >= 4, qPrintable(QString::number(i)));
            QVERIFY(lines.circles.size() + lines.rays.size() < 200);
            for (const PolarLines::Ray &ray : lines.rays) {
                QRectF box(QPointF(), label);
                box.moveCenter(ray.label);
                const QPointF aside = ray.label - place.centre;
                const double found = qRadiansToDegrees(std::atan2(-aside.y(), aside.x()));
                QVERIFY(!ray.isLabelled
                        || (whole.contains(box)
                            && std::abs(std::remainder(found - ray.degrees, 360.0)) < 1e-6));
                QVERIFY(place.seen.adjusted(-1, -1, 1, 1).contains(ray.line.center()));
            }
            for (const PolarLines::Circle &circle : lines.circles) {
                const QPointF aside = circle.label - place.centre;
                const double found = std::hypot(aside.x(), aside.y()) / place.radius;
                // Beside the axis they stand below their line's end, to the left of it.
                QVERIFY(std::abs(found - circle.share) * place.radius < 0.6 * label.width() + 5.0);
                QVERIFY(!circle.isLabelled || place.seen.contains(circle.label));
                inner += circle.isLabelled ? 1 : 0;
            }
        }
        QVERIFY(inner > 6000);
    }

    /// The gain of an amplifier, which a Smith chart has no room for.
    void aGainInItsScale()
    {
        PanelDesk desk;
        desk.openSamples({"amplifier.s2p"_s});
        desk.model.setActiveTrace(3);
        desk.model.setTraceFormat(3, TraceFormat::Polar);
        desk.settle();
        const Trace *trace = desk.model.trace(3);
        const TraceData data = desk.model.traceData(*trace);
        const std::complex<double> gain = data.at(100.0);
        QVERIFY(std::abs(gain) > 2.0);
        // The highest gain, 4.17, in divisions of 1.
        QCOMPARE(trace->scale, (Scale{1.0, 5.0, 5}));
        const auto *view = qobject_cast<const PolarView *>(desk.window.diagrams()->activeView());
        QVERIFY(view);
        QCOMPARE(int(desk.window.diagrams()->views().size()), 3);
        QVERIFY(view->title().contains("full scale 5"_s));

        desk.model.addMarker(3, 100.0);
        desk.settle();
        const auto placed = [&] {
            return view->drawnMarker(3, 1)->getTracer()->position->coords();
        };
        QVERIFY(std::abs(placed().x() - gain.real() / 5.0) < 1e-9);
        QVERIFY(std::abs(placed().y() - gain.imag() / 5.0) < 1e-9);
        const MarkerReading reading = readMarker(desk.model, *desk.model.marker(3, 1));
        QVERIFY(std::abs(reading.numbers.at(0) - std::abs(gain)) < 1e-12);
        QVERIFY(std::abs(reading.numbers.at(1) - std::arg(gain) * 45.0 / std::atan(1.0)) < 1e-9);

        // Only the division counts, and everything goes along.
        desk.model.setTraceScale(3, {2.0, 7.0, 1});
        desk.model.setZoom(view->id(), {4.0, 0.5, 0.25});
        desk.settle();
        QCOMPARE(desk.model.trace(3)->scale, (Scale{2.0, 10.0, 5}));
        QVERIFY(std::abs(placed().x() - gain.real() / 10.0) < 1e-9);
        desk.model.setLimits(3, {{TraceFormat::Polar, true, 1e9, 2e9, 1.0, 1.0}});
        QVERIFY(desk.model.trace(3)->limits.isEmpty());

        const QJsonObject state = viewState(desk.model);
        QVERIFY(isViewState(state));
        desk.model.setTraceFormat(3, TraceFormat::LogMagnitude);
        desk.model.setZoom({DiagramKind::Polar, 0}, Zoom());
        restoreViewState(&desk.model, state);
        desk.settle();
        QCOMPARE(desk.model.trace(3)->format, TraceFormat::Polar);
        QCOMPARE(desk.model.trace(3)->scale.top, 10.0);
        QCOMPARE(desk.model.zoom({DiagramKind::Polar, 0}).factor, 4.0);
        desk.model.fitTrace(3);
        QCOMPARE(desk.model.trace(3)->scale.top, 5.0);
        desk.checkRules();
    }
};

QTEST_MAIN(PolarViewTest)
#include "tst_polarview.moc"
