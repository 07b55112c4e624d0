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
#include <widgets/popupwidget.h>

#include <fuzz/census.h>

#include <QDialog>
#include <QDoubleValidator>
#include <QLineEdit>
#include <QMainWindow>
#include <QtTest>

#include <algorithm>
#include <memory>
#include <numeric>
#include <vector>

#include <popupscene.h>
#include <tables.h>
#include <vnatest.h>

using namespace Controls;
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
    template<typename T, typename Signal>
    void signal(const char *name, std::size_t i, Signal told, const std::function<void()> &happen)
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

void useChart(const Scene &s)
{
    if (auto *const plot = s.part<QCustomPlot>(1)) {
        QResizeEvent resize(plot->size(), {});
        QCoreApplication::sendEvent(plot, &resize);
        plot->replot();
    }
    if (auto *const chart = s.part<SmithChartPlot>(2)) {
        chart->setCurveData(1, {}, {0.1, 0.2, 0.3}, {0.1, 0.2, 0.3});
        chart->setMarkerIndex(1, 1, 1.5);
        chart->setGridMode(SmithChartPlot::ImpedanceAndAdmittance);
        chart->zoomAt({0.1, 0.1}, 1.5);
    }
    if (s.parts[3]) {
        auto &marker = static_cast<MarkerOwner *>(s.parts[3].data())->marker;
        marker.setVisible(true);
        marker.setColors(QPen(Qt::red), Qt::NoBrush);
        marker.setPositionCoordinates(static_cast<QCPCurve *>(nullptr), 0.1, 0.1);
    }
}

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

    s.use = [&s] { useChart(s); };
    const auto call = [&s](auto function) {
        return [&s, function] {
            if (auto *const alive = s.part<SmithChartPlot>(2))
                function(*alive);
        };
    };
    using Chart = SmithChartPlot;
    const auto pixel = [](Chart &c) {
        return c.getMarker(1, 1)->getTracer()->position->pixelPosition().toPoint();
    };
    const auto drag = [pixel](Chart &c) { c.beginMarkerDragAt(pixel(c)); };
    s.signal<Chart>("selected", 2, &Chart::markerSelected,
                    call([](Chart &c) { c.selectMarker(1, 1); }));
    s.signal<Chart>("selection cleared", 2, &Chart::markerSelectionCleared, call([](Chart &c) {
                        c.selectMarker(1, 1);
                        c.removeCurve(1);
                    }));
    s.signal<Chart>("selection requested", 2, &Chart::markerSelectionRequested, call(drag));
    s.signal<Chart>("drag started", 2, &Chart::markerDragStarted, call(drag));
    s.signal<Chart>("dragged", 2, &Chart::markerPositionChanged, call([=](Chart &c) {
                        drag(c);
                        c.updateMarkerDragAt({20, 20});
                    }));
    s.signal<Chart>("dropped", 2, &Chart::markerDragFinished, call([=](Chart &c) {
                        drag(c);
                        c.endMarkerDragAt({20, 20});
                    }));
    s.signal<Chart>("double clicked", 2, &Chart::activeTraceDoubleClicked,
                    call([=](Chart &c) { c.handleDoubleClick(pixel(c), Qt::NoModifier); }));
    for (const int count : {1, 2}) { // of the replots that it asks for
        s.occasions.push_back({"replot",
                               call([](Chart &c) { c.setCurveData(1, {}, {0.2}, {0.2}); }),
                               [&s, count](const std::function<void()> &slot) {
                                   s.part<Chart>(2)->setQueuedReplotHandler(
                                       [slot, left = std::make_shared<int>(count)] {
                                           if (--*left == 0)
                                               slot();
                                       });
                               }});
        s.occasions.push_back({"replot of a grid",
                               call([](Chart &c) { c.setGridMode(Chart::Admittance); }),
                               s.occasions.back().listen});
        s.occasions.push_back({"replot of no curves", call([](Chart &c) { c.clearAllCurves(); }),
                               s.occasions.back().listen});
    }
}

void useEntry(const Scene &s)
{
    if (auto *const adapter = s.part<BaseUnitAdapter>(1)) {
        adapter->setProperty("inputText", "3"_s);
        sendKey(adapter, Qt::Key_Up);
        sendKey(adapter, Qt::Key_Return);
    }
    if (auto *const stepper = s.part<StepController>(2))
        stepper->stepBy(1.0, 1);
    if (auto *const keypad = s.part<TouchNumKeyboard>(3)) {
        keypad->setIndicatorText("1"_s, 0, 1, 1);
        if (auto *const key = keypad->findChild<QPushButton *>("btn1"_s))
            key->click();
    }
    if (auto *const field = s.part<EditableWidget>(4)) {
        field->onFocus();
        field->setEditorText("4GHz"_s, 0, 1, 1);
        field->overrideKeyboardFocusProxy(field);
        field->restoreKeyboardFocusProxy();
    }
    QCoreApplication::processEvents();
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

    s.use = [&s] { useEntry(s); };
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
        s.signal<Adapter>("finished", 1, &Adapter::editingFinished, type(receiver, Qt::Key_Return));
        s.signal<Adapter>("cancelled", 1, &Adapter::specialKeyHandled,
                          type(receiver, Qt::Key_Escape));
        s.signal<Adapter>("point", 1, &Adapter::specialKeyHandled, type(receiver, Qt::Key_Period));
        s.signal<Adapter>("step wanted", 1, &Adapter::stepBy, type(receiver, Qt::Key_Up));
        s.signal<StepController>("stepped", 2, &StepController::stepped,
                                 type(receiver, Qt::Key_Down));
    }
    s.signal<Adapter>("stepped and told", 1, &Adapter::editingFinished, type(1, Qt::Key_Up));
    s.signal<Adapter>("cursor in the unit", 1, &Adapter::cursorPosCrossUnit, [&s] {
        s.parts[1]->setProperty("inputText", "2GHz"_s);
        s.parts[1]->setProperty("cursorPos", 3);
    });
    // A line edit tells of its cursor from inside its own setText(), and must outlive that.
    s.occasions.back().onlyLater = true;
    s.signal<QDialog>("keypad closed", 3, &QDialog::finished,
                      [&s] { s.part<QDialog>(3)->reject(); });
}

void useOverlay(const Scene &s)
{
    if (auto *const host = s.part<QWidget>(0))
        host->resize(host->width() + 1, 300);
    if (auto *const overlay = s.part<OverlayContainer>(2)) {
        overlay->setDimEnabled(false);
        if (auto *const dialog = s.part<QDialog>(3))
            overlay->showWithDialog(dialog, OverlayContainer::Accept, true,
                                    OverlayContainer::LeftOfAnchor, s.part<QWidget>(1));
        if (auto *const host = s.part<QWidget>(0))
            overlay->attachToHost(host);
    }
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
    s.use = [&s] { useOverlay(s); };
    s.signal<OverlayContainer>("outside", 2, &OverlayContainer::outsideClicked, [&s] {
        press(s.part<QWidget>(2), {1, 1});
    });
    s.signal<QDialog>("rejected", 3, &QDialog::rejected, [&s] {
        press(s.part<QWidget>(2), {1, 1});
    });
}

void useLock(const Scene &s)
{
    if (auto *const lock = s.part<LockWidget>(2)) {
        sendKey(lock, Qt::Key_Space);
        lock->setScreenLockEnable(true);
    }
    for (const std::size_t i : {0u, 1u}) {
        if (auto *const widget = s.part<QWidget>(i)) {
            press(widget, {5, 5});
            widget->resize(widget->width() + 1, 200);
        }
    }
    QCoreApplication::processEvents();
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
    s.use = [&s] { useLock(s); };
}

/// A list that the host opens from a button of its own.
void usePopup(const Scene &s)
{
    if (auto *const popup = s.part<PopupWidget>(2)) {
        popup->addItem("c"_s);
        popup->setCurrentItem("b"_s);
        popup->popup();
        popup->show();
        popup->close();
    }
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
    s.use = [&s] { usePopup(s); };
    s.signal<PopupWidget>("picked", 2, &PopupWidget::currentItemChanged, [&s] {
        clickItem(s.part<PopupWidget>(2)->findChild<QListWidget *>(), 1);
    });
    s.signal<PopupWidget>("closed", 2, &PopupWidget::widgetClosed,
                          [&s] { s.part<PopupWidget>(2)->close(); });
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
    s.occasions.push_back({"list closed",
                           [list] {
                               list()->show();
                               list()->close();
                           },
                           [list](const std::function<void()> &slot) {
                               QObject::connect(list(), &PopupWidget::widgetClosed, slot);
                           }});
    window->show();
    return button;
}

void makeEnumButton(Scene &s)
{
    makeListButton<EnumTextButton>(s)->setEnums({{1, "a"_s}, {2, "b"_s}});
    const auto choose = [&s] { s.part<EnumTextButton>(1)->onPopupWidgetItemChanged("b"_s); };
    s.signal<EnumTextButton>("toggled", 1, &EnumTextButton::currentItemToggled, choose);
    s.signal<EnumTextButton>("edited", 1, &EnumTextButton::currentItemEdited, choose);
}

void makeMenuButton(Scene &s)
{
    makeListButton<MenuButton>(s)->setMenuItems({{1, "a"_s}, {2, "b"_s}});
    s.signal<MenuButton>("clicked", 1, QOverload<int>::of(&MenuButton::menuItemClicked),
                         [&s] { s.part<MenuButton>(1)->onPopupWidgetItemChanged("b"_s); });
}

void useDisplayPanel(const Scene &s)
{
    if (auto *const profile = s.part<Graph::LayoutManagerProifle>(1))
        profile->setLayoutType(Graph::LayoutType::Quad);
    if (auto *const panel = s.part<DisplayPanel>(2)) {
        panel->updateThemeIcons(false);
        panel->findChild<QComboBox *>()->setCurrentIndex(1);
    }
}

void makeDisplayPanel(Scene &s)
{
    auto *const window = new QWidget;
    auto *const profile = new Graph::LayoutManagerProifle;
    auto *const panel = new DisplayPanel(profile, window);
    s.parts = {window, profile, panel};
    s.use = [&s] { useDisplayPanel(s); };
    const auto change = [&s] {
        s.part<Graph::LayoutManagerProifle>(1)->setLayoutType(Graph::LayoutType::Stacked);
    };
    s.signal<DisplayPanel>("changed", 2, &DisplayPanel::layoutChanged, change);
    s.signal<Graph::LayoutManagerProifle>("profile changed", 1,
                                          &Graph::LayoutManagerProifle::layoutTypeChanged, change);
}

using Make = void (*)(Scene &);

} // namespace

Q_DECLARE_METATYPE(Make)

class tst_Teardown : public VnaTest::TestCase
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
        const std::size_t occasions = first.occasions.size();
        destroy(first, numbers(first), false);
        // The last one stands for the host itself, between two calls.
        for (std::size_t occasion = 0; occasion <= occasions; ++occasion) {
            std::vector<std::size_t> order;
            int round = 0;
            do {
                ++round;
                for (const bool later : {false, true}) {
                    // Inside of signals, one way for each order, and the other at the next signal.
                    const bool inSignal = occasion < occasions;
                    if (inSignal
                        && later
                            != (first.occasions[occasion].onlyLater
                                || (static_cast<int>(occasion) + round) % 2 == 0))
                        continue;
                    Scene scene;
                    make(scene);
                    if (order.empty())
                        order = numbers(scene);
                    tearDown(scene, occasion, order, later);
                    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
                    const bool left =
                        std::any_of(scene.parts.begin(), scene.parts.end(),
                                    [](const QPointer<QObject> &part) { return !part.isNull(); });
                    if (left || QTest::currentTestFailed()) {
                        QFAIL(qPrintable(QStringLiteral("occasion %1, order %2, %3")
                                             .arg(occasion)
                                             .arg(text(order), later ? "later"_s : "now"_s)));
                    }
                }
            } while (std::next_permutation(order.begin(), order.end()));
        }
    }

private:
    static std::vector<std::size_t> numbers(const Scene &scene)
    {
        std::vector<std::size_t> order(scene.parts.size());
        std::iota(order.begin(), order.end(), 0);
        return order;
    }

    static QString text(const std::vector<std::size_t> &order)
    {
        QString text;
        for (const std::size_t i : order)
            text += QString::number(i);
        return text;
    }

    static void tearDown(Scene &scene, std::size_t occasion, const std::vector<std::size_t> &order,
                         bool later)
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

    static void destroy(Scene &scene, const std::vector<std::size_t> &order, bool later)
    {
        for (const std::size_t i : order) {
            if (later && scene.parts[i])
                scene.parts[i]->deleteLater();
            else
                delete scene.parts[i].data();
            Q_EMIT ThemeManager::instance()->themeChanged(ThemeManager::Dark);
            scene.use();
        }
    }
};

QTEST_MAIN(tst_Teardown)
#include "tst_teardown.moc"
