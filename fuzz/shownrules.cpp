// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shownrules.h"

#include <controls/overlaycontainer.h>
#include <panel/diagrams/cartesianview.h>
#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/readouts.h>
#include <panel/diagrams/smithview.h>
#include <panel/model/preferences.h>
#include <panel/window/panelwindow.h>
#include <panel/window/timingline.h>
#include <plot/qcp.h>
#include <smithchart/smithchartplot.h>
#include <widgets/markerstatusitem.h>

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>

#include <algorithm>
#include <cmath>

using namespace Panel;

namespace Fuzz
{

namespace
{

/// So many traces have colours of their own.
constexpr int s_colors = 8;

/// A number as it is written, and by how much its last digit may be rounded.
struct Written {
    explicit Written(const QString &text)
    {
        const QStringList words = text.split(QLatin1Char(' '));
        QString digits = words.first();
        digits.replace(QChar(0x2212), QLatin1Char('-'));
        const QString unit = words.value(1);
        const auto power = QStringLiteral("kMG").indexOf(unit.left(1));
        const double factor = unit.endsWith(QLatin1String("Hz")) && power >= 0
            ? std::pow(1e3, double(power) + 1.0)
            : 1.0;
        bool isNumber = false;
        number = digits.toDouble(&isNumber) * factor;
        const auto point = digits.indexOf(QLatin1Char('.'));
        const double places = point < 0 ? 0.0 : double(digits.size() - 1 - point);
        rounding = isNumber ? 0.51 * factor * std::pow(10.0, -places) : qQNaN();
    }
    bool differsFrom(double value) const { return std::abs(number - value) > rounding; }

    double number;
    double rounding; ///< NaN: no number, and it differs from none
};

void checkDigits(const PanelModel &model, const DiagramView &view, QStringList &broken)
{
    const QVector<Marker> markers = view.readOuts()->markers();
    for (int row = 0; row < markers.size(); ++row) {
        const Marker &marker = markers.at(row);
        const double index = model.indexOf(marker);
        const QWidget *item = view.readOuts()->item(row);
        // Against a reference it is a difference that is read.
        if (!item || index < 0.0 || model.referenceMarker(marker.trace))
            continue;
        QStringList texts;
        for (const QLabel *label : item->findChildren<QLabel *>())
            texts << label->text();
        const Trace &trace = *model.trace(marker.trace);
        const double hertz = valueAt(model.network(trace).frequencies, index);
        const double value = trace.format == TraceFormat::LogMagnitude
            ? formatValueAt(model.traceData(trace), index, trace.format)
            : qQNaN();
        for (const QString &text : qAsConst(texts)) {
            const Written written(text);
            const double wanted = text.endsWith(QLatin1String("Hz")) ? hertz
                : text.endsWith(QLatin1String(" dB"))                ? value
                                                                     : qQNaN();
            if (std::isfinite(wanted) && written.differsFrom(wanted))
                broken << QStringLiteral("M%1 of Tr%2 is %3 and reads %4")
                              .arg(QString::number(marker.number), QString::number(marker.trace),
                                   QString::number(wanted, 'g', 12), text);
        }
    }
}

void checkLines(const DiagramView &view, QStringList &broken)
{
    const auto *cartesian = qobject_cast<const CartesianView *>(&view);
    const auto *smith = qobject_cast<const SmithView *>(&view);
    const auto pen = [cartesian, smith](int id) {
        const QCPAbstractPlottable *line = cartesian
            ? static_cast<QCPAbstractPlottable *>(cartesian->graph(id))
            : smith->chart()->getCurve(id);
        return line && line->visible() ? line->pen() : QPen(Qt::NoPen);
    };
    const QVector<int> ids = view.traceIds();
    for (int i = 0; i < ids.size(); ++i) {
        for (int j = 0; j < i; ++j) {
            const QPen a = pen(ids.at(i)), b = pen(ids.at(j));
            const bool areSeen = a.style() != Qt::NoPen && b.style() != Qt::NoPen;
            if (areSeen && (ids.at(i) - ids.at(j)) % s_colors != 0 && a.color() == b.color()
                && a.dashPattern() == b.dashPattern())
                broken << QStringLiteral("Tr%1 looks like Tr%2").arg(ids.at(i)).arg(ids.at(j));
        }
    }
}

void checkDialogs(const PanelWindow &window, QStringList &broken)
{
    // The smallest screen that a panel is for.
    if (window.width() < 640 || window.height() < 480)
        return;
    for (const auto *stage : window.findChildren<Controls::OverlayContainer *>()) {
        const QDialog *dialog = stage->isVisible() ? stage->activeDialog() : nullptr;
        if (dialog && dialog->isVisible() && !dialog->isWindow()
            && !stage->rect().contains(dialog->geometry()))
            broken
                << QStringLiteral("the dialog \"%1\" leaves the window").arg(dialog->windowTitle());
    }
}

/// What is on show against what the same data look like when they are drawn now.
void checkPicture(const DiagramView &view, QStringList &broken)
{
    const QImage shown = view.plot()->grab().toImage();
    view.plot()->replot();
    const QImage drawn = view.plot()->grab().toImage();
    if (shown != drawn)
        broken
            << QStringLiteral("diagram %1 does not show what it would draw").arg(view.id().place);
}

} // namespace

QStringList ShownRules::broken(const PanelModel &model, PanelWindow &window)
{
    QStringList broken;
    if (!window.isVisible() || window.isMinimized())
        return broken;
    checkDialogs(window, broken);
    // What comes of an event may ask for another, as a file that is loaded for a replot.
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
    const ViewSettings &settings = *model.viewSettings();
    // Texts of another language are of another height, and wider or narrower.
    const double language = double(qHash(model.preferences()->language(), 0) % 65536);
    QVector<double> conditions{language,
                               double(window.width()),
                               double(window.height()),
                               double(settings.diagramLayout()),
                               double(settings.markerTable()),
                               double(!window.timingLine()->isHidden())};
    QVector<QRect> places;
    for (DiagramView *view : window.diagrams()->views()) {
        conditions << view->id().place << int(!view->isVisible());
        places << QRect(view->mapTo(&window, QPoint()), view->size());
        if (!view->isVisible() || view->visibleRegion().isEmpty())
            continue;
        checkDigits(model, *view, broken);
        checkLines(*view, broken);
        if (!model.showsMeasurement())
            checkPicture(*view, broken);
    }
    if (conditions == m_conditions) {
        for (int i = 0; i < places.size(); ++i) {
            const QRect &a = m_places.at(i), &b = places.at(i);
            // Layouts share out what is left over, to a pixel.
            const int most =
                std::max({std::abs(a.x() - b.x()), std::abs(a.y() - b.y()),
                          std::abs(a.width() - b.width()), std::abs(a.height() - b.height())});
            if (most > 1)
                broken << QStringLiteral("diagram %1 has moved by %2, %3 and grown by %4, %5")
                              .arg(i)
                              .arg(b.x() - a.x())
                              .arg(b.y() - a.y())
                              .arg(b.width() - a.width())
                              .arg(b.height() - a.height());
        }
    }
    m_conditions = conditions;
    m_places = places;
    return broken;
}

} // namespace Fuzz
