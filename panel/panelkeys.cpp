// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelkeys.h"

#include "panelmodel.h"
#include "softkey.h"
#include "softkeymenu.h"

#include <widgets/displaypanel.h>
#include <widgets/menubutton.h>
#include <widgets/switchbutton.h>

#include <QCoreApplication>

namespace Panel
{

namespace
{

QString tr(const char *text)
{
    return QCoreApplication::translate("Panel::PanelKeys", text);
}

MenuButton *addMenu(SoftKeyMenu *menu, const char *name)
{
    auto *button = new MenuButton(tr(name) + QStringLiteral(" \u25be"));
    button->setAccessibleName(tr(name));
    menu->addKey(button);
    return button;
}

SwitchButton *addSwitch(SoftKeyMenu *menu, const char *name)
{
    auto *button = new SwitchButton;
    button->setText(tr(name));
    button->setTextMargins({10, 0, 10, 0});
    menu->addKey(button);
    return button;
}

} // namespace

PanelKeys makePanelKeys(SoftKeyMenu *menu, PanelModel *model)
{
    PanelKeys keys{};
    menu->addPage(tr("Stimulus"));
    keys.start = menu->addKey(tr("Start"));
    keys.stop = menu->addKey(tr("Stop"));
    keys.center = menu->addKey(tr("Center"));
    keys.span = menu->addKey(tr("Span"));
    keys.points = menu->addKey(tr("Points"));

    menu->addPage(tr("Trace"));
    keys.trace = menu->addKey(tr("Trace"));
    keys.format = menu->addKey(tr("Format"));
    keys.scale = menu->addKey(tr("Scale"));
    keys.reference = menu->addKey(tr("Reference"));
    keys.memory = addMenu(menu, QT_TR_NOOP("Memory"));
    keys.visible = addSwitch(menu, QT_TR_NOOP("Visible"));

    menu->addPage(tr("Marker"));
    keys.marker = menu->addKey(tr("Marker"));
    keys.markerStimulus = menu->addKey(tr("Stimulus"));
    keys.search = addMenu(menu, QT_TR_NOOP("Search"));
    keys.markerTo = addMenu(menu, QT_TR_NOOP("Marker to"));
    keys.referenceMarker = menu->addKey(tr("Reference"));
    keys.readout = menu->addKey(tr("Read-out"));

    menu->addPage(tr("Display"));
    keys.layout = new DisplayPanel(model->viewSettings()->layoutProfile());
    menu->addWidget(keys.layout);
    keys.grid = menu->addKey(tr("Grid"));
    keys.density = menu->addKey(tr("Density"));
    keys.zoom = menu->addKey(tr("Zoom"));
    keys.pointer = menu->addKey(tr("Pointer"));

    menu->addPage(tr("Sweep"));
    keys.source = menu->addKey(tr("Source"));
    keys.sweep = addSwitch(menu, QT_TR_NOOP("Sweep"));
    keys.tune = menu->addKey(tr("Resonance"));
    keys.timing = addSwitch(menu, QT_TR_NOOP("Timing"));

    menu->addPage(tr("System"));
    keys.file = menu->addKey(tr("File"));
    keys.screenshot = menu->addKey(tr("Screenshot"));
    keys.settings = menu->addKey(tr("Settings"));
    keys.help = menu->addKey(tr("Keys"));
    return keys;
}

} // namespace Panel
