// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"
#include "vnatest.h"

#include <panel/languages.h>
#include <panel/look.h>
#include <panel/simulateddevice.h>
#include <panel/sweepbar.h>
#include <panel/touchstone.h>
#include <platform/translator.h>
#include <widgets/displaypanel.h>

#include <QComboBox>
#include <QLabel>

using namespace Panel;

namespace
{

/// The captions of the bar under the diagrams, which are the library's.
QString captions(const PanelDesk &desk)
{
    const auto text = [&desk](const char *name) {
        return desk.window.sweepBar()->findChild<QLabel *>(QLatin1String(name))->text();
    };
    return text("label") + QLatin1Char('|') + text("label_6");
}

} // namespace

class LanguagesTest : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }
    void cleanup();
    void panelSpeaks_data();
    void panelSpeaks();
    void barFollowsAtRunTime();
};

void LanguagesTest::cleanup()
{
    QVERIFY(setLanguage(QStringLiteral("en")));
    TestCase::cleanup();
}

void LanguagesTest::panelSpeaks_data()
{
    QTest::addColumn<QString>("texts");
    QTest::newRow("en") << QStringLiteral("Center|LogM|Two side by side|Antenna|2 files|"
                                          "Start|Stop|x.s1p: the file holds no data.");
    QTest::newRow("de") << QStringLiteral("Mitte|LogM|Nebeneinander|Antenne|2 Dateien|"
                                          "Start|Stopp|x.s1p: die Datei enthält keine Daten.");
    QTest::newRow("zh_CN") << QStringLiteral("中心|对数幅度|左右两图|天线|2 个文件|"
                                             "起始|终止|x.s1p：文件不含数据。");
}

void LanguagesTest::panelSpeaks()
{
    QFETCH(QString, texts);
    QVERIFY(!setLanguage(QStringLiteral("xx")));
    QVERIFY(setLanguage(QLatin1String(QTest::currentDataTag())));
    PanelDesk desk;
    const QString folder = sampleFolder();
    desk.controller.openFiles({folder + QStringLiteral("/amplifier.s2p"), startSample()});
    desk.model.setActiveTrace(3);
    const PanelKeys &keys = desk.window.keys();
    const QStringList shown{keys.center->name(),
                            keys.format->value().section(QLatin1Char(' '), 0, 0),
                            keys.layout->findChild<QComboBox *>()->currentText(),
                            SimulatedDevice::name(SimulatedDevice::Antenna),
                            keys.file->value(),
                            captions(desk),
                            parseTouchstone("", 1).sentence(QStringLiteral("x.s1p"))};
    QCOMPARE(shown.join(QLatin1Char('|')), texts);
}

void LanguagesTest::barFollowsAtRunTime()
{
    const PanelDesk desk;
    auto *translator = Utils::Translator::instance();
    translator->setLanguage(QLocale(QLocale::German, QLocale::Austria));
    PanelDesk::settle();
    QCOMPARE(captions(desk), QStringLiteral("Start|Stopp"));
    // English where there is no catalogue, not the notes to translators.
    translator->setLanguage(QLocale(QLocale::Icelandic));
    PanelDesk::settle();
    QCOMPARE(captions(desk), QStringLiteral("Start|Stop"));
}

QTEST_MAIN(LanguagesTest)
#include "tst_languages.moc"
