// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/enumprofileadapter.h>
#include <platform/layoutmanagerprofile.h>
#include <platform/tabletcombobox2.h>

#include <memory>

#include <vnatest.h>

using namespace VnaTest;
using Graph::LayoutManagerProifle;
using Graph::LayoutType;
using Adapter = Profile::EnumProfileAdapter<LayoutType>;

namespace
{

/// Offers three of the four layouts.
std::unique_ptr<Adapter> adapterOf(LayoutManagerProifle *profile)
{
    using P = LayoutManagerProifle;
    const QVector<Adapter::Entry> entries{{LayoutType::Quad, "four"_s},
                                          {LayoutType::Single, "one"_s},
                                          {LayoutType::Stacked, "two"_s}};
    return std::make_unique<Adapter>(entries, profile, &P::layoutType, &P::setLayoutType,
                                     &P::layoutTypeChanged);
}

/// A box bound to a profile of its own.
struct Scene {
    std::unique_ptr<LayoutManagerProifle> profile = std::make_unique<LayoutManagerProifle>();
    std::unique_ptr<Adapter> adapter = adapterOf(profile.get());
    QSignalSpy changed{profile.get(), &LayoutManagerProifle::layoutTypeChanged};
    Profile::TabletComboBox2 box;

    Scene() { bind(adapter.get()); }
    void bind(Profile::IEnumProfileAdapter *newAdapter)
    {
        box.reset();
        box.setProfile(newAdapter);
        box.afterSetProfile();
    }
};

} // namespace

class tst_TabletComboBox2 : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void boundBothWays()
    {
        Scene f;
        // Filling the list chose nothing.
        QCOMPARE(f.changed.count(), 0);
        QCOMPARE(f.box.count(), 3);
        QCOMPARE(f.box.currentText(), "one"_s);
        f.profile->setLayoutType(LayoutType::Stacked);
        QCOMPARE(f.box.currentText(), "two"_s);
        QCOMPARE(f.changed.count(), 1);
        QTest::keyClick(&f.box, Qt::Key_Home);
        QCOMPARE(f.profile->layoutType(), LayoutType::Quad);
        QCOMPARE(f.changed.count(), 2);
        // A value that is not on offer is shown as none, and stays.
        f.profile->setLayoutType(LayoutType::SideBySide);
        QCOMPARE(f.box.currentIndex(), -1);
        QCOMPARE(f.profile->layoutType(), LayoutType::SideBySide);

        // A choice that the profile refuses returns.
        connect(f.profile.get(), &LayoutManagerProifle::layoutTypeChanged,
                [&f] { f.profile->setLayoutType(LayoutType::Single); });
        f.box.setCurrentIndex(2);
        QCOMPARE(f.profile->layoutType(), LayoutType::Single);
        QCOMPARE(f.box.currentText(), "one"_s);
    }

    void newProfileTakesOver()
    {
        Scene f;
        LayoutManagerProifle second;
        second.setLayoutType(LayoutType::Quad);
        const auto secondAdapter = adapterOf(&second);
        f.bind(secondAdapter.get());
        QCOMPARE(f.box.currentText(), "four"_s);
        f.profile->setLayoutType(LayoutType::Stacked);
        QCOMPARE(f.box.currentText(), "four"_s);
        f.box.setCurrentIndex(1);
        QCOMPARE(second.layoutType(), LayoutType::Single);
        QCOMPARE(f.profile->layoutType(), LayoutType::Stacked);
        f.box.reset();
        QCOMPARE(f.box.count(), 0);
        QCOMPARE(f.box.profile(), nullptr);
        QCOMPARE(second.layoutType(), LayoutType::Single);
    }

    void iconsComeInAnyOrder()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("icon.png"_s);
        QVERIFY(QImage(8, 8, QImage::Format_RGB32).save(path));
        Scene f;
        f.box.setIcons({path, path});
        for (int round = 0; round < 2; ++round) {
            QVERIFY(!f.box.itemIcon(1).isNull() && f.box.itemIcon(2).isNull());
            f.bind(f.adapter.get());
        }
        f.box.setIcons({});
        QVERIFY(f.box.itemIcon(1).isNull());
    }

    void survivesWhatGoesBeforeIt()
    {
        Scene f;
        f.profile.reset();
        f.box.setCurrentIndex(2);
        QCOMPARE(f.box.currentIndex(), -1);
        f.adapter.reset();
        QCOMPARE(f.box.profile(), nullptr);
        f.box.afterSetProfile();
        const auto nothing = adapterOf(nullptr);
        f.bind(nothing.get());
        QCOMPARE(f.box.count(), 3);
    }

    void adapterKnowsItsEntriesOnly()
    {
        Scene f;
        for (const int index : {-1, 3}) {
            QCOMPARE(f.adapter->text(index), QString());
            f.adapter->setCurrentIndex(index);
        }
        QCOMPARE(f.profile->layoutType(), LayoutType::Single);
        QCOMPARE(f.changed.count(), 0);
    }

    void adapterMayGoAtAChoice()
    {
        Scene f;
        connect(f.profile.get(), &LayoutManagerProifle::layoutTypeChanged, &f.box,
                [&f] { f.adapter.reset(); });
        f.box.setCurrentIndex(2);
        QCOMPARE(f.profile->layoutType(), LayoutType::Stacked);
        QCOMPARE(f.box.currentIndex(), -1);
    }
};

QTEST_MAIN(tst_TabletComboBox2)
#include "tst_tabletcombobox2.moc"
