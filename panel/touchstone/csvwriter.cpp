// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "csvwriter.h"

#include "textsink.h"
#include "touchstonewriter.h"

#include <cmath>

namespace Panel
{

namespace
{

void putValue(TextSink &sink, double value)
{
    sink << ",";
    if (!std::isnan(value))
        sink << value;
}

} // namespace

void writeCsv(QIODevice &device, const Network &network)
{
    TextSink sink(device);
    sink << "# VnaWidgets: S parameters of " << network.ports
         << (network.ports == 1 ? " port" : " ports") << ", reference in ohms";
    for (int port = 1; port <= network.ports; ++port) {
        const std::complex<double> ohms = network.reference(port);
        sink << " " << ohms.real();
        if (ohms.imag() != 0.0)
            sink << (ohms.imag() > 0.0 ? "+" : "") << ohms.imag() << "j";
    }
    sink << "\nfrequency_Hz";
    for (int from = 1; from <= network.ports; ++from) {
        for (int to = 1; to <= network.ports; ++to) {
            const std::string name = parameterName(to, from, network.ports).toStdString();
            sink << "," << name << "_real," << name << "_imag";
        }
    }
    sink << "\n";
    for (int point = 0; point < network.points(); ++point) {
        sink << network.frequencies.at(point);
        for (const Parameter &parameter : network.parameters) {
            putValue(sink, parameter.real.at(point));
            putValue(sink, parameter.imag.at(point));
        }
        sink << "\n";
    }
    sink.flush();
}

} // namespace Panel
