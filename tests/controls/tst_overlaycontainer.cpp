// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/overlaycontainer.h>

#include <functional>
#include <memory>

#include <events.h>
#include <pointer.h>
#include <vnatest.h>

using namespace VnaTest;
using Controls::OverlayContainer;

namespace
{

/// Shows a dialog in the middle.
void showOn(OverlayContainer *overlay, QDialog *dialog,
            OverlayContainer::OutsideClickAction action = OverlayContainer::None, bool dim = false)
{
    overlay->showWithDialog(dialog, action, dim, OverlayContainer::Centered, nullptr);
}

} // namespace

class tst_OverlayContainer : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        m_window = std::make_unique<QWidget>();
        m_window->setGeometry(40, 60, 640, 480);
        m_button = new QPushButton(m_window.get());
        m_button->setGeometry(0, 0, 640, 480);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        TestCase::cleanup();
    }

    void coversAndFollowsItsHost()
    {
        OverlayContainer overlay(m_window.get());
        QVERIFY(overlay.isHidden());
        m_window->resize(500, 300);
        QCOMPARE(overlay.geometry(), QRect(0, 0, 500, 300));

        QWidget other(m_window.get());
        other.resize(90, 80);
        overlay.attachToHost(&other);
        m_window->resize(700, 500);
        QCOMPARE(overlay.geometry(), QRect(0, 0, 90, 80));
        overlay.setParent(nullptr);

        // Without a host the dialog's parent becomes it.
        OverlayContainer loose(nullptr);
        QDialog *dialog = makeDialog();
        showOn(&loose, dialog);
        QCOMPARE(loose.parentWidget(), m_window.get());
        QCOMPARE(loose.geometry(), m_window->rect());
        dialog->accept();
        loose.attachToHost(nullptr); // follows it no longer
        m_window->resize(300, 200);
        QCOMPARE(loose.geometry(), QRect(0, 0, 700, 500));
        // Nobody but itself to cover: a dialog without a parent is shown all the same.
        loose.setParent(nullptr);
        QDialog alone;
        alone.setFixedSize(200, 100);
        OverlayContainer nowhere(nullptr);
        showOn(&nowhere, &alone);
        QVERIFY(alone.isVisible() && alone.isWindow() && !nowhere.parentWidget());
        alone.accept();
        QVERIFY(nowhere.isHidden());
        // Shown by the host without a dialog, it still covers.
        overlay.setParent(m_window.get());
        overlay.attachToHost(m_window.get());
        overlay.show();
        m_window->resize(310, 210);
        QCOMPARE(overlay.geometry(), QRect(0, 0, 310, 210));
    }

    void showsCentredAndHidesWithTheDialog()
    {
        OverlayContainer overlay(m_window.get());
        showOn(&overlay, nullptr);
        QVERIFY(overlay.isHidden());

        QDialog *dialog = makeDialog();
        showOn(&overlay, dialog);
        QVERIFY(overlay.isVisible() && dialog->isVisible());
        QCOMPARE(overlay.activeDialog(), dialog);
        QCOMPARE(dialog->parentWidget(), &overlay);
        QCOMPARE(dialog->geometry(), QRect(220, 190, 200, 100));
        QVERIFY(m_window->updatesEnabled());

        // It grows past the edge, and the host changes below it.
        dialog->move(440, 380);
        dialog->setFixedSize(220, 120);
        QCOMPARE(dialog->pos(), QPoint(420, 360));
        dialog->setFixedSize(200, 100);
        m_window->resize(400, 300);
        QCOMPARE(dialog->pos(), QPoint(100, 100));
        m_window->resize(150, 60);
        QCOMPARE(dialog->pos(), QPoint(0, 0));

        dialog->accept();
        QVERIFY(overlay.isHidden());
        QVERIFY(!overlay.activeDialog());

        // Shown again, it ends again; one ending is one ending. A host that draws nothing for now
        // goes on drawing nothing.
        m_window->setUpdatesEnabled(false);
        showOn(&overlay, dialog);
        showOn(&overlay, dialog);
        QVERIFY(overlay.isVisible() && dialog->isVisible());
        QVERIFY(!m_window->updatesEnabled());
        dialog->reject();
        QVERIFY(overlay.isHidden());
    }

    void standsBesideItsAnchor()
    {
        const QVector<QPair<QRect, QPoint>> places{
            {{500, 100, 80, 40}, {300, 100}}, // room to the left
            {{120, 100, 80, 40}, {0, 100}}, // near the left edge
            {{500, 450, 80, 40}, {300, 380}}, // near the bottom
            {{900, -50, 80, 40}, {440, 0}}}; // beyond the right
        QWidget anchor(m_window.get());
        for (const auto &[geometry, position] : places) {
            anchor.setGeometry(geometry);
            for (const Qt::WindowFlags flags :
                 {Qt::WindowFlags(Qt::Widget), Qt::Dialog | Qt::FramelessWindowHint}) {
                OverlayContainer overlay(m_window.get());
                QDialog *dialog = makeDialog(flags);
                overlay.showWithDialog(dialog, OverlayContainer::None, false,
                                       OverlayContainer::LeftOfAnchor, &anchor);
                const bool global = dialog->isWindow();
                QCOMPARE(dialog->pos(), global ? m_window->mapToGlobal(position) : position);
                dialog->accept();
            }
        }
    }

    void dimmingIsOnlyALook()
    {
        OverlayContainer overlay(m_window.get());
        m_button->hide();
        m_window->setPalette(QPalette(Qt::white));
        for (const bool dim : {true, false}) {
            QDialog *dialog = makeDialog();
            showOn(&overlay, dialog, OverlayContainer::None, dim);
            // Black at 80 of 255 over white.
            const int grey = m_window->grab().toImage().pixelColor(3, 3).red();
            QVERIFY2(dim ? qAbs(grey - 175) <= 1 : grey == 255, qPrintable(QString::number(grey)));
            dialog->accept();
        }
    }

    void pressesOutside()
    {
        for (const Qt::WindowType type : {Qt::Widget, Qt::Dialog}) {
            for (const auto action :
                 {OverlayContainer::None, OverlayContainer::Accept, OverlayContainer::Reject}) {
                OverlayContainer overlay(m_window.get());
                QDialog *dialog = makeDialog(type);
                showOn(&overlay, dialog, action);
                QSignalSpy outside(&overlay, &OverlayContainer::outsideClicked);
                QSignalSpy finished(dialog, &QDialog::finished);
                QSignalSpy clicked(m_button, &QPushButton::clicked);
                connect(&overlay, &OverlayContainer::outsideClicked, this,
                        [&] { QVERIFY(finished.isEmpty()); });

                mouseRelease(m_window.get(), QPoint(5, 5));
                QVERIFY(outside.isEmpty() && dialog->isVisible());
                mousePress(m_window.get(), QPoint(5, 5));
                QCOMPARE(outside.count(), 1);
                QCOMPARE(finished.count(), action == OverlayContainer::None ? 0 : 1);
                QCOMPARE(dialog->result(), action == OverlayContainer::Accept ? 1 : 0);
                QCOMPARE(overlay.isVisible(), action == OverlayContainer::None);
                mouseRelease(m_window.get(), QPoint(5, 5));
                QVERIFY(clicked.isEmpty());
                dialog->hide();
            }
        }
    }

    void touchesAndWheelOutside()
    {
        OverlayContainer overlay(m_window.get());
        QDialog *dialog = makeDialog();
        showOn(&overlay, dialog, OverlayContainer::Reject);
        QSignalSpy outside(&overlay, &OverlayContainer::outsideClicked);
        QVERIFY(turnWheel(&overlay, {5, 5}, 120));
        QVERIFY(!turnWheel(&overlay, {320, 240}, 120));
        QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
        QVERIFY(isTaken(&overlay, menu));
        QVERIFY(outside.isEmpty());

        (void)sendTouchWithoutPoints(&overlay, QEvent::TouchBegin);
        (void)sendTouchWithoutPoints(&overlay, QEvent::TouchCancel);
        TouchScreen screen(m_window.get());
        screen.tap(QPoint(320, 240));
        QVERIFY(outside.isEmpty());
        screen.press(QPoint(5, 5));
        QCOMPARE(outside.count(), 1);
        QVERIFY(overlay.isHidden());
        screen.release(QPoint(5, 5));
        QCOMPARE(outside.count(), 1);
    }

    void focusStaysWhereItIs()
    {
        QLineEdit editor(m_window.get());
        editor.show();
        editor.setFocus();
        QTRY_VERIFY(editor.hasFocus());
        OverlayContainer overlay(m_window.get());
        QDialog *dialog = makeDialog();
        QLineEdit first(dialog);
        QWidget proxied(dialog); // where the focus cannot stay
        proxied.setFocusPolicy(Qt::StrongFocus);
        proxied.setFocusProxy(&first);
        QLineEdit second(dialog);
        QLineEdit disabled(dialog);
        disabled.setEnabled(false);
        showOn(&overlay, dialog);
        mouseClick(m_window.get(), QPoint(5, 5));
        mouseClick(m_window.get(), QPoint(320, 260));
        QVERIFY(editor.hasFocus());
        // Tab stays inside the dialog.
        first.setFocus();
        for (const auto &[key, expected] : {std::pair(Qt::Key_Tab, &second),
                                            {Qt::Key_Tab, &first},
                                            {Qt::Key_Tab, &second},
                                            {Qt::Key_Backtab, &first}}) {
            typeKey(m_window.get(), key);
            QVERIFY(expected->hasFocus());
        }
        second.hide();
        typeKey(m_window.get(), Qt::Key_Tab);
        QVERIFY(first.hasFocus());
        dialog->accept();
        // One in a window of its own keeps its focus to itself.
        editor.setFocus();
        QDialog *const window = makeDialog(Qt::Dialog);
        showOn(&overlay, window);
        sendKey(&overlay, Qt::Key_Tab);
        QCOMPARE(m_window->focusWidget(), m_button);
        window->accept();
    }

    /// What is shown may be gone before it is shown, and the layer itself, too.
    void goneWhenShown()
    {
        for (const auto type : {QEvent::Show, QEvent::ShowToParent}) {
            QPointer<OverlayContainer> overlay = new OverlayContainer(m_window.get());
            const QPointer<QDialog> dialog = makeDialog();
            dialog->hide(); // as one that was shown before
            const OnEvent end(overlay, type, [&] { delete dialog; });
            showOn(overlay, dialog);
            QVERIFY(overlay->isHidden() && m_window->updatesEnabled());
            const QPointer<QDialog> window = makeDialog(Qt::Dialog);
            const OnEvent last(overlay, QEvent::ShowToParent, [&] { delete overlay; });
            showOn(overlay, window);
            QVERIFY(!overlay && window && m_window->updatesEnabled());
        }
    }

    void neverBlocksTheHostWithoutADialog()
    {
        QPointer<OverlayContainer> overlay;
        QPointer<QDialog> dialog;
        const auto pressOutside = [&](const std::function<void()> &answer) {
            connect(overlay, &OverlayContainer::outsideClicked, this, answer);
            mouseClick(m_window.get(), QPoint(5, 5));
        };
        const std::function<void()> ends[] = {
            [&] { delete dialog; },
            [&] { dialog->hide(); },
            [&] {
                QDialog *second = makeDialog();
                showOn(overlay, second);
                QVERIFY(dialog->isHidden());
                dialog->accept(); // no longer of any concern
                QVERIFY(overlay->isVisible());
                second->accept();
            },
            [&] { pressOutside([&] { delete dialog; }); },
            [&] { pressOutside([&] { delete overlay; }); },
        };
        QSignalSpy clicked(m_button, &QPushButton::clicked);
        for (const auto &end : ends) {
            overlay = new OverlayContainer(m_window.get());
            dialog = makeDialog();
            showOn(overlay, dialog, OverlayContainer::Reject);
            end();
            QVERIFY(!overlay || overlay->isHidden());
            mouseClick(m_window.get(), QPoint(5, 5));
            QCOMPARE(clicked.count(), 1);
            clicked.clear();
        }
    }

private:
    /// A dialog of 200 x 100 that can live inside the window.
    QDialog *makeDialog(Qt::WindowFlags flags = Qt::Widget) const
    {
        auto *dialog = new QDialog(m_window.get());
        dialog->setWindowFlags(flags); // the constructor makes a window of every dialog
        dialog->setFixedSize(200, 100);
        return dialog;
    }

    std::unique_ptr<QWidget> m_window;
    QPushButton *m_button = nullptr;
};

QTEST_MAIN(tst_OverlayContainer)
#include "tst_overlaycontainer.moc"
