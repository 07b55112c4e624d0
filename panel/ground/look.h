// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPen>
#include <QString>
#include <QVector>

class QWidget;

namespace Panel
{

/// The colours of the panel's own parts in the theme that is in force; ask again after
/// themeChanged().
struct Look {
    QColor background; ///< behind diagrams
    QColor bar; ///< top and bottom bars, dialogs
    QColor text;
    QColor dimText; ///< names and hints beside a value
    QColor border;
    QColor button;
    QColor accent; ///< choice and focus
    QColor warning; ///< edge of a message
    QColor pass; ///< of what keeps within its limits
    QColor fail;
    QVector<QColor> traces; ///< at least 8, of which no two are alike
    QVector<QColor> memories;

    /// The colour of a trace: its number picks from the palette, which starts over at its end.
    QColor trace(int id) const { return traces.at((id - 1) % traces.size()); }
    /// The same for stored data.
    QColor memory(int id) const { return memories.at((id - 1) % memories.size()); }
    /// The line of a trace of a file: the first file's are solid, those of each further one have a
    /// dash pattern of their own. So has each trace, at high contrast or by setTraceDashes().
    QPen pen(int id, int file) const;
    QPen memoryPen(int id, int file) const;

    /// Widths of solid lines, in pixels; dashed ones, which painters draw, are as thin as they can be.
    static constexpr double traceWidth = 1.25;
    static constexpr double activeTraceWidth = 2.0;
};

/// Gives the program the panel's font and style sheet, the pictures of the library and the dark theme;
/// called once at the start.
void setUpApplication();

/// Has each trace drawn with a dash pattern of its own, beside its colour. Default: no.
void setTraceDashes(bool on);

Look currentLook();

/// Applies the style sheet to a widget anew, after a change of a property that its rules ask for. A
/// widget that was never shown is left alone: polished by hand, it would keep the rules of the sheet
/// in force, because a change of sheet passes over what is not polished yet.
void repolish(QWidget *widget);

} // namespace Panel
