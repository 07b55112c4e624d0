// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
#include "grab.h"

#include "gallerywindow.h"
#include "page.h"

#include <controls/thememanager.h>

#include <QApplication>
#include <QDir>
#include <QPixmap>

#include <cstdio>

using Controls::ThemeManager;

namespace Gallery
{

namespace
{

/// Lets layouts, polishing and deferred placement happen.
void settle()
{
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// Gives the focus to a widget, or to none.
void focus(QWidget *widget)
{
    if (widget)
        widget->setFocus();
    else if (QWidget *const focused = QApplication::focusWidget())
        focused->clearFocus();
}

bool save(QWidget *widget, const QDir &folder, const QString &id, const char *theme)
{
    settle();
    const QString path =
        folder.filePath(id + QLatin1Char('-') + QLatin1String(theme) + QLatin1String(".png"));
    if (widget->grab().save(path))
        return true;
    std::fprintf(stderr, "vnagallery: %s: the picture cannot be written.\n", qUtf8Printable(path));
    return false;
}

} // namespace

bool grabPictures(GalleryWindow *window, const QString &folder)
{
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "vnagallery: %s: the folder cannot be made.\n",
                     qUtf8Printable(folder));
        return false;
    }
    const QDir target(folder);
    for (const ThemeManager::Theme theme : {ThemeManager::Dark, ThemeManager::Light}) {
        const char *const name = theme == ThemeManager::Dark ? "dark" : "light";
        ThemeManager::instance()->setTheme(theme);
        for (int i = 0; i < window->pages().size(); ++i) {
            const Page *const page = window->pages().at(i);
            window->showPage(i);
            settle();
            for (Section *const section : page->sections()) {
                focus(section->focusSample());
                section->togglePose();
                const bool saved = save(section, target, section->id(), name);
                section->togglePose();
                if (!saved)
                    return false;
            }
        }
    }
    std::printf("The pictures are in %s\n", qUtf8Printable(target.absolutePath()));
    return true;
}

} // namespace Gallery
