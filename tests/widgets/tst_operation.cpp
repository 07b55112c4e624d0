// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <controls/numericfield.h>
#include <widgets/enumtextbutton.h>
#include <widgets/infobutton.h>
#include <widgets/lockwidget.h>
#include <widgets/markerstatusitem.h>
#include <widgets/menubutton.h>
#include <widgets/popupwidget.h>
#include <widgets/switchbutton.h>

#include <pointer.h>
#include <vnatest.h>

#include <QAccessible>

#include <memory>

using namespace VnaTest;

namespace
{

/// One of each on a page that is shown.
struct Page {
    Page()
    {
        choice->setEnums({{1, "one"_s}, {2, "two"_s}});
        menu->setMenuItems({{1, "one"_s}, {2, "two"_s}});
        label->setLabelText("label"_s);
        checkable->setCheckable(true);
        item->setText("M1"_s, "1 GHz"_s, "1"_s, "2"_s, "3"_s);
        auto *const layout = new QVBoxLayout(page.get());
        for (QWidget *const widget : all())
            layout->addWidget(widget);
        page->resize(600, 700);
        showExposed(page.get());
        page->activateWindow();
    }

    QVector<QWidget *> all() const
    {
        return {label, checkable, info, choice, menu, control, item, lock, field};
    }

    std::unique_ptr<QWidget> page = std::make_unique<QWidget>();
    LabelButton *label = new LabelButton;
    LabelButton *checkable = new LabelButton;
    InfoButton *info = new InfoButton;
    EnumTextButton *choice = new EnumTextButton;
    MenuButton *menu = new MenuButton;
    SwitchButton *control = new SwitchButton;
    MarkerStatusItem *item = new MarkerStatusItem;
    LockWidget *lock = new LockWidget(page.get(), nullptr);
    Controls::NumericField *field = new Controls::NumericField;
};

QAccessibleInterface *interfaceOf(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

} // namespace

/// Widgets by keys, by screen readers, and by hosts that say twice what they want.
class tst_Operation : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keys()
    {
        const Page page;
        QSignalSpy pressed(page.item, &MarkerStatusItem::clicked);
        QSignalSpy locked(page.lock, &LockWidget::lockedChanged);
        QSignalSpy clicked(page.label, &QAbstractButton::clicked);
        int times = 0;
        for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Select}) {
            ++times;
            for (const bool repeats : {false, true}) { // which counts no more
                for (QWidget *const widget :
                     {static_cast<QWidget *>(page.item), static_cast<QWidget *>(page.lock)}) {
                    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, {}, repeats);
                    QCoreApplication::sendEvent(widget, &event);
                }
            }
            QCOMPARE(pressed.count(), times);
            QCOMPARE(locked.count(), times);
        }
        for (QWidget *const widget : page.all())
            sendKey(widget, Qt::Key_F7);
        QCOMPARE(pressed.count() + locked.count(), 2 * times);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Select})
            sendKey(page.label, key);
        QCOMPARE(clicked.count(), 2);
        page.label->setClickable(false);
        for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Select})
            sendKey(page.label, key);
        QCOMPARE(clicked.count(), 2);
    }

    void tools()
    {
        const Page page;
        QSignalSpy clicked(page.label, &QAbstractButton::clicked);
        QSignalSpy checked(page.checkable, &QAbstractButton::clicked);
        QSignalSpy toggled(page.control, &SwitchButton::statusToggled);
        QSignalSpy pressed(page.item, &MarkerStatusItem::clicked);
        QSignalSpy locked(page.lock, &LockWidget::lockedChanged);
        for (QWidget *const widget : page.all()) {
            QAccessibleInterface *const part = interfaceOf(widget);
            QAccessibleActionInterface *const actions = part->actionInterface();
            QVERIFY(part->isValid() && actions);
            QCOMPARE(part->indexOfChild(interfaceOf(page.page.get())), -1);
            for (int i = 0; i < part->childCount(); ++i)
                QCOMPARE(part->indexOfChild(part->child(i)), i);
            QVERIFY(part->text(QAccessible::Help).isEmpty());
            actions->doAction("what nobody knows"_s);
            const QStringList names = actions->actionNames();
            widget->setEnabled(false);
            QVERIFY(actions->actionNames().size() <= names.size());
            widget->setEnabled(true);
            if (widget != page.choice && widget != page.menu && widget != page.field)
                actions->doAction(names.first());
        }
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(checked.count(), 1);
        QCOMPARE(toggled.count(), 1);
        QCOMPARE(pressed.count(), 1);
        QCOMPARE(locked.count(), 1);
        QCOMPARE(interfaceOf(page.checkable)->role(), QAccessible::CheckBox);
        QVERIFY(interfaceOf(page.checkable)->state().checked);
        QCOMPARE(interfaceOf(page.item)->text(QAccessible::Value), "1 GHz 1 2 3"_s);
    }

    void listsOfButtons()
    {
        const Page page;
        for (QAbstractButton *const button : {static_cast<QAbstractButton *>(page.choice),
                                              static_cast<QAbstractButton *>(page.menu)}) {
            QAccessibleInterface *const part = interfaceOf(button);
            const int closed = part->childCount();
            QVERIFY(part->state().collapsed && part->state().hasPopup);
            part->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
            auto *const popup = button->findChild<PopupWidget *>();
            QVERIFY(popup && popup->isVisible());
            QVERIFY(part->state().expanded);
            QCOMPARE(part->childCount(), closed + 1);
            QCOMPARE(part->indexOfChild(part->child(closed)), closed);
            QCOMPARE(part->child(closed)->object(), popup);
            QCOMPARE(part->indexOfChild(interfaceOf(page.page.get())), -1);
            for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Select})
                sendKey(popup->findChild<QListWidget *>(), key);
            QVERIFY(!popup->isVisible());
        }
    }

    /// A host may set all that it knows whenever anything has changed.
    void theSameAgain()
    {
        const Page page;
        for (QWidget *const widget : page.all()) {
            QCoreApplication::sendPostedEvents();
            const QSize hint = widget->sizeHint();
            const QMetaObject *const type = widget->metaObject();
            for (int i = QWidget::staticMetaObject.propertyCount(); i < type->propertyCount();
                 ++i) {
                const QMetaProperty property = type->property(i);
                const QVariant value = property.read(widget);
                if (value.userType() == QMetaType::QIcon) // which cannot be compared
                    continue;
                if (property.isWritable())
                    property.write(widget, value);
                QCOMPARE(property.read(widget), value);
            }
            QCOMPARE(widget->sizeHint(), hint);
        }
    }
};

QTEST_MAIN(tst_Operation)
#include "tst_operation.moc"
