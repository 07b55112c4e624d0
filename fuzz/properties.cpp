// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// Values of any type in every dynamic property that the library reads, each followed by what reads
// it.
#include "input.h"

#include <controls/editablewidget.h>
#include <controls/scaledunitadapter.h>
#include <controls/themesettings_p.h>
#include <controls/touchnumkeyboard.h>
#include <utils/propertywatcher.h>
#include <widgets/labelbutton.h>
#include <widgets/markerstatusitem.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMetaType>
#include <QPushButton>

#include <cmath>

namespace
{

QVariant value(Fuzz::Input &input, int depth = 0)
{
    QVariant made;
    switch (input.integer(0, 9)) {
    case 0:
        return {};
    case 1:
        made = input.integer(-40, 40);
        break;
    case 2:
        made = std::numeric_limits<int>::min() + input.integer(0, 1);
        break;
    case 3:
        made = input.real();
        break;
    case 4:
        made = input.raw();
        break;
    case 5:
        made = input.text(40);
        break;
    case 6:
        made = input.bytes(40);
        break;
    case 7: {
        QVariantList list;
        for (int i = input.integer(0, 3); i > 0 && depth < 4; --i)
            list << value(input, depth + 1);
        made = list;
        break;
    }
    case 8:
        made = QVariantMap{{input.text(4), depth < 4 ? value(input, depth + 1) : QVariant()}};
        break;
    default: // anything that has a type number, as it is made without arguments
        made = QVariant(QVariant::Type(input.integer(0, 200)));
        break;
    }
    if (input.integer(0, 3) == 0)
        made.convert(input.integer(1, 60));
    return made;
}

void sendKey(QObject *receiver, int key, const QString &text = QString())
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(receiver, &event);
}

struct Scene {
    Scene()
        : adapter({{QStringLiteral("GHz"), 1e9}, {QStringLiteral("Hz"), 1.0}})
        , field(nullptr, &adapter)
    {
        button.setText(QStringLiteral("Start"));
        button.resize(90, 60);
        item.setText(QStringLiteral("M1"), QStringLiteral("1GHz"), QStringLiteral("2"), {}, {});
    }

    Controls::ScaledUnitAdapter adapter;
    Controls::EditableWidget field;
    LabelButton button;
    MarkerStatusItem item;
    Utils::PropertyWatcher watcher;
};

} // namespace

void Fuzz::run(Input &input)
{
    static Controls::TouchNumKeyboard keypad;
    Scene scene;
    int told = 0;
    scene.watcher.watchProperty(&scene.button, QStringLiteral("watched"),
                                [&told](const QVariant &) { ++told; });
    for (int step = 0; step < 100 && !input.atEnd(); ++step) {
        const QVariant set = value(input);
        switch (input.integer(0, 8)) {
        case 0:
            scene.adapter.setProperty("inputText", set);
            break;
        case 1:
            scene.adapter.setProperty("cursorPos", set);
            break;
        case 2:
            scene.adapter.setProperty("selectionStart", set);
            break;
        case 3:
            scene.adapter.setProperty("selectionLen", set);
            break;
        case 4:
            scene.button.setProperty("multilineLabel", set);
            (void)scene.button.sizeHint();
            if (input.integer(0, 7) == 0)
                (void)scene.button.grab();
            break;
        case 5: {
            const int before = told;
            scene.button.setProperty("watched", set);
            FUZZ_CHECK(told - before <= 1);
            FUZZ_CHECK(scene.button.property("watched").userType() == set.userType());
            break;
        }
        case 6:
            for (QLabel *const label : scene.item.findChildren<QLabel *>())
                label->setProperty("PixmapPath", set);
            scene.item.setSelectedStatus(input.flag());
            scene.item.setLayoutWidth(input.integer(1, 400));
            break;
        case 7: {
            const auto keys = keypad.findChildren<QPushButton *>();
            keys[input.byte() % keys.size()]->setProperty("keyRole", set);
            keypad.setShortcutKeys({{Qt::Key_Return, QStringLiteral("Hz"), QStringLiteral("Hz")}});
            break;
        }
        case 8:
            QCoreApplication::instance()->setProperty("vnaSettingsPath", set);
            FUZZ_CHECK(!Controls::themeSettingsPath().isEmpty());
            break;
        }
        const int key[] = {Qt::Key_Return, Qt::Key_Period, Qt::Key_plusminus, Qt::Key_Escape};
        sendKey(&scene.adapter, key[input.integer(0, 3)], input.flag() ? input.text(4) : QString());
        FUZZ_CHECK(std::isfinite(scene.adapter.getRealValue()));
    }
    for (QPushButton *const key : keypad.findChildren<QPushButton *>())
        key->setProperty("keyRole", {});
    QCoreApplication::instance()->setProperty("vnaSettingsPath", {});
}
