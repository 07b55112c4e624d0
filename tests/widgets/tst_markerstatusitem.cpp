// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <widgets/markerstatusitem.h>

#include <pointer.h>
#include <vnatest.h>

using namespace VnaTest;

namespace
{

/// An item with its labels and a count of its clicks.
struct Readout : MarkerStatusItem {
    explicit Readout(QWidget *parent = nullptr)
        : MarkerStatusItem(parent)
    {
        fill();
    }
    void fill(const QString &value2 = QString(), const QString &value3 = QString())
    {
        setText("M1:"_s, "2.412GHz"_s, "-1.32dB"_s, value2, value3);
    }
    QLabel *label(const char *name) const { return findChild<QLabel *>(QLatin1String(name)); }
    QString text(const char *name) const { return label(name)->text(); }
    bool isFolded() const { return label("valueLabel1")->isHidden(); }

    QSignalSpy clicks{this, &MarkerStatusItem::clicked};
};

const QPoint Name(30, 5);
const QPoint Key(60, 5);

} // namespace

class tst_MarkerStatusItem : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void oneLine()
    {
        Readout item; // needs the columns in use
        QCOMPARE(item.preferredSingleLineWidth(), 130 + 50 + 70);
        item.fill("2"_s, "3"_s);
        QCOMPARE(item.preferredSingleLineWidth(), 390);
        item.setKeyColumnWidth(5);
        // Each of the widths can be the only new one.
        for (const auto &[first, second, third] :
             {std::tuple(10, -5, 30), {11, -5, 30}, {11, 4, 30}, {11, 4, 33}}) {
            item.setNumLabelWidth(first, second, third);
            QCOMPARE(item.preferredSingleLineWidth(), 70 + first + qMax(second, 0) + third);
        }

        item.setKeyColumnWidth(130);
        item.fill(QString(), "5pF"_s);
        item.setNumLabelWidth(61, 62, 63);
        item.setLayoutWidth(400);
        const std::tuple<const char *, QString, int, Qt::Alignment> labels[] = {
            {"nameLabel", "M1:"_s, 40, Qt::AlignLeft},
            {"keyLabel", "2.412GHz"_s, 130, Qt::AlignLeft},
            {"valueLabel1", "-1.32dB"_s, 61, Qt::AlignRight},
            {"valueLabel3", "5pF"_s, 63, Qt::AlignRight},
        };
        for (const auto &[name, text, width, alignment] : labels) {
            const Row row(QLatin1String{name});
            const QLabel *label = item.label(name);
            QCOMPARE(label->text(), text);
            QVERIFY(!label->isHidden());
            QCOMPARE(label->minimumWidth(), width);
            QCOMPARE(label->maximumWidth(), width);
            QCOMPARE(label->alignment(), alignment | Qt::AlignVCenter);
        }
        QVERIFY(item.label("valueLabel2")->isHidden());
        QCOMPARE(item.height(), qMax(item.fontMetrics().height() + 2, 16));

        // Spare width lies between the stimulus and the values, which stay at the right edge.
        item.show();
        QCoreApplication::processEvents();
        QCOMPARE(item.label("keyLabel")->x(), 50);
        QCOMPARE(item.label("valueLabel3")->geometry().right(), item.width() - 1);
    }

    void foldsOnePixelBelowThat()
    {
        Readout item;
        item.setLayoutWidth(250);
        QVERIFY(!item.isFolded());
        item.setLayoutWidth(249);
        QVERIFY(item.isFolded());
        QCOMPARE(item.text("keyLabel"), "2.412GHz\n-1.32dB"_s);
        // The same for a visible item, which hears of it by its resize event.
        item.show();
        item.setLayoutWidth(250);
        QTRY_VERIFY(!item.isFolded());
        item.setKeyColumnWidth(131);
        QVERIFY(item.isFolded());
    }

    void foldedBlock()
    {
        for (const bool right : {false, true}) {
            Readout item;
            const QString key = "100.123456789GHz"_s;
            item.setText("M1R:"_s, key, "48.21Ω"_s, QString(), "Ls=100.000nH"_s);
            item.setRightAligned(right);
            item.setLayoutWidth(110);
            const QLabel *block = item.label("keyLabel");
            QCOMPARE(block->minimumWidth(), 60);
            const QStringList lines = block->text().split(QLatin1Char('\n'));
            // Broken anywhere, nothing lost: every line is full, the next character would not fit.
            QCOMPARE(lines.join(QString()), key + "48.21Ω Ls=100.000nH"_s);
            const auto advance = [block](const QString &text) {
                return block->fontMetrics().horizontalAdvance(text);
            };
            for (int i = 0; i < lines.count(); ++i) {
                QVERIFY(advance(lines.at(i)) <= 60);
                if (i + 1 < lines.count() && !lines.at(i + 1).startsWith("48"_s))
                    QVERIFY(advance(lines.at(i) + lines.at(i + 1).at(0)) > 60);
            }
            QCOMPARE(item.height(), block->fontMetrics().lineSpacing() * int(lines.count()) + 2);
            item.setLayoutWidth(50 + advance(lines.first())); // just enough
            QVERIFY(block->text().startsWith(lines.first() + QLatin1Char('\n')));
            const Qt::Alignment alignment = Qt::AlignTop | (right ? Qt::AlignRight : Qt::AlignLeft);
            QCOMPARE(block->alignment(), alignment);
            QCOMPARE(item.label("nameLabel")->alignment(), alignment);

            // Narrower than anything: one character a line, and no endless loop.
            item.setLayoutWidth(1);
            QCOMPARE(block->minimumWidth(), 20);
            item.setText("M1R:"_s, key, QString(), QString(), QString());
            QCOMPARE(QString(block->text()).remove(QLatin1Char('\n')), key);
            item.setLayoutWidth(200);
            item.setText("M1R:"_s, QString(), "1dB"_s, "2dB"_s, QString());
            QCOMPARE(block->text(), "\n1dB 2dB"_s); // the place of the stimulus stays
        }
        Readout item; // no width is not a narrow one
        item.setLayoutWidth(0);
        QVERIFY(!item.isFolded());
    }

    void unchangedTextsCostNothing()
    {
        Readout item;
        item.setLayoutWidth(400);
        item.label("keyLabel")->setText("untouched"_s);
        item.fill();
        QCOMPARE(item.text("keyLabel"), "untouched"_s);
        item.fill("2"_s);
        QCOMPARE(item.text("keyLabel"), "2.412GHz"_s);
        auto *const accessible = QAccessible::queryAccessibleInterface(&item);
        QCOMPARE(accessible->text(QAccessible::Value), "2.412GHz -1.32dB 2"_s);
        item.setSelectedStatus(true);
        QVERIFY(accessible->state().selected);

        // A tool may press it, and give it the focus.
        item.show();
        item.setAccessibleDescription("drag it"_s);
        QCOMPARE(accessible->text(QAccessible::Description), "drag it"_s);
        QVERIFY(QTest::qWaitForWindowActive(&item));
        item.clearFocus();
        accessible->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
        QVERIFY(item.hasFocus());
        QCOMPARE(item.clicks.count(), 0);
        accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(item.clicks.count(), 1);
    }

    void dotColourAndWeight()
    {
        Readout item;
        const QLabel *dot = item.label("selectedStatusLabel");
        for (const bool selected : {true, false}) {
            item.setSelectedStatus(selected);
            QCOMPARE(dot->pixmap(Qt::ReturnByValue).isNull(), !selected);
        }
        item.setColor(QColor(255, 85, 255, 40));
        item.show();
        const QLabel *value = item.label("valueLabel1");
        QCOMPARE(value->palette().color(QPalette::WindowText), QColor(255, 85, 255));
        for (const bool bold : {true, false}) {
            item.setBold(bold);
            QCOMPARE(value->font().bold(), bold);
        }
    }

    void pressesAndKeysClick()
    {
        QWidget window;
        QPushButton before(&window);
        Readout item(&window);
        window.show();
        mousePress(&item, Name);
        QCOMPARE(item.clicks.count(), 1);
        mouseRelease(&item, Name);
        mouseClick(&item, Name, Qt::RightButton);
        QCOMPARE(item.clicks.count(), 2);
        TouchScreen(&window).tap(Key);
        QCOMPARE(item.clicks.count(), 3);

        before.setFocus();
        QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
        QVERIFY(item.hasFocus());
        for (Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_A})
            QTest::keyClick(window.windowHandle(), key);
        QCOMPARE(item.clicks.count(), 6);
        sendKey(&item, Qt::Key_Select);
        QKeyEvent held(QEvent::KeyPress, Qt::Key_Select, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(&item, &held); // held down it counts once
        QCOMPARE(item.clicks.count(), 7);
    }

    void routerTakesThePressAndWhatFollows()
    {
        Readout item;
        QVector<int> routed;
        bool take = true;
        item.setMouseEventRouter([&](QMouseEvent *event) {
            routed << event->type();
            return take;
        });
        item.show();
        mouseDrag(item.windowHandle(), Name, Key, 1);
        mouseMove(&item, {65, 5});
        const QVector<int> drag{QEvent::MouseButtonPress, QEvent::MouseMove,
                                QEvent::MouseButtonRelease};
        QCOMPARE(routed, drag);
        QCOMPARE(item.clicks.count(), 0);

        // A refused press is a click.
        take = false;
        mouseDrag(item.windowHandle(), Name, Key, 1);
        QCOMPARE(routed.count(), 4);
        QCOMPARE(item.clicks.count(), 1);

        // So is the right button, which is never asked about; the router still hears how it ends.
        take = true;
        routed.clear();
        mousePress(&item, Name);
        mousePress(&item, Name, Qt::RightButton);
        QCOMPARE(item.clicks.count(), 2);
        mouseMove(&item, Key);
        mouseRelease(&item, Key);
        QCOMPARE(routed, drag);
        mouseRelease(&item, Key, Qt::RightButton);

        // Hidden while a press is on its way: the next moves are nobody's.
        mousePress(&item, Name);
        item.hide();
        item.show();
        mouseMove(&item, Key);
        mouseRelease(&item, Key);
        QCOMPARE(routed.count(), 4);

        // What follows a routed press is no click, also where the router has gone meanwhile.
        const int clicks = int(item.clicks.count());
        mousePress(&item, Name);
        item.setMouseEventRouter({});
        mouseRelease(&item, Name);
        QCOMPARE(item.clicks.count(), clicks);
        mouseClick(&item, Name);
        QCOMPARE(item.clicks.count(), clicks + 1);
        QCOMPARE(routed.count(), 5);
    }

    void itemMayGoInItsOwnEvents()
    {
        // At the click, or in the router at one of these.
        for (const QEvent::Type at :
             {QEvent::None, QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const Row row(QString::number(at));
            QWidget window;
            QPointer<MarkerStatusItem> item = new MarkerStatusItem(&window);
            window.resize(320, 40);
            window.show();
            if (at == QEvent::None)
                connect(item.data(), &MarkerStatusItem::clicked, [&item] { delete item; });
            else
                item->setMouseEventRouter([&item, at](QMouseEvent *event) {
                    if (event->type() == at)
                        delete item;
                    return true;
                });
            mouseDrag(window.windowHandle(), Name, {40, 5});
            QVERIFY(!item);
        }
    }
};

QTEST_MAIN(tst_MarkerStatusItem)
#include "tst_markerstatusitem.moc"
