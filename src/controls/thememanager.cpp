// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include <controls/thememanager.h>

#include "themecolors_p.h"
#include "themesettings_p.h"

#include <base/qtcompat_p.h>
#include <base/stylecolors_p.h>
#include <platform/guicontext.h>
#include <platform/stylehelper.h>
#include <platform/translator.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPixmap>

#include <iterator>
#include <utility>

namespace Controls
{

namespace
{

QString resource(const char *name)
{
    return QStringLiteral(":/image/resource/") + QLatin1String(name);
}

struct IconFiles {
    const char *dark;
    const char *light;
};

constexpr IconFiles s_icons[] = {
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

/// A colour as style sheets write it.
QString sheetText(const QColor &color)
{
    if (color.alpha() == 255)
        return color.name();
    return QStringLiteral("rgba(%1, %2, %3, %4)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(color.alpha());
}

void takeSettings(const ThemeSettings &settings, ThemeColors &colors)
{
    for (auto it = settings.colors.constBegin(); it != settings.colors.constEnd(); ++it)
        colors.set(it.key(), *it);
    if (!settings.tracePalette.isEmpty())
        colors.tracePalette = settings.tracePalette;
    if (!settings.memoryTracePalette.isEmpty())
        colors.memoryTracePalette = settings.memoryTracePalette;
}

} // namespace

class ThemeManagerPrivate
{
public:
    explicit ThemeManagerPrivate(ThemeManager *manager)
        : q(manager)
    {
    }

    ThemeColors &colors(ThemeManager::Theme of) { return of == ThemeManager::Dark ? dark : light; }
    const ThemeColors &current() const { return theme == ThemeManager::Dark ? dark : light; }

    /// The current theme's colours as style sheets write them.
    QVariantMap sheetColors() const
    {
        QVariantMap texts;
        const QStringList names = current().names();
        for (const QString &name : names) {
            const QColor color = current().color(name);
            texts.insert(name, color.isValid() ? sheetText(color) : QStringLiteral("transparent"));
        }
        return texts;
    }

    /// The files of the theme: those of sheetFolder, where it has one.
    QStringList sheets() const
    {
        QStringList files = Utils::StyleHelper::defaultThemeFiles(theme == ThemeManager::Dark);
        files << (theme == ThemeManager::Light ? QStringLiteral("../configuration/theme-light.css")
                                               : QStringLiteral("../configuration/theme-dark.css"));
        if (sheetFolder.isEmpty())
            return files;
        const QDir folder(
            QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(sheetFolder));
        for (QString &file : files) {
            const QString name = QFileInfo(file).fileName();
            if (folder.exists(name))
                file = folder.filePath(name);
        }
        return files;
    }

    /// Brings what was set into force soon, and once for all that is set until then.
    void applySoon()
    {
        if (std::exchange(isPending, true))
            return;
        const auto apply = [this] {
            if (!isPending)
                return;
            isPending = false;
            if (isInForce)
                q->setTheme(theme);
            else
                Q_EMIT q->themeChanged(theme);
        };
        QMetaObject::invokeMethod(q, apply, Qt::QueuedConnection);
    }

    ThemeManager *const q;
    ThemeManager::Theme theme = ThemeManager::Dark;
    ThemeColors dark{true};
    ThemeColors light{false};
    QString sheetFolder;
    QString hostSheet;
    bool isInForce = false; ///< setTheme() has been called
    bool isPending = false;
};

ThemeManager *ThemeManager::instance()
{
    static ThemeManager *manager = nullptr;
    if (!manager)
        manager = new ThemeManager;
    return manager;
}

void ThemeManager::useHighDpiIcons()
{
    QtCompat::useHighDpiIcons();
}

ThemeManager::ThemeManager()
    : d(std::make_unique<ThemeManagerPrivate>(this))
{
    ThemeSettings dark;
    ThemeSettings light;
    readThemeSettings(themeSettingsPath(), dark, light);
    takeSettings(dark, d->dark);
    takeSettings(light, d->light);
}

ThemeManager::~ThemeManager() = default;

ThemeManager::Theme ThemeManager::currentTheme() const
{
    return d->theme;
}

bool ThemeManager::isDarkTheme() const
{
    return d->theme == Dark;
}

bool ThemeManager::isLightTheme() const
{
    return d->theme == Light;
}

QColor ThemeManager::getColor(const QString &key) const
{
    return d->current().color(key);
}

void ThemeManager::setColor(Theme theme, const QString &key, const QColor &color)
{
    if (color.isValid())
        d->colors(theme).set(key, color);
    else
        d->colors(theme).reset(key);
    d->applySoon();
}

bool ThemeManager::readColors(const QString &file)
{
    ThemeSettings dark;
    ThemeSettings light;
    readThemeSettings(file, dark, light, AllColors);
    if (dark.isEmpty() && light.isEmpty())
        return false;
    takeSettings(dark, d->dark);
    takeSettings(light, d->light);
    d->applySoon();
    return true;
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
    return d->current().tracePalette;
}

QVector<QColor> ThemeManager::getMemoryTracePalette() const
{
    return d->current().memoryTracePalette;
}

void ThemeManager::setTracePalette(Theme theme, const QVector<QColor> &colors)
{
    d->colors(theme).tracePalette =
        colors.isEmpty() ? ThemeColors::builtInTraces(theme == Dark) : colors;
    d->applySoon();
}

void ThemeManager::setMemoryTracePalette(Theme theme, const QVector<QColor> &colors)
{
    d->colors(theme).memoryTracePalette =
        colors.isEmpty() ? ThemeColors::builtInMemoryTraces(theme == Dark) : colors;
    d->applySoon();
}

QString ThemeManager::sheetFolder() const
{
    return d->sheetFolder;
}

void ThemeManager::setSheetFolder(const QString &folder)
{
    d->sheetFolder = folder;
    d->applySoon();
}

QString ThemeManager::hostSheet() const
{
    return d->hostSheet;
}

void ThemeManager::setHostSheet(const QString &sheet)
{
    d->hostSheet = sheet;
    d->applySoon();
}

QString ThemeManager::fillColors(const QString &sheet) const
{
    return Utils::withStyleColors(sheet, d->sheetColors());
}

QString ThemeManager::getIconPath(int id) const
{
    if (id < 0 || id >= int(std::size(s_icons)))
        return {};

    if (id == 0) {
        QString customized = QDir::cleanPath(QDir::current().absoluteFilePath(
            QStringLiteral("../configuration/customized/logo.png")));
        if (QFileInfo(customized).isFile())
            return customized;
        const auto *translator = Utils::Translator::instance();
        if (translator && translator->currentLanguage().contains(QChar(0x4E2D)))
            return resource(d->theme == Light ? "logochinese_light.svg" : "logochinese_dark.png");
    }
    return resource(d->theme == Light ? s_icons[id].light : s_icons[id].dark);
}

QIcon ThemeManager::icon(int id) const
{
    return createIcon(getIconPath(id));
}

void ThemeManager::setTheme(Theme theme)
{
    d->theme = theme;
    d->isInForce = true;
    d->isPending = false;
    Utils::GUIContext::instance()->setIsDarkTheme(theme == Dark);
    if (auto *application = QCoreApplication::instance()) {
        application->setProperty(Utils::styleColorsProperty, d->sheetColors());
        application->setProperty(Utils::hostSheetProperty, d->hostSheet);
    }
    Utils::StyleHelper::setThemes(d->sheets());
    Q_EMIT themeChanged(theme);
}

void ThemeManager::toggleTheme()
{
    setTheme(d->theme == Dark ? Light : Dark);
}

QIcon ThemeManager::createIcon(const QString &path) const
{
    if (path.isEmpty())
        return {};
    if (d->theme == Light && path.contains(QLatin1String("enter"))) {
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
