// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <complex>
#include <vector>

namespace Panel
{

/// A square matrix of complex numbers.
class ComplexMatrix
{
public:
    explicit ComplexMatrix(int size)
        : m_size(size)
        , m_values(std::size_t(size) * std::size_t(size))
    {
    }

    int size() const { return m_size; }
    std::complex<double> &operator()(int row, int column) { return m_values[index(row, column)]; }
    const std::complex<double> &operator()(int row, int column) const
    {
        return m_values[index(row, column)];
    }
    bool isFinite() const;

    /// Makes this matrix its product with the inverse of another one, which is used up. False, and
    /// neither is of use, where that one is singular.
    bool divideBy(ComplexMatrix &divisor);

private:
    std::size_t index(int row, int column) const
    {
        return std::size_t(row) * std::size_t(m_size) + std::size_t(column);
    }
    void subtractColumn(int to, int from, std::complex<double> factor);
    void swapColumns(int a, int b);
    void scaleColumn(int column, std::complex<double> factor);

    int m_size;
    std::vector<std::complex<double>> m_values;
};

} // namespace Panel
