// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace Panel
{

class CartesianView;
class DiagramFrame;
class PanelModel;
class SmithView;

/*! The diagrams, one or two side by side: reflection on the Smith chart, transmission over the
    frequency. One that would have nothing to show gives its place to the other. */
class Diagrams : public QWidget
{
    Q_OBJECT

public:
    /// Which diagrams the user wants to see.
    enum Layout {
        Both,
        Smith,
        Cartesian,
    };

    explicit Diagrams(const PanelModel *model, QWidget *parent = nullptr);

    SmithView *smithView() const { return m_smith; }
    CartesianView *cartesianView() const { return m_cartesian; }

    Layout diagramLayout() const { return m_layout; }
    void setDiagramLayout(Layout layout);

private:
    void arrange();
    void recolor();

    const PanelModel *m_model;
    DiagramFrame *m_smithFrame;
    DiagramFrame *m_cartesianFrame;
    SmithView *m_smith;
    CartesianView *m_cartesian;
    Layout m_layout = Both;
};

} // namespace Panel
