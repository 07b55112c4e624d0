// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/stylehelper.h>

#include <vnatest.h>

using Utils::StyleHelper;
using namespace VnaTest;

namespace
{

/// Counts how often the widget is given a style anew.
struct PolishCounter : QLabel {
    int count = 0;

    void changeEvent(QEvent *event) override
    {
        QLabel::changeEvent(event);
        count += event->type() == QEvent::StyleChange;
    }
};

} // namespace

class tst_StyleHelper : public TestCase
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QString write(const QString &name, const QByteArray &text) const
    {
        return writeFile(m_folder.filePath(name), text);
    }

private Q_SLOTS:
    void laterFilesWinAndNothingStaysBehind()
    {
        // Without a line break at its end, and ending in a comment that must not swallow the next
        // file.
        const QString first =
            write("a.css"_s, "QLabel { color: #ff0000; margin: 7px; } /* \xc3\xa9 */");
        const QString second = write("b.css"_s, "QLabel { color: #00ff00; }");
        const QString missing = m_folder.filePath("missing.css"_s);

        QLabel label("text"_s);
        const QSize plain = label.sizeHint();
        const auto color = [&label] { return label.palette().color(QPalette::WindowText); };
        StyleHelper::setThemes({first, missing, m_folder.path(), second});
        QCOMPARE(color(), QColor(Qt::green));
        QVERIFY(label.sizeHint() != plain);
        QVERIFY(qApp->styleSheet().contains(QChar(0xe9)));
        // Relative names start at the application.
        const QDir application(QCoreApplication::applicationDirPath());
        StyleHelper::setThemes({second, application.relativeFilePath(first)});
        QCOMPARE(color(), QColor(Qt::red));
        StyleHelper::setThemes({second});
        QCOMPARE(label.sizeHint(), plain);
        StyleHelper::setThemes({});
        QVERIFY(qApp->styleSheet().trimmed().isEmpty());
    }

    void identicalTextCostsNoPolish()
    {
        const QString file = write("a.css"_s, "QLabel { margin: 3px; }");
        PolishCounter label;
        label.show();
        StyleHelper::setThemes({file});
        const int once = label.count;
        QVERIFY(once > 0);
        StyleHelper::setThemes({file});
        QCOMPARE(label.count, once);
        // Edited meanwhile: the same call takes it in.
        write("a.css"_s, "QLabel { margin: 4px; }");
        StyleHelper::setThemes({file});
        QVERIFY(label.count > once);
    }
};

QTEST_MAIN(tst_StyleHelper)
#include "tst_stylehelper.moc"
