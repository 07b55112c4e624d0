// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <platform/guicontext.h>

namespace Utils
{

struct GUIContext::Private {
    bool dark = true;
};

GUIContext::GUIContext()
    : d(std::make_unique<Private>())
{
}

GUIContext::~GUIContext() = default;

GUIContext *GUIContext::instance()
{
    static GUIContext *const context = new GUIContext;
    return context;
}

bool GUIContext::getIsDarkTheme() const
{
    return d->dark;
}

void GUIContext::setIsDarkTheme(bool dark)
{
    if (d->dark == dark)
        return;
    d->dark = dark;
    Q_EMIT darkThemeChanged(dark);
}

} // namespace Utils
