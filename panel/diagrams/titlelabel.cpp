// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "titlelabel.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

namespace Panel
{

namespace
{

QString joined(const QStringList &parts)
{
    return parts.join(QStringLiteral(" \u00b7 "));
}

} // namespace

TitleLabel::TitleLabel(QWidget *parent)
    : ElidedLabel(Qt::ElideRight, parent)
    , m_lines(QString())
{
}

void TitleLabel::setParts(const QStringList &parts, const QStringList &spare)
{
    m_parts = parts;
    m_spare = spare;
    setText(joined(parts));
    arrange();
}

bool TitleLabel::fits(const QString &line) const
{
    return fontMetrics().horizontalAdvance(line) <= contentsRect().width();
}

void TitleLabel::arrange()
{
    QStringList parts = m_parts;
    for (const QString &part : qAsConst(m_spare)) {
        if (!fits(joined(parts)))
            parts.removeOne(part);
    }
    QStringList lines{joined(parts)};
    if (!fits(lines.first())) {
        QStringList first;
        while (!parts.isEmpty() && fits(joined(first + parts.mid(0, 1))))
            first << parts.takeFirst();
        // A part that has no room on a line alone is shortened there.
        if (!first.isEmpty())
            lines = QStringList{joined(first), joined(parts)};
    }
    const bool higher = lines.size() != m_lines.size();
    m_lines = lines;
    update();
    if (higher)
        updateGeometry();
}

QSize TitleLabel::sizeHint() const
{
    const QMargins margins = contentsMargins();
    return {0, int(m_lines.size()) * fontMetrics().height() + margins.top() + margins.bottom()};
}

QSize TitleLabel::minimumSizeHint() const
{
    return sizeHint();
}

void TitleLabel::changeEvent(QEvent *event)
{
    ElidedLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        arrange();
}

void TitleLabel::resizeEvent(QResizeEvent *event)
{
    ElidedLabel::resizeEvent(event);
    arrange();
}

void TitleLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QRect line = contentsRect();
    line.setHeight(fontMetrics().height());
    for (const QString &text : qAsConst(m_lines)) {
        style()->drawItemText(
            &painter, line, int(Qt::AlignLeft | Qt::AlignVCenter), palette(), isEnabled(),
            fontMetrics().elidedText(text, Qt::ElideRight, line.width()), foregroundRole());
        line.translate(0, line.height());
    }
}

} // namespace Panel
