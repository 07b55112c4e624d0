// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

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

} // namespace SmithRender
