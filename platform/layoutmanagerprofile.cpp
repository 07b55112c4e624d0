// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <platform/layoutmanagerprofile.h>

namespace Graph
{

struct LayoutManagerProifle::Private {
    LayoutType layoutType = LayoutType::Single;
};

LayoutManagerProifle::LayoutManagerProifle(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    qRegisterMetaType<LayoutType>();
}

LayoutManagerProifle::~LayoutManagerProifle() = default;

LayoutType LayoutManagerProifle::layoutType() const
{
    return d->layoutType;
}

void LayoutManagerProifle::setLayoutType(LayoutType type)
{
    if (d->layoutType == type)
        return;
    d->layoutType = type;
    Q_EMIT layoutTypeChanged(type);
}

} // namespace Graph
