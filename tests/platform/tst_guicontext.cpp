// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/guicontext.h>
#include <platform/translator.h>

#include <vnatest.h>

using namespace VnaTest;
using Utils::GUIContext;
using Utils::Translator;

/// What the whole application shares: its look and its language.
class tst_GUIContext : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsDarkAndTellsOnlyChanges()
    {
        GUIContext *context = GUIContext::instance();
        QVERIFY(context->getIsDarkTheme());
        QStringList told;
        note(told, "dark", context, &GUIContext::darkThemeChanged);
        context->setIsDarkTheme(true);
        context->setIsDarkTheme(false);
        QCOMPARE(told, QStringList("dark false"_s));
        QVERIFY(!context->getIsDarkTheme());
    }

    void namesALanguageInItsOwnWords()
    {
        Translator *translator = Translator::instance();
        QCOMPARE(translator->currentLanguage(), "English"_s);
        QStringList told;
        note(told, "spoken:", translator, &Translator::languageChanged);
        translator->setLanguage(QLocale(QLocale::English, QLocale::UnitedKingdom));
        translator->setLanguage(QLocale::c());
        QVERIFY(told.isEmpty());
        translator->setLanguage(QLocale(QLocale::Chinese, QLocale::China));
        QVERIFY(translator->currentLanguage().contains(QChar(0x4E2D)));
        translator->setLanguage(QLocale(QLocale::German));
        QCOMPARE(translator->currentLanguage(), "Deutsch"_s);
        QCOMPARE(told.count(), 2);
        QCOMPARE(told.last(), "spoken: Deutsch"_s);
    }
};

QTEST_GUILESS_MAIN(tst_GUIContext)
#include "tst_guicontext.moc"
