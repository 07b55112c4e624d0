// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <platform/ienumprofileadapter.h>

namespace Profile
{

IEnumProfileAdapter::IEnumProfileAdapter(QObject *parent)
    : QObject(parent)
{
}

IEnumProfileAdapter::~IEnumProfileAdapter() = default;

} // namespace Profile
