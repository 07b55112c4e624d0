// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QColor>
#include <QIcon>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QVector>

class QImage;
class QSettings;

namespace Controls
{

/*! Knows whether the user interface is dark or light, and the colours, trace palettes and icons of
    each.

    Whatever paints asks here at the moment of painting and connects to themeChanged() to paint
    again; nobody keeps colours of their own. The tables are filled once, from built-in values and
    from the group "ThemeColors" of "../configuration/settings.ini" beside the application (or of
    the file named by the application's dynamic property "vnaSettingsPath"), and never change
    afterwards. Until the first setTheme() no style sheet is touched.

    Not for the look of ordinary widgets: that is the style sheets' business.

    \code
    auto *theme = Controls::ThemeManager::instance();
    connect(theme, &Controls::ThemeManager::themeChanged, this, [this] { update(); });
    theme->setTheme(Controls::ThemeManager::Light);
    painter.setPen(theme->borderColor());
    painter.fillRect(rect(), theme->getColor(QStringLiteral("statusBarColor")));
    const QVector<QColor> traceColors = theme->getTracePalette();
    lockButton->setIcon(theme->icon(3));
    \endcode */
class VNAWIDGETS_EXPORT ThemeManager : public QObject
{
    Q_OBJECT

public:
    enum Theme {
        Dark = 0,
        Light = 1,
    };

    /// The one instance, made at the first call and never destroyed.
    static ThemeManager *instance();

    /// Dark at the start.
    Theme currentTheme() const { return m_theme; }
    bool isDarkTheme() const { return m_theme == Dark; }
    bool isLightTheme() const { return m_theme == Light; }

    /*! The colour of that name in the current theme; an invalid colour for an unknown name. Besides
        the names below: "buttonColor", "statusBarColor", "listItemEnabledColor",
        "listItemSelectedColor", "listItemHoverColor", "listItemDefaultColor". */
    QColor getColor(const QString &key) const;
    QColor backgroundColor() const;
    QColor borderColor() const;
    QColor gridColor() const;
    QColor highlightColor() const;
    QColor labelButtonPressedColor() const;
    QColor textColor() const;

    /// Colours of measured traces in the current theme, first trace first; at least one.
    QVector<QColor> getTracePalette() const;
    /// Colours of stored (memory) traces in the current theme; at least one.
    QVector<QColor> getMemoryTracePalette() const;

    /*! File or resource of icon \a id in the current theme: 0 logo (a customer's own, or the
        Chinese one, where there is one), 1 built-in logo, 2 enter key, 3 lock, 4 unlock, 5
        screenshot, 6 hide panel, 7 show panel. Empty for any other number. */
    QString getIconPath(int id) const;
    /// The icon of getIconPath(); the enter key is inverted in the light theme. Null for an unknown
    /// id.
    QIcon icon(int id) const;

public Q_SLOTS:
    /*! Switches the theme: the application-wide dark flag, then the style sheets, then
        themeChanged(). All of it happens for the current theme too, which takes in style sheet
        files edited meanwhile. */
    void setTheme(Controls::ThemeManager::Theme theme);
    /// Light when dark, dark otherwise.
    void toggleTheme();

Q_SIGNALS:
    /// Fires at every setTheme(), when flag and style sheets are already those of \a newTheme.
    void themeChanged(Controls::ThemeManager::Theme newTheme);

private:
    ThemeManager();

    void initializeColors();
    void readSettings();
    QIcon createIcon(const QString &path) const;
    void updateColors() { }

    Theme m_theme = Dark;
    QMap<QString, QColor> m_darkColors;
    QMap<QString, QColor> m_lightColors;
    QVector<QColor> m_darkTracePalette;
    QVector<QColor> m_lightTracePalette;
    QVector<QColor> m_darkMemoryTracePalette;
    QVector<QColor> m_lightMemoryTracePalette;
    QMap<int, QPair<QString, QString>> m_iconPaths;

    static ThemeManager *m_instance;
};

/*! The image with red, green and blue inverted and its transparency kept, for light-theme icons
    made from dark-theme artwork. 32-bit formats stay, all others become ARGB32; a null image comes
    back null. */
VNAWIDGETS_EXPORT QImage invertImageColors(const QImage &image);

} // namespace Controls
