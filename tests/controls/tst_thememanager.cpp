// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/thememanager.h>
#include <platform/guicontext.h>
#include <platform/translator.h>

#include <cstdio>

#include <vnatest.h>

using namespace VnaTest;
using Controls::ThemeManager;

namespace
{

struct NamedColor {
    const char *key, *dark, *light;
};

const NamedColor s_colors[] = {
    {"borderColor", "#ff535b62", "#ffbab4af"},
    {"backgroundColor", "#ff000000", "#ffece9e4"},
    {"textColor", "#ffffffff", "#ff2c3a45"},
    {"highlightColor", "#641d6d9f", "#6463acf6"},
    {"buttonColor", "#ff323232", "#ffd2cbc5"},
    {"statusBarColor", "#ff000000", "#ffece9e4"},
    {"listItemEnabledColor", "#ff0000ce", "#ff63acf6"},
    {"listItemSelectedColor", "#641d6d9f", "#6463acf6"},
    {"listItemHoverColor", "#ff2d2d2d", "#ffe5ded9"},
    {"listItemDefaultColor", "#ff191919", "#ffece9e4"},
    {"labelButtonPressedColor", "#641d6d9f", "#ff63acf6"},
    {"gridColor", "#ff292e33", "#ffc7c2bd"},
};

/// Whether sheets are in force without a file, an icon without a resource, and a text in German.
int printLook()
{
    ThemeManager::instance()->setTheme(ThemeManager::Light);
    const QString sheet = qApp->styleSheet();
    const bool whole = sheet.contains("LockWidget:focus"_s) && sheet.contains("QMainWindow"_s)
        && !QFile::exists(QCoreApplication::applicationDirPath() + "/../configuration"_s);
    Utils::Translator::instance()->setLanguage(QLocale(QLocale::German));
    std::puts(qPrintable(
        "%1 %2 %3"_s.arg(whole)
            .arg(!ThemeManager::instance()->icon(3).pixmap(24).isNull())
            .arg(QCoreApplication::translate("Controls::DraggableDialogTitleBar", "Minimize"))));
    return 0;
}

} // namespace

class tst_ThemeManager : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Built-in values, whatever stands beside the program.
        qApp->setProperty("vnaSettingsPath", "/nowhere/settings.ini"_s);
        QCOMPARE(ThemeManager::instance()->currentTheme(), ThemeManager::Dark);
        QVERIFY(qApp->styleSheet().isEmpty());
        // What is set before any theme is in force is told, but puts none in force.
        auto *manager = ThemeManager::instance();
        int told = 0;
        connect(manager, &ThemeManager::themeChanged, this, [&told] { ++told; });
        manager->setColor(ThemeManager::Dark, "gridColor"_s, Qt::red);
        QTRY_COMPARE(told, 1);
        manager->disconnect(this);
        QVERIFY(qApp->styleSheet().isEmpty());
        QCOMPARE(manager->gridColor(), QColor(Qt::red));
        manager->setColor(ThemeManager::Dark, "gridColor"_s, {});
    }

    void cleanup()
    {
        ThemeManager::instance()->setTheme(ThemeManager::Dark);
        TestCase::cleanup();
    }

    void namedColors()
    {
        auto *manager = ThemeManager::instance();
        const auto named = [manager](const char *key) {
            return manager->getColor(QLatin1String(key));
        };
        for (const auto theme : {ThemeManager::Dark, ThemeManager::Light}) {
            manager->setTheme(theme);
            const bool isDark = theme == ThemeManager::Dark;
            for (const auto &[key, dark, light] : s_colors)
                QCOMPARE(named(key).name(QColor::HexArgb), QLatin1String(isDark ? dark : light));
            QCOMPARE(manager->highlightColor(), named("highlightColor"));
            QCOMPARE(manager->labelButtonPressedColor(), named("labelButtonPressedColor"));
            QCOMPARE(manager->textColor(), named("textColor"));
            QVERIFY(!named("noSuchColor").isValid());
        }
    }

    void iconPaths()
    {
        auto *manager = ThemeManager::instance();
        const QStringList names{"logo.png"_s,      "logo.png"_s,     "enter.svg"_s,
                                "lock.svg"_s,      "unlock.svg"_s,   "screenshot.png"_s,
                                "hidepanel.png"_s, "showpanel.png"_s};
        for (const bool light : {false, true}) {
            manager->setTheme(light ? ThemeManager::Light : ThemeManager::Dark);
            for (int id = 0; id < names.size(); ++id) {
                const bool shared = names.at(id).startsWith("enter"_s);
                QString path = ":/image/resource/"_s + names.at(id);
                if (light && !shared)
                    path.insert(path.size() - 4, "_light"_s).replace("/screen"_s, "/scrreen"_s);
                QCOMPARE(manager->getIconPath(id), path);
                // The picture that both share is turned light for the light theme, and only that.
                const QImage file(path);
                const QImage shown = manager->icon(id).pixmap(file.size()).toImage();
                QVERIFY(id < 2 || !file.isNull());
                if (id >= 2)
                    QCOMPARE(shown == file.convertToFormat(shown.format()), !(light && shared));
            }
        }
        for (int id : {-1, 8})
            QVERIFY(manager->getIconPath(id).isEmpty() && manager->icon(id).isNull());
    }

    void logoOfCustomerBeatsLanguageBeatsBuiltIn()
    {
        auto *manager = ThemeManager::instance();
        Utils::Translator::instance()->setLanguage(QLocale(QLocale::Chinese));
        QCOMPARE(manager->getIconPath(0), ":/image/resource/logochinese_dark.png"_s);
        manager->setTheme(ThemeManager::Light);
        QCOMPARE(manager->getIconPath(0), ":/image/resource/logochinese_light.svg"_s);
        QCOMPARE(manager->getIconPath(1), ":/image/resource/logo_light.png"_s);

        QTemporaryDir root;
        const QString start = QDir::currentPath();
        const QString logo =
            QFileInfo(root.path()).canonicalFilePath() + "/configuration/customized/logo.png"_s;
        QVERIFY(QDir().mkpath(logo) && QDir().mkpath(root.filePath("work"_s)));
        QVERIFY(QDir::setCurrent(root.filePath("work"_s)));
        QStringList paths{manager->getIconPath(0)}; // a folder is no logo
        QVERIFY(QDir().rmdir(logo));
        QImage(4, 4, QImage::Format_RGB32).save(logo);
        paths << manager->getIconPath(0);
        manager->setTheme(ThemeManager::Dark);
        paths << manager->getIconPath(0) << manager->getIconPath(1);
        QVERIFY(QDir::setCurrent(start));
        Utils::Translator::instance()->setLanguage(QLocale(QLocale::English));

        const QString builtIn = ":/image/resource/logo.png"_s;
        QCOMPARE(paths,
                 QStringList({":/image/resource/logochinese_light.svg"_s, logo, logo, builtIn}));
        QCOMPARE(manager->getIconPath(0), builtIn);
    }

    void switchingTellsEveryTimeAndLast()
    {
        auto *manager = ThemeManager::instance();
        QSignalSpy darkChanged(Utils::GUIContext::instance(), &Utils::GUIContext::darkThemeChanged);
        QVector<bool> told, darkThen;
        QStringList sheetThen;
        const auto connection =
            connect(manager, &ThemeManager::themeChanged, this, [&](ThemeManager::Theme theme) {
                told << (theme == ThemeManager::Dark);
                darkThen << Utils::GUIContext::instance()->getIsDarkTheme();
                sheetThen << qApp->styleSheet();
            });
        manager->toggleTheme();
        QVERIFY(manager->isLightTheme() && !manager->isDarkTheme());
        manager->toggleTheme();
        manager->setTheme(ThemeManager::Dark);
        disconnect(connection);
        QCOMPARE(told, (QVector<bool>{false, true, true}));
        QCOMPARE(darkThen, told);
        QCOMPARE(darkChanged.count(), 2);
        // Dark again after light leaves nothing of light behind.
        QVERIFY(sheetThen.at(0) != sheetThen.at(1));
        QCOMPARE(sheetThen.at(1), sheetThen.at(2));
    }

    void invertedImage()
    {
        QVERIFY(Controls::invertImageColors(QImage()).isNull());
        // Odd width: scan lines of 16-bit and indexed images are padded.
        QImage source(3, 2, QImage::Format_ARGB32);
        source.fill(Qt::white);
        source.setPixelColor(1, 0, QColor(255, 0, 0));
        source.setPixelColor(2, 1, QColor(0, 255, 255, 0));
        for (const auto format : {QImage::Format_ARGB32, QImage::Format_RGB32, QImage::Format_RGB16,
                                  QImage::Format_Indexed8}) {
            const QImage image = source.convertToFormat(format);
            const QImage before = image.copy();
            const QImage inverted = Controls::invertImageColors(image);
            QCOMPARE(inverted.pixel(0, 0), qRgb(0, 0, 0));
            QCOMPARE(inverted.pixel(1, 0), qRgb(0, 255, 255));
            QCOMPARE(qAlpha(inverted.pixel(2, 1)), image.hasAlphaChannel() ? 0 : 255);
            QCOMPARE(image, before);
        }
    }

    // Once the event loop has run, everything set is in force, and told once.
    void colorsSetAtRunTime()
    {
        auto *manager = ThemeManager::instance();
        const auto named = [manager](const char *key) {
            return manager->getColor(QLatin1String(key)).name();
        };
        manager->setTheme(ThemeManager::Dark);
        const QString hover = named("buttonHoverColor");
        int changes = 0;
        const auto connection =
            connect(manager, &ThemeManager::themeChanged, this, [&changes] { ++changes; });
        manager->setColor(ThemeManager::Dark, "buttonColor"_s, QColor(0x52, 0x32, 0xfe));
        manager->setColor(ThemeManager::Dark, "inkColor"_s, Qt::red);
        manager->setColor(ThemeManager::Light, "textColor"_s, Qt::green);
        manager->setTracePalette(ThemeManager::Dark, {Qt::red});
        QCOMPARE(named("buttonColor"), "#5232fe"_s);
        // 3a3d40 was set off from 323232 by 8, 11 and 14; the shade ends at white.
        QCOMPARE(hover, "#3a3d40"_s);
        QCOMPARE(named("buttonHoverColor"), "#5a3dff"_s);
        QCOMPARE(named("textColor"), "#ffffff"_s);
        QCOMPARE(manager->getTracePalette(), QVector<QColor>{Qt::red});
        QCOMPARE(changes, 0);
        QCoreApplication::processEvents();
        disconnect(connection);
        QCOMPARE(changes, 1);
        QVERIFY(qApp->styleSheet().contains("background-color: #5232fe"_s));
        QCOMPARE(manager->fillColors("a { color: @inkColor; b: @highlightColor }"_s),
                 "a { color: #ff0000; b: rgba(29, 109, 159, 100) }"_s);

        // A shade that was set itself stays.
        manager->setColor(ThemeManager::Dark, "buttonHoverColor"_s, Qt::blue);
        manager->setColor(ThemeManager::Dark, "buttonColor"_s, Qt::white);
        QCOMPARE(named("buttonHoverColor"), "#0000ff"_s);
        for (const char *name : {"buttonColor", "buttonHoverColor", "inkColor"})
            manager->setColor(ThemeManager::Dark, QLatin1String(name), {});
        manager->setColor(ThemeManager::Light, "textColor"_s, {});
        manager->setTracePalette(ThemeManager::Dark, {});
        QCOMPARE(named("buttonHoverColor"), hover);
        QVERIFY(!manager->getColor("inkColor"_s).isValid());
        QCOMPARE(manager->getTracePalette().size(), 4);
        QCoreApplication::processEvents();
    }

    void colorsAndSheetsOfAHost()
    {
        auto *manager = ThemeManager::instance();
        const QTemporaryDir folder;
        const QString ini = writeFile(folder.filePath("house.ini"_s),
                                      "[ThemeColors]\nDark/dialogColor=#102030\nDark/textColor=no\n"
                                      "Dark/memoryTracePalette=\"#ff0000\"\n");
        QVERIFY(!manager->readColors(folder.filePath("missing.ini"_s)));
        QVERIFY(manager->readColors(ini));
        QCOMPARE(manager->getColor("dialogColor"_s), QColor(0x10, 0x20, 0x30));
        QCOMPARE(manager->textColor(), QColor(Qt::white));
        QCOMPARE(manager->getMemoryTracePalette(), QVector<QColor>{Qt::red});
        // One theme or one list of colours is enough.
        for (const auto &[line, isRead] : {std::pair("Light/gridColor=#010203", true),
                                           {"Dark/tracePalette=\"#00ff00\"", true},
                                           {"Dark/memoryTracePalette=\"#0000ff\"", true},
                                           {"Dark/tracePalette=no", false}}) {
            writeFile(ini, "[ThemeColors]\n" + QByteArray(line) + '\n');
            QCOMPARE(manager->readColors(ini), isRead);
        }
        QCOMPARE(manager->getTracePalette(), QVector<QColor>{Qt::green});
        QCOMPARE(manager->getMemoryTracePalette(), QVector<QColor>{Qt::blue});
        manager->setTheme(ThemeManager::Light);
        QCOMPARE(manager->gridColor(), QColor(1, 2, 3));
        manager->setColor(ThemeManager::Light, "gridColor"_s, {});
        manager->setTracePalette(ThemeManager::Dark, {});

        writeFile(folder.filePath("theme-dark.css"_s), "QLabel { color: @dialogColor; }");
        manager->setSheetFolder(folder.path());
        manager->setTheme(ThemeManager::Dark);
        QVERIFY(qApp->styleSheet().contains("QLabel { color: #102030; }"_s));
        QVERIFY(qApp->styleSheet().contains("LockWidget:focus { border-width"_s)); // the base
        QVERIFY(!qApp->styleSheet().contains("QMainWindow"_s));

        // Rules of the host's own come in the same sheet, in the colours of each theme.
        manager->setHostSheet("#own { color: @textColor; }"_s);
        for (const auto &[theme, text] :
             {std::pair(ThemeManager::Light, "#own { color: #2c3a45; }"_s),
              std::pair(ThemeManager::Dark, "#own { color: #ffffff; }"_s)}) {
            manager->setTheme(theme);
            QVERIFY(qApp->styleSheet().endsWith(text));
        }
        manager->setHostSheet({});

        manager->setSheetFolder({});
        manager->setColor(ThemeManager::Dark, "dialogColor"_s, {});
        manager->setMemoryTracePalette(ThemeManager::Dark, {});
        manager->setTheme(ThemeManager::Dark);
        QVERIFY(qApp->styleSheet().contains("QMainWindow"_s));
    }

    // A program that was moved, and has compiled nothing of the library's in.
    void nothingOfTheHostsIsNeeded()
    {
        const QTemporaryDir folder;
        const QString program = folder.filePath("program"_s);
        QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), program));
        QProcess process;
        process.start(program, {"--look"_s});
        QVERIFY(process.waitForFinished());
        QCOMPARE(QString::fromLocal8Bit(process.readAllStandardError()), QString());
        QCOMPARE(process.readAllStandardOutput(), QByteArray("1 1 Minimieren\n"));
    }
};

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    if (argc == 2 && qstrcmp(argv[1], "--look") == 0)
        return printLook();
    tst_ThemeManager test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_thememanager.moc"
