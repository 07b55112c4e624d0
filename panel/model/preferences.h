// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

namespace Panel
{

/// What is set once and then left alone, whatever the panel shows.
class Preferences : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The code of the language that the user wants from the next start on; empty for the present
    /// one.
    QString language() const { return m_language; }
    /// Where pictures and data go, and where the last ones went; empty for the default folder.
    QString exportFolder() const { return m_exportFolder; }

    /// Addresses of instruments that were linked before, the last one first.
    QStringList instruments() const { return m_instruments; }

    /// Black and white, and a dash pattern for each trace.
    bool highContrast() const { return m_highContrast; }

    /// A dash pattern for each trace, beside its colour.
    bool traceDashes() const { return m_traceDashes; }

    /// Whether points are heard along a walk and under the pointer.
    bool soundFollows() const { return m_soundFollows; }

    void setLanguage(const QString &code) { set(m_language, code); }
    void setExportFolder(const QString &folder) { set(m_exportFolder, folder); }

    void setHighContrast(bool on) { set(m_highContrast, on); }
    void setTraceDashes(bool on) { set(m_traceDashes, on); }
    void setSoundFollows(bool on) { set(m_soundFollows, on); }
    void setInstruments(const QStringList &addresses) { set(m_instruments, addresses); }

Q_SIGNALS:
    void changed();

private:
    template<typename Value>
    void set(Value &member, const Value &value)
    {
        if (value == member)
            return;
        member = value;
        Q_EMIT changed();
    }

    QString m_language;
    QString m_exportFolder;
    QStringList m_instruments;
    bool m_highContrast = false;
    bool m_traceDashes = false;
    bool m_soundFollows = false;
};

} // namespace Panel
