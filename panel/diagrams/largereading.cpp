// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "largereading.h"

#include "diagramview.h"
#include "markerreading.h"

#include <panel/ground/look.h>

#include <controls/thememanager.h>
#include <plot/qcp.h>

#include <QEvent>
#include <QPainter>

namespace Panel
{

namespace
{

/// Of the height of a line that its letters take.
constexpr double s_letters = 0.75;
/// Around the text, in pixels.
constexpr int s_edge = 16;
/// How opaque the ground behind the text is, of 255.
constexpr int s_cover = 204;

} // namespace

LargeReading::LargeReading(const PanelModel *model, DiagramView *view)
    : QWidget(view->plot())
    , m_model(model)
    , m_view(view)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setObjectName(QStringLiteral("largeReading"));
    view->plot()->installEventFilter(this);
    const auto refresh = [this] { this->refresh(); };
    for (const auto signal :
         {&PanelModel::markerAdded, &PanelModel::markerMoved, &PanelModel::markerRemoved})
        connect(model, signal, this, refresh);
    for (const auto signal : {&PanelModel::networkUpdated, &PanelModel::stimulusChanged})
        connect(model, signal, this, refresh);
    connect(model, &PanelModel::selectedMarkerChanged, this, refresh);
    connect(model, &PanelModel::tracesChanged, this, refresh);
    connect(model->viewSettings(), &ViewSettings::changed, this, refresh);
    connect(Controls::ThemeManager::instance(), &Controls::ThemeManager::themeChanged, this,
            refresh);
    hide();
}

void LargeReading::setWanted(bool wanted)
{
    m_wanted = wanted;
    refresh();
}

void LargeReading::refresh()
{
    const Marker *marker = m_model->selectedMarker();
    const bool shown = m_wanted && marker && m_view->traceIds().contains(marker->trace);
    m_lines.clear();
    if (shown) {
        const MarkerReading reading = readMarker(*m_model, *marker);
        m_lines << PanelModel::parameterName(*m_model->trace(marker->trace))
                + QStringLiteral(" M%1").arg(marker->number)
                << reading.frequency << reading.values;
        m_color = currentLook().trace(marker->trace);
    }
    setAccessibleName(m_lines.join(QStringLiteral(", ")));
    setGeometry(m_view->plot()->rect());
    setVisible(shown);
    raise();
    update();
}

bool LargeReading::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(m_view->plot()->rect());
    return QWidget::eventFilter(watched, event);
}

void LargeReading::paintEvent(QPaintEvent *)
{
    if (m_lines.isEmpty())
        return;
    QPainter painter(this);
    const Look look = currentLook();
    QColor ground = look.background;
    ground.setAlpha(s_cover);
    painter.fillRect(rect(), ground);
    const QRect room = rect().adjusted(s_edge, s_edge, -s_edge, -s_edge);
    const int height = room.height() / int(m_lines.size());
    QFont large = font();
    large.setPixelSize(qMax(1, qRound(height * s_letters)));
    int widest = 1;
    for (const QString &line : m_lines)
        widest = qMax(widest, QFontMetrics(large).horizontalAdvance(line));
    if (widest > room.width())
        large.setPixelSize(qMax(1, large.pixelSize() * room.width() / widest));
    painter.setFont(large);
    for (int i = 0; i < m_lines.size(); ++i) {
        painter.setPen(i == 0 ? m_color : look.text);
        painter.drawText(QRect(room.left(), room.top() + i * height, room.width(), height),
                         Qt::AlignCenter, m_lines.at(i));
    }
}

} // namespace Panel
