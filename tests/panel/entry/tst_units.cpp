// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <panel/entry/units.h>

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
        // As it is typed: with a comma, a space, a letter for its unit, in front of the one shown.
        for (const auto &[text, value] : {std::pair("2,45 g"_s, 2.45e9),
                                          {"80500 mhz"_s, 80.5e9},
                                          {"80500MHzGHz"_s, 80.5e9},
                                          {"\u22121.5e3 kHz"_s, -1.5e6},
                                          {".5G"_s, 5e8}})
            QCOMPARE(m_frequency.typedValue(text), value);
        for (const QString &text : {"80 x"_s, "8 0 5.1.2"_s, "GHz"_s, QString(), "1 GHz 2"_s})
            QVERIFY(qIsNaN(m_frequency.typedValue(text)));
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

private:
    FrequencyAdapter m_frequency;
    DecibelAdapter m_decibels;
    NumberAdapter m_count{0};
};

QTEST_MAIN(UnitsTest)
#include "tst_units.moc"
