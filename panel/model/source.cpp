// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "source.h"

#include <QCoreApplication>

namespace Panel
{

namespace
{

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Panel::Source)
};

} // namespace

QString sourceName(Source source)
{
    switch (source) {
    case Source::Files:
        return Text::tr("File");
    case Source::Antenna:
        return Text::tr("Antenna");
    case Source::Filter:
        return Text::tr("Filter");
    case Source::Cable:
        return Text::tr("Long cable");
    }
    return {};
}

} // namespace Panel
