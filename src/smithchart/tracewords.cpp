// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "tracewords.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace SmithChart
{

namespace
{

struct TraceWords {
    Q_DECLARE_TR_FUNCTIONS(TraceWords)
};

QString number(double value, int digits)
{
    if (std::isnan(value))
        return QStringLiteral("\u2013");
    if (std::isinf(value))
        return value > 0.0 ? TraceWords::tr("infinite") : TraceWords::tr("minus infinite");
    return QString::number(value, 'g', digits);
}

QString vswrText(const std::complex<double> &reflection)
{
    const double magnitude = std::abs(reflection);
    return number(magnitude >= 1.0 ? qInf() : (1.0 + magnitude) / (1.0 - magnitude), 3);
}

QString impedanceText(const PointValues &point)
{
    // On the real axis nothing is left of it but rounding.
    constexpr double rounding = 1e-9;
    double reactance = point.impedance.imag();
    if (std::fabs(reactance) < rounding * std::abs(point.impedance))
        reactance = 0.0;
    const QString sign = reactance < 0.0 ? QStringLiteral(" \u2212 j") : QStringLiteral(" + j");
    const QString unit = point.unit.isEmpty() ? QString() : QLatin1Char(' ') + point.unit;
    return number(point.impedance.real(), 4) + sign + number(std::fabs(reactance), 4) + unit;
}

/// At a fractional index, interpolated; the index lies within.
double valueAt(const QVector<double> &values, double index)
{
    const int below = qBound(0, static_cast<int>(index), static_cast<int>(values.size()) - 1);
    const int above = qMin(below + 1, static_cast<int>(values.size()) - 1);
    return values.at(below) + (index - below) * (values.at(above) - values.at(below));
}

} // namespace

QString hertzText(double hertz, int digits)
{
    const std::pair<double, const char *> units[] = {
        {1e9, "GHz"}, {1e6, "MHz"}, {1e3, "kHz"}, {1.0, "Hz"}};
    const double size = std::fabs(hertz);
    const auto *const unit =
        std::find_if(std::begin(units), std::end(units) - 1,
                     [size](const auto &candidate) { return size >= candidate.first; });
    return number(hertz / unit->first, digits) + QLatin1Char(' ') + QLatin1String(unit->second);
}

std::complex<double> normalisedImpedance(const std::complex<double> &reflection)
{
    const std::complex<double> below = 1.0 - reflection;
    return below == 0.0 ? std::complex<double>(qInf(), 0.0) : (1.0 + reflection) / below;
}

QStringList pointColumns(const QString &impedanceUnit)
{
    const QString unit =
        impedanceUnit.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(impedanceUnit);
    return {TraceWords::tr("Stimulus"),         TraceWords::tr("Resistance") + unit,
            TraceWords::tr("Reactance") + unit, TraceWords::tr("Magnitude"),
            TraceWords::tr("Phase (\u00b0)"),   TraceWords::tr("VSWR")};
}

QString pointValue(const PointValues &point, PointColumn column)
{
    switch (column) {
    case ResistanceColumn:
        return number(point.impedance.real(), 6);
    case ReactanceColumn:
        return number(point.impedance.imag(), 6);
    case MagnitudeColumn:
        return number(std::abs(point.reflection), 6);
    case PhaseColumn:
        return number(std::arg(point.reflection) * 180.0 / std::acos(-1.0), 6);
    case VswrColumn:
        return vswrText(point.reflection);
    default:
        return number(point.stimulus, 12);
    }
}

QString featureText(TraceFeatures features, double vswr)
{
    QStringList names;
    const std::pair<TraceFeature, QString> all[] = {
        {Resonance, TraceWords::tr("resonance")},
        {RealAxis, TraceWords::tr("parallel resonance")},
        {Minimum, TraceWords::tr("minimum")},
        {Maximum, TraceWords::tr("maximum")},
        {VswrCircle, TraceWords::tr("VSWR of %1").arg(vswr)},
        {LimitEdge, TraceWords::tr("edge of the limit")},
        {MarkedPoint, TraceWords::tr("marker")},
    };
    for (const auto &[feature, name] : all) {
        if (features.testFlag(feature))
            names << name;
    }
    QString text = names.join(QStringLiteral(", "));
    if (!text.isEmpty())
        text[0] = text.at(0).toUpper();
    return text;
}

QString placeText(TraceFeatures features, double vswr, const PointValues &point,
                  const StimulusText &stimulusText,
                  const std::optional<std::complex<double>> &before)
{
    const QString there = featureText(features, vswr);
    QStringList texts{stimulusText(point.stimulus), impedanceText(point),
                      TraceWords::tr("VSWR %1").arg(vswrText(point.reflection))};
    if (before) {
        const double change = 20.0 * std::log10(std::abs(point.reflection) / std::abs(*before));
        constexpr double audible = 0.05; // dB: what one decimal rounds to nothing is left out
        const QString size = QString::number(std::fabs(change), 'f', 1);
        if (std::isfinite(change) && std::fabs(change) >= audible)
            texts << (change > 0.0 ? TraceWords::tr("%1 dB more reflection").arg(size)
                                   : TraceWords::tr("%1 dB less reflection").arg(size));
    }
    const QString text = texts.join(QStringLiteral(", "));
    return there.isEmpty() ? text : there + QStringLiteral(": ") + text;
}

QString summaryText(const QString &name, const TraceSummary &summary,
                    const QVector<double> &stimulus, const StimulusText &stimulusText, double vswr)
{
    if (summary.best < 0 || summary.last >= stimulus.size())
        return TraceWords::tr("%1: no points.").arg(name);
    const auto at = [&](double index) { return stimulusText(valueAt(stimulus, index)); };
    QStringList parts{TraceWords::tr("best match at %1 with a VSWR of %2")
                          .arg(at(summary.best), number(summary.vswr(), 3))};
    const double low = valueAt(stimulus, qMax(0.0, summary.bandLow));
    const double high = valueAt(stimulus, qMax(0.0, summary.bandHigh));
    parts << (summary.hasBand() ? TraceWords::tr("VSWR below %1 from %2 to %3, %4 wide")
                                      .arg(QString::number(vswr), stimulusText(low),
                                           stimulusText(high), stimulusText(high - low))
                                : TraceWords::tr("VSWR nowhere below %1").arg(vswr));
    parts << TraceWords::tr("%n loop(s)", nullptr, summary.loops);
    return TraceWords::tr("%1 from %2 to %3: %4.")
        .arg(name, at(summary.first), at(summary.last), parts.join(QStringLiteral("; ")));
}

} // namespace SmithChart
