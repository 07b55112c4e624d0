// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "widgetplugin.h"

#include <QIcon>
#include <QWidget>

namespace Designer
{

WidgetPlugin::WidgetPlugin(const WidgetEntry &entry, QObject *parent)
    : QObject(parent)
    , m_entry(entry)
{
}

QString WidgetPlugin::name() const
{
    return QString::fromLatin1(m_entry.className);
}

QString WidgetPlugin::group() const
{
    return QString::fromLatin1(m_entry.group);
}

QString WidgetPlugin::toolTip() const
{
    return QString::fromLatin1(m_entry.toolTip);
}

QString WidgetPlugin::whatsThis() const
{
    return QStringLiteral("<b>%1</b>: %2. See docs/widgets of VnaWidgets.").arg(name(), toolTip());
}

QString WidgetPlugin::includeFile() const
{
    return QStringLiteral("<%1>").arg(QString::fromLatin1(m_entry.header));
}

QIcon WidgetPlugin::icon() const
{
    return QIcon(QStringLiteral(":/vnadesigner/%1.svg").arg(QString::fromLatin1(m_entry.icon)));
}

QWidget *WidgetPlugin::createWidget(QWidget *parent)
{
    QWidget *const widget = m_entry.create(parent);
    if (m_core && m_entry.fill)
        m_entry.fill(widget);
    return widget;
}

QString WidgetPlugin::domXml() const
{
    if (!m_entry.group)
        return {};
    const QString variable = QString::fromLatin1(m_entry.icon);
    return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">"
                          "<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                          "<width>%3</width><height>%4</height></rect></property>"
                          "%5</widget></ui>")
        .arg(name(), variable, QString::number(m_entry.size.width()),
             QString::number(m_entry.size.height()), QString::fromLatin1(m_entry.properties));
}

} // namespace Designer
