// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace Panel
{

class NumericKeys;
class PanelModel;
class PanelWindow;

/// Answers the keys about markers.
class MarkerController : public QObject
{
    Q_OBJECT

public:
    MarkerController(PanelModel *model, PanelWindow *window, NumericKeys *numbers,
                     QObject *parent = nullptr);

private:
    void onMarkerPicked(int command);
    void onSearchPicked(int command);
    void onMarkerToPicked(int command);
    void showMarkers();

    PanelModel *m_model;
    PanelWindow *m_window;
    NumericKeys *m_numbers;
};

} // namespace Panel
