// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace Panel
{
class Diagrams;
class PanelModel;
} // namespace Panel

namespace Fuzz
{

/*! What must hold of the diagrams on show whatever has happened, once queued layouts and replots
   are done: each marker stands on its trace or is not drawn, what is written at the axes is what
   they show, and the part that is seen is the model's. The sentences say what does not hold. */
QStringList brokenRules(const Panel::PanelModel &model, const Panel::Diagrams &diagrams);

} // namespace Fuzz
