// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "verdict.h"

#include "freeplace.h"

#include <panel/ground/look.h>
#include <panel/ground/numbertext.h>

#include <algorithm>
#include <cmath>

namespace Panel
{

namespace
{

/// Of the word, in pixels. On a panel of seven inches the capitals of the largest are 6.7 mm high, 11
/// minutes of arc from two metres; smaller ones are for diagrams without the room.
constexpr int s_words[] = {48, 40, 32, 24, 14};
/// Of the diagram's width and height, at most.
constexpr double s_shareOfDiagram = 0.5;

} // namespace

Verdict::Verdict(QWidget *diagram)
    : QLabel(diagram)
{
    setObjectName(QStringLiteral("verdict"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAlignment(Qt::AlignCenter);
    hide();
}

void Verdict::show(bool tested, const QVector<Failure> &failures)
{
    setVisible(tested);
    tell(tested, failures);
    if (!tested)
        return;
    const Look look = currentLook();
    // What fails is filled: the difference is seen from afar, and without colours.
    const QString border = (failures.isEmpty() ? look.pass : look.fail).name();
    const QString sheet =
        QStringLiteral("padding: 3px 10px; border: 1px solid %1; border-radius: 4px; "
                       "background: %2; color: %3; font-weight: bold;")
            .arg(border, failures.isEmpty() ? look.bar.name() : border,
                 failures.isEmpty() ? border : look.background.name());
    if (sheet != styleSheet())
        setStyleSheet(sheet);
    QString list;
    for (const Failure &failure : failures.mid(0, maximumFailures))
        list += QLatin1String("<br>")
            + tr("%1 from %2").arg(failure.label.toHtmlEscaped(), frequencyText(failure.hertz));
    const auto word = [&](int pixels) {
        return QStringLiteral("<span style='font-size:%1px'>%2</span>")
            .arg(QString::number(pixels), failures.isEmpty() ? tr("PASS") : tr("FAIL"));
    };
    m_texts.clear();
    for (const int pixels : s_words) {
        if (!list.isEmpty() && pixels == s_words[0])
            m_texts << word(pixels) + list;
        m_texts << word(pixels);
    }
    fit();
}

bool Verdict::fitsShare() const
{
    const QSize room = parentWidget()->size();
    return width() <= room.width() * s_shareOfDiagram
        && height() <= room.height() * s_shareOfDiagram;
}

/// Takes the longest text that leaves most of the diagram to what is judged.
void Verdict::fit()
{
    const auto longest = [this](const auto &isFit) {
        for (const QString &text : qAsConst(m_texts)) {
            setText(text);
            adjustSize();
            if (isFit())
                return true;
        }
        return false;
    };
    if (!m_room.isEmpty() && longest([this] { return fitsShare() && moveBesideChart(); }))
        return;
    longest([this] { return fitsShare(); });
    move(m_topRight - QPoint(width(), 0));
}

bool Verdict::Chart::isHiddenBy(const QRect &box) const
{
    if (box.intersects(readings))
        return true;
    const QRectF part = box & clip;
    if (part.isEmpty())
        return false;
    const QPointF nearest(std::clamp(centre.x(), part.left(), part.right()),
                          std::clamp(centre.y(), part.top(), part.bottom()));
    return std::hypot(nearest.x() - centre.x(), nearest.y() - centre.y()) < radius;
}

bool Verdict::moveBesideChart()
{
    for (const BoxPlace &place : {BoxPlace{2, 0}, BoxPlace{2, 2}, BoxPlace{0, 2}, BoxPlace{0, 0}}) {
        const QRect box = boxIn(m_room, size(), place);
        if (m_room.contains(box) && !m_chart.isHiddenBy(box)) {
            move(box.topLeft());
            return true;
        }
    }
    return false;
}

void Verdict::tell(bool tested, const QVector<Failure> &failures)
{
    QStringList texts;
    QVector<int> failing;
    for (const Failure &failure : failures) {
        failing << failure.trace;
        if (texts.size() < maximumFailures)
            texts << tr("%1 from %2").arg(failure.label, frequencyText(failure.hertz));
    }
    setAccessibleName(!tested ? QString()
                          : texts.isEmpty()
                          ? tr("Limits: pass")
                          : tr("Limits: fail, %1").arg(texts.join(QLatin1String(", "))));
    if (tested == m_tested && failing == m_failing)
        return;
    m_tested = tested;
    m_failing = failing;
    if (tested)
        Q_EMIT changed();
}

void Verdict::setCorner(const QPoint &topRight)
{
    m_topRight = topRight;
    fit();
}

void Verdict::setRoom(const QRect &room, const Chart &chart)
{
    if (room == m_room && chart == m_chart)
        return;
    m_room = room;
    m_chart = chart;
    setCorner(room.topRight() + QPoint(1, 0));
}

} // namespace Panel
