// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QSize>
#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Designer
{

/// What Qt Designer is told of one widget.
struct WidgetEntry {
    const char *className; ///< with its namespace, as uic writes it
    const char *header; ///< as it is included
    const char *group; ///< section of the widget box; null for what cannot stand in a compiled form
    const char *icon; ///< file name in designer/icons, without its ending
    const char *toolTip;
    QSize size; ///< when it is dropped on a form
    const char *properties; ///< of a dropped widget, in the language of .ui files
    QWidget *(*create)(QWidget *parent);
    void (*fill)(QWidget *widget); ///< something to look at while a form is designed; may be null
};

QVector<WidgetEntry> widgetTable();

} // namespace Designer
