// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelcommands.h"

#include "scpierror.h"

#include <panel/model/cartesian.h>
#include <panel/model/panelmodel.h>

#include <QtEndian>

namespace Panel
{

namespace
{

QByteArray block(const QByteArray &bytes)
{
    const QByteArray size = QByteArray::number(bytes.size());
    return '#' + QByteArray::number(size.size()) + size + bytes;
}

QByteArray traceName(const Trace &trace)
{
    return "Tr" + QByteArray::number(trace.id);
}

} // namespace

/// The trace that was selected, or the active one; notes an error where there is none.
const Trace *PanelCommands::selected()
{
    const Trace *trace = m_trace ? m_model->trace(m_trace) : nullptr;
    trace = trace ? trace : m_model->activeTrace();
    if (!trace)
        noteError(NoData);
    return trace;
}

QByteArray PanelCommands::askTraces(const Call &)
{
    QByteArray text;
    for (const Trace &trace : m_model->traces())
        text += (text.isEmpty() ? "" : ",") + traceName(trace) + ','
            + PanelModel::parameterName(trace).toLatin1();
    return '"' + text + '"';
}

QByteArray PanelCommands::askSelected(const Call &)
{
    const Trace *trace = selected();
    return trace ? '"' + traceName(*trace) + '"' : QByteArray();
}

QByteArray PanelCommands::select(const Call &call)
{
    const QByteArray name = call.command->words.value(0);
    for (const Trace &trace : m_model->traces()) {
        if (traceName(trace).toUpper() != name.toUpper())
            continue;
        m_trace = trace.id;
        m_model->setActiveTrace(trace.id);
        return {};
    }
    noteError(name.isEmpty() ? MissingParameter : IllegalValue);
    return {};
}

QByteArray PanelCommands::written(const QVector<double> &values)
{
    QByteArray bytes;
    if (values.isEmpty())
        return m_binary ? block(bytes) : bytes; // without data there is nothing to point to
    if (!m_binary) {
        bytes.reserve(int(values.size()) * 20);
        for (const double value : values)
            bytes += (bytes.isEmpty() ? "" : ",") + scpiNumber(value);
        return bytes;
    }
    bytes.resize(int(values.size()) * int(sizeof(double)));
    if (m_bigEndian)
        qToBigEndian<quint64>(values.constData(), values.size(), bytes.data());
    else
        qToLittleEndian<quint64>(values.constData(), values.size(), bytes.data());
    return block(bytes);
}

/// Complex values (SDATa), or those of the trace's format (FDATa); of a Smith chart or a polar diagram, complex ones.
QByteArray PanelCommands::askData(const Call &call)
{
    const QByteArray kind = call.command->words.value(0).toUpper();
    const bool complex = kind == "SDAT" || kind == "SDATA";
    if (!complex && kind != "FDAT" && kind != "FDATA") {
        noteError(kind.isEmpty() ? MissingParameter : IllegalValue);
        return {};
    }
    const Trace *trace = selected();
    if (!trace)
        return {};
    if (!complex && trace->overFrequency())
        return written(formatValues(m_model->traceData(*trace), trace->format));
    const Parameter data = complex ? m_model->network(*trace).s(trace->to, trace->from)
                                   : m_model->traceData(*trace).parameter;
    QVector<double> values(2 * data.real.size());
    for (int i = 0; i < data.real.size(); ++i) {
        values[2 * i] = data.real.at(i);
        values[2 * i + 1] = data.imag.at(i);
    }
    return written(values);
}

QByteArray PanelCommands::askFrequencies(const Call &)
{
    const Trace *trace = selected();
    return trace ? written(m_model->network(*trace).frequencies) : QByteArray();
}

QByteArray PanelCommands::askFormat(const Call &)
{
    return m_binary ? "REAL,64" : "ASC,0";
}

QByteArray PanelCommands::setFormat(const Call &call)
{
    const QByteArray kind = call.command->words.value(0).toUpper();
    const QByteArray bits = call.command->words.value(1, "64");
    if (kind == "ASC" || kind == "ASCII")
        m_binary = false;
    else if (kind == "REAL" && bits == "64")
        m_binary = true;
    else
        noteError(kind.isEmpty() ? MissingParameter : IllegalValue);
    return {};
}

QByteArray PanelCommands::askByteOrder(const Call &)
{
    return m_bigEndian ? "NORM" : "SWAP";
}

QByteArray PanelCommands::setByteOrder(const Call &call)
{
    const QByteArray order = call.command->words.value(0).toUpper();
    if (order == "NORM" || order == "NORMAL")
        m_bigEndian = true;
    else if (order == "SWAP" || order == "SWAPPED")
        m_bigEndian = false;
    else
        noteError(order.isEmpty() ? MissingParameter : IllegalValue);
    return {};
}

QByteArray PanelCommands::askMarker(const Call &call)
{
    const Trace *trace = selected();
    return trace && m_model->marker(trace->id, call.number) ? "1" : "0";
}

QByteArray PanelCommands::setMarker(const Call &call)
{
    bool on = false;
    const Trace *trace = readSwitch(call, on) ? selected() : nullptr;
    if (!trace)
        return {};
    if (!on)
        m_model->removeMarker(trace->id, call.number);
    else if (call.number < 1 || call.number > Markers::perTrace)
        noteError(OutOfRange);
    else if (!m_model->marker(trace->id, call.number))
        m_model->restoreMarker(trace->id, call.number, {m_model->stimulus(*trace).center(), 0});
    return {};
}

QByteArray PanelCommands::askMarkerX(const Call &call)
{
    const Trace *trace = selected();
    const Marker *marker = trace ? m_model->marker(trace->id, call.number) : nullptr;
    if (trace && !marker)
        noteError(SettingsConflict);
    return marker ? scpiNumber(m_model->hertzOf(*marker)) : QByteArray();
}

QByteArray PanelCommands::setMarkerX(const Call &call)
{
    double hertz = 0.0;
    const Trace *trace = readNumber(call, hertz) ? selected() : nullptr;
    if (!trace)
        return {};
    const Stimulus range = m_model->shownRange(*trace);
    if (call.number < 1 || call.number > Markers::perTrace || !(hertz >= range.start)
        || !(hertz <= range.stop))
        noteError(OutOfRange);
    else
        m_model->restoreMarker(trace->id, call.number, {hertz, 0});
    return {};
}

/// What the trace is at a marker: complex on a Smith chart or in a polar diagram, elsewhere its value and 0.
QByteArray PanelCommands::askMarkerY(const Call &call)
{
    const Trace *trace = selected();
    const Marker *marker = trace ? m_model->marker(trace->id, call.number) : nullptr;
    const MarkedPoint point = marker ? m_model->markedPoint(*marker) : MarkedPoint{{}, -1.0};
    const double index = point.index;
    if (trace && index < 0.0)
        noteError(marker ? NoData : SettingsConflict);
    if (index < 0.0)
        return {};
    if (trace->overFrequency())
        return scpiNumber(point.value(trace->format)) + ",0";
    const std::complex<double> value = point.data.at(index);
    return scpiNumber(value.real()) + ',' + scpiNumber(value.imag());
}

QByteArray PanelCommands::askScreenshot(const Call &)
{
    return block(m_screenshot());
}

QByteArray PanelCommands::askPorts(const Call &)
{
    const Trace *trace = selected();
    return trace ? QByteArray::number(m_model->network(*trace).ports) : QByteArray();
}

} // namespace Panel
