// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
/*! \file
    A Smith chart of a measured one-port: circle of constant VSWR, a limit, markers that are dragged
    and set by a double click, and zoom by the wheel. Every answer to a gesture stands here.

    smith-viewer FILE.s1p               shows a file ("# GHz S MA R 50" and the like)
    smith-viewer FILE.s1p --grab PNG    draws it into a PNG, and ends */
#include <controls/thememanager.h>
#include <smithchart/smithchartplot.h>
#include <smithchart/smithcircle.h>
#include <smithchart/smithlimit.h>

#include <QApplication>
#include <QCursor>
#include <QFile>
#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <complex>

namespace
{

/// A trace, as the chart takes it: hertz, and the reflection coefficient.
struct Measurement {
    QVector<double> frequencies;
    QVector<double> real;
    QVector<double> imaginary;
};

/// Reads the points of a Touchstone file of one port. (The panel's reader knows the whole format.)
Measurement readOnePort(const QString &name)
{
    Measurement measurement;
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return measurement;
    double hertz = 1e9;
    QString format = QStringLiteral("MA");
    while (!file.atEnd()) {
        const QString line = QString::fromLatin1(file.readLine()).section(QLatin1Char('!'), 0, 0);
        const QStringList words = line.simplified().toUpper().split(QLatin1Char(' '));
        if (words.first() == QLatin1String("#")) {
            hertz = words.contains(QLatin1String("HZ")) ? 1.0
                : words.contains(QLatin1String("KHZ"))  ? 1e3
                : words.contains(QLatin1String("MHZ"))  ? 1e6
                                                        : 1e9;
            for (const char *known : {"RI", "DB"}) {
                if (words.contains(QLatin1String(known)))
                    format = QLatin1String(known);
            }
        } else if (words.size() == 3) {
            const double first = words.at(1).toDouble();
            const double second = words.at(2).toDouble();
            const double size =
                format == QLatin1String("DB") ? std::pow(10.0, first / 20.0) : first;
            const std::complex<double> point = format == QLatin1String("RI")
                ? std::complex<double>(first, second)
                : std::polar(std::abs(size), second * 3.141592653589793 / 180.0);
            measurement.frequencies << words.first().toDouble() * hertz;
            measurement.real << point.real();
            measurement.imaginary << point.imag();
        }
    }
    return measurement;
}

class Viewer : public QMainWindow
{
public:
    explicit Viewer(const Measurement &measurement)
        : m_measurement(measurement)
    {
        auto *page = new QWidget;
        auto *column = new QVBoxLayout(page);
        column->addWidget(m_plot, 1);
        column->addWidget(m_reading);
        setCentralWidget(page);
        resize(640, 700);

        const QColor color = Controls::ThemeManager::instance()->getTracePalette().first();
        m_chart->setFollowsTheme(true);
        m_chart->setGridFollowsView(true);
        m_chart->setGridReference(50.0);
        m_chart->setMaximumZoom(100.0);
        m_chart->addCurve(1, QPen(color));
        m_chart->setCurveData(1, measurement.frequencies, measurement.real, measurement.imaginary);
        m_chart->setActiveTrace(1);
        m_reading->setMargin(10);

        auto *vswr = new SmithCircle(m_chart->xAxis(), m_chart->yAxis());
        vswr->setVswr(2.0);
        vswr->setLabel(QStringLiteral("VSWR 2"));

        // Matched to VSWR 2 between 2.4 and 2.5 GHz?
        SmithChart::LimitArea area;
        area.setCircle({0.0, 0.0}, 1.0 / 3.0, SmithChart::LimitArea::StayInside);
        auto *limit = new SmithLimit(m_chart);
        limit->setArea(area);
        limit->setStimulusRange(SmithChart::StimulusRange{2.4e9, 2.5e9});
        statusBar()->showMessage(limit->test(1).passed() ? tr("PASS") : tr("FAIL"));

        setMarker(1, double(measurement.real.size()) / 2);
        answerGestures();
    }

private:
    void answerGestures()
    {
        connect(m_plot, &QCustomPlot::mouseWheel, this, [this](QWheelEvent *event) {
            const QPointF pos = event->position();
            const QPointF anchor(m_chart->xAxis()->pixelToCoord(pos.x()),
                                 m_chart->yAxis()->pixelToCoord(pos.y()));
            m_chart->zoomAt(anchor, event->angleDelta().y() > 0 ? 1.25 : 0.8);
        });
        connect(m_plot, &QCustomPlot::mouseDoubleClick, this, [this](const QMouseEvent *event) {
            const QPoint pos = m_plot->mapFromGlobal(QCursor::pos());
            if (!m_chart->handleDoubleClick(pos, event->modifiers()))
                m_chart->resetView();
        });
        connect(
            m_chart, &SmithChartPlot::activeTraceDoubleClicked, this, [this](int, double stimulus) {
                const auto at = std::lower_bound(m_measurement.frequencies.constBegin(),
                                                 m_measurement.frequencies.constEnd(), stimulus);
                setMarker(m_markers + 1, double(at - m_measurement.frequencies.constBegin()));
            });
        connect(m_chart, &SmithChartPlot::markerSelectionRequested, m_chart,
                &SmithChartPlot::selectMarker);
        connect(m_chart, &SmithChartPlot::markerPositionChanged, this,
                [this](int, int marker, double index) { setMarker(marker, index); });
        connect(m_chart, &SmithChartPlot::markerDeleteRequested, m_chart,
                &SmithChartPlot::removeMarkerVisual);
    }

    /// Places a marker of the trace, new or not, and reads it out.
    void setMarker(int marker, double index)
    {
        const int point = qBound(0, int(std::lround(index)), int(m_measurement.real.size()) - 1);
        if (!m_chart->getMarker(1, marker)) {
            if (!m_chart->addMarkerVisual(1, marker, point, Plot::PointingDown))
                return;
            m_markers = std::max(m_markers, marker);
            m_chart->setMarkerLabelText(1, marker, QString::number(marker));
        }
        m_chart->setMarkerIndex(1, marker, point);
        m_chart->selectMarker(1, marker);
        const std::complex<double> gamma(m_measurement.real.at(point),
                                         m_measurement.imaginary.at(point));
        const std::complex<double> z = 50.0 * (1.0 + gamma) / (1.0 - gamma);
        m_reading->setText(QStringLiteral("M%1:  %2 GHz   %3 %4 j%5 Ohm")
                               .arg(marker)
                               .arg(m_measurement.frequencies.at(point) / 1e9)
                               .arg(z.real(), 0, 'f', 2)
                               .arg(QLatin1String(z.imag() < 0.0 ? "-" : "+"))
                               .arg(std::abs(z.imag()), 0, 'f', 2));
    }

    Measurement m_measurement;
    int m_markers = 0;
    QCustomPlot *m_plot = new QCustomPlot;
    SmithChartPlot *m_chart = new SmithChartPlot(m_plot, SmithChart::Standard, this);
    QLabel *m_reading = new QLabel;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);
    const QStringList arguments = QApplication::arguments();
    const Measurement measurement = readOnePort(arguments.value(1));
    if (measurement.real.isEmpty()) {
        qWarning("smith-viewer: no points in \"%s\"", qPrintable(arguments.value(1)));
        return 1;
    }
    Viewer viewer(measurement);
    viewer.show();
    if (arguments.size() == 4 && arguments.at(2) == QLatin1String("--grab")) {
        QCoreApplication::processEvents();
        return viewer.grab().save(arguments.at(3)) ? 0 : 1;
    }
    return QApplication::exec();
}
