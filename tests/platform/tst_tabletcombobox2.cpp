// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/enumprofileadapter.h>
#include <platform/layoutmanagerprofile.h>
#include <platform/tabletcombobox2.h>

#include <QPixmap>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

#include <vnatest.h>

using Graph::LayoutManagerProifle;
using Graph::LayoutType;
using Profile::TabletComboBox2;
using Adapter = Profile::EnumProfileAdapter<LayoutType>;

namespace
{

/// Offers three of the four layouts.
std::unique_ptr<Adapter> adapterOf(LayoutManagerProifle *profile)
{
    return std::make_unique<Adapter>(
        QVector<Adapter::Entry>{{LayoutType::Quad, QStringLiteral("four")},
                                {LayoutType::Single, QStringLiteral("one")},
                                {LayoutType::Stacked, QStringLiteral("two")}},
        profile, &LayoutManagerProifle::layoutType, &LayoutManagerProifle::setLayoutType,
        &LayoutManagerProifle::layoutTypeChanged);
}

void bind(TabletComboBox2 &box, Profile::IEnumProfileAdapter *adapter)
{
    box.reset();
    box.setProfile(adapter);
    box.afterSetProfile();
}

} // namespace

class tst_TabletComboBox2 : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void boundBothWays()
    {
        LayoutManagerProifle profile;
        QSignalSpy changed(&profile, &LayoutManagerProifle::layoutTypeChanged);
        const auto adapter = adapterOf(&profile);
        TabletComboBox2 box;
        bind(box, adapter.get());
        // Filling the list chose nothing.
        QCOMPARE(changed.count(), 0);
        QCOMPARE(box.count(), 3);
        QCOMPARE(box.currentText(), QStringLiteral("one"));

        profile.setLayoutType(LayoutType::Stacked);
        QCOMPARE(box.currentText(), QStringLiteral("two"));
        QCOMPARE(changed.count(), 1);

        QTest::keyClick(&box, Qt::Key_Home);
        QCOMPARE(profile.layoutType(), LayoutType::Quad);
        QCOMPARE(changed.count(), 2);

        // A value that is not on offer is shown as none, and stays.
        profile.setLayoutType(LayoutType::SideBySide);
        QCOMPARE(box.currentIndex(), -1);
        QCOMPARE(profile.layoutType(), LayoutType::SideBySide);
    }

    void refusedChoiceReturns()
    {
        LayoutManagerProifle profile;
        const auto adapter = adapterOf(&profile);
        TabletComboBox2 box;
        bind(box, adapter.get());
        connect(&profile, &LayoutManagerProifle::layoutTypeChanged, &profile, [&profile] {
            if (profile.layoutType() != LayoutType::Single)
                profile.setLayoutType(LayoutType::Single);
        });
        box.setCurrentIndex(2);
        QCOMPARE(profile.layoutType(), LayoutType::Single);
        QCOMPARE(box.currentText(), QStringLiteral("one"));
    }

    void newProfileTakesOver()
    {
        LayoutManagerProifle first;
        LayoutManagerProifle second;
        second.setLayoutType(LayoutType::Quad);
        const auto firstAdapter = adapterOf(&first);
        const auto secondAdapter = adapterOf(&second);
        TabletComboBox2 box;
        bind(box, firstAdapter.get());
        bind(box, secondAdapter.get());
        QCOMPARE(box.currentText(), QStringLiteral("four"));
        first.setLayoutType(LayoutType::Stacked);
        QCOMPARE(box.currentText(), QStringLiteral("four"));
        box.setCurrentIndex(1);
        QCOMPARE(second.layoutType(), LayoutType::Single);
        QCOMPARE(first.layoutType(), LayoutType::Stacked);
        box.reset();
        QCOMPARE(box.count(), 0);
        QCOMPARE(box.profile(), nullptr);
        QCOMPARE(second.layoutType(), LayoutType::Single);
    }

    void iconsComeInAnyOrder()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("icon.png"));
        QPixmap pixmap(8, 8);
        pixmap.fill(Qt::red);
        QVERIFY(pixmap.save(path));
        LayoutManagerProifle profile;
        const auto adapter = adapterOf(&profile);
        TabletComboBox2 box;
        box.setIcons({path, path});
        bind(box, adapter.get());
        QVERIFY(!box.itemIcon(1).isNull());
        QVERIFY(box.itemIcon(2).isNull());
        box.setIcons({});
        QVERIFY(box.itemIcon(1).isNull());
        QCOMPARE(box.currentText(), QStringLiteral("one"));
    }

    void survivesWhatGoesBeforeIt()
    {
        auto profile = std::make_unique<LayoutManagerProifle>();
        auto adapter = adapterOf(profile.get());
        TabletComboBox2 box;
        bind(box, adapter.get());
        profile.reset();
        QCOMPARE(box.currentIndex(), -1);
        box.setCurrentIndex(2);
        QCOMPARE(box.currentIndex(), -1);
        adapter.reset();
        QCOMPARE(box.profile(), nullptr);
        box.setCurrentIndex(0);
        box.afterSetProfile();

        const auto nothing = adapterOf(nullptr);
        bind(box, nothing.get());
        QCOMPARE(box.count(), 3);
        QCOMPARE(box.currentIndex(), -1);
    }
};

QTEST_MAIN(tst_TabletComboBox2)
#include "tst_tabletcombobox2.moc"
