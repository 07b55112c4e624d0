// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <panel/files/filecontroller.h>
#include <panel/files/panelstate.h>
#include <panel/files/samples.h>
#include <panel/files/statekeeper.h>
#include <panel/ground/languages.h>
#include <panel/ground/look.h>
#include <panel/model/panelmodel.h>
#include <panel/touchstone/saving.h>
#include <panel/window/commandline.h>
#include <panel/window/grab.h>
#include <panel/window/linkedmeasurement.h>
#include <panel/window/messagebar.h>
#include <panel/window/panelcontroller.h>
#include <panel/window/panelwindow.h>
#include <panel/window/quitsignals.h>

#include <controls/thememanager.h>

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include <cstdio>

namespace
{

/// The arguments after the program's name, as the application will decode them: it does not exist
/// yet.
QStringList decoded(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QFile::decodeName(argv[i]);
    return arguments;
}

QtMessageHandler s_handleMessage = nullptr;

/// Without a display Qt complains of what only a display needs: windows that are placed and a
/// runtime folder.
void dropOffscreenNoise(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.contains(QLatin1String("This plugin does not support"))
        && !message.contains(QLatin1String("XDG_RUNTIME_DIR not set")))
        s_handleMessage(type, context, message);
}

/// Ends a panel that nobody could see: of a port that is taken the platform only warns, and later.
void watchListening(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    s_handleMessage(type, context, message);
    if (!message.startsWith(QLatin1String("QVncServer could not connect")) || !qApp)
        return;
    const auto end = [] {
        std::fputs("vnapanel: no viewer could see it: the port is taken.\n", stderr);
        QCoreApplication::exit(1);
    };
    QMetaObject::invokeMethod(qApp, end, Qt::QueuedConnection);
}

/// What the program held at most, where the system tells it.
void printPeakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmHWM:"))
            std::printf("Peak memory: %s\n", line.mid(6).trimmed().constData());
    }
    std::fflush(stdout); // at once, for who waits for the first picture
}

/// Opens the files that were asked for, or else those of the last time, or else a sample; false if
/// one that was asked for cannot be read.
bool openFiles(Panel::FileController *controller, const QStringList &files,
               const QStringList &filesOfLastTime)
{
    if (!files.isEmpty())
        return controller->openFiles(files);
    if (filesOfLastTime.isEmpty() || !controller->openFiles(filesOfLastTime))
        return controller->openFiles({Panel::startSample()});
    return true;
}

/// Converts a file; what had to be assumed of it is said.
int convert(const Panel::CommandLine &commandLine)
{
    const Panel::Conversion conversion =
        Panel::convertFile(commandLine.files.first(), commandLine.saveFile,
                           {commandLine.touchstoneVersion, commandLine.overwrite});
    for (const QString &remark : conversion.remarks)
        std::fprintf(stderr, "vnapanel: %s\n", qUtf8Printable(remark));
    if (!conversion.error.isEmpty())
        std::fprintf(stderr, "vnapanel: %s\n", qUtf8Printable(conversion.error));
    return conversion.error.isEmpty() ? 0 : 1;
}

/// Measures with an instrument, and saves what it gave.
int measure(const Panel::CommandLine &commandLine)
{
    const QString error = Panel::measureAndSave(commandLine);
    if (!error.isEmpty())
        std::fprintf(stderr, "vnapanel: %s\n", qUtf8Printable(error));
    return error.isEmpty() ? 0 : 1;
}

/// So that a picture has something to show.
void waitForSweep(Panel::PanelController *controller)
{
    QEventLoop swept;
    QObject::connect(controller, &Panel::PanelController::sweepCompleted, &swept,
                     &QEventLoop::quit);
    swept.exec();
}

/// Makes the window no larger than its screen, once its frame is known. A shell that gives it the
/// whole screen knows better, and takes the frame away only later.
void fitToScreen(QWidget *window)
{
    if (window->windowState() != Qt::WindowNoState)
        return;
    const QRect available = window->screen()->availableGeometry();
    const QSize frame = window->frameGeometry().size() - window->size();
    window->resize(window->size().boundedTo(available.size() - frame));
}

} // namespace

int main(int argc, char **argv)
{
    using namespace Panel;

    const CommandLine commandLine = parseCommandLine(decoded(argc, argv));
    if (!commandLine.error.isEmpty()) {
        std::fprintf(stderr, "vnapanel: %s Try vnapanel --help.\n",
                     qUtf8Printable(commandLine.error));
        return 2;
    }
    if (commandLine.help) {
        const QCoreApplication application(argc, argv);
        std::fputs(qUtf8Printable(helpText()), stdout);
        return 0;
    }
    if (commandLine.version) {
        std::puts("vnapanel " VNAPANEL_VERSION);
        return 0;
    }
    if (!commandLine.saveFile.isEmpty()) {
        const QCoreApplication application(argc, argv);
        return commandLine.instrument.isEmpty() ? convert(commandLine) : measure(commandLine);
    }
    const bool grabs = !commandLine.grabFolder.isEmpty();
    const auto unset = [](const char *name) { return qEnvironmentVariableIsEmpty(name); };
    if (grabs && unset("DISPLAY") && unset("WAYLAND_DISPLAY") && unset("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    s_handleMessage = qInstallMessageHandler(grabs ? dropOffscreenNoise : watchListening);

    if (commandLine.scale > 1.0)
        qputenv("QT_SCALE_FACTOR", QByteArray::number(commandLine.scale));

    Controls::ThemeManager::useHighDpiIcons();
    // Without a desktop's theme, as over VNC and on Wayland, Qt takes a style that draws inert texts
    // twice. The option -style comes before this.
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication application(argc, argv);
    if (!QGuiApplication::primaryScreen()) {
        std::fprintf(stderr, "vnapanel: there is no screen (%s).\n",
                     qUtf8Printable(QGuiApplication::platformName()));
        return 1;
    }
    application.setApplicationName(QStringLiteral("vnapanel"));
    application.setApplicationVersion(QStringLiteral(VNAPANEL_VERSION));
    setUpApplication();
    // Pictures and timings are of the panel as it is made, whatever somebody has left.
    const bool keepsState = !grabs && !commandLine.exitWhenShown;
    const PanelState state(!keepsState                           ? QString()
                               : commandLine.stateFile.isEmpty() ? PanelState::defaultPath()
                                                                 : commandLine.stateFile);
    const QString saved = state.language().isEmpty() ? QStringLiteral("en") : state.language();
    setLanguage(commandLine.language.isEmpty() ? saved : commandLine.language);

    // Before there are widgets, which would be made in one look and then changed to the other.
    state.restoreLook();
    PanelModel model;
    PanelWindow window(&model);
    PanelController controller(&model, &window);
    controller.setSoundOutput(makeSoundOutput);
    if (keepsState)
        controller.keepSetupsBeside(state.path());
    window.resize(commandLine.size);
    const bool opened = openFiles(controller.fileController(), commandLine.files, state.files());
    if (grabs) {
        if (commandLine.simulate) {
            model.setSource(Source::Filter);
            waitForSweep(&controller);
        }
        window.setAttribute(Qt::WA_DontShowOnScreen);
        window.show();
        return grabScreens(&model, &window, commandLine.grabFolder) && opened ? 0 : 1;
    }
    if (!commandLine.linkLog.isEmpty() && !controller.setLinkLog(commandLine.linkLog)) {
        std::fprintf(stderr, "vnapanel: %s: the log cannot be written.\n",
                     qUtf8Printable(commandLine.linkLog));
        return 1;
    }
    if (!commandLine.serve.isEmpty()) {
        QString error;
        const QString place = controller.serve(commandLine.serve, error);
        if (place.isEmpty()) {
            std::fprintf(stderr, "vnapanel: nothing can be served at %s: %s.\n",
                         qUtf8Printable(commandLine.serve), qUtf8Printable(error));
            return 1;
        }
        std::printf("Serving at %s\n", qUtf8Printable(place));
        std::fflush(stdout);
    }
    // What is asked for comes before a measurement of the last time.
    state.restore(&model,
                  commandLine.files.isEmpty() && !commandLine.simulate
                      && commandLine.instrument.isEmpty());
    if (commandLine.simulate)
        model.setSource(Source::Filter);
    if (!commandLine.instrument.isEmpty())
        model.setInstrument(commandLine.instrument);
    if (!state.note().isEmpty())
        window.messageBar()->setMessage(state.note());
    else if (commandLine.files.isEmpty() && state.files().isEmpty() && !commandLine.simulate
             && commandLine.instrument.isEmpty())
        window.messageBar()->notify(QCoreApplication::translate(
            "Panel::PanelWindow", "This is a sample. The folder above opens your own files."));
    // No larger than what it is shown on.
    window.resize(commandLine.size.boundedTo(window.screen()->availableSize()));
    window.show();
    if (commandLine.exitWhenShown) {
        while (!window.windowHandle()->isExposed())
            QApplication::processEvents();
        QApplication::processEvents();
        printPeakMemory();
        return 0;
    }
    QTimer::singleShot(200, &window, [&window] { fitToScreen(&window); });
    StateKeeper keeper(&model, state.path());
    if (opened && !commandLine.files.isEmpty())
        keeper.noteChange(); // what was asked for is what the next start goes back to
    QObject::connect(&keeper, &StateKeeper::failed, window.messageBar(), [&](const QString &path) {
        window.messageBar()->setMessage(
            QCoreApplication::translate("Panel::PanelWindow",
                                        "What you set cannot be kept: %1 cannot be written.")
                .arg(path));
    });
    const QuitSignals quitSignals;
    const int status = QApplication::exec();
    if (keeper.save())
        return status;
    std::fprintf(stderr, "vnapanel: the panel's state could not be saved to %s.\n",
                 qUtf8Printable(state.path()));
    return 1;
}
