// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QStandardPaths>

/// A double of an instrument, in a process of its own; double.py says what it can.
class Double
{
public:
    static bool isPossible()
    {
        return !QStandardPaths::findExecutable(QStringLiteral("python3")).isEmpty();
    }

    /// The kind and its options, as on a command line.
    explicit Double(const QString &options)
        : m_kind(options.section(QLatin1Char(' '), 0, 0))
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral("python3"),
                        QStringList{QStringLiteral(VNA_DOUBLE)} + options.split(QLatin1Char(' ')));
        while (m_place.isEmpty() && m_process.waitForReadyRead(10000))
            m_place =
                QString::fromLatin1(m_process.readLine()).section(QLatin1Char(' '), 1).trimmed();
    }
    ~Double()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    QString address() const
    {
        const QString scheme = m_kind.contains(QLatin1String("shell")) ? QStringLiteral("nanovna:")
            : m_kind.contains(QLatin1String("program"))                ? QStringLiteral("librevna:")
                                                                       : QStringLiteral("scpi:");
        return scheme + m_place;
    }

private:
    QProcess m_process;
    QString m_kind;
    QString m_place;
};
