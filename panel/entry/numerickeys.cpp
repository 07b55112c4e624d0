// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "numerickeys.h"

#include "softkey.h"
#include "units.h"
#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/diagramview.h>
#include <panel/model/cartesian.h>
#include <panel/model/format.h>
#include <panel/model/panelmodel.h>
#include <panel/source/sweepcontroller.h>
#include <panel/window/messagebar.h>
#include <panel/window/panelwindow.h>

#include <QStyle>

#include <cmath>

namespace Panel
{

namespace
{

const QString s_nothing = QStringLiteral("\u2013");

/// A tenth, a hundredth and a thousandth of a span as powers of ten, but whole Hz.
QVector<double> decadeSteps(double span)
{
    const double tenth = std::pow(10.0, std::floor(std::log10(qMax(span, 1e3)) - 1.0));
    return {tenth, tenth / 10.0, tenth / 100.0};
}

} // namespace

NumericKeys::NumericKeys(PanelModel *model, PanelWindow *window, SweepController *sweeps,
                         QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_window(window)
    , m_sweeps(sweeps)
{
    m_stimulusNumbers = {
        {window->keys().start, [](const Stimulus &s) { return s.start; }, withStart},
        {window->keys().stop, [](const Stimulus &s) { return s.stop; }, withStop},
        {window->keys().center, [](const Stimulus &s) { return s.center(); }, withCenter},
        {window->keys().span, [](const Stimulus &s) { return s.span(); }, withSpan},
    };
    for (const StimulusNumber &number : qAsConst(m_stimulusNumbers))
        connect(number.key, &SoftKey::clicked, this, [this, number] { editStimulus(number); });
    connect(window->keys().points, &SoftKey::clicked, this, &NumericKeys::editPoints);
    connect(window->keys().markerStimulus, &SoftKey::clicked, this,
            &NumericKeys::editMarkerStimulus);
    connect(window->keys().zoom, &SoftKey::clicked, this, &NumericKeys::editZoom);

    connect(model, &PanelModel::activeTraceChanged, this, &NumericKeys::showStimulus);
    connect(model, &PanelModel::stimulusChanged, this, &NumericKeys::showStimulus);
    connect(model, &PanelModel::sweepChanged, this, &NumericKeys::showStimulus);
    connect(model, &PanelModel::stimulusChanged, this, &NumericKeys::showMarkerStimulus);
    connect(model, &PanelModel::selectedMarkerChanged, this, &NumericKeys::showMarkerStimulus);
    connect(model, &PanelModel::markerMoved, this, &NumericKeys::showMarkerStimulus);
    connect(window->keys().scale, &SoftKey::clicked, this,
            [this] { editScale(m_window->keys().scale); });
    connect(window->keys().reference, &SoftKey::clicked, this, &NumericKeys::editReference);
    for (const auto signal : {&PanelModel::activeTraceChanged, &PanelModel::tracesChanged})
        connect(model, signal, this, &NumericKeys::showScale);
    connect(model, &PanelModel::traceScaleChanged, this, &NumericKeys::showScale);
    connect(window->keys().tune, &SoftKey::clicked, this, &NumericKeys::editTuning);
    connect(sweeps, &SweepController::tuningChanged, this, &NumericKeys::showTuning);
    connect(model, &PanelModel::networksChanged, this, &NumericKeys::showTuning);
    showTuning();
    const auto watch = [this](const DiagramView *view) {
        connect(view, &DiagramView::viewChanged, this, &NumericKeys::showZoom);
    };
    for (const DiagramView *view : window->diagrams()->allViews())
        watch(view);
    connect(window->diagrams(), &Diagrams::viewMade, this, watch);
    connect(window->diagrams(), &Diagrams::viewsChanged, this, &NumericKeys::showZoom);
    showScale();
    showStimulus();
    showMarkerStimulus();
    showZoom();
}

template<typename Apply>
void NumericKeys::edit(QWidget *key, const QString &name, UnitAdapter *adapter,
                       const QVector<double> &steps, Apply apply)
{
    auto *dialog = new NumericDialog(name, adapter, m_window);
    dialog->setSteps(steps);
    dialog->setPopupAnchorWidget(key);
    MessageBar *bar = m_window->messageBar();
    bar->setMessage({}); // of the last entry
    connect(dialog, &NumericDialog::valueChanged, this, apply);
    connect(dialog, &NumericDialog::limited, bar, &MessageBar::setMessage);
    // Networks that come and go would leave it with another range, or nothing to edit.
    connect(m_model, &PanelModel::networksChanged, dialog, [this, dialog] {
        dialog->disconnect(this); // nor do they take the old value back
        dialog->reject();
    });
    const auto mark = [key](bool editing) {
        key->setProperty("editing", editing);
        key->style()->polish(key);
    };
    connect(dialog, &QDialog::finished, key, [mark] { mark(false); });
    mark(true);
    dialog->open();
}

template<typename Apply>
void NumericKeys::edit(SoftKey *key, UnitAdapter *adapter, const QVector<double> &steps,
                       Apply apply)
{
    edit(key, key->name(), adapter, steps, apply);
}

void NumericKeys::editStimulus(const StimulusNumber &number)
{
    const Trace *trace = m_model->activeTrace();
    if (!trace)
        return;
    const Stimulus limits = this->limits(*trace);
    // What the entry began with: steps go back and forth from there.
    const Stimulus before = stimulus(*trace);
    const bool isSpan = number.key == m_window->keys().span;
    const double leastSpan = m_sweeps->isSimulating() ? Sweep::leastSpan : 0.0;
    auto *adapter = new FrequencyAdapter;
    adapter->setRange(isSpan ? leastSpan : limits.start, isSpan ? limits.span() : limits.stop);
    adapter->setRealValue(number.value(before));
    QVector<double> steps = decadeSteps(before.span());
    if (isSpan)
        steps.prepend(NumericDialog::Step125);
    else
        steps.append(NumericDialog::Step125);
    edit(number.key, adapter, steps, [=, id = trace->id](double value) {
        if (const Trace *edited = m_model->trace(id))
            setStimulus(*edited, number.changed(before, value, limits));
    });
}

void NumericKeys::editPoints()
{
    auto *adapter = new NumberAdapter(0);
    adapter->setRange(Sweep::fewestPoints, Sweep::mostPoints);
    adapter->setRealValue(m_model->sweep().points);
    edit(m_window->keys().points, adapter, {NumericDialog::Step125, 100.0, 1.0},
         [this](double value) {
             Sweep sweep = m_model->sweep();
             sweep.points = qRound(value);
             m_model->setSweep(sweep);
         });
}

Stimulus NumericKeys::stimulus(const Trace &trace) const
{
    return m_sweeps->isSimulating() ? Stimulus{m_model->sweep().start, m_model->sweep().stop}
                                    : m_model->stimulus(trace);
}

Stimulus NumericKeys::limits(const Trace &trace) const
{
    return m_sweeps->isSimulating() ? Stimulus{Sweep::lowest, Sweep::highest}
                                    : m_model->limits(trace);
}

void NumericKeys::setStimulus(const Trace &trace, Stimulus stimulus)
{
    if (!m_sweeps->isSimulating()) {
        m_model->setStimulus(trace, stimulus);
        return;
    }
    if (stimulus.span() < Sweep::leastSpan)
        stimulus = withSpan(stimulus, Sweep::leastSpan, limits(trace));
    m_model->setSweep({stimulus.start, stimulus.stop, m_model->sweep().points});
}

void NumericKeys::editMarkerStimulus()
{
    const Marker *marker = m_model->selectedMarker();
    if (!marker)
        return;
    const Network &network = m_model->network(*m_model->trace(marker->trace));
    auto *adapter = new FrequencyAdapter;
    adapter->setRange(network.frequencies.constFirst(), network.frequencies.constLast());
    adapter->setRealValue(valueAt(network.frequencies, marker->index));
    QVector<double> steps = decadeSteps(adapter->maximum() - adapter->minimum());
    edit(m_window->keys().markerStimulus, adapter, steps,
         [this, traceId = marker->trace, number = marker->number](double value) {
             if (const Trace *trace = m_model->trace(traceId))
                 m_model->moveMarker(traceId, number,
                                     indexOfFrequency(m_model->network(*trace).frequencies, value));
         });
}

void NumericKeys::editScale(QWidget *anchor)
{
    const Trace *trace = m_model->activeTrace();
    if (!trace)
        return;
    const TraceFormat format = trace->format;
    UnitAdapter *adapter = format == TraceFormat::LogMagnitude
        ? static_cast<UnitAdapter *>(new DecibelAdapter)
        : new NumberAdapter(2);
    // The Smith chart is magnified 20 times at most.
    adapter->setRange(format == TraceFormat::Smith ? 1.0 / DiagramView::mostZoom : 0.01,
                      format == TraceFormat::Smith       ? 1.0
                          : format == TraceFormat::Phase ? 90.0
                                                         : 100.0);
    const Scale before = trace->scale;
    adapter->setRealValue(before.perDivision);
    const QString unit = formatUnit(format);
    edit(anchor, unit.isEmpty() ? tr("Scale/") : tr("Scale, %1/").arg(unit), adapter,
         {NumericDialog::Step125}, [=, id = trace->id](double value) {
             // The standing wave ratio begins at 1, wherever its scale ends.
             const double top = format == TraceFormat::Vswr
                 ? before.top + divisions(format) * (value - before.perDivision)
                 : before.top;
             m_model->setTraceScale(id, {value, top});
         });
}

void NumericKeys::editReference()
{
    const Trace *trace = m_model->activeTrace();
    if (!trace || trace->onSmithChart())
        return;
    UnitAdapter *adapter = trace->format == TraceFormat::LogMagnitude
        ? static_cast<UnitAdapter *>(new DecibelAdapter)
        : new NumberAdapter(2);
    adapter->setRange(-1000.0, 1000.0);
    adapter->setRealValue(trace->scale.top);
    const double division = trace->scale.perDivision;
    edit(m_window->keys().reference, adapter, {division, division / 10.0},
         [this, division, id = trace->id](double value) {
             m_model->setTraceScale(id, {division, value});
         });
}

void NumericKeys::editTuning()
{
    const Stimulus limits = m_sweeps->tuningLimits();
    auto *adapter = new FrequencyAdapter;
    adapter->setRange(limits.start, limits.stop);
    adapter->setRealValue(m_sweeps->tuning());
    edit(m_window->keys().tune, adapter, {10e6, 1e6},
         [this](double value) { m_sweeps->setTuning(value); });
}

void NumericKeys::editZoom()
{
    DiagramView *view = m_window->diagrams()->activeView();
    if (!view)
        return;
    auto *adapter = new NumberAdapter(2);
    adapter->setRange(1.0, DiagramView::mostZoom);
    adapter->setRealValue(view->zoom());
    edit(m_window->keys().zoom, adapter, {NumericDialog::Step125, 1.0, 0.1},
         [view](double value) { view->setZoom(value); });
}

void NumericKeys::showStimulus()
{
    const Trace *trace = m_model->activeTrace();
    for (const StimulusNumber &number : qAsConst(m_stimulusNumbers)) {
        number.key->setEnabled(trace);
        number.key->setValue(trace ? frequencyText(number.value(stimulus(*trace))) : s_nothing);
    }
    // A file has the points that it has.
    const bool simulating = m_sweeps->isSimulating();
    m_window->keys().points->setEnabled(trace && simulating);
    m_window->keys().points->setValue(
        !trace           ? s_nothing
            : simulating ? QString::number(m_model->sweep().points)
                         : QString::number(m_model->network(*trace).frequencies.size()));
}

void NumericKeys::showMarkerStimulus()
{
    const Marker *marker = m_model->selectedMarker();
    SoftKey *key = m_window->keys().markerStimulus;
    key->setEnabled(marker);
    if (!marker) {
        key->setValue(s_nothing);
        return;
    }
    const Network &network = m_model->network(*m_model->trace(marker->trace));
    key->setValue(frequencyText(valueAt(network.frequencies, marker->index)));
}

void NumericKeys::showScale()
{
    const Trace *trace = m_model->activeTrace();
    const PanelKeys &keys = m_window->keys();
    const bool cartesian = trace && !trace->onSmithChart();
    keys.scale->setValue(trace ? scaleText(trace->format, trace->scale) : s_nothing);
    keys.scale->setEnabled(trace);
    keys.reference->setValue(cartesian ? cartesianReferenceText(trace->scale.top, trace->format)
                                       : s_nothing);
    keys.reference->setEnabled(cartesian);
}

void NumericKeys::showTuning()
{
    SoftKey *key = m_window->keys().tune;
    key->setEnabled(m_sweeps->isTunable());
    key->setValue(m_sweeps->isTunable() ? frequencyText(m_sweeps->tuning()) : s_nothing);
}

void NumericKeys::showZoom()
{
    const DiagramView *view = m_window->diagrams()->activeView();
    m_window->keys().zoom->setEnabled(view);
    m_window->keys().zoom->setValue(view ? QStringLiteral("%1 \u00d7").arg(view->zoom(), 0, 'f', 2)
                                         : s_nothing);
}

} // namespace Panel
