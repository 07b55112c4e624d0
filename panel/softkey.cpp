// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "softkey.h"

#include "look.h"

#include <QMenu>
#include <QPainter>
#include <QStyleOptionButton>

namespace Panel
{

namespace
{

constexpr int s_margin = 10;

QFont scaled(QFont font, double factor)
{
    if (font.pixelSize() > 0)
        font.setPixelSize(qRound(font.pixelSize() * factor));
    else
        font.setPointSizeF(font.pointSizeF() * factor);
    return font;
}

} // namespace

SoftKey::SoftKey(const QString &name, QWidget *parent)
    : QPushButton(parent)
    , m_name(name)
{
    setAccessibleName(name);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

void SoftKey::setValue(const QString &value)
{
    if (value == m_value)
        return;
    m_value = value;
    setAccessibleDescription(value);
    update();
}

void SoftKey::setChoices(const QStringList &choices)
{
    if (m_choices.isEmpty())
        connect(this, &QPushButton::clicked, this, &SoftKey::openChoices);
    m_choices = choices;
    setChoice(-1);
}

void SoftKey::setChoice(int index)
{
    m_choice = index;
    setValue(m_choices.value(index));
}

void SoftKey::openChoices()
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setMinimumWidth(width());
    for (int i = 0; i < m_choices.size(); ++i) {
        QAction *action =
            menu->addAction(m_choices.at(i), this, [this, i] { Q_EMIT choicePicked(i); });
        action->setCheckable(true);
        action->setChecked(i == m_choice);
        if (i == m_choice)
            menu->setActiveAction(action);
    }
    // Right edges in line: the column stands at the right edge of the screen.
    menu->popup(mapToGlobal(QPoint(width() - menu->sizeHint().width(), height())));
}

QFont SoftKey::nameFont() const
{
    return scaled(font(), 0.92);
}

QFont SoftKey::valueFont() const
{
    return scaled(font(), 1.12);
}

QSize SoftKey::sizeHint() const
{
    const QFontMetrics metrics(font());
    return {metrics.averageCharWidth() * 20, metrics.height() * 5};
}

QSize SoftKey::minimumSizeHint() const
{
    // Two lines of text, and room enough for a finger.
    const int lines = QFontMetrics(nameFont()).height() + QFontMetrics(valueFont()).height();
    return {sizeHint().width(), qMax(lines + 8, 44)};
}

void SoftKey::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);

    const QFontMetrics nameMetrics(nameFont());
    const QFontMetrics valueMetrics(valueFont());
    const int gap = qBound(0, (height() - nameMetrics.height() - valueMetrics.height()) / 6, 8);
    const int textHeight = nameMetrics.height() + gap + valueMetrics.height();
    QRect line(s_margin, (height() - textHeight) / 2, width() - 2 * s_margin, nameMetrics.height());
    const Look look = currentLook();
    painter.setFont(nameFont());
    painter.setPen(look.dimText);
    painter.drawText(line, Qt::AlignLeft,
                     nameMetrics.elidedText(m_name, Qt::ElideRight, line.width()));

    line = QRect(line.left(), line.bottom() + 1 + gap, line.width(), valueMetrics.height());
    const QString arrow = m_choices.isEmpty() ? QString() : QStringLiteral(" \u25be");
    const int room = line.width() - valueMetrics.horizontalAdvance(arrow);
    painter.setFont(valueFont());
    painter.setPen(isEnabled() ? look.text : look.dimText);
    painter.drawText(line, Qt::AlignRight,
                     valueMetrics.elidedText(m_value, Qt::ElideMiddle, room) + arrow);
}

} // namespace Panel
