// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "parametermatrix.h"

#include <panel/ground/dialogstage.h>
#include <panel/model/network.h>

#include <QGridLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QScroller>
#include <QVBoxLayout>

namespace Panel
{

namespace
{

/// A key, in pixels, and what lies between two.
constexpr QSize s_key(64, 48);
constexpr int s_gap = 6;

} // namespace

ParameterMatrix::ParameterMatrix(int ports, int to, int from, QWidget *parent)
    : DraggableFramelessDialog(parent)
{
    setAccessibleName(tr("Parameter"));
    setWindowTitle(tr("Parameter"));
    setHeaderButton(Controls::DraggableDialogTitleBar::CloseButton);

    auto *keys = new QWidget;
    auto *grid = new QGridLayout(keys);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(s_gap);
    QPushButton *current = nullptr;
    for (int row = 1; row <= ports; ++row) {
        for (int column = 1; column <= ports; ++column) {
            auto *key = new QPushButton(parameterName(row, column));
            key->setObjectName(QStringLiteral("parameter"));
            key->setFixedSize(s_key);
            key->setAutoDefault(false);
            key->setCheckable(true);
            key->setAccessibleDescription(tr("From port %1 to port %2").arg(column).arg(row));
            connect(key, &QPushButton::clicked, this, [this, row, column] {
                Q_EMIT picked(row, column);
                close();
            });
            grid->addWidget(key, row - 1, column - 1);
            if (row == to && column == from)
                current = key;
        }
    }
    auto *area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // it follows the keys in it
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(keys);
    QScroller::grabGesture(area->viewport(), QScroller::LeftMouseButtonGesture);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(dialogMargins(12));
    layout->addWidget(area);

    keys->adjustSize();
    const QMargins frame = contentsMargins() + layout->contentsMargins();
    const QSize needed = keys->size().grownBy(frame);
    resize(needed);
    if (current) {
        current->setChecked(true);
        current->setFocus();
        area->ensureWidgetVisible(current);
    }
}

} // namespace Panel
