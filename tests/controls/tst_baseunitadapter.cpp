// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/baseunitadapter.h>

#include <QDialog>
#include <QDoubleValidator>
#include <QIntValidator>
#include <QKeyEvent>
#include <QLocale>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>

#include <vnatest.h>

using Controls::BaseUnitAdapter;

namespace
{

/// Knows units, but no factors: the number is the value. Refuses the text "?".
class NumberAdapter : public BaseUnitAdapter
{
public:
    explicit NumberAdapter(const QString &unit, QObject *parent = nullptr)
        : BaseUnitAdapter(parent)
    {
        m_unit = unit;
    }
    QStringList availableUnits() override { return {QStringLiteral("kHz"), QStringLiteral("MHz")}; }
    double convertToBase(const QString &text) override
    {
        converted << text;
        return text.startsWith(QLatin1Char('?')) ? qQNaN() : BaseUnitAdapter::convertToBase(text);
    }

    QStringList converted;
};

void press(BaseUnitAdapter *adapter, int key, const QString &text = {})
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(adapter, &event);
}

/// What an editor publishes.
void publish(BaseUnitAdapter *adapter, const QString &text, int cursor = 0, int selectionStart = 0,
             int selectionLength = 0)
{
    adapter->setProperty("inputText", text);
    adapter->setProperty("selectionStart", selectionStart);
    adapter->setProperty("selectionLen", selectionLength);
    adapter->setProperty("cursorPos", cursor);
}

void enter(BaseUnitAdapter *adapter, const QString &text, const QString &unit = {})
{
    publish(adapter, text);
    press(adapter, Qt::Key_Return, unit);
}

} // namespace

class tst_BaseUnitAdapter : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        QLocale::setDefault(QLocale::c());
        TestCase::cleanup();
    }

    void currentUnit_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("unit");
        QTest::addColumn<int>("numberLength");
        const auto row = [](const char *name, const char *text, const char *unit, int length) {
            QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(unit) << length;
        };
        row("frequency", "2.45MHz", "MHz", 4);
        row("level", "-12.5 dBm", "dBm", 5);
        row("micro", "4.7\u00b5s", "\u00b5s", 3);
        row("letters around a prefix", "1m\u00b5s", "m\u00b5s", 1);
        row("must end in a letter", "50k\u03a9", "", 2);
        row("exponent", "1e5", "", 1);
        row("only a unit", "GHz", "GHz", 3);
        row("only signs", "+-", "", 2);
        row("empty", "", "", 0);
        row("point first", ".5V", "V", 2);
        row("point last", "5.V", "V", 1);
        row("right to left", "\u05d0\u05d1 5ms", "ms", 1);
        row("combining characters", "5e\u0301\u0301ms", "e\u0301\u0301ms", 1);
        row("surrogates", "5\U0001D6CDs", "\U0001D6CDs", 1);
    }

    void currentUnit()
    {
        QFETCH(QString, text);
        BaseUnitAdapter adapter;
        adapter.setInputText(text);
        QTEST(adapter.getCurrentUnit(), "unit");
        int start = -1;
        int length = -1;
        int cursor = -1;
        adapter.resetSelectionToNumericPart(start, length, cursor);
        QTEST(start, "numberLength");
        QCOMPARE(length, 0);
        QCOMPARE(cursor, start);
    }

    void convertsTextInEveryLocale_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        const auto row = [](const char *text, double value) {
            QTest::newRow(text) << QString::fromUtf8(text) << value;
        };
        row("1.50000 MHz", 1.5);
        row("-12.5dBm", -12.5);
        row("+.5V", 0.5);
        row("1e5", 100000.0);
        row("1e400", 0.0);
        row("nan", 0.0);
        row("inf", 0.0);
        row("--5", 0.0);
        row("1,5", 0.0);
        row("", 0.0);
        row("+", 0.0);
        row("GHz", 0.0);
        row("\u0663", 0.0); // a digit, but not one of ours
    }

    void convertsTextInEveryLocale()
    {
        QFETCH(QString, text);
        for (const QLocale &locale : {QLocale(QLocale::German), QLocale(QLocale::Arabic)}) {
            QLocale::setDefault(locale);
            QTEST(BaseUnitAdapter().convertToBase(text), "value");
        }
    }

    void aUnitKeyReplacesTheTypedUnit_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("converted");
        QTest::addColumn<QString>("unit");
        const auto row = [](const char *name, const char *text, const char *key,
                            const char *converted, const char *unit) {
            QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(key)
                                << QString::fromUtf8(converted) << QString::fromUtf8(unit);
        };
        row("other unit", " 10 MHz ", "kHz", "10kHz", "kHz");
        row("same unit in another case", "10mhz", "MHz", "10mhz", "MHz");
        row("known in another case", "10 MHz", "KHZ", "10KHZ", "KHZ");
        row("no unit typed", "10", "kHz", "10kHz", "kHz");
        row("unknown key", "10 MHz", "\r", "10 MHz", "MHz");
        row("no key", "10", "", "10", "");
    }

    void aUnitKeyReplacesTheTypedUnit()
    {
        QFETCH(QString, text);
        QFETCH(QString, key);
        NumberAdapter adapter(QStringLiteral("MHz"));
        QCOMPARE(adapter.convertInputTextToValue(text, key), 10.0);
        QTEST(adapter.converted.constLast(), "converted");
        QTEST(key, "unit");
    }

    void settingAValueClampsAndFormatsInSilence()
    {
        NumberAdapter adapter(QStringLiteral("MHz"));
        QSignalSpy finished(&adapter, &BaseUnitAdapter::editingFinished);
        QDoubleValidator range(1.0, 100.0, 3);
        adapter.setValidator(&range);
        adapter.setRealValue(1.5);
        QCOMPARE(adapter.getInputText(), QStringLiteral("1.5MHz"));
        adapter.setRealValue(-3.0);
        QCOMPARE(adapter.getRealValue(), 1.0);
        adapter.setRealValue(1e9);
        QCOMPARE(adapter.getInputText(), QStringLiteral("100MHz"));
        adapter.setRealValue(qQNaN());
        QVERIFY(std::isnan(adapter.getRealValue()));

        QIntValidator other(1, 100);
        adapter.setValidator(&other);
        adapter.setRealValue(500.0);
        QCOMPARE(adapter.getRealValue(), 500.0);
        QVERIFY(finished.isEmpty());
    }

    void aDestroyedValidatorClampsNoMore()
    {
        BaseUnitAdapter adapter;
        {
            QDoubleValidator range(1.0, 100.0, 3);
            adapter.setValidator(&range);
        }
        adapter.setRealValue(500.0);
        QCOMPARE(adapter.getRealValue(), 500.0);
        QVERIFY(!adapter.validator());
    }

    void enterCommits()
    {
        NumberAdapter adapter(QStringLiteral("MHz"));
        QDoubleValidator range(1.0, 100.0, 3);
        adapter.setValidator(&range);
        QSignalSpy finished(&adapter, &BaseUnitAdapter::editingFinished);
        QSignalSpy handled(&adapter, &BaseUnitAdapter::specialKeyHandled);

        enter(&adapter, QStringLiteral(" 1.50000 MHz "), QStringLiteral("\r"));
        QCOMPARE(adapter.getRealValue(), 1.5);
        QCOMPARE(adapter.getInputText(), QStringLiteral("1.5MHz"));
        QCOMPARE(adapter.getLastAcceptedInputText(), QStringLiteral("1.50000 MHz"));

        // The same value again: told, but the text stays as it was.
        adapter.setInputText(QStringLiteral("1.5 megahertz"));
        enter(&adapter, QStringLiteral("1.5"));
        QCOMPARE(adapter.getInputText(), QStringLiteral("1.5 megahertz"));
        QCOMPARE(adapter.getLastAcceptedInputText(), QStringLiteral("1.5"));

        enter(&adapter, QStringLiteral("500"), QStringLiteral("kHz"));
        QCOMPARE(adapter.getInputText(), QStringLiteral("100kHz"));
        QCOMPARE(finished.count(), 3);
        QCOMPARE(finished.at(2).at(0).toDouble(), 100.0);
        QVERIFY(handled.isEmpty());
    }

    void refusedTextBringsTheLastOneBack()
    {
        NumberAdapter adapter(QStringLiteral("MHz"));
        adapter.setRealValue(7.25);
        QSignalSpy finished(&adapter, &BaseUnitAdapter::editingFinished);
        QSignalSpy handled(&adapter, &BaseUnitAdapter::specialKeyHandled);
        enter(&adapter, QStringLiteral("?"));
        QCOMPARE(handled.count(), 1);
        QCOMPARE(handled.at(0), QVariantList({QStringLiteral("7.25MHz"), 4, 0, 0}));
        QVERIFY(finished.isEmpty());
        QCOMPARE(adapter.getRealValue(), 7.25);
        QVERIFY(adapter.getLastAcceptedInputText().isEmpty());
    }

    void closesItsDialog_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("modal");
        QTest::addColumn<int>("policy");
        QTest::addColumn<int>("result"); // -1: stays open
        using Policy = BaseUnitAdapter::EscKeyPolicy;
        const int rejects = Policy::EscRejectsDialog;
        const QString five = QStringLiteral("5");
        QTest::newRow("enter, modal") << int(Qt::Key_Enter) << five << true << rejects << 1;
        QTest::newRow("enter, not modal") << int(Qt::Key_Return) << five << false << rejects << 0;
        QTest::newRow("enter, refused")
            << int(Qt::Key_Return) << QStringLiteral("?") << true << rejects << 1;
        QTest::newRow("escape") << int(Qt::Key_Escape) << five << true << rejects << 0;
        QTest::newRow("escape that keeps")
            << int(Qt::Key_Escape) << five << true << int(Policy::EscKeepsDialog) << -1;
    }

    void closesItsDialog()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        QFETCH(bool, modal);
        QFETCH(int, policy);
        QFETCH(int, result);
        QDialog dialog;
        dialog.setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
        NumberAdapter adapter(QStringLiteral("MHz"), &dialog);
        adapter.setEscKeyPolicy(BaseUnitAdapter::EscKeyPolicy(policy));
        QSignalSpy finished(&dialog, &QDialog::finished);
        dialog.show();
        publish(&adapter, text);
        press(&adapter, key);
        QCOMPARE(dialog.isVisible(), result < 0);
        QCOMPARE(finished.count(), result < 0 ? 0 : 1);
        if (result >= 0)
            QCOMPARE(finished.at(0).at(0).toInt(), result);
        dialog.hide();
    }

    void escapeBringsTheTextBack()
    {
        BaseUnitAdapter adapter;
        adapter.setInputText(QStringLiteral("-4.5dBm"));
        publish(&adapter, QStringLiteral("99"));
        QSignalSpy handled(&adapter, &BaseUnitAdapter::specialKeyHandled);
        QSignalSpy finished(&adapter, &BaseUnitAdapter::editingFinished);
        press(&adapter, Qt::Key_Escape);
        QCOMPARE(handled.count(), 1);
        QCOMPARE(handled.at(0), QVariantList({QStringLiteral("-4.5dBm"), 4, 0, 0}));
        QVERIFY(finished.isEmpty());
    }

    void pointAndSign_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QVector<int>>("state"); // cursor, selection start and length
        QTest::addColumn<QString>("result"); // empty: nothing happens
        QTest::addColumn<int>("cursor");
        const auto row = [](const char *name, Qt::Key key, const char *text, QVector<int> state,
                            const char *result, int cursor) {
            QTest::newRow(name) << int(key) << QString::fromUtf8(text) << state
                                << QString::fromUtf8(result) << cursor;
        };
        const Qt::Key sign = Qt::Key_plusminus;
        row("point inside", Qt::Key_Period, "25MHz", {1, 0, 0}, "2.5MHz", 2);
        row("second point", Qt::Key_Period, "2.5MHz", {1, 0, 0}, "", 0);
        row("point ignores the selection", Qt::Key_Period, "25MHz", {2, 0, 2}, "25.MHz", 3);
        row("point in nothing", Qt::Key_Period, "", {7, 0, 0}, ".", 1);
        row("plus to minus", sign, "+5MHz", {0, 0, 0}, "-5MHz", 1);
        row("minus away", sign, "-5MHz", {2, 0, 0}, "5MHz", 0);
        row("minus in front", sign, "5MHz", {1, 0, 0}, "-5MHz", 1);
        row("whole number selected", sign, "5MHz", {1, 0, 1}, "-MHz", 1);
        row("part of the number selected", sign, "55MHz", {1, 0, 1}, "-55MHz", 1);
        row("sign of nothing", sign, "", {0, 0, 0}, "-", 1);
    }

    void pointAndSign()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        QFETCH(QVector<int>, state);
        QFETCH(QString, result);
        QFETCH(int, cursor);
        BaseUnitAdapter adapter;
        adapter.setInputText(QStringLiteral("1MHz"));
        publish(&adapter, text, state.at(0), state.at(1), state.at(2));
        QSignalSpy handled(&adapter, &BaseUnitAdapter::specialKeyHandled);
        press(&adapter, key);
        QCOMPARE(handled.count(), result.isEmpty() ? 0 : 1);
        if (!result.isEmpty())
            QCOMPARE(handled.at(0), QVariantList({result, cursor, 0, cursor}));
    }

    void stepKeysAsk()
    {
        BaseUnitAdapter adapter;
        adapter.setRealValue(4.0);
        QSignalSpy steps(&adapter, &BaseUnitAdapter::stepBy);
        for (const int key : {Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Down, Qt::Key_PageDown})
            press(&adapter, key);
        QCOMPARE(steps.count(), 4);
        QCOMPARE(steps.at(1), QVariantList({4.0, 1}));
        QCOMPARE(steps.at(2), QVariantList({4.0, -1}));
        QCOMPARE(adapter.getRealValue(), 4.0);
    }

    void keyCallbacksComeFirst()
    {
        BaseUnitAdapter adapter;
        QSignalSpy steps(&adapter, &BaseUnitAdapter::stepBy);
        bool handles = true;
        adapter.setKeyCallback(Qt::Key_Up, [](QKeyEvent *) { return false; });
        adapter.setKeyCallback(Qt::Key_Up, [&](QKeyEvent *) { return handles; });
        press(&adapter, Qt::Key_Up);
        QCOMPARE(steps.count(), 0);
        handles = false;
        press(&adapter, Qt::Key_Up);
        QCOMPARE(steps.count(), 1);
        handles = true;
        adapter.setKeyCallback(Qt::Key_Up, {});
        press(&adapter, Qt::Key_Up);
        QCOMPARE(steps.count(), 2);

        // A callback may take itself away.
        adapter.setKeyCallback(Qt::Key_Down, [&](QKeyEvent *) {
            adapter.setKeyCallback(Qt::Key_Down, {});
            return handles;
        });
        press(&adapter, Qt::Key_Down);
        QCOMPARE(steps.count(), 2);
    }

    void acceptsTheKeysItHandles()
    {
        BaseUnitAdapter adapter;
        for (const int key : {Qt::Key_Return, Qt::Key_Delete, Qt::Key_Up, Qt::Key_Escape,
                              Qt::Key_Period, Qt::Key_plusminus}) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
            event.ignore();
            const bool handled = QCoreApplication::sendEvent(&adapter, &event);
            QVERIFY(event.isAccepted());
            QCOMPARE(handled, key != Qt::Key_Period);
        }
    }

    void theCursorStaysOutOfTheUnit()
    {
        BaseUnitAdapter adapter;
        adapter.setInputText(QStringLiteral("5MHz"));
        QSignalSpy crossed(&adapter, &BaseUnitAdapter::cursorPosCrossUnit);
        publish(&adapter, QStringLiteral("12MHz"), 2);
        QVERIFY(crossed.isEmpty());
        publish(&adapter, QStringLiteral("12MHz"), 4);
        QCOMPARE(crossed.count(), 1);
        QCOMPARE(crossed.at(0), QVariantList({QStringLiteral("12MHz"), 2, 0, 2, 4}));
        publish(&adapter, QStringLiteral("12mhz"), 5); // another spelling is another text
        publish(&adapter, QStringLiteral("12345"), 4);
        QCOMPARE(crossed.count(), 1);
        adapter.setInputText(QStringLiteral("5"));
        publish(&adapter, QStringLiteral("12MHz"), 3);
        QCOMPARE(crossed.count(), 1);
    }

    void longTextIsReadAtOnce_data()
    {
        QTest::addColumn<QString>("text");
        const int megabyte = 1 << 20;
        QTest::newRow("letters that end in a digit")
            << QString(megabyte, QLatin1Char('a')) + QLatin1Char('1');
        QTest::newRow("digits") << QString(megabyte, QLatin1Char('9'));
        QTest::newRow("signs") << QString(megabyte, QLatin1Char('-'));
        QTest::newRow("combining characters") << QString(megabyte, QChar(0x301));
        QTest::newRow("blanks") << QString(megabyte, QLatin1Char(' '));
    }

    void longTextIsReadAtOnce()
    {
        // Quadratic reading would take minutes, and meet the time limit of the test.
        QFETCH(QString, text);
        BaseUnitAdapter adapter;
        adapter.setInputText(text);
        for (const int key : {Qt::Key_plusminus, Qt::Key_Period, Qt::Key_Escape, Qt::Key_Return}) {
            publish(&adapter, text, int(text.length()));
            press(&adapter, key);
        }
        QCOMPARE(adapter.getLastAcceptedInputText(), text.trimmed());
        QCOMPARE(adapter.getRealValue(), 0.0);
    }

    void survivesItsEndInASlot_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("withDialog");
        for (const auto &[name, key] :
             {std::make_pair("enter", Qt::Key_Return), std::make_pair("escape", Qt::Key_Escape),
              std::make_pair("point", Qt::Key_Period), std::make_pair("sign", Qt::Key_plusminus),
              std::make_pair("up", Qt::Key_Up), std::make_pair("callback", Qt::Key_F1)}) {
            QTest::addRow("adapter at %s", name) << int(key) << false;
            QTest::addRow("dialog at %s", name) << int(key) << true;
        }
    }

    void survivesItsEndInASlot()
    {
        QFETCH(int, key);
        QFETCH(bool, withDialog);
        QPointer<QDialog> dialog = new QDialog;
        dialog->setModal(true);
        QPointer<BaseUnitAdapter> adapter = new BaseUnitAdapter(dialog);
        const auto end = [&] {
            if (withDialog)
                delete dialog;
            else
                delete adapter;
        };
        connect(adapter, &BaseUnitAdapter::editingFinished, this, end);
        connect(adapter, &BaseUnitAdapter::specialKeyHandled, this, end);
        connect(adapter, &BaseUnitAdapter::stepBy, this, end);
        adapter->setKeyCallback(Qt::Key_F1, [&](QKeyEvent *) {
            end();
            return false;
        });
        publish(adapter, QStringLiteral("5"));
        press(adapter, key);
        QVERIFY(!adapter);
        delete dialog;
    }

    void survivesItsEndWhenTheCursorMoves()
    {
        QPointer<BaseUnitAdapter> adapter = new BaseUnitAdapter;
        adapter->setInputText(QStringLiteral("5MHz"));
        connect(adapter, &BaseUnitAdapter::cursorPosCrossUnit, this, [&] { delete adapter; });
        publish(adapter, QStringLiteral("5MHz"), 3);
        QVERIFY(!adapter);
    }
};

QTEST_MAIN(tst_BaseUnitAdapter)
#include "tst_baseunitadapter.moc"
