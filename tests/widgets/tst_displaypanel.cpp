// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/guicontext.h>
#include <platform/layoutmanagerprofile.h>
#include <platform/tabletcombobox2.h>
#include <widgets/displaypanel.h>

#include <QSignalSpy>
#include <QtTest>

#include <memory>

#include <vnatest.h>

using Graph::LayoutManagerProifle;
using Graph::LayoutType;

namespace
{

QComboBox *boxOf(const QWidget &panel)
{
    return panel.findChild<Profile::TabletComboBox2 *>(QStringLiteral("layoutSelectEdit"));
}

QImage icon(const QComboBox *box, int index)
{
    return box->itemIcon(index).pixmap(24, 24).toImage();
}

} // namespace

class tst_DisplayPanel : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void choiceAndProfileFollowEachOther()
    {
        LayoutManagerProifle profile;
        profile.setLayoutType(LayoutType::Stacked);
        DisplayPanel panel(&profile);
        QSignalSpy changed(&panel, &DisplayPanel::layoutChanged);
        QCOMPARE(panel.objectName(), QStringLiteral("DisplayPanel"));
        QComboBox *box = boxOf(panel);
        QCOMPARE(box->count(), 4);
        QCOMPARE(box->currentIndex(), 2);
        QVERIFY(!box->accessibleName().isEmpty());
        panel.show();
        box->setFocus();
        QTest::keyClick(panel.windowHandle(), Qt::Key_End);
        QCOMPARE(profile.layoutType(), LayoutType::Quad);
        profile.setLayoutType(LayoutType::Single);
        QCOMPARE(box->currentIndex(), 0);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.at(0).at(0).toInt(), int(LayoutType::Quad));
        QCOMPARE(changed.at(1).at(0).toInt(), int(LayoutType::Single));
    }

    void iconsFollowTheThemeAndTheChoiceStays()
    {
        LayoutManagerProifle profile;
        profile.setLayoutType(LayoutType::Quad);
        DisplayPanel panel(&profile);
        const QComboBox *box = boxOf(panel);
        for (bool dark : {false, true}) {
            Utils::GUIContext::instance()->setIsDarkTheme(dark);
            for (int index = 0; index < 4; ++index) {
                const QIcon expected(QStringLiteral(":/Graph/Image/layout%1%2")
                                         .arg(QString::number(index + 1),
                                              dark ? QString() : QStringLiteral("_light")));
                QVERIFY(!icon(box, index).isNull());
                QCOMPARE(icon(box, index), expected.pixmap(24, 24).toImage());
            }
            QCOMPARE(box->currentIndex(), 3);
        }
        QVERIFY(icon(box, 0) != icon(box, 1));
    }

    void newLanguageKeepsTheChoice()
    {
        LayoutManagerProifle profile;
        profile.setLayoutType(LayoutType::Stacked);
        DisplayPanel panel(&profile);
        QSignalSpy changed(&panel, &DisplayPanel::layoutChanged);
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&panel, &event);
        QCOMPARE(boxOf(panel)->currentIndex(), 2);
        QCOMPARE(profile.layoutType(), LayoutType::Stacked);
        QCOMPARE(changed.count(), 0);
        QVERIFY(!boxOf(panel)->itemIcon(3).isNull());
        boxOf(panel)->setCurrentIndex(0);
        QCOMPARE(profile.layoutType(), LayoutType::Single);
    }

    void survivesItsProfile()
    {
        auto profile = std::make_unique<LayoutManagerProifle>();
        DisplayPanel panel(profile.get());
        profile.reset();
        boxOf(panel)->setCurrentIndex(1);
        QCOMPARE(boxOf(panel)->currentIndex(), -1);
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&panel, &event);

        DisplayPanel withoutProfile(nullptr);
        QCOMPARE(boxOf(withoutProfile)->count(), 4);
    }
};

QTEST_MAIN(tst_DisplayPanel)
#include "tst_displaypanel.moc"
