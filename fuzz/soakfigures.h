// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QVector>

namespace Soak
{

/// What a process holds at the end of an hour, and what a frame of that hour took.
struct Figures {
    double residentKiB = 0.0;
    double heapKiB = 0.0; ///< in use; 0 under a sanitizer
    int descriptors = 0;
    int threads = 0;
    int objects = 0; ///< of all classes
    int widgets = 0;
    double frameMs = 0.0; ///< median of the processor time

    /// Of this process now, without the time of a frame.
    static Figures now();
};

/// Rise per step by Theil and Sen: the median of the slopes between all pairs, which half a dozen
/// odd values out of twenty do not move. 0 for fewer than two values.
double robustSlope(const QVector<double> &values);

double median(QVector<double> values);

/// What has grown, a sentence each; the first sixth of the hours is left out, in which caches fill.
/// Descriptors and threads must be level from hour to hour whatever the length; the others are
/// judged from 12 hours on, and the time of a frame only if `judgesTime`.
QStringList growth(const QVector<Figures> &hours, bool judgesTime);

} // namespace Soak
