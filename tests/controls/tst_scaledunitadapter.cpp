// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/scaledunitadapter.h>

#include <cmath>

#include <events.h>
#include <vnatest.h>

using namespace VnaTest;
using Controls::ScaledUnitAdapter;

namespace
{

QVector<ScaledUnitAdapter::Unit> timeUnits()
{
    return {{"s"_s, 1.0}, {"ms"_s, 1e-3}, {"\u00b5s"_s, 1e-6}, {"ns"_s, 1e-9}};
}

QVector<ScaledUnitAdapter::Unit> frequencyUnits()
{
    return {{"GHz"_s, 1e9}, {"MHz"_s, 1e6}, {"kHz"_s, 1e3}, {"Hz"_s, 1.0}};
}

} // namespace

class tst_ScaledUnitAdapter : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsNumbersExactly()
    {
        QLocale::setDefault(QLocale(QLocale::German));
        ScaledUnitAdapter adapter(timeUnits());
        adapter.setRealValue(1.0); // in the unit on show, which is s, a bare number is read
        const QVector<QPair<const char *, double>> texts{
            {"470ns", 470e-9},   {"4.7 \u00b5s", 4.7e-6},
            {"-2.5MS", -2.5e-3}, {"1e3ms", 1.0},
            {".5s", 0.5},        {"5.s", 5.0},
            {"7", 7.0}};
        for (const auto &[text, value] : texts)
            QCOMPARE(adapter.convertToBase(QString::fromUtf8(text)), value);
        QLocale::setDefault(QLocale::c());
    }

    void refusesWhatIsNoNumber()
    {
        ScaledUnitAdapter adapter(timeUnits());
        for (const char *text : {"", "-", "s", "--5s", "1.2.3s", "1,5s", "nan", "inf", "1e400s",
                                 "5m", "5 s s", "\u0663s", "0x10s"}) {
            const QString typed = QString::fromUtf8(text);
            QVERIFY2(std::isnan(adapter.convertToBase(typed)), text);
        }
        QVERIFY(std::isnan(ScaledUnitAdapter(frequencyUnits()).convertToBase("1e305GHz"_s)));
    }

    void choosesAndKeepsUnits()
    {
        ScaledUnitAdapter adapter(frequencyUnits());
        QCOMPARE(adapter.getInputText(), "0Hz"_s);
        adapter.setRealValue(2.45e9);
        QCOMPARE(adapter.getInputText(), "2.45GHz"_s);
        adapter.setRealValue(-999.0);
        QCOMPARE(adapter.getInputText(), "-999Hz"_s);
        adapter.setRealValue(0.25);
        QCOMPARE(adapter.getInputText(), "0.25Hz"_s);
        QCOMPARE(adapter.convertFromBaseValue(2.45e9, "mhz"_s), "2450MHz"_s);

        QCOMPARE(adapter.convertFromBaseValue(-1e-9, "Hz"_s), "0Hz"_s);

        adapter.setPreserveTrailingZeros(true);
        adapter.setUnitDecimals("GHz"_s, 6);
        adapter.setRealValue(2.45e9);
        QCOMPARE(adapter.getInputText(), "2.450000GHz"_s);
        adapter.setRealValue(2.45e6);
        QCOMPARE(adapter.getInputText(), "2.450MHz"_s);
    }

    void uselessUnitsAreLeftOut()
    {
        ScaledUnitAdapter adapter(
            {{QString(), 1.0}, {"m"_s, 0.0}, {"k"_s, qQNaN()}, {"M"_s, qInf()}, {"V"_s, 1.0}});
        QCOMPARE(adapter.availableUnits(), QStringList{"V"_s});

        ScaledUnitAdapter bare({});
        bare.setRealValue(3.5);
        QCOMPARE(bare.getInputText(), "3.5"_s);
        QCOMPARE(bare.convertToBase("-4"_s), -4.0);
    }

    /// Typed in any order, into the text and as keys: always a number within the range.
    void anyTextIsANumberOrRefused()
    {
        const QStringList words{"0"_s,      "-"_s,      "."_s,      "e"_s,   "+"_s,
                                "GHz"_s,    "mhz"_s,    "1e9"_s,    " "_s,   "nan"_s,
                                "inf"_s,    "1e400"_s,  ","_s,      "0x1"_s, "9"_s,
                                "\u0663"_s, "\u2212"_s, "\u00b1"_s, "\n"_s,  "dBm"_s};
        const int keys[] = {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Period, Qt::Key_plusminus,
                            Qt::Key_Up,     Qt::Key_Delete, Qt::Key_A};
        QRandomGenerator random(7);
        ScaledUnitAdapter adapter(frequencyUnits());
        QDoubleValidator range(-1e6, 1e9, 3);
        adapter.setValidator(&range);
        for (int round = 0; round < 20000; ++round) {
            QString text;
            for (int count = random.bounded(6); count > 0; --count)
                text += words.at(random.bounded(int(words.size())));
            adapter.setProperty("inputText", text);
            adapter.setProperty("cursorPos", random.bounded(-3, 30));
            adapter.setProperty("selectionStart", random.bounded(-3, 30));
            adapter.setProperty("selectionLen", random.bounded(-3, 30));
            sendKey(&adapter, keys[random.bounded(int(std::size(keys)))],
                    words.at(random.bounded(int(words.size()))));
            QVERIFY2(adapter.getRealValue() >= -1e6 && adapter.getRealValue() <= 1e9,
                     qPrintable(text));
            QVERIFY(adapter.getInputText().endsWith(adapter.getCurrentUnit()));
        }
    }

    void formatsWhatItReads()
    {
        QRandomGenerator random(20260);
        for (const auto &units : {timeUnits(), frequencyUnits()}) {
            ScaledUnitAdapter adapter(units);
            for (int round = 0; round < 5000; ++round) {
                const auto &unit = units.at(random.bounded(units.size()));
                const int decimals = random.bounded(10);
                adapter.setDecimals(decimals);
                const double value = (random.generateDouble() - 0.5)
                    * std::pow(10.0, random.bounded(7)) * unit.factor;
                const QString text = adapter.convertFromBaseValue(value, unit.name);
                QString key = unit.name;
                const double back = adapter.convertInputTextToValue(text, key);
                // Half a digit of the last place shown, and the rounding of the arithmetic.
                const double allowed =
                    0.5 * std::pow(10.0, -decimals) * unit.factor + std::abs(value) * 1e-14;
                QVERIFY2(std::abs(back - value) <= allowed, qPrintable(text));
                // A second round changes nothing any more.
                QCOMPARE(adapter.convertFromBaseValue(back, unit.name), text);
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_ScaledUnitAdapter)
#include "tst_scaledunitadapter.moc"
