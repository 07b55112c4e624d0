// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <plot/qcp.h>
#include <smithchart/accessibleplot.h>

#include <vnatest.h>

#include <QAccessible>

#include <memory>

using namespace VnaTest;

namespace
{

/// A description that answers from its members and notes what is asked of it.
struct Sheet : PlotDescription {
    explicit Sheet(const QString &name)
        : called(name)
    {
    }
    QString name() const override { return called; }
    QString summary() const override { return called + " is short."_s; }
    QVector<int> traces() const override { return shown; }
    QString traceName(int trace) const override { return called + QString::number(trace); }
    int rows(int) const override { return 2; }
    QStringList columns(int) const override { return heads; }
    QString cell(int trace, int row, int column) const override
    {
        return "%1/%2/%3"_s.arg(trace).arg(row).arg(column);
    }
    QVector<MarkerId> markers() const override { return marks; }
    QString markerText(const MarkerId &id) const override
    {
        return "%1%2 M%3"_s.arg(called).arg(id.trace).arg(id.number);
    }
    MarkerValue markerValue(const MarkerId &) const override
    {
        ++valuesAsked;
        return {2.0, 1.0, 3.0};
    }
    void requestMarkerValue(const MarkerId &, double value) override { wanted << value; }
    QStringList verdicts() const override { return said; }

    const QString called;
    QVector<int> shown{1, 2};
    QVector<MarkerId> marks{{1, 1}, {1, 2}, {2, 1}};
    QStringList said{called + " passes"_s};
    QStringList heads{"f"_s, "dB"_s};
    mutable int valuesAsked = 0;
    QVector<double> wanted;
};

/// A plot with two descriptions and a label of the host's.
struct Scene {
    Scene()
    {
        accessible->add(&first);
        accessible->add(&second);
        label->setText("label"_s);
    }
    ~Scene()
    {
        if (accessible) {
            accessible->remove(&first);
            accessible->remove(&second);
        }
    }
    QAccessibleInterface *tree() const { return QAccessible::queryAccessibleInterface(plot.get()); }
    QVector<QAccessibleInterface *> parts() const
    {
        QVector<QAccessibleInterface *> all;
        for (int i = 0; i < tree()->childCount(); ++i)
            all << tree()->child(i);
        return all;
    }
    QStringList names() const
    {
        QStringList texts;
        for (const QAccessibleInterface *part : parts())
            texts << part->text(QAccessible::Name);
        return texts;
    }

    std::unique_ptr<QCustomPlot> plot = std::make_unique<QCustomPlot>();
    QPointer<AccessiblePlot> accessible = AccessiblePlot::on(plot.get());
    QLabel *label = new QLabel(plot.get());
    Sheet first{"A"_s};
    Sheet second{"B"_s};
};

} // namespace

class tst_AccessiblePlot : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void descriptionsAreReadOneAfterTheOther()
    {
        Scene f;
        f.accessible->add(&f.first); // once is enough
        f.accessible->add(nullptr);
        const QStringList ofFirst{"A1"_s, "A2"_s, "A1 M1"_s, "A1 M2"_s, "A2 M1"_s, "A passes"_s};
        const QStringList ofSecond = QStringList(ofFirst).replaceInStrings("A"_s, "B"_s);
        const QStringList others{"label"_s, QString()}; // the line of announcements is last
        QCOMPARE(f.names(), ofFirst + ofSecond + others);
        QCOMPARE(f.tree()->text(QAccessible::Name), "A B"_s);
        QCOMPARE(f.tree()->text(QAccessible::Description), "A is short. B is short."_s);
        const auto parts = f.parts();
        for (int i = 0; i < parts.size(); ++i) {
            QCOMPARE(f.tree()->indexOfChild(parts.at(i)), i);
            QVERIFY(!parts.at(i)->textInterface());
            QCOMPARE(parts.at(i)->text(QAccessible::Help), QString());
        }
        QCOMPARE(f.tree()->indexOfChild(nullptr), -1);

        // Some leave, and only they are no longer there.
        f.first.shown = {2};
        f.first.marks = {{1, 1}, {2, 1}};
        QStringList gone;
        for (int i = 0; i < parts.size(); ++i)
            gone << (parts.at(i)->isValid() ? QString() : (ofFirst + ofSecond + others).at(i));
        gone.removeAll(QString());
        QCOMPARE(gone, QStringList({"A1"_s, "A1 M2"_s}));
        f.accessible->remove(&f.first);
        QCOMPARE(f.names(), ofSecond + others);
    }

    void whatHasGoneSaysNothing()
    {
        Scene f;
        const auto parts = f.parts();
        QAccessibleTableInterface *table = parts.at(0)->tableInterface();
        const QAccessibleInterface *cell = table->cellAt(1, 1);
        QCOMPARE(cell->text(QAccessible::Name), "1/1/1"_s);
        QCOMPARE(cell->text(QAccessible::Description), "dB"_s);
        QVERIFY(!const_cast<QAccessibleInterface *>(cell)->textInterface());
        QCOMPARE(table->rowDescription(1), "1/1/0"_s);
        QCOMPARE(parts.at(0)->indexOfChild(nullptr), -1);
        QAccessibleValueInterface *marker = parts.at(2)->valueInterface();
        marker->setCurrentValue("no number"_s);
        QCOMPARE(f.first.wanted, QVector<double>());
        marker->setCurrentValue("2.5"_s);
        QCOMPARE(f.first.wanted, QVector<double>({2.5}));

        f.first.shown.clear();
        f.first.marks.clear();
        f.first.said.clear();
        for (int i = 0; i < 6; ++i) {
            QVERIFY(!parts.at(i)->isValid());
            QCOMPARE(parts.at(i)->text(QAccessible::Name), QString());
        }
        QVERIFY(!cell->isValid() && cell->text(QAccessible::Description).isEmpty());
        QCOMPARE(table->rowCount() + table->columnCount() + parts.at(0)->childCount(), 0);
        QVERIFY(!parts.at(0)->child(0));
        QCOMPARE(table->columnDescription(1) + table->rowDescription(1), QString());
        marker->setCurrentValue(1.5);
        QCOMPARE(f.first.wanted.size(), 1);
        QCOMPARE(marker->currentValue().toDouble() + marker->maximumValue().toDouble(), 0.0);
        QCOMPARE(f.first.valuesAsked, 0);
    }

    void changesAreToldOfWhatWasAskedFor()
    {
        Scene f;
        f.accessible->tellMarkerMoved(&f.first, {1, 2}); // nobody listens
        QCOMPARE(f.first.valuesAsked, 0);
        const auto parts = f.parts();
        f.accessible->tellMarkerMoved(&f.first, {1, 2});
        QCOMPARE(f.first.valuesAsked, 1);
        f.first.marks.clear();
        f.accessible->tellMarkerMoved(&f.first, {1, 2});
        QCOMPARE(f.first.valuesAsked, 1);

        // A table that is read anew has other cells; one that is gone keeps its own until it returns.
        QVector<QAccessible::Id> cells;
        for (const int part : {0, 1})
            cells << QAccessible::uniqueId(parts.at(part)->tableInterface()->cellAt(0, 0));
        f.first.shown = {1};
        f.accessible->tellDataChanged();
        QVERIFY(QAccessible::accessibleInterface(cells.at(0)));
        for (int i = 0; i < 10; ++i) { // however often it is told meanwhile
            QTest::qWait(AccessiblePlot::pause / 5);
            f.accessible->tellDataChanged();
        }
        QVERIFY(!QAccessible::accessibleInterface(cells.at(0)));
        QVERIFY(QAccessible::accessibleInterface(cells.at(1)));
    }

    void anyOrderOfDestruction()
    {
        QVERIFY(!AccessiblePlot::on(nullptr));
        {
            Scene f;
            delete f.accessible;
            QCOMPARE(f.names(), QStringList("label"_s));
            QCOMPARE(f.tree()->indexOfChild(f.tree()->child(0)), 0);
            QCOMPARE(f.tree()->text(QAccessible::Name), QString());
        }
        // Whoever hears of a plot's end may still ask its parts, and have something said.
        Scene f;
        f.plot->resize(200, 100);
        const auto parts = f.parts();
        QSignalSpy announced(f.accessible, &AccessiblePlot::announced);
        int asked = 0;
        connect(f.plot.get(), &QObject::destroyed, [&] {
            for (; asked < 12; ++asked) {
                QVERIFY(!parts.at(asked)->parent() && !parts.at(asked)->window());
                QCOMPARE(parts.at(asked)->rect(), QRect());
                QVERIFY(parts.at(asked)->state().invisible);
            }
            f.accessible->announce("over"_s);
        });
        f.plot.reset();
        QCOMPARE(asked, 12);
        QCOMPARE(announced.takeFirst(), QVariantList{"over"_s});
    }

    void announcerMayOutliveItsPlace()
    {
        auto place = std::make_unique<QWidget>();
        Controls::Announcer announcer(place.get());
        announcer.setParent(nullptr);
        announcer.announce("first"_s);
        const QAccessibleInterface *line = announcer.line();
        QCOMPARE(line->parent(), QAccessible::queryAccessibleInterface(place.get()));
        QCOMPARE(line->indexOfChild(line->child(0)), 0);
        QCOMPARE(line->indexOfChild(nullptr), -1);
        QCOMPARE(line->child(0)->text(QAccessible::Name), "first"_s);
        QCOMPARE(line->text(QAccessible::Name), QString()); // else it would be read twice
        QSignalSpy announced(&announcer, &Controls::Announcer::announced);
        place.reset();
        announcer.announce("second"_s);
        QTRY_COMPARE_WITH_TIMEOUT(announced.count(), 1, 5000);
        QVERIFY(!line->isValid() && !line->parent());
        QCOMPARE(line->rect(), QRect());
    }
};

QTEST_MAIN(tst_AccessiblePlot)
#include "tst_accessibleplot.moc"
