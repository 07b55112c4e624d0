// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkeyevents.h"

#include <QList>

#include <iterator>

namespace Monkey
{

namespace
{

/// In the order of the species.
const char *const names[] = {
    "tap",         "doubletap", "press",       "move",        "release",
    "touchpress",  "touchmove", "touchsecond", "touchspread", "touchrelease",
    "touchcancel", "wheel",     "key",         "resize",      "hideandshow",
    "show",        "theme",     "language",    "lock",        "load",
    "changefile",  "sweep",     "droppanel",   "restart",     "wait",
};
static_assert(std::size(names) == std::size_t(Species::Wait) + 1);

} // namespace

QByteArray toLine(const Event &event)
{
    QByteArray line = names[int(event.species)];
    for (const int number : {event.a, event.b, event.c, event.d, int(event.behind)})
        line += ' ' + QByteArray::number(number);
    return line + '\n';
}

QVector<Event> readLog(const QByteArray &text)
{
    QVector<Event> events;
    for (const QByteArray &line : text.split('\n')) {
        const QList<QByteArray> words = line.trimmed().split(' ');
        for (std::size_t i = 0; i < std::size(names) && words.size() == 6; ++i) {
            if (words.first() == names[i]) {
                events.append({Species(i), words[1].toInt(), words[2].toInt(), words[3].toInt(),
                               words[4].toInt(), words[5].toInt() != 0});
            }
        }
    }
    return events;
}

} // namespace Monkey
