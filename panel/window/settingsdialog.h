// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/draggableframelessdialog.h>

class QFormLayout;
class QPushButton;
class SwitchButton;

namespace Panel
{

class PanelModel;

/// What is set once and then left alone: look, language, how markers behave, where screenshots go.
/// A change is in force at once, but for the language, which comes with the next start.
class SettingsDialog : public Controls::DraggableFramelessDialog
{
    Q_OBJECT

public:
    /// \a hasSound says whether there is anything to hear with.
    SettingsDialog(PanelModel *model, bool hasSound, QWidget *parent = nullptr);

private:
    SwitchButton *addSwitch(const QString &name, bool on);
    void addRow(const QString &name, QWidget *field);
    void addTheme();
    void addLanguage();
    void addMarkerModes();
    void addFolder();
    void pickFolder();
    void showFolder();

    PanelModel *m_model;
    QFormLayout *m_form;
    QPushButton *m_folder;
};

} // namespace Panel
