// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "markertable.h"

#include "markerreading.h"

#include <panel/ground/look.h>
#include <panel/ground/quietview.h>
#include <panel/model/cartesian.h>

#include <controls/thememanager.h>

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QLabel>
#include <QScroller>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>

#include <cmath>

namespace Panel
{

namespace
{

constexpr int s_rowHeight = 44;
/// Changes of a live sweep are gathered for so long, in milliseconds: nobody reads faster.
constexpr int s_gathering = 100;
/// What a cell has beside its text, in pixels: the style's padding and a gap.
constexpr int s_cellRoom = 26;
/// The share of the host's height.
constexpr double s_share = 0.3;

enum Column {
    Name,
    Line,
    Frequency,
    FirstValue,
    Vswr = FirstValue + 3,
    ColumnCount,
};

} // namespace

/// The rows of the table: the markers, trace by trace.
class MarkerRows : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit MarkerRows(const PanelModel *model, QObject *parent)
        : QAbstractTableModel(parent)
        , m_model(model)
    {
    }

    /// Reads all markers of the model anew.
    void refresh()
    {
        QVector<Row> rows;
        for (const Trace &trace : m_model->traces()) {
            const QVector<Marker> markers = m_model->markersOf(trace.id);
            for (const Marker &marker : markers)
                rows.append({marker, readMarker(*m_model, marker), vswrAt(*m_model, marker)});
        }
        const bool same = rows.size() == m_rows.size();
        if (!same)
            beginResetModel();
        m_rows = rows;
        if (!same)
            endResetModel();
        else if (!m_rows.isEmpty())
            Q_EMIT dataChanged(index(0, 0), index(int(m_rows.size()) - 1, ColumnCount - 1));
        Q_EMIT headerDataChanged(Qt::Horizontal, FirstValue, Vswr);
    }

    const Marker &marker(int row) const { return m_rows.at(row).marker; }
    /// The row of a marker, or -1.
    int rowOf(const Marker &wanted) const
    {
        for (int row = 0; row < m_rows.size(); ++row) {
            if (marker(row).trace == wanted.trace && marker(row).number == wanted.number)
                return row;
        }
        return -1;
    }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_rows.size());
    }
    int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(ColumnCount);
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        const Row &row = m_rows.at(index.row());
        const Trace *trace = m_model->trace(row.marker.trace);
        if (!trace)
            return {};
        if (role == Qt::ForegroundRole)
            return currentLook().trace(trace->id);
        if (role == Qt::TextAlignmentRole)
            return int(Qt::AlignVCenter
                       | (index.column() < Frequency ? Qt::AlignLeft : Qt::AlignRight));
        if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
            return text(row, *trace, index.column());
        return role == Qt::UserRole ? sortKey(row, index.column()) : QVariant();
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
            return int(Qt::AlignVCenter | (section < Frequency ? Qt::AlignLeft : Qt::AlignRight));
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
            return {};
        if (section >= FirstValue && section < Vswr)
            return valueName(section - FirstValue);
        const QString names[] = {tr("Marker"), tr("Trace"), tr("Frequency")};
        if (section == Vswr)
            return QStringLiteral("VSWR");
        return names[section];
    }

private:
    /// What all rows have there, if they do.
    QString valueName(int value) const
    {
        QStringList names;
        for (const Row &row : m_rows) {
            const Trace *trace = m_model->trace(row.marker.trace);
            if (trace && value < row.reading.values.size())
                names << valueNames(*m_model, *trace).value(value);
        }
        names.removeDuplicates();
        if (names.size() == 1)
            return names.first();
        return value == 0 ? tr("Value") : tr("Value %1").arg(value + 1);
    }

    struct Row {
        Marker marker;
        MarkerReading reading;
        double vswr;
    };

    QString text(const Row &row, const Trace &trace, int column) const
    {
        if (column == Name)
            return trace.label() + QLatin1Char(' ') + markerName(*m_model, row.marker);
        if (column == Line)
            return PanelModel::parameterName(trace) + QLatin1Char(' ') + formatName(trace.format);
        if (column == Vswr)
            return std::isnan(row.vswr) ? QString() : cartesianText(row.vswr, TraceFormat::Vswr);
        return column == Frequency ? row.reading.frequency
                                   : row.reading.values.value(column - FirstValue);
    }

    static QVariant sortKey(const Row &row, int column)
    {
        if (column == Frequency)
            return row.reading.hertz;
        if (column == Vswr)
            return row.vswr;
        if (column >= FirstValue)
            return row.reading.numbers.value(column - FirstValue, qQNaN());
        return row.marker.trace * (Markers::perTrace + 1) + row.marker.number;
    }

    const PanelModel *m_model;
    QVector<Row> m_rows;
};

/// Keeps a row in its trace's colour when it is selected.
class MarkerRowDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        // The style would write what is selected in its own colour.
        if (option->state & QStyle::State_Selected)
            option->backgroundBrush = currentLook().button;
        // The row shows the focus, not a cell.
        option->state &= ~(QStyle::State_Selected | QStyle::State_HasFocus);
    }
};

MarkerTable::MarkerTable(const PanelModel *model, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_rows(new MarkerRows(model, this))
    , m_sorted(new QSortFilterProxyModel(this))
{
    setAttribute(Qt::WA_StyledBackground);
    m_sorted->setSourceModel(m_rows);
    m_sorted->setSortRole(Qt::UserRole);
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(s_gathering);
    connect(&m_refresh, &QTimer::timeout, this, &MarkerTable::refresh);
    const auto later = [this] {
        if (m_model->viewSettings()->markerTable() && !m_refresh.isActive())
            m_refresh.start();
    };
    for (const auto signal : {&PanelModel::tracesChanged, &PanelModel::selectedMarkerChanged,
                              &PanelModel::markerModeChanged})
        connect(m_model, signal, this, later);
    for (const auto signal : {&PanelModel::networkUpdated, &PanelModel::stimulusChanged,
                              &PanelModel::referenceMarkerChanged, &PanelModel::memoryChanged})
        connect(m_model, signal, this, later);
    for (const auto signal :
         {&PanelModel::markerAdded, &PanelModel::markerMoved, &PanelModel::markerRemoved})
        connect(m_model, signal, this, later);
    connect(m_model->viewSettings(), &ViewSettings::changed, this, &MarkerTable::refresh);
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            &MarkerTable::refresh);
    refresh();
}

/// Makes what it shows, which a panel that starts without its table need not wait for.
void MarkerTable::makeTable()
{
    m_table = new QuietView<QTableView>(this);
    m_hint = new QLabel(tr("Tap a trace twice to set a marker."), this);
    m_bandwidth = new QLabel(this);
    m_table->setModel(m_sorted);
    m_table->setItemDelegate(new MarkerRowDelegate(m_table));
    m_table->setAccessibleName(tr("Markers"));
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(Name, Qt::AscendingOrder);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->setFrameShape(QFrame::NoFrame);
    m_table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(s_rowHeight);
    m_table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_table->horizontalHeader()->setFixedHeight(s_rowHeight);
    m_table->horizontalHeader()->setHighlightSections(false);
    QScroller::grabGesture(m_table->viewport(), QScroller::LeftMouseButtonGesture);
    m_table->viewport()->installEventFilter(this);
    for (QLabel *label : {m_hint, m_bandwidth}) {
        label->setObjectName(QStringLiteral("dim"));
        label->setContentsMargins(10, 4, 10, 4);
        label->setWordWrap(true);
    }
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_table, 1);
    column->addWidget(m_hint);
    column->addWidget(m_bandwidth);

    connect(m_table, &QTableView::clicked, this, &MarkerTable::onRowPicked);
    connect(m_table, &QTableView::activated, this, &MarkerTable::onRowPicked);
}

void MarkerTable::setRoom(int height)
{
    setFixedHeight(qMax(2 * s_rowHeight, int(height * s_share)));
}

void MarkerTable::refresh()
{
    const bool shown = m_model->viewSettings()->markerTable();
    if (shown && !m_table)
        makeTable();
    setVisible(shown);
    if (!shown)
        return;
    m_rows->refresh();
    m_hint->setVisible(m_rows->rowCount() == 0);
    fitColumns();
    m_bandwidth->setText(bandwidthText(*m_model));
    m_bandwidth->setVisible(!m_bandwidth->text().isEmpty());
    const Marker *selected = m_model->selectedMarker();
    const int row = selected ? m_rows->rowOf(*selected) : -1;
    if (row < 0) {
        m_table->clearSelection();
        return;
    }
    const QModelIndex current = m_sorted->mapFromSource(m_rows->index(row, Name));
    if (current.row() != m_table->currentIndex().row()
        || !m_table->selectionModel()->hasSelection())
        m_table->selectRow(current.row());
}

/// Gives each column the room of its texts, and of those before: numbers of a live sweep would make
/// it tremble. What room is left is shared; a value that no row has takes none.
void MarkerTable::fitColumns()
{
    QHeaderView *header = m_table->horizontalHeader();
    int sum = 0, shown = 0;
    m_widths.resize(ColumnCount);
    for (int column = 0; column < ColumnCount; ++column) {
        bool used = column <= FirstValue;
        int width = header->sectionSizeHint(column);
        for (int row = 0; row < m_rows->rowCount(); ++row) {
            const QString text = m_rows->index(row, column).data().toString();
            used = used || !text.isEmpty();
            width = qMax(width, fontMetrics().horizontalAdvance(text) + s_cellRoom);
        }
        m_table->setColumnHidden(column, !used);
        m_widths[column] = qMax(m_widths.at(column), width);
        sum += used ? m_widths.at(column) : 0;
        shown += used ? 1 : 0;
    }
    const int spare = qMax(0, m_table->viewport()->width() - sum) / shown;
    for (int column = 0; column < ColumnCount; ++column)
        header->resizeSection(column, m_widths.at(column) + spare);
}

/// The scroll bar, which comes after the rows, takes its room from the columns.
bool MarkerTable::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        fitColumns();
    return QWidget::eventFilter(watched, event);
}

void MarkerTable::onRowPicked(const QModelIndex &index)
{
    const int row = m_sorted->mapToSource(index).row();
    if (row < 0)
        return;
    const Marker marker = m_rows->marker(row);
    Q_EMIT selectionRequested(marker.trace, marker.number);
}

QStringList MarkerTable::rowTexts(int row) const
{
    QStringList texts;
    for (int column = 0; column < ColumnCount; ++column)
        texts << m_sorted->index(row, column).data().toString();
    return texts;
}

} // namespace Panel

#include "markertable.moc"
