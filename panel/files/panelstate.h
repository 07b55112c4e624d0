// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

class QSettings;

namespace Panel
{

class PanelController;
class PanelModel;

/*! Keeps the panel's state from one start to the next in an INI file: language, look, layout, grid,
    formats, files, traces and markers; measured data are not among it.

    A file that is broken, of another version, or holds a value that cannot be, is not used at all,
    and a sentence says so: half a state would be a puzzle. What is saved later takes its
    place; the file itself is kept beside it, with ".damaged" behind its name. */
class PanelState
{
public:
    /// Where the state is kept unless somebody says otherwise.
    static QString usualPath();

    /// Reads the file; one that does not exist is an empty state.
    explicit PanelState(const QString &path);

    /// Why the file was not used; empty when it was, or when there is none.
    QString note() const { return m_note; }
    /// The code of the saved language, or nothing.
    QString language() const { return m_language; }
    /// The files that were on show; empty for samples and simulated devices too.
    QStringList files() const { return m_files; }

    /// Restores all but language and files, which are needed earlier. Traces and markers are
    /// restored when the panel has the same number of traces as then.
    void restore(PanelModel *model, PanelController *controller) const;
    /// Writes the state of the panel; false if the file cannot be written.
    bool save(const PanelModel &model, const PanelController &controller,
              const QString &language) const;

private:
    void refuse(const QString &note);
    void restoreTraces(const QSettings &settings, PanelModel *model) const;
    bool isValid(QSettings &settings) const;

    QString m_path;
    QString m_note;
    QString m_language;
    QStringList m_files;
    bool m_usable = false;
};

} // namespace Panel
