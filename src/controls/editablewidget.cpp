// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/editablewidget.h>

#include "ui_editablewidget.h"

#include <controls/keypadedit_p.h>
#include <controls/thememanager.h>

#include <QPainter>

namespace Controls
{

EditableWidget::EditableWidget(TouchNumKeyboard *keyboard, BaseUnitAdapter *adapter,
                               QWidget *parent)
    : IEditableTitleWidget(keyboard, adapter, parent)
    , m_ui(std::make_unique<Ui::StepEditWidget>())
{
    m_ui->setupUi(this);
    setLabelText(m_ui->stepLabel->text());
    setFocusProxy(m_ui->stepEdit);
    connect(ThemeManager::instance(), &ThemeManager::themeChanged, this,
            &EditableWidget::onThemeChanged);
    attachEditor(m_ui->stepEdit);
}

EditableWidget::~EditableWidget() = default;

QString EditableWidget::labelText() const
{
    return m_ui->stepLabel->text();
}

void EditableWidget::setLabelText(const QString &text)
{
    m_ui->stepLabel->setText(text);
    m_ui->stepEdit->setAccessibleName(text);
}

void EditableWidget::setEditorText(QString text, int selectionStart, int selectionLength,
                                   int cursorPosition)
{
    showText(m_ui->stepEdit, text, selectionStart, selectionLength, cursorPosition);
}

void EditableWidget::onFocus()
{
    IEditableTitleWidget::onFocus();
    overrideKeyboardFocusProxy(editor());
}

void EditableWidget::onThemeChanged()
{
    update();
}

void EditableWidget::mousePressEvent(QMouseEvent *event)
{
    m_ui->stepEdit->setFocus(Qt::OtherFocusReason);
    IEditableTitleWidget::mousePressEvent(event);
}

void EditableWidget::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    painter.setPen(QPen(ThemeManager::instance()->borderColor(), 1));
    painter.drawRect(0, 0, width() - 1, height() - 1);
}

} // namespace Controls
