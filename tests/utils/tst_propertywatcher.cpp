// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <utils/propertywatcher.h>

#include <functional>

#include <vnatest.h>

using namespace VnaTest;
using Utils::PropertyWatcher;

namespace
{

const QString s_name = "cursorPos"_s;

QString text(const QVariant &value)
{
    return value.isValid() ? value.toString() : "none"_s;
}

/// A watcher of one property of one object, and what it told in order.
struct Watched {
    Watched()
    {
        QObject::connect(&watcher, &PropertyWatcher::propertyChanged, &object,
                         [this](QObject *of, const QString &name, auto last, auto now) {
                             if (of == &object && name == s_name)
                                 log << text(last) + ">"_s + text(now);
                         });
        QObject::connect(&watcher, &PropertyWatcher::propertyInitialized, &object,
                         [this](QObject *of, const QString &name, const QVariant &value) {
                             if (of == &object && name == s_name)
                                 log << "init "_s + text(value);
                         });
    }
    void watch(const QString &name = s_name, const QString &note = "call "_s)
    {
        watcher.watchProperty(&object, name,
                              [this, note](const QVariant &value) { log << note + text(value); });
    }
    /// What setting the property makes it tell.
    QString set(const QVariant &value, const char *name = "cursorPos")
    {
        log.clear();
        object.setProperty(name, value);
        return log.join(", "_s);
    }

    QObject object;
    PropertyWatcher watcher;
    QStringList log;
};

} // namespace

class tst_PropertyWatcher : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tellsEverySetInOrder()
    {
        Watched watched;
        watched.watch();
        watched.watch(s_name, "second "_s); // the first one stays
        watched.watcher.watchProperty(nullptr, s_name, {});
        QVERIFY(watched.log.isEmpty());
        QCOMPARE(watched.set(3), "none>3, init 3, call 3"_s);
        QCOMPARE(watched.set(5), "3>5, call 5"_s);
        QCOMPARE(watched.set(5.0), "call 5"_s); // the type changes, the value does not
        QCOMPARE(watched.set(qQNaN()), "5>nan, call nan"_s);
        QCOMPARE(watched.set(qQNaN()), "call nan"_s);
        QCOMPARE(watched.set(QVariant()), "nan>none, call none"_s);
        QCOMPARE(watched.set(1, "other"), QString());
    }

    void watchesEnd()
    {
        Watched watched;
        watched.watch();
        watched.watch("inputText"_s);
        QObject other; // of the same name, watched for itself
        int others = 0;
        watched.watcher.watchProperty(&other, s_name, [&others](const QVariant &) { ++others; });
        watched.watcher.stopWatching(&other, "inputText"_s);
        QCOMPARE(watched.set(0), "none>0, init 0, call 0"_s);
        watched.watcher.stopWatching(&watched.object, s_name);
        QCOMPARE(watched.set(1), QString());
        QCOMPARE(watched.set(1, "inputText"), "call 1"_s);
        watched.watcher.stopWatchingObject(&watched.object);
        watched.watcher.stopWatchingObject(nullptr);
        QCOMPARE(watched.set(2, "inputText"), QString());
        watched.watch(); // starts from the value of the moment
        QCOMPARE(watched.set(2), "1>2, call 2"_s);
        QCOMPARE(others, 0);
        other.setProperty("cursorPos", 7);
        QCOMPARE(others, 1);
    }

    void settingThePropertyInASlotIsReportedInOrder()
    {
        Watched watched;
        connect(&watched.watcher, &PropertyWatcher::propertyChanged, this, [&] {
            if (watched.object.property("cursorPos").toInt() > 4)
                watched.object.setProperty("cursorPos", 4);
        });
        watched.watcher.watchProperty(&watched.object, s_name, {});
        QCOMPARE(watched.set(9), "none>9, 9>4, init 9"_s);
        QCOMPARE(watched.set(9), "4>9, 9>4"_s);
    }

    void survivesAnyOrderOfDestruction()
    {
        QPointer<QObject> object;
        QPointer<PropertyWatcher> watcher;
        const std::function<void()> ends[] = {[&] { delete object; }, [&] { delete watcher; },
                                              [&] { watcher->stopWatching(object, s_name); }};
        for (const auto &end : ends) {
            for (const bool inCallback : {false, true}) {
                object = new QObject;
                watcher = new PropertyWatcher;
                int calls = 0;
                watcher->watchProperty(object, s_name, [&](const QVariant &) {
                    ++calls;
                    if (inCallback)
                        end();
                });
                if (!inCallback)
                    connect(watcher, &PropertyWatcher::propertyChanged, this, end);
                object->setProperty("cursorPos", 1);
                QCOMPARE(calls, inCallback ? 1 : 0);
                delete object;
                delete watcher;
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_PropertyWatcher)
#include "tst_propertywatcher.moc"
