// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/keypadeditor.h>
#include <controls/scaledunitadapter.h>
#include <controls/thememanager.h>
#include <controls/touchnumkeyboard.h>
#include <smithchart/smithchartplot.h>
#include <widgets/markerstatusitem.h>
#include <widgets/popupwidget.h>

#include <pointer.h>
#include <vnatest.h>

#include <cmath>
#include <functional>

using namespace VnaTest;
using Controls::ThemeManager;

namespace
{

/// Draws a scene with a font.
using Scene = std::function<QImage(const QFont &font)>;

QImage grabbed(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// A line that winds inwards, with a selected marker on it and another one.
QImage chart(const QFont &font, SmithChartPlot::GridMode mode, double zoom = 1.0)
{
    QCustomPlot plot;
    plot.setFont(font);
    plot.resize(260, 260);
    plot.setBackground(ThemeManager::instance()->backgroundColor());
    plot.axisRect()->setBackground(QBrush());
    SmithChartPlot chart(&plot, SmithChart::Standard);
    chart.setGridMode(mode);
    QVector<double> frequencies, real, imag;
    for (int i = 0; i <= 100; ++i) {
        frequencies << i;
        real << (0.9 - 0.007 * i) * std::cos(0.12 * i);
        imag << -(0.9 - 0.007 * i) * std::sin(0.12 * i);
    }
    chart.addCurve(1, ThemeManager::instance()->getTracePalette().value(0));
    chart.setCurveData(1, frequencies, real, imag);
    chart.setActiveTrace(1);
    chart.addMarkerVisual(1, 1, 20, Plot::PointingDown);
    chart.addMarkerVisual(1, 2, 60, Plot::PointingUp);
    chart.selectMarker(1, 2);
    for (const int marker : {1, 2})
        chart.getMarker(1, marker)->getLabel()->setFont(font);
    chart.zoomAt({0.4, 0.3}, zoom);
    for (QCPAxis *const axis : {plot.xAxis, plot.yAxis})
        axis->setBasePen(Qt::NoPen);
    return plot.toPixmap(260, 260).toImage().convertToFormat(QImage::Format_RGB32);
}

QImage keypad(const QFont &font)
{
    QMainWindow window;
    window.resize(500, 500);
    showExposed(&window);
    auto *const keypad = new Controls::TouchNumKeyboard(&window);
    keypad->setFont(font);
    auto *const adapter = new Controls::ScaledUnitAdapter(
        {{"GHz"_s, 1e9}, {"MHz"_s, 1e6}, {"kHz"_s, 1e3}, {"Hz"_s, 1.0}}, keypad);
    adapter->setDecimals(6);
    new Controls::KeypadEditor(keypad, adapter);
    adapter->setRealValue(2.45e9);
    keypad->setWindowTitle("Stop"_s);
    keypad->open();
    // With the focus come the value and the unit keys.
    const auto *const edit = keypad->findChild<QLineEdit *>("edit"_s);
    if (!QTest::qWaitFor([edit] { return edit->hasFocus() && edit->text() == "2.45GHz"_s; }))
        return QImage();
    QCoreApplication::sendPostedEvents(); // lays the unit keys out
    return grabbed(*keypad);
}

QImage list(const QFont &font)
{
    PopupWidget popup;
    popup.setFont(font);
    popup.addItems({"Log magnitude"_s, "Phase"_s, "Smith R + jX"_s, "Standing wave"_s}, 1);
    popup.setItemEnabled(2, false);
    popup.setWidgetFixedWidth(200);
    popup.popup();
    popup.show();
    return grabbed(popup);
}

QImage reading(const QFont &font)
{
    QWidget host;
    host.setFont(font);
    QPalette palette = host.palette();
    palette.setColor(QPalette::Window, ThemeManager::instance()->backgroundColor());
    host.setPalette(palette);
    auto *const layout = new QVBoxLayout(&host);
    for (const bool selected : {true, false}) {
        auto *const item = new MarkerStatusItem;
        item->setText(selected ? "M1R:"_s : "M2:"_s, "2.412GHz"_s, "48.21Ω"_s, "3.10Ω"_s,
                      "204.5pH"_s);
        item->setColor(ThemeManager::instance()->getTracePalette().value(selected ? 0 : 1));
        item->setSelectedStatus(selected);
        item->setLayoutWidth(selected ? 460 : 260);
        layout->addWidget(item);
    }
    host.resize(500, 140);
    return grabbed(host);
}

const QList<std::pair<QString, Scene>> &scenes()
{
    static const QList<std::pair<QString, Scene>> all{
        {"impedance"_s, [](const QFont &f) { return chart(f, SmithChartPlot::Impedance); }},
        {"admittance"_s, [](const QFont &f) { return chart(f, SmithChartPlot::Admittance); }},
        {"both"_s, [](const QFont &f) { return chart(f, SmithChartPlot::ImpedanceAndAdmittance); }},
        {"keypad"_s, keypad},
        {"list"_s, list},
        {"reading"_s, reading},
    };
    return all;
}

QFont plainFont(QFont::HintingPreference hinting = QFont::PreferDefaultHinting)
{
    QFont font("DejaVu Sans"_s, 9);
    font.setHintingPreference(hinting);
    return font;
}

/// Why two pictures are not of the same looks; empty if they are. Pixels are compared in squares of
/// 4: there a glyph drawn with other hinting or a line with other antialiasing has much of the same
/// colour, while what is missing, or has another colour, has not.
QString difference(const QImage &a, const QImage &b)
{
    if (a.size() != b.size())
        return QStringLiteral("%1 x %2 pixels instead of %3 x %4")
            .arg(a.width())
            .arg(a.height())
            .arg(b.width())
            .arg(b.height());
    constexpr int side = 4;
    constexpr int noticeable = 16; // of 255
    constexpr int glaring = 96;
    const QSize squares(a.width() / side, a.height() / side);
    const QImage p = a.scaled(squares, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QImage q = b.scaled(squares, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int changed = 0;
    int largest = 0;
    for (int y = 0; y < squares.height(); ++y) {
        for (int x = 0; x < squares.width(); ++x) {
            const QColor c = p.pixelColor(x, y);
            const QColor d = q.pixelColor(x, y);
            const int distance =
                std::max({std::abs(c.red() - d.red()), std::abs(c.green() - d.green()),
                          std::abs(c.blue() - d.blue())});
            changed += distance > noticeable;
            largest = std::max(largest, distance);
        }
    }
    const double share = 100.0 * changed / (squares.width() * squares.height());
    return largest > glaring || share > 3.0
        ? QStringLiteral("%1 % of the picture differ, by up to %2 of 255").arg(share).arg(largest)
        : QString();
}

} // namespace

Q_DECLARE_METATYPE(Scene)

class tst_Pictures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // A cursor that blinks is on one picture and not on the next.
        QApplication::setCursorFlashTime(0);
    }

    void cleanup()
    {
        ThemeManager::instance()->setTheme(ThemeManager::Dark);
        TestCase::cleanup();
    }

    void looks_data()
    {
        columns<Scene, bool>("scene", "light");
        for (const bool light : {false, true}) {
            for (const auto &[name, scene] : scenes())
                row(qPrintable(name + (light ? "-light"_s : "-dark"_s)), scene, light);
        }
    }

    void looks()
    {
        QFETCH(Scene, scene);
        QFETCH(bool, light);
        ThemeManager::instance()->setTheme(light ? ThemeManager::Light : ThemeManager::Dark);
        const QString name = QLatin1String(QTest::currentDataTag()) + ".png"_s;
        const QString path = QLatin1String(VNA_PICTURES "/") + name;
        const QImage drawn = scene(plainFont());
        if (qEnvironmentVariableIsSet("VNA_UPDATE_PICTURES")) {
            QVERIFY(QDir().mkpath(QFileInfo(path).path()));
            // One that shows the same stays, so that reviews show what changed.
            if (const QImage known(path); known.isNull()
                || !difference(drawn, known.convertToFormat(QImage::Format_RGB32)).isEmpty())
                QVERIFY(drawn.save(path));
            return;
        }
        const QImage known(path);
        QVERIFY2(!known.isNull(), qPrintable("there is no "_s + path));
        const QString reason = difference(drawn, known.convertToFormat(QImage::Format_RGB32));
        if (!reason.isEmpty())
            drawn.save(name); // beside the test's other output, to be looked at
        QVERIFY2(reason.isEmpty(), qPrintable(name + ": "_s + reason));
    }

    /// Another hinting passes, and changes of looks do not.
    void theComparison()
    {
        for (const auto &[name, scene] : scenes()) {
            const Row row(name);
            const QImage reference = scene(plainFont());
            QCOMPARE(difference(reference, scene(plainFont(QFont::PreferNoHinting))), QString());
            QCOMPARE(difference(reference, scene(plainFont(QFont::PreferFullHinting))), QString());
            QImage spoiled = reference;
            QPainter(&spoiled).fillRect(10, 10, 40, 40, QColor(0, 160, 160));
            QVERIFY(!difference(reference, spoiled).isEmpty());
        }
        const auto impedance = chart(plainFont(), SmithChartPlot::Impedance);
        QVERIFY(!difference(impedance, chart(plainFont(), SmithChartPlot::Admittance)).isEmpty());
        QVERIFY(
            !difference(impedance, chart(plainFont(), SmithChartPlot::Impedance, 1.1)).isEmpty());
        const QImage dark = reading(plainFont());
        ThemeManager::instance()->setTheme(ThemeManager::Light);
        QVERIFY(!difference(dark, reading(plainFont())).isEmpty());
    }
};

QTEST_MAIN(tst_Pictures)
#include "tst_pictures.moc"
