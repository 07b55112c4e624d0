// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "programanalyser.h"

#include "linknumbers.h"
#include "linktrouble.h"
#include "programdata.h"
#include "scpi.h"
#include "wire.h"

#include <QThread>

#include <algorithm>
#include <cmath>

namespace Panel
{

namespace
{

/// What an optional answer may take before it is given up, in milliseconds.
constexpr int s_optionalReplyTime = 300;
/// Versions that answer every command tell the end of the sweep before for so long, in milliseconds.
constexpr int s_settleTime = 500;
constexpr int s_pollTime = 20;
/// After which a version that tells the end of a sweep by itself is asked whether it lives.
constexpr int s_operationTime = 1000;
constexpr qint64 s_longestPoint = 96;

bool isIdentity(const QByteArray &line)
{
    return line.startsWith("LibreVNA");
}

} // namespace

/// A command without an answer of interest.
void ProgramAnalyser::tell(const QByteArray &command)
{
    m_wire.send(command + '\n');
    if (m_answersCommands)
        m_wire.line();
}

/// An answer that has to come.
QByteArray ProgramAnalyser::ask(const QByteArray &query)
{
    m_wire.send(query + '\n');
    QByteArray reply = m_wire.line();
    if (m_wire.ok() && (reply.isEmpty() || reply == "ERROR"))
        m_wire.fail(Trouble::refused(m_wire.peer(), query, reply));
    return reply;
}

/// An answer that need not come: nothing for a query that the program does not know.
QByteArray ProgramAnalyser::askOptional(const QByteArray &query)
{
    m_wire.send(query + '\n');
    QByteArray reply;
    if (!m_wire.tryLine(reply, s_optionalReplyTime)) {
        // Late is not never: what comes before the identity is the query's.
        m_wire.send("*IDN?\n");
        for (QByteArray line = m_wire.line(); m_wire.ok() && !isIdentity(line);
             line = m_wire.line())
            reply = line;
    }
    return reply == "ERROR" ? QByteArray() : reply;
}

double ProgramAnalyser::askNumber(const QByteArray &query, double otherwise)
{
    const double value = numberOr(askOptional(query), otherwise);
    return std::isfinite(value) ? value : otherwise;
}

bool ProgramAnalyser::begin()
{
    m_wire.send("*IDN?\n");
    const QByteArray reply = m_wire.line();
    if (m_wire.ok() && !isIdentity(reply))
        m_wire.fail(Trouble::unknownInstrument(m_wire.peer(), reply));
    if (!m_wire.ok())
        return false;
    const QList<QByteArray> fields = identityFields(reply);
    m_identity =
        Trouble::quoted(fields.value(0)) + QLatin1Char(' ') + Trouble::quoted(fields.value(3));
    // A version that answers commands gives itself away by a line more than was asked for.
    m_wire.send(":DEV:MODE VNA\n");
    QByteArray line;
    m_answersCommands = m_wire.tryLine(line, s_optionalReplyTime);
    if (!m_answersCommands) {
        m_wire.send("*IDN?\n");
        for (line = m_wire.line(); m_wire.ok() && !isIdentity(line); line = m_wire.line())
            m_answersCommands = true;
    }
    return m_wire.ok() && findDevice() && readSettings() && findTraces();
}

bool ProgramAnalyser::findDevice()
{
    const auto isThere = [this] {
        const QByteArray serial = askOptional(":DEV:CONN?");
        return !serial.isEmpty() && !serial.toLower().startsWith("not connected");
    };
    if (!isThere()) {
        tell(":DEV:CONN");
        if (m_wire.ok() && !isThere())
            m_wire.fail(Trouble::noDevice(m_wire.peer()));
    }
    tell(":DEV:MODE VNA");
    tell(":VNA:SWEEP FREQUENCY");
    tell(":VNA:SWEEPTYPE LIN");
    m_limits.frequency = {askNumber(":DEV:INF:LIM:MINF?", 100e3),
                          askNumber(":DEV:INF:LIM:MAXF?", 6e9)};
    m_limits.points = {
        2.0, qBound(2.0, askNumber(":DEV:INF:LIM:MAXP?", 65535.0), double(Sweep::maximumPoints))};
    m_limits.bandwidth = {askNumber(":DEV:INF:LIM:MINIFBW?", 10.0),
                          askNumber(":DEV:INF:LIM:MAXIFBW?", 50e3)};
    m_limits.power = {-60.0, 20.0};
    m_limits.averages = {1.0, 100.0};
    m_limits.smallestSpan = 1.0;
    return m_wire.ok();
}

bool ProgramAnalyser::readSettings()
{
    double numbers[3] = {};
    int i = 0;
    for (const char *const query : {":VNA:FREQ:START?", ":VNA:FREQ:STOP?", ":VNA:ACQ:POINTS?"}) {
        const QByteArray reply = ask(query);
        double &value = numbers[i++];
        if (m_wire.ok() && (!readNumber(reply, value) || !std::isfinite(value)))
            m_wire.fail(Trouble::unreadable(m_wire.peer(), reply));
    }
    if (m_wire.ok() && !(numbers[2] >= 1.0 && numbers[2] <= Sweep::maximumPoints))
        m_wire.fail(Trouble::otherPoints(m_wire.peer(), qint64(numbers[2]), Sweep::maximumPoints));
    if (!m_wire.ok())
        return false;
    m_settings.sweep = {numbers[0], numbers[1], int(numbers[2])};
    Acquisition &acquisition = m_settings.acquisition;
    acquisition.bandwidth = askNumber(":VNA:ACQ:IFBW?", qQNaN());
    acquisition.power = askNumber(":VNA:STIM:LVL?", qQNaN());
    acquisition.averages = int(m_limits.averages.bounded(askNumber(":VNA:ACQ:AVG?", 1.0)));
    if (std::isnan(acquisition.power))
        m_limits.power = {};
    return m_wire.ok();
}

bool ProgramAnalyser::apply(const MeasurementSettings &wanted)
{
    const auto number = [](double value) { return QByteArray::number(value, 'g', 15); };
    const Acquisition now = m_settings.acquisition;
    const Acquisition next = m_limits.bounded(wanted.acquisition);
    const Sweep &sweep = wanted.sweep;
    if (sweep != m_settings.sweep) {
        // A stop below the start that is there, or a start above its stop, would move it.
        const bool upwards = sweep.start >= m_settings.sweep.stop;
        for (const bool stop : {upwards, !upwards})
            tell(stop ? ":VNA:FREQ:STOP " + number(sweep.stop)
                      : ":VNA:FREQ:START " + number(sweep.start));
        tell(":VNA:ACQ:POINTS " + QByteArray::number(sweep.points));
    }
    if (next.bandwidth != now.bandwidth && !std::isnan(next.bandwidth))
        tell(":VNA:ACQ:IFBW " + number(next.bandwidth));
    if (next.power != now.power && !std::isnan(next.power))
        tell(":VNA:STIM:LVL " + number(next.power));
    if (next.averages != now.averages)
        tell(":VNA:ACQ:AVG " + QByteArray::number(next.averages));
    return m_wire.ok() && readSettings();
}

bool ProgramAnalyser::findTraces()
{
    const QByteArray reply = ask(":VNA:TRAC:LIST?");
    m_traces = {QByteArray(), QByteArray(), QByteArray(), QByteArray()};
    const QList<QByteArray> names = reply.split(',');
    for (const QByteArray &name : names) {
        if (!m_wire.ok())
            return false;
        const QByteArray shown = askOptional(":VNA:TRAC:PARAM? " + name.trimmed()).toUpper();
        for (int i = 0; i < m_traces.size(); ++i) {
            if (shown == parameters[i] && m_traces.at(i).isEmpty())
                m_traces[i] = name.trimmed();
        }
    }
    if (m_traces.first().isEmpty())
        m_wire.fail(Trouble::refused(m_wire.peer(), "S11", reply));
    return m_wire.ok();
}

/// Waits until a newer version says that nothing is under way any more; other answers may overtake
/// that one. Older versions, and those without a device, say it at once.
bool ProgramAnalyser::awaitOperation()
{
    const QByteArray done = "1";
    QElapsedTimer clock;
    clock.start();
    m_wire.send("*OPC?\n");
    int asked = 0, finished = 0;
    QByteArray line;
    while (line != done && m_wire.ok()) {
        if (!m_wire.tryLine(line, s_operationTime) && m_wire.ok()) {
            // Does it still answer at all?
            m_wire.send(":VNA:ACQ:FIN?\n");
            ++asked;
            line = m_wire.line();
        }
        if (line == done || !m_wire.ok())
            break;
        --asked;
        finished += line.toUpper() == "TRUE" ? 1 : 0;
        if (finished == 2)
            return true; // it does not know the question
        if (double(clock.elapsed()) > expectedTime() + sweepGrace)
            m_wire.fail(Trouble::neverEnds(m_wire.peer()));
    }
    while (asked-- > 0 && m_wire.ok())
        m_wire.line();
    return m_wire.ok();
}

/// What a sweep may take, in milliseconds.
double ProgramAnalyser::expectedTime() const
{
    const Acquisition &acquisition = m_settings.acquisition;
    const double bandwidth =
        std::isnan(acquisition.bandwidth) ? 1e3 : qMax(1.0, acquisition.bandwidth);
    return 1e3 * m_settings.sweep.points * acquisition.averages * (2e-4 + 6.0 / bandwidth);
}

/// Waits for the end of a sweep; what newer versions say of it is true, what older ones say at first
/// may be of the sweep before.
bool ProgramAnalyser::awaitSweep(const Network &network, const Progress &progress)
{
    const double expected = expectedTime();
    QElapsedTimer clock;
    clock.start();
    bool sawRunning = !m_answersCommands;
    while (m_wire.ok()) {
        const QByteArray reply = ask(":VNA:ACQ:FIN?").toUpper();
        const bool finished = reply == "TRUE" || reply == "1";
        if (m_wire.ok() && !finished && reply != "FALSE" && reply != "0")
            m_wire.fail(Trouble::unreadable(m_wire.peer(), reply));
        sawRunning = sawRunning || !finished || clock.elapsed() > s_settleTime;
        if (finished && sawRunning)
            return m_wire.ok();
        if (double(clock.elapsed()) > expected + sweepGrace)
            m_wire.fail(Trouble::neverEnds(m_wire.peer()));
        else if (m_wire.isCancelled())
            m_wire.fail(QString());
        if (m_wire.ok() && clock.elapsed() > qint64(5) * s_pollTime) {
            if (progress)
                progress(network, qMin(0.95, double(clock.elapsed()) / expected));
            QThread::msleep(s_pollTime);
        }
    }
    return false;
}

bool ProgramAnalyser::sweep(Network &network, const Progress &progress)
{
    tell(":VNA:ACQ:STOP");
    tell(":VNA:ACQ:SINGLE TRUE");
    if (!m_answersCommands && !awaitOperation())
        return false;
    const bool twoPorts = std::any_of(m_traces.cbegin() + 1, m_traces.cend(),
                                      [](const QByteArray &name) { return !name.isEmpty(); });
    Network measured;
    prepare(measured, twoPorts ? 2 : 1);
    if (!awaitSweep(network.points() > 0 ? network : measured, progress))
        return false;
    const int points = m_settings.sweep.points;
    for (int i = 0; i < measured.parameters.size(); ++i) {
        Parameter &parameter = measured.parameters[i];
        if (m_traces.at(i).isEmpty()) {
            // A trace that the program does not have.
            parameter.real.fill(0.0);
            parameter.imag.fill(0.0);
            measured.comments = {{0, QStringLiteral("What is zero everywhere was not measured.")}};
            continue;
        }
        m_wire.send(":VNA:TRAC:DATA? " + m_traces.at(i) + '\n');
        const QByteArray reply = m_wire.longLine(points * s_longestPoint + 256);
        if (!m_wire.ok())
            return false;
        const ProgramTrace trace =
            parseProgramTrace(reply == "EMPTY" ? QByteArray() : reply, points);
        if (!trace.readable)
            m_wire.fail(Trouble::unreadable(m_wire.peer(), reply));
        else if (trace.real.size() != points)
            m_wire.fail(Trouble::otherPoints(m_wire.peer(), trace.real.size(), points));
        const auto finite = [](double value) { return std::isfinite(value); };
        if (!std::all_of(trace.real.cbegin(), trace.real.cend(), finite)
            || !std::all_of(trace.imag.cbegin(), trace.imag.cend(), finite)
            || !std::all_of(trace.frequencies.cbegin(), trace.frequencies.cend(), finite))
            m_wire.fail(Trouble::notFinite(m_wire.peer()));
        if (!m_wire.ok())
            return false;
        parameter = {trace.real, trace.imag};
        if (i == 0 && !agree(trace.frequencies, measured.frequencies)
            && std::is_sorted(trace.frequencies.cbegin(), trace.frequencies.cend()))
            measured.frequencies = trace.frequencies;
    }
    network = measured;
    if (progress)
        progress(network, 1.0);
    return m_wire.ok();
}

void ProgramAnalyser::end()
{
    m_wire.beginFarewell(500);
    if (!m_wire.ok() || m_traces.isEmpty())
        return;
    tell(":VNA:ACQ:SINGLE FALSE");
    tell(":VNA:ACQ:RUN");
    // So that the last commands are not lost with the connection.
    m_wire.send("*IDN?\n");
    m_wire.line(500);
}

} // namespace Panel
