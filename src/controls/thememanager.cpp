// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/thememanager.h>

#include "themesettings_p.h"

#include <platform/guicontext.h>
#include <platform/stylehelper.h>
#include <platform/translator.h>

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPixmap>

namespace Controls
{

namespace
{

struct NamedColor {
    const char *key;
    QColor dark;
    QColor light;
};

QString resource(const char *name)
{
    return QStringLiteral(":/image/resource/") + QLatin1String(name);
}

QVector<QColor> paletteOf(std::initializer_list<const char *> names)
{
    QVector<QColor> colors;
    for (const char *name : names)
        colors << QColor(QLatin1String(name));
    return colors;
}

} // namespace

ThemeManager *ThemeManager::m_instance = nullptr;

ThemeManager *ThemeManager::instance()
{
    if (!m_instance)
        m_instance = new ThemeManager;
    return m_instance;
}

ThemeManager::ThemeManager()
{
    initializeColors();
}

QColor ThemeManager::getColor(const QString &key) const
{
    return (m_theme == Dark ? m_darkColors : m_lightColors).value(key);
}

QColor ThemeManager::backgroundColor() const
{
    return getColor(QStringLiteral("backgroundColor"));
}

QColor ThemeManager::borderColor() const
{
    return getColor(QStringLiteral("borderColor"));
}

QColor ThemeManager::gridColor() const
{
    return getColor(QStringLiteral("gridColor"));
}

QColor ThemeManager::highlightColor() const
{
    return getColor(QStringLiteral("highlightColor"));
}

QColor ThemeManager::labelButtonPressedColor() const
{
    return getColor(QStringLiteral("labelButtonPressedColor"));
}

QColor ThemeManager::textColor() const
{
    return getColor(QStringLiteral("textColor"));
}

QVector<QColor> ThemeManager::getTracePalette() const
{
    return m_theme == Dark ? m_darkTracePalette : m_lightTracePalette;
}

QVector<QColor> ThemeManager::getMemoryTracePalette() const
{
    return m_theme == Dark ? m_darkMemoryTracePalette : m_lightMemoryTracePalette;
}

QString ThemeManager::getIconPath(int id) const
{
    const auto paths = m_iconPaths.constFind(id);
    if (paths == m_iconPaths.constEnd())
        return {};

    if (id == 0) {
        QString customized = QDir::cleanPath(QDir::current().absoluteFilePath(
            QStringLiteral("../configuration/customized/logo.png")));
        if (QFileInfo(customized).isFile())
            return customized;
        const auto *translator = Utils::Translator::instance();
        if (translator && translator->currentLanguage().contains(QChar(0x4E2D)))
            return resource(m_theme == Light ? "logochinese_light.svg" : "logochinese_dark.png");
    }
    return m_theme == Light && !paths->second.isEmpty() ? paths->second : paths->first;
}

QIcon ThemeManager::icon(int id) const
{
    return createIcon(getIconPath(id));
}

void ThemeManager::setTheme(Theme theme)
{
    m_theme = theme;
    Utils::GUIContext::instance()->setIsDarkTheme(theme == Dark);
    QStringList files = Utils::StyleHelper::defaultThemeFiles(theme == Dark);
    files << (theme == Light ? QStringLiteral("../configuration/theme-light.css")
                             : QStringLiteral("../configuration/theme-dark.css"));
    Utils::StyleHelper::setThemes(files);
    Q_EMIT themeChanged(theme);
}

void ThemeManager::toggleTheme()
{
    setTheme(m_theme == Dark ? Light : Dark);
}

void ThemeManager::initializeColors()
{
    const QColor translucentDark(29, 109, 159, 100);
    const QColor translucentLight(99, 172, 246, 100);
    const NamedColor colors[] = {
        {"borderColor", "#535B62", "#bab4af"},
        {"backgroundColor", "#000000", "#ECE9E4"},
        {"textColor", "#ffffff", "#2c3a45"},
        {"highlightColor", translucentDark, translucentLight},
        {"buttonColor", "#323232", "#D2CBC5"},
        {"statusBarColor", "#000000", "#ECE9E4"},
        {"listItemEnabledColor", "#0000CE", "#63ACF6"},
        {"listItemSelectedColor", translucentDark, translucentLight},
        {"listItemHoverColor", "#2D2D2D", "#E5DED9"},
        {"listItemDefaultColor", "#191919", "#ECE9E4"},
        // Opaque on purpose in the light theme: a pressed button must stand out from its bright
        // neighbours.
        {"labelButtonPressedColor", translucentDark, "#63ACF6"},
        {"gridColor", "#292E33", "#C7C2BD"},
    };
    for (const NamedColor &color : colors) {
        m_darkColors.insert(QLatin1String(color.key), color.dark);
        m_lightColors.insert(QLatin1String(color.key), color.light);
    }
    m_darkTracePalette = paletteOf({"#FFFF00", "#FF55FF", "#00F5A0", "#40B5FF"});
    m_lightTracePalette = paletteOf({"#007A52", "#A84F00", "#0068B0", "#9C27B0"});
    m_darkMemoryTracePalette = paletteOf({"#ffb347", "#ff7675", "#ffd166", "#ff9f1c"});
    m_lightMemoryTracePalette = paletteOf({"#d84315", "#ad1457", "#6d4c41", "#5d4037"});

    readSettings();

    const struct {
        const char *dark;
        const char *light;
    } icons[] = {
        {"logo.png", "logo_light.png"},
        {"logo.png", "logo_light.png"},
        {"enter.svg", "enter.svg"},
        {"lock.svg", "lock_light.svg"},
        {"unlock.svg", "unlock_light.svg"},
        // The resource file really carries the double r.
        {"screenshot.png", "scrreenshot_light.png"},
        {"hidepanel.png", "hidepanel_light.png"},
        {"showpanel.png", "showpanel_light.png"},
    };
    int id = 0;
    for (const auto &icon : icons)
        m_iconPaths.insert(id++, {resource(icon.dark), resource(icon.light)});
}

void ThemeManager::readSettings()
{
    ThemeSettings dark;
    ThemeSettings light;
    readThemeSettings(themeSettingsPath(), dark, light);

    const auto takeColors = [](const QMap<QString, QColor> &read, QMap<QString, QColor> &colors) {
        for (auto color = read.constBegin(); color != read.constEnd(); ++color)
            colors.insert(color.key(), color.value());
    };
    takeColors(dark.colors, m_darkColors);
    takeColors(light.colors, m_lightColors);

    const auto takePalette = [](const QVector<QColor> &read, QVector<QColor> &palette) {
        if (!read.isEmpty())
            palette = read;
    };
    takePalette(dark.tracePalette, m_darkTracePalette);
    takePalette(light.tracePalette, m_lightTracePalette);
    takePalette(dark.memoryTracePalette, m_darkMemoryTracePalette);
    takePalette(light.memoryTracePalette, m_lightMemoryTracePalette);
}

QIcon ThemeManager::createIcon(const QString &path) const
{
    if (path.isEmpty())
        return {};
    if (m_theme == Light && path.contains(QLatin1String("enter"))) {
        const QImage image(path);
        if (!image.isNull())
            return QIcon(QPixmap::fromImage(invertImageColors(image)));
    }
    return QIcon(path);
}

QImage invertImageColors(const QImage &image)
{
    QImage inverted = image.copy();
    if (inverted.format() != QImage::Format_ARGB32 && inverted.format() != QImage::Format_RGB32) {
        inverted = inverted.convertToFormat(QImage::Format_ARGB32);
        if (inverted.isNull())
            return image;
    }
    for (int y = 0; y < inverted.height(); ++y) {
        auto *pixel = reinterpret_cast<QRgb *>(inverted.scanLine(y));
        for (int x = 0; x < inverted.width(); ++x)
            pixel[x] ^= RGB_MASK;
    }
    return inverted;
}

} // namespace Controls
