// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "numerickeys.h"

#include "numericdialog.h"
#include "softkey.h"
#include "units.h"

#include <panel/ground/look.h>
#include <panel/ground/numbertext.h>
#include <panel/model/cartesian.h>

#include <cmath>

namespace Panel
{

namespace
{

/// A tenth, a hundredth and a thousandth of a span as powers of ten, but whole Hz.
QVector<double> decadeSteps(double span)
{
    const double tenth = std::pow(10.0, std::floor(std::log10(qMax(span, 1e3)) - 1.0));
    return {tenth, tenth / 10.0, tenth / 100.0};
}

/// Beyond all instruments; a limit may be anywhere below.
constexpr double s_highestFrequency = 1e12;

/// Ten divisions of the largest scale, or what the default scale needs.
double farthestValue(TraceFormat format)
{
    return qMax(1000.0, 10.0 * traits(format).largestDivision);
}

UnitAdapter *valueAdapter(TraceFormat format)
{
    if (format == TraceFormat::LogMagnitude)
        return new DecibelAdapter;
    // As fine as the smallest division.
    return new NumberAdapter(qMax(2, qRound(-std::log10(traits(format).smallestDivision))));
}

} // namespace

NumericKeys::NumericKeys(PanelModel *model, const PanelKeys &keys, QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_keys(keys)
{
    m_stimulusNumbers = {
        {keys.start, [](const Stimulus &s) { return s.start; }, withStart},
        {keys.stop, [](const Stimulus &s) { return s.stop; }, withStop},
        {keys.center, [](const Stimulus &s) { return s.center(); }, withCenter},
        {keys.span, [](const Stimulus &s) { return s.span(); }, withSpan},
    };
    connectKeys();
    followModel();
}

void NumericKeys::connectKeys()
{
    for (const StimulusNumber &number : qAsConst(m_stimulusNumbers))
        connect(number.key, &SoftKey::clicked, this, [this, number] { editStimulus(number); });
    connect(m_keys.points, &SoftKey::clicked, this, &NumericKeys::editPoints);
    connect(m_keys.markerStimulus, &SoftKey::clicked, this, &NumericKeys::editMarkerStimulus);
    connect(m_keys.zoom, &SoftKey::clicked, this, &NumericKeys::editZoom);
    connect(m_keys.scale, &SoftKey::clicked, this, [this] { editScale(m_keys.scale); });
    connect(m_keys.reference, &SoftKey::clicked, this, &NumericKeys::editReference);
    connect(m_keys.tune, &SoftKey::clicked, this, &NumericKeys::editTuning);
    connect(m_keys.ifBandwidth, &SoftKey::clicked, this, &NumericKeys::editBandwidth);
    connect(m_keys.power, &SoftKey::clicked, this, &NumericKeys::editPower);
    connect(m_keys.averages, &SoftKey::clicked, this, &NumericKeys::editAverages);
}

void NumericKeys::followModel()
{
    for (const auto signal : {&PanelModel::activeTraceChanged, &PanelModel::sourceChanged,
                              &PanelModel::sweepChanged, &PanelModel::networksChanged})
        connect(m_model, signal, this, &NumericKeys::showStimulus);
    for (const auto signal : {&PanelModel::stimulusChanged, &PanelModel::networkUpdated})
        connect(m_model, signal, this, &NumericKeys::showStimulus);
    for (const auto signal : {&PanelModel::selectedMarkerChanged, &PanelModel::markerModeChanged,
                              &PanelModel::activeTraceChanged})
        connect(m_model, signal, this, &NumericKeys::showMarkerStimulus);
    connect(m_model, &PanelModel::markerMoved, this, &NumericKeys::showMarkerStimulus);
    for (const auto signal : {&PanelModel::activeTraceChanged, &PanelModel::tracesChanged})
        connect(m_model, signal, this, &NumericKeys::showScale);
    connect(m_model, &PanelModel::traceScaleChanged, this, &NumericKeys::showScale);
    connect(m_model, &PanelModel::zoomChanged, this, &NumericKeys::showScale);
    connect(m_model->viewSettings(), &ViewSettings::changed, this, &NumericKeys::showScale);
    for (const auto signal : {&PanelModel::tuningChanged, &PanelModel::sourceChanged})
        connect(m_model, signal, this, &NumericKeys::showTuning);
    for (const auto signal : {&PanelModel::acquisitionChanged, &PanelModel::sourceStateChanged,
                              &PanelModel::sourceChanged})
        connect(m_model, signal, this, &NumericKeys::showAcquisition);
    connect(m_model, &PanelModel::sourceStateChanged, this, &NumericKeys::showStimulus);
    showStimulus();
    showMarkerStimulus();
    showScale();
    showTuning();
    showAcquisition();
}

void NumericKeys::edit(QWidget *anchor, const QString &name, UnitAdapter *adapter,
                       const QVector<double> &steps, const std::function<void(double)> &apply)
{
    auto *dialog = new NumericDialog(name, adapter, anchor->window());
    dialog->setSteps(steps);
    dialog->setPopupAnchorWidget(anchor);
    Q_EMIT said({}); // of the last entry
    connect(dialog, &NumericDialog::valueChanged, this, apply);
    connect(dialog, &NumericDialog::limited, this, &NumericKeys::said);
    // Networks that come and go would leave it with another range, or nothing to edit.
    connect(m_model, &PanelModel::networksChanged, dialog, [this, dialog] {
        dialog->disconnect(this); // nor do they take the old value back
        dialog->reject();
    });
    const auto mark = [anchor](bool editing) {
        anchor->setProperty("editing", editing);
        repolish(anchor);
    };
    connect(dialog, &QDialog::finished, anchor, [mark, anchor] {
        mark(false);
        // A key whose list opened the entry had given the keyboard to the list.
        if (anchor->focusPolicy() != Qt::NoFocus)
            anchor->setFocus();
    });
    mark(true);
    dialog->open();
}

void NumericKeys::edit(SoftKey *key, UnitAdapter *adapter, const QVector<double> &steps,
                       const std::function<void(double)> &apply)
{
    edit(key, key->name(), adapter, steps, apply);
}

void NumericKeys::editFrequency(QWidget *anchor, const QString &name, double hertz,
                                const std::function<void(double)> &apply)
{
    auto *adapter = new FrequencyAdapter;
    adapter->setRange(0.0, s_highestFrequency);
    adapter->setRealValue(hertz);
    edit(anchor, name, adapter, decadeSteps(hertz), apply);
}

void NumericKeys::editValue(QWidget *anchor, const QString &name, TraceFormat format, double value,
                            const std::function<void(double)> &apply)
{
    UnitAdapter *adapter = valueAdapter(format);
    const double farthest = farthestValue(format);
    adapter->setRange(-farthest, farthest);
    adapter->setRealValue(value);
    const double division = traits(format).defaultScale.perDivision;
    edit(anchor, name, adapter, {division, division / 10.0}, apply);
}

void NumericKeys::editStimulus(const StimulusNumber &number)
{
    const Trace *trace = m_model->activeTrace();
    if (!trace)
        return;
    const Stimulus limits = m_model->limits(*trace);
    // What the entry began with: steps go back and forth from there.
    const Stimulus before = m_model->stimulus(*trace);
    const bool isSpan = number.key == m_keys.span;
    auto *adapter = new FrequencyAdapter;
    adapter->setRange(isSpan ? m_model->smallestSpan() : limits.start,
                      isSpan ? limits.span() : limits.stop);
    adapter->setRealValue(number.value(before));
    QVector<double> steps = decadeSteps(before.span());
    if (isSpan)
        steps.prepend(NumericDialog::Step125);
    else
        steps.append(NumericDialog::Step125);
    edit(number.key, adapter, steps, [=, id = trace->id](double value) {
        const Trace *edited = m_model->trace(id);
        if (!edited)
            return;
        m_model->setStimulus(*edited,
                             number.changed(before, value, limits, m_model->smallestSpan()));
        sayWhatFollowed(number, before, m_model->stimulus(*edited));
    });
}

/// Start and Stop may take each other along; that is said.
void NumericKeys::sayWhatFollowed(const StimulusNumber &number, const Stimulus &before,
                                  const Stimulus &after)
{
    if (number.key == m_keys.start && after.stop != before.stop)
        Q_EMIT said(tr("Stop moved along, to %1.").arg(frequencyText(after.stop)));
    if (number.key == m_keys.stop && after.start != before.start)
        Q_EMIT said(tr("Start moved along, to %1.").arg(frequencyText(after.start)));
}

void NumericKeys::editPoints()
{
    auto *adapter = new NumberAdapter(0);
    const NumberRange &points = m_model->sourceLimits().points;
    adapter->setRange(points.lowest, points.highest);
    adapter->setRealValue(m_model->sweep().points);
    edit(m_keys.points, adapter, {NumericDialog::Step125, 100.0, 1.0}, [this](double value) {
        Sweep sweep = m_model->sweep();
        sweep.points = qRound(value);
        m_model->setSweep(sweep);
    });
}

void NumericKeys::editMarkerStimulus()
{
    const Trace *active = m_model->activeTrace();
    if (active && !m_model->selectedMarker())
        m_model->addMarker(active->id,
                           indexOfFrequency(m_model->network(*active).frequencies,
                                            m_model->shownRange(*active).center()));
    const Marker *marker = m_model->selectedMarker();
    if (!marker)
        return;
    const Network &network = m_model->network(*m_model->trace(marker->trace));
    auto *adapter = new FrequencyAdapter;
    adapter->setRange(network.frequencies.constFirst(), network.frequencies.constLast());
    adapter->setRealValue(m_model->hertzOf(*marker));
    const QVector<double> steps = decadeSteps(adapter->maximum() - adapter->minimum());
    edit(m_keys.markerStimulus, adapter, steps,
         [this, traceId = marker->trace, number = marker->number](double value) {
             if (const Trace *trace = m_model->trace(traceId))
                 m_model->moveMarker(traceId, number,
                                     indexOfFrequency(m_model->network(*trace).frequencies, value));
         });
}

void NumericKeys::editScale(QWidget *anchor)
{
    const Trace *trace = m_model->activeTrace();
    if (trace && trace->onSmithChart())
        editSmithScale(anchor);
    if (!trace || trace->onSmithChart())
        return;
    const TraceFormat format = trace->format;
    UnitAdapter *adapter = valueAdapter(format);
    adapter->setRange(traits(format).smallestDivision, traits(format).largestDivision);
    const Scale before = trace->scale;
    adapter->setRealValue(before.perDivision);
    const QString unit = formatUnit(format);
    edit(anchor, unit.isEmpty() ? tr("Scale/") : tr("Scale, %1/").arg(unit), adapter,
         {NumericDialog::Step125}, [=, id = trace->id](double value) {
             // The standing wave ratio begins at 1, wherever its scale ends.
             Scale scale = before.withDivision(value);
             if (format == TraceFormat::Vswr)
                 scale.top = bottom(format, before) + traits(format).divisions * value;
             m_model->setTraceScale(id, scale);
         });
}

/// On a Smith chart a division is a unit over the zoom.
void NumericKeys::editSmithScale(QWidget *anchor)
{
    const DiagramId diagram = m_model->diagramOf(m_model->activeTrace()->id);
    auto *adapter = new NumberAdapter(2);
    adapter->setRange(traits(TraceFormat::Smith).smallestDivision,
                      traits(TraceFormat::Smith).largestDivision);
    adapter->setRealValue(1.0 / m_model->zoom(diagram).factor);
    edit(anchor, tr("Scale, %1/").arg(QStringLiteral("U")), adapter, {NumericDialog::Step125},
         [this, diagram, before = m_model->zoom(diagram)](double value) {
             m_model->setZoom(diagram, {1.0 / value, before.x, before.y});
         });
}

void NumericKeys::editReference()
{
    const Trace *trace = m_model->activeTrace();
    if (trace && trace->kind() == DiagramKind::Polar)
        editFullScale();
    if (!trace || !trace->overFrequency())
        return;
    UnitAdapter *adapter = valueAdapter(trace->format);
    const double farthest = farthestValue(trace->format);
    adapter->setRange(-farthest, farthest);
    const Scale before = trace->scale;
    adapter->setRealValue(before.reference());
    edit(m_keys.reference, adapter, {before.perDivision, before.perDivision / 10.0},
         [this, before, id = trace->id](double value) {
             m_model->setTraceScale(id, before.withReference(value));
         });
}

/// The reference of a polar diagram is its outermost circle.
void NumericKeys::editFullScale()
{
    const Trace *trace = m_model->activeTrace();
    const FormatTraits &format = traits(trace->format);
    UnitAdapter *adapter = valueAdapter(trace->format);
    adapter->setRange(format.divisions * format.smallestDivision,
                      format.divisions * format.largestDivision);
    adapter->setRealValue(trace->scale.top);
    edit(m_keys.reference, adapter, {NumericDialog::Step125},
         [this, before = trace->scale, divisions = format.divisions, id = trace->id](double value) {
             m_model->setTraceScale(id, before.withDivision(value / divisions));
         });
}

void NumericKeys::editTuning()
{
    auto *adapter = new FrequencyAdapter;
    const NumberRange &tuning = m_model->sourceLimits().tuning;
    adapter->setRange(tuning.lowest, tuning.highest);
    adapter->setRealValue(m_model->tuning());
    edit(m_keys.tune, adapter, {10e6, 1e6}, [this](double value) { m_model->setTuning(value); });
}

void NumericKeys::editZoom()
{
    const Trace *trace = m_model->activeTrace();
    if (!trace)
        return;
    const DiagramId diagram = m_model->diagramOf(trace->id);
    const Zoom before = m_model->zoom(diagram);
    auto *adapter = new NumberAdapter(2);
    adapter->setRange(1.0, Zoom::maximum);
    adapter->setRealValue(before.factor);
    edit(m_keys.zoom, adapter, {NumericDialog::Step125, 1.0, 0.1}, [=](double value) {
        m_model->setZoom(diagram, {value, before.x, before.y});
    });
}

void NumericKeys::showStimulus()
{
    const Trace *trace = m_model->activeTrace();
    for (const StimulusNumber &number : qAsConst(m_stimulusNumbers)) {
        number.key->setEnabled(trace);
        number.key->setValue(trace ? frequencyText(number.value(m_model->stimulus(*trace)))
                                   : nothingText());
    }
    // A file has the points that it has.
    const bool measures = m_model->sourceLimits().measures();
    m_keys.points->setEnabled(trace && measures);
    m_keys.points->setValue(!trace         ? nothingText()
                                : measures ? QString::number(m_model->sweep().points)
                                           : QString::number(m_model->network(*trace).points()));
}

void NumericKeys::showMarkerStimulus()
{
    const Marker *marker = m_model->selectedMarker();
    m_keys.markerStimulus->setEnabled(marker ? !marker->isFixed() : bool(m_model->activeTrace()));
    m_keys.markerStimulus->setValue(marker ? frequencyText(m_model->hertzOf(*marker))
                                           : nothingText());
}

void NumericKeys::showScale()
{
    const Trace *trace = m_model->activeTrace();
    const bool scaled = trace && !trace->onSmithChart();
    const Zoom zoom = trace ? m_model->zoom(m_model->diagramOf(trace->id)) : Zoom();
    m_keys.scale->setValue(!trace       ? nothingText()
                               : scaled ? divisionText(trace->format, trace->scale.perDivision)
                                        : zoomText(zoom.factor));
    m_keys.scale->setEnabled(trace);
    const bool polar = scaled && trace->kind() == DiagramKind::Polar;
    m_keys.reference->setValue(
        scaled ? cartesianReferenceText(polar ? trace->scale.top : trace->scale.reference(),
                                        trace->format)
               : nothingText());
    m_keys.reference->setEnabled(scaled);
    m_keys.zoom->setEnabled(trace);
    m_keys.zoom->setValue(trace ? QStringLiteral("%1 \u00d7").arg(zoom.factor, 0, 'f', 2)
                                : nothingText());
}

void NumericKeys::showTuning()
{
    const bool tunable = !m_model->sourceLimits().tuning.isEmpty();
    m_keys.tune->setEnabled(tunable);
    m_keys.tune->setValue(tunable ? frequencyText(m_model->tuning()) : nothingText());
}

} // namespace Panel
