// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Objects that refer to each other are destroyed in every order: at once, later, and from inside
// each other's signals. What is left is used after each step. A sanitizer sees what goes wrong.
#include "teardownscenes.h"

#include <controls/thememanager.h>
#include <smithchart/smithchartplot.h>

#include <fuzz/census.h>

#include <algorithm>

#include <vnatest.h>

using namespace VnaTest;
using Controls::ThemeManager;

Q_DECLARE_METATYPE(MakeScene)

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
        columns<MakeScene>("make");
        for (const auto &[name, make] : teardownScenes())
            row(name, make);
    }

    void everyOrder()
    {
        QFETCH(MakeScene, make);
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
