// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace Monkey
{

class Desk;

/// What must hold whatever has happened; the sentences say what does not.
QStringList brokenRules(const Desk &desk);

} // namespace Monkey
