// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace Panel
{

class PanelModel;
class PanelWindow;

/*! Writes a PNG of each of the panel's screens to a folder, which is made where it does not exist.
   Files of the same name are replaced. False, with a sentence on the terminal, if that cannot be
   done. */
bool grabScreens(PanelModel *model, PanelWindow *window, const QString &folder);

} // namespace Panel
