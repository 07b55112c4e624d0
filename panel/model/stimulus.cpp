// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stimulus.h"

#include <algorithm>

namespace Panel
{

Stimulus around(double hertz)
{
    constexpr double share = 1e-3, minimum = 100.0;
    const double half = std::max(minimum, share * hertz);
    return {hertz - half, hertz + half};
}

Stimulus withStart(Stimulus stimulus, double start, const Stimulus &limits, double smallestSpan)
{
    stimulus.start = std::clamp(start, limits.start, limits.stop - smallestSpan);
    stimulus.stop = std::max(stimulus.start + smallestSpan, stimulus.stop);
    return stimulus;
}

Stimulus withStop(Stimulus stimulus, double stop, const Stimulus &limits, double smallestSpan)
{
    stimulus.stop = std::clamp(stop, limits.start + smallestSpan, limits.stop);
    stimulus.start = std::min(stimulus.start, stimulus.stop - smallestSpan);
    return stimulus;
}

Stimulus withCenter(Stimulus stimulus, double center, const Stimulus &limits, double smallestSpan)
{
    const double minimum = smallestSpan / 2.0;
    center = std::clamp(center, limits.start + minimum, limits.stop - minimum);
    const double half =
        std::min({stimulus.span() / 2.0, center - limits.start, limits.stop - center});
    return {center - std::max(half, minimum), center + std::max(half, minimum)};
}

Stimulus withSpan(Stimulus stimulus, double span, const Stimulus &limits, double smallestSpan)
{
    span = std::clamp(span, smallestSpan, limits.span());
    const double start =
        std::clamp(stimulus.center() - span / 2.0, limits.start, limits.stop - span);
    return {start, std::min(start + span, limits.stop)};
}

} // namespace Panel
