// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <utils/propertywatcher.h>

#include <QDynamicPropertyChangeEvent>
#include <QPointer>

#include <cmath>

namespace Utils
{

/// One watch. Shared, because a slot may end the watch that is being reported.
struct PropertyWatcher::Entry {
    QObject *object = nullptr; ///< null once the watch has ended
    QString propertyName;
    QVariant lastValue;
    std::function<void(const QVariant &)> callback;
};

/// The watches, in the order in which they were added.
struct PropertyWatcher::Private {
    QList<std::shared_ptr<Entry>> entries;
};

namespace
{

bool isNaN(const QVariant &value)
{
    return value.userType() == QMetaType::Double && std::isnan(value.toDouble());
}

/// Equality by meaning: not-a-number has not changed when it is set again.
bool sameValue(const QVariant &a, const QVariant &b)
{
    return a == b || (isNaN(a) && isNaN(b));
}

} // namespace

PropertyWatcher::PropertyWatcher(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
}

PropertyWatcher::~PropertyWatcher()
{
    while (!d->entries.isEmpty())
        stopWatchingObject(d->entries.constLast()->object);
}

void PropertyWatcher::watchProperty(QObject *object, const QString &propertyName,
                                    const std::function<void(const QVariant &)> &callback)
{
    if (!object || find(object, propertyName))
        return;
    d->entries << std::make_shared<Entry>(
        Entry{object, propertyName, object->property(propertyName.toUtf8().constData()), callback});
    object->installEventFilter(this);
    connect(object, &QObject::destroyed, this, &PropertyWatcher::stopWatchingObject,
            Qt::UniqueConnection);
}

void PropertyWatcher::stopWatching(QObject *object, const QString &propertyName)
{
    for (int i = int(d->entries.size()) - 1; i >= 0; --i) {
        const Entry &entry = *d->entries.at(i);
        if (entry.object == object && entry.propertyName == propertyName) {
            removeAt(i);
            return;
        }
    }
}

void PropertyWatcher::stopWatchingObject(QObject *object)
{
    bool watched = false;
    for (int i = int(d->entries.size()) - 1; i >= 0; --i) {
        if (d->entries.at(i)->object == object) {
            removeAt(i);
            watched = true;
        }
    }
    if (watched)
        object->removeEventFilter(this);
}

bool PropertyWatcher::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::DynamicPropertyChange) {
        const auto *change = static_cast<QDynamicPropertyChangeEvent *>(event);
        if (checkProperties(object, QString::fromUtf8(change->propertyName())))
            return true;
    }
    return QObject::eventFilter(object, event);
}

bool PropertyWatcher::checkProperties(QObject *object, const QString &propertyName)
{
    const std::shared_ptr<Entry> entry = find(object, propertyName);
    if (!entry)
        return false;

    const QVariant current = object->property(propertyName.toUtf8().constData());
    const QVariant last = entry->lastValue;
    // Stored before anybody hears of it: a slot that sets the property again starts from here.
    entry->lastValue = current;

    // Ending the watch clears entry->object, whether a slot did it or the end of either object did.
    if (!sameValue(last, current)) {
        Q_EMIT propertyChanged(object, propertyName, last, current);
        if (entry->object && !last.isValid())
            Q_EMIT propertyInitialized(object, propertyName, current);
    }
    if (entry->object && entry->callback) {
        const auto callback = entry->callback;
        callback(current);
    }
    return true;
}

std::shared_ptr<PropertyWatcher::Entry> PropertyWatcher::find(QObject *object,
                                                              const QString &propertyName) const
{
    for (const std::shared_ptr<Entry> &entry : d->entries) {
        if (entry->object == object && entry->propertyName == propertyName)
            return entry;
    }
    return nullptr;
}

void PropertyWatcher::removeAt(int index)
{
    const std::shared_ptr<Entry> entry = d->entries.takeAt(index);
    entry->object = nullptr;
    entry->callback = nullptr;
}

} // namespace Utils
