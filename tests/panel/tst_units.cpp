// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <panel/entry/units.h>
#include <panel/model/stimulus.h>

using namespace VnaTest;
using namespace Panel;

namespace
{

/// What an editor does when the user has typed a text and presses OK or a unit key.
void enter(UnitAdapter *adapter, const QString &text, const QString &unitKey = "\n"_s)
{
    adapter->setProperty("inputText", text);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, unitKey);
    QCoreApplication::sendEvent(adapter, &press);
}

} // namespace

class UnitsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void entersValues()
    {
        const std::tuple<UnitAdapter *, QString, QString, double, QString> rows[] = {
            {&m_frequency, "2.45GHz"_s, "\n"_s, 2.45e9, "2.45GHz"_s},
            {&m_frequency, "900GHz"_s, "MHz"_s, 900e6, "900MHz"_s}, // the key wins
            {&m_frequency, "433.92 mhz"_s, "\n"_s, 433.92e6, "433.92MHz"_s},
            {&m_decibels, "-12.5dB"_s, "\n"_s, -12.5, "-12.5dB"_s},
            {&m_count, "200.7"_s, "\n"_s, 201.0, "201"_s}, // a count stays whole
        };
        for (const auto &[adapter, text, unitKey, value, shown] : rows) {
            const Row row(text);
            const QSignalSpy finished(adapter, &UnitAdapter::editingFinished);
            enter(adapter, text, unitKey);
            QCOMPARE(finished.count(), 1);
            QCOMPARE(finished.first(), QVariantList{value});
            QCOMPARE(adapter->getInputText(), shown);
        }
        // A count converts by itself, and so refuses by itself.
        for (const QString &text : {"1e400"_s, "3k"_s})
            QVERIFY(qIsNaN(m_count.convertToBase(text)));
    }

    void showsValues()
    {
        QCOMPARE(m_frequency.valueText(8.5e9), "8.5 GHz"_s);
        QCOMPARE(m_frequency.valueText(2412000001.0), "2.412000001 GHz"_s);
        QCOMPARE(m_frequency.valueText(50.0), "50 Hz"_s);
        QCOMPARE(m_decibels.valueText(-12.5), "\u221212.5 dB"_s);
        QCOMPARE(m_count.valueText(1601.0), "1601"_s);

        // A range clamps them, and is told.
        QCOMPARE(m_decibels.rangeText(), QString());
        m_decibels.setRealValue(30.0);
        m_decibels.setRange(-40.0, 10.0);
        QCOMPARE(m_decibels.getInputText(), "10dB"_s);
        QCOMPARE(m_decibels.rangeText(), "\u221240 dB \u2026 10 dB"_s);
        enter(&m_decibels, "-99"_s);
        QCOMPARE(m_decibels.getRealValue(), -40.0);
    }

    void stimulusFollowsOneNumber()
    {
        const std::tuple<decltype(&withStart), double, Stimulus> rows[] = {
            {withStart, 150.0, {150.0, 200.0}},
            {withStart, 300.0, {300.0, 1000.0}}, // beyond the stop
            {withStart, -1.0, {0.0, 200.0}},
            {withStop, 500.0, {100.0, 500.0}},
            {withStop, 50.0, {0.0, 50.0}}, // below the start
            {withCenter, 700.0, {650.0, 750.0}},
            {withCenter, 990.0, {980.0, 1000.0}}, // near the edge
            {withSpan, 20.0, {140.0, 160.0}},
            {withSpan, 400.0, {0.0, 400.0}}, // beyond the edge
            {withSpan, 5000.0, {0.0, 1000.0}},
        };
        for (const auto &[change, value, expected] : rows) {
            const Row row(QString::number(value));
            QCOMPARE(change({100.0, 200.0}, value, {0.0, 1000.0}), expected);
        }
    }

private:
    FrequencyAdapter m_frequency;
    DecibelAdapter m_decibels;
    NumberAdapter m_count{0};
};

QTEST_MAIN(UnitsTest)
#include "tst_units.moc"
