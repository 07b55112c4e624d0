// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "icons.h"

#include <controls/thememanager.h>

// Outside the namespace, because the macro declares a global function.
static void registerVnaResources()
{
    Q_INIT_RESOURCE(vnaresources);
}

namespace Panel
{

void registerIcons()
{
    registerVnaResources();
}

QIcon icon(const char *name)
{
    const bool light = Controls::ThemeManager::instance()->isLightTheme();
    return QIcon(QStringLiteral(":/image/resource/") + QLatin1String(name)
                 + QLatin1String(light ? "_light.svg" : ".svg"));
}

} // namespace Panel
