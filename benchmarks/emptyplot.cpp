// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    A window with an empty plot that says when it is shown, and ends: the minimum that a program with
    a plot costs. */
#include <plot/qcp.h>

#include <QApplication>
#include <QMainWindow>
#include <QWindow>

#include <cstdio>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setCentralWidget(new QCustomPlot);
    window.resize(1280, 800);
    window.show();
    while (!window.windowHandle()->isExposed())
        QApplication::processEvents();
    QApplication::processEvents();
    std::puts("Shown");
    std::fflush(stdout);
    return 0;
}
