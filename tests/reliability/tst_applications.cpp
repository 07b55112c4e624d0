// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// One process may have an application after another, as hosts' own tests do: what the library keeps
// for the life of the process must not hold on to the first one.
#include <controls/thememanager.h>
#include <controls/touchnumkeyboard.h>
#include <smithchart/smithchartplot.h>
#include <widgets/lockwidget.h>
#include <widgets/menubutton.h>

#include <vnatest.h>

using namespace VnaTest;
using Controls::ThemeManager;

namespace
{

/// Shows a window with some of everything, in the other theme than before, and returns its picture.
QImage useEverything()
{
    QWidget window;
    window.resize(640, 480);
    QCustomPlot plot(&window);
    plot.setGeometry(0, 0, 300, 300);
    SmithChartPlot chart(&plot, SmithChart::Basic);
    chart.addCurve(1, QPen(Qt::red));
    chart.setCurveData(1, {}, {0.1, 0.5}, {0.1, -0.4});
    chart.addMarkerVisual(1, 1, 0.5, Plot::PointingDown);
    MenuButton menu("Format"_s, &window);
    menu.move(320, 10);
    menu.addMenuItem(1, "Smith"_s);
    Controls::TouchNumKeyboard keypad(&window);
    keypad.setIndicatorText("1.25"_s, 0, 0, 4);
    LockWidget lock(&window, &plot);
    lock.setScreenLockEnable(true);
    ThemeManager::instance()->setTheme(ThemeManager::Light);
    ThemeManager::instance()->setTheme(ThemeManager::Dark);
    window.show();
    keypad.open();
    QCoreApplication::processEvents();
    plot.replot();
    return window.grab().toImage();
}

} // namespace

class tst_Applications : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void oneAfterAnother()
    {
        int argumentCount = 1;
        char name[] = "tst_applications";
        char *arguments[] = {name, nullptr};
        QImage pictures[3];
        for (QImage &picture : pictures) {
            const QApplication application(argumentCount, arguments);
            picture = useEverything();
        }
        QVERIFY(!pictures[0].isNull());
        QVERIFY(pictures[1] == pictures[0] && pictures[2] == pictures[0]);
    }
};

QTEST_APPLESS_MAIN(tst_Applications)
#include "tst_applications.moc"
