// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "programdata.h"

#include "linknumbers.h"

#include <cmath>

namespace Panel
{

ProgramTrace parseProgramTrace(const QByteArray &text, int expected)
{
    ProgramTrace trace;
    for (QVector<double> *const values : {&trace.frequencies, &trace.real, &trace.imag})
        values->reserve(expected);
    const char *at = text.cbegin();
    const char *const end = text.cend();
    const auto skip = [&at, end](char wanted) {
        while (at != end && *at == ' ')
            ++at;
        if (at == end || *at != wanted)
            return false;
        ++at;
        return true;
    };
    while (at != end) {
        double numbers[3] = {};
        bool ok = trace.frequencies.isEmpty() || skip(',');
        char before = '[';
        for (double &value : numbers) {
            ok = ok && skip(before);
            while (at != end && *at == ' ')
                ++at;
            const int length = ok ? readNumberAt(at, end, value) : 0;
            ok = length > 0;
            at += length;
            before = ',';
        }
        if (!ok || !skip(']')) {
            trace.readable = false;
            return trace;
        }
        trace.frequencies.append(numbers[0]);
        trace.real.append(numbers[1]);
        trace.imag.append(numbers[2]);
    }
    return trace;
}

bool agree(const QVector<double> &written, const QVector<double> &even)
{
    if (written.size() != even.size())
        return false;
    for (int i = 0; i < even.size(); ++i) {
        if (!(std::abs(written.at(i) - even.at(i)) <= 1.0 + 6e-6 * even.at(i)))
            return false;
    }
    return true;
}

} // namespace Panel
