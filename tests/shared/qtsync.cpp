// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What ThreadSanitizer cannot see of a Qt that is not built with it: which thread waits for which. Linked into every
// program of such a build. Calls of Qt's locks and of what posts events, made by this project, come here first; what Qt
// itself sends and delivers is told by its hooks for tools.
#include <QCoreApplication>
#include <QEvent>
#include <QMutex>
#include <QThread>
#include <QThreadStorage>
#include <QWaitCondition>
#include <private/qobject_p.h>

#include <dlfcn.h>
#include <sanitizer/tsan_interface.h>

#include <climits>
#include <utility>

/// Qt's table of hooks for tools; entries 3 and 4 are called for every object that is made and destroyed.
extern quintptr Q_CORE_EXPORT qtHookData[];

extern "C" {
// Of the sanitizer's runtime, which declares them in no header.
void AnnotateIgnoreReadsBegin(const char *file, int line);
void AnnotateIgnoreReadsEnd(const char *file, int line);
void AnnotateIgnoreWritesBegin(const char *file, int line);
void AnnotateIgnoreWritesEnd(const char *file, int line);
void AnnotateIgnoreSyncBegin(const char *file, int line);
void AnnotateIgnoreSyncEnd(const char *file, int line);
}

namespace
{

constexpr unsigned s_kind = __tsan_mutex_write_reentrant;

/// Qt's own function of this symbol.
template<typename Function>
Function next(const char *symbol)
{
    void *const function = dlsym(RTLD_NEXT, symbol);
    if (!function)
        qFatal("Qt has no %s", symbol);
    return reinterpret_cast<Function>(function);
}

void *key(const void *object)
{
    return const_cast<void *>(object);
}

/// The one who sends releases, the one who gets it acquires: what came before is seen by what comes after.
bool deliver(void **data)
{
    const auto *const event = static_cast<const QEvent *>(data[1]);
    __tsan_acquire(data[0]);
    __tsan_acquire(data[1]);
    if (event->type() == QEvent::MetaCall)
        __tsan_acquire(key(static_cast<const QAbstractMetaCallEvent *>(event)->sender()));
    return false;
}

/// Destroyed as the last thing before those go on who wait for the thread to end.
class Farewell
{
public:
    explicit Farewell(QObject *thread)
        : m_thread(thread)
    {
    }
    ~Farewell() { __tsan_release(m_thread); }

private:
    Q_DISABLE_COPY(Farewell)
    QObject *m_thread;
};

void send(QObject *sender, int, void **)
{
    static auto *const farewell = new QThreadStorage<Farewell *>;
    __tsan_release(sender);
    // A thread tells that it has started.
    if (sender == QThread::currentThread() && !farewell->hasLocalData())
        farewell->setLocalData(new Farewell(sender));
}

QSignalSpyCallbackSet s_signals = {&send, nullptr, nullptr, nullptr};
void (*s_count[2])(QObject *) = {};

/// What is done in a scope of it orders nothing and is not looked at.
class Unseen
{
public:
    Unseen()
    {
        AnnotateIgnoreSyncBegin(__FILE__, __LINE__);
        AnnotateIgnoreReadsBegin(__FILE__, __LINE__);
        AnnotateIgnoreWritesBegin(__FILE__, __LINE__);
    }
    ~Unseen()
    {
        AnnotateIgnoreWritesEnd(__FILE__, __LINE__);
        AnnotateIgnoreReadsEnd(__FILE__, __LINE__);
        AnnotateIgnoreSyncEnd(__FILE__, __LINE__);
    }

private:
    Q_DISABLE_COPY(Unseen)
};

/// The lock of the count of objects would order all threads that make objects, and hide their races.
template<int index>
void count(QObject *object)
{
    const Unseen unseen;
    s_count[index](object);
}

template<int index>
void hide()
{
    quintptr &hook = qtHookData[3 + index];
    s_count[index] = reinterpret_cast<void (*)(QObject *)>(hook);
    if (hook != 0)
        hook = reinterpret_cast<quintptr>(&count<index>);
}

void install()
{
    static bool installed = false;
    if (std::exchange(installed, true))
        return;
    QInternal::registerCallback(QInternal::EventNotifyCallback, &deliver);
    qt_register_signal_spy_callbacks(&s_signals);
    hide<0>();
    hide<1>();
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(install)

void QMutex::lock() noexcept
{
    static const auto real = next<void (*)(QMutex *)>("_ZN6QMutex4lockEv");
    __tsan_mutex_pre_lock(this, s_kind);
    real(this);
    __tsan_mutex_post_lock(this, s_kind, 0);
}

bool QMutex::tryLock(int timeout) noexcept
{
    static const auto real = next<bool (*)(QMutex *, int)>("_ZN6QMutex7tryLockEi");
    constexpr unsigned attempt = s_kind | __tsan_mutex_try_lock;
    __tsan_mutex_pre_lock(this, attempt);
    const bool locked = real(this, timeout);
    __tsan_mutex_post_lock(this, locked ? attempt : attempt | __tsan_mutex_try_lock_failed, 0);
    return locked;
}

void QMutex::unlock() noexcept
{
    static const auto real = next<void (*)(QMutex *)>("_ZN6QMutex6unlockEv");
    __tsan_mutex_pre_unlock(this, s_kind);
    real(this);
    __tsan_mutex_post_unlock(this, s_kind);
}

bool QWaitCondition::wait(QMutex *mutex, QDeadlineTimer deadline)
{
    static const auto real = next<bool (*)(QWaitCondition *, QMutex *, QDeadlineTimer)>(
        "_ZN14QWaitCondition4waitEP6QMutex14QDeadlineTimer");
    __tsan_mutex_pre_unlock(mutex, s_kind);
    __tsan_mutex_post_unlock(mutex, s_kind);
    const bool woken = real(this, mutex, deadline);
    __tsan_mutex_pre_lock(mutex, s_kind);
    __tsan_mutex_post_lock(mutex, s_kind, 0);
    return woken;
}

bool QWaitCondition::wait(QMutex *mutex, unsigned long time)
{
    return wait(mutex,
                time == ULONG_MAX ? QDeadlineTimer(QDeadlineTimer::Forever)
                                  : QDeadlineTimer(qint64(time)));
}

bool QThread::wait(QDeadlineTimer deadline)
{
    static const auto real =
        next<bool (*)(QThread *, QDeadlineTimer)>("_ZN7QThread4waitE14QDeadlineTimer");
    const bool finished = real(this, deadline);
    if (finished)
        __tsan_acquire(this);
    return finished;
}

bool QThread::wait(unsigned long time)
{
    return wait(time == ULONG_MAX ? QDeadlineTimer(QDeadlineTimer::Forever)
                                  : QDeadlineTimer(qint64(time)));
}

void QCoreApplication::postEvent(QObject *receiver, QEvent *event, int priority)
{
    static const auto real = next<void (*)(QObject *, QEvent *, int)>(
        "_ZN16QCoreApplication9postEventEP7QObjectP6QEventi");
    __tsan_release(event);
    real(receiver, event, priority);
}

bool QMetaObject::invokeMethodImpl(QObject *object, QtPrivate::QSlotObjectBase *slot,
                                   Qt::ConnectionType type, void *result)
{
    static const auto real =
        next<bool (*)(QObject *, QtPrivate::QSlotObjectBase *, Qt::ConnectionType, void *)>(
            "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14Connec"
            "tionTypeEPv");
    __tsan_release(object);
    // Who called last destroys what was called, by a count inside Qt. When that is the thread that posted it, it does
    // so here, and the other one has done with it.
    slot->ref();
    const bool posted = real(object, slot, type, result);
    const Unseen unseen;
    slot->destroyIfLastRef();
    return posted;
}

void QObject::deleteLater()
{
    static const auto real = next<void (*)(QObject *)>("_ZN7QObject11deleteLaterEv");
    __tsan_release(this);
    real(this);
}
