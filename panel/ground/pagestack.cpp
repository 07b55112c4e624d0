// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "pagestack.h"

#include <QAccessibleWidget>

namespace Panel
{

PageStack::PageStack(QWidget *parent)
    : QStackedWidget(parent)
{
    QAccessible::installFactory(
        [](const QString &className, QObject *object) -> QAccessibleInterface * {
            return className == QLatin1String(staticMetaObject.className())
                ? new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Grouping)
                : nullptr;
        });
}

} // namespace Panel
