// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace Panel
{

class SoftKey;

/// A page of soft keys: what is measured, and in which diagrams it is seen.
class SweepKeys : public QWidget
{
    Q_OBJECT

public:
    explicit SweepKeys(QWidget *parent = nullptr);

    /// Files, or one of the simulated devices.
    SoftKey *sourceKey() const { return m_sourceKey; }
    SoftKey *pointsKey() const { return m_pointsKey; }
    /// Sweeping or held.
    SoftKey *sweepKey() const { return m_sweepKey; }
    /// Which diagrams are shown.
    SoftKey *diagramsKey() const { return m_diagramsKey; }
    /// What the Cartesian diagram shows.
    SoftKey *formatKey() const { return m_formatKey; }
    SoftKey *timingKey() const { return m_timingKey; }

private:
    SoftKey *m_sourceKey;
    SoftKey *m_pointsKey;
    SoftKey *m_sweepKey;
    SoftKey *m_diagramsKey;
    SoftKey *m_formatKey;
    SoftKey *m_timingKey;
};

} // namespace Panel
