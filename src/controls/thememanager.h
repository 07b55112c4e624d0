// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <vnawidgets_export.h>

#include <QColor>
#include <QIcon>
#include <QObject>
#include <QVector>

#include <memory>

class QImage;

namespace Controls
{

class ThemeManagerPrivate;

/*! Knows whether the user interface is dark or light, and the colours, trace palettes and icons of
    each.

    Whatever paints asks here at the moment of painting and connects to themeChanged() to paint
    again. Style sheets name the same colours: "@textColor". The colours are built in; the group
    "ThemeColors" of "../configuration/settings.ini" beside the application (or of the file named by
    the application's dynamic property "vnaSettingsPath") is read once, at the first use, and
    changes three of them and the palettes. setColor(), readColors() and the others change any, at
    any time. Until the first setTheme() no style sheet is touched.

    What is set while the event loop runs comes into force together, as setTheme() does it, before
    the loop waits again. GUI thread only.

    \code
    auto *theme = Controls::ThemeManager::instance();
    connect(theme, &Controls::ThemeManager::themeChanged, this, [this] { update(); });
    theme->setTheme(Controls::ThemeManager::Light);
    painter.setPen(theme->borderColor());
    painter.fillRect(rect(), theme->getColor(QStringLiteral("statusBarColor")));
    const QVector<QColor> traceColors = theme->getTracePalette();
    lockButton->setIcon(theme->icon(3));
    theme->setColor(Controls::ThemeManager::Light, QStringLiteral("buttonColor"), Qt::white);
    \endcode */
class VNAWIDGETS_EXPORT ThemeManager : public QObject
{
    Q_OBJECT

public:
    /// The two looks.
    enum Theme {
        Dark = 0, ///< bright on black, the look at the start
        Light = 1, ///< dark on a bright ground
    };

    /// The one instance, made at the first call and never destroyed.
    static ThemeManager *instance();
    /// Has icons drawn at the screen's scale, where Qt 5 enlarges them otherwise. Called before the
    /// application is made; Qt 6 always does so.
    static void useHighDpiIcons();

    /// The theme that was set last; Dark at the start.
    Theme currentTheme() const;
    /// Whether the current theme is Dark.
    bool isDarkTheme() const;
    /// Whether the current theme is Light.
    bool isLightTheme() const;

    /// The colour of that name in the current theme; an invalid one for an unknown name. The
    /// guide's page on theming lists the names.
    QColor getColor(const QString &key) const;
    /*! \name Colours that a host paints with
        Each is getColor() of the same name, in the current theme. */
    ///@{
    QColor backgroundColor() const; ///< of diagrams and windows
    QColor borderColor() const; ///< of the edges of fields and frames
    QColor gridColor() const; ///< of grids
    QColor highlightColor() const; ///< of what is selected; translucent
    QColor labelButtonPressedColor() const; ///< of a soft key that is pressed
    QColor textColor() const; ///< of texts
    ///@}

    /*! Sets a colour of \a theme, of an existing or of a new name; an invalid colour brings the
        built-in one back. Shades of it that were not set themselves follow. */
    void setColor(Theme theme, const QString &key, const QColor &color);
    /*! Takes all that the group "ThemeColors" of an INI file says: "Dark/buttonColor=#203040",
        "Light/tracePalette" and so on, under any names of colours. Texts that are no colour are
        passed over. False when the file cannot be read or names none. */
    bool readColors(const QString &file);

    /// Colours of measured traces in the current theme, first trace first; at least one.
    QVector<QColor> getTracePalette() const;
    /// Colours of stored (memory) traces in the current theme; at least one.
    QVector<QColor> getMemoryTracePalette() const;
    /// Sets the colours of measured traces; no colour at all brings the built-in ones back.
    void setTracePalette(Theme theme, const QVector<QColor> &colors);
    /// Sets the colours of stored traces; no colour at all brings the built-in ones back.
    void setMemoryTracePalette(Theme theme, const QVector<QColor> &colors);

    /*! A folder whose files of the names theme-base.css, theme-dark.css and theme-light.css take
        the place of those in "../configuration"; relative to the application's folder. Empty, the
        default, for none. */
    QString sheetFolder() const;
    /// Sets sheetFolder(); files that the folder lacks stay what they are.
    void setSheetFolder(const QString &folder);
    /// A style sheet of the host's own, put behind those of the theme, with names in place of colours
    /// ("@textColor"). A change of theme brings it along in one go. Empty, the default, for none.
    QString hostSheet() const;
    /// Sets hostSheet().
    void setHostSheet(const QString &sheet);
    /// A style sheet with the current theme's colours in place of their names ("@textColor"), for
    /// QWidget::setStyleSheet(). An unknown name becomes transparent.
    QString fillColors(const QString &sheet) const;

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
    /// Fires at every setTheme(), when flag and style sheets are already those of \a newTheme, and
    /// once when colours or sheets were set, whether or not setTheme() was ever called.
    void themeChanged(Controls::ThemeManager::Theme newTheme);

private:
    ThemeManager();
    ~ThemeManager() override;

    QIcon createIcon(const QString &path) const;

    const std::unique_ptr<ThemeManagerPrivate> d;
};

/*! The image with red, green and blue inverted and its transparency kept, for light-theme icons
    made from dark-theme artwork. 32-bit formats stay, all others become ARGB32; a null image comes
    back null. */
VNAWIDGETS_EXPORT QImage invertImageColors(const QImage &image);

} // namespace Controls
