// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "peers.h"

#include <boost/geometry.hpp>
#include <boost/geometry/geometries/linestring.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <geos_c.h>
#include <qwt_curve_fitter.h>

#include <QPointF>
#include <QPolygonF>

namespace Bench
{

namespace
{

/// Ramer-Douglas-Peucker with an explicit stack; marks points, then copies those marked.
class Qwt : public Peer
{
public:
    explicit Qwt(const Trace &trace)
    {
        for (int i = 0; i < trace.real.size(); ++i)
            m_points.append(QPointF(trace.real.at(i), trace.imag.at(i)));
    }

    int simplify(double tolerance) const override
    {
        return static_cast<int>(QwtWeedingCurveFitter(tolerance).fitCurve(m_points).size());
    }

private:
    QPolygonF m_points;
};

/// Ramer-Douglas-Peucker, recursive; copies the points into candidates with a flag each.
class Boost : public Peer
{
public:
    explicit Boost(const Trace &trace)
    {
        for (int i = 0; i < trace.real.size(); ++i)
            m_points.push_back({trace.real.at(i), trace.imag.at(i)});
    }

    int simplify(double tolerance) const override
    {
        Line simplified;
        boost::geometry::simplify(m_points, simplified, tolerance);
        return static_cast<int>(simplified.size());
    }

private:
    using Line = boost::geometry::model::linestring<boost::geometry::model::d2::point_xy<double>>;
    Line m_points;
};

/// Ramer-Douglas-Peucker, recursive; returns a new geometry.
class Geos : public Peer
{
public:
    explicit Geos(const Trace &trace)
        : m_context(GEOS_init_r())
    {
        GEOSCoordSequence *points = GEOSCoordSeq_copyFromArrays_r(
            m_context, trace.real.constData(), trace.imag.constData(), nullptr, nullptr,
            static_cast<unsigned>(trace.real.size()));
        m_line = GEOSGeom_createLineString_r(m_context, points);
    }
    ~Geos() override
    {
        GEOSGeom_destroy_r(m_context, m_line);
        GEOS_finish_r(m_context);
    }
    Geos(const Geos &) = delete;
    Geos &operator=(const Geos &) = delete;

    int simplify(double tolerance) const override
    {
        GEOSGeometry *simplified = GEOSSimplify_r(m_context, m_line, tolerance);
        const int count = GEOSGeomGetNumPoints_r(m_context, simplified);
        GEOSGeom_destroy_r(m_context, simplified);
        return count;
    }

private:
    GEOSContextHandle_t m_context;
    GEOSGeometry *m_line;
};

} // namespace

const std::vector<std::string> &peerNames()
{
    static const std::vector<std::string> names{"Qwt", "Boost", "GEOS"};
    return names;
}

std::unique_ptr<Peer> makePeer(const std::string &name, const Trace &trace)
{
    if (name == "Qwt")
        return std::make_unique<Qwt>(trace);
    if (name == "Boost")
        return std::make_unique<Boost>(trace);
    return std::make_unique<Geos>(trace);
}

} // namespace Bench
