// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    What the SCPI server of the open analyser program answers, read from bytes. */
#pragma once

#include <QByteArray>
#include <QVector>

namespace Panel
{

/// The points of a trace, "[Hz,re,im],[Hz,re,im]"; NaN may stand among the values.
struct ProgramTrace {
    QVector<double> frequencies, real, imag;
    bool readable = true;
};
/// Room is taken for so many points at first, and for more only as they come.
ProgramTrace parseProgramTrace(const QByteArray &text, int expected);

/// Frequencies in Hz that were written with six digits agree with the even ones of a sweep.
bool agree(const QVector<double> &written, const QVector<double> &even);

} // namespace Panel
