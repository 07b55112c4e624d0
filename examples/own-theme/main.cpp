// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
/*! \file
    A theme of one's own: amber on brown. Nothing but colours is set; keys, lists, dialogs and the
    chart take them.

    own-theme                 shows a chart, keys and a choice
    own-theme --grab FILE     draws the window into a PNG, and ends */
#include <controls/combobox.h>
#include <controls/thememanager.h>
#include <smithchart/smithchartplot.h>
#include <widgets/labelbutton.h>
#include <widgets/switchbutton.h>

#include <QApplication>
#include <QGridLayout>
#include <QMainWindow>

#include <cmath>

namespace
{

void setHouseTheme()
{
    using Controls::ThemeManager;
    const std::pair<const char *, const char *> colors[] = {
        {"backgroundColor", "#1c1510"}, {"statusBarColor", "#2a2018"},
        {"borderColor", "#7a5c3e"},     {"textColor", "#ffe8cc"},
        {"buttonColor", "#3d2e20"},     {"gridColor", "#4a3a2a"},
        {"highlightColor", "#b06a10"},  {"labelButtonPressedColor", "#b06a10"},
        {"focusColor", "#ffb000"},      {"listItemDefaultColor", "#2a2018"},
    };
    ThemeManager *theme = ThemeManager::instance();
    for (const auto &[name, color] : colors)
        theme->setColor(ThemeManager::Dark, QLatin1String(name), QColor(QLatin1String(color)));
    theme->setTracePalette(ThemeManager::Dark,
                           {QColor(0xff, 0xb0, 0x00), QColor(0x7f, 0xd0, 0x60)});
    theme->setTheme(ThemeManager::Dark);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    setHouseTheme();

    QMainWindow window;
    auto *page = new QWidget;
    auto *layout = new QGridLayout(page);
    window.setCentralWidget(page);
    window.resize(720, 480);

    auto *plot = new QCustomPlot;
    auto *chart = new SmithChartPlot(plot, SmithChart::Standard, plot);
    chart->setFollowsTheme(true);
    layout->addWidget(plot, 0, 0, 4, 1);
    QVector<double> real;
    QVector<double> imaginary;
    for (int i = 0; i <= 200; ++i) {
        real << 0.8 * std::cos(0.04 * i) * (1.0 - 0.003 * i);
        imaginary << -0.8 * std::sin(0.04 * i) * (1.0 - 0.003 * i);
    }
    chart->addCurve(1, QPen(Controls::ThemeManager::instance()->getTracePalette().first()));
    chart->setCurveData(1, {}, real, imaginary);

    auto *start = new LabelButton;
    start->setText(QStringLiteral("Start"));
    start->setLabelText(QStringLiteral("1 GHz"));
    auto *reference = new SwitchButton;
    reference->setText(QStringLiteral("Reference"));
    auto *format = new Controls::ComboBox;
    format->addItems({QStringLiteral("Smith"), QStringLiteral("LogM"), QStringLiteral("Phase")});
    layout->addWidget(start, 0, 1);
    layout->addWidget(reference, 1, 1);
    layout->addWidget(format, 2, 1);
    layout->setColumnStretch(0, 1);
    layout->setRowStretch(3, 1);
    window.show();

    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1) == QLatin1String("--grab"))
        return window.grab().save(arguments.at(2)) ? 0 : 1;
    return QApplication::exec();
}
