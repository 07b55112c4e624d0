// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrampage.h"

#include <panel/diagrams/diagramview.h>
#include <panel/diagrams/readouts.h>
#include <panel/diagrams/verdict.h>
#include <panel/ground/look.h>

#include <controls/thememanager.h>
#include <plot/qcp.h>

#include <QDateTime>
#include <QLocale>

namespace Panel
{

namespace
{

constexpr int s_pageMargin = 12;
/// Of the height of a font.
constexpr double s_lineSpacing = 1.4;

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
    plot->toPainter(painter, plot->width(), plot->height());
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
