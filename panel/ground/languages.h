// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocale>
#include <QVector>

namespace Panel
{

/// A language that the panel speaks.
struct Language {
    QString code; ///< "zh_CN", as for --lang
    QString name; ///< as its own speakers write it
};

/// English first.
const QVector<Language> &languages();
/// Whether --lang takes this code.
bool isLanguage(const QString &code);
/// Switches library and panel to a language of the list; what is on screen keeps its texts until it
/// is made anew. False, and nothing changes, for another code.
bool setLanguage(const QString &code);
/// The code of the language in force.
QString currentLanguage();

} // namespace Panel
