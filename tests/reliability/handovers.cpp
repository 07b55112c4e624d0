// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Whether ThreadSanitizer tells sound hand-overs between threads from unsound ones: "handovers sound" must be without a
// report, "handovers late" and "handovers bare" must have one each.
#include <fuzz/census.h>

#include <QCoreApplication>
#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <atomic>
#include <memory>

namespace
{

class Peer : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void told();
};

/// Written and read by both threads, and guarded by nothing but the order of things.
int s_value = 0;
/// Orders nothing: relaxed.
std::atomic_bool s_written{false};

void waitUntilWritten()
{
    while (!s_written.load(std::memory_order_relaxed))
        QThread::usleep(100);
}

/// Back and forth between the main thread and another: by calls, by a signal, by its end.
void soundEvents()
{
    QThread thread;
    Peer here;
    auto *const there = new Peer;
    there->moveToThread(&thread);
    QObject::connect(&thread, &QThread::finished, there, &QObject::deleteLater);
    QObject::connect(&here, &Peer::told, there, [there] {
        ++s_value;
        Q_EMIT there->told();
    });
    QObject::connect(there, &Peer::told, &here, [&thread] {
        ++s_value;
        thread.quit();
    });
    // The only way in which the last word of the thread comes here.
    QObject::connect(&thread, &QThread::finished, &here, [] {
        ++s_value;
        QCoreApplication::quit();
    });
    thread.start();
    ++s_value;
    const auto back = [&here] {
        ++s_value;
        Q_EMIT here.told();
    };
    const auto forth = [&here, back] {
        ++s_value;
        QMetaObject::invokeMethod(&here, back, Qt::QueuedConnection);
    };
    QMetaObject::invokeMethod(there, forth, Qt::QueuedConnection);
    QCoreApplication::exec();
    thread.wait();
}

void soundLocks()
{
    QMutex mutex;
    QWaitCondition changed;
    bool written = false;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        {
            const QMutexLocker lock(&mutex);
            ++s_value;
            written = true;
            changed.wakeAll();
            while (written)
                changed.wait(&mutex);
        }
        ++s_value;
    }));
    thread->start();
    {
        const QMutexLocker lock(&mutex);
        while (!written)
            changed.wait(&mutex);
        ++s_value;
        written = false;
        changed.wakeAll();
    }
    thread->wait();
    ++s_value;
}

/// The call is in order, and what the thread writes after it is not.
void late()
{
    QObject here;
    const std::unique_ptr<QThread> thread(QThread::create([&here] {
        const auto read = [] {
            waitUntilWritten();
            ++s_value;
            QCoreApplication::quit();
        };
        QMetaObject::invokeMethod(&here, read, Qt::QueuedConnection);
        ++s_value;
        s_written.store(true, std::memory_order_relaxed);
    }));
    thread->start();
    QCoreApplication::exec();
    thread->wait();
}

/// Both threads make objects, which are counted under a lock of the tests' own.
void bare()
{
    const Fuzz::Census census;
    const std::unique_ptr<QThread> thread(QThread::create([] {
        ++s_value;
        const QObject object;
        s_written.store(true, std::memory_order_relaxed);
    }));
    thread->start();
    waitUntilWritten();
    const QObject object;
    ++s_value;
    thread->wait();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.contains(QLatin1String("late"))) {
        late();
    } else if (arguments.contains(QLatin1String("bare"))) {
        bare();
    } else {
        soundEvents();
        soundLocks();
    }
    qInfo("%d", s_value);
    return 0;
}

#include "handovers.moc"
