// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/guicontext.h>
#include <platform/layoutmanagerprofile.h>
#include <platform/tabletcombobox2.h>
#include <widgets/displaypanel.h>

#include <vnatest.h>

#include <QTranslator>

using namespace VnaTest;
using Graph::LayoutManagerProifle;
using Graph::LayoutType;

namespace
{

QComboBox *boxOf(const QWidget &panel)
{
    return panel.findChild<Profile::TabletComboBox2 *>("layoutSelectEdit"_s);
}

/// A language whose texts are longer.
class LongTexts : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QLatin1String(text) + " and then some"_s;
    }
};

} // namespace

class tst_DisplayPanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void choiceAndProfileFollowEachOther()
    {
        LayoutManagerProifle profile;
        profile.setLayoutType(LayoutType::Stacked);
        DisplayPanel panel(&profile);
        QVector<int> told;
        connect(&panel, &DisplayPanel::layoutChanged, [&told](int type) { told << type; });
        QComboBox *box = boxOf(panel);
        QCOMPARE(box->count(), 4);
        QVERIFY(!box->accessibleName().isEmpty());
        QEvent language(QEvent::LanguageChange); // keeps the choice
        QCoreApplication::sendEvent(&panel, &language);
        QCOMPARE(box->currentIndex(), 2);
        QCOMPARE(profile.layoutType(), LayoutType::Stacked);
        QVERIFY(told.isEmpty());
        panel.show();
        box->setFocus();
        QTest::keyClick(panel.windowHandle(), Qt::Key_End);
        QCOMPARE(profile.layoutType(), LayoutType::Quad);
        profile.setLayoutType(LayoutType::Single);
        QCOMPARE(box->currentIndex(), 0);
        QCOMPARE(told, (QVector<int>{int(LayoutType::Quad), int(LayoutType::Single)}));
    }

    void widthFollowsTheLanguage()
    {
        DisplayPanel panel(nullptr);
        panel.show();
        const int width = boxOf(panel)->sizeHint().width();
        LongTexts language;
        QCoreApplication::installTranslator(&language);
        QCoreApplication::processEvents();
        QVERIFY(boxOf(panel)->sizeHint().width() > width);
        QCoreApplication::removeTranslator(&language);
    }

    void iconsFollowTheThemeAndTheChoiceStays()
    {
        LayoutManagerProifle profile;
        profile.setLayoutType(LayoutType::Quad);
        DisplayPanel panel(&profile);
        const auto imageOf = [](const QIcon &icon) { return icon.pixmap(24, 24).toImage(); };
        for (bool dark : {false, true}) {
            Utils::GUIContext::instance()->setIsDarkTheme(dark);
            for (int index = 0; index < 4; ++index) {
                const QString path = ":/Graph/Image/layout%1%2"_s.arg(index + 1);
                const QImage shown = imageOf(boxOf(panel)->itemIcon(index));
                QVERIFY(!shown.isNull());
                QCOMPARE(shown, imageOf(QIcon(path.arg(dark ? QString() : "_light"_s))));
            }
            QCOMPARE(boxOf(panel)->currentIndex(), 3);
        }
    }
};

QTEST_MAIN(tst_DisplayPanel)
#include "tst_displaypanel.moc"
