// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "panelkeys.h"

#include "softkey.h"
#include "softkeymenu.h"
#include <panel/model/panelmodel.h>

#include <widgets/displaypanel.h>
#include <widgets/menubutton.h>
#include <widgets/switchbutton.h>

#include <QCoreApplication>
#include <QHBoxLayout>

#include <tuple>
#include <utility>

namespace Panel
{

namespace
{

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Panel::PanelKeys)
};

class MenuKey : public MenuButton
{
public:
    explicit MenuKey(QWidget *parent)
        : MenuButton(ListCreation::WhenOpened, parent)
    {
    }
};

MenuButton *addMenu(SoftKeyMenu *menu, const QString &name)
{
    auto *button = new MenuKey(menu->begunPage());
    button->setText(name + QStringLiteral(" \u25be"));
    button->setAccessibleName(name);
    menu->addKey(button);
    return button;
}

SwitchButton *addSwitch(SoftKeyMenu *menu, const QString &name)
{
    auto *button = new SwitchButton(menu->begunPage());
    button->setText(name);
    button->setTextMargins({0, 0, 10, 0}); // level with the names of soft keys
    menu->addKey(button);
    return button;
}

/// Two keys side by side.
std::pair<SoftKey *, SoftKey *> addPair(SoftKeyMenu *menu, const QString &left,
                                        const QString &right)
{
    auto *pair = new QWidget(menu->begunPage());
    auto *row = new QHBoxLayout(pair);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(6);
    const std::pair<SoftKey *, SoftKey *> keys{new SoftKey(left, pair), new SoftKey(right, pair)};
    for (SoftKey *key : {keys.first, keys.second}) {
        key->setNarrow(true);
        key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        row->addWidget(key, 1);
    }
    menu->addKey(pair);
    return keys;
}

} // namespace

PanelKeys makePanelKeys(SoftKeyMenu *menu, PanelModel *model)
{
    PanelKeys keys{};
    menu->addPage(Text::tr("Stimulus"), Glyph::Stimulus);
    keys.start = menu->addKey(Text::tr("Start"));
    keys.stop = menu->addKey(Text::tr("Stop"));
    keys.center = menu->addKey(Text::tr("Center"));
    keys.span = menu->addKey(Text::tr("Span"));
    keys.points = menu->addKey(Text::tr("Points"));
    keys.frequencyScale = menu->addKey(Text::tr("Frequency axis"));

    menu->addPage(Text::tr("Trace"), Glyph::Trace);
    keys.trace = menu->addKey(Text::tr("Trace"));
    keys.parameter = menu->addKey(Text::tr("Parameter"));
    keys.format = menu->addKey(Text::tr("Format"));
    keys.network = menu->addKey(Text::tr("From file"));
    keys.diagram = menu->addKey(Text::tr("Diagram"));
    keys.name = menu->addKey(Text::tr("Name"));
    keys.visible = addSwitch(menu, Text::tr("Visible"));
    std::tie(keys.addTrace, keys.removeTrace) = addPair(menu, Text::tr("Add"), Text::tr("Remove"));

    menu->addPage(Text::tr("Math"), Glyph::Math);
    keys.memory = addMenu(menu, Text::tr("Memory"));
    keys.math = menu->addKey(Text::tr("Show"));
    keys.smoothing = menu->addKey(Text::tr("Smoothing"));
    keys.extensionPort = menu->addKey(Text::tr("Port"));
    keys.extension = menu->addKey(Text::tr("Port delay"));
    keys.impedance = menu->addKey(Text::tr("Port impedance"));

    menu->addPage(Text::tr("Scale"), Glyph::Scale);
    keys.scale = menu->addKey(Text::tr("Scale"));
    keys.reference = menu->addKey(Text::tr("Reference"));
    keys.referencePosition = menu->addKey(Text::tr("Reference position"));
    keys.autoScale = addMenu(menu, Text::tr("Autoscale"));

    menu->addPage(Text::tr("Marker"), Glyph::Marker);
    keys.marker = menu->addKey(Text::tr("Marker"));
    keys.markerStimulus = menu->addKey(Text::tr("Stimulus"));
    keys.search = addMenu(menu, Text::tr("Search"));
    keys.markerTo = addMenu(menu, Text::tr("Marker to"));
    std::tie(keys.referenceMarker, keys.bandwidth) =
        addPair(menu, Text::tr("Reference"), Text::tr("Bandwidth"));
    keys.readout = menu->addKey(Text::tr("Read-out"));
    std::tie(keys.track, keys.couple) = addPair(menu, Text::tr("Track"), Text::tr("Couple"));
    keys.markerTable = addSwitch(menu, Text::tr("Table"));

    menu->addPage(Text::tr("Limits"), Glyph::Limits);
    keys.limitLines = menu->addKey(Text::tr("Limit lines"));
    keys.editLimits = addSwitch(menu, Text::tr("Edit"));
    std::tie(keys.limitSide, keys.removeLimit) =
        addPair(menu, Text::tr("Side"), Text::tr("Remove"));
    keys.vswrCircle = menu->addKey(Text::tr("VSWR circle"));
    keys.vswrLimit = menu->addKey(Text::tr("VSWR limit"));
    keys.limitRadius = menu->addKey(Text::tr("Limit radius"));
    std::tie(keys.limitReal, keys.limitImag) =
        addPair(menu, Text::tr("Center Re"), Text::tr("Center Im"));

    menu->addPage(Text::tr("Display"), Glyph::Display);
    menu->addWidget([profile = model->viewSettings()->layoutProfile()](QWidget *page) {
        return new DisplayPanel(profile, page);
    });
    keys.grid = menu->addKey(Text::tr("Grid"));
    keys.density = menu->addKey(Text::tr("Density"));
    keys.gridLabels = menu->addKey(Text::tr("Labels"));
    keys.zoom = menu->addKey(Text::tr("Zoom"));
    keys.whole = menu->addKey(Text::tr("Whole view"));
    keys.pointer = menu->addKey(Text::tr("Pointer"));

    menu->addPage(Text::tr("Sweep"), Glyph::Sweep);
    keys.source = menu->addKey(Text::tr("Source"));
    keys.instrument = menu->addKey(Text::tr("Instrument"));
    keys.sweep = addSwitch(menu, Text::tr("Sweep"));
    keys.single = menu->addKey(Text::tr("Single"));
    keys.ifBandwidth = menu->addKey(Text::tr("IF bandwidth"));
    keys.power = menu->addKey(Text::tr("Power"));
    keys.averages = menu->addKey(Text::tr("Averages"));
    keys.tune = menu->addKey(Text::tr("Resonance"));
    keys.timing = addSwitch(menu, Text::tr("Timing"));

    menu->addPage(Text::tr("System"), Glyph::System);
    keys.file = menu->addKey(Text::tr("File"));
    keys.save = addMenu(menu, Text::tr("Save"));
    keys.screenshot = menu->addKey(Text::tr("Screenshot"));
    keys.setups = menu->addKey(Text::tr("Set-ups"));
    std::tie(keys.undo, keys.redo) = addPair(menu, Text::tr("Undo"), Text::tr("Redo"));
    keys.settings = menu->addKey(Text::tr("Settings"));
    keys.help = menu->addKey(Text::tr("Keyboard help"));
    return keys;
}

} // namespace Panel
