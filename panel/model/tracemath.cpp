// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tracemath.h"

#include <QCoreApplication>
#include <QtNumeric>

#include <algorithm>
#include <cmath>

namespace Panel
{

namespace
{

using Complex = std::complex<double>;

struct MathText {
    Q_DECLARE_TR_FUNCTIONS(Panel::TraceMath)
};

/// What a result has of the data and the memory at a point.
Complex combinedPoint(const Complex &data, const Complex &memory, TraceMath math)
{
    switch (math) {
    case TraceMath::Divided:
        return data / memory;
    case TraceMath::Subtracted:
        return data - memory;
    case TraceMath::Added:
        return data + memory;
    case TraceMath::Memory:
        return memory;
    case TraceMath::DataAndMemory:
        break;
    }
    return data;
}

} // namespace

QString mathName(TraceMath math)
{
    switch (math) {
    case TraceMath::DataAndMemory:
        return MathText::tr("Data and memory");
    case TraceMath::Memory:
        return MathText::tr("Memory");
    case TraceMath::Divided:
        return MathText::tr("Data / memory");
    case TraceMath::Subtracted:
        return MathText::tr("Data \u2212 memory");
    case TraceMath::Added:
        return MathText::tr("Data + memory");
    }
    return QString();
}

QString mathText(TraceMath math)
{
    switch (math) {
    case TraceMath::DataAndMemory:
        break;
    case TraceMath::Memory:
        return QStringLiteral("M");
    case TraceMath::Divided:
        return QStringLiteral("/ M");
    case TraceMath::Subtracted:
        return QStringLiteral("\u2212 M");
    case TraceMath::Added:
        return QStringLiteral("+ M");
    }
    return QString();
}

TraceData combined(const TraceData &data, const TraceData &memory, TraceMath math)
{
    if (math == TraceMath::DataAndMemory || memory.points() == 0)
        return data;
    const bool sameFrequencies = data.frequencies == memory.frequencies;
    TraceData result = data;
    for (int i = 0; i < data.points(); ++i) {
        const double index = sameFrequencies
            ? double(i)
            : indexOfPlace(memory.frequencies, {data.frequencies.at(i), 0});
        const Complex value = index < 0.0 ? Complex(qQNaN(), qQNaN())
                                          : combinedPoint(data.at(i), memory.at(index), math);
        const bool exists = std::isfinite(value.real()) && std::isfinite(value.imag());
        result.parameter.real[i] = exists ? value.real() : qQNaN();
        result.parameter.imag[i] = exists ? value.imag() : qQNaN();
    }
    return result;
}

QVector<double> smoothed(const QVector<double> &values, int points)
{
    const int count = int(values.size());
    if (points <= 1 || count == 0)
        return values;
    // Sums of all values before a point, and how many of them there are.
    QVector<double> sums(count + 1, 0.0);
    QVector<int> counts(count + 1, 0);
    for (int i = 0; i < count; ++i) {
        const bool exists = !std::isnan(values.at(i));
        sums[i + 1] = sums.at(i) + (exists ? values.at(i) : 0.0);
        counts[i + 1] = counts.at(i) + (exists ? 1 : 0);
    }
    QVector<double> result(count);
    for (int i = 0; i < count; ++i) {
        const int half = std::min({points / 2, i, count - 1 - i});
        const int there = counts.at(i + half + 1) - counts.at(i - half);
        result[i] = there == 0 || std::isnan(values.at(i))
            ? values.at(i)
            : (sums.at(i + half + 1) - sums.at(i - half)) / there;
    }
    return result;
}

} // namespace Panel
