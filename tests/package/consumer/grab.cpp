// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    Linked to an example as it stands: saves its window to $GRAB once it is drawn, and ends it. The
   exit code says whether a cyan trace on a dark round chart is to be seen there. */
#include <QApplication>
#include <QFile>
#include <QTimer>
#include <QWidget>

#include <cstdio>

namespace
{

int fault(const char *text)
{
    std::fprintf(stderr, "%s\n", text);
    return 1;
}

int look()
{
    if (QApplication::topLevelWidgets().size() != 1)
        return fault("not one window");
    QWidget *window = QApplication::topLevelWidgets().first();
    window->resize(480, 480);
    const QImage image = window->grab().toImage();
    if (!image.save(QFile::decodeName(qgetenv("GRAB"))))
        return fault("the picture cannot be saved");
    int cyan = 0;
    int drawn = 0; // of the grid, anywhere in the picture
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            cyan += color.blue() > 200 && color.red() < 80 && color.green() > 200;
            drawn += image.pixel(x, y) != image.pixel(0, 0);
        }
    }
    if (cyan < 100)
        return fault("there is no cyan trace");
    if (image.pixelColor(0, 0) != QColor(Qt::black)
        || image.pixelColor(479, 479) != QColor(Qt::black))
        return fault("the ground is not the theme's");
    if (drawn < 5000)
        return fault("there is no grid");
    if (!QFile::exists(QStringLiteral(":/image/resource/lock.svg")))
        return fault("the icons are missing");
    return 0;
}

// Runs as soon as main() has created the application.
void lookSoon()
{
    QTimer::singleShot(300, qApp, [] { QCoreApplication::exit(look()); });
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(lookSoon)
