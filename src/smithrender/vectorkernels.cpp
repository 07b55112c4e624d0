// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "vectorkernels_p.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

// GCC and Clang turn their vector types into whatever the target has; a function's target may go
// beyond that of the build on x86-64.
#if defined(__GNUC__)
#define VNA_VECTOR_TYPES
#define VNA_INLINE [[gnu::always_inline]] inline
#else
#define VNA_INLINE inline
#endif
#if defined(VNA_VECTOR_TYPES) && defined(__x86_64__)
#define VNA_X86_TARGETS
#endif

namespace SmithRender
{

namespace
{

template<int Width>
struct Vector {
#ifdef VNA_VECTOR_TYPES
    typedef double Doubles __attribute__((vector_size(Width * 8)));
    typedef std::int64_t Integers __attribute__((vector_size(Width * 8)));
#endif
};

template<>
struct Vector<1> {
    using Doubles = double;
    using Integers = std::int64_t;
};

template<int Width>
VNA_INLINE void load(const double *from, typename Vector<Width>::Doubles &to)
{
    std::memcpy(&to, from, sizeof to);
}

template<typename V>
VNA_INLINE double lane(const V &vector, int i)
{
    double value;
    std::memcpy(&value, reinterpret_cast<const char *>(&vector) + std::ptrdiff_t(i) * 8,
                sizeof value);
    return value;
}

template<typename V>
VNA_INLINE std::int64_t integerLane(const V &vector, int i)
{
    std::int64_t value;
    std::memcpy(&value, reinterpret_cast<const char *>(&vector) + std::ptrdiff_t(i) * 8,
                sizeof value);
    return value;
}

template<typename V>
VNA_INLINE void squaredDistances(const V &x, const V &y, const Segment &s, V &result)
{
    const V zero = V() + 0.0;
    const V one = V() + 1.0;
    const V px = x - s.ax;
    const V py = y - s.ay;
    V u = (px * s.dx + py * s.dy) * s.inverse;
    u = u < zero ? zero : u;
    u = u > one ? one : u;
    const V qx = px - u * s.dx;
    const V qy = py - u * s.dy;
    result = qx * qx + qy * qy;
}

/// So few points are looked at sooner one by one.
constexpr int fewPoints = 4;

template<int Width>
VNA_INLINE void farthestBody(const double *x, const double *y, int first, int end, int readable,
                             const Segment &segment, Farthest &best)
{
    using Doubles = typename Vector<Width>::Doubles;
    using Integers = typename Vector<Width>::Integers;

    if (end - first <= fewPoints) {
        for (int i = first; i < end; ++i) {
            double distance;
            squaredDistances(x[i], y[i], segment, distance);
            best.offer(distance, i);
        }
        return;
    }
    Integers index = Integers() + first;
    if constexpr (Width > 1) {
        for (int i = 0; i < Width; ++i)
            index[i] += i;
    }
    Doubles farthest = Doubles() - 1.0;
    Integers where = Integers();
    Doubles px;
    Doubles py;
    Doubles distance;
    int i = first;
    for (; i + Width <= end; i += Width) {
        load<Width>(x + i, px);
        load<Width>(y + i, py);
        squaredDistances(px, py, segment, distance);
        where = distance > farthest ? index : where;
        farthest = distance > farthest ? distance : farthest;
        index += Width;
    }
    if (i < end) {
        if (i + Width <= readable) {
            load<Width>(x + i, px);
            load<Width>(y + i, py);
        } else {
            px = Doubles() + segment.ax;
            py = Doubles() + segment.ay;
            std::memcpy(&px, x + i, static_cast<size_t>(end - i) * sizeof(double));
            std::memcpy(&py, y + i, static_cast<size_t>(end - i) * sizeof(double));
        }
        squaredDistances(px, py, segment, distance);
        distance = index < (Integers() + end) ? distance : (Doubles() - 1.0);
        where = distance > farthest ? index : where;
        farthest = distance > farthest ? distance : farthest;
    }

    for (int k = 0; k < Width; ++k)
        best.offer(lane(farthest, k), static_cast<int>(integerLane(where, k)));
}

template<int Width>
VNA_INLINE void squaredDistancesBody(const double *x, const double *y, int count,
                                     const Segment &segment, double *result)
{
    typename Vector<Width>::Doubles px, py, distance;
    for (int i = 0; i < count; i += Width) {
        load<Width>(x + i, px);
        load<Width>(y + i, py);
        squaredDistances(px, py, segment, distance);
        std::memcpy(result + i, &distance, sizeof distance);
    }
}

/// The lane of the largest distance; of several, the one with the lowest index.
template<int Width>
VNA_INLINE Farthest farthestLane(const typename Vector<Width>::Doubles &distances,
                                 const typename Vector<Width>::Integers &indices)
{
    if constexpr (Width == 1) {
        return {distances, static_cast<int>(indices)};
    } else {
        constexpr int half = Width / 2;
        using Doubles = typename Vector<half>::Doubles;
        using Integers = typename Vector<half>::Integers;
        Doubles low, high;
        Integers lowIndex, highIndex;
        const auto halve = [](const auto &whole, auto &first, auto &second) {
            std::memcpy(&first, &whole, sizeof first);
            std::memcpy(&second, reinterpret_cast<const char *>(&whole) + sizeof first,
                        sizeof second);
        };
        halve(distances, low, high);
        halve(indices, lowIndex, highIndex);
        const auto wins = (high > low) | ((high == low) & (highIndex < lowIndex));
        low = wins ? high : low;
        lowIndex = wins ? highIndex : lowIndex;
        return farthestLane<half>(low, lowIndex);
    }
}

/// As farthestBody() of at least one point, for few of them: of noise no guess is right, so that
/// jumps cost more than a vector that is only half used.
template<int Width>
VNA_INLINE Farthest farthestOfFewBody(const double *x, const double *y, int first, int end,
                                      int readable, const Segment &segment)
{
    using Doubles = typename Vector<Width>::Doubles;
    using Integers = typename Vector<Width>::Integers;

    Integers index = Integers() + first;
    if constexpr (Width > 1) {
        for (int i = 0; i < Width; ++i)
            index[i] += i;
    }
    Doubles farthest = Doubles() - 1.0;
    Integers where = Integers() + first;
    for (int i = first; i < end; i += Width) {
        Doubles px;
        Doubles py;
        Doubles distance;
        if (i + Width <= readable) {
            load<Width>(x + i, px);
            load<Width>(y + i, py);
        } else {
            px = Doubles() + segment.ax;
            py = Doubles() + segment.ay;
            std::memcpy(&px, x + i, static_cast<size_t>(end - i) * sizeof(double));
            std::memcpy(&py, y + i, static_cast<size_t>(end - i) * sizeof(double));
        }
        squaredDistances(px, py, segment, distance);
        distance = index < (Integers() + end) ? distance : (Doubles() - 1.0);
        where = distance > farthest ? index : where;
        farthest = distance > farthest ? distance : farthest;
        index += Width;
    }
    return farthestLane<Width>(farthest, where);
}

/// The squared distances of the points \a first to \a end - 1 to the segments between their
/// neighbours.
template<int Width>
VNA_INLINE void toNeighboursBody(const double *x, const double *y, int first, int end,
                                 double *result)
{
    using Doubles = typename Vector<Width>::Doubles;
    const Doubles zero = Doubles() + 0.0;
    const Doubles one = Doubles() + 1.0;
    for (int i = first; i < end; i += Width, result += Width) {
        Doubles ax, ay, px, py, dx, dy;
        load<Width>(x + i - 1, ax);
        load<Width>(y + i - 1, ay);
        load<Width>(x + i, px);
        load<Width>(y + i, py);
        load<Width>(x + i + 1, dx);
        load<Width>(y + i + 1, dy);
        // As Segment and squaredDistances() do it.
        dx -= ax;
        dy -= ay;
        px -= ax;
        py -= ay;
        const Doubles squaredLength = dx * dx + dy * dy;
        const Doubles inverse =
            squaredLength >= zero + Segment::shortest ? one / squaredLength : zero;
        Doubles u = (px * dx + py * dy) * inverse;
        u = u < zero ? zero : u;
        u = u > one ? one : u;
        const Doubles qx = px - u * dx;
        const Doubles qy = py - u * dy;
        const Doubles distance = qx * qx + qy * qy;
        std::memcpy(result, &distance, sizeof distance);
    }
}

template<int Width>
VNA_INLINE std::uint64_t simplifyShortBody(const double *x, const double *y, int first, int last,
                                           int readable, double surely, double surelyNot)
{
    struct Part {
        int first;
        int last;
    };
    const auto bit = [first](int i) { return std::uint64_t(1) << (i - first); };
    // First in, first out: the processor works on several parts at once, where the last one in
    // would have to wait for itself.
    Part parts[2 * VectorKernels::longestShort];
    parts[0] = {first, last};
    int end = last - first > 2;
    std::uint64_t kept = 0;
    std::uint64_t single = last - first == 2 ? bit(first + 1) : 0; // between the ends of a part
    for (int next = 0; next < end; ++next) {
        const Part part = parts[next];
        const Segment segment(x[part.first], y[part.first], x[part.last], y[part.last]);
        const Farthest farthest =
            farthestOfFewBody<Width>(x, y, part.first + 1, part.last, readable, segment);
        if (farthest.squaredDistance > surely) {
            const int split = farthest.index;
            kept |= bit(split);
            // Written without jumps, and overwritten if there is little between the ends.
            parts[end] = {part.first, split};
            end += split - part.first > 2;
            parts[end] = {split, part.last};
            end += part.last - split > 2;
            single |= std::uint64_t(split - part.first == 2) << (split - 1 - first);
            // For the last point the shift would be a whole word: of a part of two there is none.
            single |= std::uint64_t(part.last - split == 2) << ((split + 1 - first) & 63);
        } else if (!(farthest.squaredDistance < surelyNot)) {
            return VectorKernels::undecided;
        }
    }
    if (single == 0)
        return kept;

    // A third of all parts of noise have a single point: all distances at once are sooner found.
    double distances[VectorKernels::longestShort + VectorKernels::widest];
    const int whole = std::min(last, readable - Width);
    toNeighboursBody<Width>(x, y, first + 1, whole, distances);
    const int done = whole > first ? (whole - first - 1 + Width - 1) / Width * Width : 0;
    toNeighboursBody<1>(x, y, first + 1 + done, last, distances + done);
    bool isUndecided = false;
    for (int i = 0; i < last - first - 1; ++i) {
        const bool isSingle = single >> (i + 1) & 1;
        const bool isSplit = distances[i] > surely;
        kept |= std::uint64_t(isSingle & isSplit) << (i + 1);
        isUndecided |= isSingle & !isSplit & !(distances[i] < surelyNot);
    }
    return isUndecided ? VectorKernels::undecided : kept;
}

// The cosines and sines of a k-DOP's directions, and what makes a corner of two neighbouring
// supports: corner = support[j] * near[j] + support[j + 1] * far[j].
constexpr double cos1 = 0.92387953251128675613; // cos(pi/8)
constexpr double cos2 = 0.70710678118654752440;
constexpr double cos3 = 0.38268343236508977173;

constexpr std::array<double, 17> cosines{1.0,   cos1,  cos2,  cos3, 0.0,  -cos3, -cos2, -cos1, -1.0,
                                         -cos1, -cos2, -cos3, 0.0,  cos3, cos2,  cos1,  1.0};
constexpr std::array<double, 17> sines{0.0,   cos3,  cos2,  cos1, 1.0,   cos1,  cos2,  cos3, 0.0,
                                       -cos3, -cos2, -cos1, -1.0, -cos1, -cos2, -cos3, 0.0};

struct CornerWeights {
    double nearX[Kdop::directions];
    double nearY[Kdop::directions];
    double farX[Kdop::directions];
    double farY[Kdop::directions];
};

constexpr CornerWeights makeCornerWeights()
{
    CornerWeights w{};
    for (size_t j = 0; j < Kdop::directions; ++j) {
        w.nearX[j] = sines[j + 1] / cos3;
        w.nearY[j] = -cosines[j + 1] / cos3;
        w.farX[j] = -sines[j] / cos3;
        w.farY[j] = cosines[j] / cos3;
    }
    return w;
}

constexpr CornerWeights weights = makeCornerWeights();

template<int Width>
VNA_INLINE double farthestOfBody(const Kdop &kdop, const Segment &segment)
{
    using Doubles = typename Vector<Width>::Doubles;
    Doubles farthest = Doubles();
    for (int j = 0; j < Kdop::directions; j += Width) {
        Doubles support, next, nearX, nearY, farX, farY, distance;
        load<Width>(kdop.support.data() + j, support);
        load<Width>(kdop.support.data() + j + 1, next);
        load<Width>(weights.nearX + j, nearX);
        load<Width>(weights.nearY + j, nearY);
        load<Width>(weights.farX + j, farX);
        load<Width>(weights.farY + j, farY);
        const Doubles x = support * nearX + next * farX;
        const Doubles y = support * nearY + next * farY;
        squaredDistances(x, y, segment, distance);
        farthest = distance > farthest ? distance : farthest;
    }
    double result = lane(farthest, 0);
    for (int k = 1; k < Width; ++k)
        result = std::max(result, lane(farthest, k));
    return result;
}

template<int Width>
VNA_INLINE double squaredDeviationBody(const double *x, const double *y, int first, int end,
                                       const Segment &s)
{
    using Doubles = typename Vector<Width>::Doubles;
    const double scaledX = s.dx * s.inverse;
    const double scaledY = s.dy * s.inverse;
    const Doubles zero = Doubles() + 0.0;
    const Doubles one = Doubles() + 1.0;
    Doubles farthest = Doubles();
    Doubles sum = Doubles(); // not finite if any distance is not
    Doubles px;
    Doubles py;
    const auto takeIn = [&]() __attribute__((always_inline))
    {
        px -= s.ax;
        py -= s.ay;
        Doubles u = px * scaledX + py * scaledY;
        u = u > zero ? u : zero;
        u = u < one ? u : one;
        px -= u * s.dx;
        py -= u * s.dy;
        const Doubles distance = px * px + py * py;
        farthest = distance > farthest ? distance : farthest;
        sum += distance;
    };
    int i = first;
    for (; i + Width <= end; i += Width) {
        load<Width>(x + i, px);
        load<Width>(y + i, py);
        takeIn();
    }
    for (; i < end; ++i) {
        px = Doubles() + x[i];
        py = Doubles() + y[i];
        takeIn();
    }
    double result = 0.0;
    double total = 0.0;
    for (int k = 0; k < Width; ++k) {
        result = std::max(result, lane(farthest, k));
        total += lane(sum, k);
    }
    return total - total == 0.0 ? result : std::numeric_limits<double>::infinity();
}

/// The supports along \a Axes axes from the one numbered \a from, both ways.
template<int Width, int From, int Axes>
VNA_INLINE void encloseAlong(const double *x, const double *y, int first, int end, Kdop &kdop)
{
    using Doubles = typename Vector<Width>::Doubles;
    constexpr double infinity = std::numeric_limits<double>::infinity();
    Doubles low[Axes];
    Doubles high[Axes];
    for (int k = 0; k < Axes; ++k) {
        low[k] = Doubles() + infinity;
        high[k] = Doubles() - infinity;
    }
    Doubles px;
    Doubles py;
    int i = first;
    const auto takeIn = [&]() __attribute__((always_inline))
    {
        for (int k = 0; k < Axes; ++k) {
            const auto axis = static_cast<size_t>(From + k);
            const Doubles p = px * cosines[axis] + py * sines[axis];
            low[k] = p < low[k] ? p : low[k];
            high[k] = p > high[k] ? p : high[k];
        }
    };
    for (; i + Width <= end; i += Width) {
        load<Width>(x + i, px);
        load<Width>(y + i, py);
        takeIn();
    }
    for (; i < end; ++i) {
        px = Doubles() + x[i];
        py = Doubles() + y[i];
        takeIn();
    }
    for (int k = 0; k < Axes; ++k) {
        double lowest = lane(low[k], 0);
        double highest = lane(high[k], 0);
        for (int l = 1; l < Width; ++l) {
            lowest = std::min(lowest, lane(low[k], l));
            highest = std::max(highest, lane(high[k], l));
        }
        kdop.support[static_cast<size_t>(From + k)] = highest;
        kdop.support[static_cast<size_t>(From + k + Kdop::directions / 2)] = -lowest;
    }
}

template<int Width>
VNA_INLINE void encloseBody(const double *x, const double *y, int first, int end, Kdop &kdop)
{
    // Two halves, so that the running extremes stay in registers.
    constexpr int axes = Kdop::directions / 4;
    encloseAlong<Width, 0, axes>(x, y, first, end, kdop);
    encloseAlong<Width, axes, axes>(x, y, first, end, kdop);
    kdop.support[Kdop::directions] = kdop.support[0];
}

#define VNA_KERNELS(Name, Width, Attribute)                                                        \
    Attribute void farthest##Name(const double *x, const double *y, int first, int end,            \
                                  int readable, const Segment &segment, Farthest &best)            \
    {                                                                                              \
        farthestBody<Width>(x, y, first, end, readable, segment, best);                            \
    }                                                                                              \
    Attribute void squaredDistances##Name(const double *x, const double *y, int count,             \
                                          const Segment &segment, double *result)                  \
    {                                                                                              \
        squaredDistancesBody<Width>(x, y, count, segment, result);                                 \
    }                                                                                              \
    Attribute double farthestOf##Name(const Kdop &kdop, const Segment &segment)                    \
    {                                                                                              \
        return farthestOfBody<Width>(kdop, segment);                                               \
    }                                                                                              \
    Attribute double squaredDeviation##Name(const double *x, const double *y, int first, int end,  \
                                            const Segment &segment)                                \
    {                                                                                              \
        return squaredDeviationBody<Width>(x, y, first, end, segment);                             \
    }                                                                                              \
    Attribute void enclose##Name(const double *x, const double *y, int first, int end, Kdop &kdop) \
    {                                                                                              \
        encloseBody<Width>(x, y, first, end, kdop);                                                \
    }                                                                                              \
    Attribute std::uint64_t simplifyShort##Name(const double *x, const double *y, int first,       \
                                                int last, int readable, double surely,             \
                                                double surelyNot)                                  \
    {                                                                                              \
        return simplifyShortBody<Width>(x, y, first, last, readable, surely, surelyNot);           \
    }                                                                                              \
    constexpr VectorKernels kernels##Name{farthest##Name,   squaredDistances##Name,                \
                                          farthestOf##Name, squaredDeviation##Name,                \
                                          enclose##Name,    simplifyShort##Name};

VNA_KERNELS(Plain, 1, )
#ifdef VNA_VECTOR_TYPES
VNA_KERNELS(Wide2, 2, )
#endif
#ifdef VNA_X86_TARGETS
VNA_KERNELS(Wide4, 4, __attribute__((target("avx2"))))
#endif

} // namespace

double distanceAtLeast(const Kdop &kdop, double x, double y)
{
    double distance = -std::numeric_limits<double>::infinity();
    for (size_t j = 0; j < Kdop::directions; ++j)
        distance = std::max(distance, x * cosines[j] + y * sines[j] - kdop.support[j]);
    return distance;
}

std::array<const VectorKernels *, 3> allVectorKernels()
{
    std::array<const VectorKernels *, 3> kernels{&kernelsPlain};
#ifdef VNA_VECTOR_TYPES
    kernels[1] = &kernelsWide2;
#endif
#ifdef VNA_X86_TARGETS
    if (__builtin_cpu_supports("avx2"))
        kernels[2] = &kernelsWide4;
#endif
    return kernels;
}

const VectorKernels &vectorKernels()
{
    static const VectorKernels &widest = []() -> const VectorKernels & {
        const VectorKernels *found = nullptr;
        for (const VectorKernels *kernels : allVectorKernels())
            found = kernels ? kernels : found;
        return *found;
    }();
    return widest;
}

} // namespace SmithRender
