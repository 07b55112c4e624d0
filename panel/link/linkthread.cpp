// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "linkthread.h"

#include "linksession.h"
#include "linktrouble.h"
#include "wire.h"

#include <QDeadlineTimer>

namespace Panel
{

namespace
{

/// How often an instrument that is held is looked at, in milliseconds.
constexpr int s_holdInterval = 50;

} // namespace

LinkThread::LinkThread(const std::function<void()> &notify)
    : m_notify(notify)
{
    setObjectName(QStringLiteral("link"));
}

LinkThread::~LinkThread()
{
    order([this](Orders &) {
        m_quit = true;
        m_cancel = true;
    });
    wait();
}

template<typename Change>
void LinkThread::order(Change change)
{
    const QMutexLocker lock(&m_mutex);
    change(m_orders);
    m_ordered.wakeAll();
}

LinkThread::Orders LinkThread::orders()
{
    const QMutexLocker lock(&m_mutex);
    return m_orders;
}

void LinkThread::connectTo(const LinkAddress &address)
{
    order([&](Orders &orders) {
        ++orders.connection;
        orders.wanted = true;
        orders.address = address;
        orders.singles = 1; // so that there is something to see, held or not
        orders.revision = 0;
        m_news = News();
        m_cancel = true;
    });
    if (!isRunning())
        start();
}

void LinkThread::disconnect()
{
    order([this](Orders &orders) {
        ++orders.connection;
        orders.wanted = false;
        m_news = News();
        m_cancel = true;
    });
}

void LinkThread::setSettings(const MeasurementSettings &settings)
{
    order([&settings](Orders &orders) {
        ++orders.revision;
        orders.settings = settings;
    });
}

void LinkThread::setHeld(bool held)
{
    order([held](Orders &orders) { orders.held = held; });
}

void LinkThread::measureOnce()
{
    order([](Orders &orders) { orders.singles = 1; });
}

LinkThread::News LinkThread::takeNews()
{
    const QMutexLocker lock(&m_mutex);
    m_notified = false;
    return std::exchange(m_news, News());
}

template<typename Change>
void LinkThread::tell(quint64 connection, Change change)
{
    {
        const QMutexLocker lock(&m_mutex);
        if (connection != m_orders.connection)
            return;
        change(m_news);
        if (std::exchange(m_notified, true))
            return;
    }
    m_notify();
}

void LinkThread::tellState(quint64 connection, const SourceState &state, const SourceLimits &limits)
{
    tell(connection, [&](News &news) {
        news.hasState = true;
        news.state = state;
        news.limits = limits;
    });
}

void LinkThread::tellFrame(quint64 connection, const Network &frame, double progress)
{
    tell(connection, [&](News &news) {
        news.hasFrame = true;
        news.frame = frame;
        news.progress = progress;
        news.sweeps += progress >= 1.0 ? 1 : 0;
    });
}

void LinkThread::tellSettings(quint64 connection, quint64 revision,
                              const MeasurementSettings &settings)
{
    tell(connection, [&](News &news) {
        // Of what was set meanwhile, more will be told.
        if (revision != m_orders.revision)
            return;
        news.isSettled = true;
        news.settings = settings;
    });
}

/// Rests until something is ordered, or for so long; without a time, until a connection is.
void LinkThread::rest(quint64 connection, int milliseconds)
{
    const QMutexLocker lock(&m_mutex);
    const QDeadlineTimer deadline(milliseconds);
    while (!m_quit && connection == m_orders.connection && !deadline.hasExpired())
        m_ordered.wait(&m_mutex, deadline);
}

void LinkThread::run()
{
    for (;;) {
        Orders begun;
        {
            const QMutexLocker lock(&m_mutex);
            while (!m_quit && !m_orders.wanted)
                m_ordered.wait(&m_mutex);
            if (m_quit)
                return;
            begun = m_orders;
            m_cancel = false;
        }
        serve(begun);
    }
}

/// One connection, from the first question to the trouble that ends it.
void LinkThread::serve(const Orders &begun)
{
    const quint64 connection = begun.connection;
    const bool again = m_identified == connection;
    SourceState state;
    if (!again) {
        state.phase = SourceState::Connecting;
        tellState(connection, state, {});
    }
    QString trouble;
    SourceLimits limits;
    {
        LinkSession session(begun.address, &m_log, &m_cancel);
        const bool open = session.open();
        const Analyser *analyser = session.analyser();
        if (open) {
            state.identity = analyser->identity();
            state.calibration = analyser->calibration();
            limits = analyser->limits();
        }
        if (open && again && state.identity != m_identity) {
            state.phase = SourceState::Refused;
            state.trouble =
                Trouble::otherInstrument(session.wire()->peer(), state.identity, m_identity);
        } else if (open) {
            m_identity = state.identity;
            m_identified = connection;
            state.phase = SourceState::Ready;
            tellState(connection, state, limits);
            if (again)
                tell(connection, [](News &news) { news.hasReturned = true; });
            // What the user has set before holds for what comes back, too.
            if (begun.revision == 0)
                tellSettings(connection, 0, analyser->settings());
            measure(session, begun, 0);
        }
        trouble = session.trouble();
    }
    if (state.phase != SourceState::Refused) {
        state.phase = SourceState::Lost;
        state.trouble = trouble;
        if (trouble.isEmpty())
            return; // it was told to go
    }
    tellState(connection, state, limits);
    rest(connection, state.phase == SourceState::Refused ? -1 : retryTime);
}

void LinkThread::measure(LinkSession &session, const Orders &begun, quint64 revision)
{
    Analyser *analyser = session.analyser();
    Wire *wire = session.wire();
    Network network;
    const auto progressed = [&](const Network &frame, double progress) {
        tellFrame(begun.connection, frame, progress);
    };
    while (wire->ok() && !m_cancel) {
        const Orders now = orders();
        if (now.revision != revision) {
            revision = now.revision;
            if (analyser->apply(now.settings))
                tellSettings(begun.connection, revision, analyser->settings());
        } else if (now.held && now.singles == 0) {
            wire->isAlive(0);
            wire->discard();
            const QMutexLocker lock(&m_mutex);
            if (m_orders.held && m_orders.singles == 0 && !m_quit)
                m_ordered.wait(&m_mutex, s_holdInterval);
        } else if (analyser->sweep(network, progressed)) {
            order([](Orders &orders) { orders.singles = 0; });
        }
    }
}

} // namespace Panel
