// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace Panel
{

/// Codes of SCPI's error queue.
enum ScpiError {
    HeaderError = -113,
    MissingParameter = -109,
    DataTypeError = -104,
    OutOfRange = -222,
    SettingsConflict = -221,
    IllegalValue = -224,
    NoData = -230,
    QueueOverflow = -350,
    InputOverflow = -363,
};

} // namespace Panel
