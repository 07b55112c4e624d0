// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "files.h"

#include <panel/touchstone/touchstone.h>
#include <panel/touchstone/touchstonewriter.h>

#include <QFile>
#include <QTemporaryDir>

#include <malloc.h>

#include <algorithm>
#include <charconv>
#include <random>
#include <string_view>
#include <vector>

namespace Bench
{

namespace
{

/// A value of /proc/self/status in bytes.
double processMemory(const char *name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    status.open(QIODevice::ReadOnly);
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(name))
            return line.simplified().split(' ').value(1).toDouble() * 1024.0;
    }
    return 0.0;
}

/// From here on the maximum that the process has held is what it holds now.
void forgetPeakMemory()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    file.open(QIODevice::WriteOnly);
    file.write("5");
}

Panel::Network noisyNetwork(int points)
{
    std::mt19937_64 random(1);
    std::normal_distribution<double> noise(0.0, 0.3);
    Panel::Network network;
    network.ports = 2;
    network.parameters.resize(4);
    for (int i = 0; i < points; ++i) {
        network.frequencies.append(1e6 + i * 1000.0);
        for (Panel::Parameter &parameter : network.parameters) {
            parameter.real.append(noise(random));
            parameter.imag.append(noise(random));
        }
    }
    return network;
}

} // namespace

QString longFile(int points)
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("%1.s2p").arg(points));
    QFile file(path);
    if (!file.exists() && file.open(QIODevice::WriteOnly))
        Panel::writeTouchstone(file, noisyNetwork(points), 1);
    return path;
}

void readNetwork(benchmark::State &state, int points)
{
    const QString path = longFile(points);
    double bytes = 0.0;
    for (auto _ : state) {
        state.PauseTiming();
        malloc_trim(0);
        forgetPeakMemory();
        const double before = processMemory("VmRSS:");
        state.ResumeTiming();
        const Panel::TouchstoneResult result = Panel::readTouchstone(path);
        bytes = processMemory("VmHWM:") - before;
        if (result.network.points() != points) {
            state.SkipWithError("the file cannot be read");
            return;
        }
    }
    state.counters["bytes_a_point"] = bytes / points;
}

void readNumbers(benchmark::State &state, int points)
{
    const QString path = longFile(points);
    std::vector<char> block(1 << 18);
    for (auto _ : state) {
        QFile file(path);
        file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
        // Lines without numbers come first, and are few.
        while (file.peek(1) == "!" || file.peek(1) == "#")
            file.readLine();
        double sum = 0.0;
        qint64 left = 0;
        qint64 count = 0;
        while ((count = file.read(block.data() + left, qint64(block.size()) - left)) > 0) {
            // A number at the end of the block may go on in the next.
            const std::string_view text(block.data(), std::size_t(left + count));
            const char *const stop = text.data() + text.rfind('\n') + 1;
            const char *at = text.data();
            while (at != stop) {
                double value = 0.0;
                if (*at == ' ' || *at == '\n')
                    ++at;
                else
                    at = std::from_chars(at, stop, value).ptr;
                sum += value;
            }
            left = text.data() + text.size() - stop;
            std::copy_n(stop, left, block.data());
        }
        benchmark::DoNotOptimize(sum);
    }
}

} // namespace Bench
