// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "limitsheet.h"

#include "numerickeys.h"

#include <panel/ground/numbertext.h>
#include <panel/model/cartesian.h>
#include <panel/model/panelmodel.h>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScroller>
#include <QToolButton>
#include <QVBoxLayout>

namespace Panel
{

namespace
{

constexpr int s_keyHeight = 44;
constexpr int s_sheetMargin = 12;
constexpr int s_width = 760;
constexpr int s_keysWidth = 280; ///< of the soft keys, which stay in sight
/// The height is a share of the host's, in pixels at least and at most.
constexpr double s_share = 0.4;
constexpr int s_lowest = 200;
constexpr int s_highest = 360;

/// The fields of a row.
enum Column {
    Side,
    Start,
    StartValue,
    Stop,
    StopValue,
    RemoveKey,
};

} // namespace

LimitSheet::LimitSheet(PanelModel *model, int traceId, NumericKeys *numbers, QWidget *host)
    : QFrame(host)
    , m_model(model)
    , m_trace(traceId)
    , m_numbers(numbers)
    , m_format(model->trace(traceId)->format)
    , m_rows(new QWidget)
    , m_grid(new QGridLayout(m_rows))
    , m_hint(new QLabel(tr("A limit line is what the trace must stay below, or above.")))
    , m_add(new QPushButton(tr("Add a line")))
    , m_clear(new QPushButton(tr("Remove all")))
    , m_focusBefore(host->window()->focusWidget())
{
    setObjectName(QStringLiteral("sheet"));
    setAccessibleName(title());
    auto *name = new QLabel(title());
    auto *close = new QToolButton;
    close->setObjectName(QStringLiteral("closeSheet"));
    close->setText(QStringLiteral("\u00d7"));
    close->setAccessibleName(tr("Close"));
    close->setFixedSize(s_keyHeight, s_keyHeight);
    connect(close, &QToolButton::clicked, this, &LimitSheet::leave);
    auto *head = new QHBoxLayout;
    head->addWidget(name, 1);
    for (QPushButton *key : {m_clear, m_add}) {
        key->setAutoDefault(false);
        key->setMinimumHeight(s_keyHeight);
        head->addWidget(key);
    }
    head->addWidget(close);

    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setSpacing(6);
    for (const int column : {Start, StartValue, Stop, StopValue})
        m_grid->setColumnStretch(column, 1);
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // it follows the keys in it
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(m_rows);
    area->viewport()->setAutoFillBackground(false);
    m_rows->setAutoFillBackground(false);
    QScroller::grabGesture(area->viewport(), QScroller::LeftMouseButtonGesture);
    m_hint->setObjectName(QStringLiteral("dim"));
    m_hint->setWordWrap(true);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(s_sheetMargin, s_sheetMargin, s_sheetMargin, s_sheetMargin);
    column->addLayout(head);
    column->addWidget(m_hint);
    column->addWidget(area, 1);

    connect(m_add, &QPushButton::clicked, this, &LimitSheet::addLine);
    connect(m_clear, &QPushButton::clicked, this, [this] { setLines({}); });
    for (const auto signal : {&PanelModel::tracesChanged, &PanelModel::activeTraceChanged})
        connect(m_model, signal, this, &LimitSheet::followTrace);
    connect(m_model, &PanelModel::limitsChanged, this, &LimitSheet::followTrace);
    rebuild();
    host->installEventFilter(this);
    place();
    show();
    raise();
    m_add->setFocus();
}

QString LimitSheet::title() const
{
    return tr("Limit lines of %1 %2, %3")
        .arg(m_model->trace(m_trace)->label(), PanelModel::parameterName(*m_model->trace(m_trace)),
             formatName(m_format));
}

/// As wide as its host allows beside the soft keys, over the lower part.
void LimitSheet::place()
{
    const QSize host = parentWidget()->size();
    const QSize size(qMin(s_width, host.width() - s_keysWidth),
                     qBound(s_lowest, int(host.height() * s_share), s_highest));
    setGeometry(QRect(QPoint(0, host.height() - size.height()), size));
}

bool LimitSheet::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        place();
    return QFrame::eventFilter(watched, event);
}

void LimitSheet::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        leave();
    else
        QFrame::keyPressEvent(event);
}

void LimitSheet::leave()
{
    if (m_focusBefore && isAncestorOf(window()->focusWidget()))
        m_focusBefore->setFocus();
    hide();
    deleteLater();
}

void LimitSheet::followTrace()
{
    const Trace *trace = m_model->trace(m_trace);
    const Trace *active = m_model->activeTrace();
    if (trace && trace->format == m_format && active->id == m_trace)
        rebuild();
    else
        leave();
}

QVector<LimitLine> LimitSheet::lines() const
{
    QVector<LimitLine> result;
    const Trace *trace = m_model->trace(m_trace);
    for (const LimitLine &limit : trace ? trace->limits : QVector<LimitLine>()) {
        if (limit.format == m_format)
            result.append(limit);
    }
    return result;
}

/// Those of other formats stay.
void LimitSheet::setLines(const QVector<LimitLine> &lines)
{
    QVector<LimitLine> all;
    for (const LimitLine &limit : m_model->trace(m_trace)->limits) {
        if (limit.format != m_format)
            all.append(limit);
    }
    // Their order may be another one, and so what the selected one is.
    m_model->limitEditing()->deselect();
    m_model->setLimits(m_trace, all + lines);
}

/// A new line goes on where the last one ends. After one over all that is on show comes its
/// counterpart, two divisions away: what must stay below one has a lower end, too, more often than not.
void LimitSheet::addLine()
{
    const Trace &trace = *m_model->trace(m_trace);
    const QVector<LimitLine> before = lines();
    const Stimulus shown = m_model->shownRange(trace);
    LimitLine added{m_format, true, shown.start, shown.stop, 0.0, 0.0};
    const double step = 2.0 * trace.scale.perDivision;
    added.startValue = added.stopValue = trace.scale.top - step;
    if (!before.isEmpty()) {
        const LimitLine &last = before.constLast();
        const bool goesOn = last.stop < shown.stop;
        added.upper = goesOn ? last.upper : !last.upper;
        added.startValue = last.stopValue + (goesOn ? 0.0 : added.upper ? step : -step);
        added.stopValue = added.startValue;
        if (goesOn)
            added.start = qMax(last.stop, shown.start);
    }
    setLines(before + QVector<LimitLine>{added});
}

template<typename Change>
void LimitSheet::change(int row, Change apply)
{
    QVector<LimitLine> changed = lines();
    if (row >= changed.size())
        return;
    apply(changed[row]);
    // Ends that pass each other change places.
    LimitLine &line = changed[row];
    if (line.start > line.stop) {
        std::swap(line.start, line.stop);
        std::swap(line.startValue, line.stopValue);
    }
    setLines(changed);
}

QPushButton *LimitSheet::addKey(const QString &name, int row, int column)
{
    auto *key = new QPushButton;
    key->setAccessibleName(QStringLiteral("%1 %2").arg(name).arg(row + 1));
    key->setAutoDefault(false);
    key->setMinimumHeight(s_keyHeight);
    m_grid->addWidget(key, row, column);
    return key;
}

void LimitSheet::addRow(int row)
{
    const auto addNumber = [&](Column column, const QString &name, double LimitLine::*number) {
        const bool isFrequency = column == Start || column == Stop;
        QPushButton *key = addKey(name, row, column);
        connect(key, &QPushButton::clicked, this, [=] {
            // The keypad may outlive the sheet, which leaves with its trace.
            const auto apply = [self = QPointer<LimitSheet>(this), row, number](double value) {
                if (self)
                    self->change(row, [=](LimitLine &line) { line.*number = value; });
            };
            if (isFrequency)
                m_numbers->editFrequency(m_rows, name, lines().at(row).*number, apply);
            else
                m_numbers->editValue(m_rows, name, m_format, lines().at(row).*number, apply);
        });
    };
    QPushButton *side = addKey(tr("Side"), row, Side);
    connect(side, &QPushButton::clicked, this,
            [=] { change(row, [](LimitLine &line) { line.upper = !line.upper; }); });
    addNumber(Start, tr("Start"), &LimitLine::start);
    addNumber(StartValue, tr("Value at start"), &LimitLine::startValue);
    addNumber(Stop, tr("Stop"), &LimitLine::stop);
    addNumber(StopValue, tr("Value at stop"), &LimitLine::stopValue);
    QPushButton *remove = addKey(tr("Remove"), row, RemoveKey);
    remove->setText(QStringLiteral("\u00d7"));
    remove->setFixedWidth(s_keyHeight);
    connect(remove, &QPushButton::clicked, this, [=] {
        QVector<LimitLine> left = lines();
        left.remove(row);
        setLines(left);
    });
}

/// Texts of the rows that are there already.
void LimitSheet::updateTexts(const QVector<LimitLine> &all)
{
    for (int row = 0; row < all.size(); ++row) {
        const LimitLine &limit = all.at(row);
        const auto setText = [this, row](Column column, const QString &text) {
            auto *key = static_cast<QPushButton *>(m_grid->itemAtPosition(row, column)->widget());
            key->setText(text);
            key->setAccessibleDescription(text); // its name says what it is for
        };
        setText(Side, limit.upper ? tr("below") : tr("above"));
        setText(Start, frequencyText(limit.start));
        setText(StartValue, cartesianText(limit.startValue, m_format));
        setText(Stop, frequencyText(limit.stop));
        setText(StopValue, cartesianText(limit.stopValue, m_format));
    }
}

/// Rows as there are lines. Keys that are needed again stay, so that the focus returns to them from
/// the keypad.
void LimitSheet::rebuild()
{
    if (m_grid->count() == lines().size() * (RemoveKey + 1)) {
        updateTexts(lines());
        showCount();
        return;
    }
    const int focused = m_grid->indexOf(focusWidget());
    while (QLayoutItem *item = m_grid->takeAt(0)) {
        if (item->widget()) {
            item->widget()->hide();
            item->widget()->deleteLater(); // one of them may be in the middle of its click
        }
        delete item;
    }
    const QVector<LimitLine> all = lines();
    for (int row = 0; row < all.size(); ++row)
        addRow(row);
    m_grid->setRowStretch(LimitLine::perTrace, 1);
    updateTexts(all);
    showCount();
    QLayoutItem *item = focused < 0 ? nullptr : m_grid->itemAt(focused);
    if (item && item->widget())
        item->widget()->setFocus();
}

/// What can be done with as many lines as there are.
void LimitSheet::showCount()
{
    const bool none = lines().isEmpty();
    m_hint->setVisible(none);
    m_clear->setEnabled(!none);
    m_add->setEnabled(m_model->trace(m_trace)->limits.size() < LimitLine::perTrace);
}

} // namespace Panel
