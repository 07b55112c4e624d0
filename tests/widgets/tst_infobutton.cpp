// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/infobutton.h>

#include <QAccessible>
#include <QGridLayout>
#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

#include <pointer.h>
#include <vnatest.h>

/// The button base and the two-cell button above it.
class tst_InfoButton : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void inertButtonLetsTheParentHaveTheTap();
    void becomesInertUnderTheFinger();
    void inertButtonIgnoresKeys();
    void drawsItsState();
    void laysOutTheCells_data();
    void laysOutTheCells();
    void replacesTheInfoWidget();
    void survivesInfoWidgetsThatGo();
    void refusesImpossibleInfoWidgets();
    void nameIsNotTheButtonText();
    void slotsMayDeleteTheButton_data();
    void slotsMayDeleteTheButton();
};

namespace
{

QLabel *nameOf(const QWidget &button)
{
    return button.findChild<QLabel *>(QStringLiteral("nameLabel"));
}

/// Where the grid of an info button put a widget.
QPair<int, int> cellOf(const QWidget &button, QWidget *widget)
{
    const auto *const grid = qobject_cast<QGridLayout *>(button.layout());
    int row = -1;
    int column = -1;
    int rowSpan = 0;
    int columnSpan = 0;
    grid->getItemPosition(grid->indexOf(widget), &row, &column, &rowSpan, &columnSpan);
    return {row, column};
}

} // namespace

void tst_InfoButton::inertButtonLetsTheParentHaveTheTap()
{
    AbstractButton parent;
    parent.resize(200, 100);
    auto *const child = new AbstractButton(&parent);
    child->setGeometry(20, 20, 100, 50);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QSignalSpy parentClicked(&parent, &AbstractButton::clicked);
    QSignalSpy childClicked(child, &AbstractButton::clicked);
    QSignalSpy childPressed(child, &AbstractButton::pressed);

    QVERIFY(child->clickable());
    VnaTest::mouseClick(child);
    QCOMPARE(childClicked.count(), 1);
    QCOMPARE(parentClicked.count(), 0);

    child->setClickable(false);
    VnaTest::mousePress(child);
    QVERIFY(!child->isDown());
    QVERIFY(child->isEnabled());
    QVERIFY(parent.isDown());
    VnaTest::mouseRelease(child);
    QCOMPARE(parentClicked.count(), 1);
    QCOMPARE(childClicked.count(), 1);
    QCOMPARE(childPressed.count(), 1);

    // A finger takes the same way as the mouse.
    VnaTest::TouchScreen screen(&parent);
    const QPoint at = child->geometry().center();
    screen.tap(at);
    QCOMPARE(parentClicked.count(), 2);
    child->setClickable(true);
    screen.press(at);
    screen.pressSecond({150, 90});
    screen.releaseSecond({150, 90});
    QVERIFY(child->isDown());
    screen.release(at);
    QCOMPARE(childClicked.count(), 2);
    QCOMPARE(parentClicked.count(), 2);
}

void tst_InfoButton::becomesInertUnderTheFinger()
{
    AbstractButton button;
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QSignalSpy clicked(&button, &AbstractButton::clicked);
    VnaTest::mousePress(&button);
    QVERIFY(button.isDown());
    button.setClickable(false);
    VnaTest::mouseRelease(&button);
    QVERIFY(!button.isDown());
    QCOMPARE(clicked.count(), 0);
}

void tst_InfoButton::inertButtonIgnoresKeys()
{
    AbstractButton button;
    button.show();
    button.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&button));
    QSignalSpy clicked(&button, &AbstractButton::clicked);
    VnaTest::typeKey(&button, Qt::Key_Space, QStringLiteral(" "));
    QCOMPARE(clicked.count(), 1);
    button.setClickable(false);
    VnaTest::typeKey(&button, Qt::Key_Space, QStringLiteral(" "));
    QCOMPARE(clicked.count(), 1);
    QVERIFY(!button.isDown());
}

void tst_InfoButton::drawsItsState()
{
    AbstractButton button;
    button.setCheckable(true);
    button.setText(QStringLiteral("Preset"));
    button.setStyleSheet(
        QStringLiteral("AbstractButton { border: 1px solid; background-color: #000001; }"
                       "AbstractButton:checked { background-color: #000002; }"
                       "AbstractButton:pressed { background-color: #000003; }"
                       "AbstractButton:disabled { background-color: #000004; }"));
    const auto background = [&button] { return button.grab().toImage().pixelColor(2, 2).blue(); };
    QCOMPARE(background(), 1);
    button.setChecked(true);
    QCOMPARE(background(), 2);
    button.setDown(true);
    QCOMPARE(background(), 3);
    button.setDown(false);
    button.setEnabled(false);
    QCOMPARE(background(), 4);
    QVERIFY(button.sizeHint().width() > button.fontMetrics().horizontalAdvance(button.text()));
    QVERIFY(button.sizeHint().height() >= 2 * button.fontMetrics().height());
}

void tst_InfoButton::laysOutTheCells_data()
{
    using Cell = QPair<int, int>;
    QTest::addColumn<int>("type");
    QTest::addColumn<Cell>("name");
    QTest::addColumn<Cell>("info");
    QTest::addColumn<int>("secondRowStretch");

    QTest::newRow("TopBottom") << int(InfoButton::TopBottom) << Cell(0, 0) << Cell(1, 0) << 1;
    QTest::newRow("LeftRight") << int(InfoButton::LeftRight) << Cell(0, 0) << Cell(0, 1) << 0;
    QTest::newRow("BottomTop") << int(InfoButton::BottomTop) << Cell(1, 0) << Cell(0, 0) << 1;
    QTest::newRow("RightLeft") << int(InfoButton::RightLeft) << Cell(0, 1) << Cell(0, 0) << 0;
    QTest::newRow("unknown") << 7 << Cell(0, 0) << Cell(1, 0) << 1;
}

void tst_InfoButton::laysOutTheCells()
{
    using Cell = QPair<int, int>;
    QFETCH(int, type);
    QFETCH(Cell, name);
    QFETCH(Cell, info);
    QFETCH(int, secondRowStretch);

    InfoButton button;
    button.setLayoutType(type == 0 ? InfoButton::RightLeft : InfoButton::TopBottom);
    button.setLayoutType(InfoButton::LayoutType(type));
    QCOMPARE(cellOf(button, nameOf(button)), name);
    QCOMPARE(cellOf(button, button.infoWidget()), info);
    const auto *const grid = qobject_cast<QGridLayout *>(button.layout());
    QCOMPARE(grid->count(), 2);
    QCOMPARE(grid->rowStretch(0), 1);
    QCOMPARE(grid->rowStretch(1), secondRowStretch);

    auto *const replacement = new QLabel;
    button.setInfoWidget(replacement);
    QCOMPARE(cellOf(button, replacement), info);
}

void tst_InfoButton::replacesTheInfoWidget()
{
    InfoButton button;
    QPointer<QWidget> placeholder(button.infoWidget());
    QVERIFY(placeholder);
    const QPointer<QLabel> info(new QLabel);
    button.setInfoWidget(info);
    QVERIFY(!placeholder);
    QCOMPARE(info->parentWidget(), &button);
    button.setInfoWidget(info);
    QVERIFY(info);

    // Also by something that lives inside the old one.
    auto *const box = new QWidget;
    auto *const inner = new QLabel(box);
    button.setInfoWidget(box);
    QVERIFY(!info);
    button.setInfoWidget(inner);
    QCOMPARE(button.infoWidget(), inner);
    QCOMPARE(inner->parentWidget(), &button);
}

void tst_InfoButton::survivesInfoWidgetsThatGo()
{
    InfoButton first;
    InfoButton second;
    auto *const shared = new QLabel;
    first.setInfoWidget(shared);
    second.setInfoWidget(shared); // now it is the second one's
    QVERIFY(!first.infoWidget());
    first.setInfoWidget(new QLabel);
    QCOMPARE(second.infoWidget(), shared);

    delete shared;
    QVERIFY(!second.infoWidget());
    auto *const next = new QLabel;
    second.setInfoWidget(next);
    second.setLayoutType(InfoButton::LeftRight);
    QCOMPARE(cellOf(second, next), qMakePair(0, 1));
}

void tst_InfoButton::refusesImpossibleInfoWidgets()
{
    QWidget window;
    auto *const button = new InfoButton(&window);
    QWidget *const before = button->infoWidget();
    for (QWidget *const bad : {static_cast<QWidget *>(nullptr), static_cast<QWidget *>(button),
                               &window, static_cast<QWidget *>(nameOf(*button))}) {
        QString text;
        QDebug(&text) << "InfoButton::setInfoWidget: cannot show" << bad;
        expectWarning(text.trimmed());
        button->setInfoWidget(bad);
        QCOMPARE(button->infoWidget(), before);
    }
}

void tst_InfoButton::nameIsNotTheButtonText()
{
    InfoButton button;
    button.setText(QStringLiteral("Start"));
    QCOMPARE(button.text(), QStringLiteral("Start"));
    QVERIFY(button.QAbstractButton::text().isEmpty());
    button.setTextMargins({8, 1, 2, 3});
    QCOMPARE(nameOf(button)->contentsMargins(), QMargins(8, 1, 2, 3));
    button.setTextAlignment(Qt::AlignCenter);
    QCOMPARE(nameOf(button)->alignment(), Qt::AlignCenter);

    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(&button);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Start"));
    QCOMPARE(accessible->role(), QAccessible::Button);
    button.setAccessibleName(QStringLiteral("Start frequency"));
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Start frequency"));
    QSignalSpy clicked(&button, &InfoButton::clicked);
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 1);
}

void tst_InfoButton::slotsMayDeleteTheButton_data()
{
    QTest::addColumn<bool>("onPress");
    QTest::newRow("pressed") << true;
    QTest::newRow("clicked") << false;
}

void tst_InfoButton::slotsMayDeleteTheButton()
{
    QFETCH(bool, onPress);
    QWidget window;
    window.resize(200, 100);
    const QPointer<InfoButton> button(new InfoButton(&window));
    button->setGeometry(0, 0, 200, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    connect(button, onPress ? &InfoButton::pressed : &InfoButton::released,
            [button] { delete button.data(); });
    VnaTest::mouseClick(&window);
    QVERIFY(!button);
}

QTEST_MAIN(tst_InfoButton)
#include "tst_infobutton.moc"
