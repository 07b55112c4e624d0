// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/infobutton.h>
#include <widgets/popupwidget.h>

#include <pointer.h>
#include <vnatest.h>

using namespace VnaTest;

namespace
{

using Cell = QPair<int, int>;

QLabel *nameOf(const QWidget &button)
{
    return button.findChild<QLabel *>("nameLabel"_s);
}

/// Where the grid of an info button put a widget.
Cell cellOf(const QWidget &button, QWidget *widget)
{
    const auto *const grid = qobject_cast<QGridLayout *>(button.layout());
    int row = -1, column = -1, span = 0;
    grid->getItemPosition(grid->indexOf(widget), &row, &column, &span, &span);
    return {row, column};
}

} // namespace

/// The button base and the two-cell button above it.
class tst_InfoButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void inertButtonLetsTheParentHaveTheTap()
    {
        AbstractButton parent;
        parent.resize(200, 100);
        auto *const child = new AbstractButton(&parent);
        child->setGeometry(20, 20, 100, 50);
        showExposed(&parent);
        QSignalSpy parentClicked(&parent, &AbstractButton::clicked);
        QSignalSpy childClicked(child, &AbstractButton::clicked);
        QSignalSpy childPressed(child, &AbstractButton::pressed);
        QVERIFY(child->clickable());
        mouseClick(child);
        QCOMPARE(childClicked.count(), 1);
        QCOMPARE(parentClicked.count(), 0);

        child->setClickable(false);
        mousePress(child);
        QVERIFY(child->isEnabled() && !child->isDown() && parent.isDown());
        mouseRelease(child);
        QCOMPARE(parentClicked.count(), 1);
        QCOMPARE(childClicked.count() + childPressed.count(), 2);

        // A finger takes the same way as the mouse.
        TouchScreen screen(&parent);
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

        // Inert under the finger, it comes up and stays silent; keys are the parent's as well.
        mousePress(child);
        QVERIFY(child->isDown());
        child->setClickable(false);
        mouseRelease(child);
        QVERIFY(!child->isDown());
        QVERIFY(QTest::qWaitForWindowActive(&parent));
        child->setFocus();
        for (const int clicks : {2, 3}) {
            typeKey(&parent, Qt::Key_Space, " "_s);
            QCOMPARE(childClicked.count(), clicks);
            QVERIFY(!child->isDown());
            child->setClickable(true);
        }
        QCOMPARE(childPressed.count(), 4);
        QCOMPARE(parentClicked.count(), 3);
        QVERIFY(!parent.isDown());
        child->setClickable(false);
        typeKey(&parent, Qt::Key_Select);
        QCOMPARE(childClicked.count(), 3);
        QCOMPARE(parentClicked.count(), 4);
    }

    void drawsItsState()
    {
        AbstractButton button;
        button.setCheckable(true);
        button.setText("Preset"_s);
        button.setStyleSheet("AbstractButton { border: 1px solid; background-color: #000001; }"
                             "AbstractButton:checked { background-color: #000002; }"
                             "AbstractButton:pressed { background-color: #000003; }"
                             "AbstractButton:disabled { background-color: #000004; }"_s);
        int state = 1;
        for (const auto &change :
             {+[](AbstractButton &) {}, +[](AbstractButton &b) { b.setChecked(true); },
              +[](AbstractButton &b) { b.setDown(true); },
              +[](AbstractButton &b) { b.setDown(false), b.setEnabled(false); }}) {
            change(button);
            QCOMPARE(button.grab().toImage().pixelColor(2, 2).blue(), state++);
        }
        QVERIFY(button.sizeHint().width() > button.fontMetrics().horizontalAdvance(button.text()));
        QCOMPARE(button.minimumSizeHint(), button.sizeHint()); // the text is all that it has

        // A check box to assistive tools; a pop-up of something else in it is none of its own.
        PopupWidget popup(&button);
        auto *const accessible = QAccessible::queryAccessibleInterface(&button);
        QCOMPARE(accessible->actionInterface()->actionNames(), QStringList());
        button.setEnabled(true);
        QCOMPARE(accessible->role(), QAccessible::CheckBox);
        QVERIFY(accessible->state().checked);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(!button.isChecked());
        button.setCheckable(false);
        QVERIFY(accessible->role() == QAccessible::Button && !accessible->state().hasPopup);
    }

    void laysOutTheCells()
    {
        const std::tuple<int, Cell, Cell, int> rows[] = {
            {InfoButton::TopBottom, {0, 0}, {1, 0}, 1},
            {InfoButton::LeftRight, {0, 0}, {0, 1}, 0},
            {InfoButton::BottomTop, {1, 0}, {0, 0}, 1},
            {InfoButton::RightLeft, {0, 1}, {0, 0}, 0},
            {7, {0, 0}, {1, 0}, 1},
        };
        InfoButton button;
        for (const auto &[type, name, info, secondRowStretch] : rows) {
            const Row row(QString::number(type));
            button.setLayoutType(InfoButton::LayoutType(type));
            button.setInfoWidget(new QLabel);
            QCOMPARE(cellOf(button, nameOf(button)), name);
            QCOMPARE(cellOf(button, button.infoWidget()), info);
            const auto *const grid = qobject_cast<QGridLayout *>(button.layout());
            QCOMPARE(grid->count(), 2);
            QCOMPARE(grid->rowStretch(1), secondRowStretch);
        }
    }

    void replacesTheInfoWidget()
    {
        QWidget window;
        auto &button = *new InfoButton(&window);
        const QPointer<QWidget> placeholder(button.infoWidget());
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

        for (QWidget *const bad : QList<QWidget *>{nullptr, &button, &window, nameOf(button)}) {
            QString text;
            QDebug(&text) << "InfoButton::setInfoWidget: cannot show" << bad;
            expectWarning(text.trimmed());
            button.setInfoWidget(bad);
            QCOMPARE(button.infoWidget(), inner);
        }

        // One that goes to another button, or away, leaves its place empty.
        InfoButton first, second;
        auto *const shared = new QLabel;
        first.setInfoWidget(shared);
        second.setInfoWidget(shared); // now it is the second one's
        QVERIFY(!first.infoWidget());
        first.setInfoWidget(new QLabel);
        QCOMPARE(second.infoWidget(), shared);

        delete shared;
        QVERIFY(!second.infoWidget());
        second.setLayoutType(InfoButton::LeftRight);
    }

    void nameIsNotTheButtonText()
    {
        InfoButton button;
        button.setText("Start"_s);
        QCOMPARE(button.text(), "Start"_s);
        QVERIFY(button.QAbstractButton::text().isEmpty());
        QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(&button);
        QCOMPARE(accessible->text(QAccessible::Name), "Start"_s);
        QCOMPARE(accessible->role(), QAccessible::Button);
        button.setAccessibleName("Start frequency"_s);
        QCOMPARE(accessible->text(QAccessible::Name), "Start frequency"_s);
        QSignalSpy clicked(&button, &InfoButton::clicked);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(clicked.count(), 1);
        button.show();
        QVERIFY(QTest::qWaitForWindowActive(&button));
        button.setFocusPolicy(Qt::StrongFocus);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
        QVERIFY(button.hasFocus());
        QCOMPARE(clicked.count(), 1);
    }
};

QTEST_MAIN(tst_InfoButton)
#include "tst_infobutton.moc"
