// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams.h"

#include "cartesianview.h"
#include "smithview.h"
#include <panel/look/look.h>

#include <controls/thememanager.h>

#include <QGridLayout>
#include <QPainter>

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
        if (color == m_edge)
            return;
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

QVector<QVector<int>> assignTraces(Graph::LayoutType layout, const QVector<Trace> &traces,
                                   int activeTrace)
{
    /// What has to be the same for two traces to share a diagram.
    const auto shareDiagram = [layout](const Trace &a, const Trace &b) {
        if (layout != Graph::LayoutType::Quad)
            return a.onSmithChart() == b.onSmithChart();
        return a.format == b.format && a.to == b.to && a.from == b.from;
    };
    QVector<Trace> firsts; // of each diagram
    QVector<QVector<int>> diagrams;
    int active = 0;
    for (const Trace &trace : traces) {
        int diagram = 0;
        while (diagram < firsts.size() && !shareDiagram(firsts.at(diagram), trace))
            ++diagram;
        if (diagram == firsts.size()) {
            firsts.append(trace);
            diagrams.append(QVector<int>());
        }
        diagrams[diagram].append(trace.id);
        if (trace.id == activeTrace)
            active = diagram;
    }
    if (layout == Graph::LayoutType::Single)
        return diagrams.mid(active, 1);
    if (layout == Graph::LayoutType::Quad)
        return diagrams.mid(active / 4 * 4, 4);
    if (diagrams.size() == 2 && !firsts.first().onSmithChart())
        std::swap(diagrams[0], diagrams[1]);
    return diagrams;
}

Diagrams::Diagrams(const PanelModel *model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(0);
    view(m_smithViews, 0);
    view(m_cartesianViews, 0);
    connect(m_model, &PanelModel::tracesChanged, this, [this] { arrange(true); });
    connect(m_model, &PanelModel::activeTraceChanged, this, [this] { arrange(false); });
    connect(m_model->viewSettings(), &ViewSettings::changed, this, [this] { arrange(false); });
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            &Diagrams::recolor);
    arrange(true);
}

QVector<DiagramView *> Diagrams::allViews() const
{
    QVector<DiagramView *> all;
    for (SmithView *view : m_smithViews)
        all.append(view);
    for (CartesianView *view : m_cartesianViews)
        all.append(view);
    return all;
}

DiagramView *Diagrams::activeView() const
{
    const Trace *active = m_model->activeTrace();
    for (DiagramView *view : m_shown) {
        if (active && view->traceIds().contains(active->id))
            return view;
    }
    return nullptr;
}

void Diagrams::resetViews()
{
    for (DiagramView *view : allViews())
        view->resetView();
}

template<typename View>
View *Diagrams::view(QVector<View *> &views, int index)
{
    if (index == views.size()) {
        auto *view = new View(m_model);
        (new DiagramFrame(view))->setParent(this);
        view->parentWidget()->hide();
        views.append(view);
        Q_EMIT viewMade(view);
    }
    return views.at(index);
}

void Diagrams::arrange(bool reload)
{
    const Trace *active = m_model->activeTrace();
    const auto diagrams = assignTraces(m_model->viewSettings()->diagramLayout(), m_model->traces(),
                                       active ? active->id : 0);
    QVector<DiagramView *> shown;
    int smiths = 0, cartesians = 0;
    for (const QVector<int> &ids : diagrams) {
        DiagramView *view = m_model->trace(ids.first())->onSmithChart()
            ? static_cast<DiagramView *>(this->view(m_smithViews, smiths++))
            : this->view(m_cartesianViews, cartesians++);
        if (reload || view->traceIds() != ids)
            view->setTraces(ids);
        shown.append(view);
    }
    for (DiagramView *view : allViews()) {
        if (!shown.contains(view) && (reload || !view->traceIds().isEmpty()))
            view->setTraces({});
    }
    place(shown);
    recolor();
    Q_EMIT viewsChanged();
}

void Diagrams::place(const QVector<DiagramView *> &views)
{
    // Equal parts: no diagram is wider for what it shows.
    const bool stacked = m_model->viewSettings()->diagramLayout() == Graph::LayoutType::Stacked;
    const int columns = views.size() < 2 || stacked ? 1 : 2;
    for (DiagramView *view : allViews()) {
        QWidget *frame = view->parentWidget();
        m_grid->removeWidget(frame);
        frame->setVisible(views.contains(view));
    }
    for (int i = 0; i < views.size(); ++i) {
        const bool wide = columns == 2 && views.size() == 3 && i == 2;
        m_grid->addWidget(views.at(i)->parentWidget(), i / columns, i % columns, 1, wide ? 2 : 1);
    }
    for (int i = 0; i < 2; ++i) {
        m_grid->setColumnStretch(i, i < columns ? 1 : 0);
        m_grid->setRowStretch(i, i * columns < views.size() ? 1 : 0);
    }
    m_shown = views;
}

void Diagrams::recolor()
{
    const Look look = currentLook();
    const DiagramView *active = activeView();
    for (DiagramView *view : qAsConst(m_shown)) {
        static_cast<DiagramFrame *>(view->parentWidget())
            ->setEdge(m_shown.size() < 2   ? look.background
                          : view == active ? look.accent
                                           : look.border);
    }
}

} // namespace Panel

#include "diagrams.moc"
