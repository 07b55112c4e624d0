// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desk.h"

#include <controls/thememanager.h>
#include <panel/files/history.h>
#include <panel/ground/highcontrast.h>

#include <QAccessible>
#include <QLineEdit>

#include <algorithm>

using namespace VnaTest;
using namespace Panel;

namespace
{

QString describe(QWidget *widget)
{
    return "%1 \"%2\""_s.arg(
        QLatin1String(widget->metaObject()->className()),
        QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name));
}

bool takesTab(const QWidget *widget)
{
    return widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus);
}

/// What Tab goes through, from where the focus is until it is there again.
QVector<QWidget *> tabRound(const PanelDesk &desk)
{
    QVector<QWidget *> round;
    do {
        QTest::keyClick(desk.window.windowHandle(), Qt::Key_Tab);
        round.append(desk.window.focusWidget());
    } while (round.last() && round.count(round.last()) == 1);
    round.removeLast();
    return round;
}

/// What a screen reader calls it: by a label, or by its own name.
QString spokenName(QWidget *widget)
{
    QAccessibleInterface *whole = QAccessible::queryAccessibleInterface(widget);
    const auto labels = whole->relations(QAccessible::Label);
    if (!labels.isEmpty())
        return labels.first().first->text(QAccessible::Name);
    // Of a combo box alone Qt tells what is chosen.
    return qobject_cast<QComboBox *>(widget) ? QString() : whole->text(QAccessible::Name);
}

bool hasFittingRole(QWidget *widget)
{
    static const QVector<QAccessible::Role> roles{
        QAccessible::Chart,        QAccessible::Table,    QAccessible::List,
        QAccessible::PageTab,      QAccessible::Button,   QAccessible::CheckBox,
        QAccessible::RadioButton,  QAccessible::ComboBox, QAccessible::ButtonMenu,
        QAccessible::EditableText, QAccessible::ListItem};
    return roles.contains(QAccessible::queryAccessibleInterface(widget)->role());
}

/// How many of the pixels of a picture differ so much from another's that it is seen.
int changedPixels(const QImage &before, const QImage &after)
{
    int changed = 0;
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x)
            changed += qAbs(qGray(before.pixel(x, y)) - qGray(after.pixel(x, y))) > 40 ? 1 : 0;
    }
    return changed;
}

} // namespace

class KeyboardTest : public TestCase
{
    Q_OBJECT

    /// Everything within \a root that a finger can use can be used by keys, has a name and a role.
    static void checkReach(const PanelDesk &desk, QWidget *root, const QString &where)
    {
        const Row row(where);
        const QVector<QWidget *> round = tabRound(desk);
        QVERIFY2(round.size() > 1, qPrintable(where));
        const auto widgets = root->findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            if (takesTab(widget))
                QVERIFY2(round.contains(widget), qPrintable("not reached: "_s + describe(widget)));
            const auto *button = qobject_cast<QAbstractButton *>(widget);
            // One of several stands for all where arrow keys go through them.
            const bool isPart =
                button && (button->group() || !button->findChildren<QAbstractButton *>().isEmpty());
            if (button && button->isVisible() && button->isEnabled() && !isPart)
                QVERIFY2(takesTab(widget), qPrintable("not for keys: "_s + describe(widget)));
        }
        for (QWidget *widget : round) {
            QVERIFY2(root->isAncestorOf(widget), qPrintable("not of it: "_s + describe(widget)));
            QVERIFY2(!spokenName(widget).isEmpty(), qPrintable("no name: "_s + describe(widget)));
            QVERIFY2(hasFittingRole(widget), qPrintable("what is it? "_s + describe(widget)));
        }
    }

    /// Rows are gone through from the top to the bottom, once around from anywhere.
    static void checkOrder(const QVector<QWidget *> &round, const QWidget *root)
    {
        QVector<int> tops;
        for (const QWidget *widget : round) {
            if (root->isAncestorOf(widget))
                tops.append(widget->mapTo(root->window(), widget->rect().center()).y() / 8);
        }
        std::rotate(tops.begin(), std::min_element(tops.begin(), tops.end()), tops.end());
        QVERIFY2(std::is_sorted(tops.begin(), tops.end()), qPrintable(describe(round.first())));
    }

    /// Keys that open dialogs, and one page of limits.
    static QVector<QWidget *> openers(const PanelKeys &keys)
    {
        return {keys.file, keys.settings, keys.setups, keys.help, keys.instrument, keys.parameter};
    }

private Q_SLOTS:
    void initTestCase() { setUpApplication(); }

    void cleanup()
    {
        setHighContrast(false);
        Controls::ThemeManager::instance()->setTheme(Controls::ThemeManager::Dark);
        TestCase::cleanup();
    }

    void tabReachesEverything()
    {
        PanelDesk desk(QSize(1280, 800));
        desk.model.setActiveTrace(3);
        desk.model.addMarker(3, 100.0);
        for (const bool table : {false, true}) {
            desk.model.viewSettings()->setMarkerTable(table);
            for (int page = 0; page < desk.window.softKeys()->pageCount(); ++page) {
                desk.window.softKeys()->setPage(page);
                PanelDesk::settle();
                checkReach(desk, &desk.window, "page %1"_s.arg(page));
                checkOrder(tabRound(desk), desk.window.softKeys()->findChild<QStackedWidget *>());
            }
        }
        for (QWidget *key : openers(desk.keys())) {
            desk.click(key);
            auto *dialog = desk.window.findChild<QDialog *>();
            QVERIFY2(dialog, qPrintable(describe(key)));
            checkReach(desk, dialog, dialog->accessibleName());
            checkOrder(tabRound(desk), dialog);
            desk.press(Qt::Key_Escape);
            QCOMPARE(desk.window.focusWidget(), key);
        }
        desk.click(desk.keys().limitLines);
        desk.press(Qt::Key_Space);
        checkReach(desk, &desk.window, "limit lines"_s);
        desk.click(desk.keys().limitLines);
    }

    /// In every look it can be seen where the keys go.
    void focusIsSeen()
    {
        PanelDesk desk(QSize(1280, 800));
        // From here on there is something to undo, on every machine.
        QTest::qWait(2 * History::pause);
        desk.model.setActiveTrace(3);
        desk.model.addMarker(3, 100.0);
        desk.model.viewSettings()->setMarkerTable(true);
        QVERIFY(desk.keys().undo->isEnabled());
        QStringList unseen;
        const auto check = [&](const QString &where) {
            QApplication::setCursorFlashTime(0);
            const QVector<QWidget *> round = tabRound(desk);
            for (int i = 0; i < round.size(); ++i) {
                QWidget *widget = round.at(i);
                // The frame of a diagram is around it, that of a switch around both its parts.
                const bool isInside = qobject_cast<QCustomPlot *>(widget)
                    || widget->objectName().startsWith("btnO"_s);
                QWidget *seen = isInside ? widget->parentWidget()->parentWidget() : widget;
                const QRect place(seen->mapTo(&desk.window, QPoint()), seen->size());
                round.at((i + 1) % round.size())->setFocus(Qt::TabFocusReason);
                PanelDesk::settle();
                const QImage without = desk.window.grab(place).toImage();
                widget->setFocus(Qt::TabFocusReason);
                PanelDesk::settle();
                const int changed = changedPixels(without, desk.window.grab(place).toImage());
                if (changed < 60)
                    unseen << where + ": %1 pixels of "_s.arg(changed) + describe(widget);
            }
        };
        for (const auto theme : {Controls::ThemeManager::Dark, Controls::ThemeManager::Light}) {
            for (const bool contrast : {false, true}) {
                setHighContrast(contrast);
                Controls::ThemeManager::instance()->setTheme(theme);
                const QString look = "theme %1, high contrast %2, "_s.arg(theme).arg(contrast);
                for (int page = 0; page < desk.window.softKeys()->pageCount(); ++page) {
                    desk.window.softKeys()->setPage(page);
                    PanelDesk::settle();
                    check(look + "page %1"_s.arg(page));
                }
                for (QWidget *key : openers(desk.keys())) {
                    desk.click(key);
                    check(look + describe(key));
                    desk.press(Qt::Key_Escape);
                }
            }
        }
        QVERIFY2(unseen.isEmpty(), qPrintable(unseen.join(QLatin1Char('\n'))));
    }
};

QTEST_MAIN(KeyboardTest)
#include "tst_keyboard.moc"
