// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/labelbutton.h>

#include <pointer.h>
#include <vnatest.h>

using namespace VnaTest;

namespace
{

const QString LongValue = "2.412 345 678 901 GHz"_s;

/// A label button in a window, 120 pixels wide.
struct Fixture {
    Fixture()
    {
        button->setGeometry(0, 0, 120, 60);
        window.resize(400, 200);
        showExposed(&window);
        button->setText("Start"_s);
        button->setLabelText(LongValue);
    }
    int advance(const QString &text) const
    {
        return button->label()->fontMetrics().horizontalAdvance(text);
    }
    QString shown() const { return button->label()->text(); }

    QWidget window;
    LabelButton *button = new LabelButton(&window);
};

} // namespace

class tst_LabelButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheEndOfALongValue()
    {
        Fixture f;
        QCOMPARE(f.button->labelText(), LongValue);
        QVERIFY(f.shown().startsWith(QChar(0x2026)) && f.shown().endsWith("GHz"_s));
        QVERIFY(f.advance(f.shown()) <= 120);
        const auto *const accessible = QAccessible::queryAccessibleInterface(f.button);
        QCOMPARE(accessible->text(QAccessible::Name), "Start"_s);
        QCOMPARE(accessible->text(QAccessible::Value), LongValue);

        // A value exactly as wide as the room is shortened too; one pixel more shows it whole.
        f.button->resize(f.advance(LongValue), 60);
        QVERIFY(f.shown() != LongValue);
        f.button->resize(f.advance(LongValue) + 1, 60);
        QCOMPARE(f.shown(), LongValue);

        // Whatever else takes room shortens it again.
        f.button->setLabelMargins({0, 0, 10, 0});
        QCOMPARE(f.button->label()->contentsMargins().right(), 10);
        QVERIFY(f.shown() != LongValue);
        f.button->setLabelMargins({});
        QCOMPARE(f.shown(), LongValue);
        QFont large = f.button->labelFont();
        large.setPixelSize(30);
        f.button->setLabelFont(large);
        QVERIFY(f.shown() != LongValue);
        f.button->setLabelFont(QFont());
        QCOMPARE(f.shown(), LongValue);
        f.button->setStyleSheet("QLabel#valueLabel { padding-left: 20px; }"_s);
        QVERIFY(f.shown() != LongValue);
        QVERIFY(f.button->label()->sizeHint().width() <= f.button->width());
        f.button->setLabelText("1 Hz"_s);
        QCOMPARE(f.shown(), "1 Hz"_s);
    }

    void wrapsOnDemand()
    {
        Fixture f;
        f.button->setProperty("multilineLabel", true);
        QVERIFY(f.button->label()->wordWrap());
        QCOMPARE(f.shown(), LongValue);
        QCOMPARE(f.button->label()->maximumWidth(), 130);
        f.button->resize(90, 60);
        QCOMPARE(f.button->label()->maximumWidth(), 100);
        f.button->setProperty("multilineLabel", QVariant());
        QVERIFY(!f.button->label()->wordWrap());
        QCOMPARE(f.button->label()->maximumWidth(), QWIDGETSIZE_MAX);
        QVERIFY(f.shown() != LongValue);
        f.button->setProperty("multilineLabel", true);
        QVERIFY(f.button->sizeHint().width() <= f.button->label()->sizeHint().width());
    }

    void layoutGivesTheWholeValueItsRoom()
    {
        for (const InfoButton::LayoutType type :
             {InfoButton::TopBottom, InfoButton::LeftRight, InfoButton::RightLeft}) {
            QWidget window;
            QHBoxLayout box(&window);
            LabelButton button;
            box.addWidget(&button);
            box.addStretch();
            button.setLayoutType(type);
            button.setText("Start"_s);
            button.setLabelText(LongValue); // is shortened at first, while the button has no size
            window.resize(600, 100);
            window.show();
            QTRY_COMPARE(button.label()->text(), LongValue);
            QVERIFY(button.width() < 300);
            window.resize(150, 100); // the window may shrink all the same
            QCOMPARE(window.width(), 150);
        }
    }

    void replacesTheLabel()
    {
        Fixture f;
        const QPointer<QLabel> old(f.button->label());
        auto *const label = new QLabel;
        f.button->setLabel(label);
        QVERIFY(!old);
        f.button->setLabel(label);
        QCOMPARE(f.button->label(), label);
        QVERIFY(f.shown().endsWith("GHz"_s));

        // It may go behind the button's back.
        delete f.button->label();
        f.button->setLabelText(LongValue + LongValue);
        f.button->setLabelFont(QFont("Sans"_s, 20));
        f.button->setLabelMargins({1, 1, 1, 1});
        f.button->setLabelAlignment(Qt::AlignLeft);
        f.button->resize(80, 80);
        QVERIFY(f.button->sizeHint().isValid());
        f.button->setLabel(new QLabel);
        QVERIFY(f.shown().endsWith("GHz"_s));

        // What it brings along stays until something else is set.
        QFont bold;
        bold.setBold(true);
        f.button->label()->setFont(bold);
        f.button->setLabelFont(f.button->labelFont());
        f.button->setLabelMargins(f.button->labelMargins());
        f.button->setLabelAlignment(f.button->labelAlignment());
        QVERIFY(f.button->label()->font().bold());
        QCOMPARE(f.button->label()->contentsMargins(), QMargins());
        QVERIFY(f.button->label()->alignment() != f.button->labelAlignment());

        // Nothing, and the button's own name, are refused.
        QLabel *const kept = f.button->label();
        for (QLabel *const bad :
             {static_cast<QLabel *>(nullptr), f.button->findChild<QLabel *>("nameLabel"_s)}) {
            QString text;
            QDebug(&text) << "InfoButton::setInfoWidget: cannot show"
                          << static_cast<QWidget *>(bad);
            expectWarning(text.trimmed());
            f.button->setLabel(bad);
            QCOMPARE(f.button->label(), kept);
        }

        // A label that another button took over is no longer ours to write into.
        LabelButton other;
        QLabel *const taken = f.button->label();
        other.setLabel(taken);
        f.button->setLabelText("1 Hz"_s);
        QVERIFY(taken->text() != "1 Hz"_s);
        taken->setText("2 Hz"_s);
        taken->setFont(QFont("Sans"_s, 22)); // the old button sees that, too
        QCOMPARE(taken->text(), QString()); // fitted by the new one, which shows nothing
        f.button->setInfoWidget(new QWidget);
        QCOMPARE(other.label(), taken);
    }

    // Stays last: a touch device cannot be removed.
    void followsNoHoverOnceThereIsATouchScreen()
    {
        Fixture f;
        for (const bool touchScreen : {false, true}) {
            if (touchScreen)
                QTest::createTouchDevice();
            mouseMove(&f.window, {300, 150});
            QVERIFY(!f.button->underMouse());
            mouseMove(&f.window, {60, 30});
            QCOMPARE(f.button->underMouse(), !touchScreen);
        }
    }
};

QTEST_MAIN(tst_LabelButton)
#include "tst_labelbutton.moc"
