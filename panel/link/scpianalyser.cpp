// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scpianalyser.h"

#include "linknumbers.h"
#include "linktrouble.h"
#include "scpi.h"
#include "scpidialect.h"
#include "wire.h"

#include <algorithm>
#include <cmath>

namespace Panel
{

namespace
{

/// What frequencies may take to come where they are known, in milliseconds.
constexpr int s_frequencyTime = 500;
/// Where limits are not told.
constexpr NumberRange s_anyFrequency{1.0, 1.1e12};
constexpr NumberRange s_anyBandwidth{1.0, 15e6};
constexpr NumberRange s_anyPower{-90.0, 30.0};
constexpr int s_maximumAverages = 1024;

QByteArray number(double value)
{
    return QByteArray::number(value, 'g', 15);
}

} // namespace

QByteArray ScpiAnalyser::channel(const char *command) const
{
    return spelled(*m_dialect, command);
}

void ScpiAnalyser::sendAll(const char *commands, const QByteArray &name,
                           const QByteArray &parameter)
{
    const QByteArray text = spelled(*m_dialect, commands, name, parameter)
                                .replace("%a", QByteArray::number(m_settings.acquisition.averages));
    if (!text.isEmpty())
        m_port.send(text);
}

bool ScpiAnalyser::begin()
{
    m_port.send("*IDN?");
    const QByteArray reply = m_wire.line();
    const QList<QByteArray> identity = identityFields(reply);
    m_dialect = dialectOf(identity);
    if (!m_wire.ok())
        return false;
    if (!m_dialect) {
        m_wire.fail(Trouble::unknownInstrument(m_wire.peer(), reply));
        return false;
    }
    m_identity =
        Trouble::quoted(identity.value(0)) + QLatin1Char(' ') + Trouble::quoted(identity.value(1));
    m_port.send("*CLS");
    m_port.takeErrors();
    sendAll(m_dialect->prepare);
    m_format = m_port.askOptional(m_dialect->format);
    m_port.send(m_dialect->real64);
    if (m_dialect->byteOrder) {
        m_byteOrder = m_port.askOptional("FORM:BORD?");
        m_port.send("FORM:BORD NORM");
    }
    // What knows no numbers as bytes sends text, and that is read, too.
    m_port.takeErrors();
    if (!readSettings())
        return false;
    readLimits();
    const QByteArray corrected = m_port.askOptional(channel("SENS%c:CORR:STAT?"));
    m_calibration = corrected.startsWith('1') || corrected.startsWith("ON") ? QStringLiteral("CORR")
                                                                            : QString();
    return findTraces();
}

void ScpiAnalyser::readLimits()
{
    const Sweep &sweep = m_settings.sweep;
    m_limits.frequency = m_port.askRange(channel("SENS%c:FREQ:STAR"), s_anyFrequency);
    // A start may end below the highest stop.
    if (m_port.knowsRanges())
        m_limits.frequency.highest =
            m_port.askRange(channel("SENS%c:FREQ:STOP"), m_limits.frequency).highest;
    m_limits.frequency.lowest = qMin(m_limits.frequency.lowest, sweep.start);
    m_limits.frequency.highest = qMax(m_limits.frequency.highest, sweep.stop);
    m_limits.smallestSpan = 1.0;
    m_limits.points =
        m_port.askRange(channel("SENS%c:SWE:POIN"), {2.0, double(Sweep::maximumPoints)});
    m_limits.points.lowest = qMax(2.0, m_limits.points.lowest);
    m_limits.points.highest =
        qBound(double(sweep.points), m_limits.points.highest, double(Sweep::maximumPoints));
    if (!std::isnan(m_settings.acquisition.bandwidth))
        m_limits.bandwidth = m_port.askRange(channel("SENS%c:BWID"), s_anyBandwidth);
    if (!std::isnan(m_settings.acquisition.power))
        m_limits.power = m_port.askRange(channel("SOUR%c:POW"), s_anyPower);
    m_limits.averages = {1.0, double(s_maximumAverages)};
}

bool ScpiAnalyser::readSettings()
{
    const double start = m_port.askNumber(channel("SENS%c:FREQ:STAR?"));
    const double stop = m_port.askNumber(channel("SENS%c:FREQ:STOP?"));
    const double points = m_port.askNumber(channel("SENS%c:SWE:POIN?"));
    if (m_wire.ok() && !(points >= 1.0 && points <= Sweep::maximumPoints))
        m_wire.fail(Trouble::otherPoints(m_wire.peer(), qint64(points), Sweep::maximumPoints));
    if (!m_wire.ok())
        return false;
    m_settings.sweep = {start, stop, int(points)};
    Acquisition &acquisition = m_settings.acquisition;
    acquisition.bandwidth = m_port.askOptionalNumber(channel("SENS%c:BWID?"), qQNaN());
    acquisition.power = m_port.askOptionalNumber(channel("SOUR%c:POW?"), qQNaN());
    const QByteArray averaging = m_port.askOptional(channel("SENS%c:AVER:STAT?"));
    const bool on = averaging.startsWith("ON") || numberOr(averaging, 0.0) != 0.0;
    const double count = on ? m_port.askOptionalNumber(channel("SENS%c:AVER:COUN?"), 1.0) : 1.0;
    acquisition.averages = int(NumberRange{1.0, double(s_maximumAverages)}.bounded(count));
    m_sweepTime = NumberRange{0.0, 3600.0}.bounded(
        m_port.askOptionalNumber(channel("SENS%c:SWE:TIME?"), 1.0));
    m_frequencies.clear();
    return m_wire.ok();
}

bool ScpiAnalyser::apply(const MeasurementSettings &wanted)
{
    const Acquisition now = m_settings.acquisition;
    const Acquisition next = m_limits.bounded(wanted.acquisition);
    const Sweep &sweep = wanted.sweep;
    if (sweep != m_settings.sweep) {
        m_port.send(channel("SENS%c:FREQ:STAR ") + number(sweep.start));
        m_port.send(channel("SENS%c:FREQ:STOP ") + number(sweep.stop));
        m_port.send(channel("SENS%c:SWE:POIN ") + QByteArray::number(sweep.points));
    }
    if (next.bandwidth != now.bandwidth && !std::isnan(next.bandwidth))
        m_port.send(channel("SENS%c:BWID ") + number(next.bandwidth));
    if (next.power != now.power && !std::isnan(next.power))
        m_port.send(channel("SOUR%c:POW ") + number(next.power));
    if (next.averages != now.averages) {
        if (next.averages > 1)
            m_port.send(channel("SENS%c:AVER:COUN ") + QByteArray::number(next.averages));
        m_port.send(channel("SENS%c:AVER:STAT ") + (next.averages > 1 ? "1" : "0"));
    }
    // What is out of range is told by the numbers that are read back.
    m_port.takeErrors();
    return readSettings();
}

bool ScpiAnalyser::findTraces()
{
    QVector<NamedTrace> present;
    const QByteArray reply = m_port.askOptional(channel(m_dialect->list));
    if (m_dialect->named) {
        present = parseCatalogue(reply);
        if (*m_dialect->places)
            m_taken =
                ',' + m_port.askOptional(m_dialect->places).replace('"', "").replace(' ', "") + ',';
    } else {
        m_traceCount = reply;
        const int count = int(NumberRange{0.0, 16.0}.bounded(numberOr(reply, 0.0)));
        for (int i = 1; i <= count; ++i) {
            const QByteArray name = QByteArray::number(i);
            const QByteArray parameter =
                m_port.askOptional(spelled(*m_dialect, m_dialect->parameter, name));
            present.append({name, QByteArray(parameter).replace('"', "").toUpper()});
        }
    }
    m_traces.clear();
    for (const char *const parameter : parameters) {
        QByteArray source;
        for (const NamedTrace &trace : qAsConst(present)) {
            if (trace.parameter == parameter && source.isEmpty())
                source = trace.name;
        }
        if (source.isEmpty() && !defineTrace(parameter, source)) {
            // Without a second port, reflection is all there is.
            if (!m_wire.ok())
                return false;
            m_traces = m_traces.mid(0, 1);
            break;
        }
        m_traces.append(source);
    }
    if (m_traces.isEmpty())
        m_wire.fail(Trouble::refused(m_wire.peer(), "S11", reply));
    return m_wire.ok();
}

/// Makes a trace of its own for a parameter; false if the instrument refuses it.
bool ScpiAnalyser::defineTrace(const QByteArray &parameter, QByteArray &source)
{
    if (m_dialect->named) {
        source = "Panel_" + parameter;
    } else {
        const int count = int(numberOr(m_traceCount, 0.0)) + m_nextPlace++;
        source = QByteArray::number(count);
        m_port.send(channel("CALC%c:PAR:COUN ") + source);
    }
    while (m_taken.contains(',' + QByteArray::number(m_nextPlace) + ','))
        ++m_nextPlace;
    const QList<QByteArray> commands = spelled(*m_dialect, m_dialect->define, source, parameter)
                                           .replace("%w", QByteArray::number(m_nextPlace))
                                           .split('\n');
    m_port.send(commands.first());
    if (!m_port.takeErrors().isEmpty() || !m_wire.ok())
        return false;
    m_ownTraces.append(source);
    // A place in the window is good to have, and not needed.
    if (commands.size() > 1) {
        m_port.send(commands.at(1));
        ++m_nextPlace;
        m_port.takeErrors();
    }
    return m_wire.ok();
}

bool ScpiAnalyser::awaitSweep(double sweeps)
{
    m_port.send("*OPC?");
    const QByteArray reply =
        m_wire.line(sweepGrace + int(qMin(1e9, 2000.0 * m_sweepTime * sweeps)));
    int code = 0;
    QByteArray text;
    if (readErrorEntry(reply, code, text))
        m_wire.fail(Trouble::refused(m_wire.peer(), "*OPC?", text));
    else if (numberOr(reply, 0.0) != 1.0)
        m_wire.fail(Trouble::unreadable(m_wire.peer(), reply));
    return m_wire.ok();
}

bool ScpiAnalyser::runSweep(int sweeps)
{
    if (sweeps == 1) {
        sendAll(m_dialect->single);
        return awaitSweep(1);
    }
    if (!m_dialect->eachSweep) {
        sendAll(m_dialect->averaged);
        return awaitSweep(sweeps);
    }
    m_port.send(channel("INIT%c:CONT 0"));
    m_port.send(channel("SENS%c:AVER:CLE"));
    for (int i = 0; i < sweeps && m_wire.ok(); ++i) {
        sendAll(m_dialect->averaged);
        awaitSweep(1);
    }
    return m_wire.ok();
}

/// The frequencies are asked for once; where they cannot be told, they are even.
bool ScpiAnalyser::readFrequencies(Network &network)
{
    const int points = m_settings.sweep.points;
    if (m_frequencies.isEmpty()) {
        m_frequencies = evenFrequencies(m_settings.sweep);
        m_port.send(channel(m_dialect->frequencies));
        if (m_wire.peek(s_frequencyTime, false)) {
            const QVector<double> told = m_port.readNumbers(points, m_dialect->byteOrder);
            if (m_wire.ok() && std::all_of(told.cbegin(), told.cend(), isNumber)
                && std::is_sorted(told.cbegin(), told.cend()))
                m_frequencies = told;
        } else if (m_wire.ok()) {
            m_port.takeErrors();
        }
    }
    network.frequencies = m_frequencies;
    return m_wire.ok();
}

bool ScpiAnalyser::readParameter(int index, Network &network)
{
    sendAll(m_dialect->select, m_traces.at(index));
    const bool known = !m_data.isEmpty() || !*m_dialect->otherData;
    m_data = m_data.isEmpty() ? channel(m_dialect->data) : m_data;
    m_port.send(m_data);
    bool isLate = false;
    if (!known && !m_wire.peek(s_frequencyTime, false) && m_wire.ok()) {
        // Late is not never: a block may still come before the error queue's answer.
        m_port.send("SYST:ERR?");
        isLate = m_wire.peek(Wire::shortTime) == '#';
        if (!isLate) {
            m_wire.line();
            m_data = channel(m_dialect->otherData);
            m_port.send(m_data);
        }
    }
    const int points = m_settings.sweep.points;
    const QVector<double> values = m_port.readNumbers(2 * qint64(points), m_dialect->byteOrder);
    if (isLate)
        m_wire.line();
    if (!m_wire.ok())
        return false;
    Parameter parameter{QVector<double>(points), QVector<double>(points)};
    // Bare pointers: there may be a million of them.
    const double *from = values.constData();
    double *const real = parameter.real.data();
    double *const imag = parameter.imag.data();
    bool finite = true;
    for (int i = 0; i < points; ++i, from += 2) {
        finite = finite && isNumber(from[0]) && isNumber(from[1]);
        real[i] = from[0];
        imag[i] = from[1];
    }
    if (!finite)
        m_wire.fail(Trouble::notFinite(m_wire.peer()));
    network.parameters[index] = parameter;
    return m_wire.ok();
}

bool ScpiAnalyser::sweep(Network &network, const Progress &progress)
{
    const int ports = m_traces.size() == 1 ? 1 : 2;
    Network measured;
    measured.name = m_identity;
    measured.ports = ports;
    measured.parameters.resize(ports * ports);
    if (!runSweep(m_settings.acquisition.averages) || !readFrequencies(measured))
        return false;
    for (int i = 0; i < m_traces.size(); ++i) {
        if (!readParameter(i, measured))
            return false;
    }
    network = measured;
    if (progress)
        progress(network, 1.0);
    return m_wire.ok();
}

void ScpiAnalyser::removeTraces()
{
    for (const QByteArray &trace : qAsConst(m_ownTraces))
        sendAll(m_dialect->remove, trace);
    if (!m_ownTraces.isEmpty() && !m_dialect->named && !m_traceCount.isEmpty())
        m_port.send(channel("CALC%c:PAR:COUN ") + m_traceCount);
}

void ScpiAnalyser::end()
{
    m_wire.beginFarewell(500);
    if (!m_dialect || !m_wire.ok())
        return;
    removeTraces();
    if (!m_format.isEmpty()) {
        const QByteArray format = QByteArray(m_dialect->format).chopped(1);
        m_port.send(format + ' ' + m_format.replace("+", ""));
    }
    if (!m_byteOrder.isEmpty())
        m_port.send("FORM:BORD " + m_byteOrder);
    sendAll(m_dialect->runOn);
    // So that the last commands are not lost with the connection.
    m_port.send("*OPC?");
    m_wire.line(500);
}

} // namespace Panel
