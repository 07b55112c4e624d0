// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "look.h"

#include "icons.h"

#include <controls/thememanager.h>

#include <QApplication>
#include <QFont>
#include <QStyle>
#include <QWidget>

namespace Panel
{

void setUpApplication()
{
    registerIcons();
    // In pixels, because the panel's screen is made for its pixels and reports any resolution.
    QFont font = QApplication::font();
    font.setPixelSize(14);
    QApplication::setFont(font);
    Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);
}

namespace
{

/// Lengths of dashes and gaps in pixels, file by file; the first is solid.
const QVector<QVector<qreal>> &dashPatterns()
{
    static const QVector<QVector<qreal>> patterns{
        {}, {8, 3}, {3, 3}, {10, 3, 3, 3}, {14, 4}, {10, 3, 3, 3, 3, 3}};
    return patterns;
}

QPen dashed(const QColor &color, int file)
{
    QPen pen(color);
    const QVector<qreal> &pattern = dashPatterns().at(file % dashPatterns().size());
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

QPen Look::pen(int id, int file) const
{
    return dashed(trace(id), file);
}

QPen Look::memoryPen(int id, int file) const
{
    return dashed(memory(id), file);
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
    look.warning = dark ? QColor(0xff, 0xb3, 0x47) : QColor(0xa8, 0x4f, 0x00);
    return look;
}

QString panelStyleSheet(const Look &look)
{
    QString sheet = QStringLiteral(R"(
Panel--PanelWindow, QWidget#topBar, QWidget#softKeys, Panel--SweepBar, Panel--MessageBar, Panel--LimitSheet { background: @bar; }
QLabel#dim { color: @dimText; }
QWidget#topBar { border-bottom: 1px solid @border; }
QWidget#softKeys { border-left: 1px solid @border; }
QStackedWidget#diagrams, QWidget#emptyPage { background: @background; }
Panel--SmithView, Panel--CartesianView, Panel--TimingLine { background: @background; }
Panel--SweepBar { border-top: 1px solid @border; }
Panel--MessageBar { border: 1px solid @warning; border-radius: 4px; }
Panel--LimitSheet { border: 1px solid @accent; border-radius: 4px; }
Panel--LimitSheet QScrollArea, Panel--LimitSheet QScrollArea > QWidget > QWidget { background: transparent; }
Panel--MessageBar[notice="true"] { border-color: @accent; }
Panel--ReadOuts, Panel--ReadOuts > QWidget > QWidget { background: transparent; border: none; }
Panel--ReadOuts[box="true"] { background: @veil; border: 1px solid @border; border-radius: 4px; }
QLabel#more { padding: 0px 6px; background: @bar; border: 1px solid @border; border-radius: 4px; color: @text; }
QPushButton#fitTrace { min-height: 36px; padding: 2px 12px; background: @bar; border: 1px solid @warning; border-radius: 4px; color: @text; }
Panel--MarkerTable { background: @background; border-top: 1px solid @border; }
Panel--MarkerTable QTableView { background: @background; selection-background-color: @button; }
Panel--MarkerTable QTableView::item { padding: 0px 10px; border: none; }
Panel--MarkerTable QTableView::item:selected { background: @button; }
Panel--MarkerTable QHeaderView::section { background: @background; color: @dimText; border: none; border-bottom: 1px solid @border; padding: 0px 10px; }
Panel--TraceBar, Panel--TraceBar > QWidget > QWidget { background: transparent; border: none; }
SwitchButton QPushButton#btnOff:checked:enabled { background-color: @border; border-color: @border; color: @text; }
PopupWidget QListWidget::item { min-height: 44px; }
QToolButton#pageTab { border: none; border-left: 3px solid transparent; border-radius: 0px; padding: 2px 0px; background: transparent; color: @dimText; font-size: 11px; }
QToolButton#pageTab:checked { border-left-color: @accent; color: @text; background: @button; }
QToolButton#pageTab:focus { border: 2px solid @accent; padding: 1px 0px; }
Panel--SoftKey[editing="true"] { border-color: @accent; }
Panel--SoftKey QLabel#valueLabel { padding: 0px; }
Panel--SoftKey QLabel#valueLabel:disabled { color: @dimText; }
Panel--NumericDialog QLabel#range { color: @dimText; font-size: 12px; padding-right: 6px; }
Panel--NumericDialog LabelButton QLabel#nameLabel { font-weight: normal; padding: 0px 10px; }
Panel--NumericDialog QLabel#range[warning="true"] { color: @warning; }
Panel--ParameterMatrix QScrollArea, Panel--ParameterMatrix QScrollArea > QWidget > QWidget { background: transparent; }
Panel--ParameterMatrix QPushButton#parameter:checked { border: 2px solid @accent; }
Panel--SetupDialog QListWidget::item, Panel--FileDialog QListWidget::item { padding: 14px 10px; border-bottom: 1px solid @button; }
)");
    // What lies over a diagram lets it show faintly.
    QColor veil = look.background;
    veil.setAlphaF(0.8F);
    const std::pair<const char *, QColor> places[] = {
        {"@background", look.background}, {"@bar", look.bar},       {"@dimText", look.dimText},
        {"@border", look.border},         {"@button", look.button}, {"@warning", look.warning},
        {"@accent", look.accent},         {"@text", look.text},     {"@veil", veil},
    };
    for (const auto &[place, color] : places)
        sheet.replace(QLatin1String(place), color.name(QColor::HexArgb));
    return sheet;
}

void repolish(QWidget *widget)
{
    if (!widget->testAttribute(Qt::WA_WState_Polished))
        return;
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

} // namespace Panel
