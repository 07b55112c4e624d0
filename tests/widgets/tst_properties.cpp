// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/numericfield.h>
#include <controls/overlaycontainer.h>
#include <controls/touchnumkeyboard.h>
#include <platform/guicontext.h>
#include <smithchart/smithchartplot.h>
#include <widgets/enumtextbutton.h>
#include <widgets/lockwidget.h>
#include <widgets/switchbutton.h>

#include <memory>

#include <vnatest.h>

using namespace VnaTest;

class tst_Properties : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // Setting one by its name tells once, and setting it to the same again does not.
    void whatAHostBinds()
    {
        QCustomPlot plot;
        SmithChartPlot chart(&plot, SmithChart::Basic);
        chart.addCurve(3, QPen());
        QWidget page;
        LockWidget lock(&page, nullptr);
        SwitchButton control;
        EnumTextButton choice;
        choice.setEnums({{4, "four"_s}, {5, "five"_s}});
        Controls::NumericField field;
        const struct {
            QObject *object;
            const char *name;
            QVariant value;
            QVariant back;
            int told;
        } rows[] = {
            {&chart, "gridMode", 2, 0, 2},
            {&chart, "activeTrace", 3, -1, 2},
            {&lock, "locked", true, false, 2},
            {&control, "status", true, false, 2},
            {&control, "text", "On"_s, "Off"_s, 2},
            {&choice, "currentValue", 5, 4, 3},
            {&field, "value", 7.0, 8.0, 2},
            {Utils::GUIContext::instance(), "darkTheme", false, true, 2},
        };
        for (const auto &row : rows) {
            const Row named(QLatin1String(row.name));
            const QMetaObject *type = row.object->metaObject();
            const QMetaProperty property = type->property(type->indexOfProperty(row.name));
            QSignalSpy spy(row.object, property.notifySignal());
            QVERIFY(spy.isValid());
            for (int time = 0; time < 2; ++time) {
                QVERIFY(row.object->setProperty(row.name, row.value));
                const QVariant now = row.object->property(row.name);
                // An enumeration is a number here, and a name as a text.
                const bool isNumber = row.value.toString() == QString::number(row.value.toInt());
                QCOMPARE(isNumber ? QString::number(now.toInt()) : now.toString(),
                         row.value.toString());
            }
            QVERIFY(row.object->setProperty(row.name, row.back));
            QCOMPARE(spy.count(), row.told);
        }
        QSignalSpy active(&chart, &SmithChartPlot::activeTraceChanged);
        QSignalSpy visible(&chart, &SmithChartPlot::curveVisibleChanged);
        chart.setActiveTrace(3);
        chart.setCurveVisible(3, false);
        chart.setCurveVisible(3, false);
        chart.removeCurve(3);
        QCOMPARE(active.count(), 2);
        QCOMPARE(active.last().first().toInt(), -1);
        QCOMPARE(visible.count(), 1);
    }

    // Also where only the base class is known: a form, or a pointer.
    void textThroughTheBaseClass()
    {
        EnumTextButton button;
        static_cast<QAbstractButton &>(button).setText("Format"_s);
        button.grab();
        QCOMPARE(button.text(), "Format"_s);
        QVERIFY(button.QAbstractButton::text().isEmpty());
        const auto keys = Controls::TouchNumKeyboard::staticMetaObject.enumerator(0);
        QVERIFY(keys.isValid() && keys.keyCount() == 3);
    }
};

QTEST_MAIN(tst_Properties)
#include "tst_properties.moc"
