// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <panel/stimulus.h>
#include <panel/units.h>

#include <QSignalSpy>
#include <QtTest>

#include <cmath>
#include <memory>

using namespace Panel;

namespace
{

enum Quantity { Frequency, Power, Time, Count };

std::unique_ptr<UnitAdapter> makeAdapter(int quantity)
{
    switch (quantity) {
    case Frequency:
        return std::make_unique<FrequencyAdapter>();
    case Power:
        return std::make_unique<PowerAdapter>();
    case Time:
        return std::make_unique<TimeAdapter>();
    default:
        return std::make_unique<NumberAdapter>(0);
    }
}

/// What an editor does when the user has typed a text and presses OK or a unit key.
void enter(UnitAdapter *adapter, const QString &text, const QString &unitKey)
{
    adapter->setProperty("inputText", text);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier,
                    unitKey.isEmpty() ? QStringLiteral("\n") : unitKey);
    QCoreApplication::sendEvent(adapter, &press);
}

} // namespace

class UnitsTest : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void entersValues_data();
    void entersValues();
    void refusesWhatIsNoValue_data();
    void refusesWhatIsNoValue();
    void showsValues_data();
    void showsValues();
    void rangeClampsAndIsTold();
    void stimulusFollowsOneNumber_data();
    void stimulusFollowsOneNumber();
};

void UnitsTest::entersValues_data()
{
    QTest::addColumn<int>("quantity");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("unitKey");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("shown");
    const QString none;
    const QString micro = QStringLiteral("\u00b5s");
    QTest::newRow("unit typed") << int(Frequency) << "2.45GHz" << none << 2.45e9 << "2.45GHz";
    QTest::newRow("unit key") << int(Frequency) << "2.45"
                              << "GHz" << 2.45e9 << "2.45GHz";
    QTest::newRow("unit key wins") << int(Frequency) << "900GHz"
                                   << "MHz" << 900e6 << "900MHz";
    QTest::newRow("unit on show") << int(Frequency) << "433.92 mhz" << none << 433.92e6
                                  << "433.92MHz";
    QTest::newRow("dBm") << int(Power) << "-12.5dBm" << none << -12.5 << "-12.5dBm";
    QTest::newRow("ns") << int(Time) << "470ns" << none << 470e-9 << "470ns";
    QTest::newRow("micro sign") << int(Time) << "4.7\u00b5s" << none << 4.7e-6
                                << QStringLiteral("4.7") + micro;
    QTest::newRow("mu") << int(Time) << "4.7\u03bcs" << none << 4.7e-6
                        << QStringLiteral("4.7") + micro;
    QTest::newRow("us") << int(Time) << "4.7us" << none << 4.7e-6 << QStringLiteral("4.7") + micro;
    QTest::newRow("us with a space")
        << int(Time) << "4.7 us" << none << 4.7e-6 << QStringLiteral("4.7") + micro;
    QTest::newRow("micro key") << int(Time) << "4.7ms" << micro << 4.7e-6
                               << QStringLiteral("4.7") + micro;
    QTest::newRow("count") << int(Count) << "201" << none << 201.0 << "201";
    QTest::newRow("count stays whole") << int(Count) << "200.7" << none << 201.0 << "201";
}

void UnitsTest::entersValues()
{
    QFETCH(int, quantity);
    QFETCH(QString, text);
    QFETCH(QString, unitKey);
    QFETCH(double, value);
    QFETCH(QString, shown);
    const auto adapter = makeAdapter(quantity);
    const QSignalSpy finished(adapter.get(), &UnitAdapter::editingFinished);
    enter(adapter.get(), text, unitKey);
    QCOMPARE(finished.count(), 1);
    QCOMPARE(finished.at(0).at(0).toDouble(), value);
    QCOMPARE(adapter->getInputText(), shown);
}

void UnitsTest::refusesWhatIsNoValue_data()
{
    QTest::addColumn<int>("quantity");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << int(Frequency) << "";
    QTest::newRow("unit alone") << int(Frequency) << "GHz";
    QTest::newRow("foreign unit") << int(Frequency) << "3dBm";
    QTest::newRow("comma") << int(Power) << "-12,5dBm";
    QTest::newRow("micro alone") << int(Time) << "us";
    QTest::newRow("not finite") << int(Count) << "1e400";
    QTest::newRow("count with a unit") << int(Count) << "3k";
}

void UnitsTest::refusesWhatIsNoValue()
{
    QFETCH(int, quantity);
    QFETCH(QString, text);
    const auto adapter = makeAdapter(quantity);
    adapter->setRealValue(3.0);
    const QSignalSpy finished(adapter.get(), &UnitAdapter::editingFinished);
    enter(adapter.get(), text, {});
    QCOMPARE(finished.count(), 0);
    QCOMPARE(adapter->getRealValue(), 3.0);
}

void UnitsTest::showsValues_data()
{
    QTest::addColumn<int>("quantity");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("GHz") << int(Frequency) << 8.5e9 << "8.5 GHz";
    QTest::newRow("to the Hz") << int(Frequency) << 2412000001.0 << "2.412000001 GHz";
    QTest::newRow("Hz") << int(Frequency) << 50.0 << "50 Hz";
    QTest::newRow("negative") << int(Power) << -12.5 << "\u221212.5 dBm";
    QTest::newRow("s is not ns") << int(Time) << 2.0 << "2 s";
    QTest::newRow("ns") << int(Time) << 470e-9 << "470 ns";
    QTest::newRow("micro") << int(Time) << 1e-6 << "1 \u00b5s";
    QTest::newRow("count") << int(Count) << 1601.0 << "1601";
}

void UnitsTest::showsValues()
{
    QFETCH(int, quantity);
    QFETCH(double, value);
    QFETCH(QString, text);
    QCOMPARE(makeAdapter(quantity)->valueText(value), text);
}

void UnitsTest::rangeClampsAndIsTold()
{
    PowerAdapter power;
    QCOMPARE(power.rangeText(), QString());
    power.setRealValue(30.0);
    power.setRange(-40.0, 10.0);
    QCOMPARE(power.getInputText(), QStringLiteral("10dBm"));
    QCOMPARE(power.rangeText(), QStringLiteral("\u221240 dBm \u2026 10 dBm"));
    enter(&power, QStringLiteral("-99"), {});
    QCOMPARE(power.getRealValue(), -40.0);
}

void UnitsTest::stimulusFollowsOneNumber_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("start");
    QTest::addColumn<double>("stop");
    enum { Start, Stop, Center, Span };
    // Of 100 ... 200 within 0 ... 1000.
    QTest::newRow("start") << int(Start) << 150.0 << 150.0 << 200.0;
    QTest::newRow("start beyond the stop") << int(Start) << 300.0 << 300.0 << 1000.0;
    QTest::newRow("start outside") << int(Start) << -1.0 << 0.0 << 200.0;
    QTest::newRow("stop") << int(Stop) << 500.0 << 100.0 << 500.0;
    QTest::newRow("stop below the start") << int(Stop) << 50.0 << 0.0 << 50.0;
    QTest::newRow("center") << int(Center) << 700.0 << 650.0 << 750.0;
    QTest::newRow("center near the edge") << int(Center) << 990.0 << 980.0 << 1000.0;
    QTest::newRow("span") << int(Span) << 20.0 << 140.0 << 160.0;
    QTest::newRow("span beyond the edge") << int(Span) << 400.0 << 0.0 << 400.0;
    QTest::newRow("span of everything") << int(Span) << 5000.0 << 0.0 << 1000.0;
}

void UnitsTest::stimulusFollowsOneNumber()
{
    QFETCH(int, number);
    QFETCH(double, value);
    QFETCH(double, start);
    QFETCH(double, stop);
    static constexpr decltype(&withStart) changes[] = {withStart, withStop, withCenter, withSpan};
    const Stimulus changed = changes[number]({100.0, 200.0}, value, {0.0, 1000.0});
    QCOMPARE(changed.start, start);
    QCOMPARE(changed.stop, stop);
}

QTEST_MAIN(UnitsTest)
#include "tst_units.moc"
