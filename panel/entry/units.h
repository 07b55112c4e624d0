// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
/*! \file
    The quantities of the panel that are entered as numbers: what units they have, how fine they
    are, and how far they go. */
#pragma once

#include <controls/scaledunitadapter.h>

namespace Panel
{

/*! A quantity with units and a range: the model behind one NumericDialog.

    Derive once for each kind of quantity, naming its units. The range is told to the user, so it
   has to be the true one; what lies outside is clamped. */
class UnitAdapter : public Controls::ScaledUnitAdapter
{
    Q_OBJECT

public:
    using ScaledUnitAdapter::ScaledUnitAdapter;

    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    /// Limits in base units, both included; no limits at first. A value outside moves to the limit.
    void setRange(double minimum, double maximum);

    /// "2.45 GHz": a value as a reader likes it, with a space before the unit and a true minus
    /// sign.
    QString valueText(double value);
    /// "100 kHz … 8.5 GHz", or nothing while there are no limits.
    QString rangeText();
    /// A typed text as a number and a unit: it may hold spaces, a decimal comma, and a unit or its
    /// first letter in any case, in front of the one on show. Empty if it is no number.
    QString normalized(const QString &text);
    /// What a typed text stands for, in base units; NaN if it is no number.
    double typedValue(const QString &text);
    /// The unit that begins with a letter, without regard to case; empty if there is none.
    QString unitOfLetter(QChar letter);

private:
    double m_minimum = -qInf();
    double m_maximum = qInf();
};

/// GHz, MHz, kHz and Hz, down to 1 Hz.
class FrequencyAdapter : public UnitAdapter
{
    Q_OBJECT

public:
    explicit FrequencyAdapter(QObject *parent = nullptr);
};

/// ns and ps, down to 0.01 ps.
class TimeAdapter : public UnitAdapter
{
    Q_OBJECT

public:
    explicit TimeAdapter(QObject *parent = nullptr);
};

/// Ohms, down to 10 milliohms.
class ResistanceAdapter : public UnitAdapter
{
    Q_OBJECT

public:
    explicit ResistanceAdapter(QObject *parent = nullptr);
};

/// dB with two decimals.
class DecibelAdapter : public UnitAdapter
{
    Q_OBJECT

public:
    explicit DecibelAdapter(QObject *parent = nullptr);
};

/// A level in dBm with two decimals.
class PowerAdapter : public UnitAdapter
{
    Q_OBJECT

public:
    explicit PowerAdapter(QObject *parent = nullptr);
};

/// A number without a unit. What is typed finer than its decimals is rounded to them, so that a
/// count stays whole.
class NumberAdapter : public UnitAdapter
{
    Q_OBJECT

public:
    explicit NumberAdapter(int decimals, QObject *parent = nullptr);

    double convertToBase(const QString &text) override;
};

} // namespace Panel
