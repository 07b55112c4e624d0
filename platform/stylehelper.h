// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <platform/vnaplatform_export.h>

#include <QStringList>

namespace Utils
{

/*! Puts style sheet files into force for the whole application.

    There is one sheet at a time: what setThemes() applies takes the place of whatever the
    application had, so nothing of an earlier theme stays behind. Not for styling a single widget:
    use QWidget::setStyleSheet() for that.

    \code
    QStringList files = Utils::StyleHelper::defaultThemeFiles(dark);
    files << QStringLiteral("../configuration/house-colours.css");
    Utils::StyleHelper::setThemes(files);
    \endcode */
class VNAPLATFORM_EXPORT StyleHelper
{
public:
    StyleHelper() = delete;

    /// The files that every theme starts with: sizes and spacing, which dark and light share.
    static QStringList defaultThemeFiles(bool dark);

    /*! Joins the files in list order and applies them to the application. Relative names are taken
        from the application's folder, text is UTF-8, a file that cannot be read or has more than 1
        MiB is left out. Does nothing when the text is the one in force, since a new sheet costs
        every widget a polish. */
    static void setThemes(const QStringList &files);
};

} // namespace Utils
