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
        for (const QString &path : {missing, m_folder.path()})
            expectWarning("StyleHelper: "_s + path + " cannot be read as a style sheet"_s);
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

    void brokenSheetsAreToldOnceAndLeftOut()
    {
        const QString file = write("broken.css"_s, "QLabel { color: #ff0000;"); // not closed
        const QString sound = write("sound.css"_s, "QLabel { color: #00ff00; }");
        expectWarning("StyleHelper: "_s + file
                      + " is left out: a brace, comment or quote is not closed"_s);
        StyleHelper::setThemes({file, sound});
        QCOMPARE(qApp->styleSheet().trimmed(), "QLabel { color: #00ff00; }"_s);
        for (const char *text : {"QLabel } {", "QLabel { QLabel { } }", "QLabel { } /* x",
                                 "QLabel { image: url(\"x); }"}) {
            write("broken.css"_s, text);
            StyleHelper::setThemes({file, sound}); // no second warning
            QCOMPARE(qApp->styleSheet().trimmed(), "QLabel { color: #00ff00; }"_s);
        }
        write("broken.css"_s, "/* } */ QLabel { qproperty-text: \"{\"; }");
        StyleHelper::setThemes({file});
        QVERIFY(qApp->styleSheet().contains("qproperty"_s));
        write("broken.css"_s, "}"); // again, after it was sound
        expectWarning("StyleHelper: "_s + file
                      + " is left out: a brace, comment or quote is not closed"_s);
        StyleHelper::setThemes({file});
    }

    void namesOfColorsAreFilledIn()
    {
        qApp->setProperty("vnaThemeColors", QVariantMap{{"textColor"_s, "#010203"_s}});
        const QString file = write(
            "named.css"_s, "/* @no */ QLabel { color: @textColor; image: url(\"a@no.png\"); }");
        StyleHelper::setThemes({file});
        QCOMPARE(qApp->styleSheet().trimmed(),
                 "/* @no */ QLabel { color: #010203; image: url(\"a@no.png\"); }"_s);
        write("named.css"_s, "QLabel { color: @inkColor; }");
        expectWarning("StyleHelper: "_s + file + " names unknown colours: inkColor"_s);
        StyleHelper::setThemes({file});
        QVERIFY(qApp->styleSheet().contains("color: transparent;"_s));
        qApp->setProperty("vnaThemeColors", {});
    }

    void ownSheetOfTheApplicationStays()
    {
        const QString red = write("red.css"_s, "QLabel { color: #ff0000; margin: 7px; }");
        const QString green = write("green.css"_s, "QLabel { color: #00ff00; }");
        const QString own = "QLabel { color: #0000ff; }\n"_s;
        StyleHelper::setThemes({});
        qApp->setStyleSheet(own);
        StyleHelper::setThemes({red});
        QVERIFY(qApp->styleSheet().contains("margin"_s));
        QLabel label;
        label.ensurePolished();
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor(Qt::blue));
        StyleHelper::setThemes({green});
        QVERIFY(!qApp->styleSheet().contains("margin"_s));
        QCOMPARE(qApp->styleSheet().count(own), 1);
        // What is added behind the theme stays as well; what is taken away is gone.
        qApp->setStyleSheet(qApp->styleSheet() + "QLabel { padding: 1px; }"_s);
        StyleHelper::setThemes({red});
        QVERIFY(qApp->styleSheet().endsWith(own + "QLabel { padding: 1px; }"_s));
        qApp->setStyleSheet({});
        StyleHelper::setThemes({});
        QVERIFY(qApp->styleSheet().isEmpty());
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
