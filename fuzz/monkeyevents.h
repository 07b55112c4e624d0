// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QVector>

#include <cstdint>

namespace Monkey
{

/// Numbers that follow from a seed alone, on every machine.
class Random
{
public:
    explicit Random(std::uint64_t seed)
        : m_state(seed)
    {
    }
    /// Below \a end, which is above 0.
    int below(int end) { return int(next() % std::uint64_t(end)); }
    int between(int low, int high) { return low + below(high - low + 1); }
    bool oneIn(int count) { return below(count) == 0; }

private:
    std::uint64_t next()
    {
        std::uint64_t z = (m_state += 0x9e3779b97f4a7c15u);
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
        return z ^ (z >> 31);
    }
    std::uint64_t m_state;
};

/// What can happen to a panel.
enum class Species {
    Tap, ///< x, y, right button
    DoubleTap, ///< x, y
    Press, ///< x, y; the button stays down
    Move, ///< x, y
    Release, ///< x, y
    TouchPress, ///< x, y
    TouchMove, ///< x, y
    TouchSecond, ///< x, y: a second finger beside the first
    TouchSpread, ///< x, y, x, y: both move
    TouchRelease, ///< all fingers
    TouchCancel,
    Wheel, ///< x, y, notches
    Key, ///< key, modifiers
    Resize, ///< width, height
    HideAndShow, ///< 0: both, 1: only hide, 2: minimise
    Show,
    Theme,
    Language, ///< which
    Lock,
    Load, ///< which files, as bits
    ChangeFile, ///< which, what becomes of it
    Sweep, ///< which device, points
    DropPanel, ///< when, whether the model goes too
    Restart, ///< what becomes of the saved state in between, where in it
    Wait, ///< milliseconds
};

struct Event {
    Species species = Species::Wait;
    int a = 0;
    int b = 0;
    int c = 0;
    int d = 0;
    /// To the panel's own window, also where a pop-up or a dialog is in front of it.
    bool behind = false;
};

/// One line of a log, with its end.
QByteArray toLine(const Event &event);
/// The events of a log; lines that are none are left out.
QVector<Event> readLog(const QByteArray &text);

} // namespace Monkey
