// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QComboBox>

namespace Controls
{

/*! A combo box for the touch screen: its list is as wide as its longest entry, opens below the box,
    or above it where there is no room below, and stays 5 pixels inside the screen.

    Not for a value of a stored profile: Profile::TabletComboBox2 binds to those.

    \code
    auto *format = new Controls::ComboBox(this);
    format->setAccessibleName(tr("Trace format"));
    format->addItems({tr("Log magnitude"), tr("Phase"), tr("Smith R + jX")});
    format->setItemDisabled(2, !isReflection); // shown, but not to be chosen
    connect(format, QOverload<int>::of(&QComboBox::activated), this, &Panel::setFormat);
    \endcode */
class VNAWIDGETS_EXPORT ComboBox : public QComboBox
{
    Q_OBJECT

public:
    /// An empty box.
    explicit ComboBox(QWidget *parent = nullptr);

    /// Greys out entry \a index, or makes it available again; ignored outside 0 to count() - 1.
    void setItemDisabled(int index, bool disabled);

    /// Width of the list in pixels: the longest entry's text, and at least the box's own width.
    int popupWidgetCalculateWidth();
    /// Where on the screen the top left of a list of \a size goes.
    QPoint popupWidgetTopLeftConer(const QSize &size);
    /// Size of the list: its calculated width and the height that it has now (0 before it first
    /// opened).
    QSize popupWidgetAdjustSize();

    /// Opens the list, inside the screen.
    void showPopup() override;

private:
    QWidget *popupContainer() const;
};

} // namespace Controls
