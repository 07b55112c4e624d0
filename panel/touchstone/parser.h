// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "header.h"
#include "pointstore.h"
#include "textlines.h"
#include "touchstone.h"

#include <optional>
#include <string>

namespace Panel
{

/*! Reads a Touchstone text line by line: which section it is in, and what a line means there. Used
    once. */
class Parser
{
public:
    /// `ports` is how many the file's name says that there are, or 0. What is passed has to live
    /// as long.
    Parser(QIODevice &device, int ports, const ReadProgress &progress);

    TouchstoneResult run();

private:
    enum class Section { Header, Information, Network, Noise, End };

    bool fail(const QString &reason, int line);
    bool fail(const QString &reason) { return fail(reason, m_lines.number()); }
    /// Fails unless there is no reason to.
    bool accept(const QString &reason) { return reason.isEmpty() || fail(reason); }
    bool tellProgress();
    bool hasData() const { return m_section != Section::Header || !m_firstPoint.empty(); }

    bool parseLine(std::string_view line);
    bool parseKeyword(std::string_view line);
    bool parseSection(Keyword keyword, std::string_view name);
    void takeComment(std::string_view text);

    bool startNetwork(int ports);
    bool parseValues(std::string_view line);
    bool measureFirstPoint(std::string_view line);
    bool closeFirstPoint();
    bool parsePoint(std::string_view line);
    bool takePoint();
    bool parseNoise(std::string_view line);
    bool mayBeNoise(double hertz, int count) const;
    bool checkCount(qint64 count, int announced);
    bool finish();

    QIODevice &m_device;
    TextLines m_lines;
    const qint64 m_size;
    const ReadProgress &m_progress;
    qint64 m_told = 0; ///< bytes, at the last report of progress

    TouchstoneResult m_result;
    Header m_header;
    std::optional<PointStore> m_store; ///< once the ports are known
    Section m_section = Section::Header;
    Section m_before = Section::Header; ///< the information that is being skipped
    qint64 m_commentBytes = 0;
    bool m_portImpedances = false; ///< there are comments that give them
    bool m_notRenormalized = false; ///< a comment says so of the data

    int m_filled = 0; ///< numbers of the point that is being read
    int m_pointLine = 0; ///< where it began
    std::vector<double> m_firstPoint; ///< while it has to tell the number of ports
    /// Five numbers at the last frequency: noise, or a point of which the other half follows.
    std::string m_doubtful;
};

} // namespace Panel
