// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/draggableframelessdialog.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

#include <memory>

#include <pointer.h>
#include <vnatest.h>

using Controls::DraggableDialogTitleBar;
using Controls::DraggableFramelessDialog;
using namespace VnaTest;

namespace
{

const QPoint s_title(40, 17); // on the title's text

/// A dialog of 200 x 150 over a host of 600 x 400.
struct Scene {
    QWidget host;
    std::unique_ptr<DraggableFramelessDialog> dialog;
    QPointer<DraggableDialogTitleBar> bar;

    Scene()
    {
        host.setGeometry(50, 50, 600, 400);
        host.show();
        dialog = std::make_unique<DraggableFramelessDialog>(&host);
        dialog->setWindowTitle(QStringLiteral("Marker search"));
        auto *layout = new QVBoxLayout(dialog.get());
        auto *content = new QWidget;
        content->setFixedSize(200, 115);
        layout->setContentsMargins(0, 35, 0, 0);
        layout->addWidget(content);
        bar = dialog->findChild<DraggableDialogTitleBar *>();
        dialog->show();
    }

    QPoint position() const { return dialog->pos() - host.geometry().topLeft(); }
    QWindow *window() const { return dialog->windowHandle(); }

    void press(const QPoint &pos)
    {
        m_last = dialog->pos() + pos;
        QTest::mousePress(window(), Qt::LeftButton, Qt::NoModifier, pos);
    }
    /// The dialog moves under the pointer, so positions in it are worked out anew each time.
    void moveBy(const QPoint &way)
    {
        m_last += way;
        QTest::mouseMove(window(), m_last - dialog->pos());
    }
    void release()
    {
        QTest::mouseRelease(window(), Qt::LeftButton, Qt::NoModifier, m_last - dialog->pos());
    }

private:
    QPoint m_last;
};

} // namespace

class tst_DraggableFramelessDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void centredWhenShown()
    {
        Scene scene;
        QCOMPARE(scene.dialog->size(), QSize(200, 150));
        QCOMPARE(scene.position(), QPoint(200, 125));
        QCOMPARE(scene.bar->geometry(), QRect(0, 0, 200, 35));
        QCOMPARE(
            scene.dialog->findChild<QLabel *>(QStringLiteral("draggableDialogTitleLabel"))->text(),
            QStringLiteral("Marker search"));
        QVERIFY(scene.dialog->windowTitle().isEmpty());
        QVERIFY(!scene.dialog->startSystemMoveIfSupported());
    }

    void draggedAndClampedAtEachEdge_data()
    {
        QTest::addColumn<QPoint>("way");
        QTest::addColumn<QPoint>("position");
        QTest::newRow("freely") << QPoint(30, -20) << QPoint(230, 105);
        QTest::newRow("left") << QPoint(-5000, 0) << QPoint(0, 125);
        QTest::newRow("top") << QPoint(0, -5000) << QPoint(200, 0);
        QTest::newRow("right") << QPoint(5000, 0) << QPoint(400, 125);
        QTest::newRow("bottom") << QPoint(0, 5000) << QPoint(200, 250);
    }

    void draggedAndClampedAtEachEdge()
    {
        QFETCH(QPoint, way);
        QFETCH(QPoint, position);
        Scene scene;
        scene.press(s_title);
        scene.moveBy(way);
        QCOMPARE(scene.position(), position);
        // Back by the same way is back at the start, also from beyond the edge.
        scene.moveBy(-way);
        QCOMPARE(scene.position(), QPoint(200, 125));
        scene.moveBy(way);
        scene.release();
        QCOMPARE(scene.position(), position);
        scene.moveBy(QPoint(7, 7));
        QCOMPARE(scene.position(), position);
    }

    void fingerDrags()
    {
        Scene scene;
        TouchScreen touch(scene.dialog.get());
        touch.press(s_title);
        const QPoint start = scene.dialog->pos();
        touch.move(s_title + QPoint(20, 10));
        QCOMPARE(scene.dialog->pos(), start + QPoint(20, 10));
        // A driver that lost the finger for a moment: swallowed without moving.
        QTouchEvent empty(QEvent::TouchUpdate);
        QVERIFY(QCoreApplication::sendEvent(scene.bar, &empty));
        QCOMPARE(scene.dialog->pos(), start + QPoint(20, 10));
        touch.release(s_title);
        const QPoint end = scene.dialog->pos();
        mouseMove(scene.bar, QPoint(5, 5));
        QCOMPARE(scene.dialog->pos(), end);
    }

    void cancelledTouchEndsTheDrag()
    {
        Scene scene;
        TouchScreen touch(scene.dialog.get());
        const QPoint start = scene.dialog->pos();
        touch.press(s_title);
        QVERIFY(sendTouchWithoutPoints(scene.bar, QEvent::TouchCancel));
        touch.move(s_title + QPoint(20, 10));
        QCOMPARE(scene.dialog->pos(), start);
        touch.release(s_title);
    }

    void pressesForOthersDoNotDrag()
    {
        Scene scene;
        scene.dialog->setHeaderButton(DraggableDialogTitleBar::CloseButton);
        auto *edit = new QLineEdit(scene.bar);
        edit->setGeometry(60, 5, 40, 20);
        edit->show();
        auto *focusable = new QWidget(scene.bar);
        focusable->setGeometry(110, 5, 20, 20);
        focusable->setFocusPolicy(Qt::ClickFocus);
        focusable->show();
        QCoreApplication::sendPostedEvents();
        const QPoint close(180, 17);
        for (const QPoint &pos : {QPoint(70, 10), QPoint(120, 10), close}) {
            QVERIFY(!scene.dialog->shouldStartDrag(scene.bar, pos));
            const QPoint start = scene.dialog->pos();
            scene.press(pos);
            scene.moveBy(QPoint(30, 30));
            scene.release();
            QCOMPARE(scene.dialog->pos(), start);
        }
        QVERIFY(!scene.dialog->shouldStartDrag(nullptr, s_title));
        QVERIFY(scene.dialog->shouldStartDrag(scene.bar, s_title));
        QVERIFY(scene.dialog->shouldStartDrag(scene.bar, QPoint(150, 30)));
    }

    void staysInAShrinkingParent()
    {
        Scene scene;
        scene.dialog->move(scene.host.geometry().topLeft() + QPoint(400, 250));
        scene.host.resize(500, 300);
        QTRY_COMPARE(scene.position(), QPoint(300, 150));
    }

    void staysOnItsScreenWithoutParent()
    {
        DraggableFramelessDialog dialog;
        dialog.show();
        dialog.doMoveByDelta({50000, 50000});
        QVERIFY(dialog.screen()->availableGeometry().contains(dialog.frameGeometry()));
        dialog.centerInParent();
        dialog.clampToParentVisibleRect();
    }

    void headerButtonsComeAndGo()
    {
        Scene scene;
        using Bar = DraggableDialogTitleBar;
        scene.dialog->setHeaderButton(QFlags<Bar::Button>(Bar::CloseButton) | Bar::MinimizeButton
                                      | Bar::MaximizeButton);
        scene.dialog->setHeaderButton(QFlags<Bar::Button>(Bar::CloseButton) | Bar::MinimizeButton
                                      | Bar::MaximizeButton);
        QCOMPARE(buttonsOf(scene.bar),
                 (QStringList{QStringLiteral("draggableDialogMinimizeButton"),
                              QStringLiteral("draggableDialogMaximizeButton"),
                              QStringLiteral("draggableDialogCloseButton")}));
        QSignalSpy accepted(scene.dialog.get(), &QDialog::accepted);
        QSignalSpy rejected(scene.dialog.get(), &QDialog::rejected);
        // Enter belongs to the dialog's contents, not to a button of its frame.
        QTest::keyClick(scene.window(), Qt::Key_Return);
        QVERIFY(!scene.dialog->isMinimized());

        auto *maximize =
            scene.bar->findChild<QPushButton *>(QStringLiteral("draggableDialogMaximizeButton"));
        QCOMPARE(maximize->property("max"), QVariant(false));
        mouseClick(maximize);
        QVERIFY(scene.dialog->isMaximized());
        QCOMPARE(maximize->property("max"), QVariant(true));
        mouseClick(maximize);
        QVERIFY(!scene.dialog->isMaximized());
        QCOMPARE(maximize->property("max"), QVariant(false));

        scene.dialog->setHeaderButton(Bar::CloseButton);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(buttonsOf(scene.bar), QStringList(QStringLiteral("draggableDialogCloseButton")));
        auto *close = scene.bar->findChild<QPushButton *>();
        QCOMPARE(close->focusPolicy(), Qt::NoFocus);
        QVERIFY(!close->accessibleName().isEmpty());
        mouseClick(close);
        QCOMPARE(rejected.count(), 1);
        QCOMPARE(accepted.count(), 0);
        scene.dialog->setHeaderButton({});
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(buttonsOf(scene.bar), QStringList());
    }

    void buttonsFollowTheTitleHeight()
    {
        QDialog dialog;
        dialog.setWindowTitle(QStringLiteral("Save"));
        DraggableDialogTitleBar bar(&dialog);
        QCOMPARE(bar.findChild<QLabel *>()->text(), QStringLiteral("Save"));
        bar.setHeaderButton(DraggableDialogTitleBar::CloseButton);
        const auto *close = bar.findChild<QPushButton *>();
        QCOMPARE(close->size(), QSize(35, 35));
        QCOMPARE(close->iconSize(), QSize(21, 21));
        bar.setTitleHeight(20);
        QCOMPARE(close->size(), QSize(20, 20));
        QCOMPARE(close->iconSize(), QSize(12, 12));
        bar.setTitleHeight(-3);
        QCOMPARE(bar.titleHeight(), 0);
        QCOMPARE(bar.height(), 0);
        bar.setWindowTitleAlignment(Qt::AlignCenter);
        QCOMPARE(bar.windowTitleAlignment(), Qt::AlignCenter);
    }

    void survivesWhatGoesBeforeIt()
    {
        DraggableDialogTitleBar orphan(nullptr);
        orphan.setHeaderButton(QFlags<DraggableDialogTitleBar::Button>(0x7));
        const QList<QPushButton *> buttons = orphan.findChildren<QPushButton *>();
        QCOMPARE(buttons.count(), 3);
        for (QPushButton *button : buttons)
            button->click();

        Scene scene;
        scene.press(s_title);
        delete scene.bar;
        scene.moveBy(QPoint(10, 10));
        scene.release();
        scene.dialog->setHeaderButton(DraggableDialogTitleBar::CloseButton);
        scene.dialog->setWindowTitle(QStringLiteral("gone"));
        scene.dialog->resize(300, 300);
        scene.host.resize(300, 300);
        QCoreApplication::processEvents();
    }

    void dragDoesNotOutliveHiding()
    {
        Scene scene;
        scene.press(s_title);
        scene.dialog->hide();
        scene.dialog->show();
        const QPoint start = scene.dialog->pos();
        scene.moveBy(QPoint(30, 30));
        QCOMPARE(scene.dialog->pos(), start);
        scene.release();
    }

private:
    /// Object names from left to right.
    static QStringList buttonsOf(QWidget *bar)
    {
        QStringList names;
        const QLayout *layout = bar->layout();
        for (int i = 0; i < layout->count(); ++i) {
            if (qobject_cast<QPushButton *>(layout->itemAt(i)->widget()))
                names << layout->itemAt(i)->widget()->objectName();
        }
        if (names.count() != bar->findChildren<QPushButton *>().count())
            names << QStringLiteral("and some outside the layout");
        return names;
    }
};

QTEST_MAIN(tst_DraggableFramelessDialog)
#include "tst_draggableframelessdialog.moc"
