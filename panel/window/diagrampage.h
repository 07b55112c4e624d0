// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QStringList>

class QCPPainter;

namespace Panel
{

class DiagramView;

/*! A diagram as it comes into a report: dark on white, whatever the panel's theme; above it what it
    shows, below it the verdict of its limits, what its markers read, and when.

    \code
    const DiagramPage page(view);
    painter.scale(width / page.size().width(), width / page.size().width());
    page.draw(&painter);
    \endcode */
class DiagramPage
{
public:
    explicit DiagramPage(DiagramView *view);

    /// What it takes, in pixels of the diagram.
    QSize size() const;
    /// Draws it with its top-left corner at the origin, as lines and texts.
    void draw(QCPPainter *painter) const;

private:
    int lineHeight() const;

    DiagramView *m_view;
    QString m_title;
    QString m_time;
    QStringList m_readings;
};

} // namespace Panel
