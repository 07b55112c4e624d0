// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shellanalyser.h"

#include "linknumbers.h"
#include "linktrouble.h"
#include "wire.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace Panel
{

namespace
{

const QByteArray s_prompt = QByteArrayLiteral("ch> ");
/// A row of text is never longer.
constexpr qint64 s_longestRow = 128;
/// In milliseconds: a piece that takes less may grow, one that takes more is too long.
constexpr qint64 s_shortPiece = 1200;
constexpr qint64 s_longPiece = 2500;
constexpr double s_highest = 2.7e9;
constexpr int s_minimumPoints = 2;
/// Of firmware that counts its bandwidths: so many Hz over the count and one.
constexpr double s_bandwidthUnit = 4000.0;

/// Where a reply says that a command failed; empty if it does not.
QByteArray refusal(const QByteArray &reply)
{
    const QList<QByteArray> lines = reply.split('\n');
    for (const QByteArray &line : lines) {
        QByteArray text = line.trimmed();
        if (text.endsWith('?') || text.startsWith("usage:") || text.contains("invalid")
            || text.contains("exceeds"))
            return text;
    }
    return {};
}

QByteArray captured(const char *pattern, const QByteArray &text)
{
    static const auto options = QRegularExpression::MultilineOption;
    return QRegularExpression(QLatin1String(pattern), options)
        .match(QString::fromLatin1(text))
        .captured(1)
        .trimmed()
        .toLatin1();
}

} // namespace

/// Sends a line and returns what comes between its echo and the prompt.
QByteArray ShellAnalyser::command(const QByteArray &text)
{
    m_wire.discard();
    m_wire.send(text + '\r');
    const qint64 longest = Wire::shortLine + m_maximumPerScan * s_longestRow;
    QByteArray reply = m_wire.until(s_prompt, longest);
    reply.chop(s_prompt.size());
    const auto echo = reply.indexOf(text);
    if (echo >= 0)
        reply.remove(0, int(echo + text.size()));
    return reply.trimmed();
}

/// The same for a command that the firmware may not know; nothing then.
QByteArray ShellAnalyser::askOwnText(const QByteArray &text)
{
    const QByteArray reply = command(text);
    return refusal(reply).isEmpty() ? reply : QByteArray();
}

/// Wakes the shell up, and gets rid of what waited unread.
bool ShellAnalyser::waitForPrompt()
{
    for (int i = 0; i < 3 && m_wire.ok(); ++i) {
        m_wire.send("\r");
        const QByteArray reply = m_wire.drain(100 + 400 * i, 1500);
        if (reply.contains(s_prompt))
            return true;
        if (reply.trimmed() == "2") {
            m_wire.fail(Trouble::binaryProtocol(m_wire.peer()));
            return false;
        }
        if (!reply.trimmed().isEmpty() && i == 2)
            m_wire.fail(Trouble::unreadable(m_wire.peer(), reply));
    }
    m_wire.fail(Trouble::silent(m_wire.peer()));
    return false;
}

bool ShellAnalyser::begin()
{
    if (!waitForPrompt())
        return false;
    const QByteArray version = askOwnText("version").split('\n').first().trimmed();
    const QByteArray info = askOwnText("info");
    m_commands = ' ' + command("help").simplified() + ' ';
    if (!m_wire.ok())
        return false;
    if (!m_commands.contains(" scan ")) {
        m_wire.fail(Trouble::unknownInstrument(m_wire.peer(), version));
        return false;
    }
    const QByteArray board = captured("^\\s*Board:\\s*(.+)$", info);
    m_identity = Trouble::quoted(board.isEmpty() ? QByteArray("NanoVNA") : board) + QLatin1Char(' ')
        + Trouble::quoted(version);
    const double maximum = numberOr(captured("\\[p:\\s*(\\d+)", info), m_maximumPerScan);
    m_maximumPerScan = int(NumberRange{21.0, 4096.0}.bounded(maximum));
    const QStringList flags =
        QString::fromLatin1(askOwnText("cal")).simplified().split(QLatin1Char(' '));
    m_calibration =
        flags.contains(QLatin1String("cal'ed")) ? flags.join(QLatin1Char(' ')) : QString();
    const bool readsLow = m_commands.contains(" scan_bin ");
    m_limits.frequency = {readsLow ? 600.0 : 50e3, s_highest};
    m_limits.smallestSpan = 1e3;
    m_limits.points = {double(s_minimumPoints), double(maximumPoints)};
    if (m_commands.contains(" bandwidth "))
        readBandwidth();
    return readOwnSweep();
}

void ShellAnalyser::readBandwidth()
{
    const QByteArray reply = command("bandwidth");
    const QByteArray hertz = captured("\\((\\d+)\\s*Hz\\)", reply);
    if (!hertz.isEmpty()) {
        m_settings.acquisition.bandwidth = numberOr(hertz, qQNaN());
        m_limits.bandwidth = {10.0, s_bandwidthUnit};
        return;
    }
    const QList<QByteArray> choices = captured("\\{([\\d|]+)\\}", reply).split('|');
    for (const QByteArray &choice : choices) {
        double value = 0.0;
        if (readNumber(choice, value) && value > 0.0)
            m_bandwidths.append(value);
    }
    std::sort(m_bandwidths.begin(), m_bandwidths.end());
    if (!m_bandwidths.isEmpty())
        m_limits.bandwidth = {m_bandwidths.constFirst(), m_bandwidths.constLast()};
}

bool ShellAnalyser::readOwnSweep()
{
    m_ownSweep = command("sweep").simplified();
    QVector<double> numbers;
    const QList<QByteArray> words = m_ownSweep.split(' ');
    for (const QByteArray &word : words)
        numbers.append(numberOr(word, qQNaN()));
    // Some print what is above 2^31 as a negative number.
    for (double &number : numbers)
        number = number < 0.0 ? number + 4294967296.0 : number;
    if (m_wire.ok()
        && (numbers.size() != 3 || !(numbers.at(0) > 0.0) || !(numbers.at(1) >= numbers.at(0))
            || !(numbers.at(2) >= s_minimumPoints) || !(numbers.at(2) <= maximumPoints)))
        m_wire.fail(Trouble::unreadable(m_wire.peer(), m_ownSweep));
    if (!m_wire.ok())
        return false;
    m_ownSweep = QStringLiteral("sweep %1 %2 %3")
                     .arg(numbers.at(0), 0, 'f', 0)
                     .arg(numbers.at(1), 0, 'f', 0)
                     .arg(numbers.at(2), 0, 'f', 0)
                     .toLatin1();
    m_settings.sweep = {numbers.at(0), numbers.at(1), int(numbers.at(2))};
    m_limits.frequency.lowest = qMin(m_limits.frequency.lowest, m_settings.sweep.start);
    m_limits.frequency.highest = qMax(m_limits.frequency.highest, m_settings.sweep.stop);
    return true;
}

bool ShellAnalyser::apply(const MeasurementSettings &wanted)
{
    const NumberRange &range = m_limits.frequency;
    Sweep sweep = wanted.sweep;
    sweep.start = std::round(range.bounded(sweep.start));
    sweep.stop = std::round(range.bounded(qMax(sweep.stop, sweep.start + m_limits.smallestSpan)));
    sweep.points = int(m_limits.points.bounded(sweep.points));
    m_settings.sweep = sweep;
    const double bandwidth = wanted.acquisition.bandwidth;
    if (m_limits.bandwidth.isEmpty() || std::isnan(bandwidth)
        || bandwidth == m_settings.acquisition.bandwidth)
        return m_wire.ok();
    double taken = m_limits.bandwidth.bounded(bandwidth);
    QByteArray text;
    if (m_bandwidths.isEmpty()) {
        const int count = qRound(s_bandwidthUnit / taken) - 1;
        taken = s_bandwidthUnit / (count + 1);
        text = QByteArray::number(count);
    } else {
        double nearest = m_bandwidths.constFirst();
        for (const double choice : qAsConst(m_bandwidths))
            nearest = std::abs(choice - taken) < std::abs(nearest - taken) ? choice : nearest;
        taken = nearest;
        text = QByteArray::number(taken, 'f', 0);
    }
    const QByteArray failure = refusal(command("bandwidth " + text));
    // One that shows what it was set to knows best; a usage is what one that cannot tell answers.
    if (!failure.isEmpty() && m_wire.ok())
        m_wire.fail(Trouble::refused(m_wire.peer(), "bandwidth " + text, failure));
    m_settings.acquisition.bandwidth = taken;
    m_piece = qMin(m_piece, 11);
    return m_wire.ok();
}

int ShellAnalyser::nextPiece(int left) const
{
    const int maximum = qMin(m_piece, m_maximumPerScan);
    // Never a single point, which firmware divides by zero over.
    return left <= maximum ? left : left - maximum < s_minimumPoints ? maximum - 1 : maximum;
}

/// Pieces take about a second, however slow the bandwidth.
void ShellAnalyser::adaptPiece(int points, qint64 milliseconds)
{
    if (milliseconds < s_shortPiece && points >= m_piece)
        m_piece = qMin(4 * m_piece, 4096);
    else if (milliseconds > s_longPiece)
        m_piece = qMax(4, points / 2);
}

bool ShellAnalyser::sweep(Network &network, const Progress &progress)
{
    prepare(network, 2);
    // S12 and S22 do not exist.
    for (const int missing : {2, 3}) {
        network.parameters[missing].real.fill(0.0);
        network.parameters[missing].imag.fill(0.0);
    }
    network.comments = {{0, QStringLiteral("S12 and S22 were not measured.")}};
    const QVector<double> grid = evenFrequencies(m_settings.sweep);
    const int points = int(grid.size());
    for (int from = 0; from < points;) {
        const int count = nextPiece(points - from);
        QElapsedTimer clock;
        clock.start();
        Scan piece;
        if (!scan(std::round(grid.at(from)), std::round(grid.at(from + count - 1)), count, piece))
            return false;
        if (piece.points.size() != count)
            continue; // the firmware holds fewer than it said; again in smaller pieces
        adaptPiece(count, clock.elapsed());
        for (int i = 0; i < count; ++i) {
            const ScanPoint &point = piece.points.at(i);
            network.frequencies[from + i] = point.hertz;
            network.parameters[0].real[from + i] = point.s11.real();
            network.parameters[0].imag[from + i] = point.s11.imag();
            network.parameters[1].real[from + i] = point.s21.real();
            network.parameters[1].imag[from + i] = point.s21.imag();
        }
        from += count;
        if (from < points && m_wire.isCancelled())
            m_wire.fail(QString());
        if (progress && m_wire.ok())
            progress(network, double(from) / points);
    }
    return m_wire.ok();
}

/// Measures a piece. What noise on the line has spoilt is measured once more; nothing in the scan
/// says that the firmware cannot hold so many points.
bool ShellAnalyser::scan(double start, double stop, int points, Scan &scan)
{
    const QByteArray range = QStringLiteral(" %1 %2 %3")
                                 .arg(start, 0, 'f', 0)
                                 .arg(stop, 0, 'f', 0)
                                 .arg(points)
                                 .toLatin1();
    for (const bool again : {false, true}) {
        QByteArray raw;
        scan = !m_knowsMask                     ? scanAndFetch(range, raw)
            : m_commands.contains(" scan_bin ") ? scanBinary(range, points, raw)
                                                : scanText(range, points, raw);
        if (!m_wire.ok())
            return false;
        const QByteArray maximum = captured("exceeds range (\\d+)", raw);
        if (!maximum.isEmpty() && maximum.toInt() >= s_minimumPoints && maximum.toInt() < points) {
            m_maximumPerScan = maximum.toInt();
            scan.points.clear();
            return true;
        }
        if (m_knowsMask && raw.isEmpty()) {
            // Older firmware scans, and gives its values when it is asked for them.
            m_knowsMask = false;
            return this->scan(start, stop, points, scan);
        }
        scan.fault = checkScan(scan, start, stop);
        if (scan.points.size() != points && scan.fault == ScanFault::None)
            scan.fault = ScanFault::OtherPoints;
        if (scan.fault == ScanFault::None)
            return true;
        const QByteArray failure = refusal(raw);
        if (!failure.isEmpty() && again)
            m_wire.fail(Trouble::refused(m_wire.peer(), "scan" + range, failure));
        else if (scan.fault == ScanFault::NotFinite)
            m_wire.fail(Trouble::notFinite(m_wire.peer()));
        else if (again && scan.fault == ScanFault::OtherPoints)
            m_wire.fail(Trouble::otherPoints(m_wire.peer(), scan.points.size(), points));
        else if (again)
            m_wire.fail(Trouble::unreadable(m_wire.peer(), raw));
        if (!m_wire.ok() || !waitForPrompt())
            return false;
    }
    return false;
}

Scan ShellAnalyser::scanText(const QByteArray &range, int points, QByteArray &raw)
{
    raw = command("scan" + range + ' ' + QByteArray::number(shellMask));
    return parseScanRows(raw, points);
}

/// The values follow the echo at once; an error comes as text in their place.
Scan ShellAnalyser::scanBinary(const QByteArray &range, int points, QByteArray &raw)
{
    const QByteArray text = "scan_bin" + range + ' ' + QByteArray::number(shellMask | 128);
    m_wire.discard();
    m_wire.send(text + '\r');
    m_wire.until("\n", Wire::shortLine); // the echo
    raw = m_wire.bytes(shellHead);
    const int announced = announcedPoints(raw);
    if (announced != points) {
        if (m_wire.ok() && !raw.endsWith(s_prompt))
            raw += m_wire.until(s_prompt, Wire::shortLine + shellBytes(points));
        return {QVector<ScanPoint>(announced < 0 ? 0 : announced),
                announced < 0 ? ScanFault::Unreadable : ScanFault::OtherPoints};
    }
    const QByteArray body = m_wire.bytes(shellBytes(points));
    m_wire.until(s_prompt, Wire::shortLine);
    return m_wire.ok() ? parseBinaryScan(body, points) : Scan();
}

Scan ShellAnalyser::scanAndFetch(const QByteArray &range, QByteArray &raw)
{
    raw = command("scan" + range);
    const QVector<double> frequencies = parseFrequencyRows(command("frequencies"));
    const auto s11 = parseDataRows(command("data 0"));
    const auto s21 = parseDataRows(command("data 1"));
    Scan scan;
    for (int i = 0; i < qMin(frequencies.size(), qMin(s11.size(), s21.size())); ++i)
        scan.points.append({frequencies.at(i), s11.at(i), s21.at(i)});
    return scan;
}

void ShellAnalyser::end()
{
    m_wire.beginFarewell(3000);
    if (m_ownSweep.isEmpty() || !m_wire.ok() || !waitForPrompt())
        return;
    command(m_ownSweep);
    command("resume");
}

} // namespace Panel
