// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace Panel
{

/// Ends the program's event loop in order when the system asks it to end: at SIGTERM, SIGINT and
/// SIGHUP. There is one at most.
class QuitSignals : public QObject
{
    Q_OBJECT

public:
    explicit QuitSignals(QObject *parent = nullptr);
    ~QuitSignals() override;
};

} // namespace Panel
