// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "filenotes.h"

#include <panel/ground/numbertext.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace Panel
{

namespace
{

bool isEmpty(const Parameter &parameter)
{
    return std::all_of(parameter.real.begin(), parameter.real.end(),
                       [](double value) { return std::isnan(value); });
}

QStringList emptyParameters(const Network &network)
{
    QStringList names;
    for (int to = 1; to <= network.ports; ++to) {
        for (int from = 1; from <= network.ports; ++from) {
            if (isEmpty(network.s(to, from)))
                names << parameterName(to, from);
        }
    }
    return names;
}

} // namespace

QStringList fileNotes(const QVector<Network> &networks)
{
    QStringList notes;
    QStringList references;
    bool differ = false;
    for (const Network &network : networks) {
        references << network.name + QLatin1Char(' ') + ohmsText(network.referenceOhms);
        differ = differ || network.referenceOhms != networks.first().referenceOhms;
        if (network.points() == 1)
            notes << QCoreApplication::translate(
                         "Panel::FileNotes",
                         "%1 holds a single point, at %2: set a marker to see it.")
                         .arg(network.name, frequencyText(network.frequencies.first()));
        for (const QString &remark : network.remarks)
            notes << QCoreApplication::translate("Panel::FileNotes", "%1: %2.")
                         .arg(network.name, remark);
        const QStringList empty = emptyParameters(network);
        if (!empty.isEmpty())
            notes << QCoreApplication::translate("Panel::FileNotes", "%1: %2 holds no values.")
                         .arg(network.name, empty.join(QStringLiteral(", ")));
    }
    if (differ)
        notes.prepend(QCoreApplication::translate("Panel::FileNotes",
                                                  "Each file is shown in its own reference: %1.")
                          .arg(references.join(QStringLiteral(", "))));
    return notes;
}

QString missingNote(const QStringList &parameters, const QVector<Network> &networks)
{
    if (parameters.isEmpty())
        return {};
    QStringList files;
    for (const Network &network : networks)
        files << network.name;
    const QString text = parameters.size() == 1
        ? QCoreApplication::translate("Panel::FileNotes", "%1 is not in %2.")
        : QCoreApplication::translate("Panel::FileNotes", "%1 are not in %2.");
    const QString comma = QStringLiteral(", ");
    return text.arg(parameters.join(comma), files.join(comma));
}

} // namespace Panel
