// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/baseunitadapter.h>
#include <controls/step125controller.h>

#include <QDoubleValidator>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <limits>

#include <vnatest.h>

using Controls::BaseUnitAdapter;
using Controls::Step125Controller;
using Controls::StepController;

class tst_StepController : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void linearSteps()
    {
        StepController controller;
        QSignalSpy stepped(&controller, &StepController::stepped);
        controller.stepBy(5.0, 2);
        QCOMPARE(stepped.last().at(0).toDouble(), 7.0);
        controller.setSingleStep(0.1);
        controller.stepBy(1.0, 3);
        QVERIFY(qFuzzyCompare(stepped.last().at(0).toDouble(), 1.3));
        controller.stepBy(1.0, -2);
        QVERIFY(qFuzzyCompare(stepped.last().at(0).toDouble(), 0.8));
        controller.stepBy(1.7, 0);
        QCOMPARE(stepped.last().at(0).toDouble(), 1.7);
        controller.setSingleStep(-1.0);
        controller.stepBy(1.0, std::numeric_limits<int>::min());
        QCOMPARE(stepped.last().at(0).toDouble(), 2147483649.0);
        QCOMPARE(stepped.count(), 5);
    }

    void sequenceOf125_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("step");
        QTest::addColumn<double>("result");
        const int lowest = std::numeric_limits<int>::min();
        QTest::newRow("1 up") << 1e3 << 1 << 2e3;
        QTest::newRow("2 up") << 2e3 << 1 << 5e3;
        QTest::newRow("5 up") << 5e3 << 1 << 1e4;
        QTest::newRow("5 down") << 5e3 << -1 << 2e3;
        QTest::newRow("2 down") << 2e3 << -1 << 1e3;
        QTest::newRow("1 down") << 1e3 << -1 << 500.0;
        QTest::newRow("between, up") << 3.3e3 << 1 << 5e3;
        QTest::newRow("between, down") << 3.3e3 << -1 << 2e3;
        QTest::newRow("above 5, up") << 7.5 << 1 << 10.0;
        QTest::newRow("above 5, down") << 7.5 << -1 << 5.0;
        QTest::newRow("the count is ignored") << 3.3e3 << 7 << 5e3;
        QTest::newRow("the lowest count too") << 3.3e3 << lowest << 2e3;
        QTest::newRow("no step") << 3.3 << 0 << 3.3;
        QTest::newRow("zero") << 0.0 << 1 << 0.0;
        QTest::newRow("nearly zero") << 1e-16 << -1 << 1e-16;
        QTest::newRow("down into zero") << 1e-15 << -1 << 0.0;
        QTest::newRow("a rounding error below 2") << 1.9999999999999998 << 1 << 2.0;
        QTest::newRow("negative down is its decade") << -3.3e3 << -1 << -1e3;
        QTest::newRow("negative down from 5") << -5e3 << -1 << -1e3;
        QTest::newRow("negative down by the lowest count") << -5e3 << lowest << -1e3;
        QTest::newRow("negative up mirrors") << -3.3e3 << 1 << -2e3;
        QTest::newRow("negative up from 1") << -1e3 << 1 << -500.0;
        QTest::newRow("infinite") << qInf() << 1 << qInf();
    }

    void sequenceOf125()
    {
        QFETCH(double, value);
        QFETCH(int, step);
        QFETCH(double, result);
        Step125Controller controller;
        QSignalSpy stepped(&controller, &StepController::stepped);
        controller.stepBy(value, step);
        QCOMPARE(stepped.count(), 1);
        QCOMPARE(stepped.at(0).at(0).toDouble(), result);
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

        QSignalSpy stepped(&controller, &StepController::stepped);
        QSignalSpy finished(&adapter, &BaseUnitAdapter::editingFinished);
        Q_EMIT adapter.stepBy(20.0, 1);
        QCOMPARE(stepped.count(), 1);
        QCOMPARE(stepped.at(0).at(0).toDouble(), 50.0);
        QCOMPARE(finished.count(), 1);
        QCOMPARE(finished.at(0).at(0).toDouble(), 10.0);
        QCOMPARE(adapter.getInputText(), QStringLiteral("10"));

        BaseUnitAdapter other;
        controller.setAdapter(&other);
        Q_EMIT adapter.stepBy(1.0, 1);
        QCOMPARE(stepped.count(), 1);
        Q_EMIT other.stepBy(1.0, 1);
        QCOMPARE(other.getRealValue(), 2.0);
        controller.setAdapter(nullptr);
        controller.stepBy(2.0, 1);
        QCOMPARE(stepped.count(), 3);
        QCOMPARE(other.getRealValue(), 2.0);
    }

    void survivesTheEndOfEither()
    {
        QPointer<StepController> controller = new StepController;
        QPointer<BaseUnitAdapter> adapter = new BaseUnitAdapter;
        controller->setAdapter(adapter);
        delete adapter;
        QVERIFY(!controller->adapter());
        controller->stepBy(1.0, 1);

        adapter = new BaseUnitAdapter;
        controller->setAdapter(adapter);
        connect(adapter, &BaseUnitAdapter::editingFinished, this, [&] { delete adapter; });
        controller->stepBy(1.0, 1);
        QVERIFY(!adapter);

        adapter = new BaseUnitAdapter;
        controller->setAdapter(adapter);
        connect(controller, &StepController::stepped, this, [&] { delete controller; });
        Q_EMIT adapter->stepBy(1.0, 1);
        QVERIFY(!controller);
        delete adapter;
    }
};

QTEST_GUILESS_MAIN(tst_StepController)
#include "tst_stepcontroller.moc"
