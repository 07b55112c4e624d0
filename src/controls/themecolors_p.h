// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QColor>
#include <QMap>
#include <QStringList>
#include <QVector>

namespace Controls
{

/*! The named colours and palettes of one theme: built-in values, and what was set in their place.

    Some colours are shades of another one, such as a button under the pointer: a shade that nobody
    set keeps its distance from its base, so that one colour set changes all that belongs to it. */
class ThemeColors
{
public:
    explicit ThemeColors(bool dark);

    /// The colour of that name; invalid for an unknown one, and for one that was set to be so.
    QColor color(const QString &name) const;
    /// All names, built-in and set.
    QStringList names() const;
    /// Puts a colour in place of the built-in one, or beside them under a new name.
    void set(const QString &name, const QColor &color) { m_set.insert(name, color); }
    /// Takes back what was set.
    void reset(const QString &name) { m_set.remove(name); }

    QVector<QColor> tracePalette; ///< at least one colour
    QVector<QColor> memoryTracePalette; ///< at least one colour

    /// The built-in palettes.
    static QVector<QColor> builtInTraces(bool dark);
    static QVector<QColor> builtInMemoryTraces(bool dark);

private:
    QColor builtIn(const QString &name) const;

    bool m_dark;
    QMap<QString, QColor> m_set;
};

} // namespace Controls
