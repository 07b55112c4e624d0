// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

namespace Monkey
{

/// The files that are there to be opened, good and broken, in a folder of their own.
class Files
{
public:
    Files();

    int count() const { return int(m_names.size()); }
    QString folder() const { return m_dir.filePath(QStringLiteral("monkey/files")); }
    QString pictures() const { return m_dir.filePath(QStringLiteral("pictures")); }
    QString path(int index) const;
    /// Writes other contents, removes the file, or brings back what it was.
    void change(int index, int how);
    /// Where the panel's state is kept.
    QString state() const { return m_dir.filePath(QStringLiteral("state.json")); }
    /// Damages the saved state in one of five ways, at a place that is anywhere in it or behind.
    void damageState(int how, int place);

private:
    void add(const char *name, const QByteArray &bytes);

    QTemporaryDir m_dir;
    QStringList m_names;
    QVector<QByteArray> m_contents;
};

} // namespace Monkey
