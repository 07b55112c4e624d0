// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cartesian.h"
#include "traces.h"

#include <QObject>

namespace Panel
{

/// What of a limit moves by itself: all of it, an end of a line, or the border of a circle.
enum class LimitPart {
    Whole,
    Start,
    Stop,
    Border,
};

/// Whether limits can be changed in the diagram of the active trace, and which of them is selected.
/// Nothing of it is kept from one start of the panel to the next.
class LimitEditing : public QObject
{
    Q_OBJECT

public:
    bool isOn() const { return m_on; }
    /// The selected limit: an index into Trace::limits of the active trace, on a Smith chart 0. -1:
    /// none.
    int limit() const { return m_limit; }
    LimitPart part() const { return m_part; }

    /// Off, nothing is selected.
    void setOn(bool on);
    void select(int limit, LimitPart part);
    void deselect() { select(-1, LimitPart::Whole); }

Q_SIGNALS:
    void changed();

private:
    bool m_on = false;
    int m_limit = -1;
    LimitPart m_part = LimitPart::Whole;
};

/// Whether a trace has a limit of this index, and in the format that it has now.
bool isLimitOf(const Trace &trace, int limit);

/// The largest of 1, 2 and 5 times a power of ten that is not above a number above 0.
double roundStep(double number);
/// The nearest of some places that is so near, or else the nearest multiple of a step.
double snapped(double value, const QVector<double> &places, double nearness, double step);

/// A line with an end at another place. Ends that pass each other change places: \a part, which is
/// Start or Stop, is then the other one.
LimitLine movedEnd(const LimitLine &line, LimitPart &part, double hertz, double value);
/// A line that begins at another place and looks the same on an axis of this scale. The start is not
/// below 0 Hz.
LimitLine shiftedTo(const LimitLine &line, double hertz, double value, FrequencyScale scale);

} // namespace Panel
