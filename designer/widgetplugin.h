// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "widgettable.h"

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace Designer
{

/// One row of the table, as Qt Designer asks for it.
class WidgetPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    WidgetPlugin(const WidgetEntry &entry, QObject *parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override { return false; }
    QWidget *createWidget(QWidget *parent) override;
    QString domXml() const override;
    bool isInitialized() const override { return m_core != nullptr; }
    void initialize(QDesignerFormEditorInterface *core) override { m_core = core; }

private:
    WidgetEntry m_entry;
    QDesignerFormEditorInterface *m_core =
        nullptr; ///< only Qt Designer has one, QUiLoader does not
};

} // namespace Designer
