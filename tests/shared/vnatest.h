// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

namespace VnaTest
{

/*! Base of every test class: a warning that nobody expected fails the test function that caused it.
    A class with its own init() or cleanup() calls these first and last. */
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

/// Absolute path of a file below tests/data.
QString dataPath(const QString &name);

} // namespace VnaTest
