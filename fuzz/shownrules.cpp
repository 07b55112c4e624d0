// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shownrules.h"

#include <controls/overlaycontainer.h>
#include <panel/diagrams/cartesianview.h>
#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/planeview.h>
#include <panel/diagrams/readouts.h>
#include <panel/model/cartesian.h>
#include <panel/window/panelwindow.h>
#include <panel/window/timingline.h>
#include <plot/qcp.h>
#include <smithchart/smithchartplot.h>
#include <widgets/markerstatusitem.h>

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QRegularExpression>
#include <QResizeEvent>

#include <cmath>
#include <complex>

using namespace Panel;

namespace Fuzz
{

namespace
{

/// So many traces, and so many files, differ in what they look like.
constexpr int s_looks = 8;

/// A number as it is written, and by how much its last digit may be rounded.
struct Written {
    explicit Written(const QString &text)
    {
        static const QRegularExpression form(
            QStringLiteral("^(?:VSWR )?(\\+j|-j|)(-?[0-9.]+) ?([fpn\u00b5mkMGT]?)(\\S*)$"));
        const QRegularExpressionMatch match =
            form.match(QString(text).replace(QChar(0x2212), QLatin1Char('-')));
        unit = match.captured(4);
        const QString digits = match.captured(2), prefix = match.captured(3);
        static const QString prefixes = QStringLiteral("fpn\u00b5m kMGT");
        const auto power = prefix.isEmpty() ? 5 : prefixes.indexOf(prefix);
        const double factor = std::pow(1e3, double(power) - 5.0);
        number = match.hasMatch() ? digits.toDouble() * factor : qQNaN();
        isImaginary = !match.captured(1).isEmpty();
        if (match.captured(1) == QLatin1String("-j"))
            number = -number;
        const auto point = digits.indexOf(QLatin1Char('.'));
        const double places = point < 0 ? 0.0 : double(digits.size() - 1 - point);
        rounding = 0.51 * factor * std::pow(10.0, -places);
    }

    double number; ///< in the unit without its prefix; NaN: no number
    double rounding;
    bool isImaginary;
    QString unit;
};

/// What a read-out must say of a point: the value that a text with this unit stands for.
double wantedValue(const Written &written, const Trace &trace, const TraceData &data, double index,
                   ReadoutFormat format)
{
    if (written.unit == QLatin1String("Hz"))
        return valueAt(data.frequencies, index);
    if (trace.overFrequency()) {
        // The unit of a delay has a prefix of its own.
        const double value = formatValueAt(data, index, trace.format);
        return formatUnit(trace.format) == QLatin1String("ns") ? 1e-9 * value : value;
    }
    if (written.unit == QChar(0x03a9) && format != ReadoutFormat::Admittance) {
        const std::complex<double> ohms = impedanceOf(data.at(index), data.reference);
        return written.isImaginary ? ohms.imag() : ohms.real();
    }
    return qQNaN();
}

void checkDigits(const PanelModel &model, const DiagramView &view, QStringList &broken)
{
    const QVector<Marker> markers = view.readOuts()->markers();
    for (int row = 0; row < markers.size(); ++row) {
        const Marker &marker = markers.at(row);
        const double index = model.indexOf(marker);
        const QWidget *item = view.readOuts()->item(row);
        // Against a reference it is a difference that is read, and fixed a value of before.
        if (!item || index < 0.0 || marker.isFixed() || model.referenceMarker(marker.trace))
            continue;
        const Trace &trace = *model.trace(marker.trace);
        for (const QLabel *label : item->findChildren<QLabel *>()) {
            const Written written(label->text());
            const double wanted =
                wantedValue(written, trace, model.traceData(trace), index,
                            model.viewSettings()->effectiveReadoutFormat(trace.kind()));
            // Seven digits are more than any value is told to, and less than its sum is exact to.
            if (std::isfinite(wanted) && std::isfinite(written.number)
                && std::abs(written.number - wanted) > written.rounding + 1e-7 * std::abs(wanted))
                broken << QStringLiteral("M%1 of Tr%2 is %3 and reads %4")
                              .arg(QString::number(marker.number), QString::number(marker.trace),
                                   QString::number(wanted, 'g', 12), label->text());
        }
    }
}

void checkLines(const PanelModel &model, const DiagramView &view, QStringList &broken)
{
    const auto *cartesian = qobject_cast<const CartesianView *>(&view);
    const auto *plane = qobject_cast<const PlaneView *>(&view);
    const auto pen = [cartesian, plane](int id) {
        const QCPAbstractPlottable *line = cartesian
            ? static_cast<QCPAbstractPlottable *>(cartesian->graph(id))
            : plane->chart()->getCurve(id);
        return line && line->visible() ? line->pen() : QPen(Qt::NoPen);
    };
    const QVector<int> ids = view.traceIds();
    for (int i = 0; i < ids.size(); ++i) {
        for (int j = 0; j < i; ++j) {
            const QPen a = pen(ids.at(i)), b = pen(ids.at(j));
            const bool areSeen = a.style() != Qt::NoPen && b.style() != Qt::NoPen;
            const int traces = ids.at(i) - ids.at(j);
            const int files = model.trace(ids.at(i))->network - model.trace(ids.at(j))->network;
            const bool maybeAlike = traces % s_looks == 0 && files % s_looks == 0;
            if (areSeen && !maybeAlike && a.color() == b.color()
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
            broken << QStringLiteral("the dialog %1 \"%2\" leaves the window")
                          .arg(QString::fromLatin1(dialog->metaObject()->className()),
                               dialog->windowTitle());
    }
}

/// What is on show against what the same data look like when they are drawn now.
void checkPicture(const DiagramView &view, QStringList &broken)
{
    // A replot that was asked for and has not come yet, of a file that has just been loaded, say.
    QCoreApplication::sendPostedEvents(view.plot(), QEvent::MetaCall);
    const QImage shown = view.plot()->grab().toImage();
    view.plot()->replot();
    const QImage drawn = view.plot()->grab().toImage();
    if (shown != drawn)
        broken
            << QStringLiteral("diagram %1 does not show what it would draw").arg(view.id().place);
}

/// Where the parts of a diagram lie against where a resize would put them now.
void checkLayout(DiagramView &view, QStringList &broken)
{
    const QList<QWidget *> parts =
        view.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    QVector<QRect> places;
    for (const QWidget *part : parts)
        places << part->geometry();
    QResizeEvent resize(view.size(), view.size());
    QCoreApplication::sendEvent(&view, &resize);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    for (int i = 0; i < places.size(); ++i) {
        const QRect &a = places.at(i), b = parts.at(i)->geometry();
        if (parts.at(i)->isVisible() && a != b)
            broken << QStringLiteral("a resize would put %1 of diagram %2 by %3, %4 elsewhere, "
                                     "larger by %5, %6")
                          .arg(QString::fromLatin1(parts.at(i)->metaObject()->className()))
                          .arg(view.id().place)
                          .arg(b.x() - a.x())
                          .arg(b.y() - a.y())
                          .arg(b.width() - a.width())
                          .arg(b.height() - a.height());
    }
}

} // namespace

QStringList ShownRules::broken(const PanelModel &model, PanelWindow &window)
{
    QStringList broken;
    if (!window.isVisible() || window.isMinimized())
        return broken;
    // What comes of an event may ask for another, as a file that is loaded for a replot.
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
    // Also what came last, as the layout of a file that a thread handed over in the last of these rounds.
    QCoreApplication::sendPostedEvents();
    checkDialogs(window, broken);
    const ViewSettings &settings = *model.viewSettings();
    // Another panel may be of another language, whose texts are wider.
    const bool isSame = m_window == &window;
    m_window = &window;
    QVector<int> conditions{window.width(), window.height(), int(settings.diagramLayout()),
                            int(settings.markerTable()), int(!window.timingLine()->isHidden())};
    QVector<QRect> places;
    for (DiagramView *view : window.diagrams()->views()) {
        conditions << view->id().place << int(view->id().kind) << int(!view->isVisible());
        places << QRect(view->mapTo(&window, QPoint()), view->size());
        if (!view->isVisible() || view->visibleRegion().isEmpty())
            continue;
        checkDigits(model, *view, broken);
        checkLines(model, *view, broken);
        checkLayout(*view, broken);
        if (!model.showsMeasurement())
            checkPicture(*view, broken);
    }
    for (int i = 0; isSame && conditions == m_conditions && i < places.size(); ++i) {
        const QRect &a = m_places.at(i), &b = places.at(i);
        if (a != b)
            broken << QStringLiteral("diagram %1 has moved by %2, %3 and grown by %4, %5")
                          .arg(i)
                          .arg(b.x() - a.x())
                          .arg(b.y() - a.y())
                          .arg(b.width() - a.width())
                          .arg(b.height() - a.height());
    }
    m_conditions = conditions;
    m_places = places;
    return broken;
}

} // namespace Fuzz
