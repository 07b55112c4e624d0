// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "vnatest.h"

#include <panel/format.h>
#include <panel/panelmodel.h>

#include <QSignalSpy>
#include <QtTest>

using namespace Panel;

namespace
{

Network network(int ports)
{
    Network result;
    result.ports = ports;
    result.frequencies = {1e9};
    for (int i = 0; i < ports * ports; ++i)
        result.parameters.append({{double(i)}, {0.0}});
    return result;
}

QStringList names(const PanelModel &model)
{
    QStringList result;
    for (const Trace &trace : model.traces())
        result << QString::number(trace.id) + QLatin1Char(' ') + PanelModel::parameterName(trace);
    return result;
}

} // namespace

class PanelModelTest : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void makesATraceOfEachReflection();
    void tellsWhatChanged();
    void writesFrequencies_data();
    void writesFrequencies();
};

void PanelModelTest::makesATraceOfEachReflection()
{
    PanelModel model;
    QVERIFY(!model.activeTrace());
    model.setNetworks({network(1), network(2)});
    QCOMPARE(
        names(model),
        (QStringList{QStringLiteral("1 S11"), QStringLiteral("2 S11"), QStringLiteral("3 S22")}));
    QCOMPARE(model.data(*model.trace(3)).real, QVector<double>{3.0});
    QCOMPARE(model.network(*model.trace(3)).ports, 2);
    QCOMPARE(model.activeTrace(), model.trace(1));

    model.setActiveTrace(3);
    model.setTraceVisible(3, false);
    model.setNetworks({network(1)});
    QCOMPARE(names(model), QStringList{QStringLiteral("1 S11")});
    QCOMPARE(model.activeTrace()->id, 1);
    QVERIFY(model.activeTrace()->visible);

    model.setNetworks({});
    QVERIFY(!model.activeTrace());
    QVERIFY(!model.trace(0));
}

void PanelModelTest::tellsWhatChanged()
{
    PanelModel model;
    model.setNetworks({network(2)});
    const QSignalSpy active(&model, &PanelModel::activeTraceChanged);
    const QSignalSpy visible(&model, &PanelModel::traceVisibleChanged);

    for (const int id : {1, 0, -1, 3, 2, 2})
        model.setActiveTrace(id);
    QCOMPARE(active.count(), 1);
    QCOMPARE(model.activeTrace()->id, 2);

    model.setTraceVisible(1, true);
    model.setTraceVisible(7, false);
    QCOMPARE(visible.count(), 0);
    model.setTraceVisible(1, false);
    QCOMPARE(visible.value(0), (QList<QVariant>{1, false}));
    QCOMPARE(visible.count(), 1);
}

void PanelModelTest::writesFrequencies_data()
{
    QTest::addColumn<double>("hertz");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0.0 << "0.000 Hz";
    QTest::newRow("below a unit") << 999.0 << "999.000 Hz";
    QTest::newRow("a unit") << 1e3 << "1.000 kHz";
    QTest::newRow("all digits needed") << 2450000001.0 << "2.450000001 GHz";
    QTest::newRow("rounding noise") << 75.175 * 1e9 << "75.175 GHz";
}

void PanelModelTest::writesFrequencies()
{
    QFETCH(double, hertz);
    QFETCH(QString, text);
    QCOMPARE(frequencyText(hertz), text);
}

QTEST_GUILESS_MAIN(PanelModelTest)
#include "tst_panelmodel.moc"
