// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"

#include "languages.h"

#include <QRegularExpression>

namespace Panel
{

namespace
{

constexpr QSize s_smallest(800, 480);
constexpr QSize s_largest(7680, 4320);

bool parseSize(const QString &text, QSize &size)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,5})[xX](\\d{1,5})$"));
    const QRegularExpressionMatch match = form.match(text);
    size = QSize(match.captured(1).toInt(), match.captured(2).toInt());
    return match.hasMatch() && size.boundedTo(s_largest) == size
        && size.expandedTo(s_smallest) == size;
}

} // namespace

CommandLine parseCommandLine(const QStringList &arguments)
{
    CommandLine result;
    bool options = true;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (!options || !argument.startsWith(QLatin1Char('-')) || argument.size() == 1) {
            result.files << argument;
            continue;
        }
        if (argument == QLatin1String("--")) {
            options = false;
            continue;
        }
        const int equals = int(argument.indexOf(QLatin1Char('=')));
        const QString name = argument.left(equals);
        static const QStringList valued{QStringLiteral("--grab"), QStringLiteral("--size"),
                                        QStringLiteral("--scale"), QStringLiteral("--lang"),
                                        QStringLiteral("--state")};
        const bool takesValue = valued.contains(name);
        QString value = equals < 0 ? QString() : argument.mid(equals + 1);
        if (takesValue && equals < 0 && i + 1 < arguments.size())
            value = arguments.at(++i);
        if (takesValue ? value.isEmpty() : equals >= 0) {
            result.error = takesValue ? QStringLiteral("%1 needs a value.").arg(name)
                                      : QStringLiteral("%1 takes no value.").arg(name);
            return result;
        }
        if (name == QLatin1String("--grab")) {
            result.grabFolder = value;
        } else if (name == QLatin1String("--size")) {
            if (!parseSize(value, result.size)) {
                result.error =
                    QStringLiteral(
                        "--size wants WIDTHxHEIGHT from 800x480 to 7680x4320, not \"%1\".")
                        .arg(value);
                return result;
            }
        } else if (name == QLatin1String("--scale")) {
            bool ok = false;
            result.scale = value.toDouble(&ok);
            if (!ok || !(result.scale >= 1.0 && result.scale <= 4.0)) {
                result.error =
                    QStringLiteral("--scale wants a number from 1 to 4, not \"%1\".").arg(value);
                return result;
            }
        } else if (name == QLatin1String("--lang")) {
            result.language = value;
            if (!isLanguage(value)) {
                result.error =
                    QStringLiteral("--lang wants en, de or zh_CN, not \"%1\".").arg(value);
                return result;
            }
        } else if (name == QLatin1String("--state")) {
            result.stateFile = value;
        } else if (name == QLatin1String("--simulate")) {
            result.simulate = true;
        } else if (name == QLatin1String("--exit-when-shown")) {
            result.exitWhenShown = true;
        } else if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
            result.help = true;
        } else if (name == QLatin1String("--version")) {
            result.version = true;
        } else {
            result.error = QStringLiteral("There is no option %1.").arg(name);
            return result;
        }
    }
    return result;
}

QString helpText()
{
    return QStringLiteral(
        "Usage: vnapanel [options] [files]\n"
        "\n"
        "Shows Touchstone files (.s1p, .s2p) on Smith charts and over the frequency.\n"
        "Without files it shows those of the last time, or a sample.\n"
        "\n"
        "Options:\n"
        "  --grab DIR   write a PNG of each screen to DIR and quit; needs no display\n"
        "  --size WxH   size of the window in pixels, at least 800x480 (default 1280x800)\n"
        "  --scale F    device pixels for each of these pixels, 1 to 4 (default 1)\n"
        "  --lang CODE  en, de or zh_CN (default: as it was left)\n"
        "  --state FILE keep the panel's state there\n"
        "  --simulate   measure a simulated device live\n"
        "  --exit-when-shown\n"
        "               quit at the first picture and print the peak memory, to time the start\n"
        "  --help       show this text and quit\n"
        "  --version    show the version and quit\n"
        "\n"
        "Exit status: 0 if all went well, 1 if a file could not be read or written,\n"
        "2 if the command line was wrong.\n");
}

} // namespace Panel
