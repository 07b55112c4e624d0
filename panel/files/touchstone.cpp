// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "touchstone.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

namespace Panel
{

namespace
{

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Panel::Touchstone)
};

constexpr qint64 s_mebibyte = 1 << 20;
constexpr qint64 s_largestFile = 512 * s_mebibyte;
/// Bytes between two reports of progress.
constexpr qint64 s_portion = s_mebibyte;
constexpr int s_mostPoints = 4000000;
constexpr int s_noiseNumbers = 5;
/// Frequency and four parameters of two numbers each: the longest point.
constexpr int s_mostNumbers = 9;

bool isSpace(char c)
{
    // Ctrl-Z ends files that were written under DOS.
    return c == ' ' || c == '\t' || c == '\v' || c == '\f' || c == '\x1a';
}

/// Equal but for the case of ASCII letters; `lower` is in lower case.
bool sameWord(std::string_view word, std::string_view lower)
{
    return std::equal(word.begin(), word.end(), lower.begin(), lower.end(), [](char a, char b) {
        return (a >= 'A' && a <= 'Z' ? char(a - 'A' + 'a') : a) == b;
    });
}

/// A word of the file as it can be shown: short, and without what is not printable.
QString quoted(std::string_view word)
{
    constexpr std::size_t longest = 24;
    QString text = QString::fromUtf8(word.data(), int(std::min(word.size(), longest)));
    for (QChar &c : text) {
        if (!c.isPrint())
            c = QLatin1Char('?');
    }
    if (word.size() > longest)
        text += QChar(0x2026);
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString cancelled()
{
    return Text::tr("the reading was cancelled");
}

/// Reads a whole word as a number or NaN, whatever the locale; false for anything else and for what
/// is infinite.
bool toNumber(std::string_view word, double &value)
{
    if (word.size() > 1 && word[0] == '+' && word[1] != '-')
        word.remove_prefix(1);
    const char *const end = word.data() + word.size();
    const auto [rest, error] = std::from_chars(word.data(), end, value);
    if (rest != end)
        return false;
    if (error == std::errc::result_out_of_range) {
        // Too small is as good as zero; too large is no number to draw.
        const std::size_t exponent = word.find_first_of("eE");
        value = 0.0;
        return exponent + 1 < word.size() && word[exponent + 1] == '-';
    }
    return error == std::errc() && !std::isinf(value);
}

class Parser
{
public:
    Parser(const QByteArray &text, int ports, const ReadProgress &progress)
        : m_begin(text.constData())
        , m_at(m_begin)
        , m_end(m_at + text.size())
        , m_progress(progress)
        , m_pointNumbers(1 + 2 * ports * ports)
    {
        m_result.network.ports = ports;
        m_result.network.parameters.resize(ports * ports);
    }

    TouchstoneResult run()
    {
        if (std::string_view(m_at, std::size_t(m_end - m_at)).substr(0, 3) == "\xef\xbb\xbf")
            m_at += 3;
        std::string_view line;
        while (nextLine(line)) {
            if (!parseLine(line) || !tellProgress()) {
                m_result.network = Network();
                return m_result;
            }
        }
        if (m_filled > 0) {
            fail(Text::tr("the last point has %1 of %2 numbers").arg(m_filled).arg(m_pointNumbers));
            m_result.line = m_pointLine;
        } else if (m_result.network.frequencies.isEmpty()) {
            fail(Text::tr("the file holds no data"));
            m_result.line = 0;
        }
        if (!m_result.ok())
            m_result.network = Network();
        return m_result;
    }

private:
    using Numbers = std::array<double, s_mostNumbers>;
    enum class Format { RealImaginary, MagnitudeAngle, DecibelAngle };

    bool fail(const QString &reason)
    {
        m_result.reason = reason;
        m_result.line = m_line;
        return false;
    }

    bool tellProgress()
    {
        if (!m_progress || m_at - m_told < s_portion)
            return true;
        m_told = m_at;
        if (m_progress(int(100 * (m_at - m_begin) / (m_end - m_begin))))
            return true;
        fail(cancelled());
        m_result.line = 0;
        return false;
    }

    /// Takes the next line without its end: LF, CR LF or CR. False at the end of the text.
    bool nextLine(std::string_view &line)
    {
        if (m_at == m_end)
            return false;
        const char *stop = m_at;
        while (stop != m_end && *stop != '\n' && *stop != '\r')
            ++stop;
        line = std::string_view(m_at, std::size_t(stop - m_at));
        if (stop != m_end && *stop == '\r' && stop + 1 != m_end && stop[1] == '\n')
            ++stop;
        m_at = stop == m_end ? stop : stop + 1;
        ++m_line;
        return true;
    }

    /// Takes the next word off the line; false at its end or where a comment begins.
    static bool nextWord(std::string_view &line, std::string_view &word)
    {
        std::size_t begin = 0;
        while (begin < line.size() && isSpace(line[begin]))
            ++begin;
        std::size_t stop = begin;
        while (stop < line.size() && !isSpace(line[stop]) && line[stop] != '!')
            ++stop;
        word = line.substr(begin, stop - begin);
        line.remove_prefix(stop);
        return !word.empty();
    }

    bool parseLine(std::string_view line)
    {
        while (!line.empty() && isSpace(line.front()))
            line.remove_prefix(1);
        if (line.empty() || line.front() == '!')
            return true;
        if (line.front() == '#')
            return parseOptions(line.substr(1));
        if (line.front() == '[') {
            return fail(
                Text::tr("%1 is a keyword of Touchstone version 2, and only version 1 is read")
                    .arg(quoted(line.substr(0, line.find(']') + 1))));
        }
        return parseData(line);
    }

    bool parseOptions(std::string_view line)
    {
        // The first option line counts, further ones do not.
        if (m_hasOptions)
            return true;
        if (m_filled > 0 || !m_result.network.frequencies.isEmpty())
            return fail(Text::tr("the option line comes after data"));
        m_hasOptions = true;
        std::string_view word;
        while (nextWord(line, word)) {
            if (!parseOption(word, line))
                return false;
        }
        return true;
    }

    bool parseOption(std::string_view word, std::string_view &rest)
    {
        static constexpr std::pair<std::string_view, double> units[] = {
            {"hz", 1.0}, {"khz", 1e3}, {"mhz", 1e6}, {"ghz", 1e9}};
        for (const auto &[name, factor] : units) {
            if (sameWord(word, name)) {
                m_unit = factor;
                return true;
            }
        }
        if (sameWord(word, "ri")) {
            m_format = Format::RealImaginary;
        } else if (sameWord(word, "ma")) {
            m_format = Format::MagnitudeAngle;
        } else if (sameWord(word, "db")) {
            m_format = Format::DecibelAngle;
        } else if (sameWord(word, "r")) {
            double &ohms = m_result.network.referenceOhms;
            if (!nextWord(rest, word) || !toNumber(word, ohms) || !(ohms > 0.0))
                return fail(
                    Text::tr("the reference resistance after R must be a number above zero"));
        } else if (word.size() == 1 && std::string_view("yzghYZGH").find(word[0]) != word.npos) {
            return fail(Text::tr("the file holds %1 parameters, and only S parameters are read")
                            .arg(QString(QLatin1Char(word[0])).toUpper()));
        } else if (!sameWord(word, "s")) {
            return fail(Text::tr("%1 is no option of a Touchstone file").arg(quoted(word)));
        }
        return true;
    }

    bool parseData(std::string_view line)
    {
        Numbers numbers;
        int count = 0;
        std::string_view word;
        while (nextWord(line, word)) {
            double value = 0.0;
            if (!toNumber(word, value))
                return fail(Text::tr("%1 stands where a finite number belongs").arg(quoted(word)));
            if (count == int(numbers.size()))
                return failLong();
            numbers[std::size_t(count++)] = value;
        }
        return m_inNoise || startsNoise(numbers[0], count) ? takeNoise(numbers[0], count)
                                                           : takeNumbers(numbers, count);
    }

    /// Noise data begins where a new point would begin and its frequency falls back.
    bool startsNoise(double frequency, int count) const
    {
        const QVector<double> &frequencies = m_result.network.frequencies;
        if (m_filled > 0 || count != s_noiseNumbers || m_result.network.ports != 2
            || frequencies.isEmpty())
            return false;
        const double hertz = frequency * m_unit;
        // At the very last frequency it may also be a point of which the other half follows.
        return hertz < frequencies.last()
            || (hertz == frequencies.last() && numbersAhead() != s_mostNumbers - s_noiseNumbers);
    }

    /// How many words the next line with data has.
    int numbersAhead() const
    {
        Parser ahead(*this);
        std::string_view line;
        std::string_view word;
        int count = 0;
        while (count == 0 && ahead.nextLine(line)) {
            while (nextWord(line, word))
                ++count;
        }
        return count;
    }

    bool takeNoise(double frequency, int count)
    {
        if (count != s_noiseNumbers)
            return fail(Text::tr("a line of noise data has %1 numbers, not %2")
                            .arg(s_noiseNumbers)
                            .arg(count));
        const double hertz = frequency * m_unit;
        if (m_inNoise && hertz < m_noiseHertz)
            return fail(Text::tr("the frequency falls back in the noise data"));
        m_inNoise = true;
        m_noiseHertz = hertz;
        return true;
    }

    bool takeNumbers(const Numbers &numbers, int count)
    {
        if (m_filled == 0) {
            m_pointLine = m_line;
            const double hertz = numbers[0] * m_unit;
            if (!(hertz >= 0.0) || !std::isfinite(hertz))
                return fail(Text::tr("the frequency must not be below zero nor beyond all bounds"));
            const QVector<double> &frequencies = m_result.network.frequencies;
            if (!frequencies.isEmpty() && hertz < frequencies.last())
                return fail(Text::tr("the frequency falls back"));
        }
        if (m_filled + count > m_pointNumbers)
            return failLong();
        std::copy_n(numbers.begin(), count, m_point.begin() + m_filled);
        m_filled += count;
        return m_filled < m_pointNumbers || takePoint();
    }

    bool failLong()
    {
        return fail((m_result.network.ports == 1
                         ? Text::tr("the point has more than the %1 numbers of a one-port")
                         : Text::tr("the point has more than the %1 numbers of a two-port"))
                        .arg(m_pointNumbers));
    }

    bool takePoint()
    {
        Network &network = m_result.network;
        if (network.frequencies.size() == s_mostPoints)
            return fail(Text::tr("the file has more than %1 points").arg(s_mostPoints));
        for (int i = 0; i < network.parameters.size(); ++i) {
            double a = m_point[std::size_t(1 + 2 * i)];
            double b = m_point[std::size_t(2 + 2 * i)];
            if (m_format != Format::RealImaginary) {
                const double magnitude =
                    m_format == Format::DecibelAngle ? std::pow(10.0, a / 20.0) : a;
                const double radians = b * (std::acos(-1.0) / 180.0);
                a = magnitude * std::cos(radians);
                b = magnitude * std::sin(radians);
                if (std::isinf(a) || std::isinf(b))
                    return fail(Text::tr("a value is beyond all bounds"));
            }
            // Half a value is none.
            if (std::isnan(a) || std::isnan(b))
                a = b = std::numeric_limits<double>::quiet_NaN();
            network.parameters[i].real.append(a);
            network.parameters[i].imag.append(b);
        }
        network.frequencies.append(m_point[0] * m_unit);
        m_filled = 0;
        return true;
    }

    const char *m_begin;
    const char *m_at;
    const char *m_end;
    const ReadProgress &m_progress;
    const char *m_told = m_begin;
    int m_line = 0;

    bool m_hasOptions = false;
    double m_unit = 1e9;
    Format m_format = Format::MagnitudeAngle;

    /// The point being collected: its values may be spread over lines.
    Numbers m_point = {};
    int m_pointNumbers;
    int m_filled = 0;
    int m_pointLine = 0;

    bool m_inNoise = false;
    double m_noiseHertz = 0.0;

    TouchstoneResult m_result;
};

/// The whole text of a file, or a reason why it cannot be had.
QString readText(const QFileInfo &info, QByteArray &text, const ReadProgress &progress)
{
    if (!info.isFile())
        return Text::tr("this is no ordinary file");
    QString tooLarge = Text::tr("the file is larger than %1 MB").arg(s_largestFile / s_mebibyte);
    const qint64 expected = info.size();
    if (expected > s_largestFile)
        return tooLarge;
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly))
        return Text::tr("the file cannot be read (%1)").arg(file.errorString());
    text.reserve(int(expected));
    for (QByteArray portion = file.read(s_portion); !portion.isEmpty();
         portion = file.read(s_portion)) {
        text += portion;
        // It may have grown since its size was asked for.
        if (text.size() > s_largestFile)
            return tooLarge;
        const qint64 size = text.size();
        if (progress && !progress(int(100 * size / qMax(expected, size))))
            return cancelled();
    }
    return file.error() == QFileDevice::NoError
        ? QString()
        : Text::tr("the file cannot be read (%1)").arg(file.errorString());
}

/// What is wrong with a file before it is opened, or nothing.
QString refusal(const QFileInfo &info, int ports)
{
    if (!info.exists())
        return Text::tr("there is no such file");
    if (info.isDir())
        return Text::tr("this is a folder, not a file");
    if (!info.isFile())
        return Text::tr("this is no ordinary file");
    if (ports == 0)
        return Text::tr("the name of a Touchstone file ends in .s1p or .s2p");
    if (ports > 2)
        return Text::tr("a network of %1 ports, and only one and two ports are read").arg(ports);
    return QString();
}

} // namespace

QString TouchstoneResult::sentence(const QString &file) const
{
    if (line > 0)
        return Text::tr("%1, line %2: %3.").arg(file, QString::number(line), reason);
    return Text::tr("%1: %2.").arg(file, reason);
}

int touchstonePorts(const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (suffix.size() < 3 || !suffix.startsWith(QLatin1Char('s'))
        || !suffix.endsWith(QLatin1Char('p')))
        return 0;
    const QString digits = suffix.mid(1, suffix.size() - 2);
    const bool plain = std::all_of(digits.begin(), digits.end(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    });
    return plain ? digits.toInt() : 0;
}

TouchstoneResult readTouchstone(const QString &path, const ReadProgress &progress)
{
    const QFileInfo info(path);
    const int ports = touchstonePorts(path);
    // Reading is one half of the way, understanding the other.
    const auto half = [&progress](int done) {
        return [&progress, done](int percent) { return !progress || progress(done + percent / 2); };
    };
    TouchstoneResult result;
    result.reason = refusal(info, ports);
    QByteArray text;
    if (result.ok())
        result.reason = readText(info, text, half(0));
    if (result.ok())
        result = parseTouchstone(text, ports, half(50));
    result.network.name = info.fileName();
    result.network.path = info.absoluteFilePath();
    return result;
}

TouchstoneResult parseTouchstone(const QByteArray &text, int ports, const ReadProgress &progress)
{
    Q_ASSERT(ports == 1 || ports == 2);
    return Parser(text, ports, progress).run();
}

} // namespace Panel
