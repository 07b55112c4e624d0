// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/roundlabel.h>

#include <QEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QStyle>

namespace Controls
{

namespace
{

/// The text with the decimals of its last number rounded to \a decimals.
QString rounded(const QString &text, const QRegularExpressionMatch &number, int decimals)
{
    return text.left(number.capturedStart())
        + QString::number(number.captured().toDouble(), 'f', decimals)
        + text.mid(number.capturedEnd());
}

/// The last number with decimals, since readings may start with a name such as "Ls=". None where
/// the decimals go on in groups ("2.412 000 GHz"): rounding the first group would show another
/// value.
QRegularExpressionMatch lastDecimalNumber(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("[0-9]+\\.([0-9]+)(?!\\s?[0-9])(?!.*[0-9]\\.[0-9])"),
        QRegularExpression::UseUnicodePropertiesOption);
    return pattern.match(text);
}

} // namespace

RoundLabel::RoundLabel(QWidget *parent)
    : QLabel(parent)
{
}

void RoundLabel::setText(const QString &text)
{
    QLabel::setText(text);
    fit();
}

void RoundLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange
        || event->type() == QEvent::ContentsRectChange)
        fit();
}

void RoundLabel::paintEvent(QPaintEvent *event)
{
    if (m_shown == text() || hasSelectedText()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    style()->drawItemText(&painter, textRect(),
                          int(QStyle::visualAlignment(layoutDirection(), alignment())), palette(),
                          isEnabled(), m_shown, foregroundRole());
}

void RoundLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    fit();
}

QRect RoundLabel::textRect() const
{
    const int space = margin();
    return contentsRect().adjusted(space, space, -space, -space);
}

void RoundLabel::fit()
{
    const QString whole = text();
    m_shown = whole;
    if (whole.contains(QLatin1Char('\n')) || wordWrap() || textFormat() == Qt::RichText)
        return;

    const QFontMetrics metrics = fontMetrics();
    const int width = textRect().width();
    const QRegularExpressionMatch number = lastDecimalNumber(whole);
    for (int decimals = int(number.capturedLength(1)) - 1;
         decimals >= 0 && metrics.horizontalAdvance(m_shown) > width; --decimals)
        m_shown = rounded(whole, number, decimals);
    if (metrics.horizontalAdvance(m_shown) > width)
        m_shown = metrics.elidedText(m_shown, Qt::ElideRight, width);
    update();
}

} // namespace Controls
