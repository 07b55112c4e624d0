// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "census.h"

#include <QMutex>
#include <QObject>
#include <QSet>
#include <QWidget>

/// Qt's table of hooks for tools that watch a process; entries 3 and 4 are called for every object
/// that is made and destroyed, in Qt 5 and Qt 6.
extern quintptr Q_CORE_EXPORT qtHookData[];

namespace
{

struct Living {
    QMutex mutex;
    QSet<QObject *> objects;
};

/// Never destroyed, since objects outlive it otherwise.
Living &living()
{
    static auto *const all = new Living;
    return *all;
}

void add(QObject *object)
{
    const QMutexLocker lock(&living().mutex);
    living().objects.insert(object);
}

void remove(QObject *object)
{
    const QMutexLocker lock(&living().mutex);
    living().objects.remove(object);
}

const bool s_installed = [] {
    qtHookData[3] = reinterpret_cast<quintptr>(&add);
    qtHookData[4] = reinterpret_cast<quintptr>(&remove);
    return true;
}();

bool isCounted(const QObject *object)
{
    // The single instances of the library, and what Qt makes once when it is first wanted.
    static const QStringList lasting = {
        QStringLiteral("Controls::ThemeManager"), QStringLiteral("Utils::GUIContext"),
        QStringLiteral("Utils::Translator"), QStringLiteral("QTipLabel")};
    // Nor what stands for a screen, which Qt makes when something first asks for it.
    if (object->isWidgetType() && static_cast<const QWidget *>(object)->windowType() == Qt::Desktop)
        return false;
    const QString name = QString::fromLatin1(object->metaObject()->className());
    return !lasting.contains(name)
        && (!name.startsWith(QLatin1Char('Q')) || object->inherits("QWidget")
            || object->inherits("QCPLayerable") || object->inherits("QCPLayer"));
}

QMap<QString, int> count()
{
    Q_ASSERT(s_installed);
    QMap<QString, int> counts;
    const QMutexLocker lock(&living().mutex);
    for (const QObject *const object : qAsConst(living().objects)) {
        if (isCounted(object))
            ++counts[QString::fromLatin1(object->metaObject()->className())];
    }
    return counts;
}

} // namespace

Fuzz::Census::Census()
    : m_counts(count())
{
}

QStringList Fuzz::Census::grown() const
{
    QStringList grown;
    const QMap<QString, int> now = count();
    for (auto it = now.constBegin(); it != now.constEnd(); ++it) {
        if (it.value() > m_counts.value(it.key()))
            grown << QStringLiteral("%1 (%2 more)")
                         .arg(it.key(), QString::number(it.value() - m_counts.value(it.key())));
    }
    return grown;
}

int Fuzz::Census::allObjects()
{
    const QMutexLocker lock(&living().mutex);
    return int(living().objects.size());
}
