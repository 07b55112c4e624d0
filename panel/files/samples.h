// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Panel
{

struct Network;

/// The folder of the shipped sample files: they are part of the program and always there.
QString sampleFolder();
/// The sample that the panel starts with.
QString startSample();
/// Whether a network was read from a sample.
bool isSample(const Network &network);

} // namespace Panel
