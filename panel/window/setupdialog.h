// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/draggableframelessdialog.h>

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace Panel
{

class Setups;

/// Lists the set-ups, to recall, save, replace and remove them.
class SetupDialog : public Controls::DraggableFramelessDialog
{
    Q_OBJECT

public:
    /// The set-ups must outlive it.
    explicit SetupDialog(Setups *setups, QWidget *parent = nullptr);

private:
    QPushButton *makeKey(const QString &name, const char *objectName);
    void list(const QString &current);
    QString current() const;
    void save();
    void recall();
    void removeCurrent();
    void showState();

    Setups *m_setups;
    QListWidget *m_list;
    QLabel *m_hint; ///< in place of the list while it is empty
    QLineEdit *m_name;
    QPushButton *m_save;
    QPushButton *m_recall;
    QPushButton *m_remove;
};

} // namespace Panel
