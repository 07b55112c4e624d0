// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tracebar.h"

#include "look.h"
#include "panelmodel.h"

#include <controls/thememanager.h>

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QPainter>
#include <QScroller>

namespace Panel
{

/// One trace: filled with its colour when active, dashed and pale when hidden.
class TraceButton : public QAbstractButton
{
    Q_OBJECT

public:
    TraceButton(int traceId, const QString &text, QWidget *parent)
        : QAbstractButton(parent)
        , m_traceId(traceId)
    {
        setText(text);
        setCheckable(true);
        setFocusPolicy(Qt::StrongFocus);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    int traceId() const { return m_traceId; }
    void setShown(bool shown)
    {
        m_shown = shown;
        setAccessibleName(shown ? text() : text() + QStringLiteral(" (hidden)"));
        update();
    }

    QSize sizeHint() const override
    {
        return {fontMetrics().horizontalAdvance(text()) + 26,
                qMax(fontMetrics().height() + 14, 32)};
    }

protected:
    // The model says which trace is active, not the click.
    void nextCheckState() override { }

    void paintEvent(QPaintEvent *) override
    {
        const Look look = currentLook();
        QColor color = look.trace(m_traceId);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QPen edge(isChecked() || hasFocus() ? color : look.border, hasFocus() ? 2.0 : 1.0);
        if (!m_shown) {
            edge.setStyle(Qt::DashLine);
            color.setAlphaF(isChecked() ? 0.45F : 0.6F);
        }
        painter.setPen(edge);
        painter.setBrush(isChecked() ? QBrush(color) : QBrush(isDown() ? look.button : look.bar));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5), 4.0, 4.0);
        painter.setPen(!isChecked() ? color : m_shown ? textOn(color) : look.text);
        painter.drawText(rect(), Qt::AlignCenter, text());
    }

private:
    int m_traceId;
    bool m_shown = true;
};

TraceBar::TraceBar(const PanelModel *model, QWidget *parent)
    : QScrollArea(parent)
    , m_model(model)
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

    connect(m_model, &PanelModel::networksChanged, this, &TraceBar::rebuild);
    connect(m_model, &PanelModel::activeTraceChanged, this, &TraceBar::refresh);
    connect(m_model, &PanelModel::traceVisibleChanged, this, &TraceBar::refresh);
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            &TraceBar::refresh);
    rebuild();
}

QSize TraceBar::sizeHint() const
{
    return {200, 36};
}

QSize TraceBar::minimumSizeHint() const
{
    return {80, 36};
}

void TraceBar::rebuild()
{
    for (TraceButton *button : m_buttons) {
        // A button may be the one whose click led here.
        button->hide();
        button->deleteLater();
    }
    m_buttons.clear();
    for (const Trace &trace : m_model->traces()) {
        auto *button = new TraceButton(
            trace.id,
            tr("Tr%1 %2").arg(QString::number(trace.id), PanelModel::parameterName(trace)),
            widget());
        button->setToolTip(m_model->network(trace).name);
        const int id = trace.id;
        connect(button, &QAbstractButton::clicked, this,
                [this, id] { Q_EMIT activationRequested(id); });
        m_row->insertWidget(int(m_buttons.size()), button);
        m_buttons.append(button);
    }
    refresh();
}

void TraceBar::refresh()
{
    const Trace *active = m_model->activeTrace();
    for (TraceButton *button : m_buttons) {
        const Trace *trace = m_model->trace(button->traceId());
        // Between two signals of the model a button may outlive its trace.
        if (!trace)
            continue;
        button->setShown(trace->visible);
        button->setChecked(trace == active);
        if (trace == active)
            ensureWidgetVisible(button, 8, 0);
    }
}

} // namespace Panel

#include "tracebar.moc"
