// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "monkeyfiles.h"

#include "monkeyevents.h"

#include <panel/files/samples.h>

#include <QDir>
#include <QFile>

namespace Monkey
{

namespace
{

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
}

} // namespace

Files::Files()
{
    QDir().mkpath(folder());
    const QDir samples(Panel::sampleFolder());
    QByteArray whole;
    for (const QString &name : samples.entryList(QDir::Files, QDir::Name)) {
        whole = readFile(samples.filePath(name));
        add(qPrintable(name), whole);
    }
    const QByteArray onePort = readFile(Panel::startSample());
    add("cut.s2p", whole.left(int(whole.size()) / 2));
    add("empty.s1p", {});
    add("words.s1p", "# GHz S MA R 50\none two three\n");
    add("nan.s1p", "# GHz S RI R 50\n1 nan inf\n2 0 0\n");
    add("single.s1p", "# GHz S RI R 50\n1 0.5 0.5\n");
    add("backwards.s1p", "# GHz S RI R 50\n3 0 0\n2 0 0\n1 0 0\n");
    add("huge.s1p", "# GHz S RI R 50\n1 1e300 -1e300\n2 -1e300 1e300\n3 0 1e-300\n");
    add("still.s1p", "# Hz S RI R 50\n0 0 0\n1 0 0\n2 0 0\n");
    QByteArray noise = onePort;
    Random random(7);
    for (int i = 0; i < 200; ++i)
        noise[random.below(int(noise.size()))] = char(random.below(256));
    add("noise.s1p", noise);
    QByteArray longFile = "# MHz S RI R 50\n";
    for (int i = 1; i <= 5000; ++i)
        longFile += QByteArray::number(i) + (i % 7 ? " 0.1 0.2\n" : " -0.7 0.1\n");
    add("long.s1p", longFile);
    m_names << QStringLiteral("missing.s1p") << QStringLiteral("folder.s2p");
    m_contents << QByteArray() << QByteArray();
    QDir().mkpath(folder() + QStringLiteral("/folder.s2p"));
}

void Files::add(const char *name, const QByteArray &bytes)
{
    m_names << QString::fromLatin1(name);
    m_contents << bytes;
    writeFile(path(int(m_names.size()) - 1), bytes);
}

QString Files::path(int index) const
{
    return QDir(folder()).filePath(m_names.at(index));
}

void Files::change(int index, int how)
{
    if (m_contents.at(index).isEmpty())
        return;
    if (how == 0)
        QFile::remove(path(index));
    else
        writeFile(path(index), m_contents.at(how == 1 ? index : how % count()));
}

void Files::damageState(int how, int place)
{
    QByteArray bytes = readFile(state());
    const int at = bytes.isEmpty() ? 0 : place % int(bytes.size());
    switch (how) {
    case 1:
        bytes.truncate(at);
        break;
    case 2:
        bytes.insert(at, ", \"scale\": null, \"networks\": [{}], ");
        break;
    case 3:
        bytes.remove(at, 1 + place % 40);
        break;
    case 4:
        bytes.fill(char(place), int(bytes.size()));
        break;
    default:
        if (!bytes.isEmpty())
            bytes[at] = char(place);
    }
    writeFile(state(), bytes);
}

} // namespace Monkey
