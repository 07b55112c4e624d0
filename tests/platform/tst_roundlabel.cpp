// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/roundlabel.h>

#include <functional>

#include <vnatest.h>

using Controls::RoundLabel;
using namespace VnaTest;

class tst_RoundLabel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void roundsRatherThanCuts()
    {
        const QString frequency = "100.123456789GHz"_s;
        const std::tuple<QString, QString, QString> rows[] = {
            {frequency, frequency, frequency},
            {frequency, "100.123457GHz"_s, "100.123457GHz"_s}, // rounds up
            {frequency, "100GHz"_s, "100GHz"_s},
            {"-123456dBm"_s, "-1234dBm"_s, "-1234…"_s},
            {"L1=9.96nH"_s, "L1=10.0n"_s, "L1=10nH"_s}, // the name has a digit
            {"  -100.35dBm"_s, "  -100.3dBm"_s, "  -100.3dBm"_s},
            {"1.25e-9"_s, "1.3e-9"_s, "1.3e-9"_s},
            // Rounding 2.412 alone would show another frequency.
            {"2.412 000 GHz"_s, "2.412 00 GH"_s, "2.412 00…"_s},
        };
        for (const auto &[text, room, shown] : rows) {
            const Row row(shown);
            RoundLabel label;
            label.resize(label.fontMetrics().horizontalAdvance(room), 30);
            label.setText(text);
            label.show();
            QCOMPARE(label.text(), text);
            // Where an ellipsis begins depends on the font.
            if (shown.endsWith("…"_s))
                QVERIFY2(label.shownText().endsWith("…"_s), qPrintable(label.shownText()));
            else
                QCOMPARE(label.shownText(), shown);
            QVERIFY(label.fontMetrics().horizontalAdvance(label.shownText()) <= label.width());
            label.resize(1000, 30);
            QCOMPARE(label.shownText(), text);
        }
        RoundLabel label; // several lines stay whole
        label.resize(10, 40);
        label.setText("1.234567\n2.345678"_s);
        QCOMPARE(label.shownText(), label.text());
    }

    // Text that is wrapped, rich or selected stays whole and looks as in any label.
    void leavesOtherTextAlone()
    {
        const std::function<void(QLabel &)> others[] = {
            [](QLabel &label) { label.setWordWrap(true); },
            [](QLabel &label) { label.setTextFormat(Qt::RichText); },
            [](QLabel &label) { label.setTextInteractionFlags(Qt::TextSelectableByMouse); },
        };
        for (const auto &change : others) {
            const auto pictureOf = [&change](auto &label) {
                label.resize(60, 60);
                change(label);
                label.setText("1.23456789 <b>GHz</b>"_s);
                if (label.textInteractionFlags() & Qt::TextSelectableByMouse)
                    label.setSelection(2, 5);
                return label.grab().toImage();
            };
            RoundLabel rounded;
            QLabel plain;
            QCOMPARE(pictureOf(rounded), pictureOf(plain));
            if (!rounded.hasSelectedText())
                QCOMPARE(rounded.shownText(), rounded.text());
        }
    }
};

QTEST_MAIN(tst_RoundLabel)
#include "tst_roundlabel.moc"
