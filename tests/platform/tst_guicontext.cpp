// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/guicontext.h>

#include <QSignalSpy>
#include <QtTest>

#include <vnatest.h>

using Utils::GUIContext;

class tst_GUIContext : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsDarkAndTellsOnlyChanges()
    {
        GUIContext *context = GUIContext::instance();
        QCOMPARE(GUIContext::instance(), context);
        QVERIFY(context->getIsDarkTheme());

        QSignalSpy changed(context, &GUIContext::darkThemeChanged);
        context->setIsDarkTheme(true);
        QCOMPARE(changed.count(), 0);
        context->setIsDarkTheme(false);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toBool(), false);
        QVERIFY(!context->getIsDarkTheme());
    }
};

QTEST_GUILESS_MAIN(tst_GUIContext)
#include "tst_guicontext.moc"
