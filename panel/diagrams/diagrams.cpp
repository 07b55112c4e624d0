// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams.h"

#include "cartesianview.h"
#include "chartgestures.h"
#include "diagramreader.h"
#include "largereading.h"
#include "limiteditor.h"
#include "polarview.h"
#include "smithview.h"
#include "tracewalker.h"

#include <panel/ground/look.h>
#include <panel/ground/pointerevent.h>

#include <controls/thememanager.h>

#include <QEvent>
#include <QGridLayout>
#include <QPainter>

namespace Panel
{

/// An edge around a view: its colour says which diagram is active, its width whether keys go there.
class DiagramFrame : public QWidget
{
    Q_OBJECT

public:
    explicit DiagramFrame(QWidget *view, QWidget *parent)
        : QWidget(parent)
    {
        auto *inside = new QHBoxLayout(this);
        // At 125 % a plot paints up to a pixel of the screen beyond its rectangle.
        constexpr int margin = s_width + 1;
        inside->setContentsMargins(margin, margin, margin, margin);
        inside->addWidget(view);
    }

    void setEdge(const QColor &color, bool focused)
    {
        if (color == m_edge && focused == m_focused)
            return;
        m_edge = color;
        m_focused = focused;
        update();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const int lines = m_focused ? s_width : 1;
        painter.setPen(m_edge);
        for (int i = 0; i < lines; ++i)
            painter.drawRect(rect().adjusted(i, i, -1 - i, -1 - i));
    }

private:
    static constexpr int s_width = 2;

    QColor m_edge;
    bool m_focused = false;
};

Diagrams::Diagrams(PanelModel *model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(0);
    view({DiagramKind::Smith, 0});
    view({DiagramKind::Cartesian, 0});
    for (const auto signal : {&PanelModel::tracesChanged, &PanelModel::activeTraceChanged})
        connect(m_model, signal, this, &Diagrams::arrange);
    connect(m_model->viewSettings(), &ViewSettings::changed, this, &Diagrams::arrange);
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            &Diagrams::recolor);
    arrange();
}

QVector<DiagramView *> Diagrams::allViews() const
{
    QVector<DiagramView *> all;
    for (const auto &[id, view] : m_views)
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

SmithView *Diagrams::smithView() const
{
    return static_cast<SmithView *>(m_views.at({DiagramKind::Smith, 0}));
}

CartesianView *Diagrams::cartesianView() const
{
    return static_cast<CartesianView *>(m_views.at({DiagramKind::Cartesian, 0}));
}

/// The view of a diagram, made when it is first needed.
DiagramView *Diagrams::view(const DiagramId &id)
{
    DiagramView *&view = m_views[id];
    if (view)
        return view;
    if (id.kind == DiagramKind::Smith)
        view = new SmithView(m_model, id);
    else if (id.kind == DiagramKind::Polar)
        view = new PolarView(m_model, id);
    else
        view = new CartesianView(m_model, id);
    (new DiagramFrame(view, this))->hide();
    const auto *reader = new DiagramReader(m_model, view);
    const auto *walker = new TraceWalker(m_model, view);
    connect(walker, &TraceWalker::said, reader, &DiagramReader::announce);
    connect(walker, &TraceWalker::said, this, &Diagrams::said);
    connect(walker, &TraceWalker::walked, this, &Diagrams::pointed);
    connect(view->plot(), &QCustomPlot::mouseMove, this,
            [this, view = view](const QMouseEvent *event) { tellPointer(view, event); });
    (new LargeReading(m_model, view))->setWanted(m_largeReading);
    if (const LimitEditor *limits = makeLimitEditor(m_model, view)) {
        connect(limits, &LimitEditor::said, reader, &DiagramReader::announce);
        connect(limits, &LimitEditor::refused, this, &Diagrams::said);
    }
    const auto *gestures = new ChartGestures(m_model, view);
    connect(gestures, &ChartGestures::said, this, &Diagrams::said);
    view->plot()->installEventFilter(this);
    return view;
}

void Diagrams::setLargeReading(bool large)
{
    m_largeReading = large;
    for (const DiagramView *view : allViews())
        view->findChild<LargeReading *>()->setWanted(large);
}

void Diagrams::tellPointer(const DiagramView *view, const QMouseEvent *event)
{
    if (!m_tellsPointer || event->buttons() != Qt::NoButton)
        return;
    const Hit hit = view->hit(pointerPosition(event));
    if (hit.kind == Hit::Line)
        Q_EMIT pointed(hit.trace, hit.index);
}

bool Diagrams::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        recolor();
    return QWidget::eventFilter(watched, event);
}

void Diagrams::arrange()
{
    if (m_model->isChanging())
        return;
    const QVector<PlannedDiagram> planned = m_model->diagrams();
    QVector<DiagramView *> shown;
    for (const PlannedDiagram &diagram : planned) {
        DiagramView *view = this->view(diagram.id);
        view->setTraces(diagram.traces);
        shown.append(view);
    }
    for (DiagramView *view : allViews()) {
        if (!shown.contains(view))
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
    constexpr int maximumLines = 4; // of diagrams below each other
    for (int i = 0; i < maximumLines; ++i) {
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
        const bool focused = view->plot()->hasFocus();
        const bool marked = focused || (m_shown.size() > 1 && view == active);
        const QColor plain = m_shown.size() > 1 ? look.border : look.background;
        static_cast<DiagramFrame *>(view->parentWidget())
            ->setEdge(marked ? look.accent : plain, focused);
    }
}

} // namespace Panel

#include "diagrams.moc"
