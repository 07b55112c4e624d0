// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelkeys.h"

#include <panel/model/panelmodel.h>

#include <functional>

namespace Panel
{

class UnitAdapter;

/*! The soft keys that stand for a number: shows it on the key, and lets the user edit it in a
    NumericDialog beside the key. */
class NumericKeys : public QObject
{
    Q_OBJECT

public:
    NumericKeys(PanelModel *model, const PanelKeys &keys, QObject *parent = nullptr);

    /// Opens the dialog of a key or field for a value that the adapter holds, which goes with the
    /// dialog, above the anchor's window; the value is applied as it changes. \a name is the dialog's title.
    void edit(QWidget *anchor, const QString &name, UnitAdapter *adapter,
              const QVector<double> &steps, const std::function<void(double)> &apply);
    /// The same under the name of the key.
    void edit(SoftKey *key, UnitAdapter *adapter, const QVector<double> &steps,
              const std::function<void(double)> &apply);
    /// The same for a frequency in Hz, from 0 up, and for a value of a format.
    void editFrequency(QWidget *anchor, const QString &name, double hertz,
                       const std::function<void(double)> &apply);
    void editValue(QWidget *anchor, const QString &name, TraceFormat format, double value,
                   const std::function<void(double)> &apply);
    /// Lets the user edit the active trace's scale per division, beside a key or a field.
    void editScale(QWidget *anchor);

Q_SIGNALS:
    /// A sentence for the user; an empty one takes the last back.
    void said(const QString &sentence);

private:
    /// One number of the active trace's stimulus.
    struct StimulusNumber {
        SoftKey *key;
        double (*value)(const Stimulus &stimulus);
        Stimulus (*changed)(Stimulus stimulus, double value, const Stimulus &limits,
                            double smallestSpan);
    };

    void connectKeys();
    void followModel();
    void editStimulus(const StimulusNumber &number);
    void sayWhatFollowed(const StimulusNumber &number, const Stimulus &before,
                         const Stimulus &after);
    void editPoints();
    void editMarkerStimulus();
    void editSmithScale(QWidget *anchor);
    void editZoom();
    void editReference();
    void editFullScale();
    void editTuning();
    void editBandwidth();
    void editPower();
    void editAverages();

    void showStimulus();
    void showMarkerStimulus();
    void showScale();
    void showTuning();
    void showAcquisition();

    PanelModel *m_model;
    PanelKeys m_keys;
    QVector<StimulusNumber> m_stimulusNumbers;
};

} // namespace Panel
