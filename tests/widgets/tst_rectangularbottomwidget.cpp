// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/rectangularbottomwidget.h>

#include <vnatest.h>

using namespace VnaTest;

class tst_RectangularBottomWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsFromStartToStop()
    {
        RectangularBottomWidget bar;
        QCOMPARE(bar.size(), QSize(667, 30));
        bar.show();
        QCOMPARE(shown(bar),
                 "[Start(GraphLabel)][: ][1MHz][Speed: --][Stop(GraphLabel)][: ][2GHz]"_s);
        bar.updateRange("2.4GHz"_s, "2.5GHz"_s);
        bar.setSweepSpeedText("Speed: 48/s"_s);
        const QString told =
            "[Start(GraphLabel)][: ][2.4GHz][Speed: 48/s][Stop(GraphLabel)][: ][2.5GHz]"_s;
        QCOMPARE(shown(bar), told);
        // A new language brings new captions, not the sample values.
        bar.findChild<QLabel *>("label"_s)->setText("Anfang"_s);
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&bar, &event);
        QCOMPARE(shown(bar), told);
    }

private:
    /// The visible texts from left to right.
    static QString shown(const QWidget &bar)
    {
        QMap<int, QString> texts;
        const QList<QLabel *> labels = bar.findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            if (label->isVisible())
                texts.insert(label->x(), "["_s + label->text() + "]"_s);
        }
        return QStringList(texts.values()).join(QString());
    }
};

QTEST_MAIN(tst_RectangularBottomWidget)
#include "tst_rectangularbottomwidget.moc"
