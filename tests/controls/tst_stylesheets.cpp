// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/combobox.h>
#include <controls/draggableframelessdialog.h>
#include <controls/thememanager.h>

#include <cmath>
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

/// Contrast of two colours after the formula of the web's accessibility guidelines, 1 to 21.
double contrast(const QColor &a, const QColor &b)
{
    const auto luminance = [](const QColor &color) {
        const auto linear = [](double value) {
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
            + 0.0722 * linear(color.blueF());
    };
    const double lighter = qMax(luminance(a), luminance(b)) + 0.05;
    return lighter / (qMin(luminance(a), luminance(b)) + 0.05);
}

/// The background and the strongest colour on it.
QPair<QColor, QColor> paperAndInk(QWidget *widget)
{
    const QImage image = widget->grab().toImage();
    const QColor paper = image.pixelColor(image.width() / 2, 5);
    QColor ink = paper;
    for (int y = 8; y < image.height() - 8; ++y) {
        for (int x = 8; x < image.width() - 8; ++x) {
            if (contrast(paper, image.pixelColor(x, y)) > contrast(paper, ink))
                ink = image.pixelColor(x, y);
        }
    }
    return {paper, ink};
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

        const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
        for (QPushButton *button : buttons)
            QVERIFY2(hasDrawnIcon(button), qPrintable(button->objectName()));
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

    void textsAreLegible_data() { themes(); }

    void textsAreLegible()
    {
        setTheme();
        QMainWindow window;
        auto *page = new QWidget;
        window.setCentralWidget(page);
        auto *layout = new QVBoxLayout(page);
        auto *box = new Controls::ComboBox;
        box->addItem("HHH"_s);
        QVector<QPushButton *> buttons;
        for (int i = 0; i < 4; ++i)
            buttons << new QPushButton("HHH"_s);
        buttons.at(1)->setCheckable(true);
        buttons.at(1)->setChecked(true);
        buttons.at(2)->setDown(true);
        buttons.at(3)->setEnabled(false);
        const QVector<QWidget *> widgets{buttons.at(0), buttons.at(1),          buttons.at(2),
                                         box,           new QLineEdit("HHH"_s), buttons.at(3)};
        for (QWidget *widget : widgets) {
            QFont font = widget->font();
            font.setPixelSize(24);
            widget->setFont(font);
            layout->addWidget(widget);
        }
        window.show();
        for (QWidget *widget : widgets) {
            const auto [paper, ink] = paperAndInk(widget);
            // Greyed out is yet to be read.
            const bool legible = contrast(paper, ink) >= (widget->isEnabled() ? 4.5 : 2.0);
            QVERIFY2(legible && (widget->isEnabled() || contrast(paper, ink) < 4.5),
                     qPrintable(paper.name() + QLatin1Char(' ') + ink.name()));
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

    static bool hasDrawnIcon(QPushButton *button)
    {
        const QImage image = button->grab().toImage();
        QImage plain(image.size(), image.format());
        plain.setDevicePixelRatio(image.devicePixelRatio());
        plain.fill(image.pixelColor(0, 0));
        return image != plain;
    }
};

QTEST_MAIN(tst_StyleSheets)
#include "tst_stylesheets.moc"
