// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ratiotable.h"

#include <QDateTime>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>

#include <algorithm>
#include <cstdio>
#include <limits>
#include <thread>

namespace Bench
{

namespace
{

/// The processor's own name, where the system tells it.
QString processor()
{
    QFile file(QStringLiteral("/proc/cpuinfo"));
    if (file.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = file.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith("model name"))
                return QString::fromLatin1(line.mid(line.indexOf(':') + 1).trimmed());
        }
    }
    return QSysInfo::currentCpuArchitecture();
}

QString machine()
{
    return QStringLiteral("%1, %2 threads, %3")
        .arg(processor(), QString::number(std::thread::hardware_concurrency()),
             QSysInfo::prettyProductName());
}

std::string target(const RatioTable::Row &row)
{
    char text[32];
    switch (row.kind) {
    case RatioTable::Row::TimesFaster:
        std::snprintf(text, sizeof text, ">= %g x", row.target);
        break;
    case RatioTable::Row::ShareOfTime:
    case RatioTable::Row::ShareOfRest:
        std::snprintf(text, sizeof text, "<= %g x", row.target);
        break;
    case RatioTable::Row::Frame:
        std::snprintf(text, sizeof text, "< %g ms", row.target);
        break;
    case RatioTable::Row::Milliseconds:
        std::snprintf(text, sizeof text, "<= %g ms", row.target);
        break;
    case RatioTable::Row::BytesAPoint:
        std::snprintf(text, sizeof text, "<= %g B/point", row.target);
        break;
    case RatioTable::Row::Mebibytes:
        std::snprintf(text, sizeof text, "<= %g MiB", row.target);
        break;
    }
    return text;
}

} // namespace

void RatioTable::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.error_occurred)
            std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(),
                         run.error_message.c_str());
        if (run.error_occurred || run.aggregate_name != "median")
            continue;
        Measured &measured = m_medians[run.run_name.function_name];
        measured.milliseconds =
            run.run_name.time_type.empty() ? run.GetAdjustedCPUTime() : run.GetAdjustedRealTime();
        for (const auto &[name, counter] : run.counters)
            measured.counters[name] = counter.value;
        // Counters too: "kept" shows that the peers did the same work.
        std::fprintf(stderr, "%s: %.4g ms", run.run_name.function_name.c_str(),
                     measured.milliseconds);
        for (const auto &[name, value] : measured.counters)
            std::fprintf(stderr, ", %s %.6g", name.c_str(), value);
        std::fprintf(stderr, "\n");
    }
}

const RatioTable::Measured *RatioTable::find(const std::string &name) const
{
    const auto it = m_medians.find(name);
    return it == m_medians.end() ? nullptr : &it->second;
}

/// The rows all of whose parts were measured.
std::vector<RatioTable::Outcome> RatioTable::outcomes() const
{
    std::vector<Outcome> outcomes;
    for (const Row &row : m_rows) {
        const Measured *const ours = find(row.ours);
        double fastest = std::numeric_limits<double>::infinity();
        for (const std::string &other : row.others) {
            const Measured *const measured = find(other);
            fastest = measured ? std::min(fastest, measured->milliseconds) : -1.0;
        }
        if (!ours || fastest < 0.0)
            continue;
        switch (row.kind) {
        case Row::TimesFaster: {
            const double ratio = fastest / ours->milliseconds;
            outcomes.push_back({&row, ratio, ratio >= row.target});
            break;
        }
        case Row::ShareOfTime: {
            const double share = ours->milliseconds / fastest;
            outcomes.push_back({&row, share, share <= row.target});
            break;
        }
        case Row::ShareOfRest: {
            const Measured *const base = find(row.base);
            const Measured *const otherBase = find(row.otherBase);
            if (!base || !otherBase)
                break;
            const double share =
                (ours->milliseconds - base->milliseconds) / (fastest - otherBase->milliseconds);
            outcomes.push_back({&row, share, share <= row.target});
            break;
        }
        case Row::Frame:
            outcomes.push_back({&row, ours->milliseconds,
                                ours->milliseconds < row.target || fastest >= row.target});
            break;
        case Row::Milliseconds:
            outcomes.push_back({&row, ours->milliseconds, ours->milliseconds <= row.target});
            break;
        case Row::BytesAPoint:
        case Row::Mebibytes: {
            const bool ofPoint = row.kind == Row::BytesAPoint;
            const double bytes = ours->counters.at(ofPoint ? "bytes_a_point" : "mebibytes");
            outcomes.push_back({&row, bytes, bytes <= row.target});
            break;
        }
        }
    }
    return outcomes;
}

void RatioTable::print() const
{
    std::printf("%s\n\n", qPrintable(machine()));
    std::printf("%-42s %10s  %-36s %14s %15s  %s\n", "work", "points", "ours | others (ms)",
                "ratio", "must reach", "reached");
    for (const Outcome &outcome : outcomes()) {
        const Row &row = *outcome.row;
        char text[64];
        std::snprintf(text, sizeof text, "%.4g |", find(row.ours)->milliseconds);
        const bool timed = row.kind != Row::BytesAPoint && row.kind != Row::Mebibytes;
        std::string times = timed ? std::string(text) : std::string();
        for (const std::string &other : row.others) {
            std::snprintf(text, sizeof text, " %.4g", find(other)->milliseconds);
            times += text;
        }
        std::snprintf(text, sizeof text, "%.4g %s", outcome.value,
                      row.kind == Row::Frame || row.kind == Row::Milliseconds ? "ms"
                          : timed                                             ? "x"
                          : row.kind == Row::BytesAPoint                      ? "B/point"
                                                                              : "MiB");
        const std::string points = row.points ? std::to_string(row.points) : std::string();
        std::printf("%-42s %10s  %-36s %14s %15s  %s\n", row.work.c_str(), points.c_str(),
                    times.c_str(), text, target(row).c_str(), outcome.reached ? "yes" : "no");
    }
}

bool RatioTable::writeJson(const QString &fileName) const
{
    QJsonArray rows;
    for (const Outcome &outcome : outcomes()) {
        const Row &row = *outcome.row;
        QJsonObject object{{QStringLiteral("work"), QString::fromStdString(row.work)},
                           {QStringLiteral("points"), row.points},
                           {QStringLiteral("value"), outcome.value},
                           {QStringLiteral("mustReach"), QString::fromStdString(target(row))},
                           {QStringLiteral("reached"), outcome.reached}};
        QJsonObject times;
        std::vector<std::string> names = row.others;
        names.push_back(row.ours);
        for (const std::string &name : names)
            times.insert(QString::fromStdString(name), find(name)->milliseconds);
        object.insert(QStringLiteral("medianMs"), times);
        rows.append(object);
    }
    const QJsonObject document{
        {QStringLiteral("date"), QDateTime::currentDateTimeUtc().toString(Qt::ISODate)},
        {QStringLiteral("machine"), machine()},
        {QStringLiteral("rows"), rows}};
    const QByteArray bytes = QJsonDocument(document).toJson();
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace Bench
