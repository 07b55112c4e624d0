// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <panel/entry/limitsheet.h>
#include <panel/entry/parametermatrix.h>
#include <widgets/menubutton.h>

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLineEdit>

using namespace Panel;
using namespace VnaTest;

namespace
{

/// What a finger needs, in pixels.
constexpr int s_smallest = 44;

/// What a finger presses.
bool isTarget(const QWidget *widget)
{
    const auto *line = qobject_cast<const QLineEdit *>(widget);
    return qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget)
        || (line && !line->isReadOnly() && !qobject_cast<QAbstractSpinBox *>(line->parent()));
}

/// What of a window a finger may miss, or find outside it, with its size.
QStringList smallTargets(const QWidget *window)
{
    QStringList found;
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        // What lies within another target is not aimed at.
        const bool inside = widget->parentWidget() && isTarget(widget->parentWidget());
        if (!isTarget(widget) || inside || !widget->isVisible()
            || widget->visibleRegion().isEmpty())
            continue;
        const QSize seen = widget->visibleRegion().boundingRect().size();
        if (qMin(seen.width(), seen.height()) < s_smallest)
            found << "%1 %2 %3x%4"_s
                         .arg(QLatin1String(widget->metaObject()->className()),
                              widget->objectName() + widget->accessibleName())
                         .arg(seen.width())
                         .arg(seen.height());
    }
    return found;
}

} // namespace

class TargetsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    void fingersFindEverything_data()
    {
        QTest::addColumn<QSize>("size");
        row("800x480", QSize(800, 480));
        row("1280x800", QSize(1280, 800));
    }

    void fingersFindEverything()
    {
        QFETCH(QSize, size);
        PanelDesk desk(size);
        QStringList small;
        const auto look = [&](const QString &place) {
            PanelDesk::settle();
            for (const QString &target : smallTargets(&desk.window))
                small << place + ": "_s + target;
        };
        for (int page = 0; page < desk.window.softKeys()->pageCount(); ++page) {
            desk.window.softKeys()->setPage(page);
            look("page %1"_s.arg(page));
        }
        // The lists and dialogs that keys open.
        const PanelKeys &keys = desk.keys();
        QWidget *const openers[] = {keys.file, keys.setups, keys.settings, keys.help};
        for (QWidget *opener : openers) {
            desk.click(opener);
            look(opener->objectName() + opener->accessibleName());
            if (auto *line = desk.window.findChild<QLineEdit *>()) {
                desk.click(line);
                look("letters"_s);
            }
            desk.press(Qt::Key_Escape);
        }
        desk.controller.showInstruments();
        look("instruments"_s);
        desk.press(Qt::Key_Escape);
        for (const int command : {0, 2}) {
            Q_EMIT keys.save->menuItemClicked(command);
            look("save"_s);
            desk.press(Qt::Key_Escape);
        }
        desk.click(keys.start);
        look("keypad"_s);
        desk.press(Qt::Key_Escape);
        // On a trace over the frequency, with a parameter to choose and limits to enter.
        desk.openSamples({"band-pass.s2p"_s});
        desk.model.setActiveTrace(3);
        desk.click(keys.parameter);
        QVERIFY(desk.window.findChild<ParameterMatrix *>());
        look("parameters"_s);
        desk.press(Qt::Key_Escape);
        desk.click(keys.limitLines);
        auto *sheet = desk.window.findChild<LimitSheet *>();
        QVERIFY(sheet);
        for (int line = 0; line < 2; ++line) {
            QPushButton *add = nullptr;
            const auto buttons = sheet->findChildren<QPushButton *>();
            for (QPushButton *button : buttons)
                add = button->text() == "Add a line"_s ? button : add;
            desk.click(add);
        }
        QCOMPARE(desk.model.trace(3)->limits.size(), 2);
        look("limit lines"_s);
        desk.press(Qt::Key_Escape);
        QVERIFY2(small.isEmpty(), qPrintable(small.join(QLatin1Char('\n'))));
    }
};

QTEST_MAIN(TargetsTest)
#include "tst_targets.moc"
