// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace Fuzz
{

/*! How many objects of each class are alive: widgets, parts of plots, and all objects of classes
    that are not Qt's own. A leak checker sees none of them that some list still refers to. */
class Census
{
public:
    /// Counts now.
    Census();

    /// The classes that have more objects now, such as "LabelButton (2 more)"; empty when all is
    /// well. What lives as long as the process is left out.
    QStringList grown() const;

    /// How many objects there are of all classes, Qt's own among them.
    static int allObjects();

private:
    QMap<QString, int> m_counts;
};

} // namespace Fuzz
