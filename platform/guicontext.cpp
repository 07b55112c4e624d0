// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <platform/guicontext.h>

namespace Utils
{

GUIContext *GUIContext::instance()
{
    static GUIContext *const context = new GUIContext;
    return context;
}

void GUIContext::setIsDarkTheme(bool dark)
{
    if (m_dark == dark)
        return;
    m_dark = dark;
    Q_EMIT darkThemeChanged(dark);
}

} // namespace Utils
