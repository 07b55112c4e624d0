// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "unitcolumn_p.h"

#include <QGridLayout>
#include <QPushButton>
#include <QStyle>
#include <QVariant>

#include <array>

namespace Controls
{

namespace
{

/// Where the buttons stand in their grid.
constexpr std::array<int, 4> s_rows{0, 1, 2, 4};

void showPaging(QPushButton *button, const QString &caption)
{
    button->setText(caption);
    setKeyRole(button, QStringLiteral("page"));
    button->show();
}

} // namespace

void setKeyRole(QPushButton *key, const QString &role)
{
    if (key->property("keyRole") == role)
        return;
    key->setProperty("keyRole", role);
    key->style()->unpolish(key);
    key->style()->polish(key);
}

void UnitColumn::setUp(const QList<QPushButton *> &buttons, QGridLayout *grid)
{
    m_buttons = buttons;
    m_grid = grid;
}

void UnitColumn::setUnits(const QList<KeySpec> &units)
{
    m_units = units;
    m_start = 0;
    // Keys share the column alike. While it pages, none moves under the finger because another one
    // is not there.
    for (int i = 0; i < m_buttons.size(); ++i) {
        QPushButton *button = m_buttons.at(i);
        QSizePolicy policy = button->sizePolicy();
        policy.setRetainSizeWhenHidden(isPaging());
        button->setSizePolicy(policy);
        m_grid->setRowStretch(s_rows.at(std::size_t(i)), i < units.size() ? 1 : 0);
    }
    showPage();
}

void UnitColumn::showUnit(QPushButton *button, const KeySpec &unit)
{
    m_shown.insert(button, unit);
    button->setText(unit.label);
    setKeyRole(button, QStringLiteral("unit"));
    button->show();
}

void UnitColumn::showPage()
{
    m_shown.clear();
    // What stays stays on show: the release of a button that was hidden while it is pressed is lost.
    QList<QPushButton *> unused = m_buttons;
    const auto use = [this, &unused](int index) {
        QPushButton *button = m_buttons.at(index);
        unused.removeOne(button);
        return button;
    };
    const bool isMiddle = isPaging() && page() != 0 && page() != lastPage();
    if (isPaging())
        showPaging(use(int(m_buttons.size()) - 1),
                   isMiddle ? TouchNumKeyboard::tr("PgDn") : TouchNumKeyboard::tr("More"));
    if (isMiddle)
        showPaging(use(0), TouchNumKeyboard::tr("PgUp"));
    const int first = isMiddle ? 1 : 0;
    const int room = isMiddle ? 2 : isPaging() ? 3 : int(m_buttons.size());
    const int shown = std::min(room, int(m_units.size()) - m_start);
    for (int i = 0; i < shown; ++i)
        showUnit(use(first + i), m_units.at(m_start + i));
    for (QPushButton *button : qAsConst(unused))
        button->hide();
}

KeySpec UnitColumn::press(QPushButton *button)
{
    const QString caption = button->text();
    int start = m_start;
    if (isPaging() && caption == TouchNumKeyboard::tr("PgUp"))
        start -= start == 3 ? 3 : 2;
    else if (isPaging() && caption == TouchNumKeyboard::tr("PgDn"))
        start += page() == 0 ? 3 : 2;
    else if (isPaging() && caption == TouchNumKeyboard::tr("More"))
        start = page() == 0 ? 3 : 0;
    else
        return m_shown.value(button);
    // A unit may be called like a page key, and then ask for a page that there is not.
    m_start = std::clamp(start, 0, 2 * lastPage() + 1);
    showPage();
    return {};
}

} // namespace Controls
