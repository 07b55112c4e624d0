// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scpidialect.h"

namespace Panel
{

namespace
{

/// Named traces, sweep modes.
constexpr ScpiDialect s_sweepModes = {
    "1",
    true,
    "",
    "CALC%c:PAR:CAT:EXT?",
    "",
    "CALC%c:PAR:EXT '%n',%p\nDISP:WIND1:TRAC%w:FEED '%n'",
    "CALC%c:PAR:DEL '%n'",
    "CALC%c:PAR:SEL '%n'",
    "DISP:WIND1:CAT?",
    "TRIG:SOUR IMM\nSENS%c:SWE:MODE SING",
    "TRIG:SOUR IMM\nSENS%c:AVER:CLE\nSENS%c:SWE:GRO:COUN %a\nSENS%c:SWE:MODE GRO",
    false,
    "SENS%c:SWE:MODE CONT",
    "FORM REAL,64",
    "FORM?",
    true,
    "CALC%c:DATA? SDATA",
    "",
    "SENS%c:X?",
};

/// Named traces, sweeps that are initiated.
constexpr ScpiDialect s_initiated = {
    "1",
    true,
    "",
    "CALC%c:PAR:CAT?",
    "",
    "CALC%c:PAR:SDEF '%n','%p'",
    "CALC%c:PAR:DEL '%n'",
    "CALC%c:PAR:SEL '%n'",
    "",
    "INIT%c:CONT 0\nINIT%c:IMM",
    "INIT%c:IMM",
    true,
    "INIT%c:CONT 1",
    "FORM REAL,64",
    "FORM?",
    true,
    "CALC%c:DATA? SDAT",
    "",
    "CALC%c:DATA:STIM?",
};

/// Numbered traces, sweeps that are triggered.
constexpr ScpiDialect s_triggered = {
    "1",
    false,
    "",
    "CALC%c:PAR:COUN?",
    "CALC%c:PAR%n:DEF?",
    "CALC%c:PAR%n:DEF %p",
    "",
    "CALC%c:PAR%n:SEL",
    "",
    "INIT%c:CONT ON\nTRIG:SOUR BUS\nTRIG:SING",
    "SENS%c:AVER:CLE\nTRIG:AVER ON\nINIT%c:CONT ON\nTRIG:SOUR BUS\nTRIG:SING",
    false,
    "TRIG:SOUR INT",
    "FORM:DATA REAL",
    "FORM:DATA?",
    true,
    "CALC%c:DATA:SDAT?",
    "CALC%c:SEL:DATA:SDAT?",
    "SENS%c:FREQ:DATA?",
};

/// Numbered traces on handhelds, which have one channel and a mode for each instrument in them.
constexpr ScpiDialect s_handheld = {
    "",
    false,
    "INST:SEL \"NA\"",
    "CALC%c:PAR:COUN?",
    "CALC%c:PAR%n:DEF?",
    "CALC%c:PAR%n:DEF %p",
    "",
    "CALC%c:PAR%n:SEL",
    "",
    "INIT%c:CONT 0\nINIT%c:IMM",
    "INIT%c:IMM",
    true,
    "INIT%c:CONT 1",
    "FORM REAL,64",
    "FORM?",
    false,
    "CALC%c:DATA:SDATA?",
    "",
    "FREQ:DATA?",
};

/// Told apart by how the first two fields of the identity begin; the first row that fits.
constexpr struct {
    const char *maker;
    const char *model;
    const ScpiDialect *dialect;
} s_identities[] = {
    {"Agilent", "N99", &s_handheld},   {"Keysight", "N99", &s_handheld},
    {"Agilent", "E50", &s_triggered},  {"Keysight", "E50", &s_triggered},
    {"Agilent", "N52", &s_sweepModes}, {"Keysight", "N52", &s_sweepModes},
    {"Agilent", "E83", &s_sweepModes}, {"Keysight", "E83", &s_sweepModes},
    {"Keysight", "M", &s_sweepModes},  {"Rohde", "Z", &s_initiated},
    {"CMT", "", &s_triggered},         {"VnaWidgets", "", &s_initiated},
};

} // namespace

const ScpiDialect *dialectOf(const QByteArrayList &identity)
{
    const QByteArray maker = identity.value(0).toUpper();
    const QByteArray model = identity.value(1).toUpper();
    for (const auto &row : s_identities) {
        if (maker.startsWith(QByteArray(row.maker).toUpper()) && model.startsWith(row.model))
            return row.dialect;
    }
    return nullptr;
}

QByteArray spelled(const ScpiDialect &dialect, const char *command, const QByteArray &name,
                   const QByteArray &parameter)
{
    return QByteArray(command)
        .replace("%c", dialect.channel)
        .replace("%n", name)
        .replace("%p", parameter);
}

} // namespace Panel
