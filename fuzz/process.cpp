// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "process.h"

#include <QDialog>
#include <QEvent>
#include <QMenu>
#include <QPixmapCache>

#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <utility>

namespace
{

QStringList s_warnings;

void watchMessages(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtDebugMsg
        || type == QtInfoMsg
        // What a platform without a display cannot do is no fault of the panel, nor is a pointer
        // beside a pop-up, nor a pinch beyond the edge of the screen, which is smaller than the
        // panel there, nor a finger whose window has gone, which Qt 6 remarks on.
        || message.startsWith(QLatin1String("This plugin does not support"))
        || message.startsWith(QLatin1String("skipping QEventPoint"))
        || message.startsWith(QLatin1String("Mouse event at "))
        || message.startsWith(QLatin1String("QGestureManager::deliverEvent: could not find")))
        return;
    std::fprintf(stderr, "warning: %s\n", qUtf8Printable(message));
    s_warnings << message;
}

} // namespace

double Fuzz::cpuMilliseconds()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

double Fuzz::heapKiB()
{
    // Not by clear(), after which Qt 5 keeps the names of what was cached for good.
    const int limit = QPixmapCache::cacheLimit();
    QPixmapCache::setCacheLimit(0);
    QPixmapCache::setCacheLimit(limit);
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd) / 1024.0;
}

void Fuzz::watchWarnings()
{
    qInstallMessageHandler(watchMessages);
}

QStringList Fuzz::takeWarnings()
{
    return std::exchange(s_warnings, {});
}

bool Fuzz::Doorkeeper::eventFilter(QObject *watched, QEvent *event)
{
    const auto *dialog = qobject_cast<QDialog *>(watched);
    if (event->type() == QEvent::Show && dialog && dialog->isWindow())
        QMetaObject::invokeMethod(watched, "reject", Qt::QueuedConnection);
    if (event->type() == QEvent::Show && qobject_cast<QMenu *>(watched))
        QMetaObject::invokeMethod(watched, "close", Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}
