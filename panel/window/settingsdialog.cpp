// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "settingsdialog.h"

#include "exports.h"
#include "savedialog.h"

#include <panel/ground/dialogstage.h>
#include <panel/ground/languages.h>
#include <panel/model/panelmodel.h>

#include <controls/combobox.h>
#include <controls/thememanager.h>
#include <widgets/switchbutton.h>

#include <QDir>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

namespace Panel
{

namespace
{

constexpr int s_fieldHeight = 44;

Controls::ComboBox *makeChoice(const QString &name, const QStringList &choices, int current)
{
    auto *choice = new Controls::ComboBox;
    choice->setAccessibleName(name);
    choice->addItems(choices);
    choice->setCurrentIndex(current);
    choice->setMinimumHeight(s_fieldHeight);
    // Where a label names a box, screen readers do not say what is chosen.
    choice->setAccessibleDescription(choice->currentText());
    QObject::connect(choice, &QComboBox::currentTextChanged, choice,
                     &QWidget::setAccessibleDescription);
    return choice;
}

} // namespace

SettingsDialog::SettingsDialog(PanelModel *model, bool hasSound, QWidget *parent)
    : DraggableFramelessDialog(parent)
    , m_model(model)
    , m_form(new QFormLayout(this))
    , m_folder(new QPushButton)
{
    setAccessibleName(tr("Settings"));
    setWindowTitle(tr("Settings"));
    setHeaderButton(Controls::DraggableDialogTitleBar::CloseButton);
    m_form->setContentsMargins(dialogMargins(16));
    m_form->setHorizontalSpacing(24);
    m_form->setVerticalSpacing(8);
    addTheme();
    addLanguage();
    addMarkerModes();
    if (hasSound)
        connect(addSwitch(tr("Sound along a walk and under the pointer"),
                          model->preferences()->soundFollows()),
                &SwitchButton::statusChanged, model->preferences(), &Preferences::setSoundFollows);
    addFolder();
    setMinimumWidth(440);
}

void SettingsDialog::addRow(const QString &name, QWidget *field)
{
    auto *label = new QLabel(name);
    // In the middle of the row, where the layout would put it at the top.
    label->setMinimumHeight(s_fieldHeight);
    label->setBuddy(field); // names a combo box for screen readers
    m_form->addRow(label, field);
}

void SettingsDialog::addTheme()
{
    using Controls::ThemeManager;
    ThemeManager *theme = ThemeManager::instance();
    auto *choice = makeChoice(tr("Look"), {tr("Dark"), tr("Light")}, theme->currentTheme());
    connect(choice, QOverload<int>::of(&QComboBox::activated), theme,
            [theme](int index) { theme->setTheme(ThemeManager::Theme(index)); });
    connect(theme, &ThemeManager::themeChanged, choice,
            [choice](ThemeManager::Theme now) { choice->setCurrentIndex(now); });
    addRow(tr("Look"), choice);
    connect(addSwitch(tr("High contrast"), m_model->preferences()->highContrast()),
            &SwitchButton::statusChanged, m_model->preferences(), &Preferences::setHighContrast);
    connect(addSwitch(tr("Dashes tell traces apart"), m_model->preferences()->traceDashes()),
            &SwitchButton::statusChanged, m_model->preferences(), &Preferences::setTraceDashes);
}

void SettingsDialog::addLanguage()
{
    const QString chosen = m_model->preferences()->language();
    QStringList names;
    int current = 0;
    for (const Language &language : languages()) {
        if (language.code == (chosen.isEmpty() ? currentLanguage() : chosen))
            current = int(names.size());
        names << language.name;
    }
    auto *choice = makeChoice(tr("Language"), names, current);
    connect(choice, QOverload<int>::of(&QComboBox::activated), m_model->preferences(),
            [preferences = m_model->preferences()](int index) {
                preferences->setLanguage(languages().at(index).code);
            });
    addRow(tr("Language"), choice);
}

SwitchButton *SettingsDialog::addSwitch(const QString &name, bool on)
{
    auto *button = new SwitchButton;
    button->setAccessibleName(name);
    button->setStatus(on);
    button->setFixedHeight(s_fieldHeight);
    addRow(name, button);
    return button;
}

void SettingsDialog::addMarkerModes()
{
    connect(addSwitch(tr("Markers on measured points only"), m_model->markersDiscrete()),
            &SwitchButton::statusChanged, m_model, &PanelModel::setMarkersDiscrete);
}

void SettingsDialog::addFolder()
{
    m_folder->setMinimumHeight(s_fieldHeight);
    m_folder->setAutoDefault(false);
    m_folder->setAccessibleName(tr("Saved files go to"));
    connect(m_folder, &QPushButton::clicked, this, &SettingsDialog::pickFolder);
    addRow(tr("Saved files go to"), m_folder);
    connect(m_model->preferences(), &Preferences::changed, this, &SettingsDialog::showFolder);
    showFolder();
}

void SettingsDialog::showFolder()
{
    const QString folder = QDir::toNativeSeparators(folderForExports(*m_model->preferences()));
    m_folder->setToolTip(folder);
    m_folder->setText(m_folder->fontMetrics().elidedText(folder, Qt::ElideMiddle, 220));
}

void SettingsDialog::pickFolder()
{
    const auto use = [preferences = m_model->preferences()](const QString &folder) {
        if (!takesFiles(folder))
            return tr("Nothing can be written to this folder.");
        preferences->setExportFolder(folder);
        return QString();
    };
    auto *dialog = new SaveDialog(tr("Saved files go to"), use, this);
    dialog->setFolder(folderForExports(*m_model->preferences()));
    dialog->resize(560, 480);
    DialogStage::show(dialog, this);
}

} // namespace Panel
