// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Keywords, more than two ports, references, and parameters that are not S.
#include "keywordfile.h"
#include "networks.h"
#include "vnatest.h"

#include <panel/touchstone/touchstone.h>

#include <complex>

using namespace VnaTest;
using namespace Panel;
using Complex = std::complex<double>;
using Vector = std::vector<Complex>;

namespace
{

Complex value(const Network &network, int to, int from, int point = 0)
{
    const Parameter &parameter = network.s(to, from);
    return {parameter.real.at(point), parameter.imag.at(point)};
}

/// A matrix of random numbers, row by row.
struct Matrix {
    Matrix(Networks::Doubles &random, int ports)
        : size(std::size_t(ports))
        , values(size * size)
    {
        for (Complex &v : values)
            v = {random.plain(), random.plain()};
    }

    Complex &at(std::size_t row, std::size_t column) { return values[row * size + column]; }
    Vector times(const Vector &x) const
    {
        Vector y(size);
        for (std::size_t i = 0; i < values.size(); ++i)
            y[i / size] += values[i] * x[i % size];
        return y;
    }
    /// The numbers of a point at 1 Hz.
    QByteArray text() const
    {
        QByteArray numbers = "1";
        for (const Complex &v : values) {
            for (const double part : {v.real(), v.imag()})
                numbers += ' ' + QByteArray::number(part, 'g', 17);
        }
        return numbers + '\n';
    }

    std::size_t size;
    Vector values;
};

Vector randomVector(Networks::Doubles &random, std::size_t size)
{
    Vector vector(size);
    for (Complex &v : vector)
        v = {random.plain(), random.plain()};
    return vector;
}

/// Whether the waves at the ports are what the network makes of each other, for these voltages and
/// currents into the ports.
bool holds(const Network &network, const Vector &voltages, const Vector &currents)
{
    for (int to = 1; to <= network.ports; ++to) {
        const auto wave = [&](int port, double sign) {
            const double ohms = network.reference(port).real();
            const auto i = std::size_t(port - 1);
            return (voltages[i] + sign * ohms * currents[i]) / (2.0 * std::sqrt(ohms));
        };
        Complex leaving = 0.0;
        for (int from = 1; from <= network.ports; ++from)
            leaving += value(network, to, from) * wave(from, 1.0);
        if (!(std::abs(leaving - wave(to, -1.0)) < 1e-9 * (1.0 + std::abs(leaving))))
            return false;
    }
    return true;
}

} // namespace

class Touchstone2Test : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheOrder()
    {
        const QByteArray two = "2 11 0 21 0 12 0 22 0\n";
        const QByteArray lower = "2 11 0 21 0 22 0 31 0 32 0 33 0\n";
        const QByteArray upper = "2 11 0\n12 0 13 0 22 0 23 0 33 0\n";
        // In a triangle the smaller index comes last or first.
        const struct {
            const char *name;
            QByteArray text;
            int ports, named;
            char kind;
        } rows[] = {
            {"three by rows", "# Hz S RI\n" + s_three, 3, 3, 'f'},
            {"ports from the content", "# Hz S RI\n" + s_three + s_three, 3, 0, 'f'},
            {"a row in two lines",
             "# Hz S RI\n2 11 0 12 0\n 13 0\n21 0 22 0\n 23 0\n31 0 32 0 33 0", 3, 3, 'f'},
            {"two in one line", "# Hz S RI\n" + two + two, 2, 0, 'f'},
            {"two-port of version 2", file(2, "[Two-Port Data Order] 21_12\n", two), 2, 1, 'f'},
            {"its other order", file(2, "[Two-Port Data Order] 12_21\n", "2 11 0 12 0 21 0 22 0\n"),
             2, 2, 'f'},
            {"keywords in any case", file(3, "[MATRIX-format] full\n", s_three), 3, 0, 'f'},
            {"wrapped anyhow", file(3, "", "2\n11 0 12 0 13\n0 21 0 22 0 23 0 31\n0 32 0 33 0\n"),
             3, 0, 'f'},
            {"lower", file(3, "[Matrix Format] Lower\n", lower), 3, 0, 'l'},
            {"upper", file(3, "[Matrix Format] Upper\n", upper), 3, 0, 'u'},
            {"lower two-port",
             file(2, "[Two-Port Data Order] 21_12\n[Matrix Format] Lower\n", "2 11 0 21 0 22 0\n"),
             2, 0, 'l'},
            {"information and comments",
             file(3, "[Begin Information]\n[Manufacturer] we\n2 ! 3\n[End Information]\n!\n",
                  s_three),
             3, 0, 'f'},
        };
        for (const auto &[name, text, ports, named, kind] : rows) {
            const Row row(QString::fromLatin1(name));
            const TouchstoneResult result = parseTouchstone(text, named);
            QVERIFY2(result.ok(), qPrintable(result.sentence("x"_s)));
            QVERIFY(result.network.remarks.isEmpty());
            QCOMPARE(result.network.ports, ports);
            for (int to = 1; to <= ports; ++to) {
                for (int from = 1; from <= ports; ++from) {
                    const bool turned = (kind == 'l' && from > to) || (kind == 'u' && to > from);
                    QCOMPARE(value(result.network, to, from),
                             Complex(turned ? 10 * from + to : 10 * to + from));
                }
            }
        }
    }

    void findsAnyNumberOfPorts()
    {
        for (const int ports : {4, 5, 9, 32, 64, 256}) {
            const Row row(QString::number(ports));
            QByteArray text = "# Hz S RI\n";
            for (int point = 0; point < 2; ++point) {
                text += QByteArray::number(point);
                for (int i = 0; i < ports * ports; ++i)
                    text += ' ' + QByteArray::number(point * 1000000 + i)
                        + (i % 4 == 3 ? " 0\n" : " 0");
                text += '\n';
            }
            const TouchstoneResult result = parseTouchstone(text, 0);
            QVERIFY2(result.ok(), qPrintable(result.sentence("x"_s)));
            QCOMPARE(result.network.ports, ports);
            QCOMPARE(value(result.network, 2, ports, 1), Complex(1e6 + 2 * ports - 1));
        }
    }

    void findsReferences()
    {
        const QByteArray keyword = "[Reference] 10 20\n!c\n30 ! d\n";
        const struct {
            QByteArray text;
            QVector<Complex> ohms;
        } rows[] = {
            {"# Hz S RI R 10 20 30\n" + s_three, {10.0, 20.0, 30.0}},
            {"# R 10 20 30 Hz S RI\n" + s_three, {10.0, 20.0, 30.0}},
            {"# Hz S RI R 75\n" + s_three, {75.0, 75.0, 75.0}},
            {"# Hz S RI R (50+5j)\n" + s_three, {{50.0, 5.0}, {50.0, 5.0}, {50.0, 5.0}}},
            {"# Hz S RI R 50-5J 20 (3e1+1e-1i)\n" + s_three, {{50.0, -5.0}, 20.0, {30.0, 0.1}}},
            {file(3, "", s_three), {50.0, 50.0, 50.0}},
            {file(3, keyword, s_three), {10.0, 20.0, 30.0}},
        };
        for (const auto &[text, ohms] : rows) {
            const Row row(QString::fromUtf8(text));
            const TouchstoneResult result = parseTouchstone(text, 3);
            QVERIFY2(result.ok(), qPrintable(result.sentence("x"_s)));
            for (int port = 1; port <= 3; ++port)
                QCOMPARE(result.network.reference(port), ohms.at(port - 1));
            QCOMPARE(value(result.network, 1, 2), Complex(12.0));
        }
    }

    // Whatever voltages and currents the other parameters allow, the S parameters allow, too.
    void turnsParametersIntoS()
    {
        Networks::Doubles random(3);
        const QVector<double> ohms{25.0, 50.0, 75.0, 3.0, 600.0};
        for (int i = 0; i < 200; ++i) {
            const char kind = "ZYGH"[i % 4];
            const int ports = i % 4 > 1 ? 2 : 1 + random.integer(5);
            const bool inOhms = i % 8 < 4;
            Matrix matrix(random, ports);
            QByteArray text = QByteArray("# Hz RI ") + kind + " R";
            for (int port = 0; port < ports; ++port)
                text += ' ' + QByteArray::number(ohms.at(inOhms ? port : 0));
            text += '\n';
            if (inOhms)
                text = "[Version] 2.1\n" + text + "[Number of Ports] " + QByteArray::number(ports)
                    + "\n[Number of Frequencies] 1\n[Two-Port Data Order] 12_21\n[Network Data]\n";
            else if (ports == 2) // as version 1 lists them
                std::swap(matrix.at(0, 1), matrix.at(1, 0));
            text += matrix.text();
            if (!inOhms && ports == 2)
                std::swap(matrix.at(0, 1), matrix.at(1, 0));
            const Row row(QString::fromUtf8(text));
            const TouchstoneResult result = parseTouchstone(text, ports);
            QVERIFY2(result.ok(), qPrintable(result.sentence("x"_s)));

            // In units of the reference, everything is as at 1 ohm.
            Network network = result.network;
            if (!inOhms)
                network.setReferences(QVector<Complex>(ports, 1.0));
            const Vector x = randomVector(random, matrix.size);
            const Vector y = matrix.times(x);
            switch (kind) {
            case 'Z':
                QVERIFY(holds(network, y, x));
                break;
            case 'Y':
                QVERIFY(holds(network, x, y));
                break;
            case 'H':
                QVERIFY(holds(network, {y[0], x[1]}, {x[0], y[1]}));
                break;
            default:
                QVERIFY(holds(network, {x[0], y[1]}, {y[0], x[1]}));
            }
        }
    }

    void turnsModesIntoPorts()
    {
        Networks::Doubles random(4);
        const QByteArray keywords =
            "[Reference] 50 75 75 25\n[Mixed-Mode Order] D3,2 S4\nC2,3 S1\n";
        for (const QByteArray kind : {"S", "Z", "Y"}) {
            const Row row(QString::fromUtf8(kind));
            const Matrix matrix(random, 4);
            const QByteArray text = file(4, keywords, matrix.text()).replace("Hz S", "Hz " + kind);
            const TouchstoneResult result = parseTouchstone(text, 4);
            QVERIFY2(result.ok(), qPrintable(result.sentence("x"_s)));
            // Waves, voltages or currents of the modes D, S4, C, S1, and those of the ports.
            const Vector x = randomVector(random, 4);
            const Vector y = matrix.times(x);
            const auto ports = [](const Vector &m, double d, double c) {
                return Vector{m[3], c * m[2] - d * m[0], c * m[2] + d * m[0], m[1]};
            };
            if (kind == "Z") {
                QVERIFY(holds(result.network, ports(y, 0.5, 1.0), ports(x, 1.0, 0.5)));
            } else if (kind == "Y") {
                QVERIFY(holds(result.network, ports(x, 0.5, 1.0), ports(y, 1.0, 0.5)));
            } else {
                const double half = std::sqrt(0.5);
                const Vector in = ports(x, half, half);
                const Vector out = ports(y, half, half);
                for (int to = 1; to <= 4; ++to) {
                    Complex sum = 0.0;
                    for (int from = 1; from <= 4; ++from)
                        sum += value(result.network, to, from) * in[std::size_t(from - 1)];
                    QVERIFY(std::abs(sum - out[std::size_t(to - 1)]) < 1e-12);
                }
            }
        }
    }

    void readsNoise()
    {
        const QByteArray two = "[Two-Port Data Order] 21_12\n[Reference] 75 25\n";
        const QByteArray noise = "4 .7 .64 69 19\n4 2.7 .46 -33 20\n";
        const QByteArray data = "5 11 0 21 0 12 0 22 0\n";
        const std::pair<QByteArray, double> rows[] = {
            {"# Hz S RI R 10 20\n" + data + noise, 10.0},
            {file(2, two + "[Number of Noise Frequencies] 2\n", data + "[Noise Data]\n" + noise),
             1.0},
        };
        for (const auto &[text, unit] : rows) {
            const Row row(QString::fromUtf8(text));
            const TouchstoneResult result = parseTouchstone(text, 2);
            QVERIFY2(result.ok(), qPrintable(result.sentence("x"_s)));
            const NoiseData &n = result.network.noise;
            QCOMPARE(n.frequencies, (QVector<double>{4.0, 4.0}));
            QCOMPARE(n.minimumFigure, (QVector<double>{0.7, 2.7}));
            QCOMPARE(n.optimumMagnitude, (QVector<double>{0.64, 0.46}));
            QCOMPARE(n.optimumDegrees, (QVector<double>{69.0, -33.0}));
            QCOMPARE(n.resistance, (QVector<double>{19.0 * unit, 20.0 * unit}));
            QCOMPARE(n.referenceOhms, unit == 1.0 ? 50.0 : unit);
        }
    }

    void gapsStayGaps()
    {
        const TouchstoneResult result = parseTouchstone("# Hz Z RI\n1 1 0\n2 nan 0\n3 1 0\n", 1);
        QVERIFY(result.ok());
        QCOMPARE(value(result.network, 1, 1, 2), Complex(0.0));
        QVERIFY(std::isnan(result.network.s(1, 1).real.at(1)));
        QVERIFY(std::isnan(result.network.s(1, 1).imag.at(1)));
    }
};

QTEST_GUILESS_MAIN(Touchstone2Test)
#include "tst_touchstone2.moc"
