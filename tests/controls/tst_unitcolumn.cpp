// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The unit keys of a keypad, in pages.
#include "keypadscene.h"

using namespace VnaTest;

namespace
{

/// Captions of the unit keys from top to bottom.
QString column(const KeypadScene &scene)
{
    QStringList captions;
    for (int i = 1; i <= 4; ++i) {
        const QPushButton *key = scene.button("btnUnit%1"_s.arg(i));
        captions << (key->isHidden() ? "-"_s : key->text());
    }
    return captions.join(QLatin1Char(' '));
}

} // namespace

class tst_UnitColumn : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void pagesOfUnits_data()
    {
        columns<int, QString>("count", "columns"); // of each page; "-" for a hidden key
        row("0", 0, "- - - -");
        row("1", 1, "u0 - - -");
        row("4", 4, "u0 u1 u2 u3");
        row("5", 5, "u0 u1 u2 More|u3 u4 - More");
        row("6", 6, "u0 u1 u2 More|u3 u4 u5 More");
        row("7", 7, "u0 u1 u2 More|PgUp u3 u4 PgDn|u5 u6 - More");
        QString forty = "u0 u1 u2 More"_s;
        for (int unit = 3; unit < 37; unit += 2)
            forty += "|PgUp u%1 u%2 PgDn"_s.arg(unit).arg(unit + 1);
        row("40", 40, forty + "|u37 u38 u39 More"_s);
    }

    void pagesOfUnits()
    {
        const KeypadScene f;
        QFETCH(int, count);
        QFETCH(QString, columns);
        const QStringList pages = columns.split(QLatin1Char('|'));
        QVERIFY(f.keypad->setShortcutKeys(units(count)));
        f.keypad->open();
        const QRect ok = f.button("btnOk"_s)->geometry();
        for (const QString &page : pages) {
            QCOMPARE(column(f), page);
            QCOMPARE(f.button("btnOk"_s)->geometry(), ok);
            // Every unit on the page sends itself.
            const QStringList captions = page.split(QLatin1Char(' '));
            for (int i = 0; i < 4; ++i) {
                if (!captions.at(i).startsWith(QLatin1Char('u')))
                    continue;
                f.editor->log.clear();
                f.click("btnUnit%1"_s.arg(i + 1));
                QCOMPARE(f.editor->log.value(0), "+1000004:"_s + captions.at(i));
            }
            if (pages.size() > 1)
                f.click("btnUnit4"_s);
        }
        // The last page led back to the first, and the pages lead up again.
        for (int i = 1; i < pages.size() - 1; ++i)
            f.click("btnUnit4"_s);
        for (int i = int(pages.size()) - 2; i > 0; --i) {
            QCOMPARE(column(f), pages.at(i));
            f.click("btnUnit1"_s);
        }
        QCOMPARE(column(f), pages.first());
    }

    void newUnitsStartAtTheFirstPage()
    {
        const KeypadScene f;
        f.keypad->setShortcutKeys(units(9));
        f.keypad->open();
        f.click("btnUnit4"_s);
        const QString second = column(f);
        QEvent language(QEvent::LanguageChange);
        QCoreApplication::sendEvent(f.keypad, &language);
        QCOMPARE(column(f), second); // another language turns no page
        f.keypad->setShortcutKeys(units(9));
        QCOMPARE(column(f), "u0 u1 u2 More"_s);

        // Without a key code it is shown, and sends nothing.
        auto silent = units(3);
        silent[1].key = Qt::Key_unknown;
        f.keypad->setShortcutKeys(silent);
        QCOMPARE(column(f), "u0 u1 u2 -"_s);
        f.click("btnUnit2"_s);
        QVERIFY(f.editor->log.isEmpty());

        // A press that takes the keyboard back to the field sets its units anew.
        const QPushButton *key = f.button("btnUnit1"_s);
        mousePress(key);
        f.keypad->setShortcutKeys(units(2));
        mouseRelease(key);
        QCOMPARE(f.editor->log.value(0), "+1000004:u0"_s);
        QVERIFY(!key->isDown());
        f.editor->log.clear();

        // A unit called like a page key is one, but only to pages that are.
        const TouchNumKeyboard::KeySpec up{Qt::Key_Return, "PgUp"_s, "x"_s};
        f.keypad->setShortcutKeys({up});
        f.click("btnUnit1"_s);
        QCOMPARE(f.editor->log.value(0), "+1000004:x"_s);
        auto pages = units(7);
        pages[0] = up;
        f.keypad->setShortcutKeys(pages);
        f.click("btnUnit1"_s);
        QCOMPARE(column(f), "PgUp u1 u2 More"_s);
        QCOMPARE(f.editor->log.size(), 2);
        pages[0].label = "PgDn"_s;
        f.keypad->setShortcutKeys(pages);
        f.click("btnUnit1"_s);
        QCOMPARE(column(f), "PgUp u3 u4 PgDn"_s);
    }

    /// Arrows are drawn in the colours of their key, and in any, once that is gone.
    void glyphs()
    {
        KeypadScene f;
        QPushButton *const key = f.button("btnUp"_s);
        const QIcon icon = key->icon();
        const auto colorOf = [&icon](QIcon::Mode mode) {
            return icon.pixmap(QSize(64, 64), mode).toImage().pixelColor(32, 32).rgb();
        };
        QPalette palette = key->palette();
        palette.setColor(QPalette::Active, QPalette::ButtonText, Qt::red);
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::green);
        key->setPalette(palette);
        QCOMPARE(colorOf(QIcon::Normal), QColor(Qt::red).rgb());
        QCOMPARE(colorOf(QIcon::Disabled), QColor(Qt::green).rgb());
        delete f.keypad;
        QCOMPARE(colorOf(QIcon::Normal), QPalette().color(QPalette::ButtonText).rgb());
    }
};

QTEST_MAIN(tst_UnitColumn)
#include "tst_unitcolumn.moc"
