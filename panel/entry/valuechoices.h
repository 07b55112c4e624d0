// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QVector>

namespace Panel
{

/// The list of a key that is off or has one of some values; off is 0, and first.
struct ValueChoices {
    QVector<double> values;

    /// \a text has the place of a value, as "%1 dB".
    QStringList names(const QString &off, const QString &text) const
    {
        QStringList result{off};
        for (const double value : values)
            result << text.arg(value);
        return result;
    }
    /// Off for a value that is not in the list.
    int choiceOf(double value) const { return int(values.indexOf(value)) + 1; }
    double valueOf(int choice) const { return values.value(choice - 1); }
};

} // namespace Panel
