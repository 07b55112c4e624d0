// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: 0BSD
#include "page.h"
#include "pages.h"

#include <controls/editablewidget.h>
#include <controls/keypadeditor.h>
#include <controls/numericfield.h>
#include <controls/scaledunitadapter.h>
#include <controls/touchnumkeyboard.h>
#include <widgets/labelbutton.h>

#include <QDoubleValidator>

namespace Gallery
{

namespace
{

using Controls::ScaledUnitAdapter;
using Controls::TouchNumKeyboard;

ScaledUnitAdapter *frequency(double value, QObject *parent)
{
    auto *const adapter = new ScaledUnitAdapter({{QStringLiteral("GHz"), 1e9},
                                                 {QStringLiteral("MHz"), 1e6},
                                                 {QStringLiteral("kHz"), 1e3},
                                                 {QStringLiteral("Hz"), 1.0}},
                                                parent);
    adapter->setDecimals(9);
    adapter->setValidator(new QDoubleValidator(100e3, 8.5e9, 0, adapter));
    adapter->setRealValue(value);
    return adapter;
}

/// A keypad that edits a frequency in its own text area.
TouchNumKeyboard *frequencyKeypad(const QString &title, double value, QWidget *parent)
{
    auto *const keypad = new TouchNumKeyboard(parent);
    keypad->setWindowTitle(title);
    new Controls::KeypadEditor(keypad, frequency(value, keypad));
    return keypad;
}

Section *keypads()
{
    auto *const section = new Section(
        QStringLiteral("touchnumkeyboard"), QStringLiteral("Controls::TouchNumKeyboard"),
        tr("The keypad of numeric entry; a unit key finishes the entry."));
    // Both show a half-finished entry; with an editor, only one of them could be open at a time.
    const auto add = [section](const QString &title, const char *caption) {
        auto *const keypad = new TouchNumKeyboard;
        keypad->setWindowFlags(Qt::Widget); // stays open as a part of the page
        keypad->setWindowTitle(title);
        keypad->setShortcutKeys({{Qt::Key_G, QStringLiteral("GHz"), QStringLiteral("GHz")},
                                 {Qt::Key_M, QStringLiteral("MHz"), QStringLiteral("MHz")},
                                 {Qt::Key_K, QStringLiteral("kHz"), QStringLiteral("kHz")},
                                 {Qt::Key_H, QStringLiteral("Hz"), QStringLiteral("Hz")}});
        section->add(keypad, tr(caption));
        return keypad;
    };
    TouchNumKeyboard *const plain = add(tr("Stop"), "with its own text area");
    plain->setIndicatorText(QStringLiteral("2.45 GHz"), 0, 4, 4);
    TouchNumKeyboard *const titled = add(tr("Centre"), "with the step in its title");
    auto *const step = new Controls::EditableWidget(nullptr, frequency(10e6, section), titled);
    step->setFixedWidth(150);
    titled->setTitleWidget(step, Qt::AlignRight | Qt::AlignVCenter);
    titled->setIndicatorText(QStringLiteral("2.9 GHz"), 3, 0, 3);
    for (TouchNumKeyboard *const keypad : {plain, titled})
        keypad->show();
    return section;
}

Section *fields()
{
    auto *const section =
        new Section(QStringLiteral("editablewidget"), QStringLiteral("Controls::EditableWidget"),
                    tr("A name and a value to edit in place, with units and limits."));
    const auto add = [section](const char *caption, double value) {
        auto *const adapter = frequency(value, section);
        auto *const field = new Controls::EditableWidget(nullptr, adapter);
        field->setLabelText(tr("Step"));
        section->add(field, tr(caption), QSize(180, 64));
        return field;
    };
    add("normal", 10e6);
    section->setFocusSample(
        add("being edited", 12.5e6)->findChild<QWidget *>(QStringLiteral("stepEdit")));
    add("disabled", 1e3)->setEnabled(false);
    return section;
}

/// Fields that need nothing else.
Section *numericFields(Page *page)
{
    auto *const section =
        new Section(QStringLiteral("numericfield"), QStringLiteral("Controls::NumericField"),
                    tr("A number with a unit and a keypad of its own; tap it."));
    const auto add = [section, page](const char *name, const char *unit, const char *prefixes,
                                     double value) {
        auto *const field = new Controls::NumericField;
        field->setLabelText(tr(name));
        field->setUnit(QLatin1String(unit));
        field->setPrefixes(QLatin1String(prefixes));
        field->setValue(value);
        section->add(field, QString(), QSize(150, 64));
        QObject::connect(
            field, &Controls::NumericField::valueEntered, page, [page](double entered) {
                Q_EMIT page->told(QStringLiteral("valueEntered(%1)").arg(entered, 0, 'g', 12));
            });
    };
    add("Capacitance", "F", "unp", 4.7e-9);
    add("Frequency", "Hz", "GMk", 2.45e9);
    add("Loss", "dB", "", 0.35);
    return section;
}

Section *opener(Page *page)
{
    auto *const section = new Section(QStringLiteral("numericentry"), tr("Numeric entry"),
                                      tr("What a soft key does with it: a tap opens the keypad."));
    auto *const key = new LabelButton;
    key->setText(tr("Stop"));
    key->setLabelText(QStringLiteral("2.9 GHz"));
    QObject::connect(key, &LabelButton::clicked, page, [page, key] {
        TouchNumKeyboard *const keypad = frequencyKeypad(tr("Stop"), 2.9e9, page->window());
        keypad->setAttribute(Qt::WA_DeleteOnClose);
        keypad->setPopupAnchorWidget(key);
        const auto *const adapter = keypad->findChild<ScaledUnitAdapter *>();
        QObject::connect(adapter, &ScaledUnitAdapter::editingFinished, page, [page](double value) {
            Q_EMIT page->told(QStringLiteral("editingFinished(%1)").arg(value, 0, 'g', 12));
        });
        keypad->open();
    });
    section->add(key, tr("tap it"), QSize(150, 84));
    return section;
}

} // namespace

Page *createEntryPage()
{
    auto *const page = new Page(tr("Numeric entry"));
    page->add(keypads());
    page->add(fields());
    page->add(numericFields(page));
    page->addBeside(opener(page));
    return page;
}

} // namespace Gallery
