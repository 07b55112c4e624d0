// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/markerstatusitem.h>

#include <QAccessible>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

#include <pointer.h>
#include <vnatest.h>

using namespace VnaTest;

namespace
{

QLabel *labelOf(const QWidget *item, const char *name)
{
    return item->findChild<QLabel *>(QLatin1String(name));
}

QString textOf(const QWidget *item, const char *name)
{
    return labelOf(item, name)->text();
}

void fill(MarkerStatusItem *item, const QString &value2 = QString(),
          const QString &value3 = QString())
{
    item->setText(QStringLiteral("M1:"), QStringLiteral("2.412GHz"), QStringLiteral("-1.32dB"),
                  value2, value3);
}

} // namespace

class tst_MarkerStatusItem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void oneLineNeedsTheColumnsInUse()
    {
        MarkerStatusItem item;
        fill(&item);
        QCOMPARE(item.preferredSingleLineWidth(), 130 + 50 + 70);
        fill(&item, QStringLiteral("2"));
        QCOMPARE(item.preferredSingleLineWidth(), 320);
        fill(&item, QStringLiteral("2"), QStringLiteral("3"));
        QCOMPARE(item.preferredSingleLineWidth(), 390);
        item.setNumLabelWidth(10, -5, 30);
        QCOMPARE(item.preferredSingleLineWidth(), 130 + 50 + 10 + 0 + 30);
        item.setKeyColumnWidth(5);
        QCOMPARE(item.preferredSingleLineWidth(), 20 + 50 + 10 + 0 + 30);
        QCOMPARE(item.minimumWidth(), 0);
        QCOMPARE(item.maximumWidth(), QWIDGETSIZE_MAX);
    }

    void oneLine()
    {
        MarkerStatusItem item;
        fill(&item, QString(), QStringLiteral("5pF"));
        item.setNumLabelWidth(61, 62, 63);
        item.setLayoutWidth(400);
        QCOMPARE(textOf(&item, "nameLabel"), QStringLiteral("M1:"));
        QCOMPARE(textOf(&item, "keyLabel"), QStringLiteral("2.412GHz"));
        QCOMPARE(textOf(&item, "valueLabel1"), QStringLiteral("-1.32dB"));
        QCOMPARE(textOf(&item, "valueLabel3"), QStringLiteral("5pF"));
        QVERIFY(labelOf(&item, "valueLabel2")->isHidden());
        QVERIFY(!labelOf(&item, "valueLabel3")->isHidden());
        QCOMPARE(labelOf(&item, "keyLabel")->minimumWidth(), 130);
        QCOMPARE(labelOf(&item, "valueLabel1")->maximumWidth(), 61);
        QCOMPARE(labelOf(&item, "valueLabel3")->maximumWidth(), 63);
        QCOMPARE(labelOf(&item, "keyLabel")->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
        QCOMPARE(labelOf(&item, "valueLabel1")->alignment(), Qt::AlignRight | Qt::AlignVCenter);
        QCOMPARE(item.height(), qMax(item.fontMetrics().height() + 2, 16));

        // Spare width lies between the stimulus and the values, which stay at the right edge.
        item.show();
        QCoreApplication::processEvents();
        QCOMPARE(labelOf(&item, "keyLabel")->x(), 50);
        QCOMPARE(labelOf(&item, "valueLabel3")->geometry().right(), item.width() - 1);
    }

    void foldsOnePixelBelowThat()
    {
        MarkerStatusItem item;
        fill(&item);
        item.setLayoutWidth(250);
        QVERIFY(!labelOf(&item, "valueLabel1")->isHidden());
        item.setLayoutWidth(249);
        QVERIFY(labelOf(&item, "valueLabel1")->isHidden());
        QCOMPARE(textOf(&item, "keyLabel"), QStringLiteral("2.412GHz\n-1.32dB"));
        // The same for a visible item, which hears of it by its resize event.
        item.show();
        item.setLayoutWidth(250);
        QTRY_VERIFY(!labelOf(&item, "valueLabel1")->isHidden());
        item.setKeyColumnWidth(131);
        QVERIFY(labelOf(&item, "valueLabel1")->isHidden());
    }

    void foldedBlock_data()
    {
        QTest::addColumn<bool>("right");
        QTest::newRow("left") << false;
        QTest::newRow("right") << true;
    }

    void foldedBlock()
    {
        QFETCH(bool, right);
        MarkerStatusItem item;
        const QString key = QStringLiteral("100.123456789GHz");
        item.setText(QStringLiteral("M1R:"), key, QStringLiteral("48.21Ω"), QString(),
                     QStringLiteral("Ls=100.000nH"));
        item.setRightAligned(right);
        item.setLayoutWidth(110);
        const QLabel *block = labelOf(&item, "keyLabel");
        QCOMPARE(block->minimumWidth(), 60);
        const QStringList lines = block->text().split(QLatin1Char('\n'));
        // Broken anywhere, nothing lost: every line is full, and the next character would not fit.
        QCOMPARE(lines.join(QString()), key + QStringLiteral("48.21Ω Ls=100.000nH"));
        for (int i = 0; i < lines.count(); ++i) {
            QVERIFY(block->fontMetrics().horizontalAdvance(lines.at(i)) <= 60);
            const bool endsPart =
                i + 1 == lines.count() || lines.at(i + 1).startsWith(QLatin1String("48"));
            if (!endsPart)
                QVERIFY(block->fontMetrics().horizontalAdvance(lines.at(i) + lines.at(i + 1).at(0))
                        > 60);
        }
        QCOMPARE(item.height(), block->fontMetrics().lineSpacing() * int(lines.count()) + 2);
        const Qt::Alignment alignment = Qt::AlignTop | (right ? Qt::AlignRight : Qt::AlignLeft);
        QCOMPARE(block->alignment(), alignment);
        QCOMPARE(labelOf(&item, "nameLabel")->alignment(), alignment);

        // Narrower than anything: one character a line, and no endless loop.
        item.setLayoutWidth(1);
        QCOMPARE(block->minimumWidth(), 20);
        item.setText(QStringLiteral("M1R:"), key, QString(), QString(), QString());
        QCOMPARE(QString(block->text()).remove(QLatin1Char('\n')), key);
    }

    void unchangedTextsCostNothing()
    {
        MarkerStatusItem item;
        item.setLayoutWidth(400);
        fill(&item);
        labelOf(&item, "keyLabel")->setText(QStringLiteral("untouched"));
        fill(&item);
        QCOMPARE(textOf(&item, "keyLabel"), QStringLiteral("untouched"));
        fill(&item, QStringLiteral("2"));
        QCOMPARE(textOf(&item, "keyLabel"), QStringLiteral("2.412GHz"));

        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&item);
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("M1:"));
        QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("2.412GHz -1.32dB 2"));
        QVERIFY(!accessible->state().selected);
        item.setSelectedStatus(true);
        QVERIFY(accessible->state().selected);
    }

    void dotColourAndWeight()
    {
        MarkerStatusItem item;
        fill(&item);
        QLabel *dot = labelOf(&item, "selectedStatusLabel");
        item.setSelectedStatus(true);
        QCOMPARE(dot->property("PixmapPath").toString(),
                 QStringLiteral(":/image/resource/marker_selected.svg"));
        QVERIFY(!dot->pixmap(Qt::ReturnByValue).isNull());
        const qint64 loaded = dot->pixmap(Qt::ReturnByValue).cacheKey();
        item.setSelectedStatus(true);
        QCOMPARE(dot->pixmap(Qt::ReturnByValue).cacheKey(), loaded);
        item.setSelectedStatus(false);
        QCOMPARE(dot->property("PixmapPath").toString(), QString());
        QVERIFY(dot->pixmap(Qt::ReturnByValue).isNull());

        item.setColor(QColor(255, 85, 255, 40));
        QCOMPARE(item.styleSheet(), QStringLiteral("color:#ff55ff;"));
        item.show();
        QCOMPARE(labelOf(&item, "valueLabel1")->palette().color(QPalette::WindowText),
                 QColor(255, 85, 255));
        item.setBold(true);
        QVERIFY(labelOf(&item, "valueLabel1")->font().bold());
        item.setBold(false);
        QCOMPARE(item.font().weight(), int(QFont::Normal));
    }

    void pressesOfAnyButtonClick()
    {
        MarkerStatusItem item;
        fill(&item);
        QSignalSpy clicked(&item, &MarkerStatusItem::clicked);
        item.show();
        mousePress(&item, {30, 5}); // on the name
        QCOMPARE(clicked.count(), 1);
        mouseRelease(&item, {30, 5});
        mousePress(&item, {30, 5}, Qt::RightButton);
        mouseRelease(&item, {30, 5}, Qt::RightButton);
        QCOMPARE(clicked.count(), 2);
        TouchScreen(&item).tap({70, 5});
        QCOMPARE(clicked.count(), 3);
    }

    void routerTakesThePressAndWhatFollows()
    {
        MarkerStatusItem item;
        fill(&item);
        QSignalSpy clicked(&item, &MarkerStatusItem::clicked);
        QVector<int> routed;
        bool take = true;
        item.setMouseEventRouter([&](QMouseEvent *event) {
            routed << event->type();
            return take;
        });
        item.show();
        mousePress(&item, {30, 5});
        mouseMove(&item, {60, 5});
        mouseRelease(&item, {60, 5});
        mouseMove(&item, {65, 5});
        QCOMPARE(routed,
                 (QVector<int>{QEvent::MouseButtonPress, QEvent::MouseMove,
                               QEvent::MouseButtonRelease}));
        QCOMPARE(clicked.count(), 0);

        // The right button is never asked about, and a refused press is a click.
        mousePress(&item, {30, 5}, Qt::RightButton);
        mouseRelease(&item, {30, 5}, Qt::RightButton);
        QCOMPARE(routed.count(), 3);
        QCOMPARE(clicked.count(), 1);
        take = false;
        mousePress(&item, {30, 5});
        mouseMove(&item, {60, 5});
        mouseRelease(&item, {60, 5});
        QCOMPARE(routed.count(), 4);
        QCOMPARE(clicked.count(), 2);

        // Hidden while a press is on its way: the next moves are nobody's.
        take = true;
        mousePress(&item, {30, 5});
        item.hide();
        item.show();
        mouseMove(&item, {60, 5});
        mouseRelease(&item, {60, 5});
        QCOMPARE(routed.count(), 5);
        item.setMouseEventRouter({});
        mousePress(&item, {30, 5});
        QCOMPARE(clicked.count(), 3);
    }

    void keyboardClicks()
    {
        QWidget window;
        QPushButton before(&window);
        MarkerStatusItem item(&window);
        fill(&item);
        QSignalSpy clicked(&item, &MarkerStatusItem::clicked);
        window.show();
        before.setFocus();
        QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
        QVERIFY(item.hasFocus());
        for (Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
            QTest::keyClick(window.windowHandle(), key);
        QTest::keyClick(window.windowHandle(), Qt::Key_A);
        QCOMPARE(clicked.count(), 3);
    }

    void itemMayGoInItsOwnEvents_data()
    {
        QTest::addColumn<int>("where");
        QTest::newRow("clicked") << 0;
        QTest::newRow("router at press") << 1;
        QTest::newRow("router at release") << 2;
    }

    void itemMayGoInItsOwnEvents()
    {
        QFETCH(int, where);
        QWidget window;
        QPointer<MarkerStatusItem> item = new MarkerStatusItem(&window);
        fill(item);
        window.resize(320, 40);
        window.show();
        if (where == 0)
            connect(item.data(), &MarkerStatusItem::clicked, &window, [&item] { delete item; });
        else
            item->setMouseEventRouter([&item, where](QMouseEvent *event) {
                if (where == 1 || event->type() == QEvent::MouseButtonRelease)
                    delete item;
                return true;
            });
        mouseDrag(window.windowHandle(), {30, 5}, {40, 5});
        QVERIFY(!item);
    }
};

QTEST_MAIN(tst_MarkerStatusItem)
#include "tst_markerstatusitem.moc"
