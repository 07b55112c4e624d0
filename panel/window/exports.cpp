// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports.h"

#include "diagrampage.h"

#include <panel/model/preferences.h>
#include <panel/touchstone/saving.h>

#include <plot/qcp.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QPdfWriter>
#include <QPixmap>
#include <QPrinter>
#include <QStandardPaths>
#include <QSvgGenerator>
#include <QWidget>

#include <functional>
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

/// Writes a new file in a folder, whose stem gets the time behind it. The writer gets the open file
/// and returns a sentence where it fails. The file is hidden until it is whole.
Exported exportFile(const QString &folder, const QString &stem, const QString &suffix,
                    const std::function<QString(QFile &)> &write)
{
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    const QString shown = QDir::toNativeSeparators(folder);
    if (!QDir().mkpath(folder))
        return {QString(), Text::tr("The folder %1 cannot be made.").arg(shown)};
    const QString name = stem + QLatin1Char('-') + time;
    QFile file(QDir(folder).filePath(
        QStringLiteral(".%1-%2%3")
            .arg(name, QString::number(QCoreApplication::applicationPid()), suffix)));
    const QString error = Text::tr("Nothing can be written to %1 (%2).");
    if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        const QString sentence = write(file);
        const bool isWhole =
            sentence.isEmpty() && sync(file) && file.error() == QFileDevice::NoError;
        const QString reason = file.errorString();
        file.close();
        if (isWhole && takeNewName(file, QDir(folder).filePath(name), suffix))
            return {file.fileName(), QString()};
        // Half a file is of no use.
        file.remove();
        return {QString(), sentence.isEmpty() ? error.arg(shown, reason) : sentence};
    }
    return {QString(), error.arg(shown, file.errorString())};
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
    return exportFile(folder, QStringLiteral("vnapanel"), QStringLiteral(".png"), [&](QFile &file) {
        return picture.save(&file, "PNG") ? QString() : cannotDraw();
    });
}

Exported exportDiagram(DiagramView *view, const QString &folder, DrawingFormat format)
{
    const bool pdf = format == DrawingFormat::Pdf;
    const DiagramPage page(view);
    return exportFile(folder, QStringLiteral("vnapanel"),
                      pdf ? QStringLiteral(".pdf") : QStringLiteral(".svg"), [&](QFile &file) {
                          QPdfWriter writer(&file);
                          QSvgGenerator svg;
                          if (pdf) {
                              // A point for a pixel.
                              constexpr int pointsInAnInch = 72;
                              writer.setResolution(pointsInAnInch);
                              writer.setPageSize(QPageSize(QSizeF(page.size()), QPageSize::Point,
                                                           QString(), QPageSize::ExactMatch));
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
                          return painter.end() ? QString() : cannotDraw();
                      });
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

Exported exportData(const Network &network, const QString &folder, DataFormat format)
{
    const QString suffix = format == DataFormat::Csv ? QStringLiteral(".csv")
                                                     : QStringLiteral(".s%1p").arg(network.ports);
    const QString stem = QFileInfo(network.name).completeBaseName();
    return exportFile(folder, stem.isEmpty() ? QStringLiteral("vnapanel") : stem, suffix,
                      [&](QFile &file) {
                          // The network takes the place of the empty file.
                          SaveOptions options;
                          options.overwrite = true;
                          return saveNetwork(file.fileName(), network, options);
                      });
}

} // namespace Panel
