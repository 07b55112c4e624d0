// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "popupscene.h"
#include "vnatest.h"

#include <fuzz/panelrules.h>
#include <panel/diagrams/cartesianview.h>
#include <panel/diagrams/diagrams.h>
#include <panel/diagrams/smithview.h>
#include <panel/entry/numericdialog.h>
#include <panel/entry/softkey.h>
#include <panel/entry/softkeymenu.h>
#include <panel/files/filecontroller.h>
#include <panel/files/samples.h>
#include <panel/ground/look.h>
#include <panel/model/panelmodel.h>
#include <panel/window/messagebar.h>
#include <panel/window/panelcontroller.h>
#include <panel/window/panelwindow.h>
#include <plot/qcp.h>
#include <widgets/displaypanel.h>
#include <widgets/switchbutton.h>

#include <QComboBox>

/// The panel as main() makes it, on screen with a sample of 2.3 to 2.6 GHz, and a finger to tap it.
/// What must hold of its diagrams is checked as it goes.
struct PanelDesk {
    Panel::PanelModel model;
    Panel::PanelWindow window;
    Panel::PanelController controller;

    explicit PanelDesk(const QSize &size = QSize(1024, 600))
        : window(&model)
        , controller(&model, &window)
    {
        window.resize(size);
        open({Panel::startSample()});
        window.show();
        window.activateWindow();
        settle();
    }
    ~PanelDesk()
    {
        settle();
        checkRules();
    }

    void checkRules() const
    {
        const QStringList broken = Fuzz::brokenRules(model, *window.diagrams());
        QVERIFY2(broken.isEmpty(), qPrintable(broken.join(QLatin1Char('\n'))));
    }

    bool open(const QStringList &paths) { return controller.fileController()->openFiles(paths); }
    /// Opens samples by their names.
    bool openSamples(const QStringList &names)
    {
        QStringList paths;
        for (const QString &name : names)
            paths << Panel::sampleFolder() + QLatin1Char('/') + name;
        return open(paths);
    }
    /// Shows networks that are in no file.
    void show(const QVector<Panel::Network> &networks)
    {
        model.openNetworks(networks);
        settle();
    }
    void setLayout(Graph::LayoutType layout)
    {
        model.viewSettings()->layoutProfile()->setLayoutType(layout);
        settle();
    }
    /// Where a marker stands in its trace's data.
    double index(int traceId, int number) const
    {
        const Panel::Marker *marker = model.marker(traceId, number);
        return marker ? model.indexOf(*marker) : qQNaN();
    }
    double zoom(const Panel::DiagramView *view) const { return model.zoom(view->id()).factor; }

    Panel::SmithView *view() const { return window.smithView(); }
    SmithChartPlot *chart() const { return view()->chart(); }
    QCustomPlot *plot() const { return view()->plot(); }
    const Panel::PanelKeys &keys() const { return window.keys(); }
    Panel::MessageBar *bar() const { return window.messageBar(); }
    QComboBox *layoutChoice() const
    {
        window.softKeys()->showKey(keys().grid); // on its page, which may only now join the window
        return window.findChild<DisplayPanel *>()->findChild<QComboBox *>();
    }

    /// Also lets a closed dialog go.
    static void settle()
    {
        for (int i = 0; i < 4; ++i)
            QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window.windowHandle(), key, modifiers);
        settle();
    }

    /// Taps keys of the numeric keypad: by object name without "btn", or by the caption of a unit.
    void type(const QString &keys)
    {
        const auto *dialog = window.findChild<Panel::NumericDialog *>();
        for (const QString &key : keys.split(QLatin1Char(' '))) {
            const QString name =
                QStringLiteral("btn") + (key == QLatin1String(".") ? QStringLiteral("P") : key);
            const QAbstractButton *wanted = nullptr;
            const auto buttons = dialog->findChildren<QAbstractButton *>();
            for (const QAbstractButton *button : buttons) {
                if (button->isVisible() && (button->objectName() == name || button->text() == key))
                    wanted = button;
            }
            QVERIFY2(wanted, qPrintable(key));
            click(wanted);
        }
    }

    /// Taps a widget; a key is looked up on its page first.
    void click(const QWidget *widget)
    {
        window.softKeys()->showKey(widget);
        settle();
        VnaTest::mouseClick(widget);
        settle();
    }
};

/// The same, with hands on the chart and on lists.
struct ChartDesk : PanelDesk {
    explicit ChartDesk(const QSize &size = QSize(1024, 600))
        : PanelDesk(size)
    {
        setLayout(Graph::LayoutType::Single);
    }

    /// A point of the plot, given as a share of its size, in pixels of the plot.
    QPoint onPlot(double x, double y) const
    {
        const QRect area = plot()->axisRect()->rect();
        return {area.left() + qRound(x * area.width()), area.top() + qRound(y * area.height())};
    }
    QPoint inWindow(const QPoint &onPlot) const { return plot()->mapTo(&window, onPlot); }
    QPointF chartPoint(const QPoint &onPlot) const { return view()->coordinates(onPlot); }

    void turnWheel(const QPoint &onPlot, int notches) { turnWheelAt(inWindow(onPlot), notches); }
    void turnWheelAt(const QPoint &position, int notches)
    {
        QWheelEvent wheel(position, window.mapToGlobal(position), QPoint(),
                          QPoint(0, 120 * notches), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(window.windowHandle(), &wheel);
        settle();
    }

    void drag(const QPoint &from, const QPoint &to)
    {
        VnaTest::mouseDrag(window.windowHandle(), inWindow(from), inWindow(to), 10);
        settle();
    }

    /// A point of a trace in pixels of the plot.
    QPoint onTrace(int traceId, int index) const
    {
        const Panel::Parameter data = model.traceData(*model.trace(traceId)).parameter;
        return {qRound(plot()->xAxis->coordToPixel(data.real.at(index))),
                qRound(plot()->yAxis->coordToPixel(data.imag.at(index)))};
    }

    void doubleClick(const QPoint &onPlot)
    {
        VnaTest::mouseDoubleClick(plot(), onPlot);
        settle();
    }

    /// Picks a choice of a soft key from its list, as a finger would.
    void pick(QWidget *key, int index)
    {
        click(key);
        pickFromList(index);
    }

    /// Picks from the list that is open.
    void pickFromList(int index)
    {
        QWidget *popup = QApplication::activePopupWidget();
        QVERIFY(popup);
        VnaTest::clickItem(popup->findChild<QListWidget *>(), index);
        // A tap right after the list closed counts as the one that closed it.
        QTest::qWait(220);
        settle();
    }
};
