// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scpimessage.h"

#include <cmath>

namespace Panel
{

namespace
{

/// Splits at a mark outside of quotes.
QByteArrayList split(const QByteArray &text, char mark)
{
    QByteArrayList parts;
    char quote = 0;
    int from = 0;
    for (int i = 0; i < text.size(); ++i) {
        const char c = text.at(i);
        if (quote)
            quote = c == quote ? char(0) : quote;
        else if (c == '"' || c == '\'')
            quote = c;
        else if (c == mark) {
            parts << text.mid(from, i - from);
            from = i + 1;
        }
    }
    parts << text.mid(from);
    return parts;
}

QByteArray unquoted(const QByteArray &word)
{
    const QByteArray plain = word.trimmed();
    const bool quoted = plain.size() >= 2 && (plain.startsWith('"') || plain.startsWith('\''))
        && plain.endsWith(plain.at(0));
    return quoted ? plain.mid(1, plain.size() - 2) : plain;
}

/// A node of a pattern against one of a header.
bool nodeMatches(QByteArray node, QByteArray spelled, int &number)
{
    const bool counted = node.endsWith('#');
    if (counted)
        node.chop(1);
    int digits = 0;
    while (digits < spelled.size() && spelled.at(spelled.size() - 1 - digits) >= '0'
           && spelled.at(spelled.size() - 1 - digits) <= '9')
        ++digits;
    const QByteArray suffix = spelled.right(digits);
    spelled.chop(digits);
    QByteArray shortForm;
    for (const char c : node) {
        if (c < 'a' || c > 'z')
            shortForm += c;
    }
    const QByteArray upper = spelled.toUpper();
    if (upper != shortForm && upper != node.toUpper())
        return false;
    if (counted)
        number = digits ? suffix.left(6).toInt() : 1;
    return counted || digits == 0 || suffix == "1";
}

} // namespace

QByteArray scpiNumber(double value)
{
    return std::isnan(value) ? QByteArray("9.91E37") : QByteArray::number(value, 'E', 12);
}

QList<ScpiCommand> parseCommands(const QByteArray &line)
{
    QList<ScpiCommand> commands;
    QByteArray branch;
    const QByteArrayList messages = split(line, ';');
    for (const QByteArray &message : messages) {
        const QByteArray text = message.trimmed();
        if (text.isEmpty())
            continue;
        int end = 0;
        while (end < text.size() && text.at(end) != ' ' && text.at(end) != '\t')
            ++end;
        ScpiCommand command;
        command.header = text.left(end);
        command.query = command.header.endsWith('?');
        if (command.query)
            command.header.chop(1);
        if (command.header.startsWith(':'))
            command.header.remove(0, 1);
        else if (!command.header.startsWith('*'))
            command.header.prepend(branch);
        if (!command.header.startsWith('*'))
            branch = command.header.left(command.header.lastIndexOf(':') + 1);
        const QByteArray rest = text.mid(end).trimmed();
        const QByteArrayList words = rest.isEmpty() ? QByteArrayList() : split(rest, ',');
        for (const QByteArray &word : words)
            command.words << unquoted(word);
        commands << command;
    }
    return commands;
}

bool matches(const QByteArray &header, const char *pattern, int &number)
{
    // Each node in brackets is tried with and without.
    const QByteArray text(pattern);
    const auto open = text.indexOf('[');
    if (open >= 0) {
        const auto close = text.indexOf(']', open);
        const QByteArray without = text.left(open) + text.mid(close + 1);
        const QByteArray with =
            text.left(open) + text.mid(open + 1, close - open - 1) + text.mid(close + 1);
        return matches(header, with.constData(), number)
            || matches(header, without.constData(), number);
    }
    const QByteArrayList nodes = text.split(':');
    const QByteArrayList spelled = header.split(':');
    if (nodes.size() != spelled.size())
        return false;
    for (int i = 0; i < nodes.size(); ++i) {
        if (!nodeMatches(nodes.at(i), spelled.at(i), number))
            return false;
    }
    return true;
}

} // namespace Panel
