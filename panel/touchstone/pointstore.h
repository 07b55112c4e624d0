// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "header.h"
#include <panel/model/network.h>

namespace Panel
{

/*! Takes the points of a file, number by number, and makes the network's parameters of them. They
    go there some hundred at a time, so that each parameter is written in one piece. */
class PointStore
{
public:
    /// `network` has the header's ports; it and the header have to live as long. A text of so many
    /// bytes is expected: a short one needs little room.
    PointStore(const Header &header, Network &network, qint64 bytes);

    /// Numbers of a point, its frequency included.
    int numbersOfPoint() const { return m_numbers; }
    /// Where the numbers of the point that is next go; there is room for all of them.
    double *point() { return m_block.data() + std::size_t(m_filled) * std::size_t(m_numbers); }
    /// Points taken so far.
    qint64 points() const { return m_network.frequencies.size() + m_filled; }
    /// Frequency of the point taken last in Hz; only if there is one.
    double lastFrequency() const { return m_lastFrequency; }
    /// Takes the point, which began in this line. A clause says why it cannot be.
    QString take(int line);
    /// Gets room for about so many points.
    void expect(qint64 points);
    /// Hands over what has been taken.
    QString flush();
    /// Of the point that the last reason is about.
    int line() const { return m_line; }

private:
    /// Of a point, in the network.
    qint64 numbersKept() const { return 1 + 2 * qint64(m_network.parameters.size()); }
    /// Which parameter a pair of numbers is, and in a triangle which other one, too; -1 for none.
    struct Place {
        int parameter = 0;
        int mirror = -1;
    };

    std::vector<Place> places() const;
    bool toRealImaginary();
    void store(int pair, int before);
    QString convert(int before);

    const Header &m_header;
    Network &m_network;
    const std::vector<Place> m_places;
    const int m_numbers;
    std::vector<double> m_block; ///< points one after the other
    std::vector<int> m_lines; ///< where each of them began
    int m_filled = 0;
    double m_lastFrequency = 0.0;
    int m_line = 0;
};

} // namespace Panel
