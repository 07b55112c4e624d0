// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelkeys.h"

#include <QObject>

namespace Panel
{

class PanelModel;

/// Answers the keys that say how diagrams look.
class DisplayKeys : public QObject
{
    Q_OBJECT

public:
    DisplayKeys(PanelModel *model, const PanelKeys &keys, QObject *parent = nullptr);

private:
    void showSettings();
    void showVswrLimit();

    PanelModel *m_model;
    PanelKeys m_keys;
};

} // namespace Panel
