// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    What every test starts from: the headers of Qt, short forms of tables, and the base of the
    test classes. */
#pragma once

#include "tables.h"

namespace VnaTest
{

/*! Base of every test class: a warning that nobody expected fails the test function that caused it,
    and so do widgets, parts of plots and other objects that are still there at its end. A class
    with its own init() or cleanup() calls these first and last. */
class TestCase : public QObject
{
    Q_OBJECT

protected:
    /// Lets one warning of exactly this text pass; the test fails if it does not come.
    void expectWarning(const QString &text);

protected Q_SLOTS:
    void init();
    void cleanup();
};

/*! The row of a table that a test walks through in a loop; named when the test fails there.
    For tables of a few values: what is worth selecting by name belongs into a data function. */
class Row
{
public:
    explicit Row(const QString &name)
        : m_name(name)
    {
    }
    ~Row();

private:
    Q_DISABLE_COPY(Row)
    QString m_name;
};

/// Absolute path of a file below tests/data.
QString dataPath(const QString &name);

/// Writes a file anew, and returns its path. A test that cannot do that ends at once.
QString writeFile(const QString &path, const QByteArray &bytes);

} // namespace VnaTest
