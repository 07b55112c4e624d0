// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "conversion.h"

#include <QStringList>
#include <QVector>

#include <string_view>

namespace Panel
{

/// A reader takes no more ports than this: a point would have 131073 numbers.
constexpr int s_maximumPorts = 256;

enum class NumberFormat { RealImaginary, MagnitudeAngle, DecibelAngle };
enum class MatrixFormat { Full, Lower, Upper };

/// The keywords of version 2, which stand in brackets.
enum class Keyword {
    None, ///< of something else in brackets
    Version,
    NumberOfPorts,
    TwoPortDataOrder,
    NumberOfFrequencies,
    NumberOfNoiseFrequencies,
    Reference,
    MatrixFormat,
    MixedModeOrder,
    BeginInformation,
    EndInformation,
    NetworkData,
    NoiseData,
    End
};

/// The keyword that a line begins with. What follows it stays in the line; `name` is how it stands
/// there, brackets included.
Keyword takeKeyword(std::string_view &line, std::string_view &name);

/*! What a Touchstone file says of its data before they come: the option line, and in version 2 the
    keywords. The functions that take something answer with the reason why it cannot be, a clause;
    empty where all is well. */
class Header
{
public:
    /// `ports` is how many the file's name says that there are, or 0.
    explicit Header(int ports)
        : m_ports(ports)
    {
    }

    /// Takes what follows the # of the first option line; further ones are ignored.
    QString takeOptions(std::string_view line);
    /// Takes the arguments of a keyword that says something of the data.
    QString take(Keyword keyword, std::string_view name, std::string_view arguments);
    /// Takes a line that belongs to the keyword before it.
    QString takeMore(std::string_view line);
    bool expectsMore() const { return m_open != Keyword::None; }
    /// To be called before the data, with the number of ports if the header did not say it: checks
    /// that all of it fits together.
    QString finish(int ports);

    bool hasOptions() const { return m_hasOptions; }
    bool isVersion2() const { return m_version2; }
    /// 0 as long as nobody has said it.
    int ports() const { return m_ports; }
    /// Hz per unit of frequency.
    double unit() const { return m_unit; }
    NumberFormat format() const { return m_format; }
    ParameterKind kind() const { return m_kind; }
    MatrixFormat matrixFormat() const { return m_matrixFormat; }
    /// Impedances are in ohms, and not in units of the reference.
    bool isInOhms() const { return m_inOhms; }
    /// S21 of a two-port comes before S12.
    bool columnsFirst() const { return m_ports == 2 && m_columnsFirst; }
    /// How many were announced; -1 where nobody said.
    int frequencies() const { return m_frequencies; }
    int noiseFrequencies() const { return m_noiseFrequencies; }
    const std::vector<Mode> &modes() const { return m_modes; }
    /// One a port; after finish().
    const QVector<std::complex<double>> &references() const { return m_references; }
    /// R of the option line, for the first port: what noise data refers to.
    double noiseReference() const;
    /// What had to be assumed, each a clause.
    const QStringList &remarks() const { return m_remarks; }
    /// The option line has no R, or one without a number.
    bool lacksReference() const { return m_optionReferences.isEmpty(); }

private:
    QString takeOption(std::string_view word, std::string_view &rest);
    QString takeReferences(std::string_view &rest);
    QString takeVersion(std::string_view word);
    QString takeMode(std::string_view word);
    QString checkReferences();
    QString checkModes() const;

    bool m_hasOptions = false;
    unsigned m_seen = 0; ///< a bit for each keyword
    Keyword m_open = Keyword::None; ///< one that may go on in the next line
    bool m_version2 = false;
    bool m_inOhms = false;
    int m_ports;
    double m_unit = 1e9;
    NumberFormat m_format = NumberFormat::MagnitudeAngle;
    ParameterKind m_kind = ParameterKind::Scattering;
    MatrixFormat m_matrixFormat = MatrixFormat::Full;
    bool m_columnsFirst = true;
    int m_frequencies = -1;
    int m_noiseFrequencies = -1;
    QVector<std::complex<double>> m_optionReferences;
    QVector<std::complex<double>> m_references;
    std::vector<Mode> m_modes;
    QStringList m_remarks;
};

} // namespace Panel
