// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "soakfigures.h"

#include "census.h"
#include "process.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <unistd.h>

namespace Soak
{

namespace
{

constexpr double wholeHours = 72.0;
constexpr int fewestHours = 12;
/// What may be more after 72 hours.
constexpr double heapBoundKiB = 1024.0;
constexpr double residentBoundKiB = 8192.0;
constexpr double countBound = 1.0;
/// Last quarter of the hours to the first one; compilers beside it alone make a frame 1.3 times as long.
constexpr double timeBound = 1.5;

int entries(const QString &folder)
{
    return int(
        QDir(folder).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size());
}

double residentKiB()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0.0;
    return file.readAll().split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / 1024.0;
}

template<typename Value>
QVector<double> column(const QVector<Figures> &hours, Value Figures::*value)
{
    QVector<double> values;
    for (const Figures &hour : hours)
        values << double(hour.*value);
    return values;
}

void judgeSlope(const QVector<double> &values, double bound, const char *what, QStringList &grown)
{
    const double rise = robustSlope(values) * wholeHours;
    if (rise > bound)
        grown << QStringLiteral("%1 rises by %2 in 72 hours, where %3 are allowed")
                     .arg(QLatin1String(what))
                     .arg(rise, 0, 'f', 1)
                     .arg(bound);
}

void judgeLevel(const QVector<double> &values, const char *what, QStringList &grown)
{
    for (int i = 1; i < values.size(); ++i) {
        if (values.at(i) != values.first()) {
            grown << QStringLiteral("there are %1 %2, and were %3")
                         .arg(values.at(i))
                         .arg(QLatin1String(what))
                         .arg(values.first());
            return;
        }
    }
}

} // namespace

Figures Figures::now()
{
    Figures figures;
    figures.heapKiB = Fuzz::heapKiB();
    figures.residentKiB = Soak::residentKiB();
    // The folder that is read is open meanwhile, each time.
    figures.descriptors = entries(QStringLiteral("/proc/self/fd"));
    figures.threads = entries(QStringLiteral("/proc/self/task"));
    figures.objects = Fuzz::Census::allObjects();
    figures.widgets = int(QApplication::allWidgets().size());
    return figures;
}

double median(QVector<double> values)
{
    if (values.isEmpty())
        return 0.0;
    const auto middle = values.begin() + values.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double robustSlope(const QVector<double> &values)
{
    QVector<double> slopes;
    for (int i = 0; i < values.size(); ++i) {
        for (int j = i + 1; j < values.size(); ++j)
            slopes << (values.at(j) - values.at(i)) / (j - i);
    }
    return median(slopes);
}

QStringList growth(const QVector<Figures> &hours, bool judgesTime)
{
    const QVector<Figures> warm = hours.mid((hours.size() + 5) / 6);
    QStringList grown;
    judgeLevel(column(warm, &Figures::descriptors), "descriptors", grown);
    judgeLevel(column(warm, &Figures::threads), "threads", grown);
    if (hours.size() < fewestHours)
        return grown;
    judgeSlope(column(warm, &Figures::heapKiB), heapBoundKiB, "the heap in use, in KiB,", grown);
    judgeSlope(column(warm, &Figures::residentKiB), residentBoundKiB, "the memory, in KiB,", grown);
    judgeSlope(column(warm, &Figures::objects), countBound, "the number of objects", grown);
    judgeSlope(column(warm, &Figures::widgets), countBound, "the number of widgets", grown);
    const int quarter = int(warm.size()) / 4;
    const QVector<double> times = column(warm, &Figures::frameMs);
    const double ratio = median(times.mid(times.size() - quarter)) / median(times.mid(0, quarter));
    if (judgesTime && !(ratio < timeBound))
        grown << QStringLiteral("a frame takes %1 times as long as at first").arg(ratio, 0, 'f', 2);
    return grown;
}

} // namespace Soak
