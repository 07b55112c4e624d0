// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelkeys.h"

#include <QObject>

namespace Panel
{

class PanelModel;
struct Trace;

/// Answers the keys by which limits are changed in the diagram.
class LimitKeys : public QObject
{
    Q_OBJECT

public:
    LimitKeys(PanelModel *model, const PanelKeys &keys, QObject *parent = nullptr);

Q_SIGNALS:
    /// How a first limit is made.
    void said(const QString &sentence);

private:
    const Trace *lineOwner() const;
    bool isCircleSelected() const;
    void setOn(bool on);
    void turnSide();
    void remove();
    void show();

    PanelModel *m_model;
    PanelKeys m_keys;
};

} // namespace Panel
