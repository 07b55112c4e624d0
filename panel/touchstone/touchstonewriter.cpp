// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "touchstonewriter.h"

#include "header.h"
#include "text.h"
#include "textsink.h"

#include <algorithm>
#include <cmath>

namespace Panel
{

namespace
{

constexpr int s_pairsOfLine = 4;

bool isFinite(const QVector<double> &values)
{
    return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
}

bool isSweep(const QVector<double> &frequencies)
{
    return isFinite(frequencies) && std::is_sorted(frequencies.begin(), frequencies.end())
        && frequencies.value(0) >= 0.0;
}

/// The first index without a finite value, or -1.
int gap(const Parameter &parameter)
{
    for (int i = 0; i < parameter.real.size(); ++i) {
        if (!std::isfinite(parameter.real.at(i)) || !std::isfinite(parameter.imag.at(i)))
            return i;
    }
    return -1;
}

bool isComplete(const Network &network)
{
    const auto hasAll = [&network](const Parameter &parameter) {
        return parameter.real.size() == network.frequencies.size()
            && parameter.imag.size() == network.frequencies.size();
    };
    return !network.frequencies.isEmpty()
        && network.parameters.size() == network.ports * network.ports
        && (network.references.isEmpty() || network.references.size() == network.ports)
        && std::all_of(network.parameters.begin(), network.parameters.end(), hasAll);
}

QString obstacleInReferences(const Network &network)
{
    for (int port = 1; port <= network.ports; ++port) {
        const std::complex<double> ohms = network.reference(port);
        if (ohms.imag() != 0.0)
            return Text::tr("Touchstone files have no complex references");
        if (!(ohms.real() > 0.0) || std::isinf(ohms.real()))
            return Text::tr("a reference must be a number above zero, and not %1").arg(ohms.real());
    }
    return QString();
}

QString obstacleInNoise(const Network &network, int version)
{
    const NoiseData &noise = network.noise;
    if (noise.frequencies.isEmpty())
        return QString();
    if (network.ports != 2)
        return Text::tr("only two-ports have noise data");
    if (!(noise.referenceOhms > 0.0) || std::isinf(noise.referenceOhms)
        || !isSweep(noise.frequencies))
        return Text::tr("the noise data is not complete");
    for (const QVector<double> &values :
         {noise.minimumFigure, noise.optimumMagnitude, noise.optimumDegrees, noise.resistance}) {
        if (values.size() != noise.frequencies.size() || !isFinite(values))
            return Text::tr("the noise data is not complete");
    }
    const auto isTooLarge = [&noise](double ohms) {
        return !std::isfinite(ohms / noise.referenceOhms);
    };
    // There is nothing else there to tell where noise begins, and to what it refers.
    if (version == 1
        && (noise.frequencies.first() > network.frequencies.last()
            || network.reference(1) != noise.referenceOhms
            || std::any_of(noise.resistance.begin(), noise.resistance.end(), isTooLarge)))
        return Text::tr("version 1 has no room for this noise data");
    return QString();
}

/// Puts comments where they belong.
class Comments
{
public:
    Comments(TextSink &sink, const Network &network)
        : m_sink(sink)
        , m_comments(network.comments)
    {
    }

    /// Those up to a place that have not been written.
    void putUpTo(int points)
    {
        for (; m_next < m_comments.size() && m_comments.at(m_next).points <= points; ++m_next) {
            QByteArray line = m_comments.at(m_next).text.toUtf8();
            line.replace('\n', ' ').replace('\r', ' ');
            m_sink << "!" << std::string_view(line.constData(), std::size_t(line.size())) << "\n";
        }
    }
    void putAll() { putUpTo(std::numeric_limits<int>::max()); }

private:
    TextSink &m_sink;
    const QVector<Comment> &m_comments;
    int m_next = 0;
};

void putPair(TextSink &sink, const Parameter &parameter, int point)
{
    sink << " " << parameter.real.at(point) << " " << parameter.imag.at(point);
}

/// A two-port goes in one line by columns, all others by rows, four pairs a line.
void putPoint(TextSink &sink, const Network &network, int point)
{
    const int ports = network.ports;
    sink << network.frequencies.at(point);
    for (int row = 1; row <= ports; ++row) {
        for (int column = 1; column <= ports; ++column) {
            const bool byColumns = ports == 2;
            const bool startsRow = !byColumns && column == 1 && row > 1;
            if (startsRow || (column > 1 && column % s_pairsOfLine == 1))
                sink << "\n ";
            putPair(sink, byColumns ? network.s(column, row) : network.s(row, column), point);
        }
    }
    sink << "\n";
}

void putNoise(TextSink &sink, const Network &network, int version)
{
    const NoiseData &noise = network.noise;
    for (int i = 0; i < noise.frequencies.size(); ++i) {
        sink << noise.frequencies.at(i) << " " << noise.minimumFigure.at(i) << " "
             << noise.optimumMagnitude.at(i) << " " << noise.optimumDegrees.at(i) << " ";
        // In units of the reference the quotient has more digits than a double, so that the product
        // is the same again.
        if (version == 1)
            sink << static_cast<long double>(noise.resistance.at(i)) / noise.referenceOhms;
        else
            sink << noise.resistance.at(i);
        sink << "\n";
    }
}

void putReferences(TextSink &sink, const Network &network)
{
    for (int port = 1; port <= network.ports; ++port)
        sink << " " << network.reference(port).real();
}

/// What the keywords say, up to the data.
void putKeywords(TextSink &sink, const Network &network, bool allReferences)
{
    const NoiseData &noise = network.noise;
    sink << "[Number of Ports] " << network.ports << "\n";
    if (network.ports == 2)
        sink << "[Two-Port Data Order] 21_12\n";
    sink << "[Number of Frequencies] " << network.points() << "\n";
    if (!noise.frequencies.isEmpty())
        sink << "[Number of Noise Frequencies] " << int(noise.frequencies.size()) << "\n";
    if (allReferences) {
        sink << "[Reference]";
        putReferences(sink, network);
        sink << "\n";
    }
    sink << "[Matrix Format] Full\n[Network Data]\n";
}

} // namespace

QString touchstoneObstacle(const Network &network, int version)
{
    if (network.ports > s_maximumPorts)
        return Text::tr("a network of %1 ports, and at most %2 ports are read")
            .arg(network.ports)
            .arg(s_maximumPorts);
    if (network.ports < 1 || !isComplete(network))
        return Text::tr("the network holds no data");
    if (!isSweep(network.frequencies))
        return Text::tr("the frequency falls back");
    for (int i = 0; i < network.parameters.size(); ++i) {
        const int point = gap(network.parameters.at(i));
        if (point >= 0)
            return Text::tr("%1 has no finite value at %2 Hz")
                .arg(parameterName(i % network.ports + 1, i / network.ports + 1, network.ports))
                .arg(network.frequencies.at(point), 0, 'g', 12);
    }
    const QString reason = obstacleInReferences(network);
    return reason.isEmpty() ? obstacleInNoise(network, version) : reason;
}

void writeTouchstone(QIODevice &device, const Network &network, int version)
{
    TextSink sink(device);
    Comments comments(sink, network);
    const bool hasNoise = !network.noise.frequencies.isEmpty();
    const bool oneReference = network.references.isEmpty();
    const double ohms = hasNoise ? network.noise.referenceOhms : network.reference(1).real();
    // A reader knows these lines by their first word, and leaves them to the next writer.
    sink << "! VnaWidgets: S parameters of " << network.ports
         << (network.ports == 1 ? " port" : " ports") << " at " << network.points()
         << " frequencies\n";
    sink << "! VnaWidgets: frequency in Hz, then real and imaginary parts of "
         << (network.ports == 1       ? "S11\n"
                 : network.ports == 2 ? "S11 S21 S12 S22\n"
                                      : "the rows S11 S12 ..., S21 S22 ..., and so on\n");
    if (hasNoise)
        sink << "! VnaWidgets: noise is frequency in Hz, minimum figure in dB, source reflection "
                "for it "
                "(magnitude, degrees), resistance "
             << (version == 1 ? "over R\n" : "in ohms\n");
    comments.putUpTo(0);
    if (version == 2)
        sink << "[Version] 2.0\n";
    sink << "# Hz S RI R";
    if (version == 1 && !oneReference)
        putReferences(sink, network);
    else
        sink << " " << ohms;
    sink << "\n";
    if (version == 2)
        putKeywords(sink, network, !oneReference || network.reference(1) != ohms);
    for (int point = 0; point < network.points(); ++point) {
        putPoint(sink, network, point);
        comments.putUpTo(point + 1);
    }
    comments.putAll();
    if (version == 2 && hasNoise)
        sink << "[Noise Data]\n";
    putNoise(sink, network, version);
    if (version == 2)
        sink << "[End]\n";
    sink.flush();
}

QString parameterName(int to, int from, int ports)
{
    return QLatin1Char('S') + QString::number(to) + QLatin1String(ports > 9 ? "_" : "")
        + QString::number(from);
}

} // namespace Panel
