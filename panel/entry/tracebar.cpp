// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tracebar.h"

#include <panel/ground/look.h>
#include <panel/ground/pointerevent.h>
#include <panel/model/panelmodel.h>

#include <controls/thememanager.h>

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QScroller>
#include <QToolButton>

namespace Panel
{

/// One trace: framed and tinted with its colour when active, dashed and pale when hidden. Where there are
/// several files it shows its own below, and how its line is drawn.
class TraceButton : public QAbstractButton
{
    Q_OBJECT

public:
    TraceButton(int traceId, QWidget *parent)
        : QAbstractButton(parent)
        , m_traceId(traceId)
    {
        m_small = font();
        m_small.setPixelSize(qMax(9, QFontInfo(m_small).pixelSize() * 3 / 4));
        setCheckable(true);
        setFocusPolicy(Qt::StrongFocus);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    int traceId() const { return m_traceId; }

    /// What the trace is called is followed by the fields.
    void setTexts(const QString &label, const QStringList &fields, bool shown)
    {
        const QString name = fontMetrics().elidedText(
            label, Qt::ElideRight, s_labelCharacters * fontMetrics().averageCharWidth());
        m_shown = shown;
        if (name != text() || fields != m_fields) {
            setText(name);
            m_fields = fields;
            updateGeometry();
        }
        const QString all = label + QLatin1Char(' ') + fields.join(QLatin1Char(' '));
        setAccessibleName(shown ? all : TraceBar::tr("%1 (hidden)").arg(all));
        update();
    }

    /// The file of the trace by name and place; no name where there is only one file.
    void setFile(const QString &name, int place)
    {
        if (name == m_fileName && place == m_file)
            return;
        m_fileName = name;
        m_file = place;
        updateGeometry();
        update();
    }

    /// Leaves out all but the first field.
    void setShort(bool isShort)
    {
        if (isShort == m_short)
            return;
        m_short = isShort;
        updateGeometry();
        update();
    }

    QRect fieldRect(int field) const
    {
        int left = s_padding + advance(text());
        for (int i = 0; i < field; ++i)
            left += advance(m_fields.at(i));
        return {left, 0, advance(m_fields.at(field)), height() - fileHeight()};
    }

    /// The field at a point, or -1.
    int fieldAt(const QPoint &position) const
    {
        for (int i = 0; i < shownFields(); ++i) {
            if (fieldRect(i).contains(position))
                return i;
        }
        return -1;
    }

    /// Where the pointer was released last.
    QPoint released() const { return m_released; }
    int fullWidth() const { return width(int(m_fields.size())); }

    QSize sizeHint() const override
    {
        return {qMax(width(shownFields()), fileWidth()),
                qMax(fontMetrics().height() + fileHeight() + 10, s_height)};
    }

protected:
    // The model says which trace is active, not the click.
    void nextCheckState() override { }

    void mouseReleaseEvent(QMouseEvent *event) override
    {
        m_released = pointerPosition(event).toPoint();
        QAbstractButton::mouseReleaseEvent(event);
        m_released = {-1, -1};
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            QAbstractButton::keyPressEvent(event);
    }

    void paintEvent(QPaintEvent *) override
    {
        const Look look = currentLook();
        QColor color = look.trace(m_traceId);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setLayoutDirection(Qt::LeftToRight); // "10 dB/" in every language
        // Around the frame of an active trace another colour tells of the focus.
        const QColor focused = isChecked() ? look.text : color;
        QPen edge(hasFocus()        ? focused
                      : isChecked() ? color
                                    : look.border,
                  hasFocus()        ? 2.5
                      : isChecked() ? 2.0
                                    : 1.0);
        QColor tint = color;
        tint.setAlphaF(s_tint);
        if (!m_shown) {
            edge.setStyle(Qt::DashLine);
            color.setAlphaF(0.6F);
        }
        painter.setPen(edge);
        painter.setBrush(isDown() ? look.button : isChecked() ? tint : look.bar);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 4.0, 4.0);
        painter.setPen(color);
        painter.drawText(QRect(s_padding, 0, advance(text()), height() - fileHeight()),
                         Qt::AlignVCenter, text());
        for (int i = 0; i < shownFields(); ++i)
            painter.drawText(fieldRect(i), Qt::AlignVCenter, m_fields.at(i));
        if (!m_fileName.isEmpty())
            paintFile(painter);
    }

private:
    static constexpr int s_height = 44;
    static constexpr int s_padding = 12;
    static constexpr int s_labelCharacters = 12; ///< as wide as a long name can be
    static constexpr float s_tint = 0.22F; ///< of the active one
    static constexpr int s_sample = 18; ///< the length of the piece of line

    void paintFile(QPainter &painter)
    {
        const int middle = height() - fileHeight() / 2 - 4;
        QPen line = currentLook().pen(m_traceId, m_file);
        line.setColor(painter.pen().color());
        painter.setFont(m_small);
        const QRect place(s_padding + s_sample + 4, height() - fileHeight() - 4,
                          width() - 2 * s_padding - s_sample - 4, fileHeight());
        painter.drawText(
            place, Qt::AlignVCenter,
            QFontMetrics(m_small).elidedText(m_fileName, Qt::ElideRight, place.width()));
        line.setWidthF(1.5);
        painter.setPen(line);
        painter.drawLine(s_padding, middle, s_padding + s_sample, middle);
    }

    /// Room for the beginning of a long name.
    int fileWidth() const
    {
        const QFontMetrics metrics(m_small);
        return m_fileName.isEmpty() ? 0
                                    : 2 * s_padding + s_sample + 4
                + qMin(metrics.horizontalAdvance(m_fileName), 13 * metrics.averageCharWidth());
    }

    int fileHeight() const { return m_fileName.isEmpty() ? 0 : QFontMetrics(m_small).height(); }

    /// A word and the space after it.
    int advance(const QString &word) const
    {
        return fontMetrics().horizontalAdvance(word + QLatin1Char(' '));
    }
    int shownFields() const { return m_short ? 1 : int(m_fields.size()); }
    using QAbstractButton::width;
    int width(int fields) const
    {
        int sum = 2 * s_padding + advance(text()) - advance(QString());
        for (int i = 0; i < fields; ++i)
            sum += advance(m_fields.at(i));
        return sum;
    }

    int m_traceId;
    QStringList m_fields;
    QFont m_small;
    QString m_fileName;
    int m_file = 0;
    bool m_shown = true;
    bool m_short = false;
    QPoint m_released = {-1, -1};
};

namespace
{

constexpr int s_addWidth = 44;

} // namespace

TraceBar::TraceBar(const PanelModel *model, QWidget *parent)
    : QScrollArea(parent)
    , m_model(model)
    , m_add(new QToolButton(this))
{
    setAccessibleName(tr("Traces"));
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto *content = new QWidget(this);
    m_row = new QHBoxLayout(content);
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(8);
    m_row->addStretch();
    setWidget(content);
    QScroller::grabGesture(viewport(), QScroller::LeftMouseButtonGesture);
    m_add->setObjectName(QStringLiteral("addTrace"));
    m_add->setText(QStringLiteral("+"));
    m_add->setAccessibleName(tr("Add a trace"));
    m_add->setToolTip(tr("Add a trace"));
    m_add->setFixedSize(s_addWidth, sizeHint().height());
    m_row->insertWidget(0, m_add);
    connect(m_add, &QToolButton::clicked, this, &TraceBar::addRequested);

    connect(m_model, &PanelModel::tracesChanged, this, &TraceBar::rebuild);
    connect(m_model, &PanelModel::activeTraceChanged, this, &TraceBar::refresh);
    connect(m_model, &PanelModel::traceVisibleChanged, this, &TraceBar::refresh);
    connect(m_model, &PanelModel::traceScaleChanged, this, &TraceBar::refresh);
    connect(m_model, &PanelModel::zoomChanged, this, &TraceBar::refresh);
    connect(m_model->viewSettings(), &ViewSettings::changed, this, &TraceBar::refresh);
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            &TraceBar::refresh);
    rebuild();
}

QSize TraceBar::sizeHint() const
{
    return {200, 44};
}

QSize TraceBar::minimumSizeHint() const
{
    return {80, 44};
}

TraceButton *TraceBar::traceButton(int traceId) const
{
    for (TraceButton *button : m_buttons) {
        if (button->traceId() == traceId)
            return button;
    }
    return nullptr;
}

QAbstractButton *TraceBar::button(int traceId) const
{
    return traceButton(traceId);
}

QRect TraceBar::fieldRect(int traceId, Field field) const
{
    const TraceButton *button = traceButton(traceId);
    return button ? button->fieldRect(field) : QRect();
}

/// Makes the buttons where there are others than before.
void TraceBar::rebuild()
{
    QVector<int> ids, before;
    for (const Trace &trace : m_model->traces())
        ids.append(trace.id);
    for (const TraceButton *button : qAsConst(m_buttons))
        before.append(button->traceId());
    if (ids != before) {
        for (TraceButton *button : qAsConst(m_buttons)) {
            // A button may be the one whose click led here.
            button->hide();
            button->deleteLater();
        }
        m_buttons.clear();
        for (const int id : qAsConst(ids)) {
            auto *button = new TraceButton(id, widget());
            connect(button, &QAbstractButton::clicked, this, [this, button, id] {
                const int field = button->fieldAt(button->released());
                if (!button->isChecked())
                    Q_EMIT activationRequested(id);
                else if (field >= 0)
                    Q_EMIT editRequested(id, Field(field));
            });
            m_row->insertWidget(int(m_buttons.size()), button);
            m_buttons.append(button);
        }
    }
    refresh();
}

void TraceBar::refresh()
{
    const Trace *active = m_model->activeTrace();
    m_add->setVisible(active);
    m_add->setEnabled(m_model->traces().size() < Trace::maximumCount);
    for (TraceButton *button : qAsConst(m_buttons)) {
        const Trace *trace = m_model->trace(button->traceId());
        // Between two signals of the model a button may outlive its trace.
        if (!trace)
            continue;
        button->setToolTip(m_model->network(*trace).name);
        button->setTexts(trace->label(),
                         {PanelModel::parameterName(*trace), formatName(trace->format),
                          trace->onSmithChart()
                              ? zoomText(m_model->zoom(m_model->diagramOf(trace->id)).factor)
                              : divisionText(trace->format, trace->scale.perDivision)},
                         trace->visible);
        button->setFile(m_model->networks().size() > 1 ? m_model->network(*trace).name : QString(),
                        trace->network);
        button->setChecked(trace == active);
    }
    fit();
}

/// Shows all fields of all traces where there is room for them.
void TraceBar::fit()
{
    int wanted = 0;
    for (const TraceButton *button : qAsConst(m_buttons))
        wanted += button->fullWidth() + m_row->spacing();
    const bool tight = wanted + m_add->width() > viewport()->width();
    for (TraceButton *button : qAsConst(m_buttons)) {
        button->setShort(tight && !button->isChecked());
        if (button->isChecked())
            ensureWidgetVisible(button, 8, 0);
    }
}

void TraceBar::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    fit();
}

} // namespace Panel

#include "tracebar.moc"
