// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    The objects that assistive tools see of a plot. All of them but the plot itself stand for something
    that is no object: they keep whose it is, and ask for everything else. */
#pragma once

#include "accessibleplot.h"

#include <plot/qcp.h>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

/// What a plot is made of, for assistive tools: the descriptions, and an object for each part that
/// was ever asked for.
class PlotParts
{
public:
    /// What a part is.
    enum Kind {
        Table,
        Marker,
        Verdict,
    };
    /// Which part of which description; a verdict goes by its place.
    struct Part {
        PlotDescription *description;
        Kind kind;
        int trace;
        int number;

        friend bool operator==(const Part &a, const Part &b)
        {
            return a.description == b.description && a.kind == b.kind && a.trace == b.trace
                && a.number == b.number;
        }
    };

    explicit PlotParts(QCustomPlot *plot)
        : m_plot(plot)
    {
    }
    ~PlotParts();

    QCustomPlot *plot() const { return qobject_cast<QCustomPlot *>(m_plot.data()); }
    const QVector<PlotDescription *> &descriptions() const { return m_descriptions; }
    void add(PlotDescription *description) { m_descriptions.append(description); }
    void remove(PlotDescription *description);

    /// All parts in the order in which they are read.
    QVector<Part> all() const;
    /// Whether a part is there; its description is.
    bool holds(const Part &part) const;
    /// The object of a part, made when it is first asked for.
    QAccessibleInterface *object(const Part &part);
    /// The same, or null while nobody has asked for it.
    QAccessibleInterface *knownObject(const Part &part) const;
    /// Those of the tables that are there, as far as anybody has asked for them.
    QVector<QAccessible::Id> knownTables() const;

private:
    struct Known {
        Part part;
        QAccessible::Id id;
    };

    QPointer<QObject> m_plot;
    QVector<PlotDescription *> m_descriptions;
    QVector<Known> m_known;
};

/// Common to all parts of a plot: parent, window and place are those of the plot.
class PlotPartAccessible : public QAccessibleInterface
{
public:
    explicit PlotPartAccessible(PlotParts *parts)
        : m_parts(parts)
    {
    }

    QObject *object() const override { return nullptr; }
    QWindow *window() const override;
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    void setText(QAccessible::Text, const QString &) override { }
    QRect rect() const override;
    QAccessible::State state() const override;

protected:
    QAccessibleInterface *plot() const;

    PlotParts *const m_parts; ///< lives longer
};
