// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QVector>

#include <functional>
#include <utility>
#include <vector>

/// A moment at which an object calls its host: \a happen makes it, \a listen waits for it.
struct Occasion {
    const char *name;
    std::function<void()> happen;
    std::function<void(const std::function<void()> &)> listen;
    bool onlyLater = false; ///< the toolkit itself is in the middle of something
};

/// Objects that know each other, each in the hands of the host or of one of the others.
struct Scene {
    std::vector<QPointer<QObject>> parts;
    std::vector<Occasion> occasions;
    std::function<void()> use; ///< does something with each part that is left

    /// The part of that number as what it is, and null as soon as its own destructor is through.
    template<typename T>
    T *part(std::size_t i) const
    {
        return qobject_cast<T *>(parts[i].data());
    }
    /// An occasion that is a signal of part \a i.
    template<typename T, typename... Values>
    void signal(const char *name, std::size_t i, void (T::*told)(Values...),
                const std::function<void()> &happen)
    {
        occasions.push_back({name, happen, [this, i, told](const std::function<void()> &slot) {
                                 QObject::connect(part<T>(i), told, slot);
                             }});
    }
};

/// Makes a scene in place, since what it holds refers to it.
using MakeScene = void (*)(Scene &scene);
/// All of them, by name.
QVector<std::pair<const char *, MakeScene>> teardownScenes();
