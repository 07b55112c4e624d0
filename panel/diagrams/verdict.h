// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QVector>

namespace Panel
{

/// PASS or FAIL over the upper right corner of a diagram, large enough to be read from afar, and the
/// traces that fail. Hidden while nothing is tested.
class Verdict : public QLabel
{
    Q_OBJECT

public:
    /// The traces that are named at most.
    static constexpr int maximumFailures = 3;

    /// A trace that fails, and the lowest frequency in Hz at which it does.
    struct Failure {
        int trace = 0;
        double hertz = 0.0;
    };

    explicit Verdict(QWidget *diagram);

    /// Shows what became of the traces that were tested, if any were.
    void show(bool tested, const QVector<Failure> &failures);
    /// The corner, in pixels of the diagram, that it keeps to from now on.
    void setCorner(const QPoint &topRight);

private:
    void place();

    QPoint m_topRight;
};

} // namespace Panel
