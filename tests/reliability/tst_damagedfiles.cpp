// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What stands where a file should be: each reader takes it for missing, or says in a sentence what
// is wrong. Damage inside of files is tried by the fuzz targets and their corpora.
#include <controls/themesettings_p.h>
#include <panel/touchstone.h>
#include <platform/stylehelper.h>

#include <atomic>
#include <functional>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include <vnatest.h>

using namespace VnaTest;
using Controls::ThemeSettings;

namespace
{

const char s_network[] = "# MHz S RI R 50\n1 0.5 0.5\n2 0.25 0.5\n";
const char s_settings[] = "[ThemeColors]\nDark\\tracePalette=\"#ff0000,#00ff00\"\n";
const char s_sheet[] = "QLabel { color: #ff0000; }";

bool write(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

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
        using Make = std::function<bool(const QString &name, const QByteArray &text)>;
        const auto sized = [](qint64 size) {
            return [size](const QString &name, const QByteArray &) {
                return write(name, {}) && QFile::resize(name, size);
            };
        };
        const std::pair<QString, Make> rows[] = {
            {QString(),
             [](const QString &name, const QByteArray &text) { return write(name, text); }},
            {"there is no such file"_s, [](auto &&...) { return true; }},
            {"this is a folder, not a file"_s,
             [](const QString &name, auto &&) { return QDir().mkdir(name); }},
            {"this is no ordinary file"_s,
             [](const QString &name, auto &&) { return mkfifo(qPrintable(name), 0666) == 0; }},
            {"the file cannot be read (Permission denied)"_s,
             [](const QString &name, const QByteArray &text) {
                 return write(name, text) && QFile::setPermissions(name, {});
             }},
            {"the file holds no data"_s, sized(0)},
            {"\"????????????????????????\u2026\" stands where a finite number belongs"_s,
             sized(100 * 1000 * 1000)},
            {"the file is larger than 512 MB"_s, sized(512 * 1024 * 1024 + 1)},
        };
        for (const auto &[reason, make] : rows) {
            const QTemporaryDir folder;
            QVERIFY(QFile::setPermissions(folder.path(), QFile::Permissions(0x7777)));
            const QString network = folder.filePath("a.s1p"_s);
            const QString settings = folder.filePath("a.ini"_s);
            const QString sheet = folder.filePath("a.css"_s);
            QVERIFY(make(network, s_network) && make(settings, s_settings) && make(sheet, s_sheet));
            const Unprivileged user;
            const Panel::TouchstoneResult result = Panel::readTouchstone(network);
            QCOMPARE(result.reason, reason);
            QCOMPARE(result.network.points(), reason.isEmpty() ? 2 : 0);
            QCOMPARE(readPalette(settings).size(), reason.isEmpty() ? 2 : 0);
            QCOMPARE(readSheet(sheet), reason.isEmpty() ? QLatin1String(s_sheet) : ""_s);
        }
        Utils::StyleHelper::setThemes({});
    }

    /// Settings are read from a copy; where none can be written, only those without objects.
    void noRoomForACopy()
    {
        const QTemporaryDir folder;
        QVERIFY(QFile::setPermissions(folder.path(), QFile::Permissions(0x5555)));
        const QString plain = folder.filePath("plain.ini"_s);
        const QString withObject = folder.filePath("object.ini"_s);
        QVERIFY(write(plain, s_settings));
        QVERIFY(write(withObject, QByteArray(s_settings) + "Dark\\gridColor=@Size(1 2)\n"));
        const QByteArray before = qgetenv("TMPDIR");
        for (const bool room : {true, false}) {
            qputenv("TMPDIR", room ? before : QFile::encodeName(folder.path()));
            const Unprivileged user;
            QCOMPARE(readPalette(plain).size(), 2);
            QCOMPARE(readPalette(withObject).size(), room ? 2 : 0);
        }
        qputenv("TMPDIR", before);
        QFile::setPermissions(folder.path(), QFile::Permissions(0x7777)); // so that it can go
    }

    /// Another process exchanges the file, at once or byte by byte: what was read is one of the
    /// two, or a part of one that the reader refuses or that is sound by itself.
    void replacedWhileRead()
    {
        const QTemporaryDir folder;
        const QString network = folder.filePath("a.s1p"_s);
        const QString settings = folder.filePath("a.ini"_s);
        const QByteArray longNetwork = QByteArray(s_network) + QByteArray("3 0 0\n").repeated(5000);
        QVERIFY(write(network, s_network) && write(settings, s_settings));
        std::atomic<bool> stop{false};
        std::thread other([&] {
            const QString fresh = folder.filePath("new"_s);
            for (int i = 0; !stop; ++i) {
                write(fresh, i % 2 ? longNetwork : QByteArray(s_network));
                ::rename(qPrintable(fresh), qPrintable(network));
                write(settings, i % 3 ? QByteArray(s_settings) : QByteArray());
                QFile::remove(i % 100 ? fresh : settings);
            }
        });
        int read = 0;
        for (int i = 0; i < 500; ++i) {
            const Panel::TouchstoneResult result = Panel::readTouchstone(network);
            if (!result.ok() || (result.network.points() != 2 && result.network.points() != 5002))
                break;
            const auto colors = readPalette(settings).size();
            if (colors < 0 || colors > 2)
                break;
            ++read;
        }
        stop = true;
        other.join();
        QCOMPARE(read, 500);
    }
};

QTEST_MAIN(tst_DamagedFiles)
#include "tst_damagedfiles.moc"
