// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "traces.h"

#include <memory>
#include <string>
#include <vector>

namespace Bench
{

/*! Another library's line simplification, at its own tolerance argument, of a trace that it already
    holds in its own form: neither the conversion nor a projection to pixels counts against it. */
class Peer
{
public:
    virtual ~Peer() = default;

    /// Simplifies the trace; returns how many points are left.
    virtual int simplify(double tolerance) const = 0;
};

/// The names of the peers, in the order of the table.
const std::vector<std::string> &peerNames();

std::unique_ptr<Peer> makePeer(const std::string &name, const Trace &trace);

} // namespace Bench
