// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/combobox.h>
#include <controls/draggableframelessdialog.h>
#include <controls/thememanager.h>

#include <functional>
#include <memory>

#include <vnatest.h>

using namespace VnaTest;
using Controls::ThemeManager;

namespace
{

QString sheet(const QString &name)
{
    QFile file(QCoreApplication::applicationDirPath()
               + "/../configuration/theme-%1.css"_s.arg(name));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString text = QString::fromUtf8(file.readAll());
    return text.remove(
        QRegularExpression("/\\*.*?\\*/"_s, QRegularExpression::DotMatchesEverythingOption));
}

/// What a sheet styles, rule by rule: "selector: property property".
QStringList rules(const QString &text)
{
    static const QRegularExpression rule("([^{}]+)\\{([^{}]*)\\}"_s);
    static const QRegularExpression property("([a-z-]+)\\s*:"_s);
    QStringList found;
    for (auto it = rule.globalMatch(text); it.hasNext();) {
        const auto match = it.next();
        QString line = match.captured(1).simplified() + QLatin1Char(':');
        QString body = match.captured(2);
        body.remove(QRegularExpression("url\\([^)]*\\)"_s));
        for (auto p = property.globalMatch(body); p.hasNext();)
            line += QLatin1Char(' ') + p.next().captured(1);
        found << line;
    }
    return found;
}

} // namespace

class tst_StyleSheets : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void themesStyleTheSameThings()
    {
        const QStringList dark = rules(sheet("dark"_s));
        const QStringList light = rules(sheet("light"_s));
        QVERIFY(dark.count() > 50);
        for (int i = 0; i < qMin(dark.count(), light.count()); ++i)
            QCOMPARE(light.at(i), dark.at(i));
        QCOMPARE(light.count(), dark.count());
    }

    void pictureFilesExist_data() { themes(); }

    void pictureFilesExist()
    {
        QFETCH(QString, name);
        static const QRegularExpression url("url\\(\"([^\"]*)\"\\)"_s);
        int count = 0;
        for (auto it = url.globalMatch(sheet(name)); it.hasNext(); ++count) {
            const QString path = it.next().captured(1);
            QVERIFY2(QFile::exists(path), qPrintable(path));
            QVERIFY2(!QIcon(path).pixmap(16, 16).isNull(), qPrintable(path));
            QCOMPARE(path.endsWith("_light.svg"_s), name == "light"_s);
        }
        QVERIFY(count > 5);
    }

    void everyWidgetTakesIt_data() { themes(); }

    // A sheet that does not parse, or a property of the wrong type, warns: and a warning fails the
    // test.
    void everyWidgetTakesIt()
    {
        setTheme();
        QVERIFY(qApp->styleSheet().contains("QPushButton"_s));

        QMainWindow window;
        auto *page = new QWidget;
        auto *layout = new QVBoxLayout(page);
        for (QWidget *widget : std::initializer_list<QWidget *>{
                 new QPushButton("b"_s), new QToolButton, new QCheckBox, new QRadioButton,
                 new QLineEdit, new QSpinBox, new QComboBox, new Controls::ComboBox,
                 new QPlainTextEdit, new QSlider, new QProgressBar, new QTableWidget(2, 2),
                 new QListWidget, new QTreeWidget, new QTabWidget, new QGroupBox("g"_s),
                 new QScrollBar, new QLabel})
            layout->addWidget(widget);
        window.setCentralWidget(page);
        window.show();
        Controls::DraggableFramelessDialog dialog(&window);
        dialog.setHeaderButton(QFlags<Controls::DraggableDialogTitleBar::Button>(7));
        dialog.show();
        QMenu menu;
        menu.addAction("a"_s);
        menu.popup({});
        QVERIFY(!window.grab().isNull() && !dialog.grab().isNull() && !menu.grab().isNull());
    }

    void statesLookDifferent_data() { themes(); }

    void statesLookDifferent()
    {
        setTheme();
        QWidget window;
        QPushButton other(&window);
        QPushButton button("Preset"_s, &window);
        button.setCheckable(true);
        button.resize(120, 40);
        button.setAutoDefault(false);
        window.show();
        QApplication::setActiveWindow(&window);
        other.setFocus();

        const std::function<void()> changes[] = {
            [] {},
            [&] { button.setFocus(); },
            [&] { other.setFocus(), button.setDown(true); },
            [&] { button.setDown(false), button.setChecked(true); },
            [&] { button.setChecked(false), button.setEnabled(false); },
        };
        QVector<QImage> looks;
        for (const auto &change : changes) {
            change();
            looks << button.grab().toImage();
        }
        for (int a = 0; a < looks.count(); ++a) {
            for (int b = 0; b < a; ++b)
                QVERIFY2(looks.at(a) != looks.at(b), qPrintable("%1 %2"_s.arg(a).arg(b)));
        }
    }

private:
    static void themes()
    {
        columns<QString>("name");
        row("dark", "dark");
        row("light", "light");
    }

    /// The theme of the row.
    static void setTheme()
    {
        const bool light = qstrcmp(QTest::currentDataTag(), "light") == 0;
        ThemeManager::instance()->setTheme(light ? ThemeManager::Light : ThemeManager::Dark);
    }
};

QTEST_MAIN(tst_StyleSheets)
#include "tst_stylesheets.moc"
