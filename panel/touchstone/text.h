// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>

namespace Panel
{

/// Where the sentences about Touchstone files are translated.
struct Text {
    Q_DECLARE_TR_FUNCTIONS(Panel::Touchstone)
};

} // namespace Panel
