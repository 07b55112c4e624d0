// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpdialog.h"

#include <panel/ground/dialogstage.h>

#include <QGridLayout>
#include <QLabel>

namespace Panel
{

HelpDialog::HelpDialog(QWidget *parent)
    : DraggableFramelessDialog(parent)
{
    setAccessibleName(tr("Keys"));
    setWindowTitle(tr("Keys"));
    setHeaderButton(Controls::DraggableDialogTitleBar::CloseButton);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(dialogMargins(16));
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(5);
    const std::pair<QString, QString> rows[] = {
        {tr("Tab"), tr("go through all keys; Space or Return presses")},
        {tr("Ctrl + PgUp, PgDn"), tr("turn the page of soft keys")},
        {QStringLiteral("+  \u2212  0"), tr("magnify a diagram, or show all of it")},
        {QStringLiteral("\u2190 \u2192"),
         tr("move the selected marker, with Ctrl by a point; or the view")},
        {QStringLiteral("\u2191 \u2193"), tr("move the view")},
        {tr("G, M, k"), tr("finish a typed number in GHz, MHz or kHz")},
        {tr("Del"), tr("remove the selected marker")},
        {tr("Esc"), tr("select none; leave an entry without changing it")},
        {tr("Ctrl + Z"), tr("undo; with Shift, do it again")},
        {tr("Ctrl + O"), tr("open files")},
        {tr("Ctrl + P"), tr("take a screenshot")},
        {tr("Ctrl + L"), tr("lock the panel, or unlock it")},
        {tr("Ctrl + T"), tr("dark or light")},
        {tr("Ctrl + ,"), tr("settings")},
        {QStringLiteral("F3"), tr("show what the drawing costs")},
        {QStringLiteral("F11"), tr("full screen")},
        {tr("Ctrl + Q"), tr("quit")},
    };
    int row = 0;
    for (const auto &[keys, action] : rows) {
        auto *name = new QLabel(keys);
        QFont bold = name->font();
        bold.setBold(true);
        name->setFont(bold);
        grid->addWidget(name, row, 0);
        grid->addWidget(new QLabel(action), row, 1);
        ++row;
    }
}

} // namespace Panel
