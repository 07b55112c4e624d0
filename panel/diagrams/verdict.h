// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QStringList>
#include <QVector>

namespace Panel
{

/// PASS or FAIL over a corner of a diagram, large enough to be read from afar, and the traces that fail,
/// where there is room. Hidden while nothing is tested.
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

    /// A round chart in a diagram, and what else shall not be hidden, in pixels of the diagram.
    struct Chart {
        QPointF centre;
        double radius = 0.0;
        QRect clip; ///< no part of the circle is outside
        QRect readings;

        bool isHiddenBy(const QRect &box) const;
        friend bool operator==(const Chart &a, const Chart &b)
        {
            return a.centre == b.centre && a.radius == b.radius && a.clip == b.clip
                && a.readings == b.readings;
        }
    };

    explicit Verdict(QWidget *diagram);

    /// In a sentence, for those who cannot see it.
    QString sentence() const { return accessibleName(); }

    /// Shows what became of the traces that were tested, if any were.
    void show(bool tested, const QVector<Failure> &failures);
    /// The corner, in pixels of the diagram, that it keeps to from now on.
    void setCorner(const QPoint &topRight);
    /// Takes the largest text that lies beside a chart in a corner of a room, and without one the
    /// upper right corner of the room.
    void setRoom(const QRect &room, const Chart &chart);

Q_SIGNALS:
    /// Another verdict, or one on other traces; not one that differs in its frequencies alone.
    void changed();

private:
    void fit();
    bool fitsShare() const;
    bool moveBesideChart();
    void tell(bool tested, const QVector<Failure> &failures);

    QVector<int> m_failing; ///< the traces
    bool m_tested = false;
    QStringList m_texts; ///< the longest one first
    QPoint m_topRight;
    QRect m_room; ///< empty where a corner is given
    Chart m_chart;
};

} // namespace Panel
