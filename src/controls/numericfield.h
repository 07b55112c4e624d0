// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <controls/editablewidget.h>
#include <controls/scaledunitadapter.h>

namespace Controls
{

class NumericFieldPrivate;

/*! A number with a unit on a page or in a .ui file: a name, the value, and a keypad of its own that
    opens when it is tapped. Hardware keys edit in place.

    \code
    auto *capacitance = new Controls::NumericField(this);
    capacitance->setLabelText(tr("C"));
    capacitance->setUnit(QStringLiteral("F"));
    capacitance->setPrefixes(QStringLiteral("unp")); // keys µF, nF and pF
    capacitance->setRange(0.1e-12, 100e-6);
    capacitance->setValue(4.7e-9); // "4.7 nF"
    connect(capacitance, &Controls::NumericField::valueEntered, this,
            [this](double farad) { showEntry(farad); });
    \endcode

    Values are in the unit itself, whatever is shown. A value outside the range becomes the nearest
    one inside, which valueClamped() tells; a text that is no number is refused, which entryRefused()
    tells. For units that are no multiples of each other, give it an adapter of your own.

    What is half typed stays open while another window has the focus. Style hooks are those of
    EditableWidget. */
class VNAWIDGETS_EXPORT NumericField : public EditableWidget
{
    Q_OBJECT

    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(QString unit READ unit WRITE setUnit)
    Q_PROPERTY(QString prefixes READ prefixes WRITE setPrefixes)
    Q_PROPERTY(bool unitSpacing READ hasUnitSpacing WRITE setUnitSpacing)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(bool keypadEnabled READ isKeypadEnabled WRITE setKeypadEnabled)

public:
    /// A field of 0 without a unit or a range.
    explicit NumericField(QWidget *parent = nullptr);
    ~NumericField() override;

    /// The value, in the unit without a prefix. 0 at first.
    double value() const;
    /// The minimum; minus infinity at first.
    double minimum() const;
    /// The maximum; infinity at first.
    double maximum() const;
    /// Sets minimum(), and maximum() where that would be less. NaN is ignored.
    void setMinimum(double minimum);
    /// Sets maximum(), and minimum() where that would be greater. NaN is ignored.
    void setMaximum(double maximum);
    /// Sets both limits; a value outside moves inside and tells valueChanged().
    void setRange(double minimum, double maximum);
    /// Digits after the point at most, 0 to 15. Default: 6.
    int decimals() const;
    /// Sets decimals().
    void setDecimals(int decimals);
    /// The unit, which ends in an ASCII letter: "F", "Hz", "Ohm". Empty at first: numbers alone.
    QString unit() const;
    /// Sets unit().
    void setUnit(const QString &unit);
    /// The unit's prefixes in the order of their keys, each a letter of "TGMkmunpf" or a blank for
    /// the unit alone; "u" is shown as "µ". Empty, the default: the unit alone.
    QString prefixes() const;
    /// Sets prefixes(); other letters are left out.
    void setPrefixes(const QString &prefixes);
    /// Whether a space stands between number and unit. Default: true.
    bool hasUnitSpacing() const;
    /// Sets hasUnitSpacing().
    void setUnitSpacing(bool spacing);
    /// What the arrow keys add, in the unit; 0, the default, for steps of 1, 2, 5, 10.
    double singleStep() const;
    /// Sets singleStep(); a negative step turns the arrow keys around.
    void setSingleStep(double step);
    /// Whether a tap opens the keypad. Default: true.
    bool isKeypadEnabled() const;
    /// Sets isKeypadEnabled().
    void setKeypadEnabled(bool enabled);

    /// The keypad, made at the first call: for its dimming, extra widget and so on. The field owns it.
    TouchNumKeyboard *keypad();
    /// Works on an adapter of the host's from now on, which is not owned, with units, digits and
    /// limits of its own; null brings the field's own back.
    void setAdapter(BaseUnitAdapter *adapter) override;

public Q_SLOTS:
    /// Sets the value, within the range; NaN is ignored. What is being typed is replaced.
    void setValue(double value);
    /// Begins an edit with the number selected.
    void onFocus() override;
    /// Opens the keypad above the field's window, as a tap does; also while keypadEnabled is off.
    void openKeypad();

Q_SIGNALS:
    /// The value has changed, by setter, entry or step.
    void valueChanged(double value);
    /// The user has entered a value or stepped to it; also when it is the old one.
    void valueEntered(double value);
    /// The user has entered a value outside the range; it became \a value.
    void valueClamped(double entered, double value);
    /// The user has entered what is no number; the last value stands.
    void entryRefused(const QString &text);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    const std::unique_ptr<NumericFieldPrivate> d;
};

} // namespace Controls
