// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    What the text shell of small analysers answers, read from bytes. */
#pragma once

#include <QByteArray>
#include <QVector>

#include <complex>

namespace Panel
{

/// A point of a scan: reflection and transmission.
struct ScanPoint {
    double hertz = 0.0;
    std::complex<double> s11, s21;
};

enum class ScanFault {
    None,
    Unreadable,
    OtherPoints, ///< not as many as are due
    OtherFrequencies, ///< not those that were asked for
    NotFinite,
};

struct Scan {
    QVector<ScanPoint> points;
    ScanFault fault = ScanFault::None;
};

/// Rows of "Hz re im re im", with a point or a comma as the decimal sign.
Scan parseScanRows(const QByteArray &rows, int points);
/// Rows of "re im" for one parameter, and of one frequency each, as older firmware gives them.
QVector<std::complex<double>> parseDataRows(const QByteArray &rows);
QVector<double> parseFrequencyRows(const QByteArray &rows);

/// The bytes that a binary scan of so many points has behind its head of shellHead bytes.
constexpr int shellHead = 4;
constexpr int shellMask = 7; ///< frequency, S11 and S21
constexpr qint64 shellBytes(int points)
{
    return qint64(points) * 20;
}
/// The points that the head of a binary scan announces; -1 for a text in its place.
int announcedPoints(const QByteArray &head);
Scan parseBinaryScan(const QByteArray &body, int points);

/// Whether a scan has the frequencies of an even sweep, each nearer to its own than to another.
ScanFault checkScan(const Scan &scan, double start, double stop);

} // namespace Panel
