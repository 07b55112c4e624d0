// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    The host that the code on the pages of docs/ is part of: what it takes for granted. */
#pragma once

#include <VnaWidgets/AccessiblePlot>
#include <VnaWidgets/Announcer>
#include <VnaWidgets/BaseUnitAdapter>
#include <VnaWidgets/ComboBox>
#include <VnaWidgets/DisplayPanel>
#include <VnaWidgets/DraggableFramelessDialog>
#include <VnaWidgets/EditableWidget>
#include <VnaWidgets/EnumProfileAdapter>
#include <VnaWidgets/EnumTextButton>
#include <VnaWidgets/GUIContext>
#include <VnaWidgets/KeypadEditor>
#include <VnaWidgets/LayoutManagerProfile>
#include <VnaWidgets/LockWidget>
#include <VnaWidgets/MarkerStatusItem>
#include <VnaWidgets/MenuButton>
#include <VnaWidgets/NumericField>
#include <VnaWidgets/OverlayContainer>
#include <VnaWidgets/PopupWidget>
#include <VnaWidgets/PropertyWatcher>
#include <VnaWidgets/RectangularBottomWidget>
#include <VnaWidgets/RoundLabel>
#include <VnaWidgets/ScaledUnitAdapter>
#include <VnaWidgets/SmithChartPlot>
#include <VnaWidgets/SmithCircle>
#include <VnaWidgets/SmithLimit>
#include <VnaWidgets/SmithReader>
#include <VnaWidgets/Step125Controller>
#include <VnaWidgets/StyleHelper>
#include <VnaWidgets/SwitchButton>
#include <VnaWidgets/TabletComboBox2>
#include <VnaWidgets/ThemeManager>
#include <VnaWidgets/TouchNumKeyboard>
#include <VnaWidgets/TraceGraph>
#include <VnaWidgets/Translator>
#include <VnaWidgets/WidgetMouseMoveTool>

#include <controls/drawnicon.h>
#include <platform/placement.h>
#include <smithchart/tracesummary.h>
#include <smithchart/tracetone.h>
#include <smithchart/tracewalk.h>
#include <utils/formatting.h>

#include <QAction>
#include <QApplication>
#include <QDoubleValidator>
#include <QFile>
#include <QGridLayout>
#include <QMainWindow>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QUiLoader>
#include <QVBoxLayout>

#include <cmath>
#include <functional>
#include <memory>

enum Format { LogM, Phase, Smith };
enum Search { MaximumPeak, MinimumPeak, NextPeak };

struct Settings {
    Graph::LayoutManagerProifle *layoutProfile() { return &profile; }
    Graph::LayoutManagerProifle profile;
};

struct Sweep : QObject {
    void setStop(double) { }
};

struct Source : QObject {
    void setLevel(double) { }
};

struct LevelAdapter : Controls::BaseUnitAdapter {
    using Controls::BaseUnitAdapter::BaseUnitAdapter;
};
using FrequencyAdapter = LevelAdapter;

struct Analyser : QObject {
    bool isSweeping() const { return sweeping; }
    void setSweeping(bool on) { sweeping = on; }
    bool sweeping = true;
};

struct ChartView : SmithChartPlot {
    using SmithChartPlot::SmithChartPlot;
    bool takePress(QMouseEvent *) { return true; }
};

/// The central widget of a main window, with what the pages take for granted. It notes what it was
/// asked for.
struct Panel : QWidget {
    Panel()
    {
        mainWindow->resize(800, 600);
        mainWindow->setCentralWidget(this);
        auto *layout = new QGridLayout(this);
        layout->addWidget(plot, 0, 0, 5, 1);
        layout->setColumnStretch(0, 1);
        const QWidgetList widgets{softKey, button, lockButton, box, editor};
        for (int row = 0; row < 5; ++row)
            layout->addWidget(widgets.at(row), row, 1);
        softKey->setText(QStringLiteral("Start"));
        softKey->setMinimumSize(100, 60);
        for (int i = 0; i <= 100; ++i) {
            frequencies << 1e9 + 1e7 * i;
            real << 0.8 * std::cos(0.05 * i);
            imaginary << 0.8 * std::sin(0.05 * i);
        }
        chart->addCurve(1, QPen(Qt::yellow));
        chart->setCurveData(1, frequencies, real, imaginary);
        chart->setActiveTrace(1);
        graph->setData(frequencies, real);
        graph->setVisible(false);
        painter.begin(&canvas);
        popup = new QWidget(this);
        popup->hide();
    }
    // The main window goes with its central widget here, not the other way around.
    ~Panel() override
    {
        painter.end();
        setParent(nullptr);
        delete mainWindow;
    }
    virtual void run() { }

    void apply() { }
    void arrange(Graph::LayoutType) { }
    void editStart() { told << QStringLiteral("editStart"); }
    void preset() { }
    void replotAllSoon() { }
    void search(int) { }
    void selectMarker(int) { }
    void setBackdrop(bool) { }
    void setFormat(int format) { told << QStringLiteral("setFormat %1").arg(format); }
    void setFormatName(const QString &) { }
    void setStartFrequency(double hertz) { told << QStringLiteral("start %1").arg(hertz); }
    void showLocked(bool locked) { told << QStringLiteral("locked %1").arg(locked); }
    void showEntry(double value) { told << QStringLiteral("entry %1").arg(value); }
    void showLimit(double entered, double value)
    {
        told << QStringLiteral("limit %1 %2").arg(entered).arg(value);
    }
    void showReading(int, int, double) { told << QStringLiteral("reading"); }
    void keepOutOfUnit(int) { }
    void toggleLock() { }

    QStringList told;
    QMainWindow *mainWindow = new QMainWindow;
    QWidget *centralWidget = this;
    QCustomPlot *plot = new QCustomPlot;
    QWidget *diagramArea = plot;
    QWidget *searchForm = new QWidget(this);
    QWidget *sidebar = this;
    LabelButton *softKey = new LabelButton;
    QPushButton *button = new QPushButton;
    QPushButton *lockButton = new QPushButton;
    QWidget *padlock = new QWidget(this);
    QWidget *popup = nullptr;
    QDialog *dialog = new QDialog(this);
    QLabel *languageLabel = new QLabel(this);
    QLineEdit *editor = new QLineEdit;
    Profile::TabletComboBox2 *box = new Profile::TabletComboBox2;
    Profile::TabletComboBox2 *comboBox = box;
    Settings *settings = &theSettings;
    Graph::LayoutManagerProifle *profile = &theSettings.profile;
    Profile::IEnumProfileAdapter *layouts = nullptr; // a box without a profile is empty
    Controls::TouchNumKeyboard *keypad = new Controls::TouchNumKeyboard(this);
    QAction *homeAction = new QAction(this);
    QAction *lockAction = new QAction(this);
    QImage canvas{64, 64, QImage::Format_RGB32};
    QPainter painter;
    QColor traceColor = Qt::yellow;

    QCPGraph *graph = plot->addGraph();
    ChartView *chart = new ChartView(plot, SmithChart::Standard, this);
    QVector<double> frequencies;
    QVector<double> real;
    QVector<double> imaginary;

    Sweep *sweep = new Sweep;
    Analyser *analyser = new Analyser;
    Controls::BaseUnitAdapter *start = new Controls::BaseUnitAdapter(this);
    Controls::BaseUnitAdapter *stop = new Controls::BaseUnitAdapter(this);
    Controls::BaseUnitAdapter *span = new Controls::BaseUnitAdapter(this);
    Controls::BaseUnitAdapter *adapter = new Controls::BaseUnitAdapter(this);
    Controls::StepController *stepper = new Controls::StepController(adapter);
    Source *source = new Source;
    QVector<Controls::ScaledUnitAdapter::Unit> frequencyUnits{{QStringLiteral("MHz"), 1e6}};
    bool dark = true;
    bool remoteControlled = false;
    bool isReflection = true;
    bool sweeping = true;
    double rate = 0.0;

private:
    Settings theSettings;
};

/// A block of code on a page.
struct Piece {
    const char *place; ///< its file, and the line before it
    const char *name;
    std::function<std::unique_ptr<Panel>()> make;
};

/// All of them, in the order of the pages.
const QVector<Piece> &pieces();
