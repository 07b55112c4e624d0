// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <smithchart/viewgridlabels_p.h>
#include <smithchart/viewstate.h>

#include <vnatest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>
#include <random>

using namespace VnaTest;
using namespace SmithChart;

namespace
{

constexpr double infinity = std::numeric_limits<double>::infinity();

GridView viewOf(const ViewState &state, int width, int height)
{
    const ViewRanges r = viewRanges(state, baseHalfRanges(width, height));
    return {QRectF(r.xLower, r.yLower, r.xUpper - r.xLower, r.yUpper - r.yLower),
            width / (r.xUpper - r.xLower)};
}

/// Views of all sizes and zooms whose middle lies within the chart.
class RandomViews
{
public:
    GridView next()
    {
        const int width = static_cast<int>(uniform(480, 1300));
        const int height = static_cast<int>(uniform(400, 1000));
        ViewState state;
        state.zoom = std::exp(uniform(0.0, std::log(200.0)));
        const double radius = std::sqrt(uniform(0.0, 0.96));
        const double angle = uniform(0.0, 6.2832);
        state.centerX = radius * std::cos(angle);
        state.centerY = radius * std::sin(angle);
        return viewOf(clampViewState(state, baseHalfRanges(width, height), 200.0), width, height);
    }
    double uniform(double low, double high)
    {
        return std::uniform_real_distribution<double>(low, high)(m_generator);
    }

private:
    std::mt19937 m_generator{17};
};

std::complex<double> impedanceAt(const QPointF &g)
{
    const std::complex<double> reflection(g.x(), g.y());
    return (1.0 + reflection) / (1.0 - reflection);
}

/// The pixels between the two lines on either side of a normalised impedance.
double gapAround(const QVector<ViewGridLine> &lines, double reference, const GridView &view,
                 GridPart part, std::complex<double> z)
{
    const bool real = part == GridPart::Real;
    const double value = (real ? z.real() : z.imag()) * reference;
    const double other = (real ? z.imag() : z.real()) * reference;
    // Rim, real axis and open circuit are lines, too.
    double below = real || value >= 0.0 ? 0.0 : -infinity;
    double above = real || value >= 0.0 ? infinity : 0.0;
    for (const ViewGridLine &line : lines) {
        if (line.part != part || line.from > other || line.to < other)
            continue;
        if (line.value <= value)
            below = std::max(below, line.value);
        else
            above = std::min(above, line.value);
    }
    const auto reflection = [&](double at) -> std::complex<double> {
        if (std::isinf(at))
            return 1.0;
        const std::complex<double> point =
            (real ? std::complex<double>(at, other) : std::complex<double>(other, at)) / reference;
        return (point - 1.0) / (point + 1.0);
    };
    return std::abs(reflection(below) - reflection(above)) * view.pixelsPerUnit;
}

/// Whether five digits write the value exactly.
bool isRound(double value)
{
    return QString::number(value, 'g', 5).toDouble() == value;
}

QSizeF measure(const QString &text)
{
    return QSizeF(7.0 * static_cast<double>(text.size()) + 4.0, 14.0);
}

} // namespace

class tst_ViewGrid : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /// Every point of an arc has the value of its line.
    void arcsHoldTheirValue()
    {
        const auto check = [](GridPart part, double value, double from, double to) {
            const GridArc arc(part, value, from, to);
            for (const QPointF &g : arc.points({arc.firstAngle(), arc.lastAngle()}, 1e-4)) {
                if (QPointF(g - QPointF(1.0, 0.0)).manhattanLength() < 1e-6)
                    continue; // the open circuit has every value
                const std::complex<double> z = impedanceAt(g);
                const double held = part == GridPart::Real ? z.real() : z.imag();
                const double other = part == GridPart::Real ? z.imag() : z.real();
                QVERIFY2(std::abs(held - value) < 1e-6 * (1.0 + std::norm(z)),
                         qPrintable(QString::number(held)));
                QVERIFY(other > from - 1e-6 * (1.0 + std::norm(z))
                        && other < to + 1e-6 * (1.0 + std::norm(z)));
            }
        };
        check(GridPart::Real, 0.0, -infinity, infinity);
        check(GridPart::Real, 0.5, -2.0, 3.0);
        check(GridPart::Real, 50.0, -infinity, 0.0);
        check(GridPart::Imaginary, 1.0, 0.0, infinity);
        check(GridPart::Imaginary, -0.2, 0.1, 5.0);
        check(GridPart::Imaginary, 1e-6, 0.0, 2.0); // radius 1,000,000
    }

    void arcsAreCutAtRectangles()
    {
        RandomViews random;
        for (int i = 0; i < 2000; ++i) {
            const bool real = i % 2 == 0;
            const double value =
                std::exp(random.uniform(-5.0, 4.0)) * (real || i % 4 == 1 ? 1.0 : -1.0);
            const double from = real ? random.uniform(-4.0, 1.0) : random.uniform(0.0, 1.0);
            const GridArc arc(real ? GridPart::Real : GridPart::Imaginary, value, from,
                              from + random.uniform(0.0, 5.0));
            const QRectF rect = random.next().rect;
            const QVector<ArcStretch> stretches = arc.within(rect);
            for (int k = 0; k <= 50; ++k) {
                const double angle =
                    arc.firstAngle() + (arc.lastAngle() - arc.firstAngle()) * (k + 0.5) / 51.0;
                const QPointF g = arc.at(angle);
                const QRectF smaller = rect.adjusted(1e-9, 1e-9, -1e-9, -1e-9);
                const QRectF larger = rect.adjusted(-1e-9, -1e-9, 1e-9, 1e-9);
                const bool found =
                    std::any_of(stretches.cbegin(), stretches.cend(), [angle](const ArcStretch &s) {
                        return angle >= s.first && angle <= s.last;
                    });
                QVERIFY(found || !smaller.contains(g));
                QVERIFY(!found || larger.contains(g));
            }
        }
    }

    /// Wherever one looks, lines stand on both sides, some 30 to 70 pixels apart.
    void linesFollowTheView()
    {
        RandomViews random;
        QVector<double> gaps;
        for (int i = 0; i < 300; ++i) {
            const GridView view = random.next();
            const double reference = i % 2 == 0 ? 1.0 : 50.0;
            const QVector<ViewGridLine> lines = viewGridLines(view, {reference, 27.0});
            QVERIFY2(lines.size() < 500, qPrintable(QString::number(lines.size())));
            for (int k = 0; k < 20; ++k) {
                const QPointF g(random.uniform(view.rect.left(), view.rect.right()),
                                random.uniform(view.rect.top(), view.rect.bottom()));
                const double toOpen = std::hypot(1.0 - g.x(), g.y()) * view.pixelsPerUnit;
                if (std::hypot(g.x(), g.y()) > 1.0 || toOpen < 100.0)
                    continue;
                for (const GridPart part : {GridPart::Real, GridPart::Imaginary})
                    gaps.append(gapAround(lines, reference, view, part, impedanceAt(g)));
            }
        }
        QVERIFY(gaps.size() > 5000);
        std::sort(gaps.begin(), gaps.end());
        const auto share = [&gaps](double percent) {
            return gaps.at(
                static_cast<int>(percent / 100.0 * static_cast<double>(gaps.size() - 1)));
        };
        QVERIFY2(share(0.0) > 14.0, qPrintable(QString::number(share(0.0))));
        QVERIFY2(share(5.0) > 25.0, qPrintable(QString::number(share(5.0))));
        QVERIFY2(share(90.0) < 75.0, qPrintable(QString::number(share(90.0))));
        QVERIFY2(share(100.0) < 170.0, qPrintable(QString::number(share(100.0))));
    }

    /// As on the printed chart, a line ends at one of the other part; and its value is a round one.
    void linesEndAtLines()
    {
        RandomViews random;
        for (int i = 0; i < 200; ++i) {
            const GridView view = random.next();
            const QVector<ViewGridLine> lines = viewGridLines(view, {50.0, 27.0});
            for (const ViewGridLine &line : lines) {
                QVERIFY2(isRound(line.value), qPrintable(QString::number(line.value, 'g', 17)));
                const GridArc arc = gridArc(line, 50.0);
                for (const double end : {line.from, line.to}) {
                    const double angle = (line.part == GridPart::Real) == (end == line.from)
                        ? arc.firstAngle()
                        : arc.lastAngle();
                    if (end == 0.0 || !view.rect.contains(arc.at(angle)))
                        continue; // at axis or rim, or out of sight
                    const bool met =
                        std::any_of(lines.cbegin(), lines.cend(), [&](const ViewGridLine &other) {
                            return other.part != line.part && other.value == end
                                && other.from <= line.value && other.to >= line.value;
                        });
                    QVERIFY2(met,
                             qPrintable(QStringLiteral("%1 ends at %2").arg(line.value).arg(end)));
                }
            }
        }
    }

    void refusesWhatIsNoView()
    {
        const GridView whole = viewOf({}, 800, 600);
        QVERIFY(!viewGridLines(whole, {1.0, 27.0}).isEmpty());
        for (const double bad : {0.0, -50.0, double(qQNaN()), double(qInf())}) {
            QVERIFY(viewGridLines(whole, {bad, 27.0}).isEmpty());
            QVERIFY(viewGridLines(whole, {1.0, bad}).isEmpty());
            QVERIFY(viewGridLines({whole.rect, bad}, {1.0, 27.0}).isEmpty());
            for (const QRectF &rect : {QRectF(0.0, 0.0, bad, 1.0), QRectF(0.0, 0.0, 1.0, bad)})
                QVERIFY(viewGridLines({rect, 100.0}, {1.0, 27.0}).isEmpty());
        }
        for (const QPointF &corner : {QPointF(qQNaN(), 0.0), QPointF(0.0, qInf())})
            QVERIFY(viewGridLines({{corner, QSizeF(1.0, 1.0)}, 100.0}, {1.0, 27.0}).isEmpty());
    }

    void texts()
    {
        QCOMPARE(gridLabelText(GridPart::Real, 0.3, GridUnit::Normalised), "0.3"_s);
        QCOMPARE(gridLabelText(GridPart::Imaginary, -2.0, GridUnit::Normalised),
                 QChar(0x2212) + "j2"_s);
        QCOMPARE(gridLabelText(GridPart::Imaginary, 1500.0, GridUnit::Ohms), "j1.5k"_s);
        QCOMPARE(gridLabelText(GridPart::Real, 2e6, GridUnit::Ohms), "2M"_s);
        QCOMPARE(gridLabelText(GridPart::Real, 2.5, GridUnit::Siemens), "2.5"_s);
        QCOMPARE(gridLabelText(GridPart::Real, 0.02, GridUnit::Siemens), "20m"_s);
        QCOMPARE(gridLabelText(GridPart::Imaginary, 0.01172, GridUnit::Siemens), "j11.72m"_s);
        QCOMPARE(gridLabelText(GridPart::Real, 0.0005, GridUnit::Siemens), "500"_s + QChar(0xb5));
    }

    /// At 1,000 random views: 4 to 12 labels of each kind, within the view, none over another or
    /// over the rim, and each at its line.
    void labels()
    {
        RandomViews random;
        for (int i = 0; i < 1000; ++i) {
            const GridView view = random.next();
            const bool both = i % 3 == 2;
            QVector<ViewGridLabel> labels;
            const auto check = [&](GridChart chart, bool second) {
                const GridMapping mapping(view, chart);
                ViewGridLabelRules rules;
                rules.reference = i % 2 == 0 ? 1.0 : 50.0;
                rules.asSecondChart = second;
                rules.measure = measure;
                const auto before = labels.size();
                appendViewGridLabels(
                    viewGridLines(mapping.chartView(), {rules.reference, both ? 40.0 : 27.0}),
                    mapping, rules, labels);
                int counts[2] = {0, 0};
                for (auto k = before; k < labels.size(); ++k) {
                    const ViewGridLabel &label = labels.at(k);
                    ++counts[label.part == GridPart::Real ? 0 : 1];
                    QVERIFY(mapping.pixelRect().contains(label.rect));
                    for (int other = 0; other < k; ++other)
                        QVERIFY(!labels.at(other).rect.intersects(label.rect));
                    // Near the line: next to it at the rim, over it elsewhere.
                    const QRectF near = mapping.toChart(label.rect.adjusted(-12, -12, 12, 12));
                    const GridArc line(label.part, label.value / rules.reference,
                                       label.part == GridPart::Real ? -infinity : 0.0, infinity);
                    QVERIFY2(!line.within(near).isEmpty(), qPrintable(label.text));
                    const GridArc rim(GridPart::Real, 0.0, -infinity, infinity);
                    QVERIFY2(rim.within(mapping.toChart(label.rect)).isEmpty(),
                             qPrintable(label.text));
                }
                for (const int count : counts) {
                    QVERIFY2(count >= (both ? 1 : 4) && count <= 12,
                             qPrintable(QStringLiteral("view %1: %2").arg(i).arg(count)));
                }
            };
            check(GridChart::Impedance, false);
            if (both)
                check(GridChart::Admittance, true);
        }
    }

    /// On the whole chart labels stand at axis and rim, below and outside.
    void labelsAtHome()
    {
        const GridView view = viewOf({}, 900, 800);
        const GridMapping mapping(view, GridChart::Impedance);
        ViewGridLabelRules rules;
        rules.measure = measure;
        QVector<ViewGridLabel> labels;
        appendViewGridLabels(viewGridLines(view, {1.0, 27.0}), mapping, rules, labels);
        const auto find = [&labels](const QString &text) {
            const auto found =
                std::find_if(labels.cbegin(), labels.cend(),
                             [&text](const auto &label) { return label.text == text; });
            return found == labels.cend() ? QRectF() : found->rect;
        };
        const QPointF middle = mapping.toPixel({0.0, 0.0});
        QCOMPARE(find("1"_s).center().x(), middle.x());
        QVERIFY(find("1"_s).top() > middle.y());
        QVERIFY(find("j1"_s).bottom() < mapping.toPixel({0.0, 1.0}).y());
        QVERIFY(find(QChar(0x2212) + "j1"_s).top() > mapping.toPixel({0.0, -1.0}).y());
        for (const char *text : {"0.2", "0.5", "2", "5", "10", "j0.2", "j0.5", "j2", "j5"})
            QVERIFY2(find(QString::fromLatin1(text)).isValid(), text);

        // Beside them there is room for those of a second chart: above and inside.
        const GridMapping second(view, GridChart::Admittance);
        rules.asSecondChart = true;
        QVector<ViewGridLabel> both = labels;
        appendViewGridLabels(viewGridLines(second.chartView(), {1.0, 40.0}), second, rules, both);
        int aboveAxis = 0;
        for (auto i = labels.size(); i < both.size(); ++i)
            aboveAxis += both.at(i).part == GridPart::Real ? 1 : 0;
        QVERIFY2(aboveAxis >= 6, qPrintable(QString::number(aboveAxis)));
    }
};

QTEST_APPLESS_MAIN(tst_ViewGrid)
#include "tst_viewgrid.moc"
