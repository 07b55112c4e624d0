// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
/*! \file
    Every widget of the library in every state, and the program that draws the pictures of docs/. */
#include "gallerywindow.h"
#include "grab.h"

#include <controls/thememanager.h>
#include <platform/translator.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>

#include <cstdio>

namespace
{

QtMessageHandler s_handleMessage = nullptr;

/// Qt's offscreen platform complains of what it cannot do for a window.
void dropPlatformNoise(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        s_handleMessage(type, context, message);
}

int fail(const QString &message)
{
    std::fprintf(stderr, "vnagallery: %s Try vnagallery --help.\n", qUtf8Printable(message));
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every widget of VnaWidgets."));
    parser.addHelpOption();
    const QCommandLineOption grab(QStringLiteral("grab"),
                                  QStringLiteral("Write a PNG of every widget into <folder>."),
                                  QStringLiteral("folder"));
    const QCommandLineOption scale(QStringLiteral("scale"),
                                   QStringLiteral("Enlarge everything <factor> times (0.5 to 4)."),
                                   QStringLiteral("factor"), QStringLiteral("1"));
    parser.addOptions({grab, scale});
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QFile::decodeName(argv[i]);
    if (!parser.parse(arguments))
        return fail(parser.errorText() + QLatin1Char('.'));
    bool valid = false;
    const double factor = parser.value(scale).toDouble(&valid);
    if (!valid || !(factor >= 0.5 && factor <= 4.0))
        return fail(QStringLiteral("The scale must be a number from 0.5 to 4."));
    if (!parser.positionalArguments().isEmpty())
        return fail(QStringLiteral("There is nothing to open."));

    // Qt reads both only when the application starts.
    if (parser.isSet(scale))
        qputenv("QT_SCALE_FACTOR", QByteArray::number(factor));
    const auto unset = [](const char *name) { return qEnvironmentVariableIsEmpty(name); };
    const bool screenless = parser.isSet(grab) || parser.isSet(QStringLiteral("help"));
    if (screenless && unset("DISPLAY") && unset("WAYLAND_DISPLAY") && unset("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    s_handleMessage = qInstallMessageHandler(dropPlatformNoise);

    QApplication application(argc, argv);
    if (parser.isSet(QStringLiteral("help"))) {
        std::fputs(qUtf8Printable(parser.helpText()), stdout);
        return 0;
    }
    // The gallery is English, and the library's English texts are a catalogue too.
    Utils::Translator::instance()->setLanguage(QLocale(QLocale::English));
    QFont font = QApplication::font();
    font.setPixelSize(14);
    QApplication::setFont(font);
    Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);

    Gallery::GalleryWindow window;
    window.resize(1120, 800);
    window.show();
    if (!parser.isSet(grab))
        return QApplication::exec();
    window.activateWindow();
    return Gallery::grabPictures(&window, parser.value(grab)) ? 0 : 1;
}
