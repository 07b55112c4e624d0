// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/draggableframelessdialog.h>

class QLineEdit;

namespace Panel
{

/// Asks for the name of a trace: by the keyboard, or by letters on the screen. No name is an answer,
/// too.
class NameDialog : public Controls::DraggableFramelessDialog
{
    Q_OBJECT

public:
    NameDialog(const QString &title, const QString &name, int longest, QWidget *parent = nullptr);

Q_SIGNALS:
    void named(const QString &name);

private:
    void accept() override;

    QLineEdit *m_name;
};

} // namespace Panel
