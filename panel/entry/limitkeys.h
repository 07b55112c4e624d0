// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelkeys.h"

#include <QObject>

namespace Panel
{

class NumericKeys;
class PanelModel;
struct LimitCircle;
struct Trace;

/// Answers the keys by which limits are changed in the diagram, and a circle by numbers.
class LimitKeys : public QObject
{
    Q_OBJECT

public:
    LimitKeys(PanelModel *model, const PanelKeys &keys, NumericKeys *numbers,
              QObject *parent = nullptr);

Q_SIGNALS:
    /// How a first limit is made.
    void said(const QString &sentence);

private:
    const Trace *lineOwner() const;
    bool isCircleSelected() const;
    void setOn(bool on);
    void turnSide();
    void remove();
    void editCircle(SoftKey *key, double lowest, double &(*number)(LimitCircle &));
    void show();
    void showCircle();

    PanelModel *m_model;
    PanelKeys m_keys;
    NumericKeys *m_numbers;
};

} // namespace Panel
