// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/draggableframelessdialog.h>

#include <events.h>
#include <pointer.h>
#include <vnatest.h>

using Bar = Controls::DraggableDialogTitleBar;
using Controls::DraggableFramelessDialog;
using namespace VnaTest;

namespace
{

const QPoint Title(40, 17); // on the title's text
const QPoint Centred(200, 125);
const QFlags<Bar::Button> AllButtons =
    QFlags<Bar::Button>(Bar::MinimizeButton) | Bar::MaximizeButton | Bar::CloseButton;

/// A dialog of 200 x 150 over a host of 600 x 400.
struct Scene {
    QWidget host;
    DraggableFramelessDialog dialog{&host};
    QPointer<Bar> bar = dialog.findChild<Bar *>();

    Scene()
    {
        host.setGeometry(50, 50, 600, 400);
        host.show();
        dialog.setWindowTitle("Marker search"_s);
        auto *content = new QWidget;
        content->setFixedSize(200, 115);
        auto *layout = new QVBoxLayout(&dialog);
        layout->setContentsMargins(0, 35, 0, 0);
        layout->addWidget(content);
        dialog.show();
    }

    QPoint position() const { return dialog.pos() - host.geometry().topLeft(); }
    QWindow *window() const { return dialog.windowHandle(); }

    void press(const QPoint &pos)
    {
        m_last = dialog.pos() + pos;
        QTest::mousePress(window(), Qt::LeftButton, Qt::NoModifier, pos);
    }
    /// The dialog moves under the pointer, so positions in it are worked out anew each time.
    void moveBy(const QPoint &way)
    {
        m_last += way;
        QTest::mouseMove(window(), m_last - dialog.pos());
    }
    void release()
    {
        QTest::mouseRelease(window(), Qt::LeftButton, Qt::NoModifier, m_last - dialog.pos());
    }

private:
    QPoint m_last;
};

/// Object names of the buttons from left to right.
QStringList buttonsOf(QWidget *bar)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QStringList names;
    for (int i = 0; i < bar->layout()->count(); ++i) {
        if (const auto *button = qobject_cast<QPushButton *>(bar->layout()->itemAt(i)->widget()))
            names << button->objectName();
    }
    if (names.count() != bar->findChildren<QPushButton *>().count())
        names << "and some outside the layout"_s;
    return names;
}

} // namespace

class tst_DraggableFramelessDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void centredWhenShownAndKeptInAShrinkingParent()
    {
        Scene scene;
        QCOMPARE(scene.dialog.size(), QSize(200, 150));
        QCOMPARE(scene.position(), Centred);
        QCOMPARE(scene.dialog.findChild<QLabel *>("draggableDialogTitleLabel"_s)->text(),
                 "Marker search"_s);
        QVERIFY(scene.dialog.windowTitle().isEmpty() && !scene.dialog.startSystemMoveIfSupported());
        scene.dialog.move(scene.host.geometry().topLeft() + QPoint(400, 250));
        scene.host.resize(500, 300);
        QTRY_COMPARE(scene.position(), QPoint(300, 150));

        DraggableFramelessDialog withoutParent; // stays on its screen
        withoutParent.show();
        withoutParent.doMoveByDelta({50000, 50000});
        const QRect screen = withoutParent.screen()->availableGeometry();
        QVERIFY(screen.contains(withoutParent.frameGeometry()));
        withoutParent.centerInParent();
        withoutParent.clampToParentVisibleRect();
    }

    void draggedAndClampedAtEachEdge()
    {
        const QPair<QPoint, QPoint> rows[] = {
            {{30, -20}, {230, 105}}, {{-5000, 0}, {0, 125}},  {{0, -5000}, {200, 0}},
            {{5000, 0}, {400, 125}}, {{0, 5000}, {200, 250}},
        };
        for (const auto &[way, position] : rows) {
            const Row row("by %1, %2"_s.arg(way.x()).arg(way.y()));
            Scene scene;
            scene.press(Title);
            scene.moveBy(way);
            QCOMPARE(scene.position(), position);
            // Back by the same way is back at the start, also from beyond the edge.
            scene.moveBy(-way);
            QCOMPARE(scene.position(), Centred);
            scene.moveBy(way);
            scene.release();
            QCOMPARE(scene.position(), position);
            scene.moveBy(QPoint(7, 7));
            QCOMPARE(scene.position(), position);
        }
    }

    void secondFingerLeavesTheFirstItsRelease()
    {
        Scene scene;
        QPushButton button("Peak"_s, &scene.dialog);
        button.setGeometry(20, 60, 100, 50);
        button.show();
        QSignalSpy clicked(&button, &QPushButton::clicked);
        TouchScreen touch(&scene.dialog);
        touch.press(button.geometry().center());
        touch.pressSecond(Title);
        touch.release();
        QVERIFY(!button.isDown());
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(scene.position(), Centred);
    }

    void fingerDrags()
    {
        Scene scene;
        TouchScreen touch(&scene.dialog);
        touch.press(Title);
        touch.move(Title + QPoint(20, 10));
        QCOMPARE(scene.position(), Centred + QPoint(20, 10));
        // A driver that lost the finger for a moment: swallowed without moving.
        QTouchEvent empty(QEvent::TouchUpdate);
        QVERIFY(QCoreApplication::sendEvent(scene.bar, &empty));
        QCOMPARE(scene.position(), Centred + QPoint(20, 10));
        touch.release(Title);
        const QPoint end = scene.position();
        mouseMove(scene.bar, QPoint(5, 5));
        QCOMPARE(scene.position(), end);

        QVERIFY(!sendTouchWithoutPoints(scene.bar, QEvent::TouchBegin));
        touch.press(Title);
        QVERIFY(sendTouchWithoutPoints(scene.bar, QEvent::TouchCancel));
        touch.move(Title + QPoint(20, 10));
        QCOMPARE(scene.position(), end);
        touch.release(Title);
    }

    void pressesForOthersDoNotDrag()
    {
        Scene scene;
        scene.dialog.setHeaderButton(Bar::CloseButton);
        QLineEdit edit(scene.bar);
        QSlider slider(scene.bar);
        QWidget focusable(scene.bar);
        int left = 60;
        for (QWidget *child : std::initializer_list<QWidget *>{&edit, &slider, &focusable}) {
            child->setFocusPolicy(child == &focusable ? Qt::ClickFocus : Qt::NoFocus);
            child->setGeometry(left, 5, 20, 20);
            child->show();
            left += 30;
        }
        QCoreApplication::sendPostedEvents();
        const QPoint start = scene.position();
        const QPoint close(180, 17);
        for (const QPoint &pos : {QPoint(70, 10), QPoint(100, 10), QPoint(130, 10), close}) {
            QVERIFY(!scene.dialog.shouldStartDrag(scene.bar, pos));
            scene.press(pos);
            scene.moveBy(QPoint(30, 30));
            scene.release();
            QCOMPARE(scene.position(), start);
        }
        TouchScreen touch(&scene.dialog);
        touch.press(QPoint(130, 10));
        touch.move(QPoint(160, 40));
        touch.release(QPoint(160, 40));
        QCOMPARE(scene.position(), start);
        // Nor does a bar that the host has put there.
        Bar other(&scene.dialog);
        other.installEventFilter(&scene.dialog);
        other.setGeometry(0, 60, 200, 35);
        other.show();
        scene.press(Title + QPoint(0, 60));
        scene.moveBy(QPoint(30, 30));
        scene.release();
        QCOMPARE(scene.position(), start);
        QVERIFY(!scene.dialog.shouldStartDrag(nullptr, Title));
        QVERIFY(scene.dialog.shouldStartDrag(scene.bar, Title));
    }

    void headerButtonsComeAndGo()
    {
        Scene scene;
        scene.dialog.setHeaderButton(AllButtons);
        scene.dialog.setHeaderButton(AllButtons);
        QCOMPARE(buttonsOf(scene.bar),
                 QStringList({"draggableDialogMinimizeButton"_s, "draggableDialogMaximizeButton"_s,
                              "draggableDialogCloseButton"_s}));
        QSignalSpy accepted(&scene.dialog, &QDialog::accepted);
        QSignalSpy rejected(&scene.dialog, &QDialog::rejected);
        // Enter belongs to the dialog's contents, not to a button of its frame.
        QTest::keyClick(scene.window(), Qt::Key_Return);
        QVERIFY(!scene.dialog.isMinimized());

        auto *maximize = scene.bar->findChild<QPushButton *>("draggableDialogMaximizeButton"_s);
        QCOMPARE(maximize->property("max"), QVariant(false));
        for (const bool maximized : {true, false}) {
            mouseClick(maximize);
            QCOMPARE(scene.dialog.isMaximized(), maximized);
            QCOMPARE(maximize->property("max"), QVariant(maximized));
        }

        mouseClick(scene.bar->findChild<QPushButton *>("draggableDialogMinimizeButton"_s));
        QVERIFY(scene.dialog.isMinimized());
        scene.dialog.showNormal();

        scene.dialog.setHeaderButton(Bar::CloseButton);
        QCOMPARE(buttonsOf(scene.bar), QStringList("draggableDialogCloseButton"_s));
        auto *close = scene.bar->findChild<QPushButton *>();
        QCOMPARE(close->focusPolicy(), Qt::NoFocus);
        QVERIFY(!close->accessibleName().isEmpty());
        mouseClick(close);
        QCOMPARE(rejected.count(), 1);
        QCOMPARE(accepted.count(), 0);
        scene.dialog.setHeaderButton({});
        QCOMPARE(buttonsOf(scene.bar), QStringList());
    }

    // Flags combine, a title may come through the base class, and makes the dialog wide enough.
    void titleAsOfAnyWindow()
    {
        QWidget host;
        host.resize(900, 400);
        host.show();
        Controls::DraggableFramelessDialog dialog(&host);
        dialog.setHeaderButton(Bar::MinimizeButton | Bar::CloseButton);
        auto *layout = new QVBoxLayout(&dialog);
        layout->addWidget(new QLabel("x"_s));
        const QString title = "A title that is longer than all there is below it"_s;
        static_cast<QWidget &>(dialog).setWindowTitle(title);
        dialog.show();
        const auto *label = dialog.findChild<QLabel *>("draggableDialogTitleLabel"_s);
        QCOMPARE(label->text(), title);
        QTRY_VERIFY(label->width() >= label->sizeHint().width());
        dialog.hide();
        dialog.setProperty("windowTitle", title.repeated(8));
        dialog.show();
        QCOMPARE(dialog.width(), host.width());
    }

    void buttonsFollowTheTitleHeight()
    {
        QDialog dialog;
        Bar bar(&dialog);
        bar.setHeaderButton(Bar::CloseButton);
        const auto *close = bar.findChild<QPushButton *>();
        for (const auto &[height, icon] : {std::pair(35, 21), {20, 12}}) {
            bar.setTitleHeight(height);
            QCOMPARE(close->size(), QSize(height, height));
            QCOMPARE(close->iconSize(), QSize(icon, icon));
        }
    }

    /// What maximising leads to in the host may take the button away, or the whole bar.
    void maximisedAndGone()
    {
        for (const bool whole : {false, true}) {
            Scene scene;
            scene.dialog.setHeaderButton(Bar::MaximizeButton);
            const OnEvent end(&scene.dialog, QEvent::WindowStateChange, [&] {
                if (whole)
                    delete scene.bar;
                else
                    scene.dialog.setHeaderButton({});
            });
            scene.bar->findChild<QPushButton *>()->click();
            QVERIFY(scene.dialog.isMaximized());
            QCOMPARE(bool(scene.bar), !whole);
        }
    }

    void survivesWhatGoesBeforeIt()
    {
        DraggableFramelessDialog unseen; // has no window yet
        unseen.resize(200, 100);
        auto *const bar = unseen.findChild<Bar *>();
        bar->setGeometry(0, 0, 200, 35);
        QTest::mousePress(bar, Qt::LeftButton, Qt::NoModifier, Title);
        QVERIFY(unseen.pos().isNull());

        Bar orphan(nullptr);
        orphan.setHeaderButton(AllButtons);
        for (QPushButton *button : orphan.findChildren<QPushButton *>())
            button->click();

        Scene scene;
        scene.press(Title); // a drag does not outlive hiding
        scene.dialog.hide();
        scene.dialog.show();
        scene.moveBy(QPoint(30, 30));
        QCOMPARE(scene.position(), Centred);
        scene.release();

        scene.press(Title);
        delete scene.bar;
        scene.moveBy(QPoint(10, 10));
        scene.dialog.setHeaderButton(Bar::CloseButton);
        scene.dialog.setWindowTitle("gone"_s);
        scene.host.resize(300, 300);
        QCoreApplication::processEvents();
        scene.dialog.hide();
        scene.dialog.show(); // as wide as its content
        scene.dialog.resize(210, 160);
        QCOMPARE(scene.dialog.size(), QSize(210, 160));
    }
};

QTEST_MAIN(tst_DraggableFramelessDialog)
#include "tst_draggableframelessdialog.moc"
