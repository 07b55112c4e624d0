// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <controls/thememanager.h>
#include <panel/window/filedialog.h>
#include <panel/window/panellock.h>
#include <widgets/lockwidget.h>

using namespace VnaTest;
using namespace Panel;

class PanelLockTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    void nothingGetsThrough()
    {
        ChartDesk desk;
        desk.model.addMarker(1, 100.0);
        const auto *themes = Controls::ThemeManager::instance();
        QStringList told;
        connect(&desk.model, &PanelModel::zoomChanged, this, [&told] { told << "zoom"_s; });
        note(told, "moved", &desk.model, &PanelModel::markerMoved);
        note(told, "removed", &desk.model, &PanelModel::markerRemoved);
        note(told, "selected", &desk.model, &PanelModel::selectedMarkerChanged);
        note(told, "active", &desk.model, &PanelModel::activeTraceChanged);
        note(told, "networks", &desk.model, &PanelModel::networksChanged);
        desk.plot()->setFocus();
        mouseClick(desk.window.lockButton());
        QVERIFY(desk.window.lock()->isLocked()); // at once
        QVERIFY(desk.window.lockButton()->isChecked());

        const auto blocks = [&desk](const auto &act) {
            desk.bar()->setMessage(QString());
            act();
            PanelDesk::settle();
            return desk.bar()->message().startsWith("The panel is locked"_s);
        };
        for (const Qt::Key key : {Qt::Key_O, Qt::Key_T, Qt::Key_P, Qt::Key_Q, Qt::Key_Comma})
            QVERIFY(blocks([&] { desk.press(key, Qt::ControlModifier); }));
        for (const Qt::Key key : {Qt::Key_F1, Qt::Key_Plus, Qt::Key_Right, Qt::Key_Delete})
            QVERIFY(blocks([&] { desk.press(key); }));
        // Nor past the padlock, to which Tab may lead and which leaves most keys to its window.
        auto *padlock = desk.window.findChild<LockWidget *>();
        padlock->setFocus(Qt::TabFocusReason);
        QVERIFY(padlock->hasFocus());
        QVERIFY(blocks([&] { desk.press(Qt::Key_Delete); }));
        desk.plot()->setFocus();
        QVERIFY(blocks([&] { desk.turnWheel(desk.onPlot(0.5, 0.5), 3); }));
        QVERIFY(blocks([&] { mouseClick(desk.plot(), desk.onPlot(0.1, 0.1)); }));
        QVERIFY(blocks([&] { mouseClick(desk.window.themeButton()); }));
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(startSample())});
        QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(&desk.window, &enter);
        QVERIFY(!enter.isAccepted());
        QVERIFY2(told.isEmpty(), qPrintable(told.join("; "_s)));
        QVERIFY(!themes->isLightTheme() && desk.window.isVisible());
        QVERIFY(!desk.window.findChild<QDialog *>());

        // What unlocks gets through, and all works as before.
        desk.press(Qt::Key_L, Qt::ControlModifier);
        QVERIFY(!desk.window.lock()->isLocked() && !desk.window.lockButton()->isChecked());
        desk.press(Qt::Key_Delete);
        QCOMPARE(told, (QStringList{"removed 1 1"_s, "selected"_s}));
        // So does the key that locks.
        mouseClick(desk.window.lockButton());
        QVERIFY(desk.window.lock()->isLocked());
        mouseClick(desk.window.lockButton());
        QVERIFY(!desk.window.lock()->isLocked() && !desk.window.lockButton()->isChecked());
    }

    /// A key that a finger holds while the panel locks is not pressed by its release.
    void heldKeysAreLetGo()
    {
        PanelDesk desk;
        auto *theme = Controls::ThemeManager::instance();
        const auto before = theme->currentTheme();
        QWidget *key = desk.window.themeButton();
        VnaTest::mousePress(key, key->rect().center());
        desk.window.lock()->setLocked(true);
        VnaTest::mouseRelease(key, key->rect().center());
        QCOMPARE(theme->currentTheme(), before);
        desk.window.lock()->setLocked(false);
    }

    void thePadlockUnlocks()
    {
        PanelDesk desk;
        const auto *padlock = desk.window.findChild<LockWidget *>();
        const auto picture = [&desk] {
            return desk.window.lockButton()->icon().pixmap(20, 20).toImage();
        };
        const QImage open = picture();
        for (const bool byKey : {false, true}) {
            desk.window.lock()->setLocked(true);
            PanelDesk::settle();
            QVERIFY(padlock->isVisible());
            QVERIFY(picture() != open);
            if (byKey) {
                for (int i = 0; i < 100 && !padlock->hasFocus(); ++i)
                    desk.press(Qt::Key_Tab);
                desk.press(Qt::Key_Space);
            } else {
                mouseClick(padlock);
            }
            QVERIFY(!desk.window.lock()->isLocked() && !padlock->isVisible());
            QCOMPARE(picture(), open);
        }
    }
};

QTEST_MAIN(PanelLockTest)
#include "tst_panellock.moc"
