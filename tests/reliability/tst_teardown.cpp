// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Objects that refer to each other are destroyed in every order: at once, later, and from inside
// each other's signals. What is left is used after each step. A sanitizer sees what goes wrong.
#include <controls/editablewidget.h>
#include <controls/overlaycontainer.h>
#include <controls/scaledunitadapter.h>
#include <controls/stepcontroller.h>
#include <controls/thememanager.h>
#include <controls/touchnumkeyboard.h>
#include <platform/layoutmanagerprofile.h>
#include <smithchart/smithchartplot.h>
#include <widgets/displaypanel.h>
#include <widgets/enumtextbutton.h>
#include <widgets/lockwidget.h>
#include <widgets/menubutton.h>

#include <fuzz/census.h>

#include <algorithm>
#include <memory>
#include <vector>

#include <popupscene.h>

using namespace Controls;
using namespace Graph;
using namespace VnaTest;

namespace
{

/// A moment at which an object calls its host: \a happen makes it, \a listen waits for it.
struct Occasion {
    const char *name;
    std::function<void()> happen;
    std::function<void(const std::function<void()> &)> listen;
    bool onlyLater = false; ///< the toolkit itself is in the middle of something
};

/// Objects that know each other, each in the hands of the host or of one of the others.
struct Scene {
    std::vector<QPointer<QObject>> parts;
    std::vector<Occasion> occasions;
    std::function<void()> use; ///< does something with each part that is left

    /// The part of that number as what it is, and null as soon as its own destructor is through.
    template<typename T>
    T *part(std::size_t i) const
    {
        return qobject_cast<T *>(parts[i].data());
    }
    /// An occasion that is a signal of part \a i.
    template<typename T, typename... Values>
    void signal(const char *name, std::size_t i, void (T::*told)(Values...),
                const std::function<void()> &happen)
    {
        occasions.push_back({name, happen, [this, i, told](const std::function<void()> &slot) {
                                 QObject::connect(part<T>(i), told, slot);
                             }});
    }
};

void sendKey(QObject *receiver, Qt::Key key)
{
    const QPointer<QObject> alive(receiver);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
        if (alive)
            QCoreApplication::sendEvent(alive, &event);
    }
}

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
            itsField->overrideKeyboardFocusProxy(itsField);
            itsField->restoreKeyboardFocusProxy();
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
    s.signal("cursor in the unit", 1, &Adapter::cursorPosCrossUnit, [&s] {
        s.parts[1]->setProperty("inputText", "2GHz"_s);
        s.parts[1]->setProperty("cursorPos", 3);
    });
    // A line edit tells of its cursor from inside its own setText(), and must outlive that.
    s.occasions.back().onlyLater = true;
    s.signal("keypad closed", 3, &QDialog::finished, [&s] { s.part<QDialog>(3)->reject(); });
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

using Make = void (*)(Scene &);

} // namespace

Q_DECLARE_METATYPE(Make)

class tst_Teardown : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qApp->setProperty("vnaSettingsPath", "/nowhere/settings.ini"_s); }

    void censusSeesWhatIsLeft()
    {
        const Fuzz::Census census;
        QCustomPlot plot;
        QPointer<SmithChartPlot> chart = new SmithChartPlot(&plot, SmithChart::Basic);
        const QString grown = census.grown().join(QLatin1Char(' '));
        for (const char *name : {"QCustomPlot (", "SmithChartPlot (1", "QCPCurve (", "QCPLayer ("})
            QVERIFY2(grown.contains(QLatin1String(name)), qPrintable(grown));
        delete chart;
    }

    void everyOrder_data()
    {
        columns<Make>("make");
        row("chart", &makeChart);
        row("numeric entry", &makeEntry);
        row("overlay", &makeOverlay);
        row("lock", &makeLock);
        row("pop-up", &makePopup);
        row("list of values", &makeEnumButton);
        row("menu", &makeMenuButton);
        row("layout", &makeDisplayPanel);
    }

    void everyOrder()
    {
        QFETCH(Make, make);
        Scene first;
        make(first);
        const QByteArray parts = QByteArray("01234567").left(int(first.parts.size()));
        destroy(first, parts, false);
        // The last one stands for the host itself, between two calls.
        for (std::size_t occasion = 0; occasion <= first.occasions.size(); ++occasion) {
            const bool inSignal = occasion < first.occasions.size();
            QByteArray order = parts;
            int round = 0;
            do {
                ++round;
                // Inside of signals, one way for each order, and the other at the next signal.
                const bool late = inSignal
                    && (first.occasions[occasion].onlyLater || (int(occasion) + round) % 2 == 0);
                for (const bool later : {false, true}) {
                    if (inSignal && later != late)
                        continue;
                    Scene scene;
                    make(scene);
                    tearDown(scene, occasion, order, later);
                    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                    const auto gone = [](const auto &part) { return part.isNull(); };
                    QVERIFY2(std::all_of(scene.parts.begin(), scene.parts.end(), gone)
                                 && !QTest::currentTestFailed(),
                             qPrintable("occasion %1, order %2, later: %3"_s.arg(occasion)
                                            .arg(QLatin1String(order))
                                            .arg(later)));
                }
            } while (std::next_permutation(order.begin(), order.end()));
        }
    }

private:
    /// The order is a text of the parts' numbers.
    static void tearDown(Scene &scene, std::size_t occasion, const QByteArray &order, bool later)
    {
        if (occasion == scene.occasions.size()) {
            destroy(scene, order, later);
            return;
        }
        bool happened = false;
        scene.occasions[occasion].listen([&] {
            if (!happened) {
                happened = true;
                destroy(scene, order, later);
            }
        });
        scene.occasions[occasion].happen();
        QVERIFY2(happened, scene.occasions[occasion].name);
        scene.use();
    }

    static void destroy(Scene &scene, const QByteArray &order, bool later)
    {
        for (const char number : order) {
            QObject *const part = scene.parts[std::size_t(number - '0')];
            if (later && part)
                part->deleteLater();
            else
                delete part;
            Q_EMIT ThemeManager::instance()->themeChanged(ThemeManager::Dark);
            scene.use();
        }
    }
};

QTEST_MAIN(tst_Teardown)
#include "tst_teardown.moc"
