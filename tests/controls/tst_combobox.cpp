// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/combobox.h>

#include <QListView>
#include <QScreen>
#include <QStringListModel>
#include <QtTest>

#include <vnatest.h>

using Controls::ComboBox;

namespace
{

QString textOfWidth(const QFontMetrics &metrics, int width)
{
    QString text;
    while (metrics.horizontalAdvance(text + QLatin1Char('i')) <= width)
        text += QLatin1Char('i');
    return text;
}

} // namespace

class tst_ComboBox : public VnaTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void listIsAsWideAsItsLongestEntry_data()
    {
        QTest::addColumn<int>("entry");
        QTest::newRow("shorter than the box") << 80;
        QTest::newRow("longer than the box") << 180;
    }

    void listIsAsWideAsItsLongestEntry()
    {
        QFETCH(int, entry);
        ComboBox box;
        box.resize(100, 30);
        const QString text = textOfWidth(box.fontMetrics(), entry);
        box.addItems({QStringLiteral("a"), text, QStringLiteral("b")});
        const int expected = qMax(100, box.fontMetrics().horizontalAdvance(text));
        QCOMPARE(box.popupWidgetCalculateWidth(), expected);
        box.show();
        box.showPopup();
        QCOMPARE(box.view()->window()->width(), expected);
        QCOMPARE(box.popupWidgetAdjustSize(), box.view()->window()->size());
    }

    void longestEntryIsNotElided()
    {
        ComboBox box;
        box.resize(60, 30);
        box.addItems({QStringLiteral("a"), textOfWidth(box.fontMetrics(), 200)});
        box.show();
        box.showPopup();
        QCoreApplication::processEvents();
        const QRect row = box.view()->visualRect(box.model()->index(1, 0));
        const QImage elided = box.view()->viewport()->grab(row).toImage();
        // With any room to spare the same text looks the same from its first to its last stroke.
        box.view()->window()->resize(box.view()->window()->width() + 40, 100);
        QCoreApplication::processEvents();
        const QImage roomy = box.view()
                                 ->viewport()
                                 ->grab(box.view()->visualRect(box.model()->index(1, 0)))
                                 .toImage();
        // Less than a stroke: the last one may end in the pixel past the edge.
        QVERIFY2(qAbs(inkOf(elided) - inkOf(roomy)) < 5,
                 qPrintable(QStringLiteral("%1 %2").arg(inkOf(elided)).arg(inkOf(roomy))));
    }

    void opensBelowOrAboveInsideTheScreen_data()
    {
        QTest::addColumn<bool>("atBottom");
        QTest::newRow("room below") << false;
        QTest::newRow("none below") << true;
    }

    void opensBelowOrAboveInsideTheScreen()
    {
        QFETCH(bool, atBottom);
        ComboBox box;
        box.addItems({QStringLiteral("Z"), QStringLiteral("Y"), QStringLiteral("Z and Y")});
        const QRect screen = box.screen()->availableGeometry();
        box.setWindowFlags(Qt::FramelessWindowHint);
        box.setGeometry(screen.left() + 50, atBottom ? screen.bottom() - 40 : 60, 120, 30);
        box.show();
        box.showPopup();
        const QRect list = box.view()->window()->geometry();
        if (atBottom)
            QCOMPARE(list.y() + list.height(), box.geometry().top() - 1);
        else
            QCOMPARE(list.top(), box.geometry().bottom() + 1);
        QVERIFY(screen.adjusted(5, 5, -5, -5).contains(list));
        box.hidePopup();

        // A list past the right edge is pushed back by its margin.
        box.move(screen.right() - 20, box.y());
        QCOMPARE(box.popupWidgetTopLeftConer({200, 50}).x() + 200, screen.x() + screen.width() - 5);
    }

    void showsTheCurrentEntry()
    {
        ComboBox box;
        QCOMPARE(box.objectName(), QStringLiteral("combobox"));
        box.addItems({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
        box.setCurrentIndex(2);
        box.show();
        box.showPopup();
        QCOMPARE(box.view()->currentIndex().row(), 2);
        QTest::keyClick(box.view(), Qt::Key_Home);
        QTest::keyClick(box.view(), Qt::Key_Return);
        QCOMPARE(box.currentIndex(), 0);
        QVERIFY(!box.view()->isVisible());
    }

    void disabledEntries()
    {
        ComboBox box;
        box.addItems({QStringLiteral("1"), QStringLiteral("2")});
        const auto enabled = [&box](int row) {
            return bool(box.model()->flags(box.model()->index(row, 0)) & Qt::ItemIsEnabled);
        };
        box.setItemDisabled(1, true);
        QVERIFY(enabled(0) && !enabled(1));
        for (int outside : {-1, 2, 100})
            box.setItemDisabled(outside, true);
        box.setItemDisabled(1, false);
        QVERIFY(enabled(0) && enabled(1));

        QStringListModel model({QStringLiteral("1")});
        box.setModel(&model);
        box.setItemDisabled(0, true);
        QVERIFY(enabled(0));
    }

private:
    /// How many pixels differ from the background.
    static int inkOf(const QImage &image)
    {
        int ink = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                ink += image.pixel(x, y) != image.pixel(image.width() - 1, 0);
        }
        return ink;
    }
};

QTEST_MAIN(tst_ComboBox)
#include "tst_combobox.moc"
