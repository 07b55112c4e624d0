// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"

#include <panel/ground/languages.h>
#include <panel/link/linkaddress.h>
#include <panel/model/source.h>
#include <panel/serve/panelserver.h>

#include <QCommandLineParser>
#include <QRegularExpression>

namespace Panel
{

namespace
{

constexpr QSize s_smallest(800, 480);
constexpr QSize s_largest(7680, 4320);

QString literal(const char *text)
{
    return QString::fromUtf8(text);
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        literal("Shows Touchstone files (.s1p, .s2p, .ts) on Smith charts and over the frequency.\n"
                "Without files it shows those of the last time, or a sample.\n"
                "\n"
                "Exit status: 0 if all went well, 1 if a file could not be read or written or an\n"
                "instrument not be measured with, 2 if the command line was wrong."));
    parser.addPositionalArgument(literal("files"), literal("Touchstone files to open."),
                                 literal("[files...]"));
    const auto add = [&parser](const QStringList &names, const char *text, const char *value = "") {
        parser.addOption({names, literal(text), literal(value)});
    };
    add({literal("grab")}, "Write a PNG of each screen to DIR and quit; needs no display.", "DIR");
    add({literal("size")}, "Size of the window in pixels, at least 800x480 (default 1280x800).",
        "WxH");
    add({literal("scale")}, "Device pixels for each of these pixels, 1 to 4 (default 1).", "F");
    add({literal("lang")}, "en, de or zh_CN (default: as it was left).", "CODE");
    add({literal("state")}, "Keep the panel's state in FILE.", "FILE");
    add({literal("save")},
        "Convert one file to OUT, as Touchstone or CSV by its extension, and quit; needs no "
        "display.",
        "OUT");
    add({literal("touchstone-version")}, "Save as Touchstone 1 or 2 (default: as it needs).", "N");
    add({literal("overwrite")}, "Save over a file that is newer, too.");
    add({literal("connect")},
        "Measure with the instrument at nanovna:PORT, librevna:HOST or scpi:HOST; with --save, "
        "save its last sweep and quit, which needs no display.",
        "ADDRESS");
    add({literal("start")}, "Begin the saved sweep at so many Hz (default: as it is set).", "HZ");
    add({literal("stop")}, "End the saved sweep at so many Hz (default: as it is set).", "HZ");
    add({literal("points")}, "Points of the saved sweep (default: as it is set).", "N");
    add({literal("sweeps")}, "Sweep so often before saving (default 1).", "N");
    add({literal("log-link")}, "Write what goes over the cable to FILE.", "FILE");
    add({literal("serve")},
        "Answer SCPI over TCP at a port of this computer, or of the address before it.",
        "[ADDRESS:]PORT");
    add({literal("simulate")}, "Measure a simulated device live.");
    add({literal("exit-when-shown")},
        "Quit at the first picture and print the peak memory, to time the start.");
    add({literal("h"), literal("help")}, "Show this text and quit.");
    add({literal("version")}, "Show the version and quit.");
}

bool parseSize(const QString &text, QSize &size)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,5})[xX](\\d{1,5})$"));
    const QRegularExpressionMatch match = form.match(text);
    size = QSize(match.captured(1).toInt(), match.captured(2).toInt());
    return match.hasMatch() && size.boundedTo(s_largest) == size
        && size.expandedTo(s_smallest) == size;
}

/// Reads a number that has to be at least 1; false if the option holds none.
bool readCount(const QCommandLineParser &parser, const char *name, double maximum, double &value)
{
    bool ok = true;
    if (parser.isSet(literal(name)))
        value = parser.value(literal(name)).toDouble(&ok);
    return ok && !(value < 1.0) && !(value > maximum);
}

/// What belongs to an instrument; the sentence as below.
QString readInstrument(const QCommandLineParser &parser, CommandLine &result)
{
    result.instrument = parser.value(literal("connect"));
    result.linkLog = parser.value(literal("log-link"));
    LinkAddress address;
    QString error;
    if (parser.isSet(literal("connect")) && !parseLinkAddress(result.instrument, address, error))
        return error;
    result.serve = parser.value(literal("serve"));
    QHostAddress place;
    int port = 0;
    if (parser.isSet(literal("serve")) && !parseServePlace(result.serve, place, port))
        return literal("--serve wants PORT or ADDRESS:PORT, not \"%1\".").arg(result.serve);
    double points = result.points, sweeps = result.sweeps;
    const std::tuple<const char *, double *, double> numbers[] = {
        {"start", &result.start, 1e12},
        {"stop", &result.stop, 1e12},
        {"points", &points, double(Sweep::maximumPoints)},
        {"sweeps", &sweeps, 1e9},
    };
    for (const auto &[name, value, maximum] : numbers) {
        if (!parser.isSet(literal(name)))
            continue;
        if (result.instrument.isEmpty() || !parser.isSet(literal("save")))
            return literal("--%1 goes with --connect and --save.").arg(literal(name));
        if (!readCount(parser, name, maximum, *value))
            return literal("--%1 wants a number from 1, not \"%2\".")
                .arg(literal(name), parser.value(literal(name)));
    }
    if (result.start >= result.stop)
        return literal("--start has to be below --stop.");
    result.points = int(points);
    result.sweeps = int(sweeps);
    return {};
}

/// The sentence that says why a value cannot be taken; empty if all can.
QString readValues(const QCommandLineParser &parser, CommandLine &result)
{
    for (const QString &name : parser.optionNames()) {
        if (parser.isSet(name) && !parser.values(name).isEmpty() && parser.value(name).isEmpty())
            return literal("--%1 needs a value.").arg(name);
    }
    const QString size = parser.value(literal("size"));
    if (parser.isSet(literal("size")) && !parseSize(size, result.size))
        return literal("--size wants WIDTHxHEIGHT from 800x480 to 7680x4320, not \"%1\".")
            .arg(size);
    if (parser.isSet(literal("scale"))) {
        bool ok = false;
        const QString scale = parser.value(literal("scale"));
        result.scale = scale.toDouble(&ok);
        if (!ok || !(result.scale >= 1.0 && result.scale <= 4.0))
            return literal("--scale wants a number from 1 to 4, not \"%1\".").arg(scale);
    }
    result.saveFile = parser.value(literal("save"));
    const auto files = parser.positionalArguments().size();
    if (parser.isSet(literal("save")) && files != (parser.isSet(literal("connect")) ? 0 : 1))
        return literal("--save wants one file to read, or an instrument.");
    const QString version = parser.value(literal("touchstone-version"));
    result.touchstoneVersion = version.toInt();
    if (parser.isSet(literal("touchstone-version")) && version != QLatin1String("1")
        && version != QLatin1String("2"))
        return literal("--touchstone-version wants 1 or 2, not \"%1\".").arg(version);
    result.overwrite = parser.isSet(literal("overwrite"));
    result.language = parser.value(literal("lang"));
    if (parser.isSet(literal("lang")) && !isLanguage(result.language))
        return literal("--lang wants en, de or zh_CN, not \"%1\".").arg(result.language);
    return readInstrument(parser, result);
}

} // namespace

namespace
{

/// Leaves out what QApplication takes for itself: options of one dash, of which most have a value.
QStringList withoutToolkitOptions(const QStringList &arguments)
{
    const QStringList alone{literal("-reverse"), literal("-nograb"), literal("-dograb"),
                            literal("-sync"), literal("-widgetcount")};
    const QStringList valued{literal("-platform"),        literal("-platformpluginpath"),
                             literal("-platformtheme"),   literal("-plugin"),
                             literal("-style"),           literal("-stylesheet"),
                             literal("-qwindowgeometry"), literal("-qwindowicon"),
                             literal("-qwindowtitle"),    literal("-display"),
                             literal("-geometry"),        literal("-fontengine"),
                             literal("-session")};
    QStringList own;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        // Each may be written with two dashes as well.
        const QString option = argument.startsWith(literal("--")) ? argument.mid(1) : argument;
        if (valued.contains(option))
            ++i;
        else if (!alone.contains(option)
                 && !valued.contains(option.section(QLatin1Char('='), 0, 0)))
            own << argument;
    }
    return own;
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    CommandLine result;
    // The parser takes the first one for the program's name.
    if (!parser.parse(QStringList{QString()} + withoutToolkitOptions(arguments))) {
        result.error = parser.errorText();
        if (!result.error.endsWith(QLatin1Char('.')))
            result.error += QLatin1Char('.');
        return result;
    }
    result.error = readValues(parser, result);
    result.files = parser.positionalArguments();
    result.grabFolder = parser.value(literal("grab"));
    result.stateFile = parser.value(literal("state"));
    result.simulate = parser.isSet(literal("simulate"));
    result.exitWhenShown = parser.isSet(literal("exit-when-shown"));
    result.help = parser.isSet(literal("help"));
    result.version = parser.isSet(literal("version"));
    return result;
}

QString helpText()
{
    QCommandLineParser parser;
    addOptions(parser);
    return parser.helpText()
        + literal("\nOptions of Qt are passed on: -platform, -style, -stylesheet, -reverse and "
                  "others.\n");
}

} // namespace Panel
