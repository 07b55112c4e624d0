// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/model/cartesian.h>
#include <panel/model/traces.h>

#include <QPushButton>

namespace Panel
{

/// The button over a diagram that offers to fit a trace that lies wholly outside it; hidden while
/// there is none.
class FitOffer : public QPushButton
{
    Q_OBJECT

public:
    explicit FitOffer(QWidget *diagram);

    /// The trace that it is about, or 0.
    int trace() const { return m_trace; }
    /// A visible trace and the values that are drawn of it.
    struct Candidate {
        Trace trace;
        ValueRange drawn;
    };
    /// Offers to fit the first of these that has no point between bottom and top.
    void offer(const QVector<Candidate> &candidates);
    /// The corner, in pixels of the diagram, that it keeps to from now on.
    void setCorner(const QPoint &topRight);

private:
    void place();

    int m_trace = 0;
    QPoint m_topRight;
};

} // namespace Panel
