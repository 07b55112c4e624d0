// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "numericdialog.h"
#include <panel/model/stimulus.h>

#include <QObject>

namespace Panel
{

class PanelModel;
class PanelWindow;
class SoftKey;
class SweepController;
struct Trace;

/*! The soft keys that stand for a number: shows it on the key, and lets the user edit it in a
   NumericDialog beside the key. */
class NumericKeys : public QObject
{
    Q_OBJECT

public:
    /// The numbers of a simulated device go to its sweep; of a file they pick the part on show.
    NumericKeys(PanelModel *model, PanelWindow *window, SweepController *sweeps,
                QObject *parent = nullptr);

    /// Lets the user edit the active trace's scale per division, beside a key or a field.
    void editScale(QWidget *anchor);

    /// What the stimulus keys are about, and what they can go to.
    Stimulus stimulus(const Trace &trace) const;
    Stimulus limits(const Trace &trace) const;
    /// Sets what a simulated device sweeps, or which part of a file is on show.
    void setStimulus(const Trace &trace, Stimulus stimulus);

private:
    /// One number of the active trace's stimulus.
    struct StimulusNumber {
        SoftKey *key;
        double (*value)(const Stimulus &stimulus);
        Stimulus (*changed)(Stimulus stimulus, double value, const Stimulus &limits);
    };

    void editStimulus(const StimulusNumber &number);
    void editPoints();
    void editMarkerStimulus();
    void editZoom();
    void editReference();
    void editTuning();
    /// Opens the dialog of a key for a value that the adapter holds.
    template<typename Apply>
    void edit(QWidget *key, const QString &name, UnitAdapter *adapter, const QVector<double> &steps,
              Apply apply);

    template<typename Apply>
    void edit(SoftKey *key, UnitAdapter *adapter, const QVector<double> &steps, Apply apply);

    void showStimulus();
    void showMarkerStimulus();
    void showScale();
    void showTuning();
    void showZoom();

    PanelModel *m_model;
    PanelWindow *m_window;
    SweepController *m_sweeps;
    QVector<StimulusNumber> m_stimulusNumbers;
};

} // namespace Panel
