// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "teardownscenes.h"

#include <controls/editablewidget.h>
#include <controls/keypadeditor.h>
#include <controls/overlaycontainer.h>
#include <controls/scaledunitadapter.h>
#include <controls/stepcontroller.h>
#include <controls/touchnumkeyboard.h>
#include <platform/layoutmanagerprofile.h>
#include <smithchart/smithchartplot.h>
#include <widgets/displaypanel.h>
#include <widgets/enumtextbutton.h>
#include <widgets/lockwidget.h>
#include <widgets/menubutton.h>

#include <memory>

#include <popupscene.h>

using namespace Controls;
using namespace Graph;
using namespace VnaTest;

namespace
{

void press(QWidget *widget, const QPoint &pos)
{
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(pos), QPointF(widget->mapToGlobal(pos)),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

/// A marker is no object: this one owns it for the table.
struct MarkerOwner : QObject {
    Plot::Marker marker;
};

void makeChart(Scene &s)
{
    auto *const window = new QWidget;
    auto *const plot = new QCustomPlot(window);
    auto *const chart = new SmithChartPlot(plot, SmithChart::Basic);
    auto *const owner = new MarkerOwner;
    plot->resize(200, 200);
    chart->addCurve(1, QPen(Qt::blue));
    chart->setActiveTrace(1);
    chart->setCurveData(1, {1.0, 2.0}, {0.0, 0.5}, {0.0, 0.5});
    chart->addMarkerVisual(1, 1, 0.0, Plot::PointingDown);
    chart->addMarkerVisual(1, 2, 1.0, Plot::PointingUp);
    owner->marker = Plot::Marker(plot, 7, Plot::PointingDown);
    owner->marker.setPosition(chart->getCurve(1), 0.5);
    plot->setViewport(plot->rect()); // as if it had been shown
    plot->replot();
    s.parts = {window, plot, chart, owner};

    s.use = [&s] {
        if (auto *const itsPlot = s.part<QCustomPlot>(1)) {
            QResizeEvent resize(itsPlot->size(), {});
            QCoreApplication::sendEvent(itsPlot, &resize);
            itsPlot->replot();
        }
        if (auto *const itsChart = s.part<SmithChartPlot>(2)) {
            itsChart->setCurveData(1, {}, {0.1, 0.2, 0.3}, {0.1, 0.2, 0.3});
            itsChart->setMarkerIndex(1, 1, 1.5);
            itsChart->setGridMode(SmithChartPlot::ImpedanceAndAdmittance);
            itsChart->zoomAt({0.1, 0.1}, 1.5);
            itsChart->clearMarkerSelection();
            itsChart->setMarkerVisible(1, 1, true);
            itsChart->addCurve(3, QPen());
        }
        if (s.parts[3]) {
            auto &marker = static_cast<MarkerOwner *>(s.parts[3].data())->marker;
            marker.setVisible(true);
            marker.setColors(QPen(Qt::red), Qt::NoBrush);
            marker.setPositionCoordinates(static_cast<QCPCurve *>(nullptr), 0.1, 0.1);
        }
    };
    using Chart = SmithChartPlot;
    using Act = std::function<void(Chart &)>;
    const auto call = [&s](const Act &act) { return [&s, act] { act(*s.part<Chart>(2)); }; };
    const auto on = [&s, call](const char *name, auto signal, const Act &act) {
        s.signal(name, 2, signal, call(act));
    };
    const auto pixel = [](Chart &c) {
        return c.getMarker(1, 1)->getTracer()->position->pixelPosition().toPoint();
    };
    const auto drag = [pixel](Chart &c) { c.beginMarkerDragAt(pixel(c)); };
    on("selected", &Chart::markerSelected, [](Chart &c) { c.selectMarker(1, 1); });
    on("selection cleared", &Chart::markerSelectionCleared, [](Chart &c) {
        c.selectMarker(1, 1);
        c.removeCurve(1);
    });
    on("selection requested", &Chart::markerSelectionRequested, drag);
    on("drag started", &Chart::markerDragStarted, drag);
    on("dragged", &Chart::markerPositionChanged, [=](Chart &c) {
        drag(c);
        c.updateMarkerDragAt({20, 20});
    });
    on("dropped", &Chart::markerDragFinished, [=](Chart &c) {
        drag(c);
        c.endMarkerDragAt({20, 20});
    });
    on("delete key", &Chart::markerDeleteRequested, [&s](Chart &c) {
        c.selectMarker(1, 1);
        sendKey(s.parts[1], Qt::Key_Delete);
    });
    on("double clicked", &Chart::activeTraceDoubleClicked,
       [=](Chart &c) { c.handleDoubleClick(pixel(c), Qt::NoModifier); });
    for (const int count : {1, 2}) { // of the replots that it asks for
        const auto listen = [&s, count](const std::function<void()> &slot) {
            s.part<Chart>(2)->setQueuedReplotHandler([slot, left = std::make_shared<int>(count)] {
                if (--*left == 0)
                    slot();
            });
        };
        for (const Act &act : {Act([](Chart &c) { c.setCurveData(1, {}, {0.2}, {0.2}); }),
                               Act([](Chart &c) { c.setGridMode(Chart::Admittance); }),
                               Act([](Chart &c) { c.clearAllCurves(); })})
            s.occasions.push_back({"replot", call(act), listen});
    }
}

void makeEntry(Scene &s)
{
    auto *const window = new QMainWindow;
    window->resize(600, 500);
    auto *const adapter = new ScaledUnitAdapter({{"GHz"_s, 1e9}, {"Hz"_s, 1.0}});
    auto *const stepper = new StepController(window);
    auto *const keypad = new TouchNumKeyboard(window);
    auto *const field = new EditableWidget(keypad, adapter);
    adapter->setValidator(new QDoubleValidator(0.0, 1e10, 3, adapter));
    adapter->setRealValue(2e9);
    stepper->setAdapter(adapter);
    keypad->setTitleWidget(field);
    window->show();
    keypad->open();
    field->onFocus();
    s.parts = {window, adapter, stepper, keypad, field};

    s.use = [&s] {
        if (auto *const itsAdapter = s.part<BaseUnitAdapter>(1)) {
            itsAdapter->setProperty("inputText", "3"_s);
            sendKey(itsAdapter, Qt::Key_Up);
            sendKey(itsAdapter, Qt::Key_Return);
        }
        if (auto *const itsStepper = s.part<StepController>(2))
            itsStepper->stepBy(1.0, 1);
        if (auto *const itsKeypad = s.part<TouchNumKeyboard>(3)) {
            itsKeypad->setIndicatorText("1"_s, 0, 1, 1);
            if (auto *const key = itsKeypad->findChild<QPushButton *>("btn1"_s))
                key->click();
        }
        if (auto *const itsField = s.part<EditableWidget>(4)) {
            itsField->onFocus();
            itsField->setEditorText("4GHz"_s, 0, 1, 1);
        }
        QCoreApplication::processEvents();
    };
    const auto type = [&s](std::size_t i, Qt::Key key) {
        return [&s, i, key] {
            QObject *receiver = s.parts[i];
            if (auto *const widget = qobject_cast<QWidget *>(receiver))
                receiver = widget->findChild<QLineEdit *>();
            sendKey(receiver, key);
        };
    };
    using Adapter = BaseUnitAdapter;
    for (const std::size_t receiver : {1u, 4u}) {
        s.signal("finished", 1, &Adapter::editingFinished, type(receiver, Qt::Key_Return));
        s.signal("cancelled", 1, &Adapter::specialKeyHandled, type(receiver, Qt::Key_Escape));
        s.signal("point", 1, &Adapter::specialKeyHandled, type(receiver, Qt::Key_Period));
        s.signal("step wanted", 1, &Adapter::stepBy, type(receiver, Qt::Key_Up));
        s.signal("stepped", 2, &StepController::stepped, type(receiver, Qt::Key_Down));
    }
    s.signal("stepped and told", 1, &Adapter::editingFinished, type(1, Qt::Key_Up));
    s.signal("OK", 1, &Adapter::editingFinished,
             [&s] { mouseClick(s.part<QWidget>(3)->findChild<QPushButton *>("btnOk"_s)); });
    s.occasions.back().onlyLater = true; // as the keypad's window is in the middle of a tap
    s.occasions.push_back({"key callback", type(1, Qt::Key_F1), [&s](const auto &slot) {
                               s.part<Adapter>(1)->setKeyCallback(Qt::Key_F1, [slot](QKeyEvent *) {
                                   slot();
                                   return false;
                               });
                           }});
    s.signal("cursor in the unit", 1, &Adapter::cursorPosCrossUnit, [&s] {
        s.parts[1]->setProperty("inputText", "2GHz"_s);
        s.parts[1]->setProperty("cursorPos", 3);
    });
    // A line edit tells of its cursor from inside its own setText(), and must outlive that.
    s.occasions.back().onlyLater = true;
    s.signal("keypad closed", 3, &QDialog::finished, [&s] { s.part<QDialog>(3)->reject(); });
}

/// The keypad's own text area, in place of a field.
void makeKeypad(Scene &s)
{
    auto *const window = new QMainWindow;
    window->resize(600, 500);
    auto *const keypad = new TouchNumKeyboard(window);
    auto *const adapter = new BaseUnitAdapter(keypad); // whose commit closes the keypad
    auto *const editor = new KeypadEditor(keypad, adapter);
    showExposed(window);
    keypad->open();
    s.parts = {window, adapter, keypad, editor};
    s.use = [&s] {
        if (auto *const itsAdapter = s.part<BaseUnitAdapter>(1))
            itsAdapter->setRealValue(4.0);
        if (auto *const itsKeypad = s.part<TouchNumKeyboard>(2)) {
            itsKeypad->open();
            if (auto *const key = itsKeypad->findChild<QPushButton *>("btn1"_s))
                key->click();
        }
        QCoreApplication::processEvents();
    };
    const auto type = [&s](Qt::Key key) {
        return [&s, key] { sendKey(s.part<QWidget>(2)->findChild<QLineEdit *>("edit"_s), key); };
    };
    s.signal("finished", 1, &BaseUnitAdapter::editingFinished, type(Qt::Key_Return));
    s.signal("closed", 2, &QDialog::finished, type(Qt::Key_Escape));
    s.signal("left", 3, &KeypadEditor::focusedOut, [&s] { s.part<QWidget>(2)->hide(); });
    s.occasions.back().onlyLater = true; // Qt is in the middle of hiding the keypad
}

void makeOverlay(Scene &s)
{
    auto *const host = new QWidget;
    auto *const anchor = new QWidget(host);
    auto *const overlay = new OverlayContainer(host);
    auto *const dialog = new QDialog(host);
    host->resize(400, 300);
    anchor->setGeometry(350, 10, 40, 40);
    dialog->setWindowFlags(Qt::Widget);
    dialog->resize(100, 100);
    host->show();
    overlay->showWithDialog(dialog, OverlayContainer::Reject, true, OverlayContainer::LeftOfAnchor,
                            anchor);
    s.parts = {host, anchor, overlay, dialog};
    s.use = [&s] {
        if (auto *const itsHost = s.part<QWidget>(0))
            itsHost->resize(itsHost->width() + 1, 300);
        if (auto *const itsOverlay = s.part<OverlayContainer>(2)) {
            itsOverlay->setDimEnabled(false);
            if (auto *const itsDialog = s.part<QDialog>(3))
                itsOverlay->showWithDialog(itsDialog, OverlayContainer::Accept, true,
                                           OverlayContainer::LeftOfAnchor, s.part<QWidget>(1));
            if (auto *const itsHost = s.part<QWidget>(0))
                itsOverlay->attachToHost(itsHost);
        }
    };
    const auto pressOutside = [&s] { press(s.part<QWidget>(2), {1, 1}); };
    s.signal("outside", 2, &OverlayContainer::outsideClicked, pressOutside);
    s.signal("rejected", 3, &QDialog::rejected, pressOutside);
}

void makeLock(Scene &s)
{
    auto *const window = new QWidget;
    auto *const target = new QWidget(window);
    auto *const lock = new LockWidget(window, target);
    window->resize(300, 200);
    target->resize(300, 200);
    window->show();
    lock->setScreenLockEnable(true);
    QCoreApplication::processEvents();
    s.parts = {window, target, lock};
    s.use = [&s] {
        if (auto *const itsLock = s.part<LockWidget>(2)) {
            sendKey(itsLock, Qt::Key_Space);
            itsLock->setScreenLockEnable(true);
        }
        for (const std::size_t i : {0u, 1u}) {
            if (auto *const widget = s.part<QWidget>(i)) {
                press(widget, {5, 5});
                widget->resize(widget->width() + 1, 200);
            }
        }
        QCoreApplication::processEvents();
    };
}

void makePopup(Scene &s)
{
    auto *const window = new QWidget;
    auto *const button = new LabelButton(window);
    auto *const popup = new PopupWidget(button);
    popup->addItems({"a"_s, "b"_s}, 0);
    window->show();
    popup->popup();
    popup->show();
    s.parts = {window, button, popup};
    s.use = [&s] {
        if (auto *const itsPopup = s.part<PopupWidget>(2)) {
            itsPopup->addItem("c"_s);
            itsPopup->setCurrentItem("b"_s);
            itsPopup->popup();
            itsPopup->show();
            itsPopup->close();
        }
    };
    s.signal("picked", 2, &PopupWidget::currentItemChanged,
             [&s] { clickItem(s.part<PopupWidget>(2)->findChild<QListWidget *>(), 1); });
    s.signal("picked by key", 2, &PopupWidget::currentItemChanged, [&s] {
        s.part<PopupWidget>(2)->findChild<QListWidget *>()->setCurrentRow(1);
        typeKey(s.part<PopupWidget>(2), Qt::Key_Return);
    });
    s.signal("closed", 2, &PopupWidget::widgetClosed, [&s] { s.part<PopupWidget>(2)->close(); });
}

/// A button that has a list of its own.
template<typename Button>
Button *makeListButton(Scene &s)
{
    auto *const window = new QWidget;
    auto *const button = new Button(window);
    s.parts = {window, button};
    s.use = [&s] {
        if (auto *const left = s.part<Button>(1)) {
            left->click();
            left->setItemEnabled(0, true);
            left->setTitleVisible(true);
            left->updatePopupPosition();
        }
        QCoreApplication::processEvents();
    };
    const auto list = [&s] { return s.parts[1]->findChild<PopupWidget *>(); };
    const auto close = [list] {
        list()->show();
        list()->close();
    };
    s.occasions.push_back({"list closed", close, [list](const std::function<void()> &slot) {
                               QObject::connect(list(), &PopupWidget::widgetClosed, slot);
                           }});
    window->show();
    return button;
}

/// Opens the list of a button and taps a row that is not chosen.
void pickFromList(const Scene &s)
{
    s.part<QAbstractButton>(1)->click();
    clickItem(s.parts[1]->findChild<QListWidget *>(), 1);
}

void makeEnumButton(Scene &s)
{
    makeListButton<EnumTextButton>(s)->setEnums({{1, "a"_s}, {2, "b"_s}});
    const auto pick = [&s] { pickFromList(s); };
    s.signal("toggled", 1, &EnumTextButton::currentItemToggled, pick);
    s.signal("edited", 1, &EnumTextButton::currentItemEdited, pick);
}

void makeMenuButton(Scene &s)
{
    makeListButton<MenuButton>(s)->setMenuItems({{1, "a"_s}, {2, "b"_s}});
    const auto pick = [&s] { pickFromList(s); };
    s.signal("clicked", 1, qOverload<int>(&MenuButton::menuItemClicked), pick);
    s.signal("text", 1, qOverload<const QString &>(&MenuButton::menuItemClicked), pick);
}

void makeDisplayPanel(Scene &s)
{
    auto *const window = new QWidget;
    auto *const profile = new LayoutManagerProifle;
    auto *const panel = new DisplayPanel(profile, window);
    s.parts = {window, profile, panel};
    s.use = [&s] {
        if (auto *const itsProfile = s.part<LayoutManagerProifle>(1))
            itsProfile->setLayoutType(LayoutType::Quad);
        if (auto *const itsPanel = s.part<DisplayPanel>(2)) {
            itsPanel->updateThemeIcons(false);
            QEvent language(QEvent::LanguageChange);
            QCoreApplication::sendEvent(itsPanel, &language);
            itsPanel->findChild<QComboBox *>()->setCurrentIndex(1);
        }
    };
    const auto change = [&s] {
        s.part<LayoutManagerProifle>(1)->setLayoutType(LayoutType::Stacked);
    };
    s.signal("changed", 2, &DisplayPanel::layoutChanged, change);
    s.signal("profile changed", 1, &LayoutManagerProifle::layoutTypeChanged, change);
}

} // namespace

QVector<std::pair<const char *, MakeScene>> teardownScenes()
{
    return {{"chart", makeChart},
            {"numeric entry", makeEntry},
            {"keypad", makeKeypad},
            {"overlay", makeOverlay},
            {"lock", makeLock},
            {"pop-up", makePopup},
            {"list of values", makeEnumButton},
            {"menu", makeMenuButton},
            {"layout", makeDisplayPanel}};
}
