// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QList>
#include <QObject>
#include <QVariant>

#include <functional>
#include <memory>

namespace Utils
{

/*! Reports changes of dynamic properties: those set with QObject::setProperty() under a name that
    the class does not declare. Not for declared properties, which have notify signals of their
    own.

    \code
    auto *watcher = new Utils::PropertyWatcher(this);
    watcher->watchProperty(editor, QStringLiteral("cursorPos"), [this](const QVariant &position) {
        keepOutOfUnit(position.toInt());
    });
    editor->setProperty("cursorPos", 4); // calls the function above
    \endcode

    The watcher consumes the change events of watched properties, so one property of one object is
    for one watcher. It must live in the thread of the objects that it watches. Objects, and the
    watcher itself, may be destroyed at any time, also by a slot or callback of this class. */
class VNAWIDGETS_EXPORT PropertyWatcher : public QObject
{
    Q_OBJECT

public:
    /// Watches nothing at first.
    explicit PropertyWatcher(QObject *parent = nullptr);
    ~PropertyWatcher() override;

    /// Starts a watch; \a callback, which may be empty, gets the value at every set, also of an
    /// equal value. Ignores a null object, and a property that is already watched: the first
    /// callback stays.
    void watchProperty(QObject *object, const QString &propertyName,
                       const std::function<void(const QVariant &)> &callback);
    /// Ends one watch; unknown ones are ignored.
    void stopWatching(QObject *object, const QString &propertyName);
    /// Ends all watches of an object, as its destruction does.
    void stopWatchingObject(QObject *object);

Q_SIGNALS:
    /// A watched property differs from what it was. An invalid value stands for "not set".
    void propertyChanged(QObject *object, const QString &propertyName, const QVariant &oldValue,
                         const QVariant &newValue);
    /// Follows propertyChanged() when the property was not set before.
    void propertyInitialized(QObject *object, const QString &propertyName,
                             const QVariant &initialValue);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    struct Entry;

    bool checkProperties(QObject *object, const QString &propertyName);
    std::shared_ptr<Entry> find(QObject *object, const QString &propertyName) const;
    void removeAt(int index);

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Utils
