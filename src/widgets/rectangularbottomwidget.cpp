// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <widgets/rectangularbottomwidget.h>

#include "ui_rectangularbottomwidget.h"

#include <QEvent>

RectangularBottomWidget::RectangularBottomWidget(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::RectangularBottomWidget>())
{
    ui->setupUi(this);
    setAttribute(Qt::WA_StyledBackground);
}

RectangularBottomWidget::~RectangularBottomWidget() = default;

void RectangularBottomWidget::updateRange(const QString &start, const QString &stop)
{
    ui->startLabel->setText(start);
    ui->stopLabel->setText(stop);
}

void RectangularBottomWidget::setSweepSpeedText(const QString &text)
{
    ui->sweepSpeedLabel->setText(text);
}

void RectangularBottomWidget::setSweepSpeedVisible(bool visible)
{
    ui->sweepSpeedLabel->setVisible(visible);
}

void RectangularBottomWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    // The captions are ours to translate; the values and the speed are the owner's.
    const QString start = ui->startLabel->text();
    const QString stop = ui->stopLabel->text();
    const QString speed = ui->sweepSpeedLabel->text();
    ui->retranslateUi(this);
    updateRange(start, stop);
    setSweepSpeedText(speed);
}
