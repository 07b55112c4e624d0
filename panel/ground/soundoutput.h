// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVector>

#include <functional>
#include <memory>

namespace Panel
{

/// Where samples are heard: two channels of 16 bits, left before right.
class SoundOutput
{
public:
    /// Frames per second.
    static constexpr int rate = 44100;

    SoundOutput() = default;
    virtual ~SoundOutput() = default;

    /// In place of what is still heard.
    virtual void play(const QVector<qint16> &samples) = 0;
    virtual void stop() = 0;
    virtual bool isPlaying() const = 0;

private:
    Q_DISABLE_COPY(SoundOutput)
};

using SoundOutputMaker = std::function<std::unique_ptr<SoundOutput>()>;

/// The computer's own; null where it has none, or where the module "vnapanel-sound" does not lie
/// beside the program, because it was built without Qt Multimedia.
std::unique_ptr<SoundOutput> makeSoundOutput();

} // namespace Panel
