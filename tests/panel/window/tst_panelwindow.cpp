// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <controls/thememanager.h>
#include <panel/diagrams/cartesianview.h>
#include <panel/diagrams/readouts.h>
#include <panel/entry/tracebar.h>
#include <panel/ground/languages.h>
#include <panel/window/emptypage.h>
#include <panel/window/exports.h>
#include <panel/window/filedialog.h>
#include <panel/window/timingline.h>

#include <QPrinter>

using namespace VnaTest;
using namespace Panel;

namespace
{

/// Distance of two chart points in pixels of the chart.
double pixels(const ChartDesk &desk, const QPointF &a, const QPointF &b)
{
    const QCPAxis *axis = desk.plot()->xAxis;
    return QLineF(a, b).length() / axis->range().size() * axis->axisRect()->width();
}

} // namespace

class PanelWindowTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    void cleanup()
    {
        Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);
        setLanguage("en"_s);
        TestCase::cleanup();
    }

    void limitJudgesTheTracesOfTheChart()
    {
        ChartDesk desk;
        const QLabel *verdict = desk.view()->verdict();
        QVERIFY(!verdict->isVisible());
        desk.pick(desk.keys().vswrCircle, 6);
        QCOMPARE(desk.model.viewSettings()->vswrCircle(), 2.0);
        desk.pick(desk.keys().vswrLimit, 10);
        QVERIFY(verdict->isVisible() && verdict->text().contains("Tr1 from 2.300 GHz"_s));
        // In the pass band alone both reflections are small.
        desk.model.setStimulus(*desk.model.trace(1), {2.42e9, 2.48e9});
        ChartDesk::settle();
        QVERIFY2(verdict->text().contains("PASS"_s), qPrintable(verdict->text()));
        // A new chart judges as the old one did; what is hidden is not judged.
        desk.model.setStimulus(*desk.model.trace(1), {2.3e9, 2.6e9});
        desk.pick(desk.keys().density, 1);
        QVERIFY(verdict->text().contains("FAIL"_s));
        desk.model.setTraceVisible(1, false);
        QVERIFY(!verdict->text().contains("Tr1"_s) && verdict->text().contains("Tr2"_s));
        desk.pick(desk.keys().vswrLimit, 0);
        QVERIFY(!verdict->isVisible());
    }

    void densityKeepsEverythingElse()
    {
        ChartDesk desk;
        desk.model.setActiveTrace(2);
        desk.model.setTraceVisible(1, false);
        for (const auto mode :
             {SmithChartPlot::Admittance, SmithChartPlot::ImpedanceAndAdmittance}) {
            desk.pick(desk.keys().grid, mode);
            QCOMPARE(desk.chart()->gridMode(), mode);
            QCOMPARE(desk.keys().grid->choice(), int(mode));
        }
        desk.turnWheel(desk.onPlot(0.7, 0.4), 5);
        const QCPRange x = desk.plot()->xAxis->range();
        const QCPRange y = desk.plot()->yAxis->range();
        const int items = desk.plot()->itemCount();
        const int plottables = desk.plot()->plottableCount();

        for (const auto density :
             {GridDensity::Basic, GridDensity::Detailed, GridDensity::Automatic}) {
            desk.pick(desk.keys().density, int(density));
            QCOMPARE(desk.keys().density->choice(), int(density));
            QCOMPARE(desk.chart()->gridMode(), SmithChartPlot::ImpedanceAndAdmittance);
            QCOMPARE(desk.chart()->activeTrace(), 2);
            QVERIFY(!desk.chart()->getCurve(1)->visible());
            QVERIFY(desk.chart()->getCurve(2)->visible());
            QVERIFY(std::abs(desk.plot()->xAxis->range().lower - x.lower) < 1e-9);
            QVERIFY(std::abs(desk.plot()->yAxis->range().upper - y.upper) < 1e-9);
        }
        // Nothing of the charts in between has stayed on the plot.
        QCOMPARE(desk.plot()->itemCount(), items);
        QCOMPARE(desk.plot()->plottableCount(), plottables);
    }

    /// What is printed is dark on white, with title and markers, whatever the panel shows.
    void printsTheDiagram()
    {
        ChartDesk desk;
        desk.model.addMarker(1, 100.0);
        const QTemporaryDir folder;
        QPrinter printer(QPrinter::ScreenResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.filePath("page.pdf"_s));
        QVERIFY(printDiagram(desk.view(), &printer));
        QVERIFY(QFileInfo(folder.filePath("page.pdf"_s)).size() > 2000);
        QVERIFY(Controls::ThemeManager::instance()->isDarkTheme());
        printer.setOutputFileName(folder.filePath("none/page.pdf"_s));
        expectWarning("QPainter::begin(): Returned false"_s);
        QVERIFY(!printDiagram(desk.view(), &printer));

        const QString svg = folder.filePath("a.svg"_s), pdf = folder.filePath("a.pdf"_s);
        QCOMPARE(saveDiagram(desk.view(), svg), QString());
        QFile file(svg);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString drawing = QString::fromUtf8(file.readAll());
        QVERIFY(drawing.contains(desk.view()->title().left(8))); // as much as there is room for
        QVERIFY(drawing.contains("Tr1 S11 M1: "_s));
        QCOMPARE(saveDiagram(desk.view(), pdf), QString());
        QVERIFY(QFileInfo(pdf).size() < 200000);
        QVERIFY(Controls::ThemeManager::instance()->isDarkTheme());
        QCOMPARE(desk.window.grab().toImage().pixelColor(desk.inWindow(desk.onPlot(0.01, 0.01))),
                 currentLook().background);
    }

    /// No two traces look alike, whichever file they are of.
    void tracesOfTwoFilesDiffer()
    {
        ChartDesk desk;
        QVERIFY(desk.openSamples({"amplifier.s2p"_s, "band-pass.s2p"_s}));
        ChartDesk::settle();
        QCOMPARE(desk.model.traces().size(), 8);
        QVector<QColor> colors;
        for (const Trace &trace : desk.model.traces()) {
            const QPen pen = currentLook().pen(trace.id, trace.network);
            QVERIFY(!colors.contains(pen.color()));
            colors << pen.color();
            QCOMPARE(pen.style() == Qt::SolidLine, trace.network == 0);
            const QCPGraph *graph = desk.window.cartesianView()->graph(trace.id);
            if (!graph)
                continue;
            QCOMPARE(graph->pen().color(), pen.color());
            QCOMPARE(graph->pen().dashPattern(), pen.dashPattern());
            // Dashes are left to painters, which are slow with wide ones.
            QCOMPARE(graph->pen().widthF() > 1.0, pen.style() == Qt::SolidLine);
        }
    }

    void activatesAndHidesTraces()
    {
        ChartDesk desk;
        QVector<QAbstractButton *> buttons;
        for (const Trace &trace : desk.model.traces())
            buttons << desk.window.traceBar()->button(trace.id);
        QCOMPARE(buttons.size(), 4);
        QVERIFY(buttons.at(0)->isChecked());
        desk.click(buttons.at(1));
        QCOMPARE(desk.chart()->activeTrace(), 2);
        QVERIFY(buttons.at(1)->isChecked() && !buttons.at(0)->isChecked());

        for (const bool visible : {false, true}) {
            const SwitchButton *key = desk.keys().visible;
            desk.click(key->findChild<QPushButton *>(visible ? "btnOn"_s : "btnOff"_s));
            QCOMPARE(desk.chart()->getCurve(2)->visible(), visible);
            QCOMPARE(key->status(), visible);
        }
    }

    void wheelAndKeysZoom()
    {
        ChartDesk desk;
        const QPoint pointer = desk.onPlot(0.62, 0.35);
        const QPointF before = desk.chartPoint(pointer);
        desk.turnWheel(pointer, 6); // keeps the point under the pointer
        QVERIFY(pixels(desk, desk.chartPoint(pointer), before) < 0.01);
        QCOMPARE(desk.keys().zoom->value(), "3.81 \u00d7"_s);

        desk.turnWheel(pointer, -20);
        QVERIFY(!desk.chart()->isMagnified());
        desk.turnWheel(pointer, 100);
        QCOMPARE(desk.zoom(desk.view()), Zoom::maximum);

        desk.click(desk.keys().whole);
        QVERIFY(!desk.chart()->isMagnified());
        QCOMPARE(desk.keys().zoom->value(), "1.00 \u00d7"_s);

        // Keys zoom as well, and move.
        desk.plot()->setFocus();
        for (const auto key : {Qt::Key_Plus, Qt::Key_Plus, Qt::Key_Right, Qt::Key_Down})
            desk.press(key);
        QCOMPARE(desk.zoom(desk.view()), 1.25 * 1.25);
        QVERIFY(desk.chart()->viewState().centerX > 0.01);
        QVERIFY(desk.chart()->viewState().centerY < -0.01);
        desk.press(Qt::Key_0);
        QVERIFY(!desk.chart()->isMagnified());
    }

    void dragMovesTheMagnifiedView()
    {
        ChartDesk desk;
        const QPoint from = desk.onPlot(0.5, 0.5), to = desk.onPlot(0.6, 0.7);
        const QCPRange whole = desk.plot()->xAxis->range();
        desk.drag(from, to);
        QCOMPARE(desk.plot()->xAxis->range(), whole);

        desk.model.setZoom(desk.view()->id(), {4.0, 0.0, 0.0});
        ChartDesk::settle();
        const QPointF grabbed = desk.chartPoint(from);
        desk.drag(from, to);
        // A drag is known only after some pixels; until then the view stands still.
        QVERIFY(pixels(desk, desk.chartPoint(to), grabbed)
                < 2.0 * QApplication::startDragDistance());
        QVERIFY(pixels(desk, desk.chartPoint(from), grabbed) > 50.0);
        QCOMPARE(desk.zoom(desk.view()), 4.0);
        // Beyond the edge the view stops.
        for (int i = 0; i < 12; ++i)
            desk.drag(desk.onPlot(0.1, 0.5), desk.onPlot(0.9, 0.5));
        const QCPRange edge = desk.plot()->xAxis->range();
        desk.drag(desk.onPlot(0.1, 0.5), desk.onPlot(0.9, 0.5));
        QCOMPARE(desk.plot()->xAxis->range(), edge);

        // A press whose release is lost does not drag the view along later.
        mousePress(desk.plot(), desk.onPlot(0.5, 0.5));
        desk.window.hide();
        desk.window.show();
        ChartDesk::settle();
        mouseMove(desk.plot(), desk.onPlot(0.3, 0.5)); // back from the edge
        mouseMove(desk.plot(), desk.onPlot(0.2, 0.5));
        QCOMPARE(desk.plot()->xAxis->range(), edge);
        mouseRelease(desk.plot(), {});
    }

    void twoFingersZoom()
    {
        ChartDesk desk;
        const QPoint centre = desk.onPlot(0.6, 0.45);
        const QPointF before = desk.chartPoint(centre);
        const auto at = [&desk, centre](int distance) {
            return desk.inWindow(centre + QPoint(distance, 0));
        };
        TouchScreen fingers(&desk.window);
        fingers.press(at(-40));
        fingers.pressSecond(at(40));
        for (int distance = 40; distance <= 120; distance += 10)
            fingers.moveBoth(at(-distance), at(distance));
        fingers.release();
        const double zoom = desk.zoom(desk.view());
        QVERIFY2(zoom > 2.0 && zoom < 4.0, qPrintable(QString::number(zoom)));
        QVERIFY(pixels(desk, desk.chartPoint(centre), before) < 4.0);
    }

    void emptyPanelAsksForFiles()
    {
        ChartDesk desk;
        desk.show({});
        QVERIFY(!desk.view()->isVisible());
        QVERIFY(desk.window.emptyPage()->openButton()->isVisible());
        QVERIFY(!desk.keys().grid->isEnabled());
        desk.click(desk.window.emptyPage()->openButton());
        QPointer<FileDialog> dialog = desk.window.findChild<FileDialog *>();
        QVERIFY(dialog);
        dialog->reject();
        ChartDesk::settle();
        QVERIFY(!dialog);

        // It opens what is picked.
        desk.click(desk.keys().file);
        dialog = desk.window.findChild<FileDialog *>();
        QVERIFY(dialog);
        dialog->setFolder("/"_s);
        desk.click(dialog->findChild<QPushButton *>("samples"_s));
        const auto *list = dialog->findChild<QListWidget *>();
        QCOMPARE(list->count(), 4);
        auto *open = dialog->findChild<QPushButton *>("open"_s);
        QVERIFY(!open->isEnabled());
        for (const int row : {0, 1, 3, 1})
            clickItem(list, row);
        desk.click(open);
        QTRY_COMPARE(desk.keys().file->value(), "2 files"_s);
        QCOMPARE(desk.model.networks().first().name, "amplifier.s2p"_s);
        QCOMPARE(desk.chart()->traceIds(), (QVector<int>{1, 2, 5}));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!dialog);
    }

    void followsTheTheme()
    {
        ChartDesk desk;
        const auto pixel = [&desk] {
            return desk.window.grab().toImage().pixelColor(desk.inWindow(desk.onPlot(0.01, 0.01)));
        };
        const auto *theme = Controls::ThemeManager::instance();
        QCOMPARE(pixel(), theme->backgroundColor());
        desk.click(desk.window.themeButton());
        desk.plot()->replot();
        QVERIFY(theme->isLightTheme());
        QCOMPARE(pixel(), theme->backgroundColor());
        QCOMPARE(desk.chart()->getCurve(2)->pen().color(), currentLook().trace(2));
    }

    void nothingIsClipped_data()
    {
        columns<QSize, QString>("size", "language");
        for (const char *language : {"en", "de", "zh_CN"})
            row(language, QSize(800, 480), language);
        for (const QSize &size :
             {QSize(1024, 600), QSize(1280, 800), QSize(800, 1280), QSize(1920, 1080)})
            QTest::addRow("%d wide, %d high", size.width(), size.height()) << size << "en";
    }

    void nothingIsClipped()
    {
        QFETCH(QSize, size);
        QFETCH(QString, language);
        QVERIFY(setLanguage(language));
        ChartDesk desk(size);
        for (int marker = 0; marker < Markers::perTrace; ++marker)
            desk.model.addMarker(1, 10.0 * marker);
        const auto isReadOut = [&desk](const QWidget *widget) {
            const auto views = desk.window.diagrams()->views();
            return std::any_of(views.begin(), views.end(), [widget](const DiagramView *view) {
                return view->readOuts() == widget || view->readOuts()->isAncestorOf(widget);
            });
        };
        const auto check = [&](const QString &where) {
            ChartDesk::settle();
            const auto widgets = desk.window.findChildren<QWidget *>();
            for (const QWidget *widget : widgets) {
                // The lists of traces and markers scroll, and a bar without a text may be thin.
                if (!widget->isVisible() || widget->isWindow()
                    || desk.window.traceBar()->isAncestorOf(widget) || isReadOut(widget)
                    || widget->inherits("QProgressBar"))
                    continue;
                QString who;
                QDebug(&who) << where << widget << widget->minimumSizeHint();
                QVERIFY2(widget->parentWidget()->rect().contains(widget->geometry()),
                         qPrintable(who));
                QCOMPARE(widget->size().expandedTo(widget->minimumSizeHint()), widget->size());
            }
        };
        for (int page = 0; page < desk.window.softKeys()->pageCount(); ++page) {
            desk.window.softKeys()->setPage(page);
            check("page %1"_s.arg(page));
        }
        for (const auto layout :
             {Graph::LayoutType::SideBySide, Graph::LayoutType::Stacked, Graph::LayoutType::Quad}) {
            desk.setLayout(layout);
            check("layout %1"_s.arg(int(layout)));
        }
        desk.window.timingLine()->setVisible(true);
        desk.bar()->showProgress("a sentence that takes several lines "_s.repeated(6), 40,
                                 "Cancel"_s, this, [] {});
        check("message"_s);
        QCOMPARE(desk.window.size(), size);
    }
};

QTEST_MAIN(PanelWindowTest)
#include "tst_panelwindow.moc"
