// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/overlaycontainer.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest>

#include <memory>

#include <vnatest.h>

using Controls::OverlayContainer;

namespace
{

/// A dialog of 200 x 100 that can live inside a window.
QDialog *makeDialog(QWidget *parent, Qt::WindowFlags flags = Qt::Widget)
{
    auto *dialog = new QDialog(parent);
    dialog->setWindowFlags(flags); // the constructor makes a window of every dialog
    dialog->setFixedSize(200, 100);
    return dialog;
}

} // namespace

class tst_OverlayContainer : public VnaTest::TestCase
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
        QVERIFY(!overlay.activeDialog());
        QCOMPARE(overlay.geometry(), m_window->rect());
        m_window->resize(500, 300);
        QCOMPARE(overlay.geometry(), QRect(0, 0, 500, 300));

        QWidget other(m_window.get());
        other.resize(90, 80);
        overlay.attachToHost(&other);
        QCOMPARE(overlay.parentWidget(), &other);
        m_window->resize(700, 500);
        QCOMPARE(overlay.geometry(), QRect(0, 0, 90, 80));
        overlay.attachToHost(nullptr);
        other.resize(20, 20);
        QCOMPARE(overlay.geometry(), QRect(0, 0, 90, 80));
        overlay.setParent(nullptr);
    }

    void showsCentredAndHidesWithTheDialog()
    {
        OverlayContainer overlay(m_window.get());
        overlay.showWithDialog(nullptr, OverlayContainer::None, true, OverlayContainer::Centered,
                               nullptr);
        QVERIFY(overlay.isHidden());

        QDialog *dialog = makeDialog(m_window.get());
        overlay.showWithDialog(dialog, OverlayContainer::None, true, OverlayContainer::Centered,
                               nullptr);
        QVERIFY(overlay.isVisible());
        QVERIFY(dialog->isVisible());
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

        // Shown again, it ends again; one ending is one ending.
        overlay.showWithDialog(dialog, OverlayContainer::None, true, OverlayContainer::Centered,
                               nullptr);
        overlay.showWithDialog(dialog, OverlayContainer::None, true, OverlayContainer::Centered,
                               nullptr);
        QVERIFY(overlay.isVisible() && dialog->isVisible());
        dialog->reject();
        QVERIFY(overlay.isHidden());
    }

    void standsBesideItsAnchor_data()
    {
        QTest::addColumn<QRect>("anchor");
        QTest::addColumn<QPoint>("position");
        QTest::newRow("room to the left") << QRect(500, 100, 80, 40) << QPoint(300, 100);
        QTest::newRow("near the left edge") << QRect(120, 100, 80, 40) << QPoint(0, 100);
        QTest::newRow("near the bottom") << QRect(500, 450, 80, 40) << QPoint(300, 380);
        QTest::newRow("beyond the right") << QRect(900, -50, 80, 40) << QPoint(440, 0);
    }

    void standsBesideItsAnchor()
    {
        QFETCH(QRect, anchor);
        QFETCH(QPoint, position);
        QWidget anchorWidget(m_window.get());
        anchorWidget.setGeometry(anchor);
        for (const Qt::WindowFlags flags :
             {Qt::WindowFlags(Qt::Widget), Qt::Dialog | Qt::FramelessWindowHint}) {
            OverlayContainer overlay(m_window.get());
            QDialog *dialog = makeDialog(m_window.get(), flags);
            overlay.showWithDialog(dialog, OverlayContainer::None, false,
                                   OverlayContainer::LeftOfAnchor, &anchorWidget);
            const QPoint origin = dialog->isWindow() ? m_window->mapToGlobal(QPoint()) : QPoint();
            QCOMPARE(dialog->pos(), origin + position);
            dialog->accept();
        }
    }

    void dimmingIsOnlyALook()
    {
        OverlayContainer overlay(m_window.get());
        QVERIFY(overlay.styleSheet().isEmpty());
        QVERIFY(overlay.testAttribute(Qt::WA_NoSystemBackground));
        m_button->hide();
        QPalette palette = m_window->palette();
        palette.setColor(QPalette::Window, Qt::white);
        m_window->setPalette(palette);
        for (const bool dim : {true, false}) {
            QDialog *dialog = makeDialog(m_window.get());
            overlay.showWithDialog(dialog, OverlayContainer::None, dim, OverlayContainer::Centered,
                                   nullptr);
            // Black at 80 of 255 over white.
            const int grey = m_window->grab().toImage().pixelColor(3, 3).red();
            QVERIFY2(dim ? qAbs(grey - 175) <= 1 : grey == 255, qPrintable(QString::number(grey)));
            dialog->accept();
        }
        QVERIFY(!overlay.testAttribute(Qt::WA_StyledBackground));
    }

    void pressesOutside_data()
    {
        QTest::addColumn<int>("action");
        QTest::addColumn<bool>("window");
        for (const bool window : {false, true}) {
            const char *kind = window ? "window" : "embedded";
            QTest::addRow("none, %s", kind) << int(OverlayContainer::None) << window;
            QTest::addRow("accept, %s", kind) << int(OverlayContainer::Accept) << window;
            QTest::addRow("reject, %s", kind) << int(OverlayContainer::Reject) << window;
        }
    }

    void pressesOutside()
    {
        QFETCH(int, action);
        QFETCH(bool, window);
        OverlayContainer overlay(m_window.get());
        QDialog *dialog = makeDialog(m_window.get(), window ? Qt::Dialog : Qt::Widget);
        overlay.showWithDialog(dialog, OverlayContainer::OutsideClickAction(action), false,
                               OverlayContainer::Centered, nullptr);
        QSignalSpy outside(&overlay, &OverlayContainer::outsideClicked);
        QSignalSpy finished(dialog, &QDialog::finished);
        QSignalSpy clicked(m_button, &QPushButton::clicked);
        connect(&overlay, &OverlayContainer::outsideClicked, this,
                [&] { QVERIFY(finished.isEmpty()); });

        QWindow *handle = m_window->windowHandle();
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QVERIFY(outside.isEmpty() && dialog->isVisible());
        QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QCOMPARE(outside.count(), 1);
        QCOMPARE(finished.count(), action == OverlayContainer::None ? 0 : 1);
        if (action != OverlayContainer::None)
            QCOMPARE(finished.at(0).at(0).toInt(), action == OverlayContainer::Accept ? 1 : 0);
        QCOMPARE(overlay.isVisible(), action == OverlayContainer::None);
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QVERIFY(clicked.isEmpty());
    }

    void touchesAndWheelOutside()
    {
        OverlayContainer overlay(m_window.get());
        QDialog *dialog = makeDialog(m_window.get());
        overlay.showWithDialog(dialog, OverlayContainer::Reject, false, OverlayContainer::Centered,
                               nullptr);
        QSignalSpy outside(&overlay, &OverlayContainer::outsideClicked);
        auto *finger = QTest::createTouchDevice();
        QWindow *handle = m_window->windowHandle();

        const auto wheelAt = [&](const QPointF &position) {
            QWheelEvent wheel(position, overlay.mapToGlobal(position.toPoint()), QPoint(),
                              QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                              false);
            wheel.ignore();
            QCoreApplication::sendEvent(&overlay, &wheel);
            return wheel.isAccepted();
        };
        QVERIFY(wheelAt(QPointF(5, 5)));
        QVERIFY(!wheelAt(QPointF(320, 240)));
        QVERIFY(outside.isEmpty());

        QTest::touchEvent(handle, finger).press(0, QPoint(320, 240), handle);
        QTest::touchEvent(handle, finger).release(0, QPoint(320, 240), handle);
        QVERIFY(outside.isEmpty());
        QTest::touchEvent(handle, finger).press(0, QPoint(5, 5), handle);
        QCOMPARE(outside.count(), 1);
        QVERIFY(overlay.isHidden());
        QTest::touchEvent(handle, finger).release(0, QPoint(5, 5), handle);
        QCOMPARE(outside.count(), 1);
    }

    void aPressOutsideLeavesTheFocus()
    {
        QLineEdit editor(m_window.get());
        editor.show();
        editor.setFocus();
        QTRY_VERIFY(editor.hasFocus());
        OverlayContainer overlay(m_window.get());
        QDialog *dialog = makeDialog(m_window.get());
        overlay.showWithDialog(dialog, OverlayContainer::None, false, OverlayContainer::Centered,
                               nullptr);
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(320, 240));
        QVERIFY(editor.hasFocus());
    }

    void tabStaysInsideTheDialog()
    {
        OverlayContainer overlay(m_window.get());
        QDialog *dialog = makeDialog(m_window.get());
        QLineEdit first(dialog);
        QLineEdit second(dialog);
        QLineEdit disabled(dialog);
        disabled.setEnabled(false);
        overlay.showWithDialog(dialog, OverlayContainer::None, false, OverlayContainer::Centered,
                               nullptr);
        first.setFocus();
        for (QLineEdit *expected : {&second, &first, &second}) {
            QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
            QVERIFY(expected->hasFocus());
        }
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Backtab);
        QVERIFY(first.hasFocus());
        second.hide();
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
        QVERIFY(first.hasFocus());
        dialog->accept();
    }

    void neverBlocksTheHostWithoutADialog_data()
    {
        QTest::addColumn<QString>("how");
        for (const char *how :
             {"deleted", "hidden", "replaced", "deleted outside", "overlay outside"})
            QTest::newRow(how) << QString::fromLatin1(how);
    }

    void neverBlocksTheHostWithoutADialog()
    {
        QFETCH(QString, how);
        QPointer<OverlayContainer> overlay = new OverlayContainer(m_window.get());
        QPointer<QDialog> dialog = makeDialog(m_window.get());
        overlay->showWithDialog(dialog, OverlayContainer::Reject, false, OverlayContainer::Centered,
                                nullptr);
        if (how == QLatin1String("deleted")) {
            delete dialog;
        } else if (how == QLatin1String("hidden")) {
            dialog->hide();
        } else if (how == QLatin1String("replaced")) {
            QDialog *second = makeDialog(m_window.get());
            overlay->showWithDialog(second, OverlayContainer::None, false,
                                    OverlayContainer::Centered, nullptr);
            QVERIFY(dialog->isHidden());
            dialog->accept(); // no longer of any concern
            QVERIFY(overlay->isVisible());
            second->accept();
        } else {
            connect(overlay, &OverlayContainer::outsideClicked, this, [&] {
                if (how == QLatin1String("deleted outside"))
                    delete dialog;
                else
                    delete overlay;
            });
            QTest::mousePress(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                              QPoint(5, 5));
            QTest::mouseRelease(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                                QPoint(5, 5));
        }
        QVERIFY(!overlay || overlay->isHidden());
        QSignalSpy clicked(m_button, &QPushButton::clicked);
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QCOMPARE(clicked.count(), 1);
    }

    void survivesTheEndOfHostAndAnchor()
    {
        auto *host = new QWidget(m_window.get());
        auto *anchor = new QWidget(m_window.get());
        QPointer<OverlayContainer> overlay = new OverlayContainer(host);
        QPointer<QDialog> dialog = makeDialog(m_window.get());
        host->resize(300, 300);
        host->show();
        overlay->showWithDialog(dialog, OverlayContainer::None, true,
                                OverlayContainer::LeftOfAnchor, anchor);
        delete anchor;
        host->resize(400, 400);
        QCOMPARE(dialog->pos(), QPoint(100, 150));
        delete host;
        QVERIFY(!overlay && !dialog);

        // Without a host the dialog's parent becomes it.
        OverlayContainer loose(nullptr);
        dialog = makeDialog(m_window.get());
        loose.showWithDialog(dialog, OverlayContainer::None, false, OverlayContainer::Centered,
                             nullptr);
        QCOMPARE(loose.parentWidget(), m_window.get());
        QCOMPARE(loose.geometry(), m_window->rect());
        loose.setParent(nullptr);
    }

private:
    std::unique_ptr<QWidget> m_window;
    QPushButton *m_button = nullptr;
};

QTEST_MAIN(tst_OverlayContainer)
#include "tst_overlaycontainer.moc"
