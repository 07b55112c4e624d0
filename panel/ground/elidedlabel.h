// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace Panel
{

/*! A line of plain text that is shortened, not clipped, where there is no room for it, and never
   widens its parent. Not for text that must be read whole: that wraps, as in MessageBar. */
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    /// The text loses its middle or, for a sentence, its end.
    explicit ElidedLabel(Qt::TextElideMode mode, QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Qt::TextElideMode m_mode;
};

} // namespace Panel
