// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stimulus.h"

#include <algorithm>

namespace Panel
{

Stimulus withStart(Stimulus stimulus, double start, const Stimulus &limits)
{
    stimulus.start = std::clamp(start, limits.start, limits.stop);
    if (stimulus.stop <= stimulus.start)
        stimulus.stop = limits.stop;
    return stimulus;
}

Stimulus withStop(Stimulus stimulus, double stop, const Stimulus &limits)
{
    stimulus.stop = std::clamp(stop, limits.start, limits.stop);
    if (stimulus.start >= stimulus.stop)
        stimulus.start = limits.start;
    return stimulus;
}

Stimulus withCenter(Stimulus stimulus, double center, const Stimulus &limits)
{
    center = std::clamp(center, limits.start, limits.stop);
    const double half =
        std::min({stimulus.span() / 2.0, center - limits.start, limits.stop - center});
    return {center - half, center + half};
}

Stimulus withSpan(Stimulus stimulus, double span, const Stimulus &limits)
{
    span = std::clamp(span, 0.0, limits.span());
    const double start =
        std::clamp(stimulus.center() - span / 2.0, limits.start, limits.stop - span);
    return {start, std::min(start + span, limits.stop)};
}

} // namespace Panel
