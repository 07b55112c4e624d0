// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace Panel
{

class DiagramView;
class PanelModel;
class PanelWindow;

/// Gives every diagram its gestures, and answers the keys that say how diagrams look.
class DiagramController : public QObject
{
    Q_OBJECT

public:
    DiagramController(PanelModel *model, PanelWindow *window, QObject *parent = nullptr);

private:
    void connectKeys();
    void adopt(DiagramView *view);
    void showSettings();

    PanelModel *m_model;
    PanelWindow *m_window;
};

} // namespace Panel
