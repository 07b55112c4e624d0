// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "linksource.h"

#include <QPointer>

#include <algorithm>

namespace Panel
{

LinkSource::LinkSource(QObject *parent)
    : MeasurementSource(parent)
    , m_thread([this] {
        QMetaObject::invokeMethod(
            this,
            [this] {
                const qint64 wait = m_clock.isValid() ? frameInterval - m_clock.elapsed() : 0;
                m_timer.start(int(std::clamp<qint64>(wait, 0, frameInterval)));
            },
            Qt::QueuedConnection);
    })
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &LinkSource::deliver);
}

LinkSource::~LinkSource() = default;

void LinkSource::choose(Source, const QString &address)
{
    m_address = address;
}

void LinkSource::start(const MeasurementSettings &settings)
{
    m_settings = settings;
    m_limits = {};
    m_state = {};
    LinkAddress address;
    QString error;
    if (m_address.isEmpty()) {
        m_thread.disconnect();
    } else if (!parseLinkAddress(m_address, address, error)) {
        m_thread.disconnect();
        m_state.phase = SourceState::Refused;
        m_state.trouble = error;
    } else {
        m_state.phase = SourceState::Connecting;
        m_thread.connectTo(address);
    }
}

void LinkSource::stop()
{
    m_thread.disconnect();
    m_state = {};
    m_limits = {};
}

void LinkSource::setSettings(const MeasurementSettings &settings)
{
    if (settings == m_settings)
        return;
    m_settings = settings;
    m_thread.setSettings(settings);
}

void LinkSource::deliver()
{
    const LinkThread::News news = m_thread.takeNews();
    const QPointer<LinkSource> alive(this);
    m_clock.start();
    if (news.hasState) {
        m_state = news.state;
        m_limits = news.limits;
        Q_EMIT stateChanged();
    }
    if (alive && news.isSettled) {
        m_settings = news.settings;
        Q_EMIT settled(news.settings);
    }
    if (alive && news.hasReturned)
        Q_EMIT said(tr("%1 is connected again.").arg(m_state.identity));
    if (alive && news.hasFrame)
        Q_EMIT swept(news.frame, news.progress, news.sweeps);
}

} // namespace Panel
