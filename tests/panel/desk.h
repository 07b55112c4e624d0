// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pointer.h"

#include <panel/panelcontroller.h>
#include <panel/panelmodel.h>
#include <panel/panelwindow.h>
#include <panel/samples.h>
#include <panel/smithview.h>
#include <panel/softkey.h>
#include <panel/softkeymenu.h>

/// The panel as main() makes it, on screen with a sample of 2.3 to 2.6 GHz, and a finger to tap it.
struct PanelDesk {
    Panel::PanelModel model;
    Panel::PanelWindow window;
    Panel::PanelController controller;

    explicit PanelDesk(const QSize &size = QSize(1024, 600))
        : window(&model)
        , controller(&model, &window)
    {
        window.resize(size);
        controller.openFiles({Panel::startSample()});
        window.show();
        window.activateWindow();
        settle();
    }

    Panel::SmithView *view() const { return window.smithView(); }
    SmithChartPlot *chart() const { return view()->chart(); }

    static void settle()
    {
        for (int i = 0; i < 4; ++i)
            QCoreApplication::processEvents();
    }

    /// Taps a widget; a soft key is looked up on its page first.
    void click(const QWidget *widget)
    {
        if (const auto *key = qobject_cast<const Panel::SoftKey *>(widget)) {
            window.softKeys()->showKey(key);
            settle();
        }
        VnaTest::mouseClick(widget);
        settle();
    }
};
