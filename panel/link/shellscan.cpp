// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shellscan.h"

#include "linknumbers.h"

#include <QByteArrayList>
#include <QtEndian>

#include <cmath>

namespace Panel
{

namespace
{

/// The numbers of a line; empty if anything else stands there.
QVector<double> numbersOf(const QByteArray &line)
{
    QVector<double> numbers;
    const QList<QByteArray> words = line.simplified().split(' ');
    for (const QByteArray &word : words) {
        double value = 0.0;
        if (!readNumber(QByteArray(word).replace(',', '.'), value))
            return {};
        numbers.append(value);
    }
    return numbers;
}

template<typename Row>
void forRows(const QByteArray &text, Row row)
{
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        if (!line.trimmed().isEmpty() && !row(line))
            return;
    }
}

bool isFinite(const ScanPoint &point)
{
    return std::isfinite(point.s11.real()) && std::isfinite(point.s11.imag())
        && std::isfinite(point.s21.real()) && std::isfinite(point.s21.imag());
}

} // namespace

Scan parseScanRows(const QByteArray &rows, int points)
{
    Scan scan;
    forRows(rows, [&scan](const QByteArray &line) {
        const QVector<double> n = numbersOf(line);
        if (n.size() == 5)
            scan.points.append({n.at(0), {n.at(1), n.at(2)}, {n.at(3), n.at(4)}});
        else
            scan.fault = ScanFault::Unreadable;
        return n.size() == 5;
    });
    if (scan.fault == ScanFault::None && scan.points.size() != points)
        scan.fault = ScanFault::OtherPoints;
    return scan;
}

QVector<std::complex<double>> parseDataRows(const QByteArray &rows)
{
    QVector<std::complex<double>> values;
    forRows(rows, [&values](const QByteArray &line) {
        const QVector<double> n = numbersOf(line);
        if (n.size() == 2)
            values.append(std::complex<double>(n.at(0), n.at(1)));
        return n.size() == 2;
    });
    return values;
}

QVector<double> parseFrequencyRows(const QByteArray &rows)
{
    QVector<double> values;
    forRows(rows, [&values](const QByteArray &line) {
        values += numbersOf(line);
        return true;
    });
    return values;
}

int announcedPoints(const QByteArray &head)
{
    if (head.size() != shellHead
        || (qFromLittleEndian<quint16>(head.constData()) & ~quint16(128)) != shellMask)
        return -1;
    return qFromLittleEndian<quint16>(head.constData() + 2);
}

Scan parseBinaryScan(const QByteArray &body, int points)
{
    Scan scan;
    if (body.size() < shellBytes(points)) {
        scan.fault = ScanFault::OtherPoints;
        return scan;
    }
    const char *at = body.constData();
    const auto number = [&at] {
        const auto value = double(qFromLittleEndian<float>(at));
        at += 4;
        return value;
    };
    for (int i = 0; i < points; ++i) {
        ScanPoint point;
        point.hertz = qFromLittleEndian<quint32>(at);
        at += 4;
        const double re = number(), im = number();
        point.s11 = {re, im};
        const double re2 = number(), im2 = number();
        point.s21 = {re2, im2};
        scan.points.append(point);
    }
    return scan;
}

ScanFault checkScan(const Scan &scan, double start, double stop)
{
    if (scan.fault != ScanFault::None)
        return scan.fault;
    const auto count = scan.points.size();
    const double step = count > 1 ? (stop - start) / double(count - 1) : 0.0;
    for (int i = 0; i < count; ++i) {
        if (!isFinite(scan.points.at(i)))
            return ScanFault::NotFinite;
        if (!(std::abs(scan.points.at(i).hertz - (start + i * step)) <= 2.0 + step / 2.0))
            return ScanFault::OtherFrequencies;
    }
    return ScanFault::None;
}

} // namespace Panel
