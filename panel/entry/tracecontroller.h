// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tracebar.h"

#include <QObject>

#include <functional>

namespace Panel
{

class NumericKeys;
class PanelModel;
class PanelWindow;

/// Answers the list of traces and the keys about the active one.
class TraceController : public QObject
{
    Q_OBJECT

public:
    TraceController(PanelModel *model, PanelWindow *window, NumericKeys *numbers,
                    QObject *parent = nullptr);

private:
    void connectKeys();
    void onEditRequested(int traceId, TraceBar::Field field);
    void onMemoryPicked(int command);
    /// Lets the user pick from a list below a place in a widget.
    void choose(QWidget *anchor, const QRect &place, const QStringList &choices, int current,
                const std::function<void(int)> &picked);
    void showTrace();

    PanelModel *m_model;
    PanelWindow *m_window;
    NumericKeys *m_numbers;
};

} // namespace Panel
