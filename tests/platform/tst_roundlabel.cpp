// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/roundlabel.h>

#include <QImage>
#include <QtTest>

#include <vnatest.h>

using Controls::RoundLabel;

class tst_RoundLabel : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void roundsRatherThanCuts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("room");
        QTest::addColumn<QString>("shown");
        const QString frequency = QStringLiteral("100.123456789GHz");
        QTest::newRow("fits") << frequency << frequency << frequency;
        QTest::newRow("rounds up") << frequency << "100.123457GHz"
                                   << "100.123457GHz";
        QTest::newRow("no decimals left") << frequency << "100GHz"
                                          << "100GHz";
        QTest::newRow("ellipsis") << "-123456dBm"
                                  << "-1234dBm"
                                  << "-1234…";
        QTest::newRow("name with a digit") << "L1=9.96nH"
                                           << "L1=10.0n"
                                           << "L1=10nH";
        QTest::newRow("sign and blanks") << "  -100.35dBm"
                                         << "  -100.3dBm"
                                         << "  -100.3dBm";
        QTest::newRow("exponent") << "1.25e-9"
                                  << "1.3e-9"
                                  << "1.3e-9";
        // Rounding 2.412 alone would show another frequency.
        QTest::newRow("grouped decimals") << "2.412 000 GHz"
                                          << "2.412 00 GH"
                                          << "2.412 00…";
    }

    void roundsRatherThanCuts()
    {
        QFETCH(QString, text);
        QFETCH(QString, room);
        QFETCH(QString, shown);
        RoundLabel label;
        label.resize(label.fontMetrics().horizontalAdvance(room), 30);
        label.setText(text);
        label.show();
        QCOMPARE(label.text(), text);
        if (shown.endsWith(QChar(0x2026)))
            QVERIFY2(label.shownText().endsWith(QChar(0x2026)), qPrintable(label.shownText()));
        else
            QCOMPARE(label.shownText(), shown);
        QVERIFY(label.fontMetrics().horizontalAdvance(label.shownText()) <= label.width());
        label.resize(1000, 30);
        QCOMPARE(label.shownText(), text);
    }

    void paintsWhatItShowsAligned()
    {
        RoundLabel label;
        label.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label.setContentsMargins(12, 0, 0, 0);
        const QString shown = QStringLiteral("-100.3dBm");
        label.resize(label.fontMetrics().horizontalAdvance(shown) + 12, 30);
        label.setText(QStringLiteral("-100.33333dBm"));
        QCOMPARE(label.shownText(), shown);
        const QImage rounded = label.grab().toImage();
        // The same picture as a plain label draws for the text that fits.
        label.setText(shown);
        QCOMPARE(label.grab().toImage(), rounded);
    }

    void severalLinesStayWhole()
    {
        RoundLabel label;
        label.resize(10, 40);
        label.setText(QStringLiteral("1.234567\n2.345678"));
        QCOMPARE(label.shownText(), label.text());
    }
};

QTEST_MAIN(tst_RoundLabel)
#include "tst_roundlabel.moc"
