// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Months on a panel in some minutes: a million new traces and marker moves, with theme flips,
// dialogs and properties in between. Memory must not grow, and a replot not get slower.
//   soak [ROUNDS]
#include <controls/editablewidget.h>
#include <controls/overlaycontainer.h>
#include <controls/scaledunitadapter.h>
#include <controls/thememanager.h>
#include <controls/touchnumkeyboard.h>
#include <smithchart/smithchartplot.h>
#include <widgets/enumtextbutton.h>
#include <widgets/markerstatusitem.h>

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QMainWindow>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <unistd.h>
#include <vector>

namespace
{

constexpr int points = 1601;
constexpr int tenths = 10;
constexpr int roundsPerReplot = 50;
constexpr int roundsPerChurn = 1000;
constexpr double mostGrowthKiB = 1024.0;
constexpr double mostSlowdown = 1.1;

double residentKiB()
{
    malloc_trim(0); // what is free is not in use
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return -1.0;
    return file.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / 1024.0;
}

/// Of this thread alone, so that what else the machine does counts little.
double cpuMilliseconds()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

class Panel
{
public:
    Panel()
        : m_plot(new QCustomPlot(&m_window))
        , m_chart(new SmithChartPlot(m_plot, SmithChart::Standard, &m_window))
        , m_button(new EnumTextButton(&m_window))
        , m_item(new MarkerStatusItem(&m_window))
        , m_adapter({{QStringLiteral("GHz"), 1e9}, {QStringLiteral("Hz"), 1.0}})
    {
        m_window.resize(800, 480);
        m_window.setCentralWidget(m_plot);
        m_button->setEnums({{1, QStringLiteral("a")}, {2, QStringLiteral("b")}});
        m_chart->addCurve(1, QPen(Qt::yellow));
        m_chart->setActiveTrace(1);
        m_window.show();
        sweep(0);
        m_chart->addMarkerVisual(1, 1, 10.0, Plot::PointingDown);
        m_chart->addMarkerVisual(1, 2, 20.0, Plot::PointingUp);
    }

    /// New data in new memory, as a host delivers it.
    void sweep(int round)
    {
        QVector<double> frequencies(points);
        QVector<double> real(points);
        QVector<double> imag(points);
        for (int i = 0; i < points; ++i) {
            const double angle = 12.0 * i / points + round * 1e-3;
            frequencies[i] = 1e9 + i * 1e6;
            real[i] = 0.8 * std::cos(angle) * (1.0 - 0.5 * i / points);
            imag[i] = 0.8 * std::sin(angle) * (1.0 - 0.5 * i / points);
        }
        m_chart->setCurveData(1, frequencies, real, imag);
    }

    void moveMarker(int round)
    {
        m_chart->setMarkerIndex(1, 1 + round % 2, (round * 7) % (points - 1) + 0.5);
    }

    double replot()
    {
        const double start = cpuMilliseconds();
        m_plot->replot();
        return cpuMilliseconds() - start;
    }

    void churn(int round)
    {
        Controls::ThemeManager::instance()->toggleTheme();
        m_chart->setGridMode(static_cast<SmithChartPlot::GridMode>(round / roundsPerChurn % 3));
        m_chart->zoomAt({0.1, 0.2}, round / roundsPerChurn % 2 ? 1.3 : 1.0 / 1.3);
        m_chart->setMarkerLabelText(1, 1, QString::number(round));
        m_button->setCurrentEnum(round / roundsPerChurn % 2 + 1);
        m_item->setText(QStringLiteral("M1"), QString::number(round), QStringLiteral("2"), {}, {});
        m_adapter.setProperty("inputText", QString::number(round));
        m_adapter.setProperty("cursorPos", round % 5);
        m_chart->addCurve(2, QPen(Qt::green));
        m_chart->setCurveData(2, {}, {0.1, 0.2}, {0.1, 0.2});
        m_chart->addMarkerVisual(2, 1, 0.0, Plot::PointingDown);
        m_chart->removeCurve(2);

        auto *const keypad = new Controls::TouchNumKeyboard(&m_window);
        keypad->setAttribute(Qt::WA_DeleteOnClose);
        keypad->setTitleWidget(new Controls::EditableWidget(keypad, &m_adapter));
        keypad->open();
        QCoreApplication::processEvents();
        keypad->close();
        Controls::OverlayContainer overlay(&m_window);
        QDialog dialog(&m_window);
        overlay.showWithDialog(&dialog, Controls::OverlayContainer::Reject, true,
                               Controls::OverlayContainer::Centered, nullptr);
        dialog.reject();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

private:
    QMainWindow m_window;
    QCustomPlot *m_plot;
    SmithChartPlot *m_chart;
    EnumTextButton *m_button;
    MarkerStatusItem *m_item;
    Controls::ScaledUnitAdapter m_adapter;
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const int rounds = argc > 1 ? QByteArray(argv[1]).toInt() : 1000000;
    const int roundsPerTenth = std::max(rounds / tenths, roundsPerChurn);
    Panel panel;
    for (int round = 0; round < roundsPerTenth / 2; ++round) { // warm up
        panel.sweep(round);
        panel.moveMarker(round);
        if (round % roundsPerReplot == 0)
            (void)panel.replot();
        if (round % roundsPerChurn == 0)
            panel.churn(round);
    }

    const double atFirst = residentKiB();
    double growth = 0.0;
    double times[tenths] = {};
    std::printf("%10s %14s %14s\n", "rounds", "resident KiB", "replot ms");
    for (int tenth = 0; tenth < tenths; ++tenth) {
        std::vector<double> replots;
        for (int i = 0; i < roundsPerTenth; ++i) {
            const int round = tenth * roundsPerTenth + i;
            panel.sweep(round);
            panel.moveMarker(round);
            if (round % roundsPerReplot == 0)
                replots.push_back(panel.replot());
            if (round % roundsPerChurn == 0)
                panel.churn(round);
        }
        times[tenth] = median(replots);
        const double resident = residentKiB();
        growth = resident - atFirst;
        std::printf("%10d %14.0f %14.3f\n", (tenth + 1) * roundsPerTenth, resident, times[tenth]);
        std::fflush(stdout);
    }
    const double slowdown = times[tenths - 1] / times[0];
    std::printf("grown by %.0f KiB (at most %.0f), replot %.3f times as long (at most %.1f)\n",
                growth, mostGrowthKiB, slowdown, mostSlowdown);
    return growth < mostGrowthKiB && slowdown <= mostSlowdown ? 0 : 1;
}
