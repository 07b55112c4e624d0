// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scpimessage.h"

#include <functional>

namespace Panel
{

class PanelModel;
struct MeasurementSettings;
struct Sweep;
struct Trace;

/*! What a script can do to the panel, for one connection: a table of commands, the error queue, and
    the form that data are asked for in. It knows no socket. */
class PanelCommands
{
public:
    /// The picture of the panel as PNG, for who asks for it.
    PanelCommands(PanelModel *model, const std::function<QByteArray()> &screenshot);

    /// Does what a line says; the answers of its queries stand in one line, empty for none.
    QByteArray execute(const QByteArray &line);
    /// Whether what comes next has to wait for the end of a sweep.
    bool isWaiting() const { return m_waiting; }
    /// A sweep has been measured whole: what waited goes on, and may have an answer.
    QByteArray sweepCompleted();
    /// Notes an error of the connection itself.
    void noteError(int code);

private:
    struct Call {
        const ScpiCommand *command;
        int number; ///< that the header bears
    };
    using Handler = QByteArray (PanelCommands::*)(const Call &call);
    struct Row {
        const char *pattern;
        Handler query; ///< null: cannot be asked
        Handler set; ///< null: cannot be set
    };
    static const Row s_table[];

    QByteArray run(const ScpiCommand &command);
    bool readNumber(const Call &call, double &value);
    bool readSwitch(const Call &call, bool &on);
    const Trace *selected();
    QByteArray written(const QVector<double> &values);
    QByteArray setSweep(const Sweep &sweep);

    QByteArray identify(const Call &call);
    QByteArray clear(const Call &call);
    QByteArray takeStatus(const Call &call);
    QByteArray askComplete(const Call &call);
    QByteArray wait(const Call &call);
    QByteArray nextError(const Call &call);
    QByteArray askStart(const Call &call);
    QByteArray setStart(const Call &call);
    QByteArray askStop(const Call &call);
    QByteArray setStop(const Call &call);
    QByteArray askPoints(const Call &call);
    QByteArray setPoints(const Call &call);
    QByteArray askBandwidth(const Call &call);
    QByteArray setBandwidth(const Call &call);
    QByteArray askPower(const Call &call);
    QByteArray setPower(const Call &call);
    QByteArray askAverages(const Call &call);
    QByteArray setAverages(const Call &call);
    QByteArray askAveraging(const Call &call);
    QByteArray askContinuous(const Call &call);
    QByteArray setContinuous(const Call &call);
    QByteArray initiate(const Call &call);
    QByteArray askTraces(const Call &call);
    QByteArray askSelected(const Call &call);
    QByteArray select(const Call &call);
    QByteArray askData(const Call &call);
    QByteArray askFrequencies(const Call &call);
    QByteArray askFormat(const Call &call);
    QByteArray setFormat(const Call &call);
    QByteArray askByteOrder(const Call &call);
    QByteArray setByteOrder(const Call &call);
    QByteArray askMarker(const Call &call);
    QByteArray setMarker(const Call &call);
    QByteArray askMarkerX(const Call &call);
    QByteArray setMarkerX(const Call &call);
    QByteArray askMarkerY(const Call &call);
    QByteArray askScreenshot(const Call &call);
    QByteArray askPorts(const Call &call);

    PanelModel *m_model;
    std::function<QByteArray()> m_screenshot;
    QList<int> m_errors; ///< by their codes, the oldest first
    int m_status = 0; ///< bits of *ESR?
    bool m_binary = false;
    bool m_bigEndian = true;
    int m_trace = 0; ///< id of the one that was selected; 0: the active one
    bool m_sweeping = false; ///< a sweep was initiated, and has not ended
    bool m_waiting = false;
    bool m_answers = false; ///< once it need not wait any more
    QList<ScpiCommand> m_rest; ///< of the line that waits
};

} // namespace Panel
