// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/touchnumkeyboard.h>

#include <pointer.h>
#include <vnatest.h>

#include <memory>

namespace VnaTest
{

using Controls::TouchNumKeyboard;

/// Notes the key events that it receives.
class KeyRecorder : public QWidget
{
public:
    using QWidget::QWidget;
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
            const auto *key = static_cast<QKeyEvent *>(event);
            log << (event->type() == QEvent::KeyPress ? "+"_s : "-"_s)
                    + QString::number(key->key(), 16) + ":"_s + key->text();
            return true;
        }
        return QWidget::event(event);
    }

    QStringList log;
};

inline QList<TouchNumKeyboard::KeySpec> units(int count)
{
    QList<TouchNumKeyboard::KeySpec> keys;
    for (int i = 0; i < count; ++i) {
        const QString name = "u"_s + QString::number(i);
        keys.append({Qt::Key_Return, name, name});
    }
    return keys;
}

/// A keypad over a main window whose editor has the focus.
struct KeypadScene {
    KeypadScene()
    {
        window->setGeometry(0, 0, 800, 600);
        editor->setFocusPolicy(Qt::StrongFocus);
        window->setCentralWidget(editor);
        window->show();
        if (!QTest::qWaitForWindowActive(window.get()))
            qWarning("the window did not become active");
        editor->setFocus();
    }
    QPushButton *button(const QString &name) const
    {
        return keypad->findChild<QPushButton *>(name);
    }
    void click(const QString &name) const { mouseClick(button(name)); }

    std::unique_ptr<QMainWindow> window = std::make_unique<QMainWindow>();
    QPointer<KeyRecorder> editor = new KeyRecorder;
    QPointer<TouchNumKeyboard> keypad = new TouchNumKeyboard(window.get());
};

} // namespace VnaTest
