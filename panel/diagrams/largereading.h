// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QWidget>

namespace Panel
{

class DiagramView;
class PanelModel;

/// What the selected marker reads, over the whole diagram and as large as there is room for, to be
/// read from afar; traces shine through. Hidden at first, and while no marker of the diagram is
/// selected.
class LargeReading : public QWidget
{
    Q_OBJECT

public:
    LargeReading(const PanelModel *model, DiagramView *view);

    bool isWanted() const { return m_wanted; }
    void setWanted(bool wanted);
    QStringList lines() const { return m_lines; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void refresh();

    const PanelModel *m_model;
    DiagramView *m_view;
    bool m_wanted = false;
    QStringList m_lines;
    QColor m_color; ///< of the marker's trace
};

} // namespace Panel
