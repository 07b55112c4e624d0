// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "sweepkeys.h"

#include "softkey.h"

#include <QVBoxLayout>

namespace Panel
{

SweepKeys::SweepKeys(QWidget *parent)
    : QWidget(parent)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    const auto add = [column](const QString &name) {
        auto *key = new SoftKey(name);
        column->addWidget(key);
        return key;
    };
    m_sourceKey = add(tr("Source"));
    m_pointsKey = add(tr("Points"));
    m_sweepKey = add(tr("Sweep"));
    m_diagramsKey = add(tr("Diagrams"));
    m_formatKey = add(tr("Format"));
    m_timingKey = add(tr("Timing"));
    column->addStretch(1);
}

} // namespace Panel
