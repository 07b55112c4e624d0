// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "linkedmeasurement.h"

#include "commandline.h"
#include <panel/link/linklog.h>
#include <panel/link/linksession.h>
#include <panel/link/wire.h>
#include <panel/touchstone/saving.h>

#include <QCoreApplication>

#include <cmath>
#include <csignal>

namespace Panel
{

namespace
{

struct MeasurementText {
    Q_DECLARE_TR_FUNCTIONS(Panel::LinkedMeasurement)
};

std::atomic_bool s_cancel{false};

extern "C" void cancelMeasurement(int)
{
    s_cancel = true;
}

/// The settings that were asked for in place of the instrument's own.
MeasurementSettings wanted(const MeasurementSettings &own, const CommandLine &commandLine)
{
    MeasurementSettings settings = own;
    Sweep &sweep = settings.sweep;
    sweep.start = std::isnan(commandLine.start) ? sweep.start : commandLine.start;
    sweep.stop = std::isnan(commandLine.stop) ? sweep.stop : commandLine.stop;
    sweep.points = commandLine.points > 0 ? commandLine.points : sweep.points;
    return settings;
}

/// Sets the sweep; a sentence if the instrument makes another of it.
QString setSweep(Analyser &analyser, const Wire &wire, const MeasurementSettings &settings)
{
    if (!analyser.apply(settings))
        return wire.trouble();
    const Sweep &asked = settings.sweep;
    const Sweep &taken = analyser.settings().sweep;
    const double tolerance = 1.0 + 1e-6 * asked.stop;
    if (std::abs(asked.start - taken.start) <= tolerance
        && std::abs(asked.stop - taken.stop) <= tolerance && asked.points == taken.points)
        return {};
    return MeasurementText::tr(
               "%1 does not take this sweep, but goes from %2 to %3 Hz with %4 points.")
        .arg(wire.peer())
        .arg(taken.start, 0, 'f', 0)
        .arg(taken.stop, 0, 'f', 0)
        .arg(taken.points);
}

/// A file of one port takes the reflection alone.
Network fitting(const Network &network, const QString &path)
{
    Network result = network;
    if (network.ports == 2 && path.endsWith(QLatin1String(".s1p"), Qt::CaseInsensitive)) {
        result.ports = 1;
        result.parameters.resize(1);
        result.comments.clear();
    }
    return result;
}

} // namespace

QString measureAndSave(const CommandLine &commandLine)
{
    std::signal(SIGINT, cancelMeasurement);
    std::signal(SIGTERM, cancelMeasurement);
    LinkAddress address;
    QString error;
    if (!parseLinkAddress(commandLine.instrument, address, error))
        return error;
    LinkLog log;
    if (!commandLine.linkLog.isEmpty() && !log.open(commandLine.linkLog))
        return MeasurementText::tr("%1: the log cannot be written.").arg(commandLine.linkLog);
    Network network;
    {
        LinkSession session(address, &log, &s_cancel);
        if (!session.open())
            return session.trouble();
        Analyser &analyser = *session.analyser();
        const MeasurementSettings settings = wanted(analyser.settings(), commandLine);
        if (settings != analyser.settings())
            error = setSweep(analyser, *session.wire(), settings);
        for (int i = 0; i < commandLine.sweeps && error.isEmpty(); ++i) {
            if (!analyser.sweep(network, {}))
                error = s_cancel ? MeasurementText::tr("The measurement was cancelled.")
                                 : session.trouble();
        }
    }
    return error.isEmpty()
        ? saveNetwork(commandLine.saveFile, fitting(network, commandLine.saveFile),
                      {commandLine.touchstoneVersion, commandLine.overwrite})
        : error;
}

} // namespace Panel
