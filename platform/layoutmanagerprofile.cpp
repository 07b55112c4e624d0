// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <platform/layoutmanagerprofile.h>

namespace Graph
{

LayoutManagerProifle::LayoutManagerProifle(QObject *parent)
    : QObject(parent)
{
    qRegisterMetaType<LayoutType>();
}

void LayoutManagerProifle::setLayoutType(LayoutType type)
{
    if (m_layoutType == type)
        return;
    m_layoutType = type;
    Q_EMIT layoutTypeChanged(type);
}

} // namespace Graph
