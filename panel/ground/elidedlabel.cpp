// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "elidedlabel.h"

#include <QPainter>
#include <QStyle>

namespace Panel
{

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget *parent)
    : QLabel(parent)
    , m_mode(mode)
{
    // What a file is called must not become markup.
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 3, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRect area = contentsRect();
    style()->drawItemText(&painter, area, int(alignment()), palette(), isEnabled(),
                          fontMetrics().elidedText(text(), m_mode, area.width()), foregroundRole());
}

} // namespace Panel
