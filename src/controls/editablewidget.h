// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <controls/ieditabletitlewidget.h>

#include <memory>

namespace Ui
{
class StepEditWidget;
}

namespace Controls
{

/*! A name and a value to edit in place, framed in the border colour of the theme: a setting on a
    page of the host, or a second setting, such as the step, in the title of a keypad.

    Not for the value that the keypad was opened for from a soft key: KeypadEditor edits that in
    the keypad's own text area.
    \code
    auto *keypad = new Controls::TouchNumKeyboard(mainWindow);
    auto *step = new Controls::ScaledUnitAdapter(frequencyUnits, mainWindow);
    auto *field = new Controls::EditableWidget(keypad, step);
    keypad->setTitleWidget(field);
    connect(step, &Controls::ScaledUnitAdapter::editingFinished, stepper,
            &Controls::StepController::setSingleStep);
    \endcode

    An adapter whose parent is the keypad closes it with its commit: right for a field on a page,
    not for one inside the keypad. A field on a page opens the keypad itself: derive, and call
    keypad->open() in onFocus(). Style sheets address "stepLabel" and "stepEdit". */
class VNAWIDGETS_EXPORT EditableWidget : public IEditableTitleWidget
{
    Q_OBJECT

    Q_PROPERTY(QString labelText READ labelText WRITE setLabelText)

public:
    /// Neither the keypad nor the adapter is owned; each may be null.
    EditableWidget(TouchNumKeyboard *keyboard, BaseUnitAdapter *adapter, QWidget *parent = nullptr);
    ~EditableWidget() override;

    /// The name above the value; "Step" at first.
    QString labelText() const;
    /// Sets labelText(), which is read to the blind as well.
    void setLabelText(const QString &text);

public Q_SLOTS:
    /// Shows a text, a selection and the cursor; positions beyond the text mean its end.
    void setEditorText(QString text, int selectionStart, int selectionLength,
                       int cursorPosition) override;
    /// Begins an edit, and sends the keypad's focus here.
    void onFocus() override;
    /// Repaints the border in the colour of the theme.
    void onThemeChanged();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    std::unique_ptr<Ui::StepEditWidget> m_ui;
};

} // namespace Controls
