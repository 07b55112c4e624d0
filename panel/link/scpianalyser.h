// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "analyser.h"
#include "scpiport.h"

#include <QByteArrayList>

namespace Panel
{

struct ScpiDialect;

/*! A bench analyser that answers SCPI on a socket. It measures S11, S21, S12 and S22, or S11 alone
    where a second port is not to be had: with the traces that are there, and with own ones, which go
    again, where none shows a parameter. */
class ScpiAnalyser : public Analyser
{
public:
    explicit ScpiAnalyser(Wire &wire)
        : Analyser(wire)
        , m_port(wire)
    {
    }

    bool begin() override;
    bool apply(const MeasurementSettings &wanted) override;
    bool sweep(Network &network, const Progress &progress) override;
    void end() override;

private:
    void sendAll(const char *commands, const QByteArray &name = {},
                 const QByteArray &parameter = {});
    QByteArray channel(const char *command) const;

    void readLimits();
    bool readSettings();
    bool findTraces();
    bool defineTrace(const QByteArray &parameter, QByteArray &source);
    void removeTraces();
    bool runSweep(int sweeps);
    bool awaitSweep(double sweeps);
    bool readFrequencies(Network &network);
    bool readParameter(int index, Network &network);

    ScpiPort m_port;
    const ScpiDialect *m_dialect = nullptr;
    QByteArrayList m_ownTraces; ///< made by the panel
    QByteArrayList
        m_traces; ///< names or numbers in the order of a network; one of them for a reflection alone
    QByteArray m_traceCount; ///< of numbered traces, as it was found
    QByteArray m_taken; ///< places of the window, by commas
    int m_nextPlace = 1;
    QByteArray m_format, m_byteOrder; ///< as they were found
    QVector<double> m_frequencies; ///< of the present settings; empty: not asked for yet
    QByteArray m_data; ///< the query that is known to work; empty: not tried yet
    double m_sweepTime = 0.0; ///< in seconds
};

} // namespace Panel
