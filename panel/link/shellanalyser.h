// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "analyser.h"
#include "shellscan.h"

namespace Panel
{

/*! The shell of small open-hardware analysers on a serial line: text commands, an echo, a prompt.

    Sweeps longer than the firmware can hold, or slower than about a second, are measured in pieces,
    so that the panel sees them grow and nothing waits for long. S11 and S21 exist; the other two of
    a two-port are zero. */
class ShellAnalyser : public Analyser
{
public:
    /// The longest sweep that is measured in pieces.
    static constexpr int maximumPoints = 10001;

    using Analyser::Analyser;

    bool begin() override;
    bool apply(const MeasurementSettings &wanted) override;
    bool sweep(Network &network, const Progress &progress) override;
    void end() override;

private:
    QByteArray command(const QByteArray &text);
    QByteArray askOwnText(const QByteArray &text);
    bool readOwnSweep();
    void readBandwidth();
    bool waitForPrompt();
    bool scan(double start, double stop, int points, Scan &scan);
    Scan scanBinary(const QByteArray &range, int points, QByteArray &raw);
    Scan scanText(const QByteArray &range, int points, QByteArray &raw);
    Scan scanAndFetch(const QByteArray &range, QByteArray &raw);
    int nextPiece(int left) const;
    void adaptPiece(int points, qint64 milliseconds);

    QByteArray m_commands; ///< that the firmware lists
    QByteArray m_ownSweep; ///< as it was found, for the way back
    QVector<double> m_bandwidths; ///< to choose from; empty where any may be asked for
    bool m_knowsMask = true; ///< until it shows otherwise
    int m_maximumPerScan = 101;
    int m_piece = 11; ///< points that take about a second
};

} // namespace Panel
