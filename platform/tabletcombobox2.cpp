// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <platform/tabletcombobox2.h>

#include <platform/ienumprofileadapter.h>

#include <QSignalBlocker>
#include <QStyledItemDelegate>

namespace Profile
{

TabletComboBox2::TabletComboBox2(QWidget *parent)
    : QComboBox(parent)
{
    // The delegate that a combo box starts with draws its rows past the style sheets.
    setItemDelegate(new QStyledItemDelegate(this));
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &TabletComboBox2::writeBack);
}

IEnumProfileAdapter *TabletComboBox2::profile() const
{
    return m_adapter;
}

void TabletComboBox2::reset()
{
    setProfile(nullptr);
    clear();
}

void TabletComboBox2::setProfile(IEnumProfileAdapter *adapter)
{
    if (m_adapter == adapter)
        return;
    if (m_adapter)
        disconnect(m_adapter, nullptr, this, nullptr);
    m_adapter = adapter;
    if (m_adapter)
        connect(m_adapter, &IEnumProfileAdapter::changed, this, &TabletComboBox2::showCurrent);
}

void TabletComboBox2::afterSetProfile()
{
    if (!m_adapter)
        return;
    {
        // A combo box makes the first entry it is given the current one: nobody chose that.
        const QSignalBlocker quiet(this);
        clear();
        for (int index = 0; index < m_adapter->count(); ++index)
            addItem(m_adapter->text(index));
        setCurrentIndex(-1);
    }
    applyIcons();
    showCurrent();
}

void TabletComboBox2::setIcons(const QList<QString> &paths)
{
    m_icons = paths;
    applyIcons();
}

void TabletComboBox2::showCurrent()
{
    setCurrentIndex(m_adapter ? m_adapter->currentIndex() : -1);
}

void TabletComboBox2::applyIcons()
{
    for (int index = 0; index < count(); ++index)
        setItemIcon(index, QIcon(m_icons.value(index)));
}

void TabletComboBox2::writeBack(int index)
{
    if (!m_adapter || m_adapter->currentIndex() == index)
        return;
    m_adapter->setCurrentIndex(index);
    showCurrent();
}

} // namespace Profile
