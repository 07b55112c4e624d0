// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "helpdialog.h"

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
    grid->setContentsMargins(16, 16 + 35, 16, 16);
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(7);
    const std::pair<const char *, QString> rows[] = {
        {"Tab", tr("go through all keys; Space or Return presses")},
        {"Ctrl + PgUp, PgDn", tr("turn the page of soft keys")},
        {"+  \u2212  0", tr("magnify a diagram, or show all of it")},
        {"\u2190 \u2192", tr("move the selected marker, or the view")},
        {"\u2191 \u2193", tr("move the view")},
        {"Del", tr("remove the selected marker")},
        {"Esc", tr("select none; leave an entry without changing it")},
        {"Ctrl + O", tr("open files")},
        {"Ctrl + P", tr("take a screenshot")},
        {"Ctrl + L", tr("show or hide the padlock")},
        {"Ctrl + T", tr("dark or light")},
        {"Ctrl + ,", tr("settings")},
        {"F3", tr("show what the drawing costs")},
        {"F11", tr("full screen")},
        {"Ctrl + Q", tr("quit")},
    };
    int row = 0;
    for (const auto &[keys, action] : rows) {
        auto *name = new QLabel(QString::fromUtf8(keys));
        QFont bold = name->font();
        bold.setBold(true);
        name->setFont(bold);
        grid->addWidget(name, row, 0);
        grid->addWidget(new QLabel(action), row, 1);
        ++row;
    }
}

} // namespace Panel
