// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <utils/propertywatcher.h>

#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <vnatest.h>

using Utils::PropertyWatcher;

namespace
{

const QString s_name = QStringLiteral("cursorPos");

} // namespace

class tst_PropertyWatcher : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void reportsInitialisationChangeAndRemoval()
    {
        QObject object;
        PropertyWatcher watcher;
        QSignalSpy changed(&watcher, &PropertyWatcher::propertyChanged);
        QSignalSpy initialised(&watcher, &PropertyWatcher::propertyInitialized);
        QVariantList seen;
        watcher.watchProperty(&object, s_name, [&](const QVariant &value) { seen << value; });
        QVERIFY(changed.isEmpty() && seen.isEmpty());

        object.setProperty("cursorPos", 3);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).value<QObject *>(), &object);
        QCOMPARE(changed.at(0).at(1).toString(), s_name);
        QVERIFY(!changed.at(0).at(2).value<QVariant>().isValid());
        QCOMPARE(changed.at(0).at(3).value<QVariant>(), QVariant(3));
        QCOMPARE(initialised.count(), 1);

        object.setProperty("cursorPos", 5);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.at(1).at(2).value<QVariant>(), QVariant(3));

        object.setProperty("cursorPos", QVariant());
        QCOMPARE(changed.count(), 3);
        QVERIFY(!changed.at(2).at(3).value<QVariant>().isValid());
        QCOMPARE(initialised.count(), 1);
        QCOMPARE(seen, QVariantList({3, 5, QVariant()}));

        object.setProperty("other", 1);
        QCOMPARE(changed.count(), 3);
    }

    void anEqualValueOnlyCallsBack()
    {
        QObject object;
        object.setProperty("cursorPos", 2);
        PropertyWatcher watcher;
        QSignalSpy changed(&watcher, &PropertyWatcher::propertyChanged);
        int calls = 0;
        watcher.watchProperty(&object, s_name, [&](const QVariant &) { ++calls; });

        object.setProperty("cursorPos", 2.0); // the type changes, the value does not
        QCOMPARE(calls, 1);
        QVERIFY(changed.isEmpty());

        object.setProperty("cursorPos", qQNaN());
        object.setProperty("cursorPos", qQNaN());
        QCOMPARE(calls, 3);
        QCOMPARE(changed.count(), 1);
    }

    void theFirstWatchOfAPropertyStays()
    {
        QObject object;
        PropertyWatcher watcher;
        int first = 0;
        int second = 0;
        watcher.watchProperty(&object, s_name, [&](const QVariant &) { ++first; });
        watcher.watchProperty(&object, s_name, [&](const QVariant &) { ++second; });
        watcher.watchProperty(nullptr, s_name, [&](const QVariant &) { ++second; });
        object.setProperty("cursorPos", 1);
        QCOMPARE(first, 1);
        QCOMPARE(second, 0);
    }

    void watchesEnd()
    {
        QObject object;
        PropertyWatcher watcher;
        int calls = 0;
        const auto count = [&](const QVariant &) { ++calls; };
        watcher.watchProperty(&object, s_name, count);
        watcher.watchProperty(&object, QStringLiteral("inputText"), count);

        watcher.stopWatching(&object, s_name);
        object.setProperty("cursorPos", 1);
        QCOMPARE(calls, 0);
        object.setProperty("inputText", 1);
        QCOMPARE(calls, 1);

        watcher.stopWatchingObject(&object);
        watcher.stopWatchingObject(nullptr);
        object.setProperty("inputText", 2);
        QCOMPARE(calls, 1);

        // A new watch starts from the value of the moment.
        QSignalSpy initialised(&watcher, &PropertyWatcher::propertyInitialized);
        watcher.watchProperty(&object, s_name, count);
        object.setProperty("cursorPos", 2);
        QCOMPARE(calls, 2);
        QVERIFY(initialised.isEmpty());
    }

    void settingThePropertyInASlotIsReportedInOrder()
    {
        QObject object;
        PropertyWatcher watcher;
        QVector<QPair<int, int>> changes;
        connect(&watcher, &PropertyWatcher::propertyChanged, this,
                [&](QObject *, const QString &, const QVariant &last, const QVariant &now) {
                    changes << qMakePair(last.toInt(), now.toInt());
                    if (now.toInt() > 4)
                        object.setProperty("cursorPos", 4);
                });
        watcher.watchProperty(&object, s_name, {});
        object.setProperty("cursorPos", 9);
        object.setProperty("cursorPos", 9);
        const QVector<QPair<int, int>> expected{{0, 9}, {9, 4}, {4, 9}, {9, 4}};
        QCOMPARE(changes, expected);
    }

    void survivesAnyOrderOfDestruction_data()
    {
        QTest::addColumn<QString>("victim");
        QTest::addColumn<bool>("inCallback");
        for (const char *victim : {"object", "watcher", "watch"}) {
            QTest::addRow("%s in the signal", victim) << QString::fromLatin1(victim) << false;
            QTest::addRow("%s in the callback", victim) << QString::fromLatin1(victim) << true;
        }
    }

    void survivesAnyOrderOfDestruction()
    {
        QFETCH(QString, victim);
        QFETCH(bool, inCallback);
        QPointer<QObject> object = new QObject;
        QPointer<PropertyWatcher> watcher = new PropertyWatcher;
        int calls = 0;
        const auto destroy = [&] {
            if (victim == QLatin1String("object"))
                delete object;
            else if (victim == QLatin1String("watcher"))
                delete watcher;
            else
                watcher->stopWatching(object, s_name);
        };
        watcher->watchProperty(object, s_name, [&](const QVariant &) {
            ++calls;
            if (inCallback)
                destroy();
        });
        if (!inCallback)
            connect(watcher, &PropertyWatcher::propertyChanged, this, destroy);
        object->setProperty("cursorPos", 1);
        QCOMPARE(calls, inCallback ? 1 : 0);
        delete object;
        delete watcher;
    }
};

QTEST_GUILESS_MAIN(tst_PropertyWatcher)
#include "tst_propertywatcher.moc"
