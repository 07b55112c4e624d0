// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "analyser.h"

#include <QByteArrayList>

namespace Panel
{

/*! The open analyser program's SCPI server, of versions that answer every command and of versions
    that answer queries alone. */
class ProgramAnalyser : public Analyser
{
public:
    using Analyser::Analyser;

    bool begin() override;
    bool apply(const MeasurementSettings &wanted) override;
    bool sweep(Network &network, const Progress &progress) override;
    void end() override;

private:
    void tell(const QByteArray &command);
    QByteArray ask(const QByteArray &query);
    QByteArray askOptional(const QByteArray &query);
    double askNumber(const QByteArray &query, double otherwise);
    bool findDevice();
    bool readSettings();
    bool findTraces();
    double expectedTime() const;
    bool awaitOperation();
    bool awaitSweep(const Network &network, const Progress &progress);

    bool m_answersCommands = false; ///< each with a line of its own
    QByteArrayList m_traces; ///< names, in the order of a network; empty for one that is not there
};

} // namespace Panel
