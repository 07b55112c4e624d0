// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    What a user should know of files that were opened: nothing is wrong with them, but a trace may
    look unlike what one expects. */
#pragma once

#include <panel/model/network.h>

#include <QStringList>

namespace Panel
{

/// One sentence for each remark: different references side by side, a single point, a parameter
/// without values.
QStringList fileNotes(const QVector<Network> &networks);

/// A sentence on parameters that were on show and that these files do not have, or nothing.
QString missingNote(const QStringList &parameters, const QVector<Network> &networks);

} // namespace Panel
