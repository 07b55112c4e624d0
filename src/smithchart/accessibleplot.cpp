// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "accessibleplot_p.h"

#include "accessibletable_p.h"

#include <algorithm>
#include <cmath>

PlotDescription::~PlotDescription() = default;

QAccessibleInterface *PlotPartAccessible::plot() const
{
    return QAccessible::queryAccessibleInterface(m_parts->plot());
}

QWindow *PlotPartAccessible::window() const
{
    const QAccessibleInterface *const whole = plot();
    return whole ? whole->window() : nullptr;
}

QAccessibleInterface *PlotPartAccessible::parent() const
{
    return plot();
}

QRect PlotPartAccessible::rect() const
{
    const QAccessibleInterface *const whole = plot();
    return whole ? whole->rect() : QRect();
}

QAccessible::State PlotPartAccessible::state() const
{
    QAccessible::State state;
    const QAccessibleInterface *const whole = plot();
    state.invisible = !whole || whole->state().invisible;
    state.readOnly = true;
    return state;
}

namespace
{

/// A marker: its value is its stimulus.
class MarkerAccessible : public PlotPartAccessible, public QAccessibleValueInterface
{
public:
    MarkerAccessible(PlotParts *parts, const PlotParts::Part &part)
        : PlotPartAccessible(parts)
        , m_part(part)
    {
    }

    bool isValid() const override { return m_parts->holds(m_part); }
    QAccessible::Role role() const override { return QAccessible::Slider; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name && isValid() ? m_part.description->markerText(id())
                                                      : QString();
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = PlotPartAccessible::state();
        state.readOnly = false;
        return state;
    }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : nullptr;
    }

    QVariant currentValue() const override { return value().value; }
    QVariant minimumValue() const override { return value().minimum; }
    QVariant maximumValue() const override { return value().maximum; }
    QVariant minimumStepSize() const override { return 0.0; }
    void setCurrentValue(const QVariant &wanted) override
    {
        bool isNumber = false;
        const double value = wanted.toDouble(&isNumber);
        if (isNumber && std::isfinite(value) && isValid())
            m_part.description->requestMarkerValue(id(), value);
    }

private:
    PlotDescription::MarkerId id() const { return {m_part.trace, m_part.number}; }
    PlotDescription::MarkerValue value() const
    {
        return isValid() ? m_part.description->markerValue(id())
                         : PlotDescription::MarkerValue{0.0, 0.0, 0.0};
    }

    const PlotParts::Part m_part;
};

/// What a limit says.
class VerdictAccessible : public PlotPartAccessible
{
public:
    VerdictAccessible(PlotParts *parts, const PlotParts::Part &part)
        : PlotPartAccessible(parts)
        , m_part(part)
    {
    }

    bool isValid() const override { return m_parts->holds(m_part); }
    QAccessible::Role role() const override { return QAccessible::StaticText; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name && isValid()
            ? m_part.description->verdicts().value(m_part.number)
            : QString();
    }

private:
    const PlotParts::Part m_part;
};

} // namespace

/// The plot itself.
class PlotAccessible : public QAccessibleWidget
{
public:
    PlotAccessible(QCustomPlot *plot, AccessiblePlot *owner)
        : QAccessibleWidget(plot, QAccessible::Chart)
        , m_owner(owner)
    {
    }

    static QAccessibleInterface *make(const QString &className, QObject *object)
    {
        if (className != QLatin1String(QCustomPlot::staticMetaObject.className()))
            return nullptr;
        auto *const owner =
            object->findChild<AccessiblePlot *>(QString(), Qt::FindDirectChildrenOnly);
        return owner ? new PlotAccessible(static_cast<QCustomPlot *>(object), owner) : nullptr;
    }

    /// The parts, then the widgets in the plot, then what is announced.
    int childCount() const override { return partCount() + widgetCount() + (line() ? 1 : 0); }
    QAccessibleInterface *child(int index) const override
    {
        if (index >= 0 && index < partCount())
            return parts().object(parts().all().at(index));
        return index == partCount() + widgetCount() ? line()
                                                    : QAccessibleWidget::child(index - partCount());
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        if (!m_owner || !child)
            return QAccessibleWidget::indexOfChild(child);
        if (child == line())
            return partCount() + widgetCount();
        const auto all = parts().all();
        const auto found = std::find_if(all.begin(), all.end(), [&](const PlotParts::Part &part) {
            return parts().knownObject(part) == child;
        });
        if (found != all.end())
            return static_cast<int>(found - all.begin());
        const int widget = QAccessibleWidget::indexOfChild(child);
        return widget < 0 ? -1 : widget + static_cast<int>(all.size());
    }
    QString text(QAccessible::Text kind) const override
    {
        if (!m_owner || (kind != QAccessible::Name && kind != QAccessible::Description))
            return QAccessibleWidget::text(kind);
        QStringList texts;
        for (const PlotDescription *description : parts().descriptions())
            texts << (kind == QAccessible::Name ? description->name() : description->summary());
        return texts.join(QLatin1Char(' '));
    }

private:
    PlotParts &parts() const { return *m_owner->m_parts; }
    int partCount() const { return m_owner ? static_cast<int>(parts().all().size()) : 0; }
    int widgetCount() const { return QAccessibleWidget::childCount(); }
    QAccessibleInterface *line() const { return m_owner ? m_owner->m_announcer->line() : nullptr; }

    const QPointer<AccessiblePlot> m_owner;
};

PlotParts::~PlotParts()
{
    for (const Known &known : std::as_const(m_known))
        QAccessible::deleteAccessibleInterface(known.id);
}

void PlotParts::remove(PlotDescription *description)
{
    // First the objects: one that can be asked has its description.
    for (int i = static_cast<int>(m_known.size()) - 1; i >= 0; --i) {
        if (m_known.at(i).part.description == description)
            QAccessible::deleteAccessibleInterface(m_known.takeAt(i).id);
    }
    m_descriptions.removeOne(description);
}

QVector<PlotParts::Part> PlotParts::all() const
{
    QVector<Part> parts;
    for (PlotDescription *const description : m_descriptions) {
        for (const int trace : description->traces())
            parts.append({description, Table, trace, 0});
        for (const PlotDescription::MarkerId &id : description->markers())
            parts.append({description, Marker, id.trace, id.number});
        for (int i = 0; i < description->verdicts().size(); ++i)
            parts.append({description, Verdict, 0, i});
    }
    return parts;
}

bool PlotParts::holds(const Part &part) const
{
    if (part.kind == Table)
        return part.description->traces().contains(part.trace);
    if (part.kind == Verdict)
        return part.number < part.description->verdicts().size();
    const auto markers = part.description->markers();
    return std::any_of(markers.begin(), markers.end(), [&](const PlotDescription::MarkerId &id) {
        return id.trace == part.trace && id.number == part.number;
    });
}

QAccessibleInterface *PlotParts::knownObject(const Part &part) const
{
    const auto found = std::find_if(m_known.begin(), m_known.end(),
                                    [&](const Known &known) { return known.part == part; });
    return found == m_known.end() ? nullptr : QAccessible::accessibleInterface(found->id);
}

QVector<QAccessible::Id> PlotParts::knownTables() const
{
    QVector<QAccessible::Id> tables;
    for (const Known &known : m_known) {
        if (known.part.kind == Table && holds(known.part))
            tables << known.id;
    }
    return tables;
}

QAccessibleInterface *PlotParts::object(const Part &part)
{
    if (QAccessibleInterface *const known = knownObject(part))
        return known;
    QAccessibleInterface *made = nullptr;
    if (part.kind == Table)
        made = new TraceTableAccessible(this, part);
    else if (part.kind == Marker)
        made = new MarkerAccessible(this, part);
    else
        made = new VerdictAccessible(this, part);
    m_known.append({part, QAccessible::registerAccessibleInterface(made)});
    return made;
}

AccessiblePlot *AccessiblePlot::on(QCustomPlot *plot)
{
    if (!plot)
        return nullptr;
    auto *known = plot->findChild<AccessiblePlot *>(QString(), Qt::FindDirectChildrenOnly);
    return known ? known : new AccessiblePlot(plot);
}

AccessiblePlot::AccessiblePlot(QCustomPlot *plot)
    : QObject(plot)
    , m_parts(std::make_unique<PlotParts>(plot))
    , m_announcer(new Controls::Announcer(plot))
{
    m_announcer->setParent(this);
    QAccessible::installFactory(&PlotAccessible::make);
    // One that was asked for before would be kept, as that of a plain widget.
    if (QAccessibleInterface *const before = QAccessible::queryAccessibleInterface(plot)) {
        if (before->role() != QAccessible::Chart)
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(before));
    }
    m_dataPause.setSingleShot(true);
    m_dataPause.setInterval(pause);
    connect(&m_dataPause, &QTimer::timeout, this, &AccessiblePlot::resetTables);
    connect(m_announcer, &Controls::Announcer::announced, this, &AccessiblePlot::announced);
}

AccessiblePlot::~AccessiblePlot() = default;

void AccessiblePlot::add(PlotDescription *description)
{
    if (description && !m_parts->descriptions().contains(description))
        m_parts->add(description);
}

void AccessiblePlot::remove(PlotDescription *description)
{
    m_parts->remove(description);
}

void AccessiblePlot::announce(const QString &text)
{
    m_announcer->announce(text);
}

void AccessiblePlot::tellMarkerMoved(PlotDescription *description,
                                     const PlotDescription::MarkerId &id)
{
    const PlotParts::Part part{description, PlotParts::Marker, id.trace, id.number};
    QAccessibleInterface *const marker = m_parts->knownObject(part);
    if (!marker || !marker->isValid())
        return;
    QAccessibleValueChangeEvent event(marker, description->markerValue(id).value);
    QAccessible::updateAccessibility(&event);
}

void AccessiblePlot::tellDataChanged()
{
    if (!m_dataPause.isActive())
        m_dataPause.start();
}

void AccessiblePlot::resetTables()
{
    const auto tables = m_parts->knownTables();
    for (const QAccessible::Id id : tables) {
        QAccessibleInterface *const table = QAccessible::accessibleInterface(id);
        if (!table) // a tool may have had its description removed
            continue;
        QAccessibleTableModelChangeEvent event(table, QAccessibleTableModelChangeEvent::ModelReset);
        table->tableInterface()->modelChange(&event);
        QAccessible::updateAccessibility(&event);
    }
}
