// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "complexmatrix.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Panel
{

namespace
{

bool isFiniteNumber(const std::complex<double> &value)
{
    return std::isfinite(value.real()) && std::isfinite(value.imag());
}

} // namespace

bool ComplexMatrix::isFinite() const
{
    return std::all_of(m_values.begin(), m_values.end(), isFiniteNumber);
}

/// column `to` -= factor * column `from`
void ComplexMatrix::subtractColumn(int to, int from, std::complex<double> factor)
{
    for (int row = 0; row < m_size; ++row)
        (*this)(row, to) -= factor * (*this)(row, from);
}

void ComplexMatrix::swapColumns(int a, int b)
{
    for (int row = 0; row < m_size; ++row)
        std::swap((*this)(row, a), (*this)(row, b));
}

void ComplexMatrix::scaleColumn(int column, std::complex<double> factor)
{
    for (int row = 0; row < m_size; ++row)
        (*this)(row, column) *= factor;
}

/// Operations on the columns of both that make a unit matrix of the divisor.
bool ComplexMatrix::divideBy(ComplexMatrix &divisor)
{
    for (int k = 0; k < m_size; ++k) {
        int pivot = k;
        for (int column = k + 1; column < m_size; ++column) {
            if (std::abs(divisor(k, column)) > std::abs(divisor(k, pivot)))
                pivot = column;
        }
        divisor.swapColumns(k, pivot);
        swapColumns(k, pivot);
        const std::complex<double> factor = 1.0 / divisor(k, k);
        if (!isFiniteNumber(factor))
            return false;
        divisor.scaleColumn(k, factor);
        scaleColumn(k, factor);
        for (int column = 0; column < m_size; ++column) {
            const std::complex<double> rest = divisor(k, column);
            if (column == k || rest == 0.0)
                continue;
            divisor.subtractColumn(column, k, rest);
            subtractColumn(column, k, rest);
        }
    }
    return true;
}

} // namespace Panel
