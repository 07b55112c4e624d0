// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/combobox.h>

#include <vnatest.h>

using Controls::ComboBox;
using namespace VnaTest;

namespace
{

QString textOfWidth(const QFontMetrics &metrics, int width)
{
    QString text;
    while (metrics.horizontalAdvance(text + "i"_s) <= width)
        text += "i"_s;
    return text;
}

} // namespace

class tst_ComboBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void listIsAsWideAsItsLongestEntry()
    {
        for (const int entry : {80, 180}) {
            ComboBox box;
            box.resize(100, 30);
            const QString text = textOfWidth(box.fontMetrics(), entry);
            box.addItems({"a"_s, text, "b"_s});
            const int expected = qMax(100, box.fontMetrics().horizontalAdvance(text));
            QCOMPARE(box.popupWidgetCalculateWidth(), expected);
            box.show();
            box.showPopup();
            QWidget *const list = box.view()->window();
            QCOMPARE(list->width(), expected);
            QCOMPARE(box.popupWidgetAdjustSize(), list->size());
        }
    }

    /// A row that is wider than the list loses as much at both sides; with an icon, its end.
    void rowsWiderThanTheList()
    {
        ComboBox box;
        box.addItem("123456789"_s);
        QPixmap icon(16, 16);
        icon.fill(Qt::red);
        box.addItem(icon, "123456789"_s);
        const auto paint = [&box](const QAbstractItemDelegate &delegate, int row, int missing) {
            const QModelIndex index = box.model()->index(row, 0);
            QStyleOptionViewItem option;
            option.initFrom(box.view());
            const QSize size = box.itemDelegate()->sizeHint(option, index);
            QImage image(size - QSize(missing, 0), QImage::Format_RGB32);
            image.fill(Qt::white);
            option.rect = image.rect();
            QPainter painter(&image);
            delegate.paint(&painter, option, index);
            return image;
        };
        const QStyledItemDelegate plain;
        const QAbstractItemDelegate &ours = *box.itemDelegate();
        const QImage whole = paint(ours, 0, 0);
        QCOMPARE(whole, paint(plain, 0, 0));
        QCOMPARE(paint(ours, 0, 20), whole.copy(10, 0, whole.width() - 20, whole.height()));
        QCOMPARE(paint(ours, 1, 20), paint(plain, 1, 20));
    }

    void showsTheCurrentEntry()
    {
        ComboBox box;
        box.addItems({"1"_s, "2"_s, "3"_s});
        box.setCurrentIndex(2);
        box.show();
        box.showPopup();
        QCOMPARE(box.view()->currentIndex().row(), 2);
        QTest::keyClick(box.view(), Qt::Key_Home);
        QTest::keyClick(box.view(), Qt::Key_Return);
        QCOMPARE(box.currentIndex(), 0);
        QVERIFY(!box.view()->isVisible());
    }

    /// A host that has taken the list apart gets a warning, and its entry all the same.
    void listTakenApart()
    {
        ComboBox box;
        box.addItems({"1"_s, "2"_s});
        box.show();
        QAbstractItemView *const view = box.view();
        QWidget *const container = view->parentWidget();
        container->setParent(nullptr);
        QCOMPARE(box.popupWidgetAdjustSize().height(), container->height());
        view->setParent(nullptr);
        QCOMPARE(box.popupWidgetAdjustSize(), QSize(box.popupWidgetCalculateWidth(), 0));
        expectWarning("ComboBox: Could not find popup widget after base showPopup()!"_s);
        box.showPopup();
        box.hidePopup();
        QCOMPARE(box.currentIndex(), 0);
        view->setParent(container);
        container->setParent(&box);
    }

    void disabledEntries()
    {
        ComboBox box;
        box.addItems({"1"_s, "2"_s});
        for (const bool disabled : {true, false}) {
            for (const int row : {1, -1, 2, 100}) // those outside change nothing
                box.setItemDisabled(row, disabled);
            QCOMPARE(bool(box.model()->flags(box.model()->index(1, 0)) & Qt::ItemIsEnabled),
                     !disabled);
            QVERIFY(box.model()->flags(box.model()->index(0, 0)) & Qt::ItemIsEnabled);
        }
        QStringListModel model({"1"_s});
        box.setModel(&model);
        box.setItemDisabled(0, true); // which has no such flag
    }
};

QTEST_MAIN(tst_ComboBox)
#include "tst_combobox.moc"
