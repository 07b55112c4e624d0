// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What instruments and scripts send, in the hands of the functions that take it apart.
#include "input.h"

#include <panel/link/linkaddress.h>
#include <panel/link/programdata.h>
#include <panel/link/scpi.h>
#include <panel/link/shellscan.h>
#include <panel/serve/scpimessage.h>

#include <cmath>

using namespace Panel;
using Fuzz::Input;

namespace
{

void scpiNumbers(const QByteArray &bytes)
{
    FUZZ_CHECK(parseDoubles(bytes, true).size() == bytes.size() / 8);
    const QVector<double> little = parseDoubles(bytes, false);
    FUZZ_CHECK(little.size() == bytes.size() / 8);
    // A number takes a character and a comma at least.
    FUZZ_CHECK(parseNumberList(bytes).size() <= bytes.size() / 2 + 1);
    FUZZ_CHECK(blockSize(bytes) >= -1);
}

void scpiTexts(const QByteArray &bytes)
{
    for (const QByteArray &field : identityFields(bytes))
        FUZZ_CHECK(field == field.trimmed() && field.size() <= bytes.size());
    int number = 0;
    QByteArray text;
    if (readErrorEntry(bytes, number, text))
        FUZZ_CHECK(bytes.contains(QByteArray::number(std::abs(number))));
    for (const NamedTrace &trace : parseCatalogue(bytes))
        FUZZ_CHECK(trace.name.size() + trace.parameter.size() <= bytes.size());
}

void shell(const QByteArray &bytes, int points)
{
    for (const Scan &scan : {parseScanRows(bytes, points), parseBinaryScan(bytes, points)}) {
        FUZZ_CHECK(scan.fault != ScanFault::None || scan.points.size() == points);
        if (checkScan(scan, 1e6, 2e6) != ScanFault::None)
            continue;
        for (const ScanPoint &point : scan.points)
            FUZZ_CHECK(std::isfinite(point.hertz) && std::isfinite(std::abs(point.s11)));
    }
    FUZZ_CHECK(parseDataRows(bytes).size() <= bytes.size());
    FUZZ_CHECK(parseFrequencyRows(bytes).size() <= bytes.size());
    FUZZ_CHECK(announcedPoints(bytes.left(shellHead)) >= -1);
}

void program(const QByteArray &bytes, int expected)
{
    const ProgramTrace trace = parseProgramTrace(bytes, expected);
    FUZZ_CHECK(trace.real.size() == trace.imag.size());
    FUZZ_CHECK(trace.real.size() == trace.frequencies.size());
    FUZZ_CHECK(trace.frequencies.size() <= bytes.size() / 7 + 1); // "[0,0,0]"
    FUZZ_CHECK(!agree(trace.frequencies, {1.0, 2.0}) || trace.frequencies.size() == 2);
}

void commands(const QByteArray &bytes)
{
    for (const ScpiCommand &command : parseCommands(bytes)) {
        int number = 0;
        for (const char *pattern : {"[SENSe:]FREQuency:STARt", "CALCulate#:MARKer#:X", "*IDN"}) {
            if (matches(command.header, pattern, number))
                FUZZ_CHECK(!command.header.isEmpty());
        }
    }
}

void address(const QString &text)
{
    LinkAddress address;
    QString error;
    if (!parseLinkAddress(text, address, error)) {
        FUZZ_CHECK(!error.isEmpty());
        return;
    }
    LinkAddress again;
    FUZZ_CHECK(parseLinkAddress(address.text(), again, error));
    FUZZ_CHECK(again.kind == address.kind && again.place == address.place
               && again.port == address.port);
}

} // namespace

void Fuzz::run(Input &input)
{
    const int what = input.integer(0, 5), points = input.integer(0, 300);
    const QByteArray bytes = input.rest();
    switch (what) {
    case 0:
        return scpiNumbers(bytes);
    case 1:
        return scpiTexts(bytes);
    case 2:
        return shell(bytes, points);
    case 3:
        return program(bytes, points);
    case 4:
        return commands(bytes);
    default:
        return address(QString::fromUtf8(bytes));
    }
}
