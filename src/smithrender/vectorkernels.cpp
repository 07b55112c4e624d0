// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "vectorkernels_p.h"

#include "kdopkernels_p.h"
#include "segmentkernels_p.h"
#include "shortrunkernels_p.h"
#include "strokekernels_p.h"

namespace SmithRender
{

namespace
{

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
    Attribute ChordBounds boundsOfChord##Name(const double *x, const double *y, int first,         \
                                              int last)                                            \
    {                                                                                              \
        return boundsOfChordBody<Width>(x, y, first, last);                                        \
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
    Attribute void limitsOfShort##Name(const double *x, const double *y, int first, int last,      \
                                       int readable, double *limits)                               \
    {                                                                                              \
        limitsOfShortBody<Width>(x, y, first, last, readable, limits);                             \
    }                                                                                              \
    Attribute void prepareStrokes##Name(StrokeBatch &batch)                                        \
    {                                                                                              \
        prepareStrokesBody(batch);                                                                 \
    }                                                                                              \
    constexpr VectorKernels kernels##Name{                                                         \
        farthest##Name, squaredDistances##Name, farthestOf##Name,    boundsOfChord##Name,          \
        enclose##Name,  simplifyShort##Name,    limitsOfShort##Name, prepareStrokes##Name};

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
