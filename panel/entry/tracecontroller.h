// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelkeys.h"
#include "tracebar.h"

#include <QPointer>

#include <functional>

namespace Panel
{

class LimitSheet;
class NumericKeys;
class PanelModel;
struct Trace;

/// Answers the list of traces and the keys about the active one.
class TraceController : public QObject
{
    Q_OBJECT

public:
    /// Lists open above the host.
    TraceController(PanelModel *model, const PanelKeys &keys, TraceBar *bar, NumericKeys *numbers,
                    QWidget *host, QObject *parent = nullptr);

private:
    void connectKeys();
    void onEditRequested(int traceId, TraceBar::Field field);
    void addTrace();
    void editParameter(int traceId);
    void onAutoScalePicked(int command);
    /// Lets the user pick from a list below a place in a widget.
    void choose(QWidget *anchor, const QRect &place, const QStringList &choices, int current,
                const std::function<void(int)> &picked);
    void showTrace();
    void showReferencePosition(const Trace *active);
    void showNetwork(const Trace *active);
    void showDiagram(const Trace *active);
    void putIntoDiagram(int choice);
    void editName();

    PanelModel *m_model;
    PanelKeys m_keys;
    TraceBar *m_bar;
    NumericKeys *m_numbers;
    QVector<int> m_diagramNumbers; ///< of the diagram key's choices; 0 leaves it to the format
    QWidget *m_host;
    QPointer<LimitSheet> m_limitSheet; ///< while it is open
};

} // namespace Panel
