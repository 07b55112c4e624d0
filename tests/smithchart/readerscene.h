// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chartscene.h"

#include <smithchart/smithreader.h>

#include <QAccessible>

namespace VnaTest
{

/// A chart with a trace that resonates at 2.5 GHz, between the points of 2 and 3 GHz, and a marker at
/// the first of five points.
struct ReaderScene : ChartScene {
    ReaderScene()
    {
        chart->addCurve(1, QPen());
        chart->setCurveData(1, {1e9, 2e9, 3e9, 4e9, 5e9}, {0.5, 0.2, 0.2, 0.5, 0.7},
                            {-0.5, -0.2, 0.2, 0.5, 0.6});
        chart->setGridReference(50.0);
        chart->setActiveTrace(1);
        chart->addMarkerVisual(1, 1, 0.0, Plot::PointingDown);
        reader = new SmithReader(chart);
        reader->setTraceName(1, QStringLiteral("S11"));
    }

    QAccessibleInterface *tree() const { return QAccessible::queryAccessibleInterface(plot.get()); }
    QAccessibleInterface *part(QAccessible::Role role) const
    {
        for (int i = 0; i < tree()->childCount(); ++i) {
            if (tree()->child(i)->role() == role)
                return tree()->child(i);
        }
        return nullptr;
    }
    /// What all parts of a kind are called.
    QStringList names(QAccessible::Role role) const
    {
        QStringList found;
        for (int i = 0; i < tree()->childCount(); ++i) {
            if (tree()->child(i)->role() == role)
                found << tree()->child(i)->text(QAccessible::Name);
        }
        return found;
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(plot.get(), key, modifiers);
    }

    QPointer<SmithReader> reader;
};

} // namespace VnaTest
