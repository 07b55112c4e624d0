// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <platform/tabletcombobox2.h>

#include <platform/ienumprofileadapter.h>

#include <QPointer>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

namespace Profile
{

struct TabletComboBox2::Private {
    QPointer<IEnumProfileAdapter> adapter;
    QStringList icons;
};

TabletComboBox2::TabletComboBox2(QWidget *parent)
    : QComboBox(parent)
    , d(std::make_unique<Private>())
{
    // The delegate that a combo box starts with draws its rows past the style sheets.
    setItemDelegate(new QStyledItemDelegate(this));
    connect(this, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &TabletComboBox2::writeBack);
}

TabletComboBox2::~TabletComboBox2() = default;

IEnumProfileAdapter *TabletComboBox2::profile() const
{
    return d->adapter;
}

void TabletComboBox2::reset()
{
    setProfile(nullptr);
    clear();
}

void TabletComboBox2::setProfile(IEnumProfileAdapter *adapter)
{
    if (d->adapter == adapter)
        return;
    if (d->adapter)
        disconnect(d->adapter, nullptr, this, nullptr);
    d->adapter = adapter;
    if (d->adapter)
        connect(d->adapter, &IEnumProfileAdapter::changed, this, &TabletComboBox2::showCurrent);
}

void TabletComboBox2::afterSetProfile()
{
    if (!d->adapter)
        return;
    {
        // A combo box makes the first entry it is given the current one: nobody chose that.
        const QSignalBlocker quiet(this);
        clear();
        for (int index = 0; index < d->adapter->count(); ++index)
            addItem(d->adapter->text(index));
        setCurrentIndex(-1);
    }
    applyIcons();
    showCurrent();
}

void TabletComboBox2::setIcons(const QList<QString> &paths)
{
    if (d->icons == paths)
        return; // reading pictures is slow
    d->icons = paths;
    applyIcons();
}

void TabletComboBox2::showCurrent()
{
    setCurrentIndex(d->adapter ? d->adapter->currentIndex() : -1);
}

void TabletComboBox2::applyIcons()
{
    for (int index = 0; index < count(); ++index) {
        // For a path that is none, Qt would load all its readers of pictures and ask each.
        const QString path = d->icons.value(index);
        setItemIcon(index, path.isEmpty() ? QIcon() : QIcon(path));
    }
}

void TabletComboBox2::writeBack(int index)
{
    if (!d->adapter || d->adapter->currentIndex() == index)
        return;
    d->adapter->setCurrentIndex(index);
    showCurrent();
}

} // namespace Profile
