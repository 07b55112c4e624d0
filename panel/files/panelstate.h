// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QStringList>

namespace Panel
{

class PanelModel;

/*! The panel's state as a JSON file: language, look, layout, grid, source, files, and of each
    network the part on show, the traces with their scales and the markers; measured data are not
    among it.

    What belongs to a network comes back with that network and no other. A file that is broken, of
    another version, or holds a value that cannot be, is not used at all, and a sentence says so: half
    a state would be a puzzle. What is saved later takes its place; the file itself is kept beside
    it, with ".damaged" behind its name. */
class PanelState
{
public:
    /// Why a file is not used.
    enum Fault {
        NoFault, ///< it is, or there is none
        Unreadable,
        OtherVersion,
        Damaged,
    };

    /// Where the state is kept unless somebody says otherwise.
    static QString defaultPath();

    /// Reads the file; one that does not exist is an empty state.
    explicit PanelState(const QString &path);

    QString path() const { return m_path; }
    Fault fault() const { return m_fault; }
    /// The same as a sentence on the state of the last time; empty when it is used.
    QString note() const;
    /// The code of the saved language, or nothing.
    QString language() const;
    /// The files that were on show or waited behind a simulation; empty for samples.
    QStringList files() const;

    /// Restores dark or light alone: before there are widgets, which would otherwise change.
    void restoreLook() const;
    /// Restores all but language and files, which are needed earlier; the simulated source only if
    /// asked for. What belongs to networks follows where they are measured and not there yet.
    void restore(PanelModel *model, bool withSource = true) const;
    /// Writes the state of the panel, so that a reader finds the old file or the new one, whole;
    /// false if it cannot be written.
    static bool save(const PanelModel &model, const QString &path);

private:
    QString m_path;
    Fault m_fault = NoFault;
    QJsonObject m_saved; ///< empty, or valid
};

} // namespace Panel
