// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scpi.h"

#include "linknumbers.h"

#include <QtEndian>

namespace Panel
{

QList<QByteArray> identityFields(const QByteArray &identity)
{
    QList<QByteArray> fields = identity.split(',');
    for (QByteArray &field : fields)
        field = field.trimmed();
    return fields;
}

bool readErrorEntry(const QByteArray &line, int &number, QByteArray &text)
{
    const auto comma = line.indexOf(',');
    bool ok = false;
    number = line.left(comma).trimmed().toInt(&ok);
    const QByteArray rest = comma < 0 ? QByteArray() : line.mid(comma + 1).trimmed();
    ok = ok && rest.size() >= 2 && (rest.startsWith('"') || rest.startsWith('\''));
    text = rest.mid(1, rest.size() - 2);
    return ok;
}

qint64 blockSize(const QByteArray &digits)
{
    constexpr int mostDigits = 18; // of what a qint64 can hold; a head has nine at most
    if (digits.size() > mostDigits)
        return -1;
    qint64 size = digits.isEmpty() ? -1 : 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9')
            return -1;
        size = 10 * size + (digit - '0');
    }
    return size;
}

QVector<double> parseDoubles(const QByteArray &block, bool bigEndian)
{
    QVector<double> values(block.size() / int(sizeof(double)));
    if (values.isEmpty())
        return values; // without data there is nothing to point to
    if (bigEndian)
        qFromBigEndian<quint64>(block.constData(), values.size(), values.data());
    else
        qFromLittleEndian<quint64>(block.constData(), values.size(), values.data());
    return values;
}

QVector<double> parseNumberList(const QByteArray &text)
{
    QVector<double> values;
    const char *at = text.cbegin();
    const char *const end = text.cend();
    const auto skipSpaces = [&at, end] {
        while (at != end && (*at == ' ' || *at == '\t'))
            ++at;
    };
    while (at != end) {
        skipSpaces();
        double value = 0.0;
        const int length = readNumberAt(at, end, value);
        if (length == 0)
            break;
        values.append(value);
        at += length;
        skipSpaces();
        if (at == end || *at != ',')
            break;
        ++at;
    }
    return values;
}

QVector<NamedTrace> parseCatalogue(const QByteArray &text)
{
    QByteArray plain = text.trimmed();
    plain.replace('"', "").replace('\'', "");
    const QList<QByteArray> words = plain.split(',');
    QVector<NamedTrace> traces;
    for (int i = 0; i + 1 < words.size(); i += 2)
        traces.append({words.at(i).trimmed(), words.at(i + 1).trimmed().toUpper()});
    return traces;
}

} // namespace Panel
