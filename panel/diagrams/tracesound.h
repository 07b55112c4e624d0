// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panel/ground/soundoutput.h>

#include <QObject>

namespace Panel
{

class Diagrams;
class PanelModel;

/*! Has traces heard (SmithChart::toneOf()): the active one from end to end, and, where the
    preferences say so, the point that a walk or the pointer comes to. */
class TraceSound : public QObject
{
    Q_OBJECT

public:
    /// How long a whole trace takes, and a point, in seconds.
    static constexpr double traceTime = 3.0;
    static constexpr double pointTime = 0.15;

    TraceSound(PanelModel *model, Diagrams *diagrams, QObject *parent = nullptr);
    ~TraceSound() override;

    /// Where it is heard, made when it is first needed. Nowhere at first.
    void setOutput(const SoundOutputMaker &makeOutput) { m_makeOutput = makeOutput; }
    /// Whether there is anything to hear with; asks for it.
    bool isAvailable();
    /// Plays the active trace, or stops what is heard.
    void toggleTrace();

private:
    void playPoint(int trace, double index);
    void follow();

    PanelModel *m_model;
    Diagrams *m_diagrams;
    SoundOutputMaker m_makeOutput;
    std::unique_ptr<SoundOutput> m_output;
    bool m_asked = false; ///< for an output
    int m_trace = 0; ///< of the point that was heard last
    double m_index = -1.0;
};

} // namespace Panel
