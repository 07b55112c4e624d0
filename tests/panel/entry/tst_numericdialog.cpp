// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <panel/entry/typedentry.h>
#include <panel/source/sweepsource.h>

using namespace VnaTest;
using namespace Panel;

namespace
{

struct Desk : PanelDesk {
    using PanelDesk::PanelDesk;

    NumericDialog *dialog() const { return window.findChild<NumericDialog *>(); }
    QLineEdit *edit() const { return dialog()->findChild<QLineEdit *>("edit"_s); }
    QString range() const { return dialog()->findChild<QLabel *>("range"_s)->text(); }
    Stimulus stimulus() const { return model.stimulus(*model.activeTrace()); }

    /// Opens the entry of a soft key and taps keys of the keypad.
    void enter(const QWidget *softKey, const QString &keys)
    {
        click(softKey);
        type(keys);
    }
};

} // namespace

class NumericDialogTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    void opensOverTheDimmedPanel()
    {
        for (const QSize &size : {QSize(800, 480), QSize(1280, 800)}) {
            Desk desk(size);
            const QPoint beside(size.width() / 4, size.height() / 2);
            const QImage before = desk.window.grab().toImage();
            for (const auto &[key, range, value] :
                 {std::tuple(desk.keys().start, "2.3 GHz \u2026 2.6 GHz"_s, "2.3"_s),
                  {desk.keys().span, "0 Hz \u2026 300 MHz"_s, "300"_s}}) {
                desk.click(key);
                QVERIFY(desk.dialog());
                QVERIFY(!desk.dialog()->isWindow());
                const QPoint place = desk.dialog()->mapTo(&desk.window, QPoint());
                QVERIFY(desk.window.rect().contains({place, desk.dialog()->size()}));
                QCOMPARE(desk.dialog()->windowTitle(), key->name());
                QCOMPARE(desk.range(), range);
                QVERIFY(desk.edit()->hasFocus());
                QCOMPARE(desk.edit()->selectedText(), value);
                desk.press(Qt::Key_Escape);
                QVERIFY(!desk.dialog());
            }
            // The same picture as before, but for the focus.
            QCOMPARE(desk.window.grab().toImage().pixelColor(beside), before.pixelColor(beside));
            desk.click(desk.keys().stop);
            const auto *overlay = qobject_cast<QWidget *>(desk.dialog()->parent());
            QVERIFY(overlay && overlay->testAttribute(Qt::WA_StyledBackground));
            QCOMPARE(overlay->geometry(), desk.window.rect());
        }
    }

    void entersByTheKeypad()
    {
        Desk desk;
        desk.enter(desk.keys().stop, "2 . 4 5"_s);
        QCOMPARE(desk.edit()->text(), "2.45GHz"_s);
        QCOMPARE(desk.stimulus().stop, 2.6e9); // nothing before the unit key
        desk.type("GHz"_s);
        QVERIFY(!desk.dialog());
        QCOMPARE(desk.stimulus().stop, 2.45e9);
        QCOMPARE(desk.keys().stop->value(), "2.450 GHz"_s);
        QVERIFY(!desk.bar()->isVisible());

        // Another unit, and OK with the unit on show.
        desk.enter(desk.keys().start, "2 3 5 0 MHz"_s);
        QCOMPARE(desk.stimulus().start, 2.35e9);
        desk.enter(desk.keys().start, "Right Back 6 Ok"_s);
        QCOMPARE(desk.stimulus().start, 2.36e9);

        // What is left as it is stays exact, and means what it shows.
        const double third = 2.4e9 + 1.0 / 3.0;
        desk.model.setStimulus(*desk.model.activeTrace(), {2.3e9, third});
        desk.enter(desk.keys().stop, "Ok"_s);
        QCOMPARE(desk.stimulus().stop, third);
        desk.enter(desk.keys().stop, "MHz"_s); // 2.4 GHz is not 2.4 MHz
        QCOMPARE(desk.stimulus().stop, 2.3e9);
    }

    void entersByKeyboard()
    {
        Desk desk;
        for (const int page : {1, 2, 3, 4, 5, 6, 7, 8, 0}) {
            desk.press(Qt::Key_PageDown, Qt::ControlModifier);
            QCOMPARE(desk.window.softKeys()->page(), page);
        }
        desk.keys().start->setFocus();
        desk.press(Qt::Key_Down);
        QVERIFY(desk.keys().stop->hasFocus());
        desk.press(Qt::Key_Return);
        QVERIFY(desk.dialog());
        for (const QChar character : "2.45"_s)
            desk.press(Qt::Key(character.unicode()));
        desk.press(Qt::Key_Enter);
        QCOMPARE(desk.stimulus().stop, 2.45e9);
        // The focus is back where it was, ready for the next entry, by keypad and keyboard.
        QVERIFY(desk.keys().stop->hasFocus());
        desk.enter(desk.keys().stop, "2 ."_s);
        desk.press(Qt::Key_4);
        desk.type("9"_s);
        desk.press(Qt::Key_Backspace);
        desk.press(Qt::Key_Return);
        QVERIFY(!desk.dialog());
        QCOMPARE(desk.stimulus().stop, 2.4e9);
    }

    void typedUnitsFinish()
    {
        Desk desk;
        const std::tuple<const char *, double, bool> rows[] = {
            {"2.45g", 2.45e9, true}, // a letter is enough, after a moment
            {"2450 MHz\n", 2.45e9, false}, {"2.45 ghz", 2.45e9, true},
            {"2,45\n", 2.45e9, false}, // in the unit on show
            {"2,45g", 2.45e9, true},       {"2450000khz\n", 2.45e9, false},
            {"2x.4y5\n", 2.45e9, false}, // what is no unit is no letter
        };
        for (const auto &[text, value, waits] : rows) {
            const Row row(QString::fromLatin1(text));
            desk.model.setStimulus(*desk.model.activeTrace(), {2.3e9, 2.6e9});
            desk.click(desk.keys().stop);
            for (const char *key = text; *key; ++key)
                QTest::keyClick(desk.window.windowHandle(), *key == '\n' ? '\r' : *key);
            QCOMPARE(desk.dialog() != nullptr && desk.dialog()->isVisible(), waits);
            QTRY_COMPARE_WITH_TIMEOUT(desk.stimulus().stop, value, 4 * TypedEntry::patience);
            Desk::settle();
            QVERIFY(!desk.dialog());
            QVERIFY(!desk.bar()->isVisible());
            // Who presses Return all the same does not want to enter it again.
            if (waits)
                desk.press(Qt::Key_Return);
            QVERIFY(!desk.dialog());
        }
        // A new number takes the sign of the one before along.
        desk.model.setActiveTrace(3);
        for (const auto &[keys, value] :
             {std::pair("-17\r", -17.0), std::pair("-3.5\r", -3.5), std::pair("20\r", 20.0)}) {
            desk.click(desk.keys().reference);
            for (const char *key = keys; *key; ++key)
                QTest::keyClick(desk.window.windowHandle(), *key);
            QTRY_VERIFY(!desk.dialog());
            QCOMPARE(desk.model.trace(3)->scale.top, value);
        }
        // What is selected as a whole is replaced as a whole.
        desk.click(desk.keys().stop);
        desk.press(Qt::Key_End);
        desk.press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(desk.edit()->selectedText(), "2.45"_s);
        desk.press(Qt::Key_2);
        QCOMPARE(desk.edit()->text(), "2GHz"_s);
        desk.press(Qt::Key_Escape);
        // A digit in time takes the unit back.
        desk.click(desk.keys().stop);
        for (const char key : {'2', '.', '5', 'm', '5'})
            QTest::keyClick(desk.window.windowHandle(), key);
        QTest::qWait(2 * TypedEntry::patience);
        QVERIFY(desk.dialog());
        QCOMPARE(desk.stimulus().stop, 2.45e9);
    }

    void startTakesStopAlong()
    {
        Desk desk;
        desk.enter(desk.keys().stop, "2 . 4 GHz"_s);
        desk.enter(desk.keys().start, "2 . 5 GHz"_s);
        QCOMPARE(desk.stimulus(), (Stimulus{2.5e9, 2.5e9}));
        QCOMPARE(desk.bar()->message(), "Stop moved along, to 2.500 GHz."_s);
        desk.model.setSource(Source::Filter);
        QTRY_VERIFY(desk.model.networks().first().path.isEmpty());
        desk.enter(desk.keys().start, "2 . 7 GHz"_s);
        QVERIFY(desk.stimulus().span() <= Sweep::smallestSpan);
        QVERIFY(desk.bar()->message().startsWith("Stop moved along"_s));
    }

    void leavingRestoresOrCommits()
    {
        Desk desk;
        const Stimulus before = desk.stimulus();
        desk.enter(desk.keys().stop, "2 . 4 5 Esc"_s);
        QVERIFY(desk.stimulus() == before);
        // Steps show at once, and are taken back.
        desk.enter(desk.keys().center, "Up Up"_s);
        QCOMPARE(desk.stimulus().center(), 2.47e9);
        desk.press(Qt::Key_Escape);
        QVERIFY(desk.stimulus() == before);

        // A tap beside the dialog does as it is told to.
        for (const bool commits : {false, true}) {
            desk.click(desk.keys().stop);
            if (commits)
                desk.dialog()->setPressOutsidePolicy(NumericDialog::PressOutsideCommits);
            desk.type("2 . 4 5"_s);
            mouseClick(&desk.window, {60, 300});
            Desk::settle();
            QVERIFY(!desk.dialog());
            QCOMPARE(desk.stimulus().stop, commits ? 2.45e9 : 2.6e9);
        }

        // New files end the entry; the part on show stays.
        desk.enter(desk.keys().stop, "Down"_s);
        const Stimulus shown = desk.stimulus();
        desk.openSamples({"antenna.s1p"_s});
        Desk::settle();
        QVERIFY(!desk.dialog());
        QVERIFY(desk.stimulus() == shown);
    }

    void outOfRangeIsLimitedAndTold()
    {
        Desk desk;
        desk.enter(desk.keys().stop, "9 GHz"_s);
        QCOMPARE(desk.stimulus().stop, 2.6e9);
        QVERIFY(desk.bar()->isVisible());
        QCOMPARE(desk.bar()->message(), "Stop: 9 GHz is out of range, limited to 2.6 GHz."_s);

        // The next entry clears it; a step against the limit is told in the dialog.
        desk.click(desk.keys().stop);
        QVERIFY(!desk.bar()->isVisible());
        desk.type("Up"_s);
        QCOMPARE(desk.range(), "Highest value: 2.6 GHz"_s);
        desk.type("Down"_s);
        QCOMPARE(desk.range(), "2.3 GHz \u2026 2.6 GHz"_s);
        QCOMPARE(desk.stimulus().stop, 2.59e9);

        // No value at all keeps the dialog.
        desk.press(Qt::Key_Escape);
        desk.enter(desk.keys().stop, "Back Ok"_s);
        QVERIFY(desk.dialog());
        QCOMPARE(desk.range(), "Not a value"_s);
        desk.type("2 . 4 5 Up"_s); // a step starts from what was typed
        QCOMPARE(desk.stimulus().stop, 2.46e9);
    }

    void stepsByTheChosenStep()
    {
        Desk desk;
        desk.click(desk.keys().span);
        auto *stepKey = desk.dialog()->findChild<QAbstractButton *>("stepKey"_s);
        QCOMPARE(desk.dialog()->step(), NumericDialog::Step125);
        desk.type("Down Down"_s);
        QCOMPARE(desk.stimulus().span(), 100e6);
        desk.click(stepKey);
        QCOMPARE(desk.dialog()->step(), 10e6);
        desk.press(Qt::Key_Up); // the editor has kept the focus
        QCOMPARE(desk.stimulus().span(), 110e6);
        desk.click(stepKey);
        desk.press(Qt::Key_PageDown);
        QCOMPARE(desk.stimulus().span(), 109e6);
        desk.click(stepKey);
        desk.click(stepKey);
        QCOMPARE(desk.dialog()->step(), NumericDialog::Step125);
        desk.press(Qt::Key_Return);
        QCOMPARE(desk.stimulus().span(), 109e6);
    }

    void centerAndSpanCutTheTraces()
    {
        Desk desk;
        desk.model.addMarker(1, 0.0);
        desk.model.addMarker(1, 600.0);
        desk.enter(desk.keys().span, "1 0 MHz"_s);
        const QVector<double> *frequencies = nullptr, *real = nullptr, *imag = nullptr;
        for (const int id : {1, 2}) {
            QVERIFY(desk.chart()->sourceCurveData(id, frequencies, real, imag));
            QCOMPARE(frequencies->size(), 41);
            QCOMPARE(real->size(), 41);
            QCOMPARE(frequencies->constFirst(), 2.445e9);
        }
        QCOMPARE(desk.keys().points->value(), "41"_s);
        QVERIFY(!desk.keys().points->isEnabled());
        // The marker inside keeps its frequency, the other one is parked.
        QCOMPARE(desk.index(1, 2), 20.0);
        QCOMPARE(desk.index(1, 1), -1.0);

        // Less than the distance of two points still shows a line.
        desk.enter(desk.keys().span, "1 Hz"_s);
        QCOMPARE(desk.keys().points->value(), "2"_s);
        QCOMPARE(desk.keys().span->value(), "1.000 Hz"_s);

        desk.enter(desk.keys().span, "3 0 0 MHz"_s);
        QCOMPARE(desk.keys().points->value(), "1201"_s);
        QVERIFY(desk.stimulus() == desk.model.limits(*desk.model.activeTrace()));
    }

    void entersOtherQuantities()
    {
        Desk desk;
        desk.click(desk.keys().zoom);
        QCOMPARE(desk.range(), "1 \u2026 200"_s);
        desk.type("Up Up"_s);
        QCOMPARE(desk.zoom(desk.view()), 5.0);
        desk.type("4 0 0 Ok"_s);
        QCOMPARE(desk.zoom(desk.view()), 200.0);
        QCOMPARE(desk.keys().zoom->value(), "200.00 \u00d7"_s);
        QVERIFY(desk.bar()->isVisible());

        // Without a marker it sets one.
        desk.enter(desk.keys().markerStimulus, "2 . 4 5 0 1 2 5 GHz"_s);
        // Points are 250 kHz apart: half way between two of them.
        QCOMPARE(desk.index(1, 1), 600.5);
        QCOMPARE(desk.keys().markerStimulus->value(), "2.450125 GHz"_s);
    }

    void simulatedDeviceIsSweptAnew()
    {
        Desk desk;
        desk.model.setSource(Source::Antenna);
        const auto frequencies = [&desk] { return desk.model.networks().first().frequencies; };
        QTRY_COMPARE(frequencies().size(), 1001);

        desk.click(desk.keys().points);
        QCOMPARE(desk.range(), "2 \u2026 1000001"_s);
        desk.type("5 0 1 Ok"_s);
        QTRY_COMPARE(frequencies().size(), 501);
        desk.enter(desk.keys().start, "1 GHz"_s);
        QTRY_COMPARE(frequencies().first(), 1e9);
        desk.enter(desk.keys().span, "0 Ok"_s);
        QVERIFY(desk.bar()->isVisible());
        QTRY_COMPARE(frequencies().last() - frequencies().first(), Sweep::smallestSpan);

        // Frames that come meanwhile leave the typed text alone.
        desk.enter(desk.keys().center, "2 . 4 5"_s);
        QTest::qWait(4 * SweepSource::frameInterval);
        QCOMPARE(desk.edit()->text(), "2.45GHz"_s);
        desk.type("GHz"_s);
        QTRY_COMPARE((frequencies().first() + frequencies().last()) / 2.0, 2.45e9);
        QCOMPARE(desk.keys().center->value(), "2.450 GHz"_s);
    }
};

QTEST_MAIN(NumericDialogTest)
#include "tst_numericdialog.moc"
