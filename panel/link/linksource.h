// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linkthread.h"

#include <QElapsedTimer>
#include <QTimer>

namespace Panel
{

/*! A real instrument as a source of measurements. All waiting is done in a thread; frames are handed
    out at the rate of a display, of which the last one counts. */
class LinkSource : public MeasurementSource
{
    Q_OBJECT

public:
    /// Time between two frames in milliseconds, at the least.
    static constexpr int frameInterval = 16;

    explicit LinkSource(QObject *parent = nullptr);
    ~LinkSource() override;

    /// Writes commands and replies to a file; before the first start only. False if that cannot be
    /// done.
    bool setLog(const QString &path) { return m_thread.setLog(path); }

    /// The address is one that parseLinkAddress() takes; what is none gives a state that says so.
    void choose(Source source, const QString &address) override;
    void start(const MeasurementSettings &settings) override;
    void stop() override;
    void setSettings(const MeasurementSettings &settings) override;
    void setHeld(bool held) override { m_thread.setHeld(held); }
    void measureOnce() override { m_thread.measureOnce(); }

    SourceLimits limits() const override { return m_limits; }
    SourceState state() const override { return m_state; }

private:
    void deliver();

    QString m_address;
    SourceState m_state;
    SourceLimits m_limits;
    MeasurementSettings m_settings; ///< that the instrument has, or was told to have
    QElapsedTimer m_clock; ///< since the last frame
    QTimer m_timer; ///< runs while news wait for the next frame
    LinkThread m_thread; ///< last, because it ends first
};

} // namespace Panel
