// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <panel/files/history.h>

using namespace VnaTest;
using namespace Panel;

namespace
{

constexpr int s_trace = 3; ///< S21 in dB, from 0 to -100 dB over 2.3 to 2.6 GHz

/// One Cartesian diagram on show, and a finger for its limits.
struct LimitDesk : PanelDesk {
    explicit LimitDesk(const QVector<LimitLine> &limits = {})
    {
        openSamples({"band-pass.s2p"_s});
        model.setActiveTrace(s_trace);
        setLayout(Graph::LayoutType::Single);
        model.setTraceScale(s_trace, {10.0, 0.0, 0});
        model.setLimits(s_trace, limits);
        Q_EMIT keys().editLimits->statusChanged(true);
        settle();
    }

    QCustomPlot *plot() const { return window.cartesianView()->plot(); }
    /// A place in the diagram in pixels of the plot.
    QPoint at(double hertz, double value) const
    {
        return {qRound(plot()->xAxis->coordToPixel(hertz)),
                qRound(plot()->yAxis->coordToPixel(value))};
    }
    QVector<LimitLine> limits() const { return model.trace(s_trace)->limits; }
    LimitLine limit(int index = 0) const { return limits().value(index); }

    void drag(const QPoint &from, const QPoint &to)
    {
        mouseDrag(window.windowHandle(), plot()->mapTo(&window, from), plot()->mapTo(&window, to),
                  10);
        settle();
    }
    void tap(const QPoint &place)
    {
        mouseClick(plot(), place);
        // The next one is no second half of a double tap.
        QTest::qWait(QApplication::doubleClickInterval() + 50);
        settle();
    }
};

LimitLine flat(double start, double stop, double value, bool upper = true)
{
    return {TraceFormat::LogMagnitude, upper, start, stop, value, value};
}

} // namespace

class LimitEditorTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    void draggedEndIsOneStep_data()
    {
        QTest::addColumn<bool>("byTouch");
        row("mouse", false);
        row("touch", true);
    }

    /// By mouse and by finger: beyond the axis it stays at the edge, the verdict follows while it is
    /// dragged, and however long the finger rests, one step takes it back.
    void draggedEndIsOneStep()
    {
        QFETCH(bool, byTouch);
        const LimitLine before = flat(2.31e9, 2.36e9, -5.0);
        LimitDesk desk({before});
        const QLabel *verdict = desk.window.cartesianView()->verdict();
        QVERIFY(verdict->text().contains("PASS"_s));
        QTest::qWait(History::pause + 100); // the step of the line itself
        TouchScreen screen(&desk.window);
        const auto place = [&](const QPoint &p) { return desk.plot()->mapTo(&desk.window, p); };
        const auto move = [&](const QPoint &p) {
            if (byTouch)
                screen.move(place(p));
            else
                mouseMove(desk.plot(), p);
            desk.settle();
        };
        const QPoint start = desk.at(before.stop, -5.0) + QPoint(12, -12);
        if (byTouch)
            screen.press(place(start));
        else
            mousePress(desk.plot(), start);
        move(start + QPoint(30, 40));
        const QPoint beyond(desk.plot()->width() - 1, desk.at(2.5e9, -60.0).y() - 12);
        move(beyond + QPoint(0, -10));
        QVERIFY2(verdict->text().contains("FAIL"_s), qPrintable(verdict->text()));
        QTest::qWait(2 * History::pause);
        move(beyond);
        if (byTouch)
            screen.release(place(beyond));
        else
            mouseRelease(desk.plot(), beyond);
        desk.settle();
        QCOMPARE(desk.limit().start, before.start);
        QCOMPARE(desk.limit().startValue, before.startValue);
        QCOMPARE(desk.limit().stop, 2.6e9);
        QCOMPARE(desk.limit().stopValue, -60.0); // a division is near
        desk.press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.limits(), QVector<LimitLine>{before});
    }

    void escapeGivesADragUp()
    {
        const LimitLine before = flat(2.35e9, 2.5e9, -20.0);
        LimitDesk desk({before});
        mousePress(desk.plot(), desk.at(2.35e9, -20.0));
        mouseMove(desk.plot(), desk.at(2.40e9, -50.0));
        QVERIFY(desk.limit() != before);
        desk.press(Qt::Key_Escape);
        mouseMove(desk.plot(), desk.at(2.45e9, -70.0));
        mouseRelease(desk.plot(), desk.at(2.45e9, -70.0));
        QCOMPARE(desk.limit(), before);
        // A tap that trembles moves nothing, and an end goes past the other one.
        desk.drag(desk.at(2.5e9, -20.0), desk.at(2.5e9, -20.0) + QPoint(2, 3));
        QCOMPARE(desk.limit(), before);
        desk.drag(desk.at(2.5e9, -20.0), desk.at(2.33e9, -40.0));
        QCOMPARE(desk.limit().stop, 2.35e9);
        QCOMPARE(desk.limit().stopValue, -20.0);
        QCOMPARE(desk.limit().start, 2.33e9);
        QCOMPARE(desk.limit().startValue, -40.0);
    }

    /// What is dragged as a whole looks the same on a logarithmic axis.
    void wholeLinesKeepTheirLength()
    {
        LimitDesk desk({flat(2.35e9, 2.38e9, -20.0), flat(2.5e9, 2.55e9, -80.0)});
        desk.drag(desk.at(2.365e9, -20.0), desk.at(2.365e9, -20.0) + QPoint(70, 60));
        QVERIFY(desk.limit().start > 2.37e9);
        QVERIFY(std::abs(desk.limit().stop - desk.limit().start - 30e6) < 1.0);
        QCOMPARE(desk.limit().startValue, desk.limit().stopValue);
        QCOMPARE(desk.limit(1), flat(2.5e9, 2.55e9, -80.0));

        // Between its handles a line is taken, too.
        desk.model.setLimits(s_trace, {flat(2.4e9, 2.5e9, -50.0)});
        desk.drag(desk.at(2.425e9, -50.0), desk.at(2.425e9, -70.0));
        QVERIFY(desk.limit().startValue < -60.0);
        QCOMPARE(desk.limit().startValue, desk.limit().stopValue);

        Network wide;
        wide.ports = 1;
        wide.parameters.resize(1);
        for (int i = 0; i <= 500; ++i) {
            wide.frequencies << 1e6 * std::pow(1000.0, i / 500.0);
            wide.parameters[0].real << 0.5;
            wide.parameters[0].imag << 0.0;
        }
        desk.show({wide});
        desk.model.setActiveTrace(2);
        desk.model.viewSettings()->setFrequencyScale(FrequencyScale::Logarithmic);
        const LimitLine sloped{TraceFormat::LogMagnitude, true, 2e6, 30e6, -10.0, -40.0};
        desk.model.setTraceScale(2, {10.0, 0.0, 0});
        desk.model.setLimits(2, {sloped});
        desk.settle();
        const QCPAxis *axis = desk.plot()->xAxis;
        QCOMPARE(axis->scaleType(), QCPAxis::stLogarithmic);
        const auto seen = [&] {
            const LimitLine line = desk.model.trace(2)->limits.first();
            return axis->coordToPixel(line.stop) - axis->coordToPixel(line.start);
        };
        const double before = seen();
        // It is taken where it is drawn: bent.
        const QPoint grip = desk.at(10e6, sloped.valueAt(10e6));
        desk.drag(grip, grip + QPoint(100, 0));
        const LimitLine moved = desk.model.trace(2)->limits.first();
        QVERIFY(moved.start > 2.5e6);
        QVERIFY(std::abs(seen() - before) < 1e-6);
        QCOMPARE(moved.stopValue - moved.startValue, -30.0);
        // An end follows the finger over decades.
        desk.drag(desk.at(moved.stop, moved.stopValue), desk.at(400e6, -50.0));
        QVERIFY(std::abs(desk.model.trace(2)->limits.first().stop / 400e6 - 1.0) < 0.03);
    }

    /// Two taps reach what lies under another one, and then a drag moves that alone.
    void limitsOverEachOtherAreBothReached()
    {
        LimitDesk desk({flat(2.35e9, 2.5e9, -20.0, true), flat(2.35e9, 2.5e9, -20.0, false)});
        const QPoint end = desk.at(2.5e9, -20.0);
        desk.tap(end);
        const int first = desk.model.limitEditing()->limit();
        desk.tap(end);
        const int second = desk.model.limitEditing()->limit();
        QVERIFY(first >= 0 && second >= 0 && first != second);
        desk.drag(end, desk.at(2.45e9, -50.0));
        QCOMPARE(desk.limit(first), flat(2.35e9, 2.5e9, -20.0, first == 0));
        QCOMPARE(desk.limit(second).stopValue, -50.0);
        // In a magnified view the last one is drawn, too, although it begins before the others end.
        desk.model.setLimits(
            s_trace,
            {flat(2.3e9, 2.35e9, -70.0), flat(2.5e9, 2.6e9, -70.0), flat(2.3e9, 2.38e9, -90.0)});
        desk.model.setZoom(desk.window.cartesianView()->id(), {3.0, -0.6, 0.0});
        Q_EMIT desk.keys().editLimits->statusChanged(false);
        desk.settle();
        const QImage picture = desk.plot()->grab().toImage();
        QCOMPARE(picture.pixelColor(desk.at(2.34e9, -90.0)), currentLook().fail);
    }

    /// Two taps add a line that the trace keeps; keys turn and remove it.
    void doubleTapsAddAndKeysRemove()
    {
        LimitDesk desk;
        mouseDoubleClick(desk.plot(), desk.at(2.33e9, -20.0)); // above the trace
        mouseDoubleClick(desk.plot(), desk.at(2.45e9, -60.0)); // below it
        desk.settle();
        QCOMPARE(desk.limits().size(), 2);
        QVERIFY(desk.limit(0).upper && !desk.limit(1).upper);
        QCOMPARE(desk.limit(1).startValue, -60.0);
        QCOMPARE(desk.model.markers().size(), 0);
        // On a limit that is there, nothing is added.
        mouseDoubleClick(desk.plot(), desk.at(2.45e9, -60.0));
        QCOMPARE(desk.limits().size(), 2);
        desk.click(desk.keys().limitSide);
        QVERIFY(desk.limit(1).upper);
        desk.click(desk.keys().removeLimit);
        QCOMPARE(desk.limits().size(), 1);
        QVERIFY(!desk.keys().removeLimit->isEnabled());

        // The same without a finger: Tab, arrows, Delete.
        desk.plot()->setFocus();
        const LimitLine before = desk.limit();
        desk.press(Qt::Key_Tab);
        desk.press(Qt::Key_Right);
        desk.press(Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(desk.limit().start, before.start + 3e6);
        QCOMPARE(desk.limit().startValue, before.startValue + 0.1);
        QCOMPARE(desk.limit().stop, before.stop);
        for (int i = 0; i < 3; ++i)
            desk.press(Qt::Key_Tab);
        QVERIFY(!desk.plot()->hasFocus()); // out behind the last handle
        desk.plot()->setFocus();
        desk.press(Qt::Key_Backtab);
        desk.press(Qt::Key_Delete);
        QVERIFY(desk.limits().isEmpty());
        // Off, a double tap is one on the diagram.
        Q_EMIT desk.keys().editLimits->statusChanged(false);
        mouseDoubleClick(desk.plot(), desk.at(2.45e9, -60.0));
        QVERIFY(desk.limits().isEmpty());
    }

    /// The limit of a Smith chart: as large as it is pulled, wherever it is put.
    void circlesAreMovedAndSized()
    {
        LimitDesk desk;
        desk.model.setActiveTrace(1);
        ViewSettings *settings = desk.model.viewSettings();
        settings->setVswrLimit(2.0);
        desk.settle();
        const QCustomPlot *plot = desk.view()->plot();
        const auto at = [plot](double real, double imag) {
            return plot->mapTo(plot->window(),
                               QPoint(qRound(plot->xAxis->coordToPixel(real)),
                                      qRound(plot->yAxis->coordToPixel(imag))));
        };
        const auto drag = [&](const QPoint &from, const QPoint &to) {
            mouseDrag(desk.window.windowHandle(), from, to, 10);
            desk.settle();
        };
        // By its lower border, where no handle is, to a reflection of one half.
        drag(at(0.0, -1.0 / 3.0), at(0.0, -0.5));
        const double ratio = settings->vswrLimit();
        QVERIFY2(std::abs(ratio - 3.0) < 0.05, qPrintable(QString::number(ratio)));
        QCOMPARE(std::round(ratio * 100.0), ratio * 100.0);
        QTest::qWait(History::pause + 100);
        drag(at(0.0, 0.0), at(0.0, -0.7));
        QCOMPARE(settings->vswrLimit(), 0.0);
        QCOMPARE(desk.keys().vswrLimit->value(), "Circle"_s);
        QVERIFY(std::abs(settings->limitCircle().centre.y() + 0.7) < 0.01);
        QVERIFY(desk.view()->verdict()->text().contains("FAIL"_s));
        desk.click(desk.keys().limitSide);
        QVERIFY(settings->limitCircle().keepOut);
        desk.click(desk.keys().limitSide);
        QTest::qWait(History::pause + 100);
        // Beyond the chart it stops at the rim; near the centre it is one of constant VSWR again.
        drag(at(0.0, -0.7), at(0.0, -1.02) + QPoint(300, 0));
        QVERIFY(std::hypot(settings->limitCircle().centre.x(), settings->limitCircle().centre.y())
                < 1.0 + 1e-9);
        const QPointF rim = settings->limitCircle().centre;
        drag(at(rim.x(), rim.y()), at(0.0, 0.0) + QPoint(3, -4));
        QCOMPARE(settings->vswrLimit(), ratio);
        desk.press(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(std::abs(settings->limitCircle().centre.y() + 0.7) < 0.01);
        // By numbers, too, where the trace is one of a Smith chart.
        desk.click(desk.keys().limitReal);
        desk.type("0 . 2 5 Ok"_s);
        QCOMPARE(settings->limitCircle().centre.x(), 0.25);
        QVERIFY(std::abs(settings->limitCircle().centre.y() + 0.7) < 0.01);
        desk.click(desk.keys().removeLimit);
        QVERIFY(!desk.keys().limitReal->isEnabled());
        desk.click(desk.keys().limitRadius);
        desk.type("0 . 5 Ok"_s);
        QCOMPARE(settings->vswrLimit(), 3.0);
        desk.model.setActiveTrace(3);
        QVERIFY(desk.keys().limitReal->isHidden());
        settings->setVswrLimit(0.0);
        QVERIFY(settings->limitCircle().isNone());
        QVERIFY(!desk.view()->verdict()->isVisible());
    }
};

QTEST_MAIN(LimitEditorTest)
#include "tst_limiteditor.moc"
