// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <controls/stepcontroller.h>

#include <memory>

namespace Controls
{

/*! Steps along 1-2-5: ... 0.5, 1, 2, 5, 10, 20, 50 ..., as spans, bandwidths and scales do. A
    request moves one position, however many it asks for; a value between two positions goes to
    the next one.

    Meant for quantities that are not negative; zero is never left. Towards larger magnitudes a
    negative value goes to the 1 of its own decade; towards smaller ones it mirrors what its
    magnitude does.
    \code
    auto *stepper = new Controls::Step125Controller(span);
    stepper->setAdapter(span); // Up on 3.3 MHz gives 5 MHz, then 10 MHz
    \endcode */
class VNAWIDGETS_EXPORT Step125Controller : public StepController
{
    Q_OBJECT

public:
    /// Serves no adapter at first.
    explicit Step125Controller(QObject *parent = nullptr);
    ~Step125Controller() override;

    /// Only the sign of \a step counts; 0 emits the value as it is, and so do zero and what is not
    /// finite.
    void stepBy(double value, int step) override;

    /// A magnitude below this, in base units, counts as zero and is not stepped; 1e-15 by default,
    /// as everywhere in the library. For quantities of such a size, 0.1 fF say, set less, or 0.
    double zeroThreshold() const;
    /// Sets zeroThreshold(); false unless it is finite and at least 0.
    bool setZeroThreshold(double threshold);

private:
    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace Controls
