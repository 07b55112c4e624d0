// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "pointstore.h"

#include "text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Panel
{

namespace
{

constexpr int s_maximumPoints = 4000000;
/// Of all parameters together: 1 GiB.
constexpr qint64 s_maximumNumbers = 1 << 27;
/// Numbers of a block; one point may have more.
constexpr int s_block = 1 << 14;

constexpr double s_nan = std::numeric_limits<double>::quiet_NaN();

} // namespace

PointStore::PointStore(const Header &header, Network &network, qint64 bytes)
    : m_header(header)
    , m_network(network)
    , m_places(places())
    , m_numbers(1 + 2 * int(m_places.size()))
{
    // A number has at least a digit and what separates it from the next.
    const auto expected = int(std::clamp<qint64>(bytes / 2, 1, s_block));
    m_lines.resize(std::size_t(std::max(1, expected / m_numbers)));
    m_block.resize(m_lines.size() * std::size_t(m_numbers));
    network.parameters.resize(network.ports * network.ports);
}

std::vector<PointStore::Place> PointStore::places() const
{
    std::vector<Place> places;
    const int ports = m_header.ports();
    const MatrixFormat format = m_header.matrixFormat();
    for (int row = 0; row < ports; ++row) {
        const int first = format == MatrixFormat::Upper ? row : 0;
        const int last = format == MatrixFormat::Lower ? row : ports - 1;
        for (int column = first; column <= last; ++column) {
            const int byColumns = column * ports + row;
            const int byRows = row * ports + column;
            // A triangle is of a symmetric matrix, so its order does not matter.
            const bool swapped = m_header.columnsFirst() && format == MatrixFormat::Full;
            places.push_back({swapped ? byRows : byColumns,
                              format == MatrixFormat::Full || row == column ? -1 : byRows});
        }
    }
    return places;
}

QString PointStore::take(int line)
{
    m_line = line;
    double &frequency = *point();
    frequency *= m_header.unit();
    if (!(frequency >= 0.0) || std::isinf(frequency))
        return Text::tr("the frequency must not be below zero nor beyond all bounds");
    if (points() > 0 && frequency < m_lastFrequency)
        return Text::tr("the frequency falls back");
    if (points() == s_maximumPoints)
        return Text::tr("the file has more than %1 points").arg(s_maximumPoints);
    if ((points() + 1) * numbersKept() > s_maximumNumbers)
        return Text::tr("the file has more than %1 numbers").arg(s_maximumNumbers);
    m_lastFrequency = frequency;
    m_lines[std::size_t(m_filled++)] = line;
    return m_filled == int(m_lines.size()) ? flush() : QString();
}

void PointStore::expect(qint64 points)
{
    // Some more, since a little too few would cost a copy of all of them.
    const qint64 maximum = std::min<qint64>(s_maximumPoints, s_maximumNumbers / numbersKept());
    const int count = int(std::min(points + points / 50, maximum));
    m_network.frequencies.reserve(count);
    for (Parameter &parameter : m_network.parameters) {
        parameter.real.reserve(count);
        parameter.imag.reserve(count);
    }
}

QString PointStore::flush()
{
    const int before = int(m_network.frequencies.size());
    m_network.frequencies.resize(before + m_filled);
    double *frequency = m_network.frequencies.data() + before;
    for (int i = 0; i < m_filled; ++i)
        frequency[i] = m_block[std::size_t(i) * std::size_t(m_numbers)];
    if (m_header.format() != NumberFormat::RealImaginary && !toRealImaginary())
        return Text::tr("a value is beyond all bounds");
    for (Parameter &parameter : m_network.parameters) {
        parameter.real.resize(before + m_filled);
        parameter.imag.resize(before + m_filled);
    }
    for (int pair = 0; pair < int(m_places.size()); ++pair)
        store(pair, before);
    m_filled = 0;
    if (m_header.kind() == ParameterKind::Scattering && m_header.modes().empty())
        return QString();
    return convert(before);
}

bool PointStore::toRealImaginary()
{
    const bool decibels = m_header.format() == NumberFormat::DecibelAngle;
    const double degree = std::acos(-1.0) / 180.0;
    for (int i = 0; i < m_filled; ++i) {
        double *const first = m_block.data() + std::size_t(i) * std::size_t(m_numbers) + 1;
        for (double *pair = first; pair != first + m_numbers - 1; pair += 2) {
            const double magnitude = decibels ? std::pow(10.0, pair[0] / 20.0) : pair[0];
            const double radians = pair[1] * degree;
            pair[0] = magnitude * std::cos(radians);
            pair[1] = magnitude * std::sin(radians);
            if (std::isinf(pair[0]) || std::isinf(pair[1])) {
                m_line = m_lines[std::size_t(i)];
                return false;
            }
        }
    }
    return true;
}

void PointStore::store(int pair, int before)
{
    const Place place = m_places[std::size_t(pair)];
    Parameter &parameter = m_network.parameters[place.parameter];
    double *const real = parameter.real.data() + before;
    double *const imag = parameter.imag.data() + before;
    const double *from = m_block.data() + 1 + 2 * std::ptrdiff_t(pair);
    for (int i = 0; i < m_filled; ++i, from += m_numbers) {
        // Half a value is none.
        const bool isGap = std::isnan(from[0]) || std::isnan(from[1]);
        real[i] = isGap ? s_nan : from[0];
        imag[i] = isGap ? s_nan : from[1];
    }
    if (place.mirror < 0)
        return;
    Parameter &mirror = m_network.parameters[place.mirror];
    std::copy_n(real, m_filled, mirror.real.data() + before);
    std::copy_n(imag, m_filled, mirror.imag.data() + before);
}

QString PointStore::convert(int before)
{
    const int ports = m_header.ports();
    const ParameterKind kind = m_header.kind();
    // What is in units of the reference has a reference of 1.
    std::vector<double> references(std::size_t(ports), 1.0);
    for (int port = 0; port < ports && m_header.isInOhms(); ++port)
        references[std::size_t(port)] = m_header.references().at(port).real();
    std::vector<Parameter *> parameters;
    for (Parameter &parameter : m_network.parameters)
        parameters.push_back(&parameter);
    ComplexMatrix matrix(ports);
    for (int i = before; i < m_network.points(); ++i) {
        bool isGap = false;
        for (int at = 0; at < ports * ports; ++at) {
            const Parameter &parameter = *parameters[std::size_t(at)];
            matrix(at % ports, at / ports) = {parameter.real.at(i), parameter.imag.at(i)};
            isGap = isGap || std::isnan(parameter.real.at(i));
        }
        if (!m_header.modes().empty())
            matrix = toPorts(kind, matrix, m_header.modes());
        m_line = m_lines[std::size_t(i - before)];
        if (!isGap && !toScattering(kind, matrix, references))
            return Text::tr("the parameters of this point have no S parameters");
        for (int at = 0; at < ports * ports; ++at) {
            const std::complex<double> s = isGap ? s_nan : matrix(at % ports, at / ports);
            Parameter &parameter = *parameters[std::size_t(at)];
            parameter.real[i] = s.real();
            parameter.imag[i] = isGap ? s_nan : s.imag();
        }
    }
    return QString();
}

} // namespace Panel
