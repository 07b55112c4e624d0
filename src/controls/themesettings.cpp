// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "themesettings_p.h"

#include <base/smallfile_p.h>

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QVariant>

namespace Controls
{

namespace
{

using Texts = QHash<QString, QString>;

/// Takes the next line off \a text: it ends at a line break or a semicolon outside quotes, and the
/// semicolon begins a line of its own, a comment.
QByteArray takeLine(const QByteArray &text, int &at)
{
    const int begin = at;
    bool isQuoted = false;
    for (; at < text.size(); ++at) {
        const char c = text.at(at);
        if (c == '"')
            isQuoted = !isQuoted;
        else if (c == '\\')
            ++at; // what follows means nothing here
        else if (!isQuoted && (c == '\n' || c == '\r' || (c == ';' && at > begin)))
            break;
    }
    const int end = qMin(at, int(text.size()));
    if (end < text.size() && text.at(end) != ';')
        ++at;
    return text.mid(begin, end - begin).trimmed();
}

/// A name in the group of another is written with a stroke of either kind.
QString keyName(const QByteArray &text)
{
    return QString::fromUtf8(text.trimmed()).replace(QLatin1Char('\\'), QLatin1Char('/'));
}

/*! The texts of an INI file by "group/key", without quotes. Colours are all that is asked for, so
    texts are taken as they stand: stored objects and escapes, which QSettings would decode and
    believe, name no colour. Read from bytes at hand, because the file may be exchanged for another
    one meanwhile. */
Texts readIni(const QByteArray &text)
{
    Texts texts;
    QString group;
    int at = text.startsWith("\xef\xbb\xbf") ? 3 : 0;
    while (at < text.size()) {
        const QByteArray line = takeLine(text, at);
        const auto equals = line.indexOf('=');
        if (line.startsWith('[') && line.contains(']')) {
            group = keyName(line.mid(1, line.indexOf(']') - 1)) + QLatin1Char('/');
            if (group == QLatin1String("General/"))
                group.clear();
        } else if (equals > 0 && !line.startsWith(';')) {
            QString value = QString::fromUtf8(line.mid(equals + 1));
            texts.insert(group + keyName(line.left(equals)),
                         value.remove(QLatin1Char('"')).trimmed());
        }
    }
    return texts;
}

/// The colour of that name, invalid (and without a warning) when there is none.
QColor colorFromName(const QString &name)
{
    return QColor::isValidColor(name) ? QColor(name) : QColor();
}

QVector<QColor> colorsFromList(const QString &text)
{
    QVector<QColor> colors;
    const QStringList names = text.split(QLatin1Char(','));
    for (const QString &name : names) {
        const QColor color = colorFromName(name.trimmed());
        if (color.isValid())
            colors << color;
    }
    return colors;
}

void readGroup(const Texts &texts, const QString &group, ReadColors which, ThemeSettings &theme)
{
    static const QStringList diagramColors{QStringLiteral("gridColor"),
                                           QStringLiteral("borderColor"),
                                           QStringLiteral("backgroundColor")};
    for (auto text = texts.constBegin(); text != texts.constEnd(); ++text) {
        if (!text.key().startsWith(group))
            continue;
        const QString name = text.key().mid(group.size());
        const QColor color = colorFromName(*text);
        const bool wanted = which == AllColors
            ? name.endsWith(QLatin1String("Color")) && color.isValid()
            : diagramColors.contains(name);
        if (wanted)
            theme.colors.insert(name, color);
    }
    theme.tracePalette = colorsFromList(texts.value(group + QLatin1String("tracePalette")));
    theme.memoryTracePalette =
        colorsFromList(texts.value(group + QLatin1String("memoryTracePalette")));
}

} // namespace

QString themeSettingsPath()
{
    const QCoreApplication *application = QCoreApplication::instance();
    const QString named =
        application ? application->property("vnaSettingsPath").toString() : QString();
    if (!named.isEmpty())
        return QDir::cleanPath(named);
    const QDir base(QCoreApplication::applicationDirPath());
    return QDir::cleanPath(base.absoluteFilePath(QStringLiteral("../configuration/settings.ini")));
}

void readThemeSettings(const QString &path, ThemeSettings &dark, ThemeSettings &light,
                       ReadColors which)
{
    QByteArray text;
    if (!Utils::readSmallFile(path, largestSettingsFile, text))
        return;

    const Texts texts = readIni(text);
    readGroup(texts, QStringLiteral("ThemeColors/Dark/"), which, dark);
    readGroup(texts, QStringLiteral("ThemeColors/Light/"), which, light);
}

} // namespace Controls
