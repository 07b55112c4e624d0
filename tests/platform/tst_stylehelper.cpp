// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/stylehelper.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <QtTest>

#include <vnatest.h>

using Utils::StyleHelper;

namespace
{

/// Counts how often the widget is given a style anew.
class PolishCounter : public QLabel
{
public:
    int count = 0;

protected:
    void changeEvent(QEvent *event) override
    {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::StyleChange)
            ++count;
    }
};

QString write(const QTemporaryDir &folder, const QString &name, const QByteArray &text)
{
    QFile file(folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() ? file.fileName()
                                                                              : QString();
}

} // namespace

class tst_StyleHelper : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void laterFilesWinAndNothingStaysBehind()
    {
        QTemporaryDir folder;
        // Without a line break at its end, and ending in a comment that must not swallow the next
        // file.
        const QString first = write(folder, QStringLiteral("a.css"),
                                    "QLabel { color: #ff0000; margin: 7px; } /* \xc3\xa9 */");
        const QString second = write(folder, QStringLiteral("b.css"), "QLabel { color: #00ff00; }");
        const QString missing = folder.filePath(QStringLiteral("missing.css"));

        QLabel label(QStringLiteral("text"));
        const QSize plain = label.sizeHint();
        StyleHelper::setThemes({first, missing, folder.path(), second});
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::green));
        QVERIFY(label.sizeHint() != plain);
        QVERIFY(qApp->styleSheet().contains(QChar(0xe9)));

        StyleHelper::setThemes({second, first});
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::red));
        StyleHelper::setThemes({second});
        QCOMPARE(label.sizeHint(), plain);
        StyleHelper::setThemes({});
        QVERIFY(qApp->styleSheet().trimmed().isEmpty());
    }

    void relativeNamesStartAtTheApplication()
    {
        QTemporaryDir folder;
        const QString file = write(folder, QStringLiteral("a.css"), "QLabel { color: #0000ff; }");
        StyleHelper::setThemes(
            {QDir(QCoreApplication::applicationDirPath()).relativeFilePath(file)});
        QVERIFY(qApp->styleSheet().contains(QLatin1String("#0000ff")));
    }

    void identicalTextCostsNoPolish()
    {
        QTemporaryDir folder;
        const QString file = write(folder, QStringLiteral("a.css"), "QLabel { margin: 3px; }");
        PolishCounter label;
        label.show();
        StyleHelper::setThemes({file});
        const int once = label.count;
        QVERIFY(once > 0);
        StyleHelper::setThemes({file});
        QCOMPARE(label.count, once);
        // Edited meanwhile: the same call takes it in.
        write(folder, QStringLiteral("a.css"), "QLabel { margin: 4px; }");
        StyleHelper::setThemes({file});
        QVERIFY(label.count > once);
    }
};

QTEST_MAIN(tst_StyleHelper)
#include "tst_stylehelper.moc"
