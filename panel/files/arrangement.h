// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/network.h>

namespace Panel
{

class PanelModel;

/*! Opens files in the arrangement of those on show: traces with their parameters, formats, scales,
    limits, mathematics and memories, the part on show and the markers, as far as the new networks
    have them. So today's measurement can be divided by yesterday's.

    A file takes the arrangement that it had, or else that of the one in its place; ports that were not
    there before get the traces of a first opening. While nothing was arranged, all is as at first.
    Returns the parameters that the new files do not have, as "S43". */
QStringList openArranged(PanelModel *model, const QVector<Network> &networks);

} // namespace Panel
