// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "markercontroller.h"

#include "numerickeys.h"
#include "softkey.h"
#include "valuechoices.h"
#include <panel/ground/numbertext.h>
#include <panel/model/cartesian.h>
#include <panel/model/markersearch.h>
#include <panel/model/panelmodel.h>

#include <widgets/menubutton.h>
#include <widgets/switchbutton.h>

#include <cmath>

namespace Panel
{

namespace
{

/// The list of the marker key: the commands, then the markers.
enum MarkerCommand {
    Add,
    Remove,
    RemoveAll,
    FirstMarker,
};

enum MarkerTo {
    ToCenter,
    ToStart,
    ToStop,
    ToReference, ///< the value that the scale is about
    ToDelay, ///< the port is moved to where nothing is delayed
};

/// Searches behind those of Search: for several markers, and for a value that is asked for.
enum FurtherSearch {
    AllPeaks = 99,
    TargetLeft,
    TargetRight,
};

/// Where a further marker of a trace goes, as a share of its data: each halves the largest gap that
/// the ones before have left.
constexpr double s_places[Markers::perTrace] = {0.5, 0.25, 0.75, 0.125, 0.625, 0.375};

/// Where the edges of a band are, in dB from the marker.
const ValueChoices &bandwidths()
{
    static const ValueChoices choices{{1.0, 3.0, 6.0, 10.0, 20.0}};
    return choices;
}

/// A span smaller than this share of all data would show a point or two.
constexpr double s_smallestShare = 1e-4;

} // namespace

MarkerController::MarkerController(PanelModel *model, const PanelKeys &keys, NumericKeys *numbers,
                                   QObject *parent)
    : QObject(parent)
    , m_model(model)
    , m_keys(keys)
    , m_numbers(numbers)
{
    connect(keys.marker, &SoftKey::choicePicked, this, &MarkerController::onMarkerPicked);
    keys.search->setMenuItems({{int(Search::Maximum), tr("Maximum")},
                               {int(Search::Minimum), tr("Minimum")},
                               {int(Search::PeakLeft), tr("Next peak left")},
                               {int(Search::PeakRight), tr("Next peak right")},
                               {AllPeaks, tr("Highest peaks")},
                               {TargetLeft, tr("Value left\u2026")},
                               {TargetRight, tr("Value right\u2026")}});
    connect(keys.search, qOverload<int>(&MenuButton::menuItemClicked), this,
            &MarkerController::onSearchPicked);
    keys.markerTo->setMenuItems({{ToCenter, tr("Center")},
                                 {ToStart, tr("Start")},
                                 {ToStop, tr("Stop")},
                                 {ToReference, tr("Reference level")},
                                 {ToDelay, tr("Port delay")}});
    connect(keys.markerTo, qOverload<int>(&MenuButton::menuItemClicked), this,
            &MarkerController::onMarkerToPicked);
    connect(keys.referenceMarker, &SoftKey::choicePicked, this, [this](int index) {
        const Trace *trace = m_model->activeTrace();
        const QVector<Marker> markers = m_model->activeMarkers();
        if (trace)
            m_model->setReferenceMarker(
                trace->id, index > 0 && index <= markers.size() ? markers.at(index - 1).number : 0);
        showMarkers();
    });
    QStringList formats;
    for (int i = 0; i < readoutFormatCount; ++i)
        formats << formatName(ReadoutFormat(i));
    keys.readout->setChoices(formats);
    connect(keys.readout, &SoftKey::choicePicked, this,
            [this](int index) { m_model->viewSettings()->setReadoutFormat(ReadoutFormat(index)); });

    keys.bandwidth->setChoices(bandwidths().names(tr("Off"), QStringLiteral("%1 dB")));
    connect(keys.bandwidth, &SoftKey::choicePicked, this, [this](int index) {
        const double decibels = bandwidths().valueOf(index);
        if (decibels > 0.0 && !m_model->selectedMarker())
            markResonance();
        m_model->viewSettings()->setBandwidthDecibels(decibels);
    });

    keys.track->setChoices({tr("Off"), tr("Maximum"), tr("Minimum"), tr("Fixed")});
    connect(keys.track, &SoftKey::choicePicked, this, [this](int index) {
        if (const Marker *marker = m_model->selectedMarker())
            m_model->setMarkerTracking(marker->trace, marker->number, Tracking(index));
        showMarkers();
    });
    keys.couple->setChoices({tr("Off"), tr("On")});
    connect(keys.couple, &SoftKey::choicePicked, this,
            [this](int index) { m_model->setMarkersCoupled(index == 1); });
    connect(model, &PanelModel::markerModeChanged, this, &MarkerController::showMarkers);
    connect(model, &PanelModel::markerTrackingChanged, this, &MarkerController::showMarkers);
    connect(keys.markerTable, &SwitchButton::statusChanged, m_model->viewSettings(),
            &ViewSettings::setMarkerTable);

    for (const auto signal : {&PanelModel::activeTraceChanged, &PanelModel::selectedMarkerChanged,
                              &PanelModel::tracesChanged})
        connect(model, signal, this, &MarkerController::showMarkers);
    for (const auto signal : {&PanelModel::markerAdded, &PanelModel::markerRemoved})
        connect(model, signal, this, &MarkerController::showMarkers);
    connect(model, &PanelModel::referenceMarkerChanged, this, &MarkerController::showMarkers);
    connect(model->viewSettings(), &ViewSettings::changed, this, &MarkerController::showMarkers);
    connect(model, &PanelModel::markersExhausted, this, [this](int traceId) {
        Q_EMIT said(tr("Trace %1 has all its %2 markers: remove one to set another.")
                        .arg(traceId)
                        .arg(Markers::perTrace));
    });
    showMarkers();
}

void MarkerController::onMarkerPicked(int command)
{
    const Trace *trace = m_model->activeTrace();
    if (!trace)
        return;
    const QVector<Marker> markers = m_model->activeMarkers();
    if (command == Add) {
        const int place = qMin(int(markers.size()), Markers::perTrace - 1);
        const int last = m_model->network(*trace).points() - 1;
        m_model->addMarker(trace->id, std::floor(last * s_places[place]));
    } else if (command == Remove) {
        if (const Marker *marker = m_model->selectedMarker())
            m_model->removeMarker(marker->trace, marker->number);
    } else if (command == RemoveAll) {
        for (const Marker &marker : markers)
            m_model->removeMarker(marker.trace, marker.number);
    } else if (command - FirstMarker < markers.size()) {
        m_model->selectMarker(trace->id, markers.at(command - FirstMarker).number);
    }
    showMarkers();
}

/// Sends the selected marker, or a first one, to what is found.
void MarkerController::onSearchPicked(int command)
{
    const Trace *trace = m_model->activeTrace();
    if (!trace)
        return;
    if (command >= TargetLeft) {
        editTarget(command == TargetLeft ? -1 : 1);
        return;
    }
    if (command == AllPeaks) {
        markPeaks(*trace);
        return;
    }
    const Marker *marker = m_model->selectedMarker();
    const int found = searchMarker(m_model->traceData(*trace), trace->format, Search(command),
                                   marker ? qMax(0.0, m_model->indexOf(*marker)) : 0.0);
    if (found < 0)
        tellNoPeak(*trace);
    else if (marker)
        m_model->moveMarker(marker->trace, marker->number, found);
    else
        m_model->addMarker(trace->id, found);
}

void MarkerController::tellNoPeak(const Trace &trace)
{
    Q_EMIT said(tr("Trace %1 has no further peak of %2 that way.")
                    .arg(trace.id)
                    .arg(cartesianText(traits(trace.format).peakExcursion, trace.format)));
}

/// Puts the markers of a trace on its highest peaks, the first on the highest; those that are left
/// over go.
void MarkerController::markPeaks(const Trace &trace)
{
    const int id = trace.id;
    const QVector<int> peaks =
        highestPeaks(m_model->traceData(trace), trace.format, Markers::perTrace);
    if (peaks.isEmpty()) {
        tellNoPeak(trace);
        return;
    }
    for (int number = 1; number <= Markers::perTrace; ++number) {
        if (number > peaks.size())
            m_model->removeMarker(id, number);
        else if (m_model->marker(id, number))
            m_model->moveMarker(id, number, peaks.at(number - 1));
        else
            m_model->addMarker(id, peaks.at(number - 1));
    }
    m_model->selectMarker(id, 1);
}

/// Sets a marker in the middle of the band that is to be read: where the most passes, or the least is
/// reflected.
void MarkerController::markResonance()
{
    const Trace *trace = m_model->activeTrace();
    if (!trace)
        return;
    const int found =
        searchMarker(m_model->traceData(*trace), TraceFormat::LogMagnitude,
                     trace->to == trace->from ? Search::Minimum : Search::Maximum, 0.0);
    if (found >= 0)
        m_model->addMarker(trace->id, found);
}

/// Sends the selected marker where the trace has the value of the last search, and asks for another
/// one.
void MarkerController::editTarget(int direction)
{
    const Trace &trace = *m_model->activeTrace();
    const Marker *marker = m_model->selectedMarker();
    const double last = m_model->network(trace).points() - 1;
    const double from = marker ? qMax(0.0, m_model->indexOf(*marker)) : direction > 0 ? 0.0 : last;
    // In a plane it is the magnitude.
    const TraceFormat format = trace.overFrequency() ? trace.format : TraceFormat::LinearMagnitude;
    if (searchTarget(m_model->traceData(trace), trace.format, m_target, from, direction) >= 0.0)
        goToTarget(m_target, from, direction);
    m_numbers->editValue(m_keys.search, tr("Value, %1").arg(formatName(format)), format, m_target,
                         [=](double target) { goToTarget(target, from, direction); });
}

void MarkerController::goToTarget(double target, double from, int direction)
{
    const Trace *trace = m_model->activeTrace();
    if (!trace)
        return;
    m_target = target;
    const double found =
        searchTarget(m_model->traceData(*trace), trace->format, target, from, direction);
    const Marker *marker = m_model->selectedMarker();
    if (found < 0.0)
        Q_EMIT said(tr("Trace %1 does not reach %2 that way.")
                        .arg(trace->id)
                        .arg(cartesianText(target, trace->format)));
    else if (marker)
        m_model->moveMarker(marker->trace, marker->number, found);
    else
        m_model->addMarker(trace->id, found);
}

/// Moves the port that the wave comes from so that its group delay at the marker is zero; what a
/// port reflects passes its line twice.
void MarkerController::moveToZeroDelay(const Trace &trace, double index)
{
    const double nanoseconds =
        formatValueAt(m_model->traceData(trace), index, TraceFormat::GroupDelay);
    if (!std::isfinite(nanoseconds))
        return;
    Correction correction = m_model->correction(trace);
    const double seconds = 1e-9 * nanoseconds / (trace.to == trace.from ? 2.0 : 1.0);
    correction.setDelay(trace.from, correction.delay(trace.from) + seconds);
    m_model->setCorrection(trace, correction);
}

void MarkerController::onMarkerToPicked(int command)
{
    const Marker *marker = m_model->selectedMarker();
    if (!marker)
        return;
    const Trace &trace = *m_model->trace(marker->trace);
    const double hertz = m_model->hertzOf(*marker);
    const double index = m_model->indexOf(*marker);
    if (command == ToReference || command == ToDelay) {
        if (index < 0.0)
            return;
        const double value = m_model->markedPoint(*marker).value(trace.format);
        if (command == ToDelay)
            moveToZeroDelay(trace, index);
        else if (trace.overFrequency())
            m_model->setTraceScale(trace.id, trace.scale.withReference(value));
        return;
    }
    const Stimulus limits = m_model->limits(trace);
    const Stimulus now = m_model->stimulus(trace);
    const auto changed = command == ToCenter ? withCenter
        : command == ToStart                 ? withStart
                                             : withStop;
    const Stimulus wanted = changed(now, hertz, limits, m_model->smallestSpan());
    // At an end of the data nothing is left to show on its far side.
    if (wanted.span() <= s_smallestShare * limits.span())
        Q_EMIT said(tr("M%1 stands at the end of the data.").arg(marker->number));
    else
        m_model->setStimulus(trace, wanted);
}

void MarkerController::showMarkers()
{
    const PanelKeys &keys = m_keys;
    const Trace *trace = m_model->activeTrace();
    const Marker *selected = m_model->selectedMarker();
    const Marker *reference = trace ? m_model->referenceMarker(trace->id) : nullptr;
    QStringList commands{tr("Add"), tr("Remove"), tr("Remove all")};
    QStringList references{tr("None")};
    int selectedIndex = -1, referenceIndex = 0;
    for (const Marker &marker : m_model->activeMarkers()) {
        const QString name = QStringLiteral("M%1").arg(marker.number);
        if (selected && selected->number == marker.number)
            selectedIndex = int(commands.size());
        if (reference && reference->number == marker.number)
            referenceIndex = int(references.size());
        commands << name;
        references << name;
    }
    keys.marker->setChoices(commands);
    keys.marker->setChoice(selectedIndex, tr("None"));
    keys.marker->setItemEnabled(Remove, selected);
    keys.marker->setItemEnabled(RemoveAll, commands.size() > FirstMarker);
    keys.referenceMarker->setChoices(references);
    keys.referenceMarker->setChoice(referenceIndex);
    keys.readout->setChoice(int(m_model->viewSettings()->readoutFormat()));
    keys.bandwidth->setChoice(bandwidths().choiceOf(m_model->viewSettings()->bandwidthDecibels()));
    keys.track->setEnabled(selected);
    keys.track->setChoice(selected ? int(selected->tracking) : 0);
    keys.couple->setChoice(m_model->markersCoupled() ? 1 : 0);
    keys.markerTable->setStatus(m_model->viewSettings()->markerTable());
    keys.marker->setEnabled(trace);
    keys.search->setEnabled(trace && !(selected && selected->isFixed()));
    keys.markerTo->setEnabled(selected);
    keys.referenceMarker->setEnabled(references.size() > 1);
}

} // namespace Panel
