// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "widgetplugins.h"

#include "widgetplugin.h"

namespace Designer
{

WidgetPlugins::WidgetPlugins(QObject *parent)
    : QObject(parent)
{
    for (const WidgetEntry &entry : widgetTable())
        m_widgets.append(new WidgetPlugin(entry, this));
}

} // namespace Designer
