// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
#include "page.h"
#include "pages.h"

#include <controls/thememanager.h>
#include <widgets/markerstatusitem.h>
#include <widgets/rectangularbottomwidget.h>

namespace Gallery
{

namespace
{

/// Colours an item as the first trace, in whichever theme.
void followTrace(MarkerStatusItem *item)
{
    auto *const theme = Controls::ThemeManager::instance();
    const auto recolour = [item, theme] { item->setColor(theme->getTracePalette().first()); };
    QObject::connect(theme, &Controls::ThemeManager::themeChanged, item, recolour);
    recolour();
}

Section *markerItems(Page *page)
{
    auto *const section =
        new Section(QStringLiteral("markerstatusitem"), QStringLiteral("MarkerStatusItem"),
                    tr("A line of a marker read-out; it folds when it is narrow."));
    const auto add = [page, section](const char *caption, int width) {
        auto *const item = new MarkerStatusItem;
        item->setText(QStringLiteral("M1:"), QStringLiteral("2.412 000 GHz"),
                      QStringLiteral("48.21 \u03a9"), QStringLiteral("+j3.10 \u03a9"),
                      QStringLiteral("204.5 pH"));
        item->setNumLabelWidth(90, 90, 90);
        item->setLayoutWidth(width);
        followTrace(item);
        QObject::connect(item, &MarkerStatusItem::clicked, page, [page] {
            Q_EMIT page->told(QStringLiteral("MarkerStatusItem: clicked"));
        });
        section->add(item, tr(caption));
        return item;
    };
    add("normal", 460);
    MarkerStatusItem *const selected = add("selected, of the active trace", 460);
    selected->setSelectedStatus(true);
    selected->setBold(true);
    section->addRow();
    section->setFocusSample(add("folded, with the focus", 260));
    add("folded, right-aligned", 260)->setRightAligned(true);
    return section;
}

Section *sweepBars()
{
    auto *const section = new Section(
        QStringLiteral("rectangularbottomwidget"), QStringLiteral("RectangularBottomWidget"),
        tr("The bar below a diagram: start, speed and stop of the sweep."));
    const auto add = [section](const char *caption, bool speed) {
        auto *const bar = new RectangularBottomWidget;
        bar->updateRange(QStringLiteral("2.000 GHz"), QStringLiteral("2.900 GHz"));
        bar->setSweepSpeedText(tr("Speed: 48 sweeps/s"));
        bar->setSweepSpeedVisible(speed);
        section->add(bar, tr(caption), QSize(900, 36));
        section->addRow();
    };
    add("with the sweep speed", true);
    add("without", false);
    return section;
}

} // namespace

Page *createReadoutsPage()
{
    auto *const page = new Page(tr("Read-outs"));
    page->add(markerItems(page));
    page->add(sweepBars());
    return page;
}

} // namespace Gallery
