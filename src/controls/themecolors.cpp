// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "themecolors_p.h"

namespace Controls
{

namespace
{

struct NamedColor {
    const char *name;
    const char *dark;
    const char *light;
    const char *base; ///< whose shade it is, or null
};

// A base stands before its shades.
constexpr NamedColor s_colors[] = {
    {"borderColor", "#535b62", "#bab4af", nullptr},
    {"backgroundColor", "#000000", "#ece9e4", nullptr},
    {"textColor", "#ffffff", "#2c3a45", nullptr},
    {"highlightColor", "#641d6d9f", "#6463acf6", nullptr},
    {"buttonColor", "#323232", "#d2cbc5", nullptr},
    {"statusBarColor", "#000000", "#ece9e4", nullptr},
    {"listItemEnabledColor", "#0000ce", "#63acf6", nullptr},
    {"listItemSelectedColor", "#641d6d9f", "#6463acf6", nullptr},
    {"listItemHoverColor", "#2d2d2d", "#e5ded9", nullptr},
    {"listItemDefaultColor", "#191919", "#ece9e4", nullptr},
    // Opaque on purpose in the light theme: a pressed button must stand out from its bright
    // neighbours.
    {"labelButtonPressedColor", "#641d6d9f", "#63acf6", nullptr},
    {"gridColor", "#292e33", "#c7c2bd", nullptr},
    // What the style sheets add.
    {"accentColor", "#1d6d9f", "#63acf6", "highlightColor"},
    {"accentPressedColor", "#0f4c73", "#3d93e6", "accentColor"},
    {"alternateRowColor", "#0d0f11", "#e5e1db", "backgroundColor"},
    {"barColor", "#14171a", "#e1dcd6", "statusBarColor"},
    {"buttonHoverColor", "#3a3d40", "#dbd5cf", "buttonColor"},
    {"buttonOffColor", "#1e2123", "#e1dcd6", "buttonColor"},
    {"checkedColor", "#15344a", "#bcd8f2", "accentColor"},
    {"closeColor", "#c4314b", "#e8657a", nullptr},
    {"dialogColor", "#14171a", "#f0ede8", "backgroundColor"},
    {"dimTextColor", "#9aa5af", "#4d5861", "textColor"},
    {"disabledBorderColor", "#33383c", "#cfc9c3", "borderColor"},
    {"disabledCheckedColor", "#3b4248", "#b9c3cb", "buttonColor"},
    {"disabledColor", "#1e1f20", "#e3ded9", "buttonColor"},
    {"disabledTextColor", "#646c73", "#9b958f", "textColor"},
    {"fieldColor", "#000000", "#f7f5f2", "backgroundColor"},
    {"focusColor", "#40b5ff", "#0068b0", "accentColor"},
    {"focusTextColor", "#000000", "#ffffff", nullptr},
    {"handleColor", "#d5dade", "#ffffff", nullptr},
    {"headerColor", "#20262b", "#dad4cd", "statusBarColor"},
    {"indicatorColor", "#8b949c", "#69747d", "borderColor"},
    {"listSelectedColor", "#15344a", "#bcd8f2", "listItemSelectedColor"},
    {"pressedColor", "#1d6d9f", "#63acf6", "labelButtonPressedColor"},
    {"veilColor", "#cc000000", "#ccece9e4", "backgroundColor"},
    {"warningColor", "#ffb347", "#a84f00", nullptr},
};

const NamedColor *find(const QString &name)
{
    for (const NamedColor &row : s_colors) {
        if (name == QLatin1String(row.name))
            return &row;
    }
    return nullptr;
}

QVector<QColor> paletteOf(std::initializer_list<const char *> names)
{
    QVector<QColor> colors;
    for (const char *name : names)
        colors << QColor(QLatin1String(name));
    return colors;
}

} // namespace

ThemeColors::ThemeColors(bool dark)
    : tracePalette(builtInTraces(dark))
    , memoryTracePalette(builtInMemoryTraces(dark))
    , m_dark(dark)
{
}

QColor ThemeColors::builtIn(const QString &name) const
{
    const NamedColor *row = find(name);
    return row ? QColor(QLatin1String(m_dark ? row->dark : row->light)) : QColor();
}

QColor ThemeColors::color(const QString &name) const
{
    const auto set = m_set.constFind(name);
    if (set != m_set.constEnd())
        return *set;
    QColor own = builtIn(name);
    const NamedColor *row = find(name);
    if (!row || !row->base)
        return own;
    const QString baseName = QLatin1String(row->base);
    const QColor base = color(baseName);
    if (!base.isValid())
        return own;
    const QColor builtInBase = builtIn(baseName);
    const auto shifted = [](int part, int from, int to) {
        return qBound(0, part + to - from, 255);
    };
    return {shifted(own.red(), builtInBase.red(), base.red()),
            shifted(own.green(), builtInBase.green(), base.green()),
            shifted(own.blue(), builtInBase.blue(), base.blue()), own.alpha()};
}

QStringList ThemeColors::names() const
{
    QStringList all = m_set.keys();
    for (const NamedColor &row : s_colors) {
        if (!m_set.contains(QLatin1String(row.name)))
            all << QLatin1String(row.name);
    }
    return all;
}

QVector<QColor> ThemeColors::builtInTraces(bool dark)
{
    return dark ? paletteOf({"#ffff00", "#ff55ff", "#00f5a0", "#40b5ff"})
                : paletteOf({"#007a52", "#a84f00", "#0068b0", "#9c27b0"});
}

QVector<QColor> ThemeColors::builtInMemoryTraces(bool dark)
{
    return dark ? paletteOf({"#ffb347", "#ff7675", "#ffd166", "#ff9f1c"})
                : paletteOf({"#d84315", "#ad1457", "#6d4c41", "#5d4037"});
}

} // namespace Controls
