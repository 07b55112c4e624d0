// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelkeys.h"

#include <panel/model/source.h>

#include <QObject>

namespace Panel
{

class PanelModel;

/// Answers the keys that choose where data come from and whether they are measured on.
class SourceKeys : public QObject
{
    Q_OBJECT

public:
    SourceKeys(PanelModel *model, const PanelKeys &keys, QObject *parent = nullptr);

Q_SIGNALS:
    /// The user wants a file, and none is at hand.
    void fileRequested();
    /// The user wants to choose an instrument, or see how it stands with it.
    void instrumentRequested();

private:
    void pick(Source source);
    void showState();

    PanelModel *m_model;
    PanelKeys m_keys;
};

} // namespace Panel
