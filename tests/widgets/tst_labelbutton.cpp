// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/labelbutton.h>

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

#include <pointer.h>
#include <vnatest.h>

class tst_LabelButton : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheEndOfALongValue();
    void fitsAgainWhenSomethingChanges();
    void wrapsOnDemand();
    void layoutGivesTheWholeValueItsRoom();
    void replacesTheLabel();
    void survivesLabelsThatGo();
    void readsOutNameAndValue();
    void followsNoHoverOnceThereIsATouchScreen(); // stays last: a touch device cannot be removed
};

namespace
{

const QString LongValue = QStringLiteral("2.412 345 678 901 GHz");

/// A label button in a window, 120 pixels wide.
struct Fixture {
    Fixture()
    {
        button->setGeometry(0, 0, 120, 60);
        window.resize(400, 200);
        window.show();
        button->setText(QStringLiteral("Start"));
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

void tst_LabelButton::keepsTheEndOfALongValue()
{
    Fixture f;
    f.button->setLabelText(LongValue);
    QCOMPARE(f.button->labelText(), LongValue);
    QVERIFY(f.shown().startsWith(QChar(0x2026)));
    QVERIFY(f.shown().endsWith(QStringLiteral("GHz")));
    QVERIFY(f.advance(f.shown()) <= 120);

    // A value exactly as wide as the room is shortened too; one pixel more shows it whole.
    f.button->resize(f.advance(LongValue), 60);
    QVERIFY(f.shown() != LongValue);
    f.button->resize(f.advance(LongValue) + 1, 60);
    QCOMPARE(f.shown(), LongValue);
}

void tst_LabelButton::fitsAgainWhenSomethingChanges()
{
    Fixture f;
    f.button->setLabelText(LongValue);
    f.button->resize(f.advance(LongValue) + 1, 60);
    QCOMPARE(f.shown(), LongValue);

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

    // A style sheet counts as well.
    f.button->setStyleSheet(QStringLiteral("QLabel#valueLabel { padding-left: 20px; }"));
    QVERIFY(f.shown() != LongValue);
    QVERIFY(f.button->label()->sizeHint().width() <= f.button->width());
    f.button->setLabelText(QStringLiteral("1 Hz"));
    QCOMPARE(f.shown(), QStringLiteral("1 Hz"));
}

void tst_LabelButton::wrapsOnDemand()
{
    Fixture f;
    f.button->setLabelText(LongValue);
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
}

void tst_LabelButton::layoutGivesTheWholeValueItsRoom()
{
    for (const InfoButton::LayoutType type : {InfoButton::TopBottom, InfoButton::LeftRight}) {
        QWidget window;
        auto *const box = new QHBoxLayout(&window);
        auto *const button = new LabelButton;
        box->addWidget(button);
        box->addStretch();
        button->setLayoutType(type);
        button->setText(QStringLiteral("Start"));
        button->setLabelText(LongValue); // is shortened at first, while the button has no size
        window.resize(600, 100);
        window.show();
        QTRY_COMPARE(button->label()->text(), LongValue);
        QVERIFY(button->width() < 300);
        window.resize(150, 100); // the window may shrink all the same
        QCOMPARE(window.width(), 150);
    }
}

void tst_LabelButton::replacesTheLabel()
{
    Fixture f;
    f.button->setLabelText(LongValue);
    const QPointer<QLabel> old(f.button->label());
    QCOMPARE(old->objectName(), QStringLiteral("valueLabel"));
    QCOMPARE(old->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    auto *const label = new QLabel;
    f.button->setLabel(label);
    QVERIFY(!old);
    QCOMPARE(f.button->infoWidget(), label);
    f.button->setLabel(label);
    QCOMPARE(f.button->label(), label);
    QVERIFY(f.shown().endsWith(QStringLiteral("GHz")));
    f.button->setLabelAlignment(Qt::AlignCenter);
    QCOMPARE(label->alignment(), Qt::AlignCenter);
}

void tst_LabelButton::survivesLabelsThatGo()
{
    Fixture f;
    delete f.button->label();
    QVERIFY(!f.button->label());
    f.button->setLabelText(LongValue);
    f.button->setLabelFont(QFont(QStringLiteral("Sans"), 20));
    f.button->setLabelMargins({1, 1, 1, 1});
    f.button->setLabelAlignment(Qt::AlignCenter);
    f.button->resize(80, 80);
    QVERIFY(f.button->sizeHint().isValid());
    f.button->setLabel(new QLabel);
    QVERIFY(f.shown().endsWith(QStringLiteral("GHz")));

    // A label that another button took over is no longer ours to write into.
    LabelButton other;
    QLabel *const taken = f.button->label();
    other.setLabel(taken);
    f.button->setLabelText(QStringLiteral("1 Hz"));
    QVERIFY(taken->text() != QStringLiteral("1 Hz"));
    f.button->setInfoWidget(new QWidget);
    QCOMPARE(other.label(), taken);

    expectWarning(QStringLiteral("InfoButton::setInfoWidget: cannot show QWidget(0x0)"));
    other.setLabel(nullptr);
    QCOMPARE(other.label(), taken);
}

void tst_LabelButton::readsOutNameAndValue()
{
    Fixture f;
    f.button->setLabelText(LongValue);
    const QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(f.button);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Start"));
    QCOMPARE(accessible->text(QAccessible::Value), LongValue);
}

void tst_LabelButton::followsNoHoverOnceThereIsATouchScreen()
{
    Fixture f;
    QVERIFY(QTest::qWaitForWindowExposed(&f.window));
    QWindow *const window = f.window.windowHandle();
    QTest::mouseMove(window, {300, 150});
    QTest::mouseMove(window, {60, 30});
    QVERIFY(f.button->underMouse());
    QTest::mouseMove(window, {300, 150});
    QVERIFY(!f.button->underMouse());

    QTest::createTouchDevice();
    QTest::mouseMove(window, {60, 30});
    QVERIFY(!f.button->underMouse());
}

QTEST_MAIN(tst_LabelButton)
#include "tst_labelbutton.moc"
