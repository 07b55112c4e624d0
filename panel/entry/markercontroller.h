// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelkeys.h"

#include <QObject>

namespace Panel
{

class PanelModel;

/// Answers the keys about markers.
class MarkerController : public QObject
{
    Q_OBJECT

public:
    MarkerController(PanelModel *model, const PanelKeys &keys, QObject *parent = nullptr);

Q_SIGNALS:
    /// A sentence for the user.
    void said(const QString &sentence);

private:
    void onMarkerPicked(int command);
    void onSearchPicked(int command);
    void onMarkerToPicked(int command);
    void showMarkers();

    PanelModel *m_model;
    PanelKeys m_keys;
};

} // namespace Panel
