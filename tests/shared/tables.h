// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtTest>
#include <QtWidgets>

#include <type_traits>

/*! Short forms for tables of test data. A row takes UTF-8 literals as they are:
    \code
    VnaTest::columns<QString, double>("text", "value");
    VnaTest::row("micro", "4.7µs", 4.7e-6);
    \endcode */
namespace VnaTest
{

inline QString operator""_s(const char *text, std::size_t length)
{
    return QString::fromUtf8(text, int(length));
}

/// Declares the columns of a table: a name for each of the types.
template<typename... Types, typename... Names>
void columns(Names... names)
{
    (QTest::addColumn<Types>(names), ...);
}

/// Adds a row of one value for each column. Text is UTF-8, and an enumerator an int.
template<typename... Values>
void row(const char *name, const Values &...values)
{
    QTestData &data = QTest::newRow(name);
    const auto add = [&data](const auto &value) {
        if constexpr (std::is_enum_v<std::decay_t<decltype(value)>>)
            data << int(value);
        else
            data << value;
    };
    (add(values), ...);
}

/// Writes each emission of a signal into a log: its name, and the values that it tells.
template<typename Sender, typename Class, typename... Values>
void note(QStringList &log, const char *name, const Sender *sender,
          void (Class::*signal)(Values...))
{
    QObject::connect(sender, signal, sender, [&log, name](const std::decay_t<Values> &...values) {
        QString line = QString::fromUtf8(name);
        (line.append(QLatin1Char(' ') + QVariant::fromValue(values).toString()), ...);
        log << line;
    });
}

} // namespace VnaTest
