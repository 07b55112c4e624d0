// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the code on the pages, on the panel of a host, and looks at what comes of it.
#include "panel.h"

#include <pointer.h>
#include <vnatest.h>

using namespace VnaTest;
using Controls::ThemeManager;

namespace
{

/// A block by its name, run on a panel on show.
std::unique_ptr<Panel> runPage(const char *name)
{
    for (const Piece &piece : pieces()) {
        if (qstrcmp(piece.name, name) != 0)
            continue;
        auto panel = piece.make();
        showExposed(panel->mainWindow);
        panel->mainWindow->activateWindow();
        QCoreApplication::processEvents();
        panel->run();
        QCoreApplication::processEvents();
        return panel;
    }
    qWarning("no page has %s", name);
    return std::make_unique<Panel>();
}

QPoint pixelOf(const Panel &panel, int index)
{
    return QPointF(panel.plot->xAxis->coordToPixel(panel.real.at(index)),
                   panel.plot->yAxis->coordToPixel(panel.imaginary.at(index)))
        .toPoint();
}

} // namespace

class tst_Pages : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        auto *theme = ThemeManager::instance();
        theme->setColor(ThemeManager::Dark, "buttonColor"_s, {});
        theme->setColor(ThemeManager::Light, "buttonColor"_s, {});
        theme->setTracePalette(ThemeManager::Dark, {});
        theme->setTheme(ThemeManager::Dark);
        Utils::Translator::instance()->setLanguage(QLocale(QLocale::English));
        TestCase::cleanup();
    }

    // Nothing on a page warns, fails or is left behind.
    void everyPiece_data()
    {
        columns<int>("index");
        for (int i = 0; i < pieces().size(); ++i)
            row(pieces().at(i).place, i);
    }

    void everyPiece()
    {
        QFETCH(int, index);
        const auto panel = pieces().at(index).make();
        showExposed(panel->mainWindow);
        panel->run();
        QCoreApplication::processEvents();
    }

    void wheelZooms()
    {
        const auto panel = runPage("PageWheelZoom");
        const QImage before = panel->plot->grab().toImage();
        QSignalSpy replots(panel->plot, &QCustomPlot::afterReplot);
        const QPointF middle = panel->plot->rect().center();
        QWheelEvent wheel(middle, panel->plot->mapToGlobal(middle.toPoint()), {}, {0, 120},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(panel->plot, &wheel);
        QVERIFY(panel->chart->isMagnified());
        QTRY_COMPARE(replots.count(), 1);
        QVERIFY(panel->plot->grab().toImage() != before);
        panel->homeAction->trigger();
        QTRY_COMPARE(replots.count(), 2);
        QCOMPARE(panel->plot->grab().toImage(), before);
    }

    // However much is set, there is one picture.
    void replotsAreQueued()
    {
        Panel panel;
        showExposed(panel.mainWindow);
        QCoreApplication::processEvents();
        QSignalSpy replots(panel.plot, &QCustomPlot::afterReplot);
        for (int i = 0; i < 100; ++i) {
            panel.chart->setCurveData(1, panel.frequencies, panel.imaginary, panel.real);
            panel.chart->setGridMode(SmithChartPlot::GridMode(i % 3));
            panel.chart->zoomAt({0.1, 0.1}, 1.1);
        }
        QCOMPARE(replots.count(), 0);
        QTRY_COMPARE(replots.count(), 1);
        QTest::qWait(20);
        QCOMPARE(replots.count(), 1);
    }

    void doubleClickSetsMarker()
    {
        const auto panel = runPage("PageDoubleClick");
        QVERIFY(!panel->chart->getMarker(1, 1));
        const QPoint pos = pixelOf(*panel, 30);
        mousePress(panel->plot, pos);
        mouseRelease(panel->plot, pos);
        QTest::mouseDClick(panel->mainWindow->windowHandle(), Qt::LeftButton, {},
                           inWindow(panel->plot, pos));
        QVERIFY(panel->chart->getMarker(1, 1));
        QVERIFY(QLineF(panel->chart->getMarker(1, 1)->getTracer()->position->pixelPosition(), pos)
                    .length()
                < 4.0);
    }

    void markersAnswerRequests()
    {
        const auto panel = runPage("PageMarkerRequests");
        panel->chart->addMarkerVisual(1, 1, 30.0, Plot::PointingDown);
        QCoreApplication::processEvents();
        mousePress(panel->plot, pixelOf(*panel, 30));
        mouseMove(panel->plot, pixelOf(*panel, 60));
        mouseRelease(panel->plot, pixelOf(*panel, 60));
        QCOMPARE(panel->told, QStringList("reading"_s));
        int trace = 0;
        int marker = 0;
        QVERIFY(panel->chart->getSelectedMarker(trace, marker));
        QVERIFY(QLineF(panel->chart->getMarker(1, 1)->getTracer()->position->pixelPosition(),
                       pixelOf(*panel, 60))
                    .length()
                < 4.0);
        panel->plot->setFocus();
        QTest::keyClick(panel->plot, Qt::Key_Delete);
        QVERIFY(!panel->chart->getMarker(1, 1));
    }

    void gridLookIsSeen()
    {
        const auto panel = runPage("PageGridLook");
        const QImage picture = panel->plot->grab().toImage();
        QCOMPARE(picture.pixelColor(2, 2), ThemeManager::instance()->backgroundColor());
        int lines = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                lines += picture.pixelColor(x, y) == ThemeManager::instance()->gridColor();
        }
        QVERIFY(lines > 100);
    }

    // Also where keys arrive before the keypad has been drawn, twice in a row.
    void softKeyOpensKeypad()
    {
        const auto panel = runPage("PageKeypadOfSoftKey");
        for (const char *hertz : {"3e+09", "4e+09"}) {
            mouseClick(panel->softKey);
            QTest::keyClick(panel->mainWindow->windowHandle(), hertz[0]);
            QTest::keyClick(panel->mainWindow->windowHandle(), Qt::Key_Return);
            QCOMPARE(panel->told.constLast(), "start "_s + QLatin1String(hertz));
            QCoreApplication::processEvents();
        }
    }

    void colorsReachButtons()
    {
        // The page's file of colours is not there, and says nothing.
        const auto panel = runPage("PageSetColors");
        QCOMPARE(panel->softKey->grab().toImage().pixelColor(50, 5), QColor(0x20, 0x30, 0x40));
        QCOMPARE(ThemeManager::instance()->getTracePalette().size(), 2);
        ThemeManager::instance()->setTheme(ThemeManager::Light);
        QCOMPARE(panel->softKey->grab().toImage().pixelColor(50, 5), QColor(0xd2, 0xcb, 0xc5));
    }

    void languageReachesCaptions()
    {
        Utils::Translator::instance()->setLanguage(QLocale(QLocale::Chinese)); // not German
        runPage("PageLanguage");
        const auto panel = runPage("PageSweepBar");
        const auto *bar = panel->findChild<RectangularBottomWidget *>();
        QVERIFY(bar);
        QCOMPARE(bar->findChild<QLabel *>("label"_s)->text(), "Start"_s);
    }

    void buttonsTell()
    {
        auto panel = runPage("PageSwitch");
        auto *control = panel->findChild<SwitchButton *>();
        control->resize(200, 60);
        control->show();
        mouseClick(control->findChild<QPushButton *>("btnOff"_s));
        QVERIFY(!panel->analyser->isSweeping());

        panel = runPage("PageLock");
        panel->lockAction->setCheckable(true);
        panel->lockAction->trigger();
        panel->centralWidget->findChild<LockWidget *>()->setLocked(true);
        panel->lockAction->trigger();
        QCOMPARE(panel->told, QStringList({"locked 1"_s, "locked 0"_s}));
    }
};

QTEST_MAIN(tst_Pages)
#include "tst_pages.moc"
