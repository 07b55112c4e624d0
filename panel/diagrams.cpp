// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams.h"

#include "cartesianview.h"
#include "look.h"
#include "panelmodel.h"
#include "smithview.h"

#include <controls/thememanager.h>

#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>

namespace Panel
{

/// An edge of one pixel around a view, whose colour says which diagram is active.
class DiagramFrame : public QWidget
{
    Q_OBJECT

public:
    explicit DiagramFrame(QWidget *view)
    {
        auto *inside = new QHBoxLayout(this);
        inside->setContentsMargins(1, 1, 1, 1);
        inside->addWidget(view);
    }

    void setEdge(const QColor &color)
    {
        m_edge = color;
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setPen(m_edge);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }

private:
    QColor m_edge;
};

Diagrams::Diagrams(const PanelModel *model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_smith(new SmithView(model))
    , m_cartesian(new CartesianView(model))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    m_smithFrame = new DiagramFrame(m_smith);
    m_cartesianFrame = new DiagramFrame(m_cartesian);
    row->addWidget(m_smithFrame, 1);
    row->addWidget(m_cartesianFrame, 1);
    connect(m_model, &PanelModel::networksChanged, this, &Diagrams::arrange);
    connect(m_model, &PanelModel::activeTraceChanged, this, &Diagrams::recolor);
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            &Diagrams::recolor);
    arrange();
}

void Diagrams::setDiagramLayout(Layout layout)
{
    if (layout == m_layout)
        return;
    m_layout = layout;
    arrange();
}

void Diagrams::arrange()
{
    const auto &traces = m_model->traces();
    const bool transmits = std::any_of(traces.begin(), traces.end(), [](const Trace &trace) {
        return trace.kind() == Trace::Transmission;
    });
    const bool smith = m_layout != Cartesian || !transmits;
    const bool cartesian = m_layout != Smith && transmits;
    m_smithFrame->setVisible(smith);
    m_cartesianFrame->setVisible(cartesian);
    recolor();
}

void Diagrams::recolor()
{
    const Look look = currentLook();
    const Trace *active = m_model->activeTrace();
    const bool both = !m_smithFrame->isHidden() && !m_cartesianFrame->isHidden();
    const auto edge = [&](Trace::Kind kind) {
        return !both                           ? look.background
            : active && active->kind() == kind ? look.accent
                                               : look.border;
    };
    m_smithFrame->setEdge(edge(Trace::Reflection));
    m_cartesianFrame->setEdge(edge(Trace::Transmission));
}

} // namespace Panel

#include "diagrams.moc"
