// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "highcontrast.h"

#include <controls/thememanager.h>

namespace Panel
{

namespace
{

struct ContrastColor {
    const char *name; ///< of the theme
    QRgb dark;
    QRgb light;
};

/// Shades of a colour follow it; those that would not stand out are here themselves.
constexpr ContrastColor s_colors[] = {
    {"backgroundColor", 0x000000, 0xffffff},
    {"statusBarColor", 0x000000, 0xffffff},
    {"barColor", 0x000000, 0xffffff},
    {"dialogColor", 0x000000, 0xffffff},
    {"fieldColor", 0x000000, 0xffffff},
    {"textColor", 0xffffff, 0x000000},
    {"dimTextColor", 0xffffff, 0x000000},
    {"disabledTextColor", 0xa0a0a0, 0x5a5a5a},
    {"borderColor", 0xffffff, 0x000000},
    {"gridColor", 0x606060, 0x909090},
    {"buttonColor", 0x000000, 0xffffff},
    {"buttonHoverColor", 0x303030, 0xd8d8d8},
    {"listItemDefaultColor", 0x000000, 0xffffff},
    {"focusColor", 0xffff00, 0x0000c0},
    {"disabledCheckedColor", 0x505050, 0xc8c8c8},
};

bool s_on = false;

} // namespace

void setHighContrast(bool on)
{
    if (on == s_on)
        return;
    s_on = on;
    using Controls::ThemeManager;
    ThemeManager *theme = ThemeManager::instance();
    for (const ContrastColor &row : s_colors) {
        const QString name = QLatin1String(row.name);
        // An invalid one brings the theme's own back.
        theme->setColor(ThemeManager::Dark, name, on ? QColor(row.dark) : QColor());
        theme->setColor(ThemeManager::Light, name, on ? QColor(row.light) : QColor());
    }
    theme->setTheme(theme->currentTheme());
}

bool isHighContrast()
{
    return s_on;
}

} // namespace Panel
