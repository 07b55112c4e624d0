// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrampage.h"

#include "thinnedline.h"

#include <panel/diagrams/diagramview.h>
#include <panel/diagrams/readouts.h>
#include <panel/diagrams/verdict.h>
#include <panel/ground/look.h>

#include <controls/thememanager.h>
#include <plot/qcp.h>

#include <QDateTime>
#include <QLocale>

#include <vector>

namespace Panel
{

namespace
{

constexpr int s_pageMargin = 12;
/// Of the height of a font.
constexpr double s_lineSpacing = 1.4;
/// A line of more points is thinned.
constexpr int s_longLine = 4000;

/// While it lives, thinned lines stand in for the long ones of a plot.
class ThinnedCurves
{
public:
    explicit ThinnedCurves(QCustomPlot *plot)
        : m_plot(plot)
    {
        for (int i = plot->plottableCount() - 1; i >= 0; --i) {
            auto *curve = qobject_cast<QCPCurve *>(plot->plottable(i));
            if (curve && curve->realVisibility() && curve->dataCount() > s_longLine)
                thin(curve);
        }
    }
    ~ThinnedCurves()
    {
        for (const Pair &pair : m_pairs) {
            m_plot->removePlottable(pair.thinned);
            pair.whole->setVisible(true);
        }
    }
    Q_DISABLE_COPY(ThinnedCurves)

private:
    struct Pair {
        QCPCurve *whole;
        QCPCurve *thinned;
    };

    void thin(QCPCurve *curve)
    {
        const QCPAxis *x = curve->keyAxis(), *y = curve->valueAxis();
        QPolygonF line;
        line.reserve(curve->dataCount());
        for (const QCPCurveData &point : *curve->data())
            line << QPointF(x->coordToPixel(point.key), y->coordToPixel(point.value));
        QVector<double> order, keys, values;
        const auto add = [&](double key, double value) {
            order << double(order.size());
            keys << key;
            values << value;
        };
        for (const QPolygonF &stretch : thinnedLine(line, x->axisRect()->rect())) {
            for (const QPointF &point : stretch)
                add(x->pixelToCoord(point.x()), y->pixelToCoord(point.y()));
            add(qQNaN(), qQNaN());
        }
        auto *thinned = new QCPCurve(curve->keyAxis(), curve->valueAxis());
        thinned->setData(order, keys, values, true);
        thinned->setPen(curve->pen());
        thinned->setLayer(curve->layer());
        curve->setVisible(false);
        m_pairs.push_back({curve, thinned});
    }

    QCustomPlot *m_plot;
    std::vector<Pair> m_pairs;
};

} // namespace

DiagramPage::DiagramPage(DiagramView *view)
    : m_view(view)
    , m_title(view->title())
    , m_time(QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat))
    , m_readings(view->readOuts()->readings())
{
    const auto *verdict = view->findChild<Verdict *>();
    if (verdict && !verdict->isHidden())
        m_readings.prepend(verdict->sentence());
}

int DiagramPage::lineHeight() const
{
    return qRound(m_view->fontMetrics().height() * s_lineSpacing);
}

QSize DiagramPage::size() const
{
    const int lines = 2 + int(m_readings.size()); // title and time
    return m_view->plot()->size()
        + QSize(2 * s_pageMargin, 2 * s_pageMargin + lines * lineHeight());
}

void DiagramPage::draw(QCPPainter *painter) const
{
    using Controls::ThemeManager;
    QCustomPlot *plot = m_view->plot();
    const ThemeManager::Theme theme = ThemeManager::instance()->currentTheme();
    ThemeManager::instance()->setTheme(ThemeManager::Light);
    plot->setBackground(QBrush(Qt::white));
    painter->setMode(QCPPainter::pmVectorized);
    painter->setMode(QCPPainter::pmNoCaching);
    painter->fillRect(QRect(QPoint(), size()), Qt::white);

    const auto write = [&](int y, Qt::Alignment alignment, const QString &text) {
        const QRect line(s_pageMargin, y, plot->width(), lineHeight());
        painter->setFont(m_view->font());
        painter->setPen(Qt::black);
        painter->drawText(line, int(alignment | Qt::AlignVCenter | Qt::TextSingleLine),
                          m_view->fontMetrics().elidedText(text, Qt::ElideRight, line.width()));
    };
    write(s_pageMargin, Qt::AlignLeft, m_title);

    painter->save();
    painter->translate(s_pageMargin, s_pageMargin + lineHeight());
    {
        const ThinnedCurves thinned(plot);
        plot->toPainter(painter, plot->width(), plot->height());
    }
    painter->restore();

    int y = s_pageMargin + lineHeight() + plot->height();
    for (const QString &reading : m_readings) {
        write(y, Qt::AlignLeft, reading);
        y += lineHeight();
    }
    write(y, Qt::AlignRight, m_time);
    ThemeManager::instance()->setTheme(theme);
    plot->setBackground(currentLook().background);
}

} // namespace Panel
