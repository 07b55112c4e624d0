// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"
#include "vnatest.h"

#include <controls/overlaycontainer.h>
#include <panel/look.h>
#include <panel/messagebar.h>
#include <panel/numericdialog.h>
#include <panel/sweepcontroller.h>
#include <panel/units.h>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

using namespace Panel;

namespace
{

struct Desk : PanelDesk {
    using PanelDesk::PanelDesk;

    /// Also lets a closed dialog go.
    static void settle()
    {
        PanelDesk::settle();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    NumericDialog *dialog() const { return window.findChild<NumericDialog *>(); }
    QLineEdit *edit() const { return dialog()->findChild<QLineEdit *>(QStringLiteral("edit")); }
    QString range() const { return dialog()->findChild<QLabel *>(QStringLiteral("range"))->text(); }
    const Stimulus &stimulus() const { return model.stimulus(*model.activeTrace()); }

    void tap(const QWidget *widget)
    {
        click(widget);
        settle();
    }
    /// Taps keys of the keypad: digits, "." and the object names of others, without "btn".
    void type(const QStringList &keys)
    {
        for (const QString &key : keys) {
            const QString name =
                QStringLiteral("btn") + (key == QLatin1String(".") ? QStringLiteral("P") : key);
            auto *button = dialog()->findChild<QAbstractButton *>(name);
            QVERIFY2(button && button->isVisible(), qPrintable(name));
            tap(button);
        }
    }
    /// Taps the key of a unit.
    void tapUnit(const QString &unit)
    {
        const auto buttons = dialog()->findChildren<QAbstractButton *>();
        for (QAbstractButton *button : buttons) {
            if (button->isVisible() && button->text() == unit) {
                tap(button);
                return;
            }
        }
        QFAIL(qPrintable(unit));
    }
    void press(Qt::Key key, const QString &text = {})
    {
        VnaTest::typeKey(&window, key, text);
        settle();
    }
};

const QStringList s_2450{QStringLiteral("2"), QStringLiteral("."), QStringLiteral("4"),
                         QStringLiteral("5")};

} // namespace

class NumericDialogTest : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }
    void opensOverTheDimmedPanel_data();
    void opensOverTheDimmedPanel();
    void entersByTheKeypad();
    void entersByKeypadAndKeyboard();
    void keyboardAlone();
    void escapeRestores();
    void tapBesideFollowsThePolicy();
    void outOfRangeIsLimitedAndTold();
    void noValueKeepsTheDialog();
    void stepsByTheChosenStep();
    void stepsStartFromWhatWasTyped();
    void untouchedValueStaysExact();
    void centerAndSpanCutTheTraces();
    void markerGoesToItsStimulus();
    void scaleZoomsTheChart();
    void newFilesEndTheEntry();
    void simulatedDeviceIsSweptAnew();
};

void NumericDialogTest::opensOverTheDimmedPanel_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("smallest") << QSize(800, 480);
    QTest::newRow("wide") << QSize(1280, 800);
}

void NumericDialogTest::opensOverTheDimmedPanel()
{
    QFETCH(QSize, size);
    Desk desk(size);
    const QPoint beside(size.width() / 4, size.height() / 2);
    const QImage before = desk.window.grab().toImage();
    for (SoftKey *key : {desk.window.keys().start, desk.window.keys().span}) {
        desk.tap(key);
        QVERIFY(desk.dialog());
        QVERIFY(!desk.dialog()->isWindow());
        const QRect place(desk.dialog()->mapTo(&desk.window, QPoint()), desk.dialog()->size());
        QVERIFY(desk.window.rect().contains(place));
        QCOMPARE(desk.dialog()->windowTitle(), key->name());
        QCOMPARE(desk.range(),
                 key == desk.window.keys().span ? QStringLiteral("0 Hz \u2026 300 MHz")
                                                : QStringLiteral("2.3 GHz \u2026 2.6 GHz"));
        QVERIFY(desk.edit()->hasFocus());
        QCOMPARE(desk.edit()->selectedText(),
                 key == desk.window.keys().span ? QStringLiteral("300") : QStringLiteral("2.3"));
        desk.press(Qt::Key_Escape);
        QVERIFY(!desk.dialog());
    }
    // The same picture as before, but for the focus.
    QCOMPARE(desk.window.grab().toImage().pixelColor(beside), before.pixelColor(beside));
    desk.tap(desk.window.keys().stop);
    const auto *overlay = qobject_cast<QWidget *>(desk.dialog()->parent());
    QVERIFY(overlay && overlay->testAttribute(Qt::WA_StyledBackground));
    QCOMPARE(overlay->geometry(), desk.window.rect());
}

void NumericDialogTest::entersByTheKeypad()
{
    Desk desk;
    desk.tap(desk.window.keys().stop);
    desk.type(s_2450);
    QCOMPARE(desk.edit()->text(), QStringLiteral("2.45GHz"));
    QCOMPARE(desk.stimulus().stop, 2.6e9); // nothing before the unit key
    desk.tapUnit(QStringLiteral("GHz"));
    QVERIFY(!desk.dialog());
    QCOMPARE(desk.stimulus().stop, 2.45e9);
    QCOMPARE(desk.window.keys().stop->value(), QStringLiteral("2.450 GHz"));
    QVERIFY(!desk.window.messageBar()->isVisible());

    // Another unit, and OK with the unit on show.
    desk.tap(desk.window.keys().start);
    desk.type({QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("5"), QStringLiteral("0")});
    desk.tapUnit(QStringLiteral("MHz"));
    QCOMPARE(desk.stimulus().start, 2.35e9);
    desk.tap(desk.window.keys().start);
    desk.type({QStringLiteral("Right"), QStringLiteral("Back"), QStringLiteral("6"),
               QStringLiteral("Ok")});
    QCOMPARE(desk.stimulus().start, 2.36e9);
}

void NumericDialogTest::entersByKeypadAndKeyboard()
{
    Desk desk;
    desk.tap(desk.window.keys().stop);
    desk.type({QStringLiteral("2"), QStringLiteral(".")});
    desk.press(Qt::Key_4, QStringLiteral("4"));
    desk.type({QStringLiteral("9")});
    desk.press(Qt::Key_Backspace);
    desk.type({QStringLiteral("5")});
    desk.press(Qt::Key_Return, QStringLiteral("\r"));
    QVERIFY(!desk.dialog());
    QCOMPARE(desk.stimulus().stop, 2.45e9);
}

void NumericDialogTest::keyboardAlone()
{
    Desk desk;
    SoftKeyMenu *menu = desk.window.softKeys();
    for (const int page : {1, 2, 3, 4, 5, 0}) {
        QTest::keyClick(desk.window.windowHandle(), Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(menu->page(), page);
    }
    desk.window.keys().start->setFocus();
    desk.press(Qt::Key_Down);
    QVERIFY(desk.window.keys().stop->hasFocus());
    desk.press(Qt::Key_Return, QStringLiteral("\r"));
    QVERIFY(desk.dialog());
    for (const QString &character : s_2450)
        desk.press(Qt::Key(character.at(0).unicode()), character);
    desk.press(Qt::Key_Enter, QStringLiteral("\r"));
    QCOMPARE(desk.stimulus().stop, 2.45e9);
    // The focus is back where it was, ready for the next entry.
    QVERIFY(desk.window.keys().stop->hasFocus());
}

void NumericDialogTest::escapeRestores()
{
    Desk desk;
    const Stimulus before = desk.stimulus();
    desk.tap(desk.window.keys().stop);
    desk.type(s_2450);
    desk.type({QStringLiteral("Esc")});
    QVERIFY(!desk.dialog());
    QCOMPARE(desk.stimulus().stop, before.stop);

    // Steps show at once, and are taken back.
    desk.tap(desk.window.keys().center);
    desk.type({QStringLiteral("Up"), QStringLiteral("Up")});
    QCOMPARE(desk.stimulus().center(), 2.47e9);
    desk.press(Qt::Key_Escape);
    QVERIFY(desk.stimulus() == before);
}

void NumericDialogTest::tapBesideFollowsThePolicy()
{
    Desk desk;
    const QPoint beside(60, 300);
    desk.tap(desk.window.keys().stop);
    desk.type(s_2450);
    VnaTest::mouseClick(&desk.window, beside);
    Desk::settle();
    QVERIFY(!desk.dialog());
    QCOMPARE(desk.stimulus().stop, 2.6e9);

    desk.tap(desk.window.keys().stop);
    desk.dialog()->setPressOutsidePolicy(NumericDialog::PressOutsideCommits);
    desk.type(s_2450);
    VnaTest::mouseClick(&desk.window, beside);
    Desk::settle();
    QVERIFY(!desk.dialog());
    QCOMPARE(desk.stimulus().stop, 2.45e9);
}

void NumericDialogTest::outOfRangeIsLimitedAndTold()
{
    Desk desk;
    desk.tap(desk.window.keys().stop);
    desk.type({QStringLiteral("9")});
    desk.tapUnit(QStringLiteral("GHz"));
    QVERIFY(!desk.dialog());
    QCOMPARE(desk.stimulus().stop, 2.6e9);
    QVERIFY(desk.window.messageBar()->isVisible());
    QCOMPARE(desk.window.messageBar()->message(),
             QStringLiteral("Stop: 9 GHz is out of range, limited to 2.6 GHz."));

    // The next entry clears it; a step against the limit is told in the dialog.
    desk.tap(desk.window.keys().stop);
    QVERIFY(!desk.window.messageBar()->isVisible());
    desk.type({QStringLiteral("Up")});
    QCOMPARE(desk.range(), QStringLiteral("Highest value: 2.6 GHz"));
    desk.type({QStringLiteral("Down")});
    QCOMPARE(desk.range(), QStringLiteral("2.3 GHz \u2026 2.6 GHz"));
    QCOMPARE(desk.stimulus().stop, 2.59e9);
}

void NumericDialogTest::noValueKeepsTheDialog()
{
    Desk desk;
    desk.tap(desk.window.keys().stop);
    desk.type({QStringLiteral("Back"), QStringLiteral("Ok")});
    QVERIFY(desk.dialog());
    QCOMPARE(desk.range(), QStringLiteral("Not a value"));
    desk.type(s_2450);
    desk.tapUnit(QStringLiteral("GHz"));
    QCOMPARE(desk.stimulus().stop, 2.45e9);
}

void NumericDialogTest::stepsByTheChosenStep()
{
    Desk desk;
    desk.tap(desk.window.keys().span);
    auto *stepKey = desk.dialog()->findChild<QAbstractButton *>(QStringLiteral("stepKey"));
    QCOMPARE(desk.dialog()->step(), NumericDialog::Step125);
    desk.type({QStringLiteral("Down"), QStringLiteral("Down")});
    QCOMPARE(desk.stimulus().span(), 100e6);
    desk.tap(stepKey);
    QCOMPARE(desk.dialog()->step(), 10e6);
    desk.press(Qt::Key_Up); // the editor has kept the focus
    QCOMPARE(desk.stimulus().span(), 110e6);
    desk.tap(stepKey);
    desk.press(Qt::Key_PageDown);
    QCOMPARE(desk.stimulus().span(), 109e6);
    for (int i = 0; i < 2; ++i)
        desk.tap(stepKey);
    QCOMPARE(desk.dialog()->step(), NumericDialog::Step125);
    desk.press(Qt::Key_Return, QStringLiteral("\r"));
    QVERIFY(!desk.dialog());
    QCOMPARE(desk.stimulus().span(), 109e6);
}

void NumericDialogTest::stepsStartFromWhatWasTyped()
{
    Desk desk;
    desk.tap(desk.window.keys().stop);
    desk.type(s_2450);
    desk.type({QStringLiteral("Up")});
    QCOMPARE(desk.stimulus().stop, 2.46e9);
}

void NumericDialogTest::untouchedValueStaysExact()
{
    Desk desk;
    const double third = 2.4e9 + 1.0 / 3.0;
    desk.model.setStimulus(*desk.model.activeTrace(), {2.3e9, third});
    desk.tap(desk.window.keys().stop);
    desk.type({QStringLiteral("Ok")});
    QVERIFY(!desk.dialog());
    QCOMPARE(desk.stimulus().stop, third);
    desk.tap(desk.window.keys().stop);
    desk.tapUnit(QStringLiteral("MHz")); // 2.4 GHz is not 2.4 MHz
    QCOMPARE(desk.stimulus().stop, 2.3e9);
}

void NumericDialogTest::centerAndSpanCutTheTraces()
{
    Desk desk;
    desk.model.addMarker(1, 0.0);
    desk.model.addMarker(1, 600.0);
    desk.tap(desk.window.keys().span);
    desk.type({QStringLiteral("1"), QStringLiteral("0")});
    desk.tapUnit(QStringLiteral("MHz"));
    const QVector<double> *frequencies = nullptr, *real = nullptr, *imag = nullptr;
    for (const int id : {1, 2}) {
        QVERIFY(desk.window.smithView()->chart()->sourceCurveData(id, frequencies, real, imag));
        QCOMPARE(frequencies->size(), 41);
        QCOMPARE(real->size(), 41);
        QCOMPARE(frequencies->constFirst(), 2.445e9);
    }
    QCOMPARE(desk.window.keys().points->value(), QStringLiteral("41"));
    QVERIFY(!desk.window.keys().points->isEnabled());
    // The marker inside keeps its frequency, the other one stands at the edge.
    QCOMPARE(desk.model.marker(1, 2)->index, 20.0);
    QCOMPARE(desk.model.marker(1, 1)->index, 0.0);

    // Less than the distance of two points still shows a line.
    desk.tap(desk.window.keys().span);
    desk.type({QStringLiteral("1")});
    desk.tapUnit(QStringLiteral("Hz"));
    QCOMPARE(desk.window.keys().points->value(), QStringLiteral("2"));
    QCOMPARE(desk.window.keys().span->value(), QStringLiteral("1.000 Hz"));

    desk.tap(desk.window.keys().span);
    desk.type({QStringLiteral("3"), QStringLiteral("0"), QStringLiteral("0")});
    desk.tapUnit(QStringLiteral("MHz"));
    QCOMPARE(desk.window.keys().points->value(), QStringLiteral("1201"));
    QVERIFY(desk.stimulus() == desk.model.limits(*desk.model.activeTrace()));
}

void NumericDialogTest::markerGoesToItsStimulus()
{
    Desk desk;
    QVERIFY(!desk.window.keys().markerStimulus->isEnabled());
    desk.model.addMarker(1, 0.0);
    desk.tap(desk.window.keys().markerStimulus);
    desk.type(s_2450);
    desk.type({QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("5")});
    desk.tapUnit(QStringLiteral("GHz"));
    // Points are 250 kHz apart: half way between two of them.
    QCOMPARE(desk.model.marker(1, 1)->index, 600.5);
    QCOMPARE(desk.window.keys().markerStimulus->value(), QStringLiteral("2.450125 GHz"));
}

void NumericDialogTest::scaleZoomsTheChart()
{
    Desk desk;
    desk.tap(desk.window.keys().zoom);
    QCOMPARE(desk.range(), QStringLiteral("1 \u2026 20"));
    desk.type({QStringLiteral("Up"), QStringLiteral("Up")});
    QCOMPARE(desk.window.smithView()->zoom(), 5.0);
    desk.type({QStringLiteral("4"), QStringLiteral("0"), QStringLiteral("Ok")});
    QCOMPARE(desk.window.smithView()->zoom(), 20.0);
    QCOMPARE(desk.window.keys().zoom->value(), QStringLiteral("20.00 \u00d7"));
    QVERIFY(desk.window.messageBar()->isVisible());
}

void NumericDialogTest::newFilesEndTheEntry()
{
    Desk desk;
    desk.tap(desk.window.keys().stop);
    desk.type({QStringLiteral("Down")});
    desk.controller.openFiles({sampleFolder() + QStringLiteral("/antenna.s1p")});
    Desk::settle();
    QVERIFY(!desk.dialog());
    QVERIFY(desk.stimulus() == desk.model.limits(*desk.model.activeTrace()));
}

void NumericDialogTest::simulatedDeviceIsSweptAnew()
{
    Desk desk;
    desk.controller.sweepController()->simulate(SimulatedDevice::Antenna);
    const auto frequencies = [&desk] { return desk.model.networks().first().frequencies; };
    QTRY_COMPARE(frequencies().size(), 1001);

    desk.tap(desk.window.keys().points);
    QCOMPARE(desk.range(), QStringLiteral("201 \u2026 1000001"));
    desk.type(
        {QStringLiteral("5"), QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("Ok")});
    QTRY_COMPARE(frequencies().size(), 501);
    desk.tap(desk.window.keys().start);
    desk.type({QStringLiteral("1")});
    desk.tapUnit(QStringLiteral("GHz"));
    QTRY_COMPARE(frequencies().first(), 1e9);
    desk.tap(desk.window.keys().span);
    desk.type({QStringLiteral("0"), QStringLiteral("Ok")});
    QVERIFY(desk.window.messageBar()->isVisible());
    QTRY_COMPARE(frequencies().last() - frequencies().first(), Sweep::leastSpan);

    // Frames that come meanwhile leave the typed text alone.
    desk.tap(desk.window.keys().center);
    desk.type(s_2450);
    QTest::qWait(4 * SweepSource::frameInterval);
    QCOMPARE(desk.edit()->text(), QStringLiteral("2.45GHz"));
    desk.tapUnit(QStringLiteral("GHz"));
    QTRY_COMPARE((frequencies().first() + frequencies().last()) / 2.0, 2.45e9);
    QCOMPARE(desk.window.keys().center->value(), QStringLiteral("2.450 GHz"));
}

QTEST_MAIN(NumericDialogTest)
#include "tst_numericdialog.moc"
