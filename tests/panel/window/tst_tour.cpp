// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    A tour of the panel with nothing but a finger, a wheel and keys, through all its screens. */
#include "desk.h"

#include <panel/diagrams/readouts.h>
#include <panel/entry/tracebar.h>
#include <panel/model/markersearch.h>
#include <panel/window/helpdialog.h>
#include <panel/window/settingsdialog.h>
#include <widgets/displaypanel.h>
#include <widgets/menubutton.h>

using namespace VnaTest;
using namespace Panel;

namespace
{

struct Desk : ChartDesk {
    CartesianView *cartesian() const { return window.cartesianView(); }
    QString message() const { return window.messageBar()->message(); }

    void tapField(int traceId, TraceBar::Field field)
    {
        mouseClick(window.traceBar()->button(traceId),
                   window.traceBar()->fieldRect(traceId, field).center());
        settle();
    }
};

} // namespace

class TourTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    void traces()
    {
        Desk desk;
        desk.setLayout(Graph::LayoutType::SideBySide);
        // "Tr1 S11 Smith 1.00 U/": its format, its scale, its parameter.
        desk.tapField(1, TraceBar::Format);
        desk.pickFromList(int(TraceFormat::LogMagnitude));
        QCOMPARE(desk.cartesian()->traceIds(), (QVector<int>{1, 3, 4}));
        QCOMPARE(desk.window.diagrams()->activeView(), desk.cartesian());
        desk.tapField(1, TraceBar::Scale);
        desk.type("5 dB"_s);
        QCOMPARE(desk.model.trace(1)->scale.perDivision, 5.0);
        QCOMPARE(desk.cartesian()->plot()->yAxis->range().size(), 50.0);
        desk.tapField(1, TraceBar::Parameter);
        const auto keys = desk.window.findChildren<QPushButton *>("parameter"_s);
        QCOMPARE(keys.size(), 4);
        QVERIFY(keys.at(0)->isChecked() && keys.at(0)->hasFocus());
        desk.click(keys.at(2));
        QCOMPARE(PanelModel::parameterName(*desk.model.trace(1)), "S21"_s);
        // Another trace first becomes active.
        desk.tapField(3, TraceBar::Parameter);
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(desk.model.activeTrace()->id, 3);

        desk.pick(desk.keys().memory, 0);
        QCOMPARE(desk.cartesian()->memoryGraph(3)->pen().color(), currentLook().memory(3));
        desk.model.setTraceFormat(3, TraceFormat::Smith);
        QVERIFY(desk.window.smithView()->chart()->getCurve(SmithView::memoryId(3)));
        desk.pick(desk.keys().memory, 1);
        QVERIFY(!desk.window.smithView()->chart()->getCurve(SmithView::memoryId(3)));
    }

    void markers()
    {
        Desk desk;
        desk.pick(desk.keys().trace, 2);
        QCOMPARE(desk.model.activeTrace()->id, 3);
        desk.pick(desk.keys().search, 0);
        const auto found = [&desk](Search search) -> double {
            return searchMarker(desk.model.traceData(*desk.model.trace(3)),
                                TraceFormat::LogMagnitude, search, 0.0);
        };
        const double peak = desk.index(3, 1);
        QCOMPARE(peak, found(Search::Maximum));
        desk.pick(desk.keys().marker, 0);
        desk.pick(desk.keys().search, 1);
        QCOMPARE(desk.index(3, 2), found(Search::Minimum));

        // Against M1 the other is read as a difference.
        desk.pick(desk.keys().referenceMarker, 1);
        QVERIFY(desk.model.referenceMarker(3));
        QStringList texts;
        const auto labels = desk.cartesian()->readOuts()->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            texts << label->text();
        QVERIFY(texts.contains("M1R"_s) && texts.contains("\u0394M2"_s));

        desk.pick(desk.keys().marker, 3);
        QCOMPARE(desk.model.selectedMarker()->number, 1);
        const double hertz = valueAt(desk.model.networks().first().frequencies, peak);
        desk.pick(desk.keys().markerTo, 1);
        QCOMPARE(desk.model.stimulus(*desk.model.trace(3)).start, hertz);
        QVERIFY(qAbs(desk.index(3, 1)) < 1.5);
        desk.pick(desk.keys().readout, int(ReadoutFormat::Decibels));
        QCOMPARE(desk.model.viewSettings()->readoutFormat(), ReadoutFormat::Decibels);
    }

    void cartesianView()
    {
        Desk desk;
        desk.model.setActiveTrace(3);
        Desk::settle();
        CartesianView *view = desk.cartesian();
        const QCPRange whole = view->plot()->xAxis->range();
        const QPoint middle = view->plot()->axisRect()->rect().center();
        const double under = view->plot()->xAxis->pixelToCoord(middle.x());
        const QPoint inWindow = view->plot()->mapTo(&desk.window, middle);
        desk.turnWheelAt(inWindow, 4);
        QVERIFY(desk.zoom(view) > 2.4);
        QVERIFY(qAbs(view->plot()->xAxis->pixelToCoord(middle.x()) - under) < 1.0);
        QVERIFY(view->drawnPoints() < 2 * desk.model.networks().first().points());
        const double lower = view->plot()->xAxis->range().lower;
        mouseDrag(desk.window.windowHandle(), inWindow, inWindow + QPoint(100, 0), 5);
        QVERIFY(view->plot()->xAxis->range().lower < lower);
        // New data leave the view; the end of the band stops it.
        desk.model.updateNetwork(0, desk.model.networks().first());
        QVERIFY(desk.zoom(view) > 2.4);
        desk.model.setZoom(view->id(), view->movedTo({1e12, 0.0}, middle));
        QCOMPARE(view->plot()->xAxis->range().upper, whole.upper);
        desk.turnWheelAt(inWindow, -40);
        QCOMPARE(view->plot()->xAxis->range(), whole);
        view->plot()->setFocus();
        desk.press(Qt::Key_Plus);
        QCOMPARE(desk.keys().zoom->value(), "1.25 \u00d7"_s);
        desk.model.addMarker(3, 100.0);
        desk.press(Qt::Key_Right);
        QVERIFY(desk.index(3, 1) > 100.0);
        desk.press(Qt::Key_Delete);
        QVERIFY(!desk.model.marker(3, 1));
        desk.press(Qt::Key_0);
        QCOMPARE(desk.zoom(view), 1.0);
    }

    void screenshot()
    {
        Desk desk;
        const QTemporaryDir folder;
        desk.model.preferences()->setExportFolder(folder.path());
        mouseClick(desk.window.screenshotButton());
        const QStringList names = QDir(folder.path()).entryList({"*.png"_s});
        QCOMPARE(names.size(), 1);
        QVERIFY(desk.message().contains(names.first()));
        QVERIFY(desk.bar()->isNotice()); // and leaves by itself
        desk.model.preferences()->setExportFolder("/proc"_s);
        desk.click(desk.keys().screenshot);
        QVERIFY2(desk.message().contains("Nothing can be written"_s), qPrintable(desk.message()));
    }

    void dialogs()
    {
        Desk desk;
        desk.press(Qt::Key_F1);
        QPointer<QDialog> help = desk.window.findChild<HelpDialog *>();
        QVERIFY(help && help->isVisible());
        // It is in the window, and the keys are its own.
        QCOMPARE(help->window(), &desk.window);
        const Zoom before = desk.model.zoom({DiagramKind::Smith, 0});
        for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Tab, Qt::Key_F1, Qt::Key_Plus})
            desk.press(key);
        QVERIFY(desk.model.zoom({DiagramKind::Smith, 0}) == before);
        QCOMPARE(desk.window.findChildren<HelpDialog *>().size(), 1);
        QTest::keyClick(help.data(), Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!help && desk.window.focusWidget());
        desk.press(Qt::Key_Plus);
        QVERIFY(desk.model.zoom({DiagramKind::Smith, 0}) != before);
        desk.press(Qt::Key_0);

        desk.model.addMarker(1, 10.5);
        desk.click(desk.keys().settings);
        QPointer<SettingsDialog> settings = desk.window.findChild<SettingsDialog *>();
        QVERIFY(settings && settings->isVisible());
        QTest::keyClick(settings.data(), Qt::Key_Return); // chooses nothing by itself
        QVERIFY(!desk.model.markersDiscrete() && !desk.model.markersCoupled());
        const auto switches = settings->findChildren<SwitchButton *>();
        for (const SwitchButton *each : switches)
            mouseClick(each->findChild<QAbstractButton *>("btnOn"_s));
        QVERIFY(desk.model.markersDiscrete());
        mouseClick(settings->findChild<QAbstractButton *>("draggableDialogCloseButton"_s));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!settings);
        // Half-way is rounded upwards, and every trace has the marker now.
        desk.pick(desk.keys().couple, 1);
        for (const Trace &trace : desk.model.traces())
            QCOMPARE(desk.index(trace.id, 1), 11.0);

        const QComboBox *layout = desk.layoutChoice();
        desk.window.softKeys()->showKey(layout);
        mouseClick(layout);
        Desk::settle();
        QTest::keyClick(QApplication::focusWindow(), Qt::Key_End);
        QTest::keyClick(QApplication::focusWindow(), Qt::Key_Return);
        Desk::settle();
        QCOMPARE(desk.window.diagrams()->views().size(), 4);
        desk.press(Qt::Key_F1); // and the window goes with it
    }

    void listsTakeKeysAndFitTheScreen()
    {
        Desk desk;
        SoftKey *key = desk.keys().trace;
        const auto hit = [](Qt::Key pressed) {
            QTest::keyClick(QApplication::activePopupWidget()->windowHandle(), pressed);
        };
        QStringList eight;
        for (int i = 0; i < 8; ++i)
            eight << startSample();
        QVERIFY(desk.open(eight));
        desk.window.softKeys()->showKey(key);
        for (const int wanted : {2, 32}) {
            // Disabled in between, as when the last network goes.
            key->setEnabled(false);
            key->setEnabled(true);
            desk.click(key);
            QWidget *popup = QApplication::activePopupWidget();
            QVERIFY(popup);
            const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
            QVERIFY(screen.contains(popup->frameGeometry()));
            hit(wanted == 2 ? Qt::Key_Down : Qt::Key_End);
            auto *list = popup->findChild<QListWidget *>();
            QVERIFY(list->viewport()->rect().contains(list->visualItemRect(list->currentItem())));
            hit(Qt::Key_Return);
            Desk::settle();
            QCOMPARE(desk.model.activeTrace()->id, wanted);
            QTest::qWait(220);
        }
    }

    void antenna()
    {
        Desk desk;
        QVERIFY(!desk.keys().tune->isEnabled());
        desk.pick(desk.keys().source, 1);
        QTRY_VERIFY(desk.keys().tune->isEnabled());
        desk.click(desk.keys().tune);
        desk.type("2 . 8 GHz"_s);
        QCOMPARE(desk.model.tuning(), 2.8e9);
        QCOMPARE(desk.keys().tune->value(), "2.800 GHz"_s);
    }
};

QTEST_MAIN(TourTest)
#include "tst_tour.moc"
