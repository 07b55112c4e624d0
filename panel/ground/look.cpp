// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "look.h"

#include "highcontrast.h"
#include "icons.h"
#include "tracecolors.h"

#include <controls/thememanager.h>

#include <QApplication>
#include <QFont>
#include <QStyle>
#include <QWidget>

namespace Panel
{

namespace
{

/// What the panel adds to the library's style sheets.
QString styleSheet()
{
    return QStringLiteral(R"(
Panel--PanelWindow, QWidget#topBar, QWidget#softKeys, Panel--SweepBar, Panel--MessageBar, Panel--LimitSheet { background: @barColor; }
QLabel#dim { color: @dimTextColor; }
QWidget#topBar { border-bottom: 1px solid @borderColor; }
QWidget#softKeys { border-left: 1px solid @borderColor; }
QStackedWidget#diagrams, QWidget#emptyPage { background: @backgroundColor; }
Panel--SmithView, Panel--CartesianView, Panel--TimingLine { background: @backgroundColor; }
Panel--SweepBar { border-top: 1px solid @borderColor; }
Panel--MessageBar { border: 1px solid @warningColor; border-radius: 4px; }
Panel--LimitSheet { border: 1px solid @focusColor; border-radius: 4px; }
Panel--LimitSheet QScrollArea, Panel--LimitSheet QScrollArea > QWidget > QWidget { background: transparent; }
Panel--MessageBar[notice="true"] { border-color: @focusColor; }
Panel--ReadOuts, Panel--ReadOuts > QWidget > QWidget { background: transparent; border: none; }
Panel--ReadOuts[box="true"] { background: @veilColor; border: 1px solid @borderColor; border-radius: 4px; }
QLabel#more { padding: 0px 6px; background: @barColor; border: 1px solid @borderColor; border-radius: 4px; color: @textColor; }
QPushButton#barKey, QPushButton#barKey:focus { padding: 2px; }
QPushButton#fitTrace { min-height: 36px; padding: 2px 12px; background: @barColor; border: 1px solid @warningColor; border-radius: 4px; color: @textColor; }
Panel--MarkerTable { background: @backgroundColor; border-top: 1px solid @borderColor; }
Panel--MarkerTable QTableView { background: @backgroundColor; selection-background-color: @buttonColor; }
Panel--MarkerTable QTableView::item { padding: 0px 10px; border: none; }
Panel--MarkerTable QTableView::item:selected { background: @buttonColor; }
Panel--MarkerTable QHeaderView::section { background: @backgroundColor; color: @dimTextColor; border: none; border-bottom: 1px solid @borderColor; padding: 0px 10px; }
Panel--TraceBar, Panel--TraceBar > QWidget > QWidget { background: transparent; border: none; }
SwitchButton QPushButton#btnOff:checked:enabled { background-color: @disabledCheckedColor; border-color: @borderColor; color: @textColor; }
SwitchButton QPushButton#btnOn, SwitchButton QPushButton#btnOff { min-width: 28px; }
DisplayPanel QComboBox { min-height: 42px; }
PopupWidget QListWidget#ListModeView::item, PopupWidget QListWidget#IconModeView::item { min-height: 44px; }
QToolButton#pageTab { border: none; border-left: 3px solid transparent; border-radius: 0px; padding: 2px 0px; background: transparent; color: @dimTextColor; font-size: 11px; }
QToolButton#pageTab:checked { border-left-color: @focusColor; color: @textColor; background: @buttonColor; }
QToolButton#pageTab:focus { border: 2px solid @focusColor; padding: 1px 0px; }
Panel--SoftKey[editing="true"] { border-color: @focusColor; }
Panel--SoftKey QLabel#valueLabel { padding: 0px; }
Panel--SoftKey QLabel#valueLabel:disabled { color: @dimTextColor; }
Panel--NumericDialog QPushButton { padding: 11px 2px 10px 2px; }
Panel--NumericDialog QPushButton:focus { padding: 10px 1px 9px 1px; }
Panel--NumericDialog QLabel#range { color: @dimTextColor; font-size: 12px; padding-right: 6px; }
Panel--NumericDialog LabelButton QLabel#nameLabel { font-weight: normal; padding: 0px 10px; }
Panel--NumericDialog QLabel#range[warning="true"] { color: @warningColor; }
Panel--ParameterMatrix QScrollArea, Panel--ParameterMatrix QScrollArea > QWidget > QWidget { background: transparent; }
Panel--HelpDialog QTableView { background: transparent; }
Panel--HelpDialog QTableView::item:selected { background: @buttonColor; color: @textColor; }
Panel--MarkerTable QTableView, Panel--HelpDialog QTableView, Panel--FolderBrowser QListWidget, Panel--SetupDialog QListWidget, Panel--InstrumentDialog QListWidget { border: 2px solid transparent; outline: none; }
Panel--MarkerTable QTableView:focus, Panel--HelpDialog QTableView:focus, Panel--FolderBrowser QListWidget:focus, Panel--SetupDialog QListWidget:focus, Panel--InstrumentDialog QListWidget:focus { border-color: @focusColor; }
Panel--SetupDialog QListWidget::item, Panel--FolderBrowser QListWidget::item { padding: 14px 10px; border-bottom: 1px solid @buttonColor; }
)");
}

} // namespace

void setUpApplication()
{
    registerIcons();
    // In pixels, because the panel's screen is made for its pixels and reports any resolution.
    QFont font = QApplication::font();
    font.setPixelSize(14);
    QApplication::setFont(font);
    using Controls::ThemeManager;
    auto *theme = ThemeManager::instance();
    theme->setHostSheet(styleSheet());
    for (const auto kind : {ThemeManager::Dark, ThemeManager::Light}) {
        theme->setTracePalette(kind, traceColors(kind == ThemeManager::Dark));
        theme->setMemoryTracePalette(kind, memoryColors(kind == ThemeManager::Dark));
    }
    theme->setTheme(ThemeManager::Dark);
}

namespace
{

/// Lengths of dashes and gaps in pixels, file by file, or trace by trace; the first is solid.
const QVector<QVector<qreal>> &dashPatterns()
{
    static const QVector<QVector<qreal>> patterns{
        {}, {8, 3}, {3, 3}, {10, 3, 3, 3}, {14, 4}, {10, 3, 3, 3, 3, 3}, {2, 5}, {16, 3, 6, 3}};
    return patterns;
}

bool s_traceDashes = false;

/// The dash pattern of a trace, by its number: files have one each, else traces.
int patternOf(int id, int file)
{
    return s_traceDashes || isHighContrast() ? file + id - 1 : file;
}

QPen dashed(const QColor &color, int number)
{
    QPen pen(color);
    const QVector<qreal> &pattern = dashPatterns().at(number % dashPatterns().size());
    if (!pattern.isEmpty())
        pen.setDashPattern(pattern);
    return pen;
}

/// The theme's colours, and others of the panel behind them where they are fewer than 8.
QVector<QColor> extended(QVector<QColor> palette, bool dark)
{
    const QVector<QColor> more = dark ? QVector<QColor>{0xff9f43, 0xff5c5c, 0xc9a0ff, 0xe8e8e8,
                                                        0x9be15d, 0xffc4e1, 0x40e0d0, 0xc8b560}
                                      : QVector<QColor>{0xc2185b, 0x5d7a00, 0x3f3fbf, 0x37474f,
                                                        0xb71c1c, 0x00796b, 0x6d4c41, 0x6a1b9a};
    for (const QColor &color : more) {
        if (palette.size() < 8 && !palette.contains(color))
            palette.append(color);
    }
    return palette;
}

} // namespace

void setTraceDashes(bool on)
{
    if (on == s_traceDashes)
        return;
    s_traceDashes = on;
    auto *theme = Controls::ThemeManager::instance();
    theme->setTheme(theme->currentTheme());
}

QPen Look::pen(int id, int file) const
{
    return dashed(trace(id), patternOf(id, file));
}

QPen Look::memoryPen(int id, int file) const
{
    return dashed(memory(id), patternOf(id, file));
}

Look currentLook()
{
    const auto *theme = Controls::ThemeManager::instance();
    const bool dark = theme->isDarkTheme();
    Look look;
    look.background = theme->backgroundColor();
    look.text = theme->textColor();
    look.border = theme->borderColor();
    look.button = theme->getColor(QStringLiteral("buttonColor"));
    look.traces = extended(theme->getTracePalette(), dark);
    look.memories = theme->getMemoryTracePalette();
    look.bar = theme->getColor(QStringLiteral("barColor"));
    look.dimText = theme->getColor(QStringLiteral("dimTextColor"));
    look.accent = theme->getColor(QStringLiteral("focusColor"));
    look.pass = dark ? QColor(0x3d, 0xd6, 0x8c) : QColor(0x00, 0x7a, 0x45);
    look.fail = dark ? QColor(0xff, 0x5c, 0x5c) : QColor(0xc6, 0x1a, 0x1a);
    look.warning = theme->getColor(QStringLiteral("warningColor"));
    return look;
}

void repolish(QWidget *widget)
{
    if (!widget->testAttribute(Qt::WA_WState_Polished))
        return;
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

} // namespace Panel
