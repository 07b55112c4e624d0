// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <controls/baseunitadapter.h>

#include <QVector>

#include <memory>

namespace Controls
{

/*! An adapter for a quantity whose units differ by a factor: frequencies, times, resistances,
    levels. Refuses what is no number, so that a slip of the finger never becomes a zero.

    Not for units with an offset (degrees Celsius) or a logarithm between them (W and dBm): derive
    from BaseUnitAdapter for those.
    \code
    auto *stop = new Controls::ScaledUnitAdapter({{QStringLiteral("GHz"), 1e9},
                                                  {QStringLiteral("MHz"), 1e6},
                                                  {QStringLiteral("kHz"), 1e3}}, keypad);
    stop->setDecimals(9);
    stop->setValidator(new QDoubleValidator(100e3, 8.5e9, 0, stop));
    stop->setRealValue(2.9e9); // "2.9GHz"
    connect(stop, &Controls::ScaledUnitAdapter::editingFinished, sweep, &Sweep::setStop);
    \endcode

    A number without a unit is taken in the unit on show. A value set from code is shown in the
    unit that leaves the fewest digits before the point; one that was typed keeps the unit it was
    typed in. */
class VNAWIDGETS_EXPORT ScaledUnitAdapter : public BaseUnitAdapter
{
    Q_OBJECT

public:
    /// A unit's name, which ends in an ASCII letter, and the base units it holds.
    struct Unit {
        QString name; ///<ends in an ASCII letter
        double factor = 1.0; ///<base units in one of it; above 0
    };

    /// \a units in the order of their keys. Entries
    /// without a name or with a factor that is not positive are left out.
    explicit ScaledUnitAdapter(const QVector<Unit> &units, QObject *parent = nullptr);
    ~ScaledUnitAdapter() override;

    /// Names the kind of adapter: "Scaled".
    static QString adapterType();

    /// Digits after the point for values shown in \a unit, in place of setDecimals().
    void setUnitDecimals(const QString &unit, int decimals);

    /// Whether a space stands between number and unit, as in "2.45 GHz". Default: false. The text
    /// changes with the next value.
    bool hasUnitSpacing() const;
    /// Sets hasUnitSpacing().
    void setUnitSpacing(bool spacing);

    QString convertFromBaseValue(double value, QString unit) override;
    double convertToBase(const QString &text) override;
    QStringList availableUnits() override;

private:
    QString findUnit(const QString &name) const;
    QString bestUnit(double value) const;

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Controls
