// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/thememanager.h>

namespace Controls {

ThemeManager *ThemeManager::instance()
{
    static ThemeManager *const manager = new ThemeManager;
    return manager;
}

void ThemeManager::setTheme(Theme theme)
{
    m_theme = theme;
    Q_EMIT themeChanged(theme);
}

} // namespace Controls
