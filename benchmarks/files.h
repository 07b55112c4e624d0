// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <benchmark/benchmark.h>

/// Network data from files.
namespace Bench
{

/// A Touchstone file of a two-port with so many points and all digits of their numbers. It is made
/// at the first call, and gone at the end of the program.
QString longFile(int points);

/// Reads such a file into a network; the counter "bytes_a_point" is what the process held more at
/// the most.
void readNetwork(benchmark::State &state, int points);

/// The bytes of the same file, and its numbers, from which nothing is made.
void readNumbers(benchmark::State &state, int points);

} // namespace Bench
