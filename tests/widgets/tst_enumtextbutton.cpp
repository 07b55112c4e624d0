// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/enumtextbutton.h>
#include <widgets/popupwidget.h>

#include <QAccessible>
#include <QLabel>
#include <QListWidget>
#include <QScreen>
#include <QSignalSpy>
#include <QtTest>

#include <pointer.h>
#include <vnatest.h>

class tst_EnumTextButton : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void setsTheCurrentChoice();
    void replacesTheChoices();
    void picksFromTheList();
    void theTapThatClosesDoesNotReopen_data();
    void theTapThatClosesDoesNotReopen();
    void opensOnTheScreen_data();
    void opensOnTheScreen();
    void tilesOpenInTheMiddleOfTheWindow();
    void worksByKeyboard();
    void doesNotOpenAnEmptyList();
    void listLeavesWithItsButton();
    void slotsMayDeleteTheButton();
    void handsSettingsToTheList();
};

namespace
{

const QList<EnumTextButton::EnumSpec> Formats = {
    {10, QStringLiteral("Log mag")}, {20, QStringLiteral("Phase")}, {30, QStringLiteral("R + jX")}};

/// A window with one button, and what the button told, in order.
struct Fixture {
    explicit Fixture(const QList<EnumTextButton::EnumSpec> &enums = Formats)
    {
        window.setGeometry(50, 50, 500, 400);
        button->setGeometry(20, 20, 120, 60);
        button->setText(QStringLiteral("Format"));
        button->setEnums(enums);
        QObject::connect(button, &EnumTextButton::currentItemToggled, &window,
                         [this](int value) { told << QStringLiteral("toggled %1").arg(value); });
        QObject::connect(button, &EnumTextButton::currentItemEdited, &window,
                         [this](int value) { told << QStringLiteral("edited %1").arg(value); });
        window.show();
    }
    bool expose() { return QTest::qWaitForWindowExposed(&window); }
    PopupWidget *popup() const { return button->findChild<PopupWidget *>(); }
    QListWidget *list() const { return button->findChild<QListWidget *>(); }
    void clickItem(int row) const { VnaTest::mouseClick(list()->viewport(), itemCentre(row)); }
    QPoint itemCentre(int row) const { return list()->visualItemRect(list()->item(row)).center(); }

    QWidget window;
    QPointer<EnumTextButton> button = new EnumTextButton(&window);
    QStringList told;
};

} // namespace

void tst_EnumTextButton::setsTheCurrentChoice()
{
    Fixture f;
    QVERIFY(!f.button->setCurrentEnum(7));
    QCOMPARE(f.button->labelText(), QString());
    QVERIFY(f.button->setCurrentEnum(20));
    QCOMPARE(f.button->labelText(), QStringLiteral("Phase"));
    QVERIFY(f.button->setCurrentEnum(20)); // tells every time
    QVERIFY(!f.button->setCurrentEnum({20, QStringLiteral("Phase")})); // tells changes only
    QVERIFY(f.button->setCurrentEnum({20, QStringLiteral("Argument")})); // need not be listed
    QCOMPARE(f.button->label()->text(), QStringLiteral("Argument"));
    const EnumTextButton::EnumSpec argument{20, QStringLiteral("Argument")};
    QVERIFY(f.button->currentEnumSpec() == argument);
    QVERIFY(!f.button->setCurrentEnum(7));
    QVERIFY(f.button->currentEnumSpec() == argument);
    QCOMPARE(f.told,
             QStringList({QStringLiteral("toggled 20"), QStringLiteral("toggled 20"),
                          QStringLiteral("toggled 20")}));

    const QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(f.button);
    QCOMPARE(accessible->role(), QAccessible::ComboBox);
    QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("Argument"));
    QVERIFY(accessible->state().hasPopup);
}

void tst_EnumTextButton::replacesTheChoices()
{
    Fixture f;
    f.button->setCurrentEnum(20);
    f.button->setItemEnabled(0, false);
    f.button->setEnums(Formats); // the same: nothing is rebuilt
    QVERIFY(!(f.list()->item(0)->flags() & Qt::ItemIsEnabled));
    f.button->setEnums({{1, QStringLiteral("SWR")}, {1, QString()}, {2, QStringLiteral("SWR")}});
    QCOMPARE(f.list()->count(), 3);
    QCOMPARE(f.button->enums().count(), 3);
    QCOMPARE(f.button->labelText(), QStringLiteral("Phase"));
    QCOMPARE(f.told.count(), 1);
    QVERIFY(f.button->setCurrentEnum(2));
    QCOMPARE(f.button->labelText(), QStringLiteral("SWR"));
}

void tst_EnumTextButton::picksFromTheList()
{
    Fixture f;
    QVERIFY(f.expose());
    f.button->setCurrentEnum(10);
    f.told.clear();
    VnaTest::mouseClick(f.button);
    QVERIFY(f.popup()->isVisible());
    QCOMPARE(f.popup()->width(), 180);
    QCOMPARE(f.list()->currentRow(), 0);
    f.clickItem(2);
    QVERIFY(!f.popup()->isVisible());
    QCOMPARE(f.told, QStringList({QStringLiteral("toggled 30"), QStringLiteral("edited 30")}));
    QCOMPARE(f.button->labelText(), QStringLiteral("R + jX"));

    QTest::qWait(250);
    VnaTest::mouseClick(f.button);
    QCOMPARE(f.list()->currentRow(), 2);
    f.clickItem(2); // the same again: closes without a word
    QVERIFY(!f.popup()->isVisible());
    QCOMPARE(f.told.count(), 2);
}

void tst_EnumTextButton::theTapThatClosesDoesNotReopen_data()
{
    QTest::addColumn<bool>("byTouch");
    QTest::addColumn<int>("holdMs");
    QTest::newRow("mouse") << false << 0;
    QTest::newRow("mouse, slow") << false << 300;
    QTest::newRow("finger") << true << 0;
    QTest::newRow("finger, slow") << true << 300;
}

void tst_EnumTextButton::theTapThatClosesDoesNotReopen()
{
    QFETCH(bool, byTouch);
    QFETCH(int, holdMs);
    Fixture f;
    QVERIFY(f.expose());
    VnaTest::TouchScreen screen(&f.window);
    const auto tap = [&f, &screen, byTouch](int hold) {
        const QPoint centre = f.button->geometry().center();
        if (byTouch)
            screen.press(centre);
        else
            VnaTest::mousePress(&f.window, centre);
        QTest::qWait(hold);
        if (byTouch)
            screen.release(centre);
        else
            VnaTest::mouseRelease(&f.window, centre);
    };
    tap(0);
    QVERIFY(f.popup()->isVisible());
    QSignalSpy closed(f.popup(), &PopupWidget::widgetClosed);
    tap(holdMs);
    QVERIFY(!f.popup()->isVisible());
    QCOMPARE(closed.count(), 1);
    QTest::qWait(250);
    tap(0);
    QVERIFY(f.popup()->isVisible());
}

void tst_EnumTextButton::opensOnTheScreen_data()
{
    QTest::addColumn<QPoint>("corner"); // of the screen's available area, 0 or 1 each way
    QTest::newRow("top left") << QPoint(0, 0);
    QTest::newRow("top right") << QPoint(1, 0);
    QTest::newRow("bottom left") << QPoint(0, 1);
    QTest::newRow("bottom right") << QPoint(1, 1);
}

void tst_EnumTextButton::opensOnTheScreen()
{
    QFETCH(QPoint, corner);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    EnumTextButton button;
    button.setWindowFlag(Qt::FramelessWindowHint);
    button.setEnums(Formats);
    button.setGeometry(screen.left() + corner.x() * (screen.width() - 100),
                       screen.top() + corner.y() * (screen.height() - 50), 100, 50);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    const auto *const popup = button.findChild<PopupWidget *>();
    for (int round = 0; round < 2; ++round) {
        button.click();
        const QRect shown = popup->geometry();
        QVERIFY(screen.adjusted(5, 5, -5, -5).contains(shown));
        QVERIFY(corner.y() ? shown.bottom() < button.y() : shown.top() >= button.y() + 49);
        QTest::keyClick(popup->windowHandle(), Qt::Key_Escape);
        QVERIFY(!popup->isVisible());
        QTest::qWait(250);
    }
}

void tst_EnumTextButton::tilesOpenInTheMiddleOfTheWindow()
{
    Fixture f;
    f.button->setViewMode(QListView::IconMode);
    f.button->setIconSize(80, 70);
    f.button->setItemCountPerRow(2);
    QVERIFY(f.expose());
    VnaTest::mouseClick(f.button);
    QCOMPARE(f.popup()->width(), 161);
    const QPoint middle = f.window.mapToGlobal(f.window.rect().center());
    const QPoint offset = f.popup()->geometry().center() - middle;
    QVERIFY(offset.manhattanLength() <= 4);
}

void tst_EnumTextButton::worksByKeyboard()
{
    Fixture f;
    f.button->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&f.window));
    VnaTest::typeKey(&f.window, Qt::Key_Space, QStringLiteral(" "));
    QVERIFY(f.popup()->isVisible());
    VnaTest::typeKey(f.popup(), Qt::Key_Down);
    VnaTest::typeKey(f.popup(), Qt::Key_Down);
    VnaTest::typeKey(f.popup(), Qt::Key_Return, QStringLiteral("\r"));
    QVERIFY(!f.popup()->isVisible());
    QCOMPARE(f.told.last(), QStringLiteral("edited 20"));
    QVERIFY(f.button->hasFocus());
}

void tst_EnumTextButton::doesNotOpenAnEmptyList()
{
    Fixture f(QList<EnumTextButton::EnumSpec>{});
    QVERIFY(f.expose());
    VnaTest::mouseClick(f.button);
    QVERIFY(!f.popup()->isVisible());
}

void tst_EnumTextButton::listLeavesWithItsButton()
{
    Fixture f;
    QVERIFY(f.expose());
    const auto open = [&f] {
        QTest::qWait(250);
        VnaTest::mouseClick(f.button);
        return f.popup()->isVisible();
    };
    QVERIFY(open());
    f.button->setEnabled(false);
    QTRY_VERIFY(!f.popup()->isVisible());
    f.button->setEnabled(true);
    QVERIFY(open());
    f.button->setEnums({{1, QStringLiteral("SWR")}});
    QVERIFY(!f.popup()->isVisible());
    QVERIFY(open());
    f.window.hide();
    QTRY_VERIFY(!f.popup()->isVisible());
    f.window.show();
    QVERIFY(open());
    delete f.button;
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_EnumTextButton::slotsMayDeleteTheButton()
{
    for (const auto signal :
         {&EnumTextButton::currentItemToggled, &EnumTextButton::currentItemEdited}) {
        Fixture f;
        QVERIFY(f.expose());
        VnaTest::mouseClick(f.button);
        connect(f.button, signal, &f.window, [&f] { delete f.button.data(); });
        f.clickItem(1);
        QVERIFY(!f.button);
        QCOMPARE(f.told.count(), signal == &EnumTextButton::currentItemToggled ? 1 : 2);
    }
}

void tst_EnumTextButton::handsSettingsToTheList()
{
    Fixture f;
    f.button->setTitleText(QStringLiteral("Format"));
    f.button->setTitleVisible(false);
    f.button->setIconSize(50, 60);
    f.button->setItemCountPerRow(3);
    f.button->setItemEnabled(QStringLiteral("Phase"), false);
    QCOMPARE(f.popup()->titleText(), f.button->titleText());
    QVERIFY(!f.popup()->titleVisible());
    QVERIFY(!f.button->titleVisible());
    QCOMPARE(f.popup()->iconSize(), QSize(50, 60));
    QCOMPARE(f.button->iconSize(), QSize(50, 60));
    QCOMPARE(f.popup()->itemCountPerRow(), 3);
    QCOMPARE(f.button->itemCountPerRow(), 3);
    QVERIFY(!(f.list()->item(1)->flags() & Qt::ItemIsEnabled));
}

QTEST_MAIN(tst_EnumTextButton)
#include "tst_enumtextbutton.moc"
