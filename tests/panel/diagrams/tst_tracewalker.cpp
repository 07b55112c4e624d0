// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <panel/diagrams/diagramreader.h>
#include <panel/diagrams/tracewalker.h>

#include <QAccessible>
#include <QSignalSpy>

using Panel::TraceWalker;

namespace
{

/// A two-port whose S11 resonates at 2.491667 GHz, between two of its eleven points, and whose S21 has its
/// maximum at 2.6 GHz.
Panel::Network twoPort()
{
    Panel::Network network;
    network.ports = 2;
    network.name = QStringLiteral("x.s2p");
    network.references.fill(50.0, 2);
    network.parameters.resize(4);
    for (int i = 0; i <= 10; ++i) {
        network.frequencies << 2e9 + 1e8 * i;
        for (Panel::Parameter &parameter : network.parameters) {
            parameter.real << 0.1 + 0.05 * qAbs(i - 6);
            parameter.imag << 0.1 * (i - 5) - (i < 5 ? 0.01 : -0.01);
        }
        network.parameters[1].real.last() = 0.9 - 0.1 * qAbs(i - 6);
        network.parameters[1].imag.last() = 0.0;
    }
    return network;
}

struct WalkDesk : PanelDesk {
    WalkDesk()
    {
        show({twoPort()});
        QObject::connect(window.diagrams(), &Panel::Diagrams::said, [this](const QString &text) {
            if (!text.isEmpty())
                said = text;
        });
    }
    TraceWalker *walker() const
    {
        return window.diagrams()->activeView()->findChild<TraceWalker *>();
    }

    QString said;
};

} // namespace

class tst_TraceWalker : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keysWalkAndArrowsGoBackToTheView();
    void aTransmissionHasNoResonance();
    void newDataEndOrKeepTheWalk();
    void markersAreReadAndSetFromOutside();
};

void tst_TraceWalker::keysWalkAndArrowsGoBackToTheView()
{
    WalkDesk desk;
    desk.press(Qt::Key_Right); // nothing to walk yet
    QVERIFY(!desk.walker()->isWalking());
    desk.press(Qt::Key_F2);
    QCOMPARE(desk.walker()->index(), 0.0);
    QVERIFY2(desk.said.startsWith(QLatin1String("S11 2 GHz")), qPrintable(desk.said));
    QCOMPARE(desk.bar()->message(), desk.said);
    while (!desk.said.contains(QLatin1String("esonance")) && desk.walker()->index() < 10.0)
        desk.press(Qt::Key_Right, Qt::ControlModifier);
    QVERIFY2(desk.said.startsWith(QLatin1String("S11 Resonance: 2.491667 GHz, ")),
             qPrintable(desk.said));
    desk.press(Qt::Key_Return);
    QCOMPARE(desk.index(1, 1), desk.walker()->index());
    desk.press(Qt::Key_End);
    QCOMPARE(desk.walker()->index(), 10.0);
    const double marked = 4.0 + 0.11 / 0.12;
    QCOMPARE(desk.index(1, 1), marked); // the arrows leave the selected marker alone
    desk.press(Qt::Key_Escape);
    QVERIFY(!desk.walker()->isWalking());
    QVERIFY(desk.model.selectedMarker()); // the first Escape is the walk's
    desk.press(Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(desk.index(1, 1), marked + 1.0);
}

void tst_TraceWalker::aTransmissionHasNoResonance()
{
    WalkDesk desk;
    desk.model.setActiveTrace(3);
    desk.window.cartesianView()->plot()->setFocus();
    QCOMPARE(Panel::PanelModel::parameterName(*desk.model.activeTrace()), QStringLiteral("S21"));
    desk.press(Qt::Key_Home);
    desk.press(Qt::Key_Right, Qt::ControlModifier);
    QVERIFY2(desk.said.startsWith(QLatin1String("S21 Maximum: 2.6 GHz, ")), qPrintable(desk.said));
    QVERIFY2(desk.said.endsWith(QLatin1String("changed by 9.54 dB")), qPrintable(desk.said));
    desk.press(Qt::Key_Right, Qt::ControlModifier); // there is no more
    QCOMPARE(desk.walker()->index(), 6.0);
    desk.press(Qt::Key_Down); // to S12, at the same frequency
    QVERIFY2(desk.said.startsWith(QLatin1String("S12 ")), qPrintable(desk.said));
    QVERIFY2(desk.said.contains(QLatin1String("2.6 GHz")), qPrintable(desk.said));
}

void tst_TraceWalker::newDataEndOrKeepTheWalk()
{
    WalkDesk desk;
    desk.press(Qt::Key_End);
    TraceWalker *walker = desk.walker();
    Panel::Network network = twoPort();
    desk.model.updateNetwork(0, network);
    desk.settle();
    QCOMPARE(walker->index(), 10.0);
    network.frequencies.resize(3);
    for (Panel::Parameter &parameter : network.parameters) {
        parameter.real.resize(3);
        parameter.imag.resize(3);
    }
    desk.model.updateNetwork(0, network);
    desk.settle();
    QVERIFY(!walker->isWalking());
    desk.press(Qt::Key_End);
    desk.show({});
    QVERIFY(!walker->isWalking());
}

void tst_TraceWalker::markersAreReadAndSetFromOutside()
{
    WalkDesk desk;
    desk.model.addMarker(1, 2.0);
    QAccessibleInterface *chart = QAccessible::queryAccessibleInterface(desk.plot());
    QCOMPARE(chart->role(), QAccessible::Chart);
    QAccessibleInterface *marker = nullptr;
    for (int i = 0; i < chart->childCount(); ++i) {
        if (chart->child(i)->role() == QAccessible::Slider)
            marker = chart->child(i);
    }
    QVERIFY(marker);
    QVERIFY(
        marker->text(QAccessible::Name).startsWith(QLatin1String("Marker 1 on S11: 2.200 GHz")));
    marker->valueInterface()->setCurrentValue(2.7e9);
    QVERIFY(qAbs(desk.index(1, 1) - 7.0) < 1e-6);
    const QString said = chart->child(chart->childCount() - 1)->child(0)->text(QAccessible::Name);
    QVERIFY2(said.startsWith(QLatin1String("Marker 1 on S11: 2.700 GHz")), qPrintable(said));
    // What lies in the plot is still there, such as the verdict of limits.
    QVERIFY(chart->child(chart->childCount() - 2)->object());
}

QTEST_MAIN(tst_TraceWalker)
#include "tst_tracewalker.moc"
