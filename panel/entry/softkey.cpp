// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "softkey.h"

#include <QKeyEvent>

#include <algorithm>

namespace Panel
{

namespace
{

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
    : EnumTextButton(ListCreation::WhenOpened, parent)
{
    setText(name);
    setAccessibleName(name);
    setTextAlignment(Qt::AlignLeft | Qt::AlignBottom);
    setLabelAlignment(Qt::AlignRight | Qt::AlignTop);
    setLabelFont(scaled(font(), 1.12));
    // In place of a padding in the style sheet: a value too long is shortened to what these leave.
    setLabelMargins({10, 0, 10, 0});
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    setListScrollsInside(true);
    connect(this, &EnumTextButton::currentItemEdited, this, [this](int index) {
        showValue(); // until the owner agrees
        Q_EMIT choicePicked(index);
    });
}

void SoftKey::setValue(const QString &value)
{
    if (value == m_value)
        return; // at the rate of a live sweep
    m_value = value;
    showValue();
}

void SoftKey::setChoices(const QStringList &choices)
{
    if (choices == m_choices)
        return;
    m_choices = choices;
    QList<EnumSpec> specs;
    for (int i = 0; i < choices.size(); ++i)
        specs.append({i, choices.at(i)});
    setEnums(specs);
    setChoice(-1);
}

void SoftKey::setChoice(int index, const QString &none)
{
    m_choice = index;
    m_value = m_choices.value(index, none);
    showValue();
}

void SoftKey::showValue()
{
    const QString label = m_choices.isEmpty() ? m_value : m_value + QStringLiteral(" \u25be");
    if (EnumSpec{m_choice, m_value} == currentEnumSpec() && label == labelText())
        return;
    // Value and mark of the list, where a value like "M1" may be none of its entries.
    setCurrentEnum({m_choice, m_value});
    setLabelText(label);
    tellValue();
}

/// Describes the key to screen readers, which read its name before.
void SoftKey::tellValue()
{
    QStringList told{m_value, m_shortcut};
    // An arrow is a picture.
    if (std::none_of(m_value.begin(), m_value.end(), [](QChar c) { return c.isLetterOrNumber(); })
        || m_shortcut == m_value)
        told.removeFirst();
    told.removeAll(QString());
    const QString description = told.join(QStringLiteral(", "));
    if (description != accessibleDescription())
        setAccessibleDescription(description);
}

void SoftKey::setShortcutText(const QString &keys)
{
    m_shortcut = keys;
    setToolTip(keys);
    tellValue();
}

void SoftKey::setNarrow(bool narrow)
{
    m_narrow = narrow;
    updateGeometry();
}

QSize SoftKey::sizeHint() const
{
    const QFontMetrics metrics(font());
    const int width =
        m_narrow ? EnumTextButton::minimumSizeHint().width() : metrics.averageCharWidth() * 17;
    return {width, metrics.height() * 4};
}

QSize SoftKey::minimumSizeHint() const
{
    return {sizeHint().width(), EnumTextButton::minimumSizeHint().height()};
}

void SoftKey::changeEvent(QEvent *event)
{
    EnumTextButton::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        setLabelFont(scaled(font(), 1.12));
}

void SoftKey::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        EnumTextButton::keyPressEvent(event);
}

} // namespace Panel
