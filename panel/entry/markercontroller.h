// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelkeys.h"

#include <QObject>

namespace Panel
{

class NumericKeys;
class PanelModel;
struct Trace;

/// Answers the keys about markers.
class MarkerController : public QObject
{
    Q_OBJECT

public:
    MarkerController(PanelModel *model, const PanelKeys &keys, NumericKeys *numbers,
                     QObject *parent = nullptr);

Q_SIGNALS:
    /// A sentence for the user.
    void said(const QString &sentence);

private:
    void onMarkerPicked(int command);
    void onSearchPicked(int command);
    void tellNoPeak(const Trace &trace);
    void markPeaks(const Trace &trace);
    void markResonance();
    void onMarkerToPicked(int command);
    void editTarget(int direction);
    void goToTarget(double target, double from, int direction);
    void moveToZeroDelay(const Trace &trace, double index);
    void showMarkers();

    PanelModel *m_model;
    PanelKeys m_keys;
    NumericKeys *m_numbers;
    double m_target = -3.0; ///< that was searched last
};

} // namespace Panel
