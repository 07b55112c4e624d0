// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"
#include "grab.h"
#include "look.h"
#include "panelcontroller.h"
#include "panelmodel.h"
#include "panelwindow.h"
#include "samples.h"
#include "sweepcontroller.h"

#include <QApplication>
#include <QFile>
#include <QScreen>

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

/// Without a display Qt complains of what only a display needs: window limits and a runtime folder.
void dropOffscreenNoise(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.contains(QLatin1String("propagateSizeHints"))
        && !message.contains(QLatin1String("XDG_RUNTIME_DIR not set")))
        s_handleMessage(type, context, message);
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
        std::fputs(qUtf8Printable(helpText()), stdout);
        return 0;
    }
    if (commandLine.version) {
        std::puts("vnapanel " VNAPANEL_VERSION);
        return 0;
    }
    const bool grabs = !commandLine.grabFolder.isEmpty();
    const auto unset = [](const char *name) { return qEnvironmentVariableIsEmpty(name); };
    if (grabs && unset("DISPLAY") && unset("WAYLAND_DISPLAY") && unset("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (grabs)
        s_handleMessage = qInstallMessageHandler(dropOffscreenNoise);

    QApplication application(argc, argv);
    setUpApplication();

    PanelModel model;
    PanelWindow window(&model);
    PanelController controller(&model, &window);
    window.resize(commandLine.size);
    const bool opened = controller.openFiles(
        commandLine.files.isEmpty() ? QStringList{startSample()} : commandLine.files);
    if (commandLine.simulate)
        controller.sweepController()->simulate(SimulatedDevice::Filter);
    if (grabs) {
        window.setAttribute(Qt::WA_DontShowOnScreen);
        window.show();
        return grabScreens(&model, &window, commandLine.grabFolder) && opened ? 0 : 1;
    }
    // No larger than what it is shown on.
    window.resize(commandLine.size.boundedTo(window.screen()->availableSize()));
    window.show();
    return QApplication::exec();
}
