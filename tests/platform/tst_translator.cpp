// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/translator.h>

#include <QLocale>
#include <QSignalSpy>
#include <QtTest>

#include <vnatest.h>

using Utils::Translator;

class tst_Translator : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void speaksInItsOwnWords()
    {
        Translator *translator = Translator::instance();
        QCOMPARE(translator->currentLanguage(), QStringLiteral("English"));
        QSignalSpy changed(translator, &Translator::languageChanged);
        translator->setLanguage(QLocale(QLocale::English, QLocale::UnitedKingdom));
        translator->setLanguage(QLocale::c());
        QCOMPARE(changed.count(), 0);

        translator->setLanguage(QLocale(QLocale::Chinese, QLocale::China));
        QVERIFY(translator->currentLanguage().contains(QChar(0x4E2D)));
        translator->setLanguage(QLocale(QLocale::German));
        QCOMPARE(translator->currentLanguage(), QStringLiteral("Deutsch"));
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.at(1).at(0).toString(), QStringLiteral("Deutsch"));
    }
};

QTEST_GUILESS_MAIN(tst_Translator)
#include "tst_translator.moc"
