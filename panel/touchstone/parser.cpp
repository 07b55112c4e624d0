// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "parser.h"

#include "noisedata.h"
#include "text.h"
#include "words.h"

#include <QIODevice>

#include <array>
#include <charconv>
#include <cmath>

namespace Panel
{

namespace
{

/// Bytes between two reports of progress.
constexpr qint64 s_portion = 1 << 20;
/// Bytes of comments that are kept.
constexpr qint64 s_maximumComments = 16 << 20;
/// What a two-port's second line has that begins with five numbers.
constexpr int s_otherHalf = 4;

QString misplaced(std::string_view word)
{
    return Text::tr("%1 does not stand where it belongs").arg(quoted(word));
}

QString missing(const char *keyword)
{
    return Text::tr("%1 is missing").arg(QLatin1String(keyword));
}

/// Comments are in UTF-8, or in Latin-1 where they cannot be.
QString decoded(std::string_view text)
{
    const QString utf8 = QString::fromUtf8(text.data(), int(text.size()));
    const QByteArray again = utf8.toUtf8();
    return text == std::string_view(again.constData(), std::size_t(again.size()))
        ? utf8
        : QString::fromLatin1(text.data(), int(text.size()));
}

} // namespace

Parser::Parser(QIODevice &device, int ports, const ReadProgress &progress)
    : m_device(device)
    , m_lines(device)
    , m_size(device.size())
    , m_progress(progress)
    , m_header(ports)
{
}

TouchstoneResult Parser::run()
{
    std::string_view line;
    bool good = true;
    while (good && m_lines.next(line))
        good = parseLine(line) && tellProgress();
    if (good && m_lines.failure() == TextLines::Failure::LongLine)
        good = fail(Text::tr("the line is longer than %1 MB").arg(TextLines::longestLine >> 20),
                    m_lines.number() + 1);
    else if (good && m_lines.failure() == TextLines::Failure::Device)
        good = fail(Text::tr("the file cannot be read (%1)").arg(m_device.errorString()), 0);
    good = good && finish();
    if (!good)
        m_result.network = Network();
    return m_result;
}

bool Parser::fail(const QString &reason, int line)
{
    m_result.reason = reason;
    m_result.line = line;
    return false;
}

bool Parser::tellProgress()
{
    if (m_lines.bytesTaken() - m_told < s_portion)
        return true;
    const qint64 size = std::max(m_size, m_lines.bytesRead());
    // The first portion tells how long the others will take, and how much room.
    if (m_told == 0 && m_store)
        m_store->expect(m_store->points() * size / m_lines.bytesTaken());
    m_told = m_lines.bytesTaken();
    return !m_progress || m_progress(int(100 * m_told / size))
        || fail(Text::tr("the reading was cancelled"), 0);
}

bool Parser::parseLine(std::string_view line)
{
    line = withoutBlanks(line);
    if (line.empty())
        return true;
    if (m_section == Section::Information && line.front() != '[') {
        takeComment(line);
        return true;
    }
    const bool isData = line.front() != '!' && line.front() != '#' && line.front() != '[';
    // Behind values stand remarks on where they are in the file, as a rule.
    if (!isData || m_header.expectsMore()) {
        const std::size_t comment = line.find('!');
        if (comment != line.npos)
            takeComment(line.substr(comment + 1));
        line = line.substr(0, comment);
    }
    if (line.empty())
        return true;
    if (line.front() == '[')
        return parseKeyword(line);
    if (line.front() != '#')
        return parseValues(line);
    // Without an option line before them, the values have been read by the defaults.
    if (hasData() && !m_header.hasOptions())
        return fail(Text::tr("the option line comes after data"));
    return accept(m_header.takeOptions(line.substr(1)));
}

void Parser::takeComment(std::string_view text)
{
    const std::string_view words = withoutBlanks(text);
    m_portImpedances = m_portImpedances || startsWithWord(words, "port impedance");
    m_notRenormalized = m_notRenormalized || startsWithWord(words, "data is not renormalized");
    m_commentBytes += qint64(text.size());
    // What a writer says of its file is not true of what is made of it.
    if (m_commentBytes > s_maximumComments || startsWithWord(words, "vnawidgets:"))
        return;
    const bool within = (m_filled > 0 && m_doubtful.empty()) || !m_firstPoint.empty();
    const int points = (m_store ? int(m_store->points()) : 0) + (within ? 1 : 0);
    m_result.network.comments.append({points, decoded(text)});
}

bool Parser::parseKeyword(std::string_view line)
{
    std::string_view name;
    const Keyword keyword = takeKeyword(line, name);
    if (m_section == Section::Information) {
        if (keyword == Keyword::EndInformation)
            m_section = m_before;
        return true;
    }
    if (keyword == Keyword::None)
        return fail(Text::tr("%1 is no keyword of a Touchstone file").arg(quoted(name)));
    if (m_section == Section::End || m_header.isVersion2() == (keyword == Keyword::Version))
        return fail(misplaced(name));
    if (keyword >= Keyword::BeginInformation)
        return parseSection(keyword, name);
    if (hasData())
        return fail(misplaced(name));
    return accept(m_header.take(keyword, name, line));
}

bool Parser::parseSection(Keyword keyword, std::string_view name)
{
    if (keyword == Keyword::BeginInformation) {
        m_before = m_section;
        m_section = Section::Information;
        return true;
    }
    if (keyword == Keyword::NetworkData && m_section == Section::Header) {
        m_section = Section::Network;
        return startNetwork(0);
    }
    const bool afterNetwork = m_section == Section::Network && m_filled == 0;
    if (keyword == Keyword::NoiseData && afterNetwork) {
        if (m_header.noiseFrequencies() < 0)
            return fail(missing("[Number of Noise Frequencies]"));
        if (m_result.network.ports != 2)
            return fail(Text::tr("only two-ports have noise data"));
        m_section = Section::Noise;
        return checkCount(m_store->points(), m_header.frequencies());
    }
    if (keyword == Keyword::End && (afterNetwork || m_section == Section::Noise)) {
        m_section = Section::End;
        return true;
    }
    return fail(misplaced(name));
}

bool Parser::startNetwork(int ports)
{
    const QString reason = m_header.finish(ports);
    if (!reason.isEmpty())
        return fail(reason);
    m_result.network.ports = m_header.ports();
    m_result.network.setReferences(m_header.references());
    m_result.network.noise.referenceOhms = m_header.noiseReference();
    m_store.emplace(m_header, m_result.network, m_size);
    return true;
}

bool Parser::parseValues(std::string_view line)
{
    std::string_view word;
    std::string_view rest = line;
    switch (m_section) {
    case Section::Header:
        if (m_header.expectsMore())
            return accept(m_header.takeMore(line));
        nextWord(rest, word);
        if (m_header.isVersion2())
            return fail(misplaced(word));
        if (m_header.ports() == 0)
            return measureFirstPoint(line);
        m_section = Section::Network;
        return startNetwork(0) && parsePoint(line);
    case Section::Network:
        return parsePoint(line);
    case Section::Noise:
        return parseNoise(line);
    default:
        nextWord(rest, word);
        return fail(misplaced(word));
    }
}

/// A point begins with a line of an odd count, and goes on in lines of even ones.
bool Parser::measureFirstPoint(std::string_view line)
{
    const std::string_view whole = line;
    if (countWords(line) % 2 == 1) {
        if (!m_firstPoint.empty())
            return closeFirstPoint() && parsePoint(line);
        m_pointLine = m_lines.number();
    }
    std::string_view word;
    double value = 0.0;
    line = whole;
    while (nextWord(line, word)) {
        if (!toNumber(word, value))
            return fail(notANumber(word));
        if (m_firstPoint.size() > std::size_t(2) * s_maximumPorts * s_maximumPorts)
            break;
        m_firstPoint.push_back(value);
    }
    return true;
}

bool Parser::closeFirstPoint()
{
    const int count = int(m_firstPoint.size());
    const int ports = int(std::lround(std::sqrt((count - 1) / 2.0)));
    if (ports < 1 || ports > s_maximumPorts || 1 + 2 * ports * ports != count)
        return fail(Text::tr("the first point has %1 numbers, and no number of ports has so many")
                        .arg(count),
                    m_pointLine);
    m_section = Section::Network;
    if (!startNetwork(ports))
        return false;
    std::copy(m_firstPoint.begin(), m_firstPoint.end(), m_store->point());
    m_firstPoint.clear();
    return takePoint();
}

bool Parser::parsePoint(std::string_view line)
{
    if (!m_doubtful.empty() && countWords(line) != s_otherHalf) {
        m_filled = 0;
        const std::string first = std::exchange(m_doubtful, {});
        return parseNoise(first) && parseNoise(line);
    }
    m_doubtful.clear();
    double *const point = m_store->point();
    const int room = m_store->numbersOfPoint();
    int count = m_filled;
    const char *at = line.data();
    const char *const end = at + line.size();
    while (true) {
        while (at != end && isBlank(*at))
            ++at;
        if (at == end || *at == '!')
            break;
        if (count == room)
            return fail(Text::tr("the point has more than %1 numbers").arg(room));
        double value = 0.0;
        const auto [stop, error] = std::from_chars(at, end, value);
        if (error == std::errc() && std::isfinite(value)
            && (stop == end || isBlank(*stop) || *stop == '!')) {
            at = stop;
        } else {
            std::string_view rest(at, std::size_t(end - at));
            std::string_view word;
            nextWord(rest, word);
            if (!toNumber(word, value))
                return fail(notANumber(word));
            at = rest.data();
        }
        point[count++] = value;
    }
    if (m_filled == 0) {
        m_pointLine = m_lines.number();
        const double hertz = point[0] * m_header.unit();
        if (mayBeNoise(hertz, count)) {
            if (hertz < m_store->lastFrequency())
                return parseNoise(line);
            m_doubtful = line;
        }
    }
    m_filled = count;
    return m_filled < room || takePoint();
}

/// In version 1, noise begins where a point would and its frequency is not above the last.
bool Parser::mayBeNoise(double hertz, int count) const
{
    return count == s_noiseNumbers && !m_header.isVersion2() && m_header.ports() == 2
        && m_store->points() > 0 && hertz <= m_store->lastFrequency();
}

bool Parser::takePoint()
{
    m_filled = 0;
    const QString reason = m_store->take(m_pointLine);
    if (!reason.isEmpty())
        return fail(reason, m_store->line());
    if (m_header.isVersion2() && m_store->points() > m_header.frequencies())
        return checkCount(m_store->points(), m_header.frequencies());
    return true;
}

bool Parser::parseNoise(std::string_view line)
{
    m_section = Section::Noise;
    NoiseData &noise = m_result.network.noise;
    if (!accept(takeNoise(line, m_header, noise)))
        return false;
    const int announced = m_header.noiseFrequencies();
    return announced < 0 || noise.frequencies.size() <= announced
        || checkCount(noise.frequencies.size(), announced);
}

bool Parser::checkCount(qint64 count, int announced)
{
    if (count < announced)
        return fail(
            Text::tr("%1 of the %2 announced frequencies are there").arg(count).arg(announced));
    return count == announced
        || fail(Text::tr("there are more than the %1 announced frequencies").arg(announced));
}

bool Parser::finish()
{
    if (!m_firstPoint.empty() && !closeFirstPoint())
        return false;
    if (!m_doubtful.empty()) {
        m_filled = 0;
        if (!parseNoise(m_doubtful))
            return false;
    }
    Network &network = m_result.network;
    if (m_filled > 0)
        return fail(Text::tr("the last point has %1 of %2 numbers")
                        .arg(m_filled)
                        .arg(m_store->numbersOfPoint()),
                    m_pointLine);
    if (m_section == Section::Information)
        return fail(missing("[End Information]"), 0);
    if (!m_store && m_header.isVersion2())
        return fail(missing("[Network Data]"), 0);
    if (!m_store || m_store->points() == 0)
        return fail(Text::tr("the file holds no data"), 0);
    const QString reason = m_store->flush();
    if (!reason.isEmpty())
        return fail(reason, m_store->line());
    if (m_header.isVersion2()) {
        if (!checkCount(network.points(), m_header.frequencies()))
            return false;
        if (m_header.noiseFrequencies() > 0 && network.noise.frequencies.isEmpty())
            return fail(missing("[Noise Data]"), 0);
        if (m_header.noiseFrequencies() > 0
            && !checkCount(network.noise.frequencies.size(), m_header.noiseFrequencies()))
            return false;
    }
    network.remarks = m_header.remarks();
    if (m_portImpedances && (m_notRenormalized || m_header.lacksReference()))
        network.remarks
            << Text::tr("its data refer to the port impedances in its comments, but are shown "
                        "as if to %1 \u03a9: impedances read from them are not true")
                   .arg(network.referenceOhms);
    if (m_commentBytes > s_maximumComments)
        network.remarks << Text::tr("only the first %1 MB of its comments are kept")
                               .arg(s_maximumComments >> 20);
    return true;
}

} // namespace Panel
