// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linkaddress.h"
#include "linklog.h"

#include <panel/model/measurementsource.h>

#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <atomic>
#include <functional>

namespace Panel
{

class LinkSession;

/*! The thread in which instruments are waited for: it connects, measures over and over, and after
    trouble connects again. Orders and news lie in two places behind one lock, so that nobody waits
    for anybody, and no more than the last frame waits for the panel. */
class LinkThread : public QThread
{
public:
    /// How long after trouble the instrument is tried again, in milliseconds.
    static constexpr int retryTime = 2000;

    /// What has come about since the last look.
    struct News {
        bool hasFrame = false;
        Network frame;
        double progress = 0.0;
        int sweeps = 0; ///< that were completed
        bool hasState = false;
        SourceState state;
        SourceLimits limits;
        bool isSettled = false;
        MeasurementSettings settings;
        bool hasReturned = false; ///< the connection stands again
    };

    /// `notify` is called in the thread when there is news, once until takeNews().
    explicit LinkThread(const std::function<void()> &notify);
    ~LinkThread() override;

    /// Where commands and replies are written to; before the first connection only.
    bool setLog(const QString &path) { return m_log.open(path); }

    /// Measures there from now on; what ran before tells no more news.
    void connectTo(const LinkAddress &address);
    void disconnect();
    void setSettings(const MeasurementSettings &settings);
    void setHeld(bool held);
    void measureOnce();
    News takeNews();

protected:
    void run() override;

private:
    struct Orders {
        quint64 connection = 0; ///< counts where it shall go
        bool wanted = false;
        LinkAddress address;
        bool held = false;
        int singles = 0;
        quint64 revision = 0; ///< counts what was set
        MeasurementSettings settings;
    };

    void serve(const Orders &begun);
    void measure(LinkSession &session, const Orders &begun, quint64 revision);
    void tellState(quint64 connection, const SourceState &state, const SourceLimits &limits);
    void tellFrame(quint64 connection, const Network &frame, double progress);
    void tellSettings(quint64 connection, quint64 revision, const MeasurementSettings &settings);
    template<typename Change>
    void tell(quint64 connection, Change change);
    template<typename Change>
    void order(Change change);
    Orders orders();
    void rest(quint64 connection, int milliseconds);

    std::function<void()> m_notify;
    LinkLog m_log;
    QMutex m_mutex; ///< for what follows
    QWaitCondition m_ordered;
    Orders m_orders;
    News m_news;
    bool m_notified = false;
    bool m_quit = false;
    std::atomic_bool m_cancel{false}; ///< set as the lock is held

    // The thread's own.
    QString m_identity; ///< of the instrument that was measured last at this address
    quint64 m_identified = 0; ///< the connection that it belongs to
};

} // namespace Panel
