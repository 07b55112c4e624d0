// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "themesettings_p.h"

#include <utils/qtcompat_p.h>
#include <utils/smallfile_p.h>

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryFile>

namespace Controls
{

namespace
{

/// QSettings takes a text with commas outside quotes for a list: this is the text as it was
/// written.
QString settingsText(const QSettings &settings, const QString &key)
{
    return settings.value(key).toStringList().join(QLatin1Char(','));
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

void readGroup(const QSettings &settings, const QString &group, ThemeSettings &theme)
{
    for (const char *name : {"gridColor", "borderColor", "backgroundColor"}) {
        const QString key = group + QLatin1String(name);
        if (settings.contains(key))
            theme.colors.insert(QLatin1String(name), colorFromName(settingsText(settings, key)));
    }
    theme.tracePalette =
        colorsFromList(settingsText(settings, group + QLatin1String("tracePalette")));
    theme.memoryTracePalette =
        colorsFromList(settingsText(settings, group + QLatin1String("memoryTracePalette")));
}

/*! The text without what QSettings takes for a stored object, "@Variant(...)" for one: it would
    decode every value of the group, whoever wrote it, believe the lengths that stand in there and
    ask for so much memory. No colour has an "@", be it written as a numeric escape. */
QByteArray withoutObjects(QByteArray text)
{
    text.replace('@', '?');
    for (const char digit : {'x', '0', '1', '2', '3', '4', '5', '6', '7'})
        text.replace(QByteArray("\\") + digit, QByteArray("?") + digit);
    return text;
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

void readThemeSettings(const QString &path, ThemeSettings &dark, ThemeSettings &light)
{
    QByteArray text;
    if (!Utils::readSmallFile(path, largestSettingsFile, text))
        return;

    // Read from a copy: the file may be exchanged for another one meanwhile. Where no copy can be
    // made, only what is harmless as it stands is read.
    QString readable = path;
    QTemporaryFile copy;
    const QByteArray harmless = withoutObjects(text);
    if (copy.open() && copy.write(harmless) == harmless.size() && copy.flush())
        readable = copy.fileName();
    else if (harmless != text)
        return;
    QSettings settings(readable, QSettings::IniFormat);
    QtCompat::setUtf8(settings);
    readGroup(settings, QStringLiteral("ThemeColors/Dark/"), dark);
    readGroup(settings, QStringLiteral("ThemeColors/Light/"), light);
}

} // namespace Controls
