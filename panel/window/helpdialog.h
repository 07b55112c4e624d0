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
    /// \a hasSound says whether there is anything to hear with.
    explicit HelpDialog(bool hasSound, QWidget *parent = nullptr);
};

} // namespace Panel
