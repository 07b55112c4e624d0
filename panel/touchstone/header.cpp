// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "header.h"

#include "text.h"
#include "words.h"

#include <algorithm>
#include <string>
#include <utility>

namespace Panel
{

namespace
{

constexpr std::pair<std::string_view, Keyword> s_keywords[] = {
    {"version", Keyword::Version},
    {"number of ports", Keyword::NumberOfPorts},
    {"two port data order", Keyword::TwoPortDataOrder},
    {"two port order", Keyword::TwoPortDataOrder}, // drafts of the format
    {"number of frequencies", Keyword::NumberOfFrequencies},
    {"number of noise frequencies", Keyword::NumberOfNoiseFrequencies},
    {"reference", Keyword::Reference},
    {"matrix format", Keyword::MatrixFormat},
    {"mixed mode order", Keyword::MixedModeOrder},
    {"begin information", Keyword::BeginInformation},
    {"end information", Keyword::EndInformation},
    {"network data", Keyword::NetworkData},
    {"noise data", Keyword::NoiseData},
    {"end", Keyword::End},
};

constexpr std::pair<std::string_view, double> s_units[] = {
    {"hz", 1.0}, {"khz", 1e3}, {"mhz", 1e6}, {"ghz", 1e9}};

constexpr std::pair<std::string_view, NumberFormat> s_formats[] = {
    {"ri", NumberFormat::RealImaginary},
    {"ma", NumberFormat::MagnitudeAngle},
    {"db", NumberFormat::DecibelAngle}};

constexpr std::pair<std::string_view, ParameterKind> s_kinds[] = {{"s", ParameterKind::Scattering},
                                                                  {"z", ParameterKind::Impedance},
                                                                  {"y", ParameterKind::Admittance},
                                                                  {"g", ParameterKind::HybridG},
                                                                  {"h", ParameterKind::HybridH}};

constexpr std::pair<std::string_view, MatrixFormat> s_matrixFormats[] = {
    {"full", MatrixFormat::Full}, {"lower", MatrixFormat::Lower}, {"upper", MatrixFormat::Upper}};

constexpr std::pair<std::string_view, bool> s_orders[] = {{"21_12", true}, {"12_21", false}};

/// Sets the value that a table has for a word; false if it has none.
template<typename Value, std::size_t Size>
bool lookUp(const std::pair<std::string_view, Value> (&table)[Size], std::string_view word,
            Value &value)
{
    for (const auto &[name, meaning] : table) {
        if (sameWord(word, name)) {
            value = meaning;
            return true;
        }
    }
    return false;
}

bool isHybrid(ParameterKind kind)
{
    return kind == ParameterKind::HybridG || kind == ParameterKind::HybridH;
}

} // namespace

Keyword takeKeyword(std::string_view &line, std::string_view &name)
{
    const std::size_t bracket = line.find(']');
    name = line.substr(0, bracket == line.npos ? bracket : bracket + 1);
    line.remove_prefix(name.size());
    Keyword keyword = Keyword::None;
    if (bracket == name.npos)
        return keyword;
    // Between words stands one blank or dash, or what people took for one.
    std::string words;
    for (const char c : name.substr(1, name.size() - 2)) {
        const bool separates = isBlank(c) || c == '-' || c == '_';
        if (!separates)
            words += c;
        else if (!words.empty() && words.back() != ' ')
            words += ' ';
    }
    if (!words.empty() && words.back() == ' ')
        words.pop_back();
    lookUp(s_keywords, words, keyword);
    return keyword;
}

QString Header::takeOptions(std::string_view line)
{
    if (std::exchange(m_hasOptions, true))
        return QString();
    std::string_view word;
    while (nextWord(line, word)) {
        QString reason = takeOption(word, line);
        if (!reason.isEmpty())
            return reason;
    }
    return QString();
}

QString Header::takeOption(std::string_view word, std::string_view &rest)
{
    if (lookUp(s_units, word, m_unit) || lookUp(s_formats, word, m_format)
        || lookUp(s_kinds, word, m_kind))
        return QString();
    if (sameWord(word, "r"))
        return takeReferences(rest);
    return Text::tr("%1 is no option of a Touchstone file").arg(quoted(word));
}

QString Header::takeReferences(std::string_view &rest)
{
    std::string_view after = rest;
    std::string_view word;
    std::complex<double> ohms;
    while (nextWord(after, word) && toImpedance(word, ohms)) {
        m_optionReferences.append(ohms);
        rest = after;
    }
    if (!m_optionReferences.isEmpty())
        return QString();
    if (!word.empty())
        return Text::tr("the reference resistance after R must be a number above zero");
    // Some programs write it beside the references of each port, which are in comments.
    m_remarks << Text::tr("R has no number, and 50 ohms are assumed");
    return QString();
}

QString Header::take(Keyword keyword, std::string_view name, std::string_view arguments)
{
    m_open = Keyword::None;
    const unsigned bit = 1U << unsigned(keyword);
    if (m_seen & bit)
        return Text::tr("%1 stands twice").arg(quoted(name));
    m_seen |= bit;
    if (keyword == Keyword::Reference || keyword == Keyword::MixedModeOrder) {
        m_open = keyword;
        return takeMore(arguments);
    }
    std::string_view word;
    std::string_view more;
    nextWord(arguments, word);
    bool known = !nextWord(arguments, more);
    switch (keyword) {
    case Keyword::Version:
        return takeVersion(word);
    case Keyword::NumberOfPorts:
        known = known && toCount(word, m_ports);
        break;
    case Keyword::NumberOfFrequencies:
        known = known && toCount(word, m_frequencies);
        break;
    case Keyword::NumberOfNoiseFrequencies:
        known = known && toCount(word, m_noiseFrequencies);
        break;
    case Keyword::TwoPortDataOrder:
        known = known && lookUp(s_orders, word, m_columnsFirst);
        break;
    case Keyword::MatrixFormat:
        known = known && lookUp(s_matrixFormats, word, m_matrixFormat);
        break;
    default:
        known = false;
    }
    if (known)
        return QString();
    return Text::tr("%1 is no value for %2").arg(quoted(more.empty() ? word : more), quoted(name));
}

QString Header::takeVersion(std::string_view word)
{
    double version = 0.0;
    if (!toNumber(word, version) || !(version >= 1.0 && version < 3.0))
        return Text::tr("version %1 of the format is not known").arg(quoted(word));
    m_version2 = true;
    m_inOhms = version >= 2.0;
    if (!m_inOhms)
        m_remarks << Text::tr(
            "version 1 has no keywords, and their meaning in version 2 is assumed");
    return QString();
}

QString Header::takeMore(std::string_view line)
{
    std::string_view word;
    while (nextWord(line, word)) {
        if (m_open == Keyword::MixedModeOrder) {
            QString reason = takeMode(word);
            if (!reason.isEmpty())
                return reason;
            continue;
        }
        double ohms = 0.0;
        if (!toNumber(word, ohms) || !(ohms > 0.0))
            return Text::tr("a reference must be a number above zero, and not %1")
                .arg(quoted(word));
        if (m_references.size() == s_maximumPorts)
            return notANumber(word);
        m_references.append(ohms);
    }
    return QString();
}

QString Header::takeMode(std::string_view word)
{
    static constexpr std::pair<std::string_view, Mode::Type> types[] = {
        {"s", Mode::SingleEnded}, {"d", Mode::Differential}, {"c", Mode::Common}};
    Mode mode;
    std::string_view ports = word.substr(1);
    const std::size_t comma = std::min(ports.find(','), ports.size());
    const bool paired = comma < ports.size();
    const bool known = lookUp(types, word.substr(0, 1), mode.type)
        && toCount(ports.substr(0, comma), mode.port) && mode.port <= s_maximumPorts
        && paired == (mode.type != Mode::SingleEnded)
        && (!paired
            || (toCount(ports.substr(comma + 1), mode.otherPort)
                && mode.otherPort <= s_maximumPorts));
    if (!known || m_modes.size() == s_maximumPorts)
        return Text::tr("%1 is no mode such as S1, D2,3 or C2,3").arg(quoted(word));
    m_modes.push_back(mode);
    return QString();
}

QString Header::finish(int ports)
{
    m_open = Keyword::None;
    const auto lacks = [this](Keyword keyword) { return !(m_seen & (1U << unsigned(keyword))); };
    const auto missing = [](const char *name) {
        return Text::tr("%1 is missing").arg(QLatin1String(name));
    };
    if (m_version2 && lacks(Keyword::NumberOfPorts))
        return missing("[Number of Ports]");
    if (m_version2 && lacks(Keyword::NumberOfFrequencies))
        return missing("[Number of Frequencies]");
    if (m_ports == 0)
        m_ports = ports;
    if (m_ports > s_maximumPorts)
        return Text::tr("a network of %1 ports, and at most %2 ports are read")
            .arg(m_ports)
            .arg(s_maximumPorts);
    if (isHybrid(m_kind) && m_ports != 2)
        return Text::tr("only two-ports have G and H parameters");
    if (m_version2 && m_ports == 2 && lacks(Keyword::TwoPortDataOrder))
        m_remarks << Text::tr("%1 is missing, and 21_12 is assumed")
                         .arg(QLatin1String("[Two-Port Data Order]"));
    const QString reason = checkReferences();
    return reason.isEmpty() && !m_modes.empty() ? checkModes() : reason;
}

QString Header::checkReferences()
{
    // What the keyword says comes before what the option line says.
    if (m_references.isEmpty()) {
        m_references = m_optionReferences;
        if (m_references.size() <= 1)
            m_references.fill(m_references.value(0, 50.0), m_ports);
    }
    if (m_references.size() != m_ports)
        return Text::tr("%1 references for %2 ports").arg(m_references.size()).arg(m_ports);
    const bool complex = std::any_of(m_references.constBegin(), m_references.constEnd(),
                                     [](const auto &ohms) { return ohms.imag() != 0.0; });
    if (complex && m_kind != ParameterKind::Scattering)
        return Text::tr("only S parameters can have a complex reference");
    return QString();
}

QString Header::checkModes() const
{
    if (isHybrid(m_kind) || (m_kind != ParameterKind::Scattering && !m_inOhms))
        return Text::tr("mixed modes are read of S parameters, and of Z and Y in ohms");
    // Each port once as S, or once as D and once as C of the same pair, in the same order.
    QVector<int> single(m_ports + 1), differential(m_ports + 1), common(m_ports + 1);
    for (const Mode &mode : m_modes) {
        if (mode.port > m_ports || mode.otherPort > m_ports || mode.port == mode.otherPort)
            return Text::tr("the mixed modes name a port that does not exist");
        QVector<int> &seen = mode.type == Mode::SingleEnded ? single
            : mode.type == Mode::Differential               ? differential
                                                            : common;
        // A single-ended port is its own partner.
        const int partner = mode.type == Mode::SingleEnded ? mode.port : mode.otherPort;
        if (seen.at(mode.port) != 0 || seen.at(partner) != 0)
            return Text::tr("the mixed modes name port %1 twice").arg(mode.port);
        seen[mode.port] = partner;
        seen[partner] = mode.port;
        if (m_references.at(mode.port - 1) != m_references.at(partner - 1))
            return Text::tr("the ports %1 and %2 of a mixed mode have different references")
                .arg(mode.port)
                .arg(partner);
    }
    for (int port = 1; port <= m_ports; ++port) {
        const bool alone = single.at(port) != 0;
        if (differential.at(port) != common.at(port) || alone == (differential.at(port) != 0))
            return Text::tr(
                       "the mixed modes do not name port %1 once as S or as D and C of one pair")
                .arg(port);
    }
    return QString();
}

double Header::noiseReference() const
{
    return m_optionReferences.isEmpty() ? 50.0 : m_optionReferences.first().real();
}

} // namespace Panel
