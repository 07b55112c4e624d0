// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
#include <QApplication>
#include <VnaWidgets/SmithChartPlot>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QCustomPlot plot;
    SmithChartPlot chart(&plot, SmithChart::Standard);
    chart.setFollowsTheme(true);
    chart.addCurve(1, QPen(Qt::cyan));
    chart.setCurveData(1, {1e9, 2e9, 3e9}, {0.0, 0.3, 0.1}, {0.5, 0.2, -0.4});
    plot.resize(600, 600);
    plot.show();
    return app.exec();
}
