// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/displaypanel.h>

#include <platform/enumprofileadapter.h>
#include <platform/guicontext.h>
#include <platform/layoutmanagerprofile.h>

#include "ui_displaypanel.h"

#include <QEvent>
#include <QLabel>
#include <QPointer>

using Graph::LayoutManagerProifle;
using Graph::LayoutType;

struct DisplayPanel::Private {
    Ui::DisplayPanel ui;
    QPointer<LayoutManagerProifle> profile;
    Profile::IEnumProfileAdapter *adapter = nullptr;
    QLabel *name = nullptr; ///< for assistive tools alone
};

DisplayPanel::DisplayPanel(LayoutManagerProifle *profile, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    d->profile = profile;
    d->ui.setupUi(this);
    d->ui.layoutSelectEdit->setIconSize({24, 24});
    // Also when another language has longer names.
    d->ui.layoutSelectEdit->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    // A combo box goes by what is chosen, unless a label names it; then it has to be told.
    connect(d->ui.layoutSelectEdit, &QComboBox::currentTextChanged, d->ui.layoutSelectEdit,
            &QWidget::setAccessibleDescription);
    d->name = new QLabel(this);
    d->name->setBuddy(d->ui.layoutSelectEdit);
    d->name->hide();
    auto *context = Utils::GUIContext::instance();
    updateThemeIcons(context->getIsDarkTheme());
    bindProfile();
    connect(context, &Utils::GUIContext::darkThemeChanged, this, &DisplayPanel::updateThemeIcons);
    if (profile) {
        connect(profile, &LayoutManagerProifle::layoutTypeChanged, this,
                [this](LayoutType type) { Q_EMIT layoutChanged(int(type)); });
    }
}

DisplayPanel::~DisplayPanel() = default;

void DisplayPanel::updateThemeIcons(bool dark)
{
    const QString suffix = dark ? QString() : QStringLiteral("_light");
    QList<QString> paths;
    for (int layout = 1; layout <= 4; ++layout)
        paths << QStringLiteral(":/Graph/Image/layout%1%2").arg(QString::number(layout), suffix);
    d->ui.layoutSelectEdit->setIcons(paths);
}

void DisplayPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        bindProfile();
}

/// (Re)builds the entries in the current language.
void DisplayPanel::bindProfile()
{
    d->ui.layoutSelectEdit->setAccessibleName(tr("Diagram layout"));
    d->name->setText(tr("Diagram layout"));
    d->ui.layoutSelectEdit->reset();
    delete d->adapter;
    using Adapter = Profile::EnumProfileAdapter<LayoutType>;
    d->adapter = new Adapter({{LayoutType::Single, tr("One diagram")},
                              {LayoutType::SideBySide, tr("Two side by side")},
                              {LayoutType::Stacked, tr("Two stacked")},
                              {LayoutType::Quad, tr("Four diagrams")}},
                             d->profile.data(), &LayoutManagerProifle::layoutType,
                             &LayoutManagerProifle::setLayoutType,
                             &LayoutManagerProifle::layoutTypeChanged, this);
    d->ui.layoutSelectEdit->setProfile(d->adapter);
    d->ui.layoutSelectEdit->afterSetProfile();
}
