// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QRect>
#include <QStringList>
#include <QVector>

namespace Panel
{
class PanelModel;
class PanelWindow;
} // namespace Panel

namespace Fuzz
{

/*! What must hold of what a panel shows, besides markers and axes (panelrules.h): read-outs have the
    digits of their values, two lines differ in colour or dash, dialogs lie within the window, what is
    on show is what would be drawn anew, diagrams lie as they would be laid out anew, and nothing but a
    resize or another layout moves one.

    One object judges one panel after another: it remembers where the diagrams were. */
class ShownRules
{
public:
    /// A sentence for each rule that is broken. Handles events and replots all diagrams.
    QStringList broken(const Panel::PanelModel &model, Panel::PanelWindow &window);

private:
    QPointer<const QObject> m_window; ///< the one of the places
    QVector<int> m_conditions; ///< of the places
    QVector<QRect> m_places; ///< of the diagrams, in the window
};

} // namespace Fuzz
