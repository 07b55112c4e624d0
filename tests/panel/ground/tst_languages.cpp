// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <panel/ground/languages.h>
#include <panel/touchstone/touchstone.h>
#include <panel/window/sweepbar.h>
#include <platform/translator.h>
#include <widgets/displaypanel.h>

using namespace VnaTest;
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

class LanguagesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    void cleanup()
    {
        QVERIFY(setLanguage("en"_s));
        TestCase::cleanup();
    }

    void panelSpeaks()
    {
        QVERIFY(!setLanguage("xx"_s));
        const std::pair<QString, QString> rows[] = {
            {"en"_s,
             "Center|LogM|Two side by side|Antenna|2 files|"
             "Start|Stop|x.s1p: the file holds no data."_s},
            {"de"_s,
             "Mitte|LogM|Nebeneinander|Antenne|2 Dateien|"
             "Start|Stopp|x.s1p: die Datei enthält keine Daten."_s},
            {"zh_CN"_s, "中心|对数幅度|左右两图|天线|2 个文件|起始|终止|x.s1p：文件不含数据。"_s},
        };
        for (const auto &[language, texts] : rows) {
            QVERIFY(setLanguage(language));
            PanelDesk desk;
            desk.openSamples({"amplifier.s2p"_s, "band-pass.s2p"_s});
            desk.model.setActiveTrace(3);
            const PanelKeys &keys = desk.keys();
            const int width = desk.window.softKeys()->width();
            const QStringList shown{keys.center->name(),
                                    keys.format->value().section(QLatin1Char(' '), 0, 0),
                                    desk.layoutChoice()->currentText(),
                                    sourceName(Source::Antenna),
                                    keys.file->value(),
                                    captions(desk),
                                    parseTouchstone("", 1).sentence("x.s1p"_s)};
            QCOMPARE(shown.join(QLatin1Char('|')), texts);
            // The other pages have joined the window by now, and moved no diagram.
            PanelDesk::settle();
            QCOMPARE(desk.window.softKeys()->width(), width);
        }
    }

    void barFollowsAtRunTime()
    {
        const PanelDesk desk;
        auto *translator = Utils::Translator::instance();
        translator->setLanguage(QLocale(QLocale::German, QLocale::Austria));
        PanelDesk::settle();
        QCOMPARE(captions(desk), "Start|Stopp"_s);
        // English where there is no catalogue, not the notes to translators.
        translator->setLanguage(QLocale(QLocale::Icelandic));
        PanelDesk::settle();
        QCOMPARE(captions(desk), "Start|Stop"_s);
    }
};

QTEST_MAIN(LanguagesTest)
#include "tst_languages.moc"
