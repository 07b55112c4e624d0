// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/baseunitadapter.h>
#include <controls/step125controller.h>

#include <cmath>
#include <limits>

#include <vnatest.h>

using namespace VnaTest;
using Controls::BaseUnitAdapter;
using Controls::Step125Controller;
using Controls::StepController;

namespace
{

/// What one step tells, or NaN if it does not tell once.
double stepped(StepController *controller, double value, int step)
{
    const QSignalSpy told(controller, &StepController::stepped);
    controller->stepBy(value, step);
    return told.count() == 1 ? told.first().first().toDouble() : qQNaN();
}

} // namespace

class tst_StepController : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void linearSteps()
    {
        struct Step {
            double single, value;
            int step;
            double result;
        };
        for (const auto &[single, value, step, result] :
             {Step{1.0, 5.0, 2, 7.0}, Step{0.1, 1.0, 3, 1.3}, Step{0.1, 1.0, -2, 0.8},
              Step{0.1, 1.7, 0, 1.7},
              Step{-1.0, 1.0, std::numeric_limits<int>::min(), 2147483649.0}}) {
            StepController controller;
            QCOMPARE(controller.singleStep(), 1.0);
            controller.setSingleStep(single);
            QVERIFY(qFuzzyCompare(stepped(&controller, value, step), result));
        }
    }

    void sequenceOf125_data()
    {
        columns<double, int, double>("value", "step", "result");
        const int lowest = std::numeric_limits<int>::min();
        row("between, up", 3.3e3, 1, 5e3);
        row("between, down", 3.3e3, -1, 2e3);
        row("above 5, down", 7.5, -1, 5.0);
        row("the count is ignored", 3.3e3, 7, 5e3);
        row("zero", 0.0, 1, 0.0);
        row("down into zero", 1e-15, -1, 0.0);
        row("down to the smallest", 1.5e-15, -1, 1e-15);
        row("a rounding error below 2", 1.9999999999999998, 1, 2.0);
        row("negative down is its decade", -3.3e3, -1, -1e3);
        row("negative down by the lowest count", -5e3, lowest, -1e3);
        row("negative up mirrors", -3.3e3, 1, -2e3);
        row("negative up from 1", -1e3, 1, -500.0);
        row("infinite", qInf(), 1, qInf());
        row("no step", 3e3, 0, 3e3);
    }

    void sequenceOf125()
    {
        QFETCH(double, value);
        QFETCH(int, step);
        QFETCH(double, result);
        Step125Controller controller;
        QCOMPARE(stepped(&controller, value, step), result);
    }

    void walksEveryDecadeUpAndDown()
    {
        // Rounding makes some mantissas a little too small or large. That may cost a step, which
        // cleans the value up, but never two in a row, and never an entry.
        Step125Controller controller;
        double value = 1e-12;
        connect(&controller, &StepController::stepped, this, [&](double next) { value = next; });
        for (const int direction : {1, -1}) {
            int positions = 0;
            bool moved = true;
            while (positions < 72) {
                const double last = value;
                controller.stepBy(value, direction);
                const double ratio = direction > 0 ? value / last : last / value;
                QVERIFY2(moved || ratio > 1.9, qPrintable(QString::number(last)));
                moved = ratio > 1.9;
                QVERIFY2(moved ? ratio < 2.6 : std::abs(ratio - 1) < 1e-12,
                         qPrintable(QString::number(last)));
                positions += moved;
            }
            QVERIFY(qFuzzyCompare(value, direction > 0 ? 1e12 : 1e-12));
        }
    }

    /// Each press moves, whatever a decade is rounded to.
    void everyPressMoves()
    {
        Controls::Step125Controller controller;
        double value = 1e-14;
        QObject::connect(&controller, &Controls::StepController::stepped, &controller,
                         [&value](double stepped) { value = stepped; });
        for (const double wanted : {2e-14, 5e-14, 1e-13, 2e-13, 5e-13, 1e-12, 2e-12, 5e-12, 1e-11,
                                    2e-11, 5e-11, 1e-10, 2e-10, 5e-10, 1e-9, 2e-9}) {
            controller.stepBy(value, 1);
            QVERIFY2(value == wanted, qPrintable(QString::number(value, 'g', 17)));
        }
    }

    void tinyQuantitiesStepWhenAsked()
    {
        Step125Controller controller;
        double value = 0.0;
        connect(&controller, &StepController::stepped, this, [&value](double v) { value = v; });
        controller.stepBy(2e-16, 1);
        QCOMPARE(value, 2e-16);
        QVERIFY(!controller.setZeroThreshold(-1.0) && !controller.setZeroThreshold(qInf()));
        QVERIFY(controller.setZeroThreshold(0.0));
        controller.stepBy(2e-16, 1);
        QCOMPARE(value * 1e16, 5.0);
        controller.stepBy(2e-16, -1);
        QCOMPARE(value * 1e16, 1.0);
        controller.stepBy(2e-25, 1);
        QVERIFY(qFuzzyCompare(value * 1e25, 5.0));
        controller.stepBy(0.0, 1);
        QCOMPARE(value, 0.0);
    }

    void writesBackWhatTheAdapterMakesOfIt()
    {
        BaseUnitAdapter adapter;
        QDoubleValidator range(0.0, 10.0, 3);
        adapter.setValidator(&range);
        adapter.setRealValue(9.5);
        Step125Controller controller;
        controller.setAdapter(&adapter);
        controller.setAdapter(&adapter); // twice is once
        QCOMPARE(controller.adapter(), &adapter);

        QStringList log;
        note(log, "stepped", &controller, &StepController::stepped);
        note(log, "finished", &adapter, &BaseUnitAdapter::editingFinished);
        Q_EMIT adapter.stepBy(20.0, 1);
        QCOMPARE(log, QStringList({"finished 10"_s, "stepped 50"_s}));
        QCOMPARE(adapter.getInputText(), "10"_s);

        BaseUnitAdapter other;
        controller.setAdapter(&other);
        Q_EMIT adapter.stepBy(1.0, 1);
        QCOMPARE(log.size(), 2);
        Q_EMIT other.stepBy(1.0, 1);
        QCOMPARE(other.getRealValue(), 2.0);
        controller.setAdapter(nullptr);
        controller.stepBy(2.0, 1);
        QCOMPARE(log.size(), 4);
        QCOMPARE(other.getRealValue(), 2.0);
    }
};

QTEST_GUILESS_MAIN(tst_StepController)
#include "tst_stepcontroller.moc"
