// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <platform/vnaplatform_export.h>

#include <QStringList>

namespace Utils
{

/*! Puts style sheet files into force for the whole application.

    What setThemes() applies takes the place of what it applied before, so nothing of an earlier
    theme stays behind. A style sheet that the application has of its own stays, and prevails. Not
    for styling a single widget: use QWidget::setStyleSheet() for that. GUI thread only.

    \code
    QStringList files = Utils::StyleHelper::defaultThemeFiles(dark);
    files << QStringLiteral("../configuration/theme-dark.css");
    Utils::StyleHelper::setThemes(files);
    \endcode */
class VNAPLATFORM_EXPORT StyleHelper
{
public:
    StyleHelper() = delete;

    /// The files that every theme starts with: sizes and spacing, which dark and light share.
    static QStringList defaultThemeFiles(bool dark);

    /*! Joins the files in list order and applies them to the application. Relative names are taken
        from the application's folder; text is UTF-8, at most 1 MiB. "@textColor" and the like stand
        for the colours that the theme manager knows by these names.

        In place of the theme's files in "../configuration" that are missing come those in the
        library. Another one that is missing, and any that is broken, is left out and told by a
        warning, once. Does nothing when the text is the one in force: a new sheet costs every
        widget a polish. */
    static void setThemes(const QStringList &files);
};

} // namespace Utils
