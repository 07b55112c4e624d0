// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "widgettable.h"

#include <controls/combobox.h>
#include <controls/draggableframelessdialog.h>
#include <controls/editablewidget.h>
#include <controls/numericfield.h>
#include <controls/overlaycontainer.h>
#include <controls/touchnumkeyboard.h>
#include <platform/roundlabel.h>
#include <platform/tabletcombobox2.h>
#include <plot/qcp.h>
#include <widgets/displaypanel.h>
#include <widgets/enumtextbutton.h>
#include <widgets/lockwidget.h>
#include <widgets/markerstatusitem.h>
#include <widgets/menubutton.h>
#include <widgets/popupwidget.h>
#include <widgets/rectangularbottomwidget.h>
#include <widgets/switchbutton.h>

namespace Designer
{

namespace
{

constexpr char s_buttons[] = "VnaWidgets - Buttons";
constexpr char s_entry[] = "VnaWidgets - Entry";
constexpr char s_readouts[] = "VnaWidgets - Read-outs";
constexpr QSize s_key(150, 84); // what a finger finds without aiming
constexpr QSize s_line(150, 44);

constexpr char s_name[] = "<property name=\"text\"><string>Name</string></property>";
constexpr char s_nameAndValue[] = "<property name=\"text\"><string>Name</string></property>"
                                  "<property name=\"labelText\"><string>Value</string></property>";

template<typename Widget>
QWidget *create(QWidget *parent)
{
    return new Widget(parent);
}

void fillMarker(QWidget *widget)
{
    auto *const item = static_cast<MarkerStatusItem *>(widget);
    item->setText(QStringLiteral("M1:"), QStringLiteral("2.412 000 GHz"), QStringLiteral("48.21"),
                  QStringLiteral("3.10"), QString());
    item->setSelectedStatus(true);
}

void fillSweepBar(QWidget *widget)
{
    auto *const bar = static_cast<RectangularBottomWidget *>(widget);
    bar->updateRange(QStringLiteral("1 GHz"), QStringLiteral("4 GHz"));
    bar->setSweepSpeedText(QStringLiteral("20 sweeps/s"));
}

} // namespace

// A form's compiled code says `new Class(parent)`. Windows, and what needs more than a parent, are
// known to QUiLoader but not offered for a form.
QVector<WidgetEntry> widgetTable()
{
    return {
        {"AbstractButton", "VnaWidgets/AbstractButton", s_buttons, "abstractbutton",
         "A push button that can be inert without looking disabled", s_line, s_name,
         create<AbstractButton>, nullptr},
        {"InfoButton", "VnaWidgets/InfoButton", s_buttons, "infobutton",
         "A button with a name, and any widget that tells something about it", s_key, s_name,
         create<InfoButton>, nullptr},
        {"LabelButton", "VnaWidgets/LabelButton", s_buttons, "labelbutton",
         "A soft key: a small name and a large value", s_key, s_nameAndValue, create<LabelButton>,
         nullptr},
        {"EnumTextButton", "VnaWidgets/EnumTextButton", s_buttons, "enumtextbutton",
         "A soft key that opens a list to choose its value from", s_key, s_nameAndValue,
         create<EnumTextButton>, nullptr},
        {"MenuButton", "VnaWidgets/MenuButton", s_buttons, "menubutton",
         "A push button that opens a list of commands", s_line, s_name, create<MenuButton>,
         nullptr},
        {"SwitchButton", "VnaWidgets/SwitchButton", s_buttons, "switchbutton",
         "A soft key with On and Off", QSize(200, 84), s_name, create<SwitchButton>, nullptr},
        {"Controls::ComboBox", "VnaWidgets/ComboBox", s_entry, "combobox",
         "A combo box whose list stays on the screen and whose entries can be greyed out", s_line,
         "", create<Controls::ComboBox>, nullptr},
        {"Profile::TabletComboBox2", "VnaWidgets/TabletComboBox2", s_entry, "tabletcombobox2",
         "A combo box bound to a value of the stored profile", s_line, "",
         create<Profile::TabletComboBox2>, nullptr},
        {"Controls::NumericField", "VnaWidgets/NumericField", s_entry, "editablewidget",
         "A number with a unit, and a keypad of its own", s_key,
         "<property name=\"labelText\"><string>Name</string></property>"
         "<property name=\"unit\"><string>Hz</string></property>",
         create<Controls::NumericField>, nullptr},
        {"MarkerStatusItem", "VnaWidgets/MarkerStatusItem", s_readouts, "markerstatusitem",
         "A line of a marker read-out; it folds when it is narrow", QSize(520, 28), "",
         create<MarkerStatusItem>, fillMarker},
        {"RectangularBottomWidget", "VnaWidgets/RectangularBottomWidget", s_readouts,
         "rectangularbottomwidget", "The bar below a diagram: start, speed and stop of the sweep",
         QSize(520, 28), "", create<RectangularBottomWidget>, fillSweepBar},
        {"Controls::RoundLabel", "VnaWidgets/RoundLabel", s_readouts, "roundlabel",
         "A number that is rounded to the room there is", s_line,
         "<property name=\"text\"><string>2.412345678GHz</string></property>",
         create<Controls::RoundLabel>, nullptr},
        {"QCustomPlot", "plot/qcp.h", "VnaWidgets - Plots", "qcustomplot",
         "The plot that a SmithChartPlot draws on", QSize(320, 320), "", create<QCustomPlot>,
         nullptr},

        {"DisplayPanel", "VnaWidgets/DisplayPanel", nullptr, "displaypanel",
         "Chooses how the diagrams share the window", QSize(200, 80), "",
         [](QWidget *parent) -> QWidget * { return new DisplayPanel(nullptr, parent); }, nullptr},
        {"Controls::EditableWidget", "VnaWidgets/EditableWidget", nullptr, "editablewidget",
         "A field for a number with a unit", s_key, "",
         [](QWidget *parent) -> QWidget * {
             return new Controls::EditableWidget(nullptr, nullptr, parent);
         },
         nullptr},
        {"LockWidget", "VnaWidgets/LockWidget", nullptr, "lockwidget",
         "A padlock against accidental touches", QSize(60, 60), "",
         [](QWidget *parent) -> QWidget * { return new LockWidget(parent, parent); }, nullptr},
        {"PopupWidget", "VnaWidgets/PopupWidget", nullptr, "popupwidget",
         "The list that buttons open", QSize(160, 200), "", create<PopupWidget>, nullptr},
        {"Controls::TouchNumKeyboard", "VnaWidgets/TouchNumKeyboard", nullptr, "touchnumkeyboard",
         "The keypad for numbers with units", QSize(420, 360), "",
         create<Controls::TouchNumKeyboard>, nullptr},
        {"Controls::DraggableFramelessDialog", "VnaWidgets/DraggableFramelessDialog", nullptr,
         "draggableframelessdialog", "A dialog with a title bar of its own", QSize(400, 300), "",
         create<Controls::DraggableFramelessDialog>, nullptr},
        {"Controls::OverlayContainer", "VnaWidgets/OverlayContainer", nullptr, "overlaycontainer",
         "Dims a window behind a dialog", QSize(400, 300), "", create<Controls::OverlayContainer>,
         nullptr},
    };
}

} // namespace Designer
