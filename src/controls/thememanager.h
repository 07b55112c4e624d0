// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QObject>

namespace Controls {

/// Knows whether the user interface is dark or light, and tells whoever recolours itself.
class VNAWIDGETS_EXPORT ThemeManager : public QObject
{
    Q_OBJECT

public:
    enum Theme {
        Dark = 0,
        Light = 1,
    };

    /// The one instance, made at the first call and never destroyed.
    static ThemeManager *instance();

    Theme currentTheme() const { return m_theme; }

public Q_SLOTS:
    void setTheme(Controls::ThemeManager::Theme theme);

Q_SIGNALS:
    void themeChanged(Controls::ThemeManager::Theme newTheme);

private:
    ThemeManager() = default;

    Theme m_theme = Dark;
};

} // namespace Controls
