// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/keypadeditor.h>
#include <controls/numericfield.h>
#include <controls/overlaycontainer.h>
#include <controls/touchnumkeyboard.h>

#include <events.h>
#include <pointer.h>
#include <vnatest.h>

#include <memory>

using namespace VnaTest;
using Controls::NumericField;
using Controls::TouchNumKeyboard;

namespace
{

/// A capacitance on a page that is no main window, with a main window hidden beside it.
struct Scene {
    Scene()
    {
        page->resize(700, 600);
        auto *layout = new QVBoxLayout(page.get());
        layout->addWidget(field);
        layout->addStretch();
        field->setUnit("F"_s);
        field->setPrefixes("pnu"_s);
        field->setRange(1e-12, 1e-4);
        field->setValue(4.7e-9);
        QObject::connect(field, &NumericField::valueChanged, page.get(), note("changed"));
        QObject::connect(field, &NumericField::valueEntered, page.get(), note("entered"));
        QObject::connect(field, &NumericField::valueClamped, page.get(),
                         [this](double entered, double value) {
                             told << "clamped %1 %2"_s.arg(entered).arg(value);
                         });
        QObject::connect(field, &NumericField::entryRefused, page.get(),
                         [this](const QString &text) { told << "refused "_s + text; });
        showExposed(page.get());
        page->activateWindow();
        QCoreApplication::processEvents();
    }
    std::function<void(double)> note(const char *what)
    {
        return [this, what](double value) {
            told << QLatin1String(what) + " "_s + QString::number(value);
        };
    }
    QLineEdit *editor() const { return field->findChild<QLineEdit *>("stepEdit"_s); }
    void tap() const { mouseClick(editor()); }
    void type(const char *keys) const
    {
        for (; *keys; ++keys)
            QTest::keyClick(page->windowHandle(), *keys);
    }
    void press(const QString &key) const { mouseClick(field->keypad()->findChild<QWidget *>(key)); }
    QStringList take() { return std::exchange(told, {}); }

    QMainWindow hidden;
    std::unique_ptr<QWidget> page = std::make_unique<QWidget>();
    NumericField *field = new NumericField;
    QStringList told;
};

} // namespace

class tst_NumericField : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void entries()
    {
        Scene f;
        QCOMPARE(f.editor()->text(), "4.7 nF"_s);
        f.tap();
        QVERIFY(f.field->keypad()->isVisible());
        QCOMPARE(f.field->keypad()->window(), f.page.get());
        QCOMPARE(f.editor()->selectedText(), "4.7"_s);
        // Keys that come before the event loop is reached replace the number.
        f.press("btn2"_s);
        f.press("btn2"_s);
        f.press("btnUnit1"_s); // pF
        QCOMPARE(f.take(), QStringList({"changed 2.2e-11"_s, "entered 2.2e-11"_s}));
        QTRY_VERIFY(!f.field->keypad()->isVisible());
        QCOMPARE(f.editor()->text(), "22 pF"_s);

        // A second one, beyond the range.
        f.tap();
        QVERIFY(f.field->keypad()->isVisible());
        f.type("999");
        f.press("btnUnit3"_s); // µF
        QCOMPARE(
            f.take(),
            QStringList({"changed 0.0001"_s, "entered 0.0001"_s, "clamped 0.000999 0.0001"_s}));
        QTRY_VERIFY(!f.field->keypad()->isVisible());

        // Opened by the program, it has its units, too.
        f.field->openKeypad();
        f.press("btnUnit2"_s); // nF
        QCOMPARE(f.take(), QStringList({"changed 1e-07"_s, "entered 1e-07"_s}));
        QTRY_VERIFY(!f.field->keypad()->isVisible());
        f.field->setValue(1e-4);
        f.take();

        // Without the keypad, and no number.
        f.editor()->setFocus();
        QCoreApplication::processEvents();
        f.editor()->setText("1..2"_s);
        f.type("\r");
        QCOMPARE(f.take(), QStringList("refused 1..2"_s));
        QCOMPARE(f.editor()->text(), "100 \u00b5F"_s);

        f.editor()->setFocus();
        QTest::keyClick(f.page->windowHandle(), Qt::Key_Down);
        QCOMPARE(f.take(), QStringList({"changed 5e-05"_s, "entered 5e-05"_s}));
    }

    void pressOutsideAndEscapeClose()
    {
        Scene f;
        for (const bool outside : {true, false}) {
            f.tap();
            f.type("12");
            if (outside)
                mouseClick(f.page.get(), {5, 590});
            else
                f.press("btnEsc"_s);
            QTRY_VERIFY(!f.field->keypad()->isVisible());
            QCOMPARE(f.editor()->text(), "4.7 nF"_s);
            QCOMPARE(f.take(), QStringList());
        }
    }

    // Another window is no answer.
    void halfTypedStaysOpen()
    {
        Scene f;
        f.tap();
        f.type("12");
        QDialog other(f.page.get());
        other.show();
        other.activateWindow();
        QTRY_COMPARE(QApplication::activeWindow(), &other);
        QCOMPARE(f.take(), QStringList());
        other.hide();
        f.page->activateWindow();
        f.editor()->setFocus();
        QTRY_VERIFY(f.editor()->hasFocus());
        QCoreApplication::processEvents();
        f.type("3");
        QCOMPARE(f.editor()->text(), "123 nF"_s);
        f.type("\r");
        QCOMPARE(f.take(), QStringList({"changed 1.23e-07"_s, "entered 1.23e-07"_s}));
    }

    void properties()
    {
        NumericField field;
        field.setProperty("unit", "Hz"_s);
        field.setProperty("prefixes", "G?k "_s); // "?" is no prefix
        field.setProperty("minimum", -5.0);
        field.setProperty("maximum", 2e9);
        field.setProperty("unitSpacing", false);
        field.setProperty("value", 3e9);
        QCOMPARE(field.property("value").toDouble(), 2e9);
        const auto text = [&field] { return field.findChild<QLineEdit *>()->text(); };
        QCOMPARE(text(), "2GHz"_s);
        QCOMPARE(field.adapter()->availableUnits(), QStringList({"GHz"_s, "kHz"_s, "Hz"_s}));
        field.setDecimals(0);
        field.setValue(qQNaN());
        QCOMPARE(text(), "2GHz"_s);
        field.setMaximum(-7.0);
        QCOMPARE(field.value(), -7.0);
        QCOMPARE(field.minimum(), -7.0);

        // A host's adapter, in place of the own one and back.
        auto own = std::make_unique<Controls::BaseUnitAdapter>();
        own->setRealValue(42.0);
        QSignalSpy changed(&field, &NumericField::valueChanged);
        static_cast<Controls::IEditableTitleWidget &>(field).setAdapter(own.get());
        QCOMPARE(text(), "42"_s);
        QCOMPARE(changed.count(), 1);
        field.setValue(43.0);
        QCOMPARE(own->getRealValue(), 43.0);
        field.setUnit("V"_s); // for later
        field.setSingleStep(3.0);
        QCOMPARE(text(), "43"_s);
        sendKey(own.get(), Qt::Key_Up);
        QCOMPARE(field.value(), 46.0);
        field.setAdapter(nullptr);
        field.setAdapter(nullptr);
        QCOMPARE(text(), "-7V"_s);
        field.setAdapter(own.get());
        own.reset();
        QCOMPARE(field.value(), 0.0);
        field.setValue(5.0); // nobody keeps it
        static_cast<Controls::IEditableTitleWidget &>(field).onFocus();
        field.setRange(-9.0, 9.0);
        field.setSingleStep(1.0);
        QCOMPARE(field.value(), 0.0);
        field.setAdapter(nullptr);
        QCOMPARE(text(), "-7V"_s);
    }

    void refusesWhatIsNoRangeOrStep()
    {
        Scene f;
        f.field->setRange(qQNaN(), 1.0);
        f.field->setRange(0.0, qQNaN());
        f.field->setRange(1.0, 0.5);
        QCOMPARE(f.field->minimum(), 1e-12);
        QCOMPARE(f.field->maximum(), 1e-4);
        f.field->setSingleStep(1e-9);
        f.field->setSingleStep(qInf());
        f.field->setSingleStep(qQNaN());
        QCOMPARE(f.field->singleStep(), 1e-9);
        f.editor()->setFocus();
        QTest::keyClick(f.page->windowHandle(), Qt::Key_Up);
        QCOMPARE(f.field->value(), 5.7e-9);
        // Without a lower bound, and without any.
        f.field->setRange(-qInf(), 1e-9);
        QCOMPARE(f.field->value(), 1e-9);
        f.field->setRange(-qInf(), qInf());
        f.field->setValue(-1.0);
        QCOMPARE(f.field->value(), -1.0);
    }

    /// A commit that comes from elsewhere, also where it ends the field.
    void commitsWithoutItsKeypad()
    {
        QPointer<NumericField> field = new NumericField;
        const auto commit = [&field](const QString &text) {
            field->adapter()->setProperty("inputText", text);
            sendKey(field->adapter(), Qt::Key_Return);
            QCoreApplication::processEvents();
        };
        commit("5"_s);
        QCOMPARE(field->value(), 5.0);
        QSignalSpy finished(field->keypad(), &QDialog::finished);
        commit("6"_s);
        QCOMPARE(field->value(), 6.0);
        QVERIFY(finished.isEmpty()); // it was not open
        field->setRange(0.0, 6.5);
        QSignalSpy entered(field, &NumericField::valueEntered);
        QSignalSpy limited(field, &NumericField::valueClamped);
        connect(field, &NumericField::valueChanged, this, [&field] { delete field; });
        commit("7"_s);
        QVERIFY(!field && entered.isEmpty() && limited.isEmpty());
    }

    void keypadStaysAwayWhereNothingCanBeEntered()
    {
        Scene f;
        f.tap();
        f.type("12");
        f.field->openKeypad(); // it is: what is typed stays
        QCOMPARE(f.editor()->text(), "12 nF"_s);
        QVERIFY(!f.editor()->hasSelectedText());
        f.press("btnEsc"_s);
        QTRY_VERIFY(!f.field->keypad()->isVisible());
        const auto opens = [&f](Qt::MouseButton button = Qt::LeftButton) {
            QTest::mouseClick(f.editor(), button);
            const bool opened = f.field->keypad()->isVisible();
            f.field->keypad()->hide();
            return opened;
        };
        f.field->setKeypadEnabled(false);
        QVERIFY(!opens());
        f.field->openKeypad(); // asked for by the host
        QVERIFY(f.field->keypad()->isVisible());
        f.field->keypad()->hide();
        f.field->setKeypadEnabled(true);
        QVERIFY(!opens(Qt::MiddleButton));
        f.editor()->setReadOnly(true);
        QVERIFY(!opens());
        f.editor()->setReadOnly(false);
        f.field->setEnabled(false);
        f.field->openKeypad();
        QVERIFY(!f.field->keypad()->isVisible());
        f.field->setEnabled(true);
        QVERIFY(opens());
    }

    // A keypad for a soft key in a window that is none of the main windows.
    void keypadOpensWhereItsAnchorIs()
    {
        const Scene f;
        auto *keypad = new TouchNumKeyboard(f.page.get());
        auto *adapter = new Controls::BaseUnitAdapter(keypad);
        new Controls::KeypadEditor(keypad, adapter);
        keypad->setPopupAnchorWidget(f.field);
        keypad->setDimEnabled(true);
        static_cast<QWidget *>(keypad)->setWindowTitle("Level"_s);
        QCOMPARE(keypad->findChild<QLabel *>("nameLabel"_s)->text(), "Level"_s);
        for (const double value : {5.0, 6.0}) {
            keypad->open();
            QCOMPARE(keypad->window(), f.page.get());
            f.type(qPrintable(QString::number(value)));
            f.type("\r");
            QCOMPARE(adapter->getRealValue(), value);
            QVERIFY(!keypad->isVisible());
        }
    }
};

QTEST_MAIN(tst_NumericField)
#include "tst_numericfield.moc"
