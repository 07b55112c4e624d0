// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What stands where a file should be: each reader takes it for missing, or says in a sentence what
// is wrong. Damage inside of files is tried by the fuzz targets and their corpora.
#include <controls/themesettings_p.h>
#include <panel/touchstone/touchstone.h>
#include <platform/stylehelper.h>

#include <functional>
#include <sys/stat.h>
#include <unistd.h>

#include <vnatest.h>

using namespace VnaTest;
using Controls::ThemeSettings;

namespace
{

const char s_network[] = "# MHz S RI R 50\n1 0.5 0.5\n2 0.25 0.5\n";
const char s_settings[] = "[ThemeColors]\nDark\\tracePalette=\"#ff0000,#00ff00\"\n";
constexpr QFile::Permissions everybodyMayAll = QFile::ReadOwner | QFile::WriteOwner
    | QFile::ExeOwner | QFile::ReadUser | QFile::WriteUser | QFile::ExeUser | QFile::ReadGroup
    | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
const char s_sheet[] = "QLabel { color: #ff0000; }";

QVector<QColor> readPalette(const QString &path)
{
    ThemeSettings dark;
    ThemeSettings light;
    Controls::readThemeSettings(path, dark, light);
    return dark.tracePalette;
}

QString readSheet(const QString &path)
{
    Utils::StyleHelper::setThemes({path});
    return qApp->styleSheet().trimmed();
}

/// Nobody is kept from any file as the superuser: give up that right for a while.
struct Unprivileged {
    bool given = seteuid(65534) == 0;
    ~Unprivileged() { given = seteuid(getuid()) != 0; }
};

} // namespace

class tst_DamagedFiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void notAFile()
    {
        // Each finds a sound file.
        using Make = std::function<bool(const QString &name)>;
        const auto sized = [](qint64 size) {
            return [size](const QString &name) {
                return QFile::resize(name, 0) && QFile::resize(name, size);
            };
        };
        const std::pair<QString, Make> rows[] = {
            {QString(), [](const QString &) { return true; }},
            {"there is no such file"_s, [](const QString &name) { return QFile::remove(name); }},
            {"this is a folder, not a file"_s,
             [](const QString &name) { return QFile::remove(name) && QDir().mkdir(name); }},
            {"this is no ordinary file"_s,
             [](const QString &name) {
                 return QFile::remove(name) && mkfifo(qPrintable(name), 0666) == 0;
             }},
            {"the file cannot be read (Permission denied)"_s,
             [](const QString &name) { return QFile::setPermissions(name, {}); }},
            {"the file holds no data"_s, sized(0)},
            {"\"????????????????????????\u2026\" stands where a finite number belongs"_s,
             sized(2 * 1000 * 1000)},
            {"the line is longer than 64 MB"_s, sized(70 * 1000 * 1000)},
            {"the file is larger than 4096 MB"_s, sized((qint64(4096) << 20) + 1)},
        };
        for (const auto &[reason, make] : rows) {
            const QTemporaryDir folder;
            QVERIFY(QFile::setPermissions(folder.path(), everybodyMayAll));
            const QString network = writeFile(folder.filePath("a.s1p"_s), s_network);
            const QString settings = writeFile(folder.filePath("a.ini"_s), s_settings);
            const QString sheet = writeFile(folder.filePath("a.css"_s), s_sheet);
            QVERIFY(make(network) && make(settings) && make(sheet));
            if (!reason.isEmpty() && !reason.contains("no data"_s))
                expectWarning("StyleHelper: "_s + sheet + " cannot be read as a style sheet"_s);
            const Unprivileged user;
            const Panel::TouchstoneResult result = Panel::readTouchstone(network);
            QCOMPARE(result.reason, reason);
            QCOMPARE(result.network.points(), reason.isEmpty() ? 2 : 0);
            QCOMPARE(readPalette(settings).size(), reason.isEmpty() ? 2 : 0);
            QCOMPARE(readSheet(sheet), reason.isEmpty() ? QLatin1String(s_sheet) : ""_s);
        }
        Utils::StyleHelper::setThemes({});
    }
};

QTEST_MAIN(tst_DamagedFiles)
#include "tst_damagedfiles.moc"
