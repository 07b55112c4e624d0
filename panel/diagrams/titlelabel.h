// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/ground/elidedlabel.h>

#include <QStringList>

namespace Panel
{

/*! The title of a diagram: parts in a line. Where that has no room, what can be read elsewhere is left
    out; what still has none goes on in a second line. */
class TitleLabel : public ElidedLabel
{
    Q_OBJECT

public:
    explicit TitleLabel(QWidget *parent = nullptr);

    /// The parts in their order, of which \a spare are left out where there is no room, the first one
    /// first. text() is all of them.
    void setParts(const QStringList &parts, const QStringList &spare);
    /// The lines on show: one or two.
    QStringList lines() const { return m_lines; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool fits(const QString &line) const;
    void arrange();

    QStringList m_parts;
    QStringList m_spare;
    QStringList m_lines;
};

} // namespace Panel
