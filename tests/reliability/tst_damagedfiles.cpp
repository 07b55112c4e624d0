// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What stands where a file should be: each reader takes it for missing, or says in a sentence what
// is wrong. Damage inside of files is tried by the fuzz targets and their corpora.
#include <controls/themesettings_p.h>
#include <panel/touchstone.h>
#include <platform/stylehelper.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include <tables.h>
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
class Unprivileged
{
public:
    Unprivileged()
        : m_user(geteuid())
    {
        if (m_user == 0)
            m_done = seteuid(65534) == 0;
    }
    ~Unprivileged()
    {
        if (m_done)
            m_done = seteuid(m_user) != 0;
    }

private:
    Q_DISABLE_COPY(Unprivileged)
    uid_t m_user;
    bool m_done = false;
};

} // namespace

class tst_DamagedFiles : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void notAFile_data()
    {
        columns<QString>("reason");
        row("sound", "");
        row("missing", "there is no such file");
        row("folder", "this is a folder, not a file");
        row("pipe", "this is no ordinary file");
        row("locked", "the file cannot be read (Permission denied)");
        row("empty", "the file holds no data");
        row("100 MB of nothing",
            "\"????????????????????????\u2026\" stands where a finite number belongs");
        row("more than anyone needs", "the file is larger than 512 MB");
    }

    void notAFile()
    {
        QFETCH(QString, reason);
        const QString row = QString::fromLatin1(QTest::currentDataTag());
        const QTemporaryDir folder;
        QVERIFY(QFile::setPermissions(folder.path(), QFile::Permissions(0x7777)));
        const QString names[] = {folder.filePath("a.s1p"_s), folder.filePath("a.ini"_s),
                                 folder.filePath("a.css"_s)};
        const QByteArray texts[] = {s_network, s_settings, s_sheet};
        for (int i = 0; i < 3; ++i) {
            const QString &name = names[i];
            if (row == "folder"_s) {
                QVERIFY(QDir().mkdir(name));
            } else if (row == "pipe"_s) {
                QVERIFY(mkfifo(qPrintable(name), 0666) == 0);
            } else if (row != "missing"_s) {
                QVERIFY(write(name, row == "sound"_s || row == "locked"_s ? texts[i] : ""));
                if (row.startsWith("100"_s))
                    QVERIFY(QFile::resize(name, 100 * 1000 * 1000));
                if (row.startsWith("more"_s))
                    QVERIFY(QFile::resize(name, 512 * 1024 * 1024 + 1));
                if (row == "locked"_s)
                    QVERIFY(QFile::setPermissions(name, {}));
            }
        }
        {
            const Unprivileged user;
            const Panel::TouchstoneResult network = Panel::readTouchstone(names[0]);
            QCOMPARE(network.reason, reason);
            QCOMPARE(network.network.points(), reason.isEmpty() ? 2 : 0);
            QCOMPARE(readPalette(names[1]).size(), reason.isEmpty() ? 2 : 0);
            QCOMPARE(readSheet(names[2]), reason.isEmpty() ? QLatin1String(s_sheet) : ""_s);
        }
        Utils::StyleHelper::setThemes({});
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
