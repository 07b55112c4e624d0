// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/rectangularbottomwidget.h>

#include <QLabel>
#include <QtTest>

#include <algorithm>

#include <vnatest.h>

namespace
{

/// The visible texts from left to right.
QString shown(const QWidget &bar)
{
    QList<QLabel *> labels = bar.findChildren<QLabel *>();
    std::sort(labels.begin(), labels.end(),
              [](const QLabel *a, const QLabel *b) { return a->x() < b->x(); });
    QString text;
    for (const QLabel *label : std::as_const(labels)) {
        if (label->isVisible())
            text += QLatin1Char('[') + label->text() + QLatin1Char(']');
    }
    return text;
}

} // namespace

class tst_RectangularBottomWidget : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsFromStartToStop()
    {
        RectangularBottomWidget bar;
        QCOMPARE(bar.size(), QSize(667, 30));
        bar.show();
        QCOMPARE(shown(bar),
                 QStringLiteral("[Start(GraphLabel)][: ][1MHz][Speed: --]"
                                "[Stop(GraphLabel)][: ][2GHz]"));
        bar.updateRange(QStringLiteral("2.4GHz"), QStringLiteral("2.5GHz"));
        bar.setSweepSpeedText(QStringLiteral("Speed: 48/s"));
        QCOMPARE(shown(bar),
                 QStringLiteral("[Start(GraphLabel)][: ][2.4GHz][Speed: 48/s]"
                                "[Stop(GraphLabel)][: ][2.5GHz]"));
        // A new language brings new captions, not the sample values.
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&bar, &event);
        QVERIFY(shown(bar).contains(QLatin1String("[2.4GHz][Speed: 48/s]")));
    }

    void endsStayWithoutTheSpeed()
    {
        RectangularBottomWidget bar;
        bar.show();
        const auto *start = bar.findChild<QLabel *>(QStringLiteral("label"));
        const auto *stop = bar.findChild<QLabel *>(QStringLiteral("stopLabel"));
        const auto *speed = bar.findChild<QLabel *>(QStringLiteral("sweepSpeedLabel"));
        QVERIFY(qAbs(speed->geometry().center().x() - bar.rect().center().x()) < 20);
        bar.setSweepSpeedVisible(false);
        QCoreApplication::processEvents();
        QVERIFY(!speed->isVisible());
        QCOMPARE(start->x(), 0);
        QCOMPARE(stop->geometry().right(), bar.width() - 1);
        bar.setSweepSpeedVisible(true);
        QVERIFY(speed->isVisible());
    }
};

QTEST_MAIN(tst_RectangularBottomWidget)
#include "tst_rectangularbottomwidget.moc"
