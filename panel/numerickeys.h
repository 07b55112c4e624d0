// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "numericdialog.h"
#include "stimulus.h"

#include <QObject>

namespace Panel
{

class PanelModel;
class PanelWindow;
class SoftKey;
struct Trace;

/*! The soft keys that stand for a number: shows it on the key, and lets the user edit it in a
   NumericDialog beside the key. */
class NumericKeys : public QObject
{
    Q_OBJECT

public:
    NumericKeys(PanelModel *model, PanelWindow *window, QObject *parent = nullptr);

private:
    /// One number of the active trace's stimulus.
    struct StimulusNumber {
        SoftKey *key;
        double (*value)(const Stimulus &stimulus);
        Stimulus (*changed)(Stimulus stimulus, double value, const Stimulus &limits);
    };

    void editStimulus(const StimulusNumber &number);
    void editMarkerStimulus();
    void editZoom();
    /// Opens the dialog of a key for a value that the adapter holds.
    template<typename Apply>
    void edit(SoftKey *key, UnitAdapter *adapter, const QVector<double> &steps, Apply apply);

    void showStimulus();
    void showMarkerStimulus();
    void showZoom();

    PanelModel *m_model;
    PanelWindow *m_window;
    QVector<StimulusNumber> m_stimulusNumbers;
};

} // namespace Panel
