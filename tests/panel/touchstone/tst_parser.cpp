// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is assumed of a file with keywords, and what is refused.
#include "keywordfile.h"
#include "vnatest.h"

#include <panel/touchstone/touchstone.h>

using namespace VnaTest;
using namespace Panel;

class ParserTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void remarks()
    {
        const QByteArray two = "2 11 0 21 0 12 0 22 0\n";
        const QString impedances = "its data refer to the port impedances in its comments, but are "
                                   "shown as if to 50 \u03a9: "
                                   "impedances read from them are not true"_s;
        const std::pair<QByteArray, QStringList> rows[] = {
            {file(2, "", two), {"[Two-Port Data Order] is missing, and 21_12 is assumed"_s}},
            {"# Hz S RI R\n" + two, {"R has no number, and 50 ohms are assumed"_s}},
            {"# Hz S RI\n" + two + "! Port Impedance50 0 50 0\n", {impedances}},
            {"!Data is not renormalized\n# Hz S RI R 50\n" + two + "! Port Impedance 50 0\n",
             {impedances}},
            {"# Hz S RI R 50\n" + two + "! Port Impedance 50 0\n", {}},
            {file(3, "", s_three).replace("2.0", "1.1"),
             {"version 1 has no keywords, and their meaning in version 2 is assumed"_s}},
        };
        for (const auto &[text, remarks] : rows) {
            const Row row(QString::fromUtf8(text));
            const TouchstoneResult result = parseTouchstone(text, 0);
            QVERIFY2(result.ok(), qPrintable(result.sentence("x"_s)));
            QCOMPARE(result.network.remarks, remarks);
        }
    }

    void refuses_data()
    {
        columns<QByteArray, QString>("text", "fault");
        const auto one = [](const char *name, const QByteArray &keywords, const QString &fault,
                            const QByteArray &data = "1 0 0\n") {
            row(name, file(1, keywords, data), fault);
        };
        const QByteArray head =
            "[Version] 2.0\n#\n[Number of Ports] 1\n[Number of Frequencies] 2\n";
        const QString line = "x, line %1: %2."_s;
        row("keyword before the version", QByteArray("[Number of Ports] 1\n"),
            line.arg(1).arg("\"[Number of Ports]\" does not stand where it belongs"_s));
        row("unknown version", QByteArray("[Version] 3.0\n"),
            line.arg(1).arg("version \"3.0\" of the format is not known"_s));
        row("version twice", QByteArray("[Version] 2.0\n[Version] 2.0\n"),
            line.arg(2).arg("\"[Version]\" does not stand where it belongs"_s));
        row("values before [Network Data]", QByteArray("[Version] 2.0\n1 0 0\n"),
            line.arg(2).arg("\"1\" does not stand where it belongs"_s));
        row("no number of ports", QByteArray("[Version] 2.0\n[Network Data]\n"),
            line.arg(2).arg("[Number of Ports] is missing"_s));
        row("no number of frequencies",
            QByteArray("[Version] 2.0\n[Number of Ports] 1\n[Network Data]\n"),
            line.arg(3).arg("[Number of Frequencies] is missing"_s));
        row("no data", head, "x: [Network Data] is missing."_s);
        row("huge number of ports",
            QByteArray("[Version] 2.0\n[Number of Ports] 2000000000\n[Number of Frequencies] "
                       "1\n[Network Data]\n"),
            line.arg(4).arg("a network of 2000000000 ports, and at most 256 ports are read"_s));
        row("fewer points", QByteArray(head + "[Network Data]\n1 0 0\n[End]\n"),
            line.arg(7).arg("1 of the 2 announced frequencies are there"_s));
        row("more points", QByteArray(head + "[Network Data]\n1 0 0\n2 0 0\n3 0 0\n"),
            line.arg(8).arg("there are more than the 2 announced frequencies"_s));
        row("cut within a point", QByteArray(head + "[Network Data]\n1 0 0\n2 0"),
            line.arg(7).arg("the last point has 2 of 3 numbers"_s));
        row("ended within a point", QByteArray(head + "[Network Data]\n1 0 0\n2 0\n[End]\n"),
            line.arg(8).arg("\"[End]\" does not stand where it belongs"_s));
        one("unknown keyword", "[Foo] 1\n",
            line.arg(5).arg("\"[Foo]\" is no keyword of a Touchstone file"_s));
        one("open bracket", "[Reference 50\n",
            line.arg(5).arg("\"[Reference 50\" is no keyword of a Touchstone file"_s));
        one("keyword twice", "[Reference] 1\n[Reference] 1\n",
            line.arg(6).arg("\"[Reference]\" stands twice"_s));
        one("unknown value", "[Matrix Format] Half\n",
            line.arg(5).arg("\"Half\" is no value for \"[Matrix Format]\""_s));
        one("a value too many", "[Matrix Format] Full Lower\n",
            line.arg(5).arg("\"Lower\" is no value for \"[Matrix Format]\""_s));
        one("no value", "[Matrix Format]\n",
            line.arg(5).arg("\"\" is no value for \"[Matrix Format]\""_s));
        one("reference of zero", "[Reference] 0\n",
            line.arg(5).arg("a reference must be a number above zero, and not \"0\""_s));
        one("references for others", "[Reference] 50 75\n",
            line.arg(6).arg("2 references for 1 ports"_s));
        one("noise of a one-port", "[Number of Noise Frequencies] 1\n",
            line.arg(8).arg("only two-ports have noise data"_s), "1 0 0\n[Noise Data]\n");
        one("noise not announced", "",
            line.arg(7).arg("[Number of Noise Frequencies] is missing"_s), "1 0 0\n[Noise Data]\n");
        one("information without an end", "[Begin Information]\n",
            "x: [End Information] is missing."_s);
        one("data after the end", "", line.arg(8).arg("\"2\" does not stand where it belongs"_s),
            "1 0 0\n[End]\n2 0 0\n");
        const auto two = [](const char *name, const QByteArray &keywords, const QString &fault,
                            const QByteArray &data) {
            row(name, file(2, "[Two-Port Data Order] 21_12\n" + keywords, data), fault);
        };
        const QByteArray point = "1 0 0 0 0 0 0 0 0\n";
        two("noise missing", "[Number of Noise Frequencies] 1\n", "x: [Noise Data] is missing."_s,
            point);
        two("noise cut", "[Number of Noise Frequencies] 2\n",
            line.arg(11).arg("1 of the 2 announced frequencies are there"_s),
            point + "[Noise Data]\n1 1 1 1 1\n");
        two("noise too long", "[Number of Noise Frequencies] 1\n",
            line.arg(11).arg("there are more than the 1 announced frequencies"_s),
            point + "[Noise Data]\n1 1 1 1 1\n2 1 1 1 1\n");
        two("mode of no port", "[Mixed-Mode Order] D1,3 C1,3\n",
            line.arg(7).arg("the mixed modes name a port that does not exist"_s), point);
        two("no mode", "[Mixed-Mode Order] X1\n",
            line.arg(6).arg("\"X1\" is no mode such as S1, D2,3 or C2,3"_s), point);
        two("mode without a common one", "[Mixed-Mode Order] D1,2\n",
            line.arg(7).arg(
                "the mixed modes do not name port 1 once as S or as D and C of one pair"_s),
            point);
        two("mode twice", "[Mixed-Mode Order] D1,2 D1,2\n",
            line.arg(7).arg("the mixed modes name port 1 twice"_s), point);
        two("a pair at two references", "[Reference] 50 75\n[Mixed-Mode Order] D1,2 C1,2\n",
            line.arg(8).arg("the ports 1 and 2 of a mixed mode have different references"_s),
            point);
        row("H of a one-port", QByteArray("# H\n1 0 0\n"),
            line.arg(2).arg("only two-ports have G and H parameters"_s));
        row("complex reference of Z", QByteArray("# Z R 50+5j\n1 0 0\n"),
            line.arg(2).arg("only S parameters can have a complex reference"_s));
        row("reference that takes power", QByteArray("# S R (-5+5j)\n1 0 0\n"),
            line.arg(1).arg("the reference resistance after R must be a number above zero"_s));
        row("impedance of -1", QByteArray("# Z RI\n1 0 0\n\n2 -1 0\n3 0 0\n"),
            line.arg(4).arg("the parameters of this point have no S parameters"_s));
        row("a point of no ports", QByteArray("!\n1 0 0 0 0\n2 0 0 0 0\n"),
            line.arg(2).arg("the first point has 5 numbers, and no number of ports has so many"_s));
    }

    void refuses()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, fault);
        const TouchstoneResult result = parseTouchstone(text, 0);
        QCOMPARE(result.sentence("x"_s), fault);
        QVERIFY(result.network.parameters.isEmpty());
    }
};

QTEST_GUILESS_MAIN(ParserTest)
#include "tst_parser.moc"
