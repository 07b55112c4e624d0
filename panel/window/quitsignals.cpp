// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "quitsignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace Panel
{

namespace
{

constexpr int s_signals[] = {SIGTERM, SIGINT, SIGHUP};
/// The handler writes to the first and the event loop reads the second: hardly anything else is
/// allowed while a signal is handled.
int s_pipe[2] = {-1, -1};

void onSignal(int)
{
    const char byte = 0;
    const auto written = ::write(s_pipe[0], &byte, 1);
    Q_UNUSED(written)
}

} // namespace

QuitSignals::QuitSignals(QObject *parent)
    : QObject(parent)
{
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, s_pipe) != 0)
        return;
    auto *notifier = new QSocketNotifier(s_pipe[1], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [notifier] {
        notifier->setEnabled(false);
        // Not quit(), which an open dialog may refuse.
        QCoreApplication::exit(0);
    });
    for (const int number : s_signals)
        std::signal(number, onSignal);
}

QuitSignals::~QuitSignals()
{
    for (const int number : s_signals)
        std::signal(number, SIG_DFL);
    ::close(s_pipe[0]);
    ::close(s_pipe[1]);
}

} // namespace Panel
