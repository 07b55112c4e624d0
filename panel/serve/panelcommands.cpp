// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelcommands.h"

#include "scpierror.h"
#include <panel/model/panelmodel.h>

#include <QCoreApplication>

#include <cmath>

namespace Panel
{

namespace
{

constexpr int s_maximumErrors = 16;
struct ErrorText {
    int code;
    const char *text;
};
constexpr ErrorText s_errorTexts[] = {
    {0, "No error"},
    {DataTypeError, "Data type error"},
    {MissingParameter, "Missing parameter"},
    {HeaderError, "Undefined header"},
    {SettingsConflict, "Settings conflict"},
    {OutOfRange, "Data out of range"},
    {IllegalValue, "Illegal parameter value"},
    {NoData, "Data corrupt or stale"},
    {QueueOverflow, "Queue overflow"},
    {InputOverflow, "Input buffer overrun"},
};

constexpr int s_commandBit = 32;
constexpr int s_executionBit = 16;
constexpr int s_completeBit = 1;

/// "1 GHz" as instruments take it.
bool parseNumber(const QByteArray &word, double &value)
{
    static const std::pair<const char *, double> units[] = {
        {"GHZ", 1e9}, {"MHZ", 1e6}, {"KHZ", 1e3}, {"HZ", 1.0}, {"DBM", 1.0}, {"", 1.0}};
    const QByteArray text = word.toUpper();
    for (const auto &[unit, size] : units) {
        if (!text.endsWith(unit))
            continue;
        bool ok = false;
        value = text.left(text.size() - int(qstrlen(unit))).trimmed().toDouble(&ok) * size;
        return ok && std::isfinite(value);
    }
    return false;
}

} // namespace

const PanelCommands::Row PanelCommands::s_table[] = {
    {"*IDN", &PanelCommands::identify, nullptr},
    {"*CLS", nullptr, &PanelCommands::clear},
    {"*ESR", &PanelCommands::takeStatus, nullptr},
    {"*OPC", &PanelCommands::askComplete, &PanelCommands::wait},
    {"*WAI", nullptr, &PanelCommands::wait},
    {"SYSTem:ERRor[:NEXT]", &PanelCommands::nextError, nullptr},
    {"[SENSe:]FREQuency:STARt", &PanelCommands::askStart, &PanelCommands::setStart},
    {"[SENSe:]FREQuency:STOP", &PanelCommands::askStop, &PanelCommands::setStop},
    {"[SENSe:]FREQuency:DATA", &PanelCommands::askFrequencies, nullptr},
    {"[SENSe:]SWEep:POINts", &PanelCommands::askPoints, &PanelCommands::setPoints},
    {"[SENSe:]BWIDth[:RESolution]", &PanelCommands::askBandwidth, &PanelCommands::setBandwidth},
    {"[SENSe:]BANDwidth[:RESolution]", &PanelCommands::askBandwidth, &PanelCommands::setBandwidth},
    {"[SENSe:]AVERage:COUNt", &PanelCommands::askAverages, &PanelCommands::setAverages},
    {"[SENSe:]AVERage[:STATe]", &PanelCommands::askAveraging, nullptr},
    {"SOURce:POWer[:LEVel]", &PanelCommands::askPower, &PanelCommands::setPower},
    {"INITiate:CONTinuous", &PanelCommands::askContinuous, &PanelCommands::setContinuous},
    {"INITiate[:IMMediate]", nullptr, &PanelCommands::initiate},
    {"CALCulate:PARameter:CATalog[:EXTended]", &PanelCommands::askTraces, nullptr},
    {"CALCulate:PARameter:SELect", &PanelCommands::askSelected, &PanelCommands::select},
    {"CALCulate:DATA", &PanelCommands::askData, nullptr},
    {"CALCulate:DATA:STIMulus", &PanelCommands::askFrequencies, nullptr},
    {"CALCulate:MARKer#[:STATe]", &PanelCommands::askMarker, &PanelCommands::setMarker},
    {"CALCulate:MARKer#:X", &PanelCommands::askMarkerX, &PanelCommands::setMarkerX},
    {"CALCulate:MARKer#:Y", &PanelCommands::askMarkerY, nullptr},
    {"FORMat[:DATA]", &PanelCommands::askFormat, &PanelCommands::setFormat},
    {"FORMat:BORDer", &PanelCommands::askByteOrder, &PanelCommands::setByteOrder},
    {"HCOPy:DATA", &PanelCommands::askScreenshot, nullptr},
    {"INSTrument:PORT:COUNt", &PanelCommands::askPorts, nullptr},
};

PanelCommands::PanelCommands(PanelModel *model, const std::function<QByteArray()> &screenshot)
    : m_model(model)
    , m_screenshot(screenshot)
{
}

void PanelCommands::noteError(int code)
{
    const bool command = code > -200;
    m_status |= command ? s_commandBit : s_executionBit;
    if (m_errors.size() < s_maximumErrors)
        m_errors << code;
    else
        m_errors.last() = QueueOverflow;
}

QByteArray PanelCommands::run(const ScpiCommand &command)
{
    for (const Row &row : s_table) {
        int number = 1;
        if (!matches(command.header, row.pattern, number))
            continue;
        const Handler handler = command.query ? row.query : row.set;
        if (handler)
            return (this->*handler)({&command, number});
    }
    noteError(HeaderError);
    return {};
}

QByteArray PanelCommands::execute(const QByteArray &line)
{
    m_rest = parseCommands(line);
    QByteArray answers;
    while (!m_rest.isEmpty() && !m_waiting) {
        const QByteArray answer = run(m_rest.takeFirst());
        if (!answer.isEmpty())
            answers += answers.isEmpty() ? answer : ';' + answer;
    }
    return answers;
}

QByteArray PanelCommands::sweepCompleted()
{
    m_sweeping = false;
    if (!std::exchange(m_waiting, false))
        return {};
    QByteArray answers = std::exchange(m_answers, false) ? QByteArray("1") : QByteArray();
    while (!m_rest.isEmpty() && !m_waiting) {
        const QByteArray answer = run(m_rest.takeFirst());
        if (!answer.isEmpty())
            answers += answers.isEmpty() ? answer : ';' + answer;
    }
    return answers;
}

/// The number that a command brings; otherwise its error.
bool PanelCommands::readNumber(const Call &call, double &value)
{
    const QByteArrayList &words = call.command->words;
    if (words.isEmpty())
        noteError(MissingParameter);
    else if (!parseNumber(words.first(), value))
        noteError(DataTypeError);
    else
        return true;
    return false;
}

bool PanelCommands::readSwitch(const Call &call, bool &on)
{
    const QByteArray word = call.command->words.value(0).toUpper();
    on = word == "ON" || word == "1";
    if (on || word == "OFF" || word == "0")
        return true;
    noteError(word.isEmpty() ? MissingParameter : IllegalValue);
    return false;
}

// What every instrument answers

QByteArray PanelCommands::identify(const Call &)
{
    return "VnaWidgets,vnapanel,0," + QCoreApplication::applicationVersion().toLatin1();
}

QByteArray PanelCommands::clear(const Call &)
{
    m_errors.clear();
    m_status = 0;
    return {};
}

QByteArray PanelCommands::takeStatus(const Call &)
{
    return QByteArray::number(std::exchange(m_status, 0));
}

QByteArray PanelCommands::askComplete(const Call &)
{
    m_waiting = m_sweeping;
    m_answers = m_sweeping;
    return m_sweeping ? QByteArray() : QByteArray("1");
}

QByteArray PanelCommands::wait(const Call &call)
{
    if (call.command->header.toUpper() == "*OPC")
        m_status |= s_completeBit;
    else
        m_waiting = m_sweeping;
    return {};
}

QByteArray PanelCommands::nextError(const Call &)
{
    const int code = m_errors.isEmpty() ? 0 : m_errors.takeFirst();
    for (const ErrorText &error : s_errorTexts) {
        if (error.code == code)
            return QByteArray::number(code) + ",\"" + error.text + '"';
    }
    return "-300,\"Device-specific error\"";
}

// The sweep

/// Takes a sweep, or notes why not.
QByteArray PanelCommands::setSweep(const Sweep &sweep)
{
    if (!m_model->sourceLimits().measures())
        noteError(SettingsConflict);
    else if (!m_model->sourceLimits().allow(sweep))
        noteError(OutOfRange);
    else
        m_model->setSweep(sweep);
    return {};
}

QByteArray PanelCommands::askStart(const Call &)
{
    const Trace *trace = selected();
    return trace ? scpiNumber(m_model->stimulus(*trace).start) : QByteArray();
}

QByteArray PanelCommands::setStart(const Call &call)
{
    Sweep sweep = m_model->sweep();
    if (!readNumber(call, sweep.start))
        return {};
    // As on the keypad, an end takes the other one along.
    const SourceLimits &limits = m_model->sourceLimits();
    sweep.stop = qMax(sweep.stop, sweep.start + limits.smallestSpan);
    return setSweep(sweep);
}

QByteArray PanelCommands::askStop(const Call &)
{
    const Trace *trace = selected();
    return trace ? scpiNumber(m_model->stimulus(*trace).stop) : QByteArray();
}

QByteArray PanelCommands::setStop(const Call &call)
{
    Sweep sweep = m_model->sweep();
    if (!readNumber(call, sweep.stop))
        return {};
    const SourceLimits &limits = m_model->sourceLimits();
    sweep.start = qMin(sweep.start, sweep.stop - limits.smallestSpan);
    return setSweep(sweep);
}

QByteArray PanelCommands::askPoints(const Call &)
{
    const Trace *trace = selected();
    return trace ? QByteArray::number(m_model->network(*trace).points()) : QByteArray();
}

QByteArray PanelCommands::setPoints(const Call &call)
{
    Sweep sweep = m_model->sweep();
    double points = 0.0;
    if (!readNumber(call, points))
        return {};
    sweep.points = int(NumberRange{0.0, 1e9}.bounded(points));
    return setSweep(sweep);
}

QByteArray PanelCommands::askBandwidth(const Call &)
{
    return scpiNumber(m_model->acquisition().bandwidth);
}

QByteArray PanelCommands::setBandwidth(const Call &call)
{
    Acquisition acquisition = m_model->acquisition();
    if (!readNumber(call, acquisition.bandwidth))
        return {};
    if (m_model->sourceLimits().bandwidth.holds(acquisition.bandwidth))
        m_model->setAcquisition(acquisition);
    else
        noteError(OutOfRange);
    return {};
}

QByteArray PanelCommands::askPower(const Call &)
{
    return scpiNumber(m_model->acquisition().power);
}

QByteArray PanelCommands::setPower(const Call &call)
{
    Acquisition acquisition = m_model->acquisition();
    if (!readNumber(call, acquisition.power))
        return {};
    if (m_model->sourceLimits().power.holds(acquisition.power))
        m_model->setAcquisition(acquisition);
    else
        noteError(OutOfRange);
    return {};
}

QByteArray PanelCommands::askAverages(const Call &)
{
    return QByteArray::number(m_model->acquisition().averages);
}

QByteArray PanelCommands::setAverages(const Call &call)
{
    double count = 0.0;
    if (!readNumber(call, count))
        return {};
    Acquisition acquisition = m_model->acquisition();
    if (!m_model->sourceLimits().averages.holds(count)) {
        noteError(OutOfRange);
        return {};
    }
    acquisition.averages = int(count);
    m_model->setAcquisition(acquisition);
    return {};
}

QByteArray PanelCommands::askAveraging(const Call &)
{
    return m_model->acquisition().averages > 1 ? "1" : "0";
}

QByteArray PanelCommands::askContinuous(const Call &)
{
    return m_model->isSweeping() && m_model->sourceLimits().measures() ? "1" : "0";
}

QByteArray PanelCommands::setContinuous(const Call &call)
{
    bool on = false;
    if (readSwitch(call, on))
        m_model->setSweeping(on);
    return {};
}

QByteArray PanelCommands::initiate(const Call &)
{
    if (!m_model->sourceLimits().measures()) {
        noteError(SettingsConflict);
        return {};
    }
    m_sweeping = true;
    m_model->sweepOnce();
    return {};
}

} // namespace Panel
