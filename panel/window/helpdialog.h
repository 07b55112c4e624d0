// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/draggableframelessdialog.h>

namespace Panel
{

/// Lists what the keyboard does on the panel.
class HelpDialog : public Controls::DraggableFramelessDialog
{
    Q_OBJECT

public:
    explicit HelpDialog(QWidget *parent = nullptr);
};

} // namespace Panel
