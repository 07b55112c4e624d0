// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "header.h"
#include <panel/model/network.h>

namespace Panel
{

/// Numbers of a line of noise data.
constexpr int s_noiseNumbers = 5;

/// Takes a line of noise data. A clause says why it cannot be; empty where all is well.
QString takeNoise(std::string_view line, const Header &header, NoiseData &noise);

} // namespace Panel
