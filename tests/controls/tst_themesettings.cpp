// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/thememanager.h>

#include <cstdio>

#include <vnatest.h>

using namespace VnaTest;
using Controls::ThemeManager;

namespace
{

QString join(const QVector<QColor> &colors)
{
    QStringList names;
    for (const QColor &color : colors)
        names << color.name();
    return names.join(QLatin1Char(' '));
}

/// The colours of the current theme that a settings file can change.
QString adjustable()
{
    const auto *theme = ThemeManager::instance();
    const auto name = [](const QColor &color) {
        return color.isValid() ? color.name() : "invalid"_s;
    };
    return QStringList{name(theme->gridColor()), name(theme->borderColor()),
                       name(theme->backgroundColor()), join(theme->getTracePalette()),
                       join(theme->getMemoryTracePalette())}
        .join(QLatin1Char('|'));
}

/// The settings are read once in a process, so each file is tried in a process of its own.
int printAdjustable(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    app.setProperty("vnaSettingsPath", QString::fromLocal8Bit(argv[2]));
    const QString dark = adjustable();
    ThemeManager::instance()->setTheme(ThemeManager::Light);
    std::puts(qPrintable(dark + QLatin1Char('\n') + adjustable()));
    return 0;
}

const char s_dark[] = "#292e33|#535b62|#000000|#ffff00 #ff55ff #00f5a0 #40b5ff|"
                      "#ffb347 #ff7675 #ffd166 #ff9f1c";
const char s_light[] = "#c7c2bd|#bab4af|#ece9e4|#007a52 #a84f00 #0068b0 #9c27b0|"
                       "#d84315 #ad1457 #6d4c41 #5d4037";

} // namespace

class tst_ThemeSettings : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void settings_data()
    {
        const QString dark = QString::fromLatin1(s_dark);
        const QString light = QString::fromLatin1(s_light);
        const QString traces = "#007a52 #a84f00 #0068b0 #9c27b0"_s;
        const QString red = QString(light).replace(traces, "#ff0000 #00ff00"_s);
        const auto invalid = [](QString text) { return text.replace(0, 7, "invalid"_s); };
        columns<QByteArray, QString, QString>("file", "expectedDark", "expectedLight");
        const auto file = [](const char *name, const QByteArray &text, const QString &inDark,
                             const QString &inLight) {
            row(name, "[ThemeColors]\n" + text, inDark, inLight);
        };
        const auto list = [&](const char *name, const char *text) {
            file(name, QByteArray("Light\\tracePalette=") + text, dark, red);
        };
        row("binary", QByteArrayLiteral("\x7f\x45LF\0\x01\xff\xfe[\n=\"\0\r"), dark, light);
        list("list quoted", "\"#ff0000,#00ff00\"");
        list("list bare", "#ff0000,#00ff00");
        file("list with blanks", "Light/tracePalette = #ff0000 , #00ff00 \n", dark, red);
        file("list quoted one by one", "Light/tracePalette=\"#ff0000\", \"#00ff00\"\r\n", dark,
             red);
        row("list with Chinese after a mark",
            QByteArray("\xef\xbb\xbf[ThemeColors]\nLight\\tracePalette=\"red,\xe7\xba\xa2,lime\""),
            dark, red);
        file("list of nothing valid", "Light\\tracePalette=12, #fffff, rgb(1,2,3)", dark, light);
        file("all palettes",
             "Dark\\tracePalette=red\nDark\\memoryTracePalette=lime\n"
             "Light\\memoryTracePalette=blue,red",
             "#292e33|#535b62|#000000|#ff0000|#00ff00"_s,
             "#c7c2bd|#bab4af|#ece9e4|"_s + traces + "|#0000ff #ff0000"_s);
        file("all colours",
             "Dark\\gridColor=#111111\nDark\\borderColor=\"#222222\"\nDark\\backgroundColor=red\n"
             "Light/gridColor=#444444 ; thin\nLight/borderColor=#555555\n"
             "Light/backgroundColor=#666",
             QString(dark).replace(0, 23, "#111111|#222222|#ff0000"_s),
             QString(light).replace(0, 23, "#444444|#555555|#666666"_s));
        row("group of a group, and no group",
            QByteArray(
                "ThemeColors/Light/gridColor=#444444\n[ThemeColors\\Light]\n"
                "borderColor=#555555\n[ General ]\nThemeColors\\Light\\backgroundColor=#666"),
            dark, QString(light).replace(0, 23, "#444444|#555555|#666666"_s));
        file("comments and marks that do not close",
             "; Dark\\gridColor=red\nDark\\gridColor=#292e33;Dark\\gridColor=red\n=red\n[\n"
             "Light\\tracePalette=\"red,\n lime\"\nLight\\borderColor=\"red\n",
             dark, QString(red).replace(8, 7, "#ff0000"_s));
        file("colour that is none",
             "Dark\\gridColor=greyish\nDark\\textColor=red\nLight\\gridColor=", invalid(dark),
             invalid(light));
    }

    void settings()
    {
        QFETCH(QByteArray, file);
        QTemporaryFile settings;
        QVERIFY(settings.open());
        settings.write(file);
        settings.close();
        const QStringList colors = adjustableWith(settings.fileName());
        QTEST(colors.value(0), "expectedDark");
        QTEST(colors.mid(1).join(QLatin1Char('\n')), "expectedLight");
        // Nothing is ever written back.
        QVERIFY(settings.open());
        QCOMPARE(settings.readAll(), file);
    }

private:
    static QStringList adjustableWith(const QString &settings)
    {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {"--print"_s, settings});
        if (!process.waitForFinished() || process.exitCode() != 0)
            return {QString::fromLocal8Bit(process.readAllStandardError())};
        // A silent reading: nothing may be reported or logged.
        const QByteArray text = process.readAllStandardError() + process.readAllStandardOutput();
        return QString::fromLocal8Bit(text).trimmed().split(QLatin1Char('\n'));
    }
};

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--print") == 0)
        return printAdjustable(argc, argv);
    QApplication app(argc, argv);
    tst_ThemeSettings test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_themesettings.moc"
