// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
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

struct RoundLabel::Private {
    QString shown;
};

RoundLabel::RoundLabel(QWidget *parent)
    : QLabel(parent)
    , d(std::make_unique<Private>())
{
}

RoundLabel::~RoundLabel() = default;

QString RoundLabel::shownText() const
{
    return d->shown;
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
    if (hasSelectedText() || textFormat() == Qt::RichText || wordWrap()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    // Line by line at the font's line spacing; a label that lets its text be selected would round
    // the spacing up and need more height than its size hint says.
    const QStringList lines = d->shown.split(QLatin1Char('\n'));
    const int spacing = fontMetrics().lineSpacing();
    const QRect block =
        QStyle::alignedRect(layoutDirection(), alignment() & Qt::AlignVertical_Mask,
                            {textRect().width(), spacing * int(lines.count())}, textRect());
    const auto horizontal =
        QStyle::visualAlignment(layoutDirection(), alignment()) & Qt::AlignHorizontal_Mask;
    QRect line(block.left(), block.top(), block.width(), spacing);
    for (const QString &text : lines) {
        style()->drawItemText(&painter, line, int(horizontal | Qt::AlignVCenter), palette(),
                              isEnabled(), text, foregroundRole());
        line.translate(0, spacing);
    }
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
    d->shown = whole;
    if (whole.contains(QLatin1Char('\n')) || wordWrap() || textFormat() == Qt::RichText)
        return;

    const QFontMetrics metrics = fontMetrics();
    const int width = textRect().width();
    const QRegularExpressionMatch number = lastDecimalNumber(whole);
    for (int decimals = int(number.capturedLength(1)) - 1;
         decimals >= 0 && metrics.horizontalAdvance(d->shown) > width; --decimals)
        d->shown = rounded(whole, number, decimals);
    if (metrics.horizontalAdvance(d->shown) > width)
        d->shown = metrics.elidedText(d->shown, Qt::ElideRight, width);
    update();
}

} // namespace Controls
