// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: LGPL-3.0-or-later
/*! \file
    How a StrokeMask goes along the segments of a batch. */
#pragma once

#include "strokemask_p.h"
#include "vectors_p.h"

// Vectors of what is read as pairs of bytes.
#if defined(VNA_VECTOR_TYPES) && __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
#define VNA_FOUR_COLUMNS
#endif

namespace SmithRender
{

/// Goes along a segment of a batch that is a pixel wide, column by column.
class StrokeMask::Walk
{
public:
    // Copies of what the mask has, because a byte that is written might be any member.
    Walk(const StrokeMask &mask, const StrokeBatch &batch, std::size_t i, std::uint8_t *clear)
        : m_passing(mask.m_passing.data())
        , m_passingBoth(mask.m_passingBoth.data())
        , m_along(batch.isSteep[i] ? mask.m_stride : 1)
        , m_across(batch.isSteep[i] ? 1 : mask.m_stride)
        , m_perColumn(batch.perColumn[i])
        , m_column(batch.first[i])
        , m_at(batch.across[i])
        , m_pixel(clear + m_column * m_along)
    {
    }

    int column() const { return m_column; }

    /// The first of the pixels that share the line in another column.
    int pixelIn(int column) const
    {
        return (m_at + m_perColumn * (column - m_column)) >> StrokeBatch::fractionBits;
    }
    /// The last one of them.
    int lastPixelIn(int column) const { return pixelIn(column) + 1; }

    void skipTo(int column)
    {
        m_pixel += m_along * (column - m_column);
        m_at += m_perColumn * (column - m_column);
        m_column = column;
    }

    /// Draws so many steps of a column.
    void drawPart(int steps) const
    {
        const unsigned share = shareOfSecond();
        const auto length = static_cast<unsigned>(steps);
        std::uint8_t *const near = pixelOfLine();
        multiply(near[0], m_passing[(255 - share) * length / stepsPerPixel]);
        multiply(near[m_across], m_passing[share * length / stepsPerPixel]);
    }

    void drawTo(int end)
    {
        for (; m_column < end; ++m_column, m_pixel += m_along, m_at += m_perColumn) {
            std::uint8_t *const near = pixelOfLine();
            const std::uint32_t both = m_passingBoth[shareOfSecond()];
            multiply(near[0], both & 0xffff);
            multiply(near[m_across], both >> 16);
        }
    }

    /// As drawTo(), sooner done where there are many columns.
    void drawFarTo(int end)
    {
#ifdef VNA_FOUR_COLUMNS
        if (m_across == 1) {
            while (end - m_column >= 4)
                drawFour<true>();
        } else {
            while (end - m_column >= 4)
                drawFour<false>();
        }
#endif
        drawTo(end);
    }

protected:
#ifdef VNA_FOUR_COLUMNS
    /// Draws four columns, which share no pixel; both pixels of a row of a steep line lie side by side.
    template<bool IsSteep>
    void drawFour()
    {
        using Bytes = std::uint8_t __attribute__((vector_size(8)));
        using Pairs = std::uint16_t __attribute__((vector_size(8)));
        using Words = std::uint16_t __attribute__((vector_size(16)));
        using Factors = std::uint32_t __attribute__((vector_size(16)));
        const auto next = [this](std::uint8_t *&near, std::uint16_t &clear) {
            near = pixelOfLine();
            if constexpr (IsSteep)
                std::memcpy(&clear, near, sizeof clear);
            else
                clear = static_cast<std::uint16_t>(near[0] | near[m_across] << 8);
            const std::uint32_t passing = m_passingBoth[shareOfSecond()];
            ++m_column;
            m_pixel += m_along;
            m_at += m_perColumn;
            return passing;
        };
        std::uint8_t *near[4];
        std::uint16_t clear[4];
        const Factors passing{next(near[0], clear[0]), next(near[1], clear[1]),
                              next(near[2], clear[2]), next(near[3], clear[3])};
        // One after the other into a register: through memory, the processor would wait for them.
        const Pairs pairs{clear[0], clear[1], clear[2], clear[3]};
        const Words before = __builtin_convertvector(reinterpret_cast<Bytes>(pairs), Words);
        const Words after = (before * reinterpret_cast<Words>(passing) + 128) >> 8;
        const Bytes narrow = __builtin_convertvector(after, Bytes);
        std::uint64_t left;
        std::memcpy(&left, &narrow, sizeof left);
        for (std::uint8_t *const pixel : near) {
            if constexpr (IsSteep) {
                std::memcpy(pixel, &left, 2);
            } else {
                pixel[0] = static_cast<std::uint8_t>(left);
                pixel[m_across] = static_cast<std::uint8_t>(left >> 8);
            }
            left >>= 16;
        }
    }
#endif

    static void multiply(std::uint8_t &clear, unsigned passing)
    {
        clear = static_cast<std::uint8_t>((clear * passing + 128) >> 8);
    }
    unsigned shareOfSecond() const
    {
        return (static_cast<unsigned>(m_at) >> (StrokeBatch::fractionBits - 8)) & 255;
    }
    std::uint8_t *pixelOfLine() const
    {
        return m_pixel + (m_at >> StrokeBatch::fractionBits) * m_across;
    }

    const std::uint16_t *m_passing;
    const std::uint32_t *m_passingBoth;
    std::ptrdiff_t m_along;
    std::ptrdiff_t m_across;
    int m_perColumn;
    int m_column;
    int m_at;
    std::uint8_t *m_pixel;
};

/// The same for wider ones. A column belongs to the one segment that comes to its middle, and of
/// strokes over each other the one that covers more counts: so no seams show where segments meet.
class StrokeMask::WideWalk : public Walk
{
public:
    WideWalk(const StrokeMask &mask, const StrokeBatch &batch, std::size_t i, std::uint8_t *clear)
        : Walk(mask, batch, i, clear)
        , m_clearAt(mask.m_clearAt.data())
        , m_covered(batch.covered[i])
    {
    }

    void drawFarTo(int end) { drawTo(end); }

    int lastPixelIn(int column) const
    {
        return (m_at + m_covered + m_perColumn * (column - m_column)) >> StrokeBatch::fractionBits;
    }

    /// Always all of a column.
    void drawPart(int) const
    {
        const auto cover = [this](std::uint8_t &clear, unsigned covered) {
            clear = std::min(clear, m_clearAt[covered]);
        };
        const int end = m_at + m_covered;
        const int last = end >> StrokeBatch::fractionBits;
        std::uint8_t *pixel = pixelOfLine();
        cover(*pixel, 255 - shareOfSecond());
        for (int row = (m_at >> StrokeBatch::fractionBits) + 1; row < last; ++row)
            cover(*(pixel += m_across), 255);
        cover(pixel[m_across],
              (static_cast<unsigned>(end) >> (StrokeBatch::fractionBits - 8)) & 255);
    }

    void drawTo(int end)
    {
        for (; m_column < end; ++m_column, m_pixel += m_along, m_at += m_perColumn)
            drawPart(stepsPerPixel);
    }

private:
    const std::uint8_t *m_clearAt;
    int m_covered;
};

} // namespace SmithRender
