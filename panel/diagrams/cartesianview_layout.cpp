// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Where the parts of a Cartesian diagram are.
#include "cartesianview.h"
#include "freeplace.h"
#include "readouts.h"

namespace Panel
{

void CartesianView::onLayout()
{
    QCPAxisRect *rect = plot()->axisRect();
    // Above is room for a marker on the topmost line and its number.
    const QMargins margins(12, 18 + fontMetrics().height() + 6, 14,
                           FrequencyAxis::heightFor(fontMetrics(), plot()->width()));
    if (rect->minimumMargins() != margins) {
        rect->setMinimumMargins(margins);
        m_laidOut = {};
    }
    const bool changed = rect->size() != m_laidOut;
    // Other numbers beside the axis may want another margin, which leaves another rectangle.
    constexpr int maximumPasses = 3;
    for (int pass = 0; pass < maximumPasses && rect->size() != m_laidOut; ++pass) {
        m_laidOut = rect->size();
        showWrittenScale();
        for (const auto phase : {QCPLayoutElement::upPreparation, QCPLayoutElement::upMargins,
                                 QCPLayoutElement::upLayout})
            plot()->plotLayout()->update(phase);
    }
    m_laidOut = rect->size();
    m_frequencies.fit();
    const QPoint corner = rect->rect().topRight() + QPoint(-8, 8);
    m_fitButton->setCorner(corner);
    if (!changed)
        return;
    fillLines();
    readOuts()->showOver({rect->width() - 16, rect->height() / 2});
    placeReadOuts();
}

/// Puts the verdict and the read-outs where they hide the least, and what is said in place of these
/// above the diagram.
void CartesianView::placeReadOuts()
{
    constexpr int margin = 8;
    const QRect rect = plot()->axisRect()->rect();
    QRect room = rect.adjusted(margin, margin, -margin, -margin);
    const auto leave = [&room](const QWidget *box, const BoxPlace &place) {
        if (place.row == 0)
            room.setTop(qMax(room.top(), box->geometry().bottom() + margin));
        else
            room.setBottom(qMin(room.bottom(), box->geometry().top() - margin));
    };
    if (!m_fitButton->isHidden())
        leave(m_fitButton, {2, 0});
    QVector<QCPGraph *> lines;
    for (const auto &[id, line] : m_lines)
        lines.append(line.graph);
    if (!verdict()->isHidden()) {
        m_verdictPlace =
            freestPlace(room, verdict()->size(), lines, m_verdictPlace, BoxPlaces::Corners);
        const QRect box = boxIn(room, verdict()->size(), m_verdictPlace);
        m_limits.verdict()->setCorner({box.left() + box.width(), box.top()});
        leave(verdict(), m_verdictPlace);
    }
    if (readOuts()->markers().isEmpty()) {
        const int left = qMin(rect.left(), plot()->width() - readOuts()->width());
        readOuts()->move(qMax(0, left), qMax(0, rect.top() - readOuts()->height()));
        return;
    }
    m_readOutPlace = freestPlace(room, readOuts()->size(), lines, m_readOutPlace, BoxPlaces::All);
    readOuts()->move(boxIn(room, readOuts()->size(), m_readOutPlace).topLeft());
}

} // namespace Panel
