// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/popupwidget.h>

#include <popupscene.h>

using namespace VnaTest;

namespace
{

const QStringList Formats = {"LogM"_s, "Phase"_s, "Smith"_s};

QStringList numbered(int count)
{
    QStringList result;
    while (result.size() < count)
        result << QString::number(result.size());
    return result;
}

/// A popup with its list, and what it told.
struct Fixture {
    explicit Fixture(const QStringList &items = Formats)
    {
        popup->addItems(items, 0);
        QObject::connect(popup, &PopupWidget::currentItemChanged,
                         [this](const QString &text) { picked << text; });
    }
    ~Fixture() { delete popup; }

    QListWidget *list() const { return popup->findChild<QListWidget *>(); }
    QLabel *title() const { return popup->findChild<QLabel *>("IconModeViewTitle"_s); }
    bool isOpen() const { return popup->isVisible(); }
    QRect rect(int row) const { return list()->visualItemRect(list()->item(row)); }
    void clickItem(int row) const { VnaTest::clickItem(list(), row); }
    bool open(const QPoint &at = {200, 200})
    {
        popup->popup();
        popup->show();
        popup->move(at); // the offscreen plugin frames what is moved before
        return QTest::qWaitForWindowExposed(popup);
    }

    QPointer<PopupWidget> popup = new PopupWidget;
    QSignalSpy closed{popup, &PopupWidget::widgetClosed};
    QStringList picked;
};

} // namespace

class tst_PopupWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void takesItsSizeFromTheItems()
    {
        const std::tuple<QListView::ViewMode, int, int, int, int> table[] = {
            {QListView::ListMode, 0, 4, 150, 0},     {QListView::ListMode, 3, 4, 150, 3},
            {QListView::ListMode, 500, 4, 150, 500}, {QListView::IconMode, 0, 4, 481, 0},
            {QListView::IconMode, 4, 4, 481, 1},     {QListView::IconMode, 5, 4, 481, 2},
            {QListView::IconMode, 2, 0, 121, 2}, // no column counts as one
        };
        for (const auto &[mode, items, columns, width, rows] : table) {
            const Row row("%1 items, mode %2"_s.arg(items).arg(mode));
            Fixture f(numbered(items));
            f.popup->setViewMode(mode);
            f.popup->setWidgetFixedWidth(150);
            f.popup->setItemCountPerRow(columns);
            f.popup->popup();
            const bool tiles = mode == QListView::IconMode;
            const int height = rows * (tiles ? 100 : f.list()->sizeHintForRow(0));
            const QSize size(width, 2 * f.list()->frameWidth() + height);
            QCOMPARE(f.popup->minimumSize(), size);
            QCOMPARE(f.popup->maximumSize(), size);
            QVERIFY(f.open());
            QCOMPARE(f.list()->size(), size);
        }
    }

    void tilesStandInTheirColumns()
    {
        Fixture f(numbered(5));
        f.popup->popup();
        const QSize asRows = f.popup->size();
        f.popup->setViewMode(QListView::IconMode);
        f.popup->setStyleSheet("QListWidget#IconModeView { border: none; }"_s);
        QCOMPARE(f.list()->objectName(), "IconModeView"_s);
        QVERIFY(f.open());
        QCOMPARE(f.list()->frameWidth(), 0);
        for (int i = 0; i < 5; ++i)
            QCOMPARE(f.rect(i), QRect(i % 4 * 120, i / 4 * 100, 120, 100));

        f.popup->setStyleSheet({});
        f.popup->setViewMode(QListView::ListMode);
        QCOMPARE(f.list()->objectName(), "ListModeView"_s);
        QVERIFY(f.open());
        QCOMPARE(f.popup->size(), asRows);
        QVERIFY(f.list()->viewport()->rect().contains(f.rect(4)));
    }

    void picksByTap()
    {
        Fixture f;
        // The choice outlives the closing: picking it again closes without a word.
        for (int round = 1; round <= 2; ++round) {
            QVERIFY(f.open());
            f.clickItem(1);
            QCOMPARE(f.picked, QStringList("Phase"_s));
            QCOMPARE(f.closed.count(), round);
            QVERIFY(!f.isOpen());
        }
        // An unknown text clears the choice.
        f.popup->setCurrentItem("SWR"_s);
        QVERIFY(!f.list()->currentItem() && f.list()->selectedItems().isEmpty());
        QVERIFY(f.open());
        f.clickItem(1);
        QCOMPARE(f.picked.count(), 2);
    }

    void disabledItemKeepsTheChoice()
    {
        Fixture f;
        f.popup->setCurrentItem("Smith"_s);
        f.popup->setItemEnabled("Phase"_s, false);
        f.popup->setItemEnabled("none of them"_s, false);
        f.popup->setItemEnabled(3, false);
        QVERIFY(f.open());
        typeKey(f.popup, Qt::Key_Home); // moves the highlight only
        QCOMPARE(f.list()->currentRow(), 0);
        f.clickItem(1);
        QTRY_COMPARE(f.list()->currentRow(), 2);
        QVERIFY(f.list()->item(2)->isSelected() && f.isOpen());
        QCOMPARE(f.picked.count() + f.closed.count(), 0);
        f.popup->setItemEnabled(1, true);
        f.clickItem(1);
        QCOMPARE(f.picked, QStringList("Phase"_s));
    }

    void firstOfEqualTextsStandsForAll()
    {
        Fixture f({"a"_s, QString(), "a"_s});
        f.popup->setCurrentItem("a"_s);
        QCOMPARE(f.list()->currentRow(), 0);
        f.popup->setItemEnabled("a"_s, false);
        QVERIFY(f.list()->item(2)->flags() & Qt::ItemIsEnabled);
        for (const int row : {2, 1}) { // the same text again tells nothing
            QVERIFY(f.open());
            f.clickItem(row);
        }
        QCOMPARE(f.picked, QStringList(QString()));
    }

    void worksByKeyAndClosesByOutsideTap()
    {
        Fixture f;
        f.popup->setCurrentItem("LogM"_s);
        f.popup->setItemEnabled(1, false);
        for (const auto &[arrow, picks, text, row] :
             {std::tuple(Qt::Key_Down, Qt::Key_Return, "\r"_s, 2), // over the disabled one
              {Qt::Key_Up, Qt::Key_Space, " "_s, 0},
              {Qt::Key_End, Qt::Key_Select, QString(), 2}}) {
            QVERIFY(f.open());
            typeKey(f.popup, arrow);
            QCOMPARE(f.list()->currentRow(), row);
            QVERIFY(f.isOpen());
            typeKey(f.popup, picks, text);
            QVERIFY(!f.isOpen());
        }
        QCOMPARE(f.picked, QStringList({"Smith"_s, "LogM"_s, "Smith"_s}));

        QVERIFY(f.open());
        typeKey(f.popup, Qt::Key_Escape);
        QVERIFY(!f.isOpen());
        QCOMPARE(f.closed.count(), 4);
        QWidget window;
        window.setGeometry(0, 0, 600, 600);
        showExposed(&window);
        QVERIFY(f.open());
        mouseClick(&window, {10, 10});
        QVERIFY(!f.isOpen());
        QCOMPARE(f.closed.count(), 5);
        QCOMPARE(f.picked.count(), 3);
    }

    void goesWhileItIsOpen()
    {
        // Qt closes it then and gives its list the focus, which makes the first item the current one.
        Fixture fixture;
        QVERIFY(fixture.open());
        QApplication::setActiveWindow(fixture.popup);
        fixture.list()->setCurrentItem(nullptr);
        fixture.picked.clear();
        delete fixture.popup;
        QCOMPARE(fixture.picked, QStringList());
        QVERIFY(!QApplication::activePopupWidget());
    }

    void titleTakesPartAndDrags()
    {
        Fixture f;
        f.popup->popup();
        const int untitled = f.popup->height();
        QVERIFY(!f.popup->titleVisible());
        f.popup->setTitleText("Format"_s);
        QVERIFY(f.popup->titleVisible());
        QVERIFY(f.open({200, 200}));
        QCOMPARE(f.popup->height(), untitled + f.title()->sizeHint().height());
        QCOMPARE(f.list()->y(), f.title()->sizeHint().height());

        mousePress(f.title(), {20, 10});
        mouseMove(f.title(), {50, 45}); // the title follows
        QCOMPARE(f.popup->pos(), QPoint(230, 235));
        mouseMove(f.title(), {10, 10});
        QCOMPARE(f.popup->pos(), QPoint(220, 235));
        mouseRelease(f.title(), {20, 10});
        mouseMove(f.title(), {60, 12});
        QCOMPARE(f.popup->pos(), QPoint(220, 235));
        // A quick second press drags as well; moves without one do not.
        const auto send = [&f](QEvent::Type type, const QPoint &at) {
            QMouseEvent event(type, f.title()->mapFromGlobal(at), at, Qt::LeftButton,
                              Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(f.title(), &event);
            return f.popup->pos();
        };
        send(QEvent::MouseButtonDblClick, {230, 240});
        QCOMPARE(send(QEvent::MouseMove, {250, 245}), QPoint(240, 240));
        send(QEvent::MouseButtonRelease, {250, 245});
        QCOMPARE(send(QEvent::MouseMove, {300, 300}), QPoint(240, 240));
        QVERIFY(f.isOpen());

        f.popup->setTitleVisible(false);
        f.popup->setTitleText("Format"_s); // the same does not bring it back
        f.popup->popup();
        QCOMPARE(f.popup->height(), untitled);
    }

    void wheelDoesNotScroll()
    {
        Fixture f(numbered(10));
        QVERIFY(f.open({100, 100}));
        f.list()->setFixedHeight(60); // leaves something to scroll
        QScrollBar *const bar = f.list()->verticalScrollBar();
        QTRY_VERIFY(bar->maximum() > 0);
        for (QWidget *const target : {static_cast<QWidget *>(f.list()), f.list()->viewport()}) {
            turnWheel(target, f.list()->rect().center(), -240);
            QCOMPARE(bar->value(), 0);
        }
        QCOMPARE(f.popup->pos(), QPoint(100, 100));
    }

    void slidesWhenTallerThanTheScreen()
    {
        Fixture f(numbered(500));
        f.popup->setCurrentItem("3"_s);
        const QRect screen = f.popup->screen()->availableGeometry();
        QVERIFY(f.open({200, screen.top() + 5}));
        QVERIFY(f.popup->height() > screen.height());

        // The arrow keys bring their row onto the screen, at either end.
        for (const auto &[key, reached] :
             {std::pair(Qt::Key_Down, 43), {Qt::Key_End, 499}, {Qt::Key_Home, 0}}) {
            for (int i = 0; i < 40; ++i)
                typeKey(f.popup, key);
            QCOMPARE(f.list()->currentRow(), reached);
            const QRect row = f.rect(reached);
            QVERIFY(screen.contains(row.translated(f.list()->viewport()->mapToGlobal(QPoint()))));
        }

        // The wheel moves it as far as either end, with the same margin.
        QWidget *const viewport = f.list()->viewport();
        turnWheel(viewport, {3, 3}, 90000);
        const int margin = f.popup->y() - screen.top();
        turnWheel(viewport, {3, 3}, -90000);
        f.popup->hide();
        f.popup->setCurrentItem("3"_s); // nothing slides unseen
        f.popup->show();
        QCOMPARE(f.popup->geometry().bottom(), screen.bottom() - margin);
        turnWheel(viewport, {3, 3}, 90000);

        // A finger pulls the list along, and its release picks nothing.
        const int before = f.popup->y();
        const QPoint lowest = viewport->mapFromGlobal(QPoint(250, screen.bottom()));
        mousePress(viewport, lowest); // on a row that is partly seen
        mouseMove(f.popup, lowest - QPoint(0, 5)); // a tap may tremble
        QCOMPARE(f.popup->y(), before);
        mouseMove(f.popup, lowest - QPoint(0, 200));
        QVERIFY(f.popup->y() < before - 190);
        mouseRelease(viewport, lowest);
        QVERIFY(f.isOpen());
        QCOMPARE(f.picked.count(), 0);
        QCOMPARE(f.list()->currentRow(), 3);
        f.clickItem(12);
        QCOMPARE(f.picked, QStringList("12"_s));
    }

    void scrollsInsideOnDemand()
    {
        Fixture f(numbered(500));
        for (const bool inside : {true, false, true}) {
            f.popup->setScrollsInside(inside);
            QCOMPARE(f.popup->scrollsInside(), inside);
            QVERIFY(f.open());
            QCOMPARE(f.popup->height() < f.popup->screen()->availableGeometry().height(), inside);
            f.popup->close();
        }
    }

    void touch()
    {
        Fixture f;
        QVERIFY(f.open());
        TouchScreen screen(f.popup);
        const auto item = [&f](int row) {
            return f.list()->viewport()->mapTo(f.popup, f.rect(row).center());
        };
        // A second finger does not pick, and an event without points harms nobody.
        screen.press(item(0));
        screen.pressSecond(item(2));
        screen.releaseSecond(item(2));
        for (const QEvent::Type type : {QEvent::TouchUpdate, QEvent::TouchCancel})
            QVERIFY(!sendTouchWithoutPoints(f.list()->viewport(), type));
        QVERIFY(f.isOpen());
        QCOMPARE(f.picked.count(), 0);
        screen.release(item(0));
        QVERIFY(f.open());
        screen.tap(item(1));
        QCOMPARE(f.picked, QStringList({"LogM"_s, "Phase"_s}));
    }
};

QTEST_MAIN(tst_PopupWidget)
#include "tst_popupwidget.moc"
