// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    A tour of the panel with nothing but a finger, a wheel and keys, through all its screens. */
#include "desk.h"
#include "vnatest.h"

#include <controls/thememanager.h>
#include <panel/cartesianview.h>
#include <panel/helpdialog.h>
#include <panel/look.h>
#include <panel/numericdialog.h>
#include <panel/readouts.h>
#include <panel/settingsdialog.h>
#include <panel/sweepcontroller.h>
#include <panel/tracebar.h>
#include <widgets/displaypanel.h>
#include <widgets/lockwidget.h>
#include <widgets/menubutton.h>
#include <widgets/switchbutton.h>

#include <QComboBox>
#include <QTemporaryDir>
#include <QToolButton>

using namespace Panel;

namespace
{

struct Desk : ChartDesk {
    CartesianView *cartesian() const { return window.cartesianView(); }
    QString message() const { return window.messageBar()->message(); }

    void tapField(int traceId, TraceBar::Field field)
    {
        VnaTest::mouseClick(window.traceBar()->button(traceId),
                            window.traceBar()->fieldRect(traceId, field).center());
        settle();
    }
    /// A key of the numeric keypad by its text or object name.
    void tapKeypad(const QString &text)
    {
        const auto *dialog = window.findChild<NumericDialog *>();
        QVERIFY(dialog);
        const auto buttons = dialog->findChildren<QAbstractButton *>();
        for (const QAbstractButton *button : buttons) {
            if (button->isVisible() && button->text() == text) {
                VnaTest::mouseClick(button);
                settle();
                return;
            }
        }
        QFAIL(qPrintable(text));
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window.windowHandle(), Qt::Key(key), modifiers);
        settle();
    }
};

} // namespace

class TourTest : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }
    void traces();
    void markers();
    void cartesianView();
    void lockAndScreenshot();
    void dialogs();
    void antenna();
};

void TourTest::traces()
{
    Desk desk;
    desk.model.viewSettings()->layoutProfile()->setLayoutType(Graph::LayoutType::SideBySide);
    // "Tr1 S11 Smith 1.00 U/": its format, its scale, its parameter.
    desk.tapField(1, TraceBar::Format);
    desk.pickFromList(int(TraceFormat::LogMagnitude));
    QCOMPARE(desk.cartesian()->traceIds(), (QVector<int>{1, 3, 4}));
    QCOMPARE(desk.window.diagrams()->activeView(), desk.cartesian());
    desk.tapField(1, TraceBar::Scale);
    desk.tapKeypad(QStringLiteral("5"));
    desk.tapKeypad(QStringLiteral("dB"));
    QCOMPARE(desk.model.trace(1)->scale.perDivision, 5.0);
    QCOMPARE(desk.cartesian()->plot()->yAxis->range().size(), 50.0);
    desk.tapField(1, TraceBar::Parameter);
    desk.pickFromList(2);
    QCOMPARE(PanelModel::parameterName(*desk.model.trace(1)), QStringLiteral("S21"));
    // Another trace first becomes active.
    desk.tapField(3, TraceBar::Parameter);
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(desk.model.activeTrace()->id, 3);

    desk.pick(desk.window.keys().memory, 0);
    QCOMPARE(desk.cartesian()->memoryGraph(3)->pen().color(), currentLook().memory(3));
    desk.model.setTraceFormat(3, TraceFormat::Smith);
    QVERIFY(desk.window.smithView()->chart()->getCurve(SmithView::memoryId(3)));
    desk.pick(desk.window.keys().memory, 1);
    QVERIFY(!desk.window.smithView()->chart()->getCurve(SmithView::memoryId(3)));
}

void TourTest::markers()
{
    Desk desk;
    desk.pick(desk.window.keys().trace, 2);
    QCOMPARE(desk.model.activeTrace()->id, 3);
    desk.pick(desk.window.keys().search, 0);
    const Parameter &s21 = desk.model.data(*desk.model.trace(3));
    const auto magnitude = [&s21](double index) {
        return std::hypot(valueAt(s21.real, index), valueAt(s21.imag, index));
    };
    const Marker peak = *desk.model.marker(3, 1);
    for (int i = 0; i < s21.real.size(); ++i)
        QVERIFY(magnitude(i) <= magnitude(peak.index));
    desk.pick(desk.window.keys().marker, 0);
    desk.pick(desk.window.keys().search, 1);
    QVERIFY(magnitude(desk.model.marker(3, 2)->index) < magnitude(peak.index));

    // Against M1 the other is read as a difference.
    desk.pick(desk.window.keys().referenceMarker, 1);
    QVERIFY(desk.model.referenceMarker(3));
    const auto labels = desk.cartesian()->readOuts()->findChildren<QLabel *>();
    QStringList texts;
    for (const QLabel *label : labels)
        texts << label->text();
    QVERIFY(texts.contains(QStringLiteral("M1R")) && texts.contains(QStringLiteral("\u0394M2")));

    desk.pick(desk.window.keys().marker, 3);
    QCOMPARE(desk.model.selectedMarker()->number, 1);
    const double hertz = valueAt(desk.model.network(*desk.model.trace(3)).frequencies, peak.index);
    desk.pick(desk.window.keys().markerTo, 1);
    QCOMPARE(desk.model.stimulus(*desk.model.trace(3)).start, hertz);
    QVERIFY(qAbs(desk.model.marker(3, 1)->index) < 1.5);
    desk.pick(desk.window.keys().readout, int(ReadoutFormat::Decibels));
    QCOMPARE(desk.model.viewSettings()->readoutFormat(), ReadoutFormat::Decibels);
}

void TourTest::cartesianView()
{
    Desk desk;
    desk.model.setActiveTrace(3);
    Desk::settle();
    CartesianView *view = desk.cartesian();
    const QCPRange whole = view->plot()->xAxis->range();
    const QPoint middle = view->plot()->axisRect()->rect().center();
    const double under = view->plot()->xAxis->pixelToCoord(middle.x());
    const QPoint inWindow = view->plot()->mapTo(&desk.window, middle);
    const auto wheel = [&](int notches) {
        QWheelEvent event(inWindow, desk.window.mapToGlobal(inWindow), QPoint(),
                          QPoint(0, 120 * notches), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(desk.window.windowHandle(), &event);
        Desk::settle();
    };
    wheel(4);
    QVERIFY(view->zoom() > 2.4);
    QVERIFY(qAbs(view->plot()->xAxis->pixelToCoord(middle.x()) - under) < 1.0);
    QVERIFY(view->drawnPoints() < 2 * desk.model.networks().first().points());
    const QCPRange before = view->plot()->xAxis->range();
    VnaTest::mousePress(view->plot(), middle);
    for (int x = 0; x <= 100; x += 20)
        VnaTest::mouseMove(view->plot(), middle + QPoint(x, 0));
    VnaTest::mouseRelease(view->plot(), middle + QPoint(100, 0));
    QVERIFY(view->plot()->xAxis->range().lower < before.lower);
    // New data leave the view; the end of the band stops it.
    desk.model.updateNetwork(0, desk.model.networks().first());
    QVERIFY(view->zoom() > 2.4);
    view->moveTo({1e12, 0.0}, middle);
    QCOMPARE(view->plot()->xAxis->range().upper, whole.upper);
    wheel(-40);
    QCOMPARE(view->plot()->xAxis->range(), whole);
    view->plot()->setFocus();
    desk.press(Qt::Key_Plus);
    QCOMPARE(desk.window.keys().zoom->value(), QStringLiteral("1.25 \u00d7"));
    desk.model.addMarker(3, 100.0);
    desk.press(Qt::Key_Right);
    QCOMPARE(desk.model.marker(3, 1)->index, 101.0);
    desk.press(Qt::Key_Delete);
    QVERIFY(!desk.model.marker(3, 1));
    desk.press(Qt::Key_0);
    QCOMPARE(view->zoom(), 1.0);
}

void TourTest::lockAndScreenshot()
{
    Desk desk;
    VnaTest::mouseClick(desk.window.lockButton());
    Desk::settle();
    QVERIFY(desk.window.lock()->isVisible());
    VnaTest::mouseClick(desk.window.lock());
    const auto theme = Controls::ThemeManager::instance()->currentTheme();
    VnaTest::mouseClick(desk.window.themeButton());
    QCOMPARE(Controls::ThemeManager::instance()->currentTheme(), theme);
    VnaTest::mouseClick(desk.window.lock());
    VnaTest::mouseClick(desk.window.themeButton());
    QVERIFY(Controls::ThemeManager::instance()->currentTheme() != theme);
    desk.press(Qt::Key_T, Qt::ControlModifier);
    QCOMPARE(Controls::ThemeManager::instance()->currentTheme(), theme);
    desk.press(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(!desk.window.lock()->isVisible());

    const QTemporaryDir folder;
    desk.controller.setScreenshotFolder(folder.filePath(QStringLiteral("new")));
    VnaTest::mouseClick(desk.window.screenshotButton());
    const QDir pictures(folder.filePath(QStringLiteral("new")));
    const QStringList names = pictures.entryList({QStringLiteral("*.png")});
    QCOMPARE(names.size(), 1);
    QCOMPARE(QImage(pictures.filePath(names.first())).size(), desk.window.size());
    QVERIFY(desk.message().contains(names.first()));
    QVERIFY(QFile(folder.filePath(QStringLiteral("file"))).open(QIODevice::WriteOnly));
    desk.controller.setScreenshotFolder(folder.filePath(QStringLiteral("file")));
    desk.click(desk.window.keys().screenshot);
    QVERIFY2(desk.message().contains(QStringLiteral("cannot")), qPrintable(desk.message()));
}

void TourTest::dialogs()
{
    Desk desk;
    desk.press(Qt::Key_F1);
    QPointer<QDialog> help = desk.window.findChild<HelpDialog *>();
    QVERIFY(help && help->isVisible());
    QTest::keyClick(help.data(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!help);

    desk.model.addMarker(1, 10.5);
    desk.click(desk.window.keys().settings);
    QPointer<SettingsDialog> settings = desk.window.findChild<SettingsDialog *>();
    QVERIFY(settings && settings->isVisible());
    const auto switches = settings->findChildren<SwitchButton *>();
    for (const SwitchButton *each : switches)
        VnaTest::mouseClick(each->findChild<QAbstractButton *>(QStringLiteral("btnOn")));
    QVERIFY(desk.model.markersDiscrete() && desk.model.markersCoupled());
    // Half-way is rounded upwards, and every trace has the marker now.
    for (const Trace &trace : desk.model.traces())
        QCOMPARE(desk.model.marker(trace.id, 1)->index, 11.0);
    VnaTest::mouseClick(
        settings->findChild<QAbstractButton *>(QStringLiteral("draggableDialogCloseButton")));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!settings);

    const auto *layout = desk.window.keys().layout->findChild<QComboBox *>();
    desk.window.softKeys()->showKey(layout);
    VnaTest::mouseClick(layout);
    Desk::settle();
    QTest::keyClick(QApplication::focusWindow(), Qt::Key_End);
    QTest::keyClick(QApplication::focusWindow(), Qt::Key_Return);
    Desk::settle();
    QCOMPARE(desk.window.diagrams()->views().size(), 4);
}

void TourTest::antenna()
{
    Desk desk;
    QVERIFY(!desk.window.keys().tune->isEnabled());
    desk.pick(desk.window.keys().source, 1);
    QTRY_VERIFY(desk.window.keys().tune->isEnabled());
    desk.click(desk.window.keys().tune);
    desk.tapKeypad(QStringLiteral("2"));
    desk.tapKeypad(QStringLiteral("."));
    desk.tapKeypad(QStringLiteral("8"));
    desk.tapKeypad(QStringLiteral("GHz"));
    QCOMPARE(desk.controller.sweepController()->tuning(), 2.8e9);
    QCOMPARE(desk.window.keys().tune->value(), QStringLiteral("2.800 GHz"));
}

QTEST_MAIN(TourTest)
#include "tst_tour.moc"
