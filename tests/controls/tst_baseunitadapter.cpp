// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/scaledunitadapter.h>

#include <cmath>
#include <limits>

#include <events.h>
#include <vnatest.h>

using namespace VnaTest;
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
    QStringList availableUnits() override { return {"kHz"_s, "MHz"_s}; }
    double convertToBase(const QString &text) override
    {
        converted << text;
        return text.startsWith(QLatin1Char('?')) ? qQNaN() : BaseUnitAdapter::convertToBase(text);
    }

    QStringList converted;
};

/// Delivers a key; says how: "accepted", and "handled" if the adapter has used it up.
QString press(BaseUnitAdapter *adapter, int key, const QString &text = {})
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    event.ignore();
    const bool handled = QCoreApplication::sendEvent(adapter, &event);
    return (event.isAccepted() ? "accepted"_s : QString()) + (handled ? " handled"_s : QString());
}

/// What an editor publishes: its text, and cursor, selection start and length.
void publish(BaseUnitAdapter *adapter, const QString &text, const QVector<int> &state = {0, 0, 0})
{
    adapter->setProperty("inputText", text);
    adapter->setProperty("selectionStart", state.at(1));
    adapter->setProperty("selectionLen", state.at(2));
    adapter->setProperty("cursorPos", state.at(0));
}

} // namespace

class tst_BaseUnitAdapter : public TestCase
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
        columns<QString, QString, int>("text", "unit", "numberLength");
        row("frequency", "2.45MHz", "MHz", 4);
        row("level", "-12.5 dBm", "dBm", 5);
        row("micro", "4.7\u00b5s", "\u00b5s", 3);
        row("letters around a prefix", "1m\u00b5s", "m\u00b5s", 1);
        row("must end in a letter", "50k\u03a9", "", 2);
        row("beside the letters", "1@[`{s", "s", 1);
        row("exponent", "1e5", "", 1);
        row("only a unit", "GHz", "GHz", 3);
        row("empty", "", "", 0);
        row("point first", ".5V", "V", 2);
        row("combining", "5e\u0301\u0301ms", "e\u0301\u0301ms", 1);
        row("surrogates", "5\U0001D6CDs", "\U0001D6CDs", 1);
    }

    void currentUnit()
    {
        QFETCH(QString, text);
        BaseUnitAdapter adapter;
        adapter.setInputText(text);
        QTEST(adapter.getCurrentUnit(), "unit");
        int start = -1, length = -1, cursor = -1;
        adapter.resetSelectionToNumericPart(start, length, cursor);
        QTEST(start, "numberLength");
        QVERIFY(length == 0 && cursor == start);
    }

    void convertsTextInEveryLocale()
    {
        for (const auto language : {QLocale::German, QLocale::Arabic}) {
            QLocale::setDefault(language);
            for (const auto &[text, value] : {std::pair("1.50000 MHz", 1.5),
                                              {"-12.5dBm", -12.5},
                                              {"+.5V", 0.5},
                                              {"1e5", 100000.0}})
                QVERIFY2(BaseUnitAdapter().convertToBase(QString::fromUtf8(text)) == value, text);
            // The last one is a digit, but not ours.
            for (const char *text : {"1e400", "nan", "inf", "--5", "1,5", "", "+", "GHz", "\u0663"})
                QVERIFY2(BaseUnitAdapter().convertToBase(QString::fromUtf8(text)) == 0.0, text);
        }
    }

    void aUnitKeyReplacesTheTypedUnit_data()
    {
        columns<QString, QString, QString, QString>("text", "key", "converted", "unit");
        row("other unit", " 10 MHz ", "kHz", "10kHz", "kHz");
        row("same in another case", "10mhz", "MHz", "10mhz", "MHz");
        row("known in another case", "10 MHz", "KHZ", "10KHZ", "KHZ");
        row("no unit typed", "10", "kHz", "10kHz", "kHz");
        row("unknown key", "10 MHz", "\r", "10 MHz", "MHz");
        row("no key", "10", "", "10", "");
    }

    void aUnitKeyReplacesTheTypedUnit()
    {
        QFETCH(QString, text);
        QFETCH(QString, key);
        NumberAdapter adapter("MHz"_s);
        QCOMPARE(adapter.convertInputTextToValue(text, key), 10.0);
        QTEST(adapter.converted.constLast(), "converted");
        QTEST(key, "unit");
    }

    void settingAValueClampsAndFormatsInSilence()
    {
        NumberAdapter adapter("MHz"_s);
        QSignalSpy finished(&adapter, &BaseUnitAdapter::editingFinished);
        {
            QDoubleValidator range(1.0, 100.0, 3);
            adapter.setValidator(&range);
            for (const auto &[value, text] : std::initializer_list<std::pair<double, const char *>>{
                     {1.5, "1.5MHz"}, {-3.0, "1MHz"}, {1e9, "100MHz"}, {qQNaN(), "nanMHz"}}) {
                adapter.setRealValue(value);
                QCOMPARE(adapter.getInputText(), QString::fromUtf8(text));
                QCOMPARE(std::isnan(adapter.getRealValue()), std::isnan(value));
            }
        }
        QVERIFY(!adapter.validator()); // gone, it clamps no more, and an integer one never does
        QIntValidator other(1, 100);
        for (QValidator *validator : {adapter.validator(), static_cast<QValidator *>(&other)}) {
            adapter.setValidator(validator);
            adapter.setRealValue(500.0);
            QCOMPARE(adapter.getRealValue(), 500.0);
        }
        QVERIFY(finished.isEmpty());
    }

    void keys_data()
    {
        using Ints = QVector<int>;
        const QString typed = "12MHz"_s;
        const QString back = "handled 7.25MHz 4 0 0"_s;
        // state: cursor, selection start and length; text: afterwards; accepted: if not empty
        columns<int, QString, QString, Ints, QString, QString, QString>(
            "key", "keyText", "typed", "state", "log", "text", "accepted");
        const auto commit = [](const char *name, const char *unit, const char *entry,
                               const char *log, const char *text, const char *accepted) {
            row(name, Qt::Key_Return, unit, entry, Ints{0, 0, 0}, log, text, accepted);
        };
        commit("typed unit", "\r", " 1.50000 MHz ", "finished 1.5", "1.5MHz", "1.50000 MHz");
        commit("same again keeps the text", "", "7.250", "finished 7.25", "7.25MHz", "7.250");
        commit("unit key, clamped", "kHz", "500", "finished 100", "100kHz", "500");
        commit("clamped from below", "", "-3 kHz", "finished 1", "1kHz", "-3 kHz");
        commit("refused", "", "?", "handled 7.25MHz 4 0 0", "7.25MHz", "");
        const auto key = [](const char *name, int code, const QString &entry, const Ints &state,
                            const QString &log) {
            row(name, code, "", entry, state, log, "7.25MHz", "");
        };
        key("escape", Qt::Key_Escape, typed, {0, 0, 0}, back);
        key("delete", Qt::Key_Delete, typed, {0, 0, 0}, QString());
        key("not ours", Qt::Key_F1, typed, {0, 0, 0}, QString());
        key("up", Qt::Key_Up, typed, {0, 0, 0}, "step 7.25 1"_s);
        key("page up", Qt::Key_PageUp, typed, {0, 0, 0}, "step 7.25 1"_s);
        key("down", Qt::Key_Down, typed, {0, 0, 0}, "step 7.25 -1"_s);
        key("page down", Qt::Key_PageDown, typed, {0, 0, 0}, "step 7.25 -1"_s);
        key("point inside", Qt::Key_Period, "25MHz"_s, {1, 0, 0}, "handled 2.5MHz 2 0 2"_s);
        key("second point", Qt::Key_Period, "2.5MHz"_s, {1, 0, 0}, QString());
        key("point on selection", Qt::Key_Period, "25MHz"_s, {2, 0, 2}, "handled 25.MHz 3 0 3"_s);
        key("point in nothing", Qt::Key_Period, QString(), {7, 0, 0}, "handled . 1 0 1"_s);
        const int sign = Qt::Key_plusminus;
        key("plus to minus", sign, "+5MHz"_s, {0, 0, 0}, "handled -5MHz 1 0 1"_s);
        key("minus away", sign, "-5MHz"_s, {2, 0, 0}, "handled 5MHz 0 0 0"_s);
        key("minus in front", sign, "5MHz"_s, {1, 0, 0}, "handled -5MHz 1 0 1"_s);
        key("number selected", sign, "5MHz"_s, {1, 0, 1}, "handled -MHz 1 0 1"_s);
        key("part selected", sign, "55MHz"_s, {1, 0, 1}, "handled -55MHz 1 0 1"_s);
        key("end selected", sign, "55MHz"_s, {1, 1, 2}, "handled -55MHz 1 0 1"_s);
        key("sign of nothing", sign, QString(), {0, 0, 0}, "handled - 1 0 1"_s);
        key("cursor before the unit", 0, typed, {2, 0, 0}, QString());
        key("cursor in the unit", 0, typed, {3, 0, 0}, "crossed 12MHz 2 0 2 3"_s);
        key("another spelling is another text", 0, "12mhz"_s, {5, 0, 0}, QString());
        key("no unit typed", 0, "12345"_s, {4, 0, 0}, QString());
    }

    void keys()
    {
        QFETCH(int, key);
        QFETCH(QString, keyText);
        QFETCH(QString, typed);
        QFETCH(QVector<int>, state);
        NumberAdapter adapter("MHz"_s);
        QDoubleValidator range(1.0, 100.0, 3);
        adapter.setValidator(&range);
        adapter.setRealValue(7.25);
        QStringList log;
        note(log, "finished", &adapter, &BaseUnitAdapter::editingFinished);
        note(log, "step", &adapter, &BaseUnitAdapter::stepBy);
        note(log, "handled", &adapter, &BaseUnitAdapter::specialKeyHandled);
        note(log, "crossed", &adapter, &BaseUnitAdapter::cursorPosCrossUnit);
        publish(&adapter, typed, state);
        if (key != 0) {
            QCOMPARE(press(&adapter, key, keyText),
                     key == Qt::Key_F1           ? QString()
                         : key == Qt::Key_Period ? "accepted"_s
                                                 : "accepted handled"_s);
        }
        QTEST(log.join(", "_s), "log");
        QTEST(adapter.getInputText(), "text");
        QCOMPARE(adapter.getRealValue(), adapter.convertToBase(adapter.getInputText()));
        QTEST(adapter.getLastAcceptedInputText(), "accepted");
    }

    void closesItsDialog()
    {
        const struct {
            int key;
            QString text;
            bool modal, rejects;
            int result; ///< of the dialog; -1: stays open
        } rows[] = {{Qt::Key_Enter, "5"_s, true, true, 1},
                    {Qt::Key_Return, "5"_s, false, true, 0},
                    {Qt::Key_Return, "?"_s, true, true, 1}, // refused
                    {Qt::Key_Escape, "5"_s, true, true, 0},
                    {Qt::Key_Escape, "5"_s, true, false, -1}};
        for (const auto &[key, text, modal, rejects, result] : rows) {
            const Row row("result %1 after \"%2\""_s.arg(result).arg(text));
            QDialog dialog;
            dialog.setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
            NumberAdapter adapter("MHz"_s, &dialog);
            QCOMPARE(adapter.escKeyPolicy(), BaseUnitAdapter::EscRejectsDialog);
            if (!rejects)
                adapter.setEscKeyPolicy(BaseUnitAdapter::EscKeepsDialog);
            QStringList log;
            note(log, "finished", &dialog, &QDialog::finished);
            dialog.show();
            publish(&adapter, text);
            press(&adapter, key);
            QCOMPARE(dialog.isVisible(), result < 0);
            QCOMPARE(log.join(QLatin1Char('|')),
                     result < 0 ? QString() : "finished %1"_s.arg(result));
            dialog.hide();
        }
    }

    /// Whoever is told of a key may end the adapter.
    void endedByWhatItTells()
    {
        for (const auto &[key, text] :
             {std::pair(Qt::Key_Period, "1"_s), {Qt::Key_Return, "1..2"_s}}) {
            QPointer<BaseUnitAdapter> adapter = new Controls::ScaledUnitAdapter({});
            QSignalSpy refused(adapter, &BaseUnitAdapter::entryRefused);
            connect(adapter, &BaseUnitAdapter::specialKeyHandled, this, [&] { delete adapter; });
            publish(adapter, text);
            sendKey(adapter, key);
            QVERIFY(!adapter && refused.isEmpty());
        }
    }

    void keyCallbacksComeFirst()
    {
        BaseUnitAdapter adapter;
        QSignalSpy steps(&adapter, &BaseUnitAdapter::stepBy);
        for (const bool handles : {true, false}) {
            adapter.setKeyCallback(Qt::Key_Up, [=](QKeyEvent *) { return !handles; });
            adapter.setKeyCallback(Qt::Key_Up, [=](QKeyEvent *) { return handles; });
            press(&adapter, Qt::Key_Up);
            QCOMPARE(steps.count(), handles ? 0 : 1);
        }
        // One that handles a key has it, as far as its sender is told, too.
        adapter.setKeyCallback(Qt::Key_Up, [](QKeyEvent *) { return true; });
        QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
        QVERIFY(QCoreApplication::sendEvent(&adapter, &up) && up.isAccepted());
        // A callback may take itself away.
        adapter.setKeyCallback(Qt::Key_Up, [&](QKeyEvent *) {
            adapter.setKeyCallback(Qt::Key_Up, {});
            return true;
        });
        for (const int count : {1, 2}) {
            press(&adapter, Qt::Key_Up);
            QCOMPARE(steps.count(), count);
        }
    }

    /// Whatever stands in the properties that an editor publishes.
    void propertiesOfAnyType()
    {
        NumberAdapter adapter("MHz"_s);
        for (const QVariant &value :
             {QVariant(), QVariant(std::numeric_limits<int>::min()),
              QVariant(std::numeric_limits<int>::max()), QVariant(1e300), QVariant("x"_s),
              QVariant(QVariantList{1, "a"_s}), QVariant(QByteArray("\0\xff", 2))}) {
            for (const char *const name :
                 {"inputText", "cursorPos", "selectionStart", "selectionLen"}) {
                publish(&adapter, "5MHz"_s, {1, 0, 1});
                adapter.setProperty(name, value);
                for (const int key :
                     {Qt::Key_plusminus, Qt::Key_Period, Qt::Key_Escape, Qt::Key_Return})
                    press(&adapter, key);
                QVERIFY(std::isfinite(adapter.getRealValue()));
            }
        }
    }

    void longTextIsReadAtOnce()
    {
        // Quadratic reading would take minutes, and meet the time limit of the test.
        const int megabyte = 1 << 20;
        for (const int letter : {int('a'), int('9'), int('-'), 0x301, int(' ')}) {
            const QString text(megabyte, QChar(letter));
            BaseUnitAdapter adapter;
            adapter.setInputText(text);
            for (const int key :
                 {Qt::Key_plusminus, Qt::Key_Period, Qt::Key_Escape, Qt::Key_Return}) {
                publish(&adapter, text, {megabyte, 0, 0});
                press(&adapter, key);
            }
            QCOMPARE(adapter.getLastAcceptedInputText(), text.trimmed());
        }
    }
};

QTEST_MAIN(tst_BaseUnitAdapter)
#include "tst_baseunitadapter.moc"
