// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What every target shares: an application without a display, an end at the first misuse of Qt, and
// a count of what is left behind.
#include "census.h"
#include "input.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>

void Fuzz::fail(const char *condition, const char *file, int line)
{
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, condition);
    std::abort();
}

namespace
{

QApplication *s_application = nullptr;

/// Qt names its class where it is misused ("QPainter::begin: ..."); all else is chatter.
void watchMessages(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtDebugMsg || type == QtInfoMsg || !message.startsWith(QLatin1Char('Q'))
        || !message.contains(QLatin1String("::")))
        return;
    std::fprintf(stderr, "%s\n", qPrintable(message));
    std::abort();
}

} // namespace

void Fuzz::finish()
{
    delete s_application;
    s_application = nullptr;
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    s_application = new QApplication(*argc, *argv);
    QApplication::setQuitOnLastWindowClosed(false);
    qInstallMessageHandler(watchMessages);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // What a target makes once for all its runs is there after the first.
    static const bool warm = [] {
        Fuzz::Input nothing(nullptr, 0);
        Fuzz::run(nothing);
        return true;
    }();
    Q_UNUSED(warm)
    const Fuzz::Census census;
    Fuzz::Input input(data, size);
    Fuzz::run(input);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QStringList left = census.grown();
    if (!left.isEmpty())
        Fuzz::fail(qPrintable(left.join(QLatin1String(", "))), __FILE__, __LINE__);
    return 0;
}
