// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QStringList>
#include <QVector>

namespace Panel
{

/// PASS or FAIL over the upper right corner of a diagram, large enough to be read from afar, and the
/// traces that fail, where there is room. Hidden while nothing is tested.
class Verdict : public QLabel
{
    Q_OBJECT

public:
    /// The traces that are named at most.
    static constexpr int maximumFailures = 3;

    /// A trace that fails, and the lowest frequency in Hz at which it does.
    struct Failure {
        int trace = 0;
        QString label; ///< what the trace is called
        double hertz = 0.0;
    };

    explicit Verdict(QWidget *diagram);

    /// In a sentence, for those who cannot see it.
    QString sentence() const { return accessibleName(); }

    /// Shows what became of the traces that were tested, if any were.
    void show(bool tested, const QVector<Failure> &failures);
    /// The corner, in pixels of the diagram, that it keeps to from now on.
    void setCorner(const QPoint &topRight);

Q_SIGNALS:
    /// Another verdict, or one on other traces; not one that differs in its frequencies alone.
    void changed();

private:
    void fit();
    void tell(bool tested, const QVector<Failure> &failures);

    QVector<int> m_failing; ///< the traces
    bool m_tested = false;
    QStringList m_texts; ///< the longest one first
    QPoint m_topRight;
};

} // namespace Panel
