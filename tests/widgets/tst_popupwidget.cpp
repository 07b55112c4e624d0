// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/popupwidget.h>

#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

#include <pointer.h>
#include <vnatest.h>

class tst_PopupWidget : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void takesItsSizeFromTheItems_data();
    void takesItsSizeFromTheItems();
    void tilesStandInTheirColumns();
    void returnsFromTilesToRows();
    void titleTakesPartOnceItHasAText();
    void alignsItems();
    void picksByTap();
    void disabledItemKeepsTheChoice();
    void unknownTextClearsTheChoice();
    void firstOfEqualTextsStandsForAll();
    void picksByKey();
    void closesByEscapeAndOutsideTap();
    void titleDragsThePopup();
    void wheelDoesNotScroll();
    void slidesWhenTallerThanTheScreen();
    void touch();
    void survivesSlotsThatDeleteIt_data();
    void survivesSlotsThatDeleteIt();
};

namespace
{

/// A popup with its list, and what it told.
struct Fixture {
    explicit Fixture(const QStringList &items, int currentRow = 0)
    {
        popup->addItems(items, currentRow);
    }
    ~Fixture() { delete popup; }

    QListWidget *list() const { return popup->findChild<QListWidget *>(); }
    QLabel *title() const
    {
        return popup->findChild<QLabel *>(QStringLiteral("IconModeViewTitle"));
    }
    void clickItem(int row) const { VnaTest::mouseClick(list()->viewport(), itemCentre(row)); }
    QPoint itemCentre(int row) const { return list()->visualItemRect(list()->item(row)).center(); }
    bool open(const QPoint &at = {200, 200})
    {
        popup->popup();
        popup->show();
        popup->move(at); // the offscreen plugin frames what is moved before
        return QTest::qWaitForWindowExposed(popup);
    }
    QStringList texts() const
    {
        QStringList result;
        for (const QList<QVariant> &call : changed)
            result << call.at(0).toString();
        return result;
    }

    QPointer<PopupWidget> popup = new PopupWidget;
    QSignalSpy changed{popup, &PopupWidget::currentItemChanged};
    QSignalSpy closed{popup, &PopupWidget::widgetClosed};
};

QStringList numbered(int count)
{
    QStringList result;
    for (int i = 0; i < count; ++i)
        result << QString::number(i);
    return result;
}

const QStringList Formats = {QStringLiteral("LogM"), QStringLiteral("Phase"),
                             QStringLiteral("Smith")};

} // namespace

void tst_PopupWidget::takesItsSizeFromTheItems_data()
{
    QTest::addColumn<QListView::ViewMode>("mode");
    QTest::addColumn<int>("items");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("rows");

    QTest::newRow("empty list") << QListView::ListMode << 0 << 4 << 150 << 0;
    QTest::newRow("list") << QListView::ListMode << 3 << 4 << 150 << 3;
    QTest::newRow("500 rows") << QListView::ListMode << 500 << 4 << 150 << 500;
    QTest::newRow("no tile") << QListView::IconMode << 0 << 4 << 481 << 0;
    QTest::newRow("a full row of tiles") << QListView::IconMode << 4 << 4 << 481 << 1;
    QTest::newRow("one tile over") << QListView::IconMode << 5 << 4 << 481 << 2;
    QTest::newRow("no column counts as one") << QListView::IconMode << 2 << 0 << 121 << 2;
}

void tst_PopupWidget::takesItsSizeFromTheItems()
{
    QFETCH(QListView::ViewMode, mode);
    QFETCH(int, items);
    QFETCH(int, columns);
    QFETCH(int, width);
    QFETCH(int, rows);

    Fixture f(numbered(items));
    f.popup->setViewMode(mode);
    f.popup->setWidgetFixedWidth(150);
    f.popup->setItemCountPerRow(columns);
    f.popup->popup();
    const int rowHeight = mode == QListView::ListMode ? f.list()->sizeHintForRow(0) : 100;
    const QSize expected(width, 2 * f.list()->frameWidth() + rows * rowHeight);
    QCOMPARE(f.popup->minimumSize(), expected);
    QCOMPARE(f.popup->maximumSize(), expected);
    QVERIFY(f.open());
    QCOMPARE(f.list()->size(), expected);
}

void tst_PopupWidget::tilesStandInTheirColumns()
{
    Fixture f(numbered(5));
    f.popup->setViewMode(QListView::IconMode);
    f.popup->setStyleSheet(QStringLiteral("QListWidget#IconModeView { border: none; }"));
    QCOMPARE(f.list()->objectName(), QStringLiteral("IconModeView"));
    QVERIFY(f.open());
    QCOMPARE(f.list()->frameWidth(), 0);
    for (int i = 0; i < 5; ++i)
        QCOMPARE(f.list()->visualItemRect(f.list()->item(i)),
                 QRect(i % 4 * 120, i / 4 * 100, 120, 100));
}

void tst_PopupWidget::returnsFromTilesToRows()
{
    Fixture f(Formats);
    f.popup->popup();
    const QSize asRows = f.popup->size();
    f.popup->setViewMode(QListView::IconMode);
    f.popup->popup();
    QVERIFY(f.popup->size() != asRows);
    f.popup->setViewMode(QListView::ListMode);
    QCOMPARE(f.list()->objectName(), QStringLiteral("ListModeView"));
    QVERIFY(f.open());
    QCOMPARE(f.popup->size(), asRows);
    QVERIFY(f.list()->viewport()->rect().contains(f.list()->visualItemRect(f.list()->item(2))));
}

void tst_PopupWidget::titleTakesPartOnceItHasAText()
{
    Fixture f(Formats);
    f.popup->popup();
    const int untitled = f.popup->height();
    QVERIFY(!f.popup->titleVisible());
    f.popup->setTitleText(QStringLiteral("Format"));
    QVERIFY(f.popup->titleVisible());
    QCOMPARE(f.popup->titleText(), QStringLiteral("Format"));
    f.popup->popup();
    QCOMPARE(f.popup->height(), untitled + f.title()->sizeHint().height());
    QVERIFY(f.open());
    QCOMPARE(f.list()->y(), f.title()->sizeHint().height());
    f.popup->setTitleVisible(false);
    f.popup->popup();
    QCOMPARE(f.popup->height(), untitled);
}

void tst_PopupWidget::alignsItems()
{
    Fixture f(Formats);
    const auto alignment = [&f](int row) { return f.list()->item(row)->textAlignment(); };
    f.popup->setItemTextAlignment(Qt::AlignRight);
    QCOMPARE(f.popup->itemTextAlignment(), Qt::Alignment(Qt::AlignRight));
    for (int row = 0; row < 3; ++row)
        QCOMPARE(alignment(row), int(Qt::AlignRight | Qt::AlignVCenter));

    // A new width touches the last row alone; the next popup() brings the others along.
    f.popup->addItems(Formats, 0);
    f.popup->setWidgetFixedWidth(77);
    QCOMPARE(alignment(5), int(Qt::AlignRight | Qt::AlignVCenter));
    QVERIFY(alignment(3) != int(Qt::AlignRight | Qt::AlignVCenter));
    f.popup->popup();
    QCOMPARE(alignment(3), int(Qt::AlignRight | Qt::AlignVCenter));
}

void tst_PopupWidget::picksByTap()
{
    Fixture f(Formats);
    QVERIFY(f.open());
    f.clickItem(1);
    QCOMPARE(f.texts(), QStringList{QStringLiteral("Phase")});
    QCOMPARE(f.closed.count(), 1);
    QVERIFY(!f.popup->isVisible());

    // The choice outlives the closing: picking it again closes without a word.
    QVERIFY(f.open());
    f.clickItem(1);
    QCOMPARE(f.changed.count(), 1);
    QCOMPARE(f.closed.count(), 2);
    QVERIFY(!f.popup->isVisible());
}

void tst_PopupWidget::disabledItemKeepsTheChoice()
{
    Fixture f(Formats);
    f.popup->setCurrentItem(QStringLiteral("Smith"));
    f.popup->setItemEnabled(QStringLiteral("Phase"), false);
    f.popup->setItemEnabled(QStringLiteral("none of them"), false);
    f.popup->setItemEnabled(-1, false);
    f.popup->setItemEnabled(3, false);
    QVERIFY(f.open());
    f.clickItem(1);
    QTRY_COMPARE(f.list()->currentRow(), 2);
    QVERIFY(f.list()->item(2)->isSelected());
    QVERIFY(f.popup->isVisible());
    QCOMPARE(f.changed.count() + f.closed.count(), 0);

    f.popup->setItemEnabled(1, true);
    f.clickItem(1);
    QCOMPARE(f.texts(), QStringList{QStringLiteral("Phase")});
}

void tst_PopupWidget::unknownTextClearsTheChoice()
{
    Fixture f(Formats);
    f.popup->setCurrentItem(QStringLiteral("Smith"));
    f.popup->setCurrentItem(QStringLiteral("SWR"));
    QVERIFY(!f.list()->currentItem());
    QVERIFY(f.list()->selectedItems().isEmpty());
    QVERIFY(f.open());
    f.clickItem(2);
    QCOMPARE(f.texts(), QStringList{QStringLiteral("Smith")});
}

void tst_PopupWidget::firstOfEqualTextsStandsForAll()
{
    Fixture f({QStringLiteral("a"), QString(), QStringLiteral("a"), QString()});
    f.popup->setCurrentItem(QStringLiteral("a"));
    QCOMPARE(f.list()->currentRow(), 0);
    f.popup->setItemEnabled(QStringLiteral("a"), false);
    QVERIFY(f.list()->item(2)->flags() & Qt::ItemIsEnabled);
    QVERIFY(f.open());
    f.clickItem(2);
    QCOMPARE(f.changed.count(), 0);
    QVERIFY(f.open());
    f.clickItem(3);
    QCOMPARE(f.texts(), QStringList{QString()});
}

void tst_PopupWidget::picksByKey()
{
    Fixture f(Formats);
    f.popup->setCurrentItem(QStringLiteral("LogM"));
    f.popup->setItemEnabled(1, false);
    QVERIFY(f.open());
    VnaTest::typeKey(f.popup, Qt::Key_Down); // over the disabled one
    QCOMPARE(f.list()->currentRow(), 2);
    QCOMPARE(f.changed.count(), 0);
    VnaTest::typeKey(f.popup, Qt::Key_Return, QStringLiteral("\r"));
    QCOMPARE(f.texts(), QStringList{QStringLiteral("Smith")});
    QVERIFY(!f.popup->isVisible());

    QVERIFY(f.open());
    VnaTest::typeKey(f.popup, Qt::Key_Up);
    VnaTest::typeKey(f.popup, Qt::Key_Space, QStringLiteral(" "));
    QCOMPARE(f.texts().last(), QStringLiteral("LogM"));
    QVERIFY(!f.popup->isVisible());
}

void tst_PopupWidget::closesByEscapeAndOutsideTap()
{
    Fixture f(Formats);
    QVERIFY(f.open());
    VnaTest::typeKey(f.popup, Qt::Key_Escape);
    QVERIFY(!f.popup->isVisible());
    QCOMPARE(f.closed.count(), 1);

    QWidget window;
    window.setGeometry(0, 0, 600, 600);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(f.open());
    VnaTest::mouseClick(&window, {10, 10});
    QVERIFY(!f.popup->isVisible());
    QCOMPARE(f.closed.count(), 2);
    QCOMPARE(f.changed.count(), 0);
}

void tst_PopupWidget::titleDragsThePopup()
{
    Fixture f(Formats);
    f.popup->setTitleText(QStringLiteral("Format"));
    QVERIFY(f.open({200, 200}));
    QWindow *const window = f.popup->windowHandle();
    VnaTest::mousePress(f.title(), {20, 10});
    QTest::mouseMove(window, QPoint(50, 45)); // window coordinates; the window follows
    QCOMPARE(f.popup->pos(), QPoint(230, 235));
    QTest::mouseMove(window, QPoint(10, 10));
    QCOMPARE(f.popup->pos(), QPoint(220, 235));
    VnaTest::mouseRelease(f.title(), {20, 10});
    QTest::mouseMove(window, QPoint(60, 12));
    QCOMPARE(f.popup->pos(), QPoint(220, 235));
    QVERIFY(f.popup->isVisible());
}

void tst_PopupWidget::wheelDoesNotScroll()
{
    Fixture f(numbered(10));
    QVERIFY(f.open({100, 100}));
    f.list()->setFixedHeight(60); // leaves something to scroll
    QScrollBar *const bar = f.list()->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);
    const QPoint at = f.list()->rect().center();
    for (QWidget *const target : {static_cast<QWidget *>(f.list()), f.list()->viewport()}) {
        QWheelEvent wheel(at, target->mapToGlobal(at), {}, {0, -240}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(target, &wheel);
        QCOMPARE(bar->value(), 0);
    }
    QCOMPARE(f.popup->pos(), QPoint(100, 100));
}

void tst_PopupWidget::slidesWhenTallerThanTheScreen()
{
    Fixture f(numbered(500));
    f.popup->setCurrentItem(QStringLiteral("3"));
    const QRect screen = f.popup->screen()->availableGeometry();
    QVERIFY(f.open({200, screen.top() + 5}));
    QVERIFY(f.popup->height() > screen.height());

    // The arrow keys bring their row onto the screen, at either end.
    const auto currentOnScreen = [&f] {
        const QRect row = f.list()->visualItemRect(f.list()->currentItem());
        return QRect(f.list()->viewport()->mapToGlobal(row.topLeft()), row.size());
    };
    for (int i = 0; i < 40; ++i)
        VnaTest::typeKey(f.popup, Qt::Key_Down);
    QCOMPARE(f.list()->currentRow(), 43);
    QVERIFY(screen.contains(currentOnScreen()));
    VnaTest::typeKey(f.popup, Qt::Key_End);
    QCOMPARE(f.list()->currentRow(), 499);
    QVERIFY(screen.contains(currentOnScreen()));
    VnaTest::typeKey(f.popup, Qt::Key_Home);
    QCOMPARE(f.list()->currentRow(), 0);
    QVERIFY(screen.contains(currentOnScreen()));

    // A finger pulls the list along, and its release picks nothing.
    QWindow *const window = f.popup->windowHandle();
    const int before = f.popup->y();
    VnaTest::mousePress(f.list()->viewport(), {50, 400});
    QTest::mouseMove(window, {50, 395}); // a tap may tremble
    QCOMPARE(f.popup->y(), before);
    QTest::mouseMove(window, {50, 200});
    QVERIFY(f.popup->y() < before - 190);
    VnaTest::mouseRelease(f.list()->viewport(), {50, 400});
    QVERIFY(f.popup->isVisible());
    QCOMPARE(f.changed.count(), 0);
    QCOMPARE(f.list()->currentRow(), 3);
    f.clickItem(12);
    QCOMPARE(f.texts(), QStringList{QStringLiteral("12")});
}

void tst_PopupWidget::touch()
{
    Fixture f(Formats);
    QVERIFY(f.open());
    VnaTest::TouchScreen screen(f.popup);
    const auto item = [&f](int row) {
        return f.list()->viewport()->mapTo(f.popup, f.itemCentre(row));
    };

    // A second finger does not pick, and an event without points harms nobody.
    screen.press(item(0));
    screen.pressSecond(item(2));
    screen.releaseSecond(item(2));
    for (const QEvent::Type type : {QEvent::TouchUpdate, QEvent::TouchCancel})
        QVERIFY(!VnaTest::sendTouchWithoutPoints(f.list()->viewport(), type));
    QVERIFY(f.popup->isVisible());
    QCOMPARE(f.changed.count(), 0);
    screen.release(item(0));
    QCOMPARE(f.texts(), QStringList{QStringLiteral("LogM")});

    QVERIFY(f.open());
    screen.tap(item(1));
    QCOMPARE(f.texts().last(), QStringLiteral("Phase"));
}

void tst_PopupWidget::survivesSlotsThatDeleteIt_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::addColumn<bool>("onClose");
    QTest::newRow("tap, on the choice") << false << false;
    QTest::newRow("tap, on the close") << false << true;
    QTest::newRow("key, on the choice") << true << false;
    QTest::newRow("key, on the close") << true << true;
}

void tst_PopupWidget::survivesSlotsThatDeleteIt()
{
    QFETCH(bool, byKey);
    QFETCH(bool, onClose);
    Fixture f(Formats);
    if (onClose)
        connect(f.popup, &PopupWidget::widgetClosed, [&f] { delete f.popup; });
    else
        connect(f.popup, &PopupWidget::currentItemChanged, [&f] { delete f.popup; });
    QVERIFY(f.open());
    if (byKey) {
        f.list()->setCurrentRow(1);
        VnaTest::typeKey(f.popup, Qt::Key_Return);
    } else {
        f.clickItem(1);
    }
    QVERIFY(!f.popup);
    QCOMPARE(f.texts(), QStringList{QStringLiteral("Phase")});
}

QTEST_MAIN(tst_PopupWidget)
#include "tst_popupwidget.moc"
