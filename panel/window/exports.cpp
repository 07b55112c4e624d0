// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports.h"

#include "diagrampage.h"

#include <panel/model/preferences.h>

#include <plot/qcp.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QPdfWriter>
#include <QPixmap>
#include <QPrinter>
#include <QSaveFile>
#include <QStandardPaths>
#include <QSvgGenerator>
#include <QTemporaryFile>
#include <QWidget>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace Panel
{

namespace
{

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Panel::Exports)
};

/// Gives a file a name that none has yet: with a number behind the stem where one has.
bool takeNewName(QFile &file, const QString &stem, const QString &suffix)
{
    constexpr int maximumNames = 1000;
    for (int number = 1; number <= maximumNames; ++number) {
        const QString behind = number == 1 ? QString() : QStringLiteral("-%1").arg(number);
        const QString name = stem + behind + suffix;
        if (file.rename(name))
            return true;
        if (!QFileInfo::exists(name))
            return false;
    }
    return false;
}

/// Makes sure that what was written outlives a power cut.
bool sync(QFile &file)
{
#ifdef Q_OS_UNIX
    return file.flush() && fsync(file.handle()) == 0;
#else
    return file.flush();
#endif
}

QString cannotWrite(const QString &folder, const QString &reason)
{
    return Text::tr("Nothing can be written to %1 (%2).")
        .arg(QDir::toNativeSeparators(folder), reason);
}

QString cannotDraw()
{
    return Text::tr("The picture cannot be written.");
}

} // namespace

QString folderForExports(const Preferences &preferences)
{
    if (!preferences.exportFolder().isEmpty())
        return preferences.exportFolder();
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return pictures.isEmpty() ? QDir::homePath() : pictures;
}

Exported exportScreenshot(QWidget *window, const QString &folder)
{
    // Taken first, so that it is the moment that the name tells.
    const QPixmap picture = window->grab();
    const QString name = datedName({QStringLiteral("vnapanel")});
    if (!QDir().mkpath(folder))
        return {QString(),
                Text::tr("The folder %1 cannot be made.").arg(QDir::toNativeSeparators(folder))};
    // Hidden until it is whole.
    constexpr char suffix[] = ".png";
    QFile file(
        QDir(folder).filePath(QStringLiteral(".%1-%2%3")
                                  .arg(name, QString::number(QCoreApplication::applicationPid()),
                                       QLatin1String(suffix))));
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return {QString(), cannotWrite(folder, file.errorString())};
    const bool drawn = picture.save(&file, "PNG");
    const bool isWhole = drawn && sync(file) && file.error() == QFileDevice::NoError;
    const bool isFull = file.error() != QFileDevice::NoError;
    const QString reason = file.errorString();
    file.close();
    if (isWhole && takeNewName(file, QDir(folder).filePath(name), QLatin1String(suffix)))
        return {file.fileName(), QString()};
    // Half a file is of no use.
    file.remove();
    return {QString(), drawn || isFull ? cannotWrite(folder, reason) : cannotDraw()};
}

QString saveDiagram(DiagramView *view, const QString &path)
{
    const DiagramPage page(view);
    const bool pdf = path.endsWith(QLatin1String(".pdf"));
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        QPdfWriter writer(&file);
        QSvgGenerator svg;
        if (pdf) {
            // A point for a pixel.
            constexpr int pointsInAnInch = 72;
            writer.setResolution(pointsInAnInch);
            writer.setPageSize(
                QPageSize(QSizeF(page.size()), QPageSize::Point, QString(), QPageSize::ExactMatch));
            writer.setPageMargins(QMarginsF());
        } else {
            svg.setOutputDevice(&file);
            svg.setSize(page.size());
            svg.setViewBox(QRect(QPoint(), page.size()));
        }
        QCPPainter painter;
        if (!painter.begin(pdf ? static_cast<QPaintDevice *>(&writer) : &svg))
            return cannotDraw();
        page.draw(&painter);
        if (!painter.end())
            return cannotDraw();
        // What only commit() writes may be lost untold where the disk is full.
        if (!file.flush())
            return cannotWrite(QFileInfo(path).path(), file.errorString());
    }
    return file.commit() ? QString() : cannotWrite(QFileInfo(path).path(), file.errorString());
}

bool takesFiles(const QString &folder)
{
    QTemporaryFile probe(QDir(folder).filePath(QStringLiteral(".vnapanel-XXXXXX")));
    return QDir().mkpath(folder) && probe.open();
}

QString datedName(const QStringList &parts)
{
    return (parts
            + QStringList(QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"))))
        .join(QLatin1Char('-'));
}

bool printDiagram(DiagramView *view, QPrinter *printer)
{
    QCPPainter painter;
    if (!painter.begin(printer))
        return false;
    const DiagramPage page(view);
    const QRectF paper(QPointF(),
                       printer->pageLayout().paintRectPixels(printer->resolution()).size());
    const double scale =
        qMin(paper.width() / page.size().width(), paper.height() / page.size().height());
    painter.translate((paper.width() - scale * page.size().width()) / 2.0,
                      (paper.height() - scale * page.size().height()) / 2.0);
    painter.scale(scale, scale);
    page.draw(&painter);
    return painter.end();
}

} // namespace Panel
