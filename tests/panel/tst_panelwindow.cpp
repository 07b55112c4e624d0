// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"
#include "vnatest.h"

#include <controls/thememanager.h>
#include <panel/diagrams.h>
#include <panel/filedialog.h>
#include <panel/languages.h>
#include <panel/look.h>
#include <panel/timingline.h>
#include <panel/tracebar.h>
#include <widgets/switchbutton.h>

#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

using namespace Panel;

namespace
{

/// Distance of two chart points in pixels of the chart.
double pixels(const ChartDesk &desk, const QPointF &a, const QPointF &b)
{
    const QCPAxis *axis = desk.view()->plot()->xAxis;
    return QLineF(a, b).length() / axis->range().size() * axis->axisRect()->width();
}

} // namespace

class PanelWindowTest : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }
    void cleanup();
    void showsAFile();
    void picksGridModes();
    void densityKeepsEverythingElse();
    void activatesAndHidesTraces();
    void wheelKeepsThePointUnderThePointer();
    void dragMovesTheMagnifiedView();
    void unmagnifiedViewStays();
    void doubleClickResetsOnFreeSpace();
    void twoFingersZoom();
    void keysMoveTheView();
    void badFileKeepsWhatWasShown();
    void startsEmptyWithoutAReadableFile();
    void fileDialogOpensPickedFiles();
    void followsTheTheme();
    void nothingIsClipped_data();
    void nothingIsClipped();
};

void PanelWindowTest::cleanup()
{
    Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);
    setLanguage(QStringLiteral("en"));
    TestCase::cleanup();
}

void PanelWindowTest::showsAFile()
{
    const ChartDesk desk;
    QCOMPARE(desk.chart()->traceIds(), (QVector<int>{1, 2}));
    QCOMPARE(desk.chart()->activeTrace(), 1);
    const QVector<double> *frequencies = nullptr, *real = nullptr, *imag = nullptr;
    QVERIFY(desk.chart()->sourceCurveData(2, frequencies, real, imag));
    QCOMPARE(*real, desk.model.networks().first().s(2, 2).real);
    QCOMPARE(*frequencies, desk.model.networks().first().frequencies);
    QCOMPARE(desk.window.keys().file->value(), QStringLiteral("band-pass.s2p"));
    QVERIFY(desk.view()->isVisible());
}

void PanelWindowTest::picksGridModes()
{
    ChartDesk desk;
    for (const auto mode : {SmithChartPlot::Admittance, SmithChartPlot::ImpedanceAndAdmittance,
                            SmithChartPlot::Impedance}) {
        desk.pick(desk.window.keys().grid, mode);
        QCOMPARE(desk.chart()->gridMode(), mode);
        QCOMPARE(desk.window.keys().grid->choice(), int(mode));
    }
}

void PanelWindowTest::densityKeepsEverythingElse()
{
    ChartDesk desk;
    desk.model.setActiveTrace(2);
    desk.model.setTraceVisible(1, false);
    desk.model.viewSettings()->setGridMode(SmithChartPlot::ImpedanceAndAdmittance);
    desk.turnWheel(desk.onPlot(0.7, 0.4), 5);
    const QCPRange x = desk.view()->plot()->xAxis->range();
    const QCPRange y = desk.view()->plot()->yAxis->range();
    const int items = desk.view()->plot()->itemCount();
    const int plottables = desk.view()->plot()->plottableCount();

    for (const auto density : {SmithChart::Basic, SmithChart::Detailed, SmithChart::Standard}) {
        desk.pick(desk.window.keys().density, density);
        QCOMPARE(desk.window.keys().density->choice(), int(density));
        QCOMPARE(desk.chart()->gridMode(), SmithChartPlot::ImpedanceAndAdmittance);
        QCOMPARE(desk.chart()->activeTrace(), 2);
        QVERIFY(!desk.chart()->getCurve(1)->visible());
        QVERIFY(desk.chart()->getCurve(2)->visible());
        QVERIFY(std::abs(desk.view()->plot()->xAxis->range().lower - x.lower) < 1e-9);
        QVERIFY(std::abs(desk.view()->plot()->yAxis->range().upper - y.upper) < 1e-9);
    }
    // Nothing of the charts in between has stayed on the plot.
    QCOMPARE(desk.view()->plot()->itemCount(), items);
    QCOMPARE(desk.view()->plot()->plottableCount(), plottables);
    // And the new chart answers to gestures.
    desk.doubleClick(desk.onPlot(0.01, 0.01));
    QVERIFY(!desk.chart()->isMagnified());
}

void PanelWindowTest::activatesAndHidesTraces()
{
    ChartDesk desk;
    const auto buttons = desk.window.traceBar()->findChildren<QAbstractButton *>();
    QCOMPARE(buttons.size(), 4);
    QVERIFY(buttons.at(0)->isChecked());
    desk.click(buttons.at(1));
    QCOMPARE(desk.chart()->activeTrace(), 2);
    QVERIFY(buttons.at(1)->isChecked() && !buttons.at(0)->isChecked());

    for (const bool visible : {false, true}) {
        const SwitchButton *key = desk.window.keys().visible;
        desk.click(key->findChild<QPushButton *>(visible ? QStringLiteral("btnOn")
                                                         : QStringLiteral("btnOff")));
        QCOMPARE(desk.chart()->getCurve(2)->visible(), visible);
        QCOMPARE(key->status(), visible);
    }
}

void PanelWindowTest::wheelKeepsThePointUnderThePointer()
{
    ChartDesk desk;
    const QPoint pointer = desk.onPlot(0.62, 0.35);
    const QPointF before = desk.chartPoint(pointer);
    desk.turnWheel(pointer, 6);
    QVERIFY(desk.view()->zoom() > 3.0);
    QVERIFY(pixels(desk, desk.chartPoint(pointer), before) < 0.01);
    QCOMPARE(desk.window.keys().zoom->value(), QStringLiteral("3.81 \u00d7"));

    desk.turnWheel(pointer, -20);
    QVERIFY(!desk.chart()->isMagnified());
    desk.turnWheel(pointer, 100);
    QCOMPARE(desk.view()->zoom(), 20.0);
}

void PanelWindowTest::dragMovesTheMagnifiedView()
{
    ChartDesk desk;
    desk.view()->setZoom(4.0);
    const QPoint from = desk.onPlot(0.5, 0.5);
    const QPoint to = desk.onPlot(0.6, 0.7);
    const QPointF grabbed = desk.chartPoint(from);
    desk.drag(from, to);
    // A drag is known only after some pixels; until then the view stands still.
    QVERIFY(pixels(desk, desk.chartPoint(to), grabbed) < 2.0 * QApplication::startDragDistance());
    QVERIFY(pixels(desk, desk.chartPoint(from), grabbed) > 50.0);
    QCOMPARE(desk.view()->zoom(), 4.0);

    // Beyond the edge the view stops.
    for (int i = 0; i < 12; ++i)
        desk.drag(desk.onPlot(0.1, 0.5), desk.onPlot(0.9, 0.5));
    const QCPRange range = desk.view()->plot()->xAxis->range();
    desk.drag(desk.onPlot(0.1, 0.5), desk.onPlot(0.9, 0.5));
    QCOMPARE(desk.view()->plot()->xAxis->range(), range);
}

void PanelWindowTest::unmagnifiedViewStays()
{
    ChartDesk desk;
    const QCPRange range = desk.view()->plot()->xAxis->range();
    desk.drag(desk.onPlot(0.2, 0.2), desk.onPlot(0.8, 0.8));
    QCOMPARE(desk.view()->plot()->xAxis->range(), range);

    // A press whose release is lost does not drag the view along later.
    desk.view()->setZoom(4.0);
    const SmithChart::ViewState state = desk.chart()->viewState();
    QTest::mousePress(desk.window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      desk.inWindow(desk.onPlot(0.5, 0.5)));
    desk.window.hide();
    desk.window.show();
    ChartDesk::settle();
    QTest::mouseMove(desk.window.windowHandle(), desk.inWindow(desk.onPlot(0.8, 0.5)));
    QTest::mouseMove(desk.window.windowHandle(), desk.inWindow(desk.onPlot(0.9, 0.5)));
    QCOMPARE(desk.chart()->viewState().centerX, state.centerX);
    QTest::mouseRelease(desk.window.windowHandle(), Qt::LeftButton);
}

void PanelWindowTest::doubleClickResetsOnFreeSpace()
{
    ChartDesk desk;
    desk.turnWheel(desk.onPlot(0.5, 0.5), 2);
    QVERIFY(desk.chart()->isMagnified());
    QTest::mouseDClick(desk.window.windowHandle(), Qt::RightButton, Qt::NoModifier,
                       desk.inWindow(desk.onPlot(0.02, 0.02)));
    QVERIFY(desk.chart()->isMagnified());
    QTest::mouseDClick(desk.window.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       desk.inWindow(desk.onPlot(0.02, 0.02)));
    QVERIFY(!desk.chart()->isMagnified());
    QCOMPARE(desk.window.keys().zoom->value(), QStringLiteral("1.00 \u00d7"));
}

void PanelWindowTest::twoFingersZoom()
{
    ChartDesk desk;
    static auto *device = QTest::createTouchDevice();
    const QPoint centre = desk.onPlot(0.6, 0.45);
    const QPointF before = desk.chartPoint(centre);
    const auto at = [&desk, centre](int distance) {
        return desk.inWindow(centre + QPoint(distance, 0));
    };
    QWindow *target = desk.window.windowHandle();
    QTest::touchEvent(target, device).press(0, at(-40), target).press(1, at(40), target);
    for (int distance = 40; distance <= 120; distance += 10)
        QTest::touchEvent(target, device)
            .move(0, at(-distance), target)
            .move(1, at(distance), target);
    QTest::touchEvent(target, device).release(0, at(-120), target).release(1, at(120), target);
    QVERIFY2(desk.view()->zoom() > 2.0 && desk.view()->zoom() < 4.0,
             qPrintable(QString::number(desk.view()->zoom())));
    QVERIFY(pixels(desk, desk.chartPoint(centre), before) < 4.0);
}

void PanelWindowTest::keysMoveTheView()
{
    ChartDesk desk;
    desk.view()->plot()->setFocus();
    QTest::keyClick(desk.window.windowHandle(), Qt::Key_Plus);
    QTest::keyClick(desk.window.windowHandle(), Qt::Key_Plus);
    QCOMPARE(desk.view()->zoom(), 1.25 * 1.25);
    QTest::keyClick(desk.window.windowHandle(), Qt::Key_Right);
    QVERIFY(desk.chart()->viewState().centerX > 0.01);
    QTest::keyClick(desk.window.windowHandle(), Qt::Key_Down);
    QVERIFY(desk.chart()->viewState().centerY < -0.01);
    QTest::keyClick(desk.window.windowHandle(), Qt::Key_0);
    QVERIFY(!desk.chart()->isMagnified());
}

void PanelWindowTest::badFileKeepsWhatWasShown()
{
    const QTemporaryDir folder;
    QFile bad(folder.filePath(QStringLiteral("bad.s1p")));
    QVERIFY(bad.open(QIODevice::WriteOnly));
    bad.write("# Hz S RI\n2 0 0\n1 0 0\n");
    bad.close();

    ChartDesk desk;
    const QSignalSpy changed(&desk.model, &PanelModel::networksChanged);
    QVERIFY(!desk.controller.openFiles({bad.fileName()}));
    QCOMPARE(changed.count(), 0);
    MessageBar *bar = desk.window.messageBar();
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->message(), QStringLiteral("bad.s1p, line 3: the frequency falls back."));
    desk.click(bar->findChild<QToolButton *>(QStringLiteral("closeMessage")));
    QVERIFY(!bar->isVisible());

    // A good file beside the bad one is shown, and the bad one told.
    QVERIFY(!desk.controller.openFiles(
        {bad.fileName(), sampleFolder() + QStringLiteral("/antenna.s1p")}));
    QCOMPARE(desk.model.networks().size(), 1);
    QCOMPARE(desk.window.keys().file->value(), QStringLiteral("antenna.s1p"));
    QVERIFY(bar->isVisible());
    QVERIFY(desk.controller.openFiles({startSample()}));
    QVERIFY(!bar->isVisible());
}

void PanelWindowTest::startsEmptyWithoutAReadableFile()
{
    ChartDesk desk;
    desk.model.setNetworks({});
    ChartDesk::settle();
    QVERIFY(!desk.view()->isVisible());
    QVERIFY(desk.window.emptyPageButton()->isVisible());
    QVERIFY(!desk.window.keys().grid->isEnabled());
    desk.click(desk.window.emptyPageButton());
    QVERIFY(desk.window.findChild<FileDialog *>());
}

void PanelWindowTest::fileDialogOpensPickedFiles()
{
    ChartDesk desk;
    desk.click(desk.window.keys().file);
    QPointer<FileDialog> dialog = desk.window.findChild<FileDialog *>();
    QVERIFY(dialog);
    dialog->setFolder(QStringLiteral("/"));
    desk.click(dialog->findChild<QPushButton *>(QStringLiteral("samples")));
    const auto *list = dialog->findChild<QListWidget *>();
    QCOMPARE(list->count(), 4);
    auto *open = dialog->findChild<QPushButton *>(QStringLiteral("open"));
    QVERIFY(!open->isEnabled());
    const auto tap = [&](int row) {
        const QPoint centre = list->visualItemRect(list->item(row)).center();
        QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          list->viewport()->mapTo(dialog, centre));
    };
    tap(0);
    tap(1);
    tap(3);
    tap(1);
    desk.click(open);
    QTRY_COMPARE(desk.window.keys().file->value(), QStringLiteral("2 files"));
    QCOMPARE(desk.model.networks().first().name, QStringLiteral("amplifier.s2p"));
    QCOMPARE(desk.chart()->traceIds(), (QVector<int>{1, 2, 5}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!dialog);
}

void PanelWindowTest::followsTheTheme()
{
    ChartDesk desk;
    const auto pixel = [&desk] {
        return desk.window.grab().toImage().pixelColor(desk.inWindow(desk.onPlot(0.01, 0.01)));
    };
    const auto *theme = Controls::ThemeManager::instance();
    QCOMPARE(pixel(), theme->backgroundColor());
    desk.click(desk.window.themeButton());
    desk.view()->plot()->replot();
    QVERIFY(theme->isLightTheme());
    QCOMPARE(pixel(), theme->backgroundColor());
    QCOMPARE(desk.chart()->getCurve(2)->pen().color(), theme->getTracePalette().at(1));
}

void PanelWindowTest::nothingIsClipped_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("language");
    const QString english = QStringLiteral("en");
    QTest::newRow("smallest") << QSize(800, 480) << english;
    QTest::newRow("smallest, German") << QSize(800, 480) << QStringLiteral("de");
    QTest::newRow("smallest, Chinese") << QSize(800, 480) << QStringLiteral("zh_CN");
    QTest::newRow("small") << QSize(1024, 600) << english;
    QTest::newRow("wide") << QSize(1280, 800) << english;
    QTest::newRow("tall") << QSize(800, 1280) << english;
    QTest::newRow("largest") << QSize(1920, 1080) << english;
}

void PanelWindowTest::nothingIsClipped()
{
    QFETCH(QSize, size);
    QFETCH(QString, language);
    QVERIFY(setLanguage(language));
    ChartDesk desk(size);
    for (int marker = 0; marker < PanelModel::markersPerTrace; ++marker)
        desk.model.addMarker(1, 10.0 * marker);
    const auto check = [&desk](const QString &where) {
        ChartDesk::settle();
        const auto widgets = desk.window.findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            // The list of traces scrolls, and the dot of a read-out is a picture that scales.
            if (!widget->isVisible() || widget->isWindow()
                || desk.window.traceBar()->isAncestorOf(widget)
                || widget->objectName() == QLatin1String("selectedStatusLabel"))
                continue;
            const QString who = where + QLatin1Char(' ')
                + QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ')
                + widget->objectName();
            QVERIFY2(widget->parentWidget()->rect().contains(widget->geometry()), qPrintable(who));
            const QSize least = widget->minimumSizeHint();
            const QString sizes = QStringLiteral(": %1x%2 of %3x%4")
                                      .arg(widget->width())
                                      .arg(widget->height())
                                      .arg(least.width())
                                      .arg(least.height());
            QVERIFY2(widget->size().expandedTo(least) == widget->size(), qPrintable(who + sizes));
        }
    };
    for (int page = 0; page < desk.window.softKeys()->pageCount(); ++page) {
        desk.window.softKeys()->setPage(page);
        check(QStringLiteral("page %1").arg(page));
    }
    for (const auto layout :
         {Graph::LayoutType::SideBySide, Graph::LayoutType::Stacked, Graph::LayoutType::Quad}) {
        desk.model.viewSettings()->layoutProfile()->setLayoutType(layout);
        check(QStringLiteral("layout %1").arg(int(layout)));
    }
    desk.window.timingLine()->setVisible(true);
    desk.window.messageBar()->setMessage(
        QStringLiteral("a sentence that takes several lines ").repeated(6));
    check(QStringLiteral("message"));
    QCOMPARE(desk.window.size(), size);
}

QTEST_MAIN(PanelWindowTest)
#include "tst_panelwindow.moc"
