// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelkeys.h"

#include <panel/model/correction.h>

#include <QObject>

namespace Panel
{

class NumericKeys;
class PanelModel;

/// Answers the keys about what is made of measured data: memory and smoothing of the active trace,
/// port delays and port impedance of its network.
class MathKeys : public QObject
{
    Q_OBJECT

public:
    MathKeys(PanelModel *model, const PanelKeys &keys, NumericKeys *numbers,
             QObject *parent = nullptr);

private:
    void connectKeys();
    void onMemoryPicked(int command);
    void editExtension();
    void editImpedance();
    /// The ports that the delay is of.
    QVector<int> extendedPorts() const;
    void showState();

    PanelModel *m_model;
    PanelKeys m_keys;
    NumericKeys *m_numbers;
    int m_port = 1; ///< that the delay is of; 0: all of them
};

} // namespace Panel
