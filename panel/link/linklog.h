// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QFile>

namespace Panel
{

/*! What goes over a cable, written to a file for people: a line each for commands (">"), replies
    ("<") and troubles ("!"), with the seconds since the start. Long and binary replies are cut; a
    log that has grown to its limit ends. */
class LinkLog
{
public:
    static constexpr qint64 largestFile = 256 << 20;

    /// Begins a new file. False if it cannot be written.
    bool open(const QString &path);
    QString path() const { return m_file.fileName(); }

    void sent(const QByteArray &bytes) { write('>', bytes); }
    void received(const QByteArray &bytes) { write('<', bytes); }
    void trouble(const QString &sentence) { write('!', sentence.toUtf8(), true); }

private:
    void write(char mark, const QByteArray &bytes, bool whole = false);

    QFile m_file;
    QElapsedTimer m_clock;
};

} // namespace Panel
