// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
#include "page.h"
#include "pages.h"

#include <controls/combobox.h>
#include <widgets/popupwidget.h>

namespace Gallery
{

namespace
{

/// A pop-up that stays open as a part of the page.
PopupWidget *embeddedPopup(const QString &chosen)
{
    auto *const popup = new PopupWidget;
    popup->setWindowFlags(Qt::Widget);
    popup->setWidgetFixedWidth(180);
    popup->addItems({tr("Log mag"), tr("Phase"), tr("Group delay"), tr("SWR"), tr("R + jX")}, 0);
    popup->setItemEnabled(2, false);
    popup->setCurrentItem(chosen);
    return popup;
}

Section *popups()
{
    auto *const section = new Section(QStringLiteral("popupwidget"), QStringLiteral("PopupWidget"),
                                      tr("The list that buttons open, as rows or as tiles."));
    const auto add = [section](PopupWidget *popup, const char *caption) {
        popup->popup();
        section->add(popup, tr(caption));
    };
    add(embeddedPopup(tr("Phase")), "rows, one disabled");
    PopupWidget *const titled = embeddedPopup(tr("SWR"));
    titled->setTitleText(tr("Format"));
    titled->setItemTextAlignment(Qt::AlignHCenter);
    add(titled, "centred, with a title to drag it by");
    PopupWidget *const tiles = embeddedPopup(tr("R + jX"));
    tiles->setViewMode(QListView::IconMode);
    tiles->setItemCountPerRow(3);
    tiles->setTitleText(tr("Format"));
    add(tiles, "tiles, three a row");
    return section;
}

Section *comboBoxes()
{
    auto *const section =
        new Section(QStringLiteral("combobox"), QStringLiteral("Controls::ComboBox"),
                    tr("A combo box whose list fits its longest entry and stays on the screen."));
    const auto add = [section](const char *caption) {
        auto *const box = new Controls::ComboBox;
        box->addItems({tr("Log magnitude"), tr("Phase, unwrapped"), tr("R + jX")});
        box->setItemDisabled(1, true);
        section->add(box, tr(caption), QSize(200, 44));
        return box;
    };
    add("normal");
    section->setFocusSample(add("with the focus"));
    add("disabled")->setEnabled(false);
    return section;
}

} // namespace

Page *createListsPage()
{
    auto *const page = new Page(tr("Lists"));
    page->add(popups());
    page->add(comboBoxes());
    return page;
}

} // namespace Gallery
