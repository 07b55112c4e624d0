// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace Panel
{

class PanelModel;
class PanelWindow;

/// Answers the keys that choose the diagrams, and what a pointer asks of the Cartesian one.
class DiagramController : public QObject
{
    Q_OBJECT

public:
    DiagramController(PanelModel *model, PanelWindow *window, QObject *parent = nullptr);
};

} // namespace Panel
