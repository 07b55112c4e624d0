// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    The host that the code on the pages of docs/ is part of: what it takes for granted. */
#pragma once

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
#include <VnaWidgets/OverlayContainer>
#include <VnaWidgets/PopupWidget>
#include <VnaWidgets/PropertyWatcher>
#include <VnaWidgets/RectangularBottomWidget>
#include <VnaWidgets/RoundLabel>
#include <VnaWidgets/ScaledUnitAdapter>
#include <VnaWidgets/SmithChartPlot>
#include <VnaWidgets/SmithCircle>
#include <VnaWidgets/SmithLimit>
#include <VnaWidgets/Step125Controller>
#include <VnaWidgets/StyleHelper>
#include <VnaWidgets/SwitchButton>
#include <VnaWidgets/TabletComboBox2>
#include <VnaWidgets/ThemeManager>
#include <VnaWidgets/TouchNumKeyboard>
#include <VnaWidgets/Translator>
#include <VnaWidgets/WidgetMouseMoveTool>

#include <platform/placement.h>
#include <utils/formatting.h>

#include <QAction>
#include <QApplication>
#include <QDoubleValidator>
#include <QFile>
#include <QMainWindow>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QUiLoader>
#include <QVBoxLayout>

#include <cmath>

enum Format { LogM, Phase, Smith };
enum Search { MaximumPeak, MinimumPeak, NextPeak };

struct Settings {
    Graph::LayoutManagerProifle *layoutProfile() { return nullptr; }
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
    bool isSweeping() const { return false; }
    void setSweeping(bool) { }
};

struct ChartView : SmithChartPlot {
    using SmithChartPlot::SmithChartPlot;
    bool takePress(QMouseEvent *) { return true; }
};

struct Panel : QWidget {
    void apply() { }
    void arrange(Graph::LayoutType) { }
    void editStart() { }
    void preset() { }
    void replotAllSoon() { }
    void search(int) { }
    void selectMarker(int) { }
    void setBackdrop(bool) { }
    void setFormat(int) { }
    void setFormatName(const QString &) { }
    void setStartFrequency(double) { }
    void showReading(int, int, double) { }
    void keepOutOfUnit(int) { }
    void toggleLock() { }

    QMainWindow *mainWindow = nullptr;
    QWidget *centralWidget = nullptr;
    QWidget *diagramArea = nullptr;
    QWidget *searchForm = nullptr;
    QWidget *sidebar = nullptr;
    LabelButton *softKey = nullptr;
    QPushButton *button = nullptr;
    QPushButton *lockButton = nullptr;
    QWidget *padlock = nullptr;
    QWidget *popup = nullptr;
    QDialog *dialog = nullptr;
    QLabel *languageLabel = nullptr;
    QLineEdit *editor = nullptr;
    Profile::TabletComboBox2 *box = nullptr;
    Profile::TabletComboBox2 *comboBox = nullptr;
    Profile::IEnumProfileAdapter *layouts = nullptr;
    Graph::LayoutManagerProifle *profile = nullptr;
    Controls::TouchNumKeyboard *keypad = nullptr;
    QAction *homeAction = nullptr;
    QAction *lockAction = nullptr;
    QPainter painter;
    QColor traceColor;

    QCustomPlot *plot = nullptr;
    QCPGraph *graph = nullptr;
    ChartView *chart = nullptr;
    QVector<double> frequencies;
    QVector<double> real;
    QVector<double> imaginary;

    Settings *settings = nullptr;
    Sweep *sweep = nullptr;
    Analyser *analyser = nullptr;
    Controls::StepController *stepper = nullptr;
    Controls::BaseUnitAdapter *start = nullptr;
    Controls::BaseUnitAdapter *stop = nullptr;
    Controls::BaseUnitAdapter *span = nullptr;
    Controls::BaseUnitAdapter *adapter = nullptr;
    Source *source = nullptr;
    QVector<Controls::ScaledUnitAdapter::Unit> frequencyUnits;
    bool dark = true;
    bool remoteControlled = false;
    bool isReflection = true;
    bool sweeping = true;
    double rate = 0.0;
};
