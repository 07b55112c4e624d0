// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <smithrender/vectorkernels_p.h>

#include <tracesamples.h>
#include <vnatest.h>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace VnaTest;
using namespace SmithRender;
using namespace TraceSamples;

namespace
{

/// Checks what is known of a chord against each of its points.
void verifyChord(const VectorKernels &kernels, const std::vector<double> &x,
                 const std::vector<double> &y, int first, int last)
{
    const auto px = [&](int i) { return x[static_cast<size_t>(i)]; };
    const auto py = [&](int i) { return y[static_cast<size_t>(i)]; };
    const ChordBounds bounds = kernels.boundsOfChord(x.data(), y.data(), first, last);
    const ChordBounds plain = allVectorKernels()[0]->boundsOfChord(x.data(), y.data(), first, last);
    QVERIFY(bounds.squaredDeviation == plain.squaredDeviation);

    const Segment chord(px(first), py(first), px(last), py(last));
    const ChordAxis axis(chord);
    double farthest = 0.0;
    double rounding = 0.0;
    for (int i = first; i <= last; ++i) {
        Farthest one;
        kernels.farthest(x.data(), y.data(), i, i + 1, static_cast<int>(x.size()), chord, one);
        farthest = std::max(farthest, std::sqrt(one.squaredDistance));
        rounding = std::max(rounding, 1e-13 * (std::fabs(px(i)) + std::fabs(py(i))));
    }
    const double deviation = std::sqrt(bounds.squaredDeviation);
    QVERIFY(deviation >= farthest - rounding);
    QVERIFY(deviation <= 1.42 * farthest + rounding);
    const int step = VectorKernels::widest;
    for (int i = first + step; i <= last && bounds.isAscending; ++i) {
        QVERIFY(axis.along(px(i), py(i)) >= axis.along(px(i - step), py(i - step)) - rounding);
    }
}

} // namespace

class tst_VectorKernels : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void allWidthsGiveTheSameBits()
    {
        Random random(7);
        const VectorKernels &plain = *allVectorKernels()[0];
        for (int round = 0; round < 2000; ++round) {
            const int count = uniformInt(random, 1, 200);
            Trace trace = randomTrace(random, static_cast<Kind>(round % KindCount), count);
            // Exactly as much memory as may be read, so that reading on is found out.
            std::vector<double> x(trace.real.begin(), trace.real.end());
            std::vector<double> y(trace.imag.begin(), trace.imag.end());
            const int first = uniformInt(random, 0, count - 1);
            const int end = uniformInt(random, first, count);
            const Segment segment(x[0], y[0], x.back(), round % 3 ? y.back() : y[0]);

            Farthest wanted;
            plain.farthest(x.data(), y.data(), first, end, count, segment, wanted);
            Farthest oneByOne;
            for (int i = first; i < end; ++i)
                plain.farthest(x.data(), y.data(), i, i + 1, count, segment, oneByOne);
            QCOMPARE(wanted.index, oneByOne.index);
            Kdop kdop;
            const bool finite =
                first < end
                && std::isfinite(
                    plain.boundsOfChord(x.data(), y.data(), first, end - 1).squaredDeviation);
            double bound = 0.0;
            if (finite) {
                plain.enclose(x.data(), y.data(), first, end, kdop);
                bound = plain.farthestOf(kdop, segment);
                QVERIFY(bound >= wanted.squaredDistance * (1.0 - 1e-9));
            }

            const int last = std::min(end, first + VectorKernels::longestShort) - 1;
            const double tolerance = 0.1 * wanted.squaredDistance;
            const auto simplified = [&](const VectorKernels &kernels) {
                return finite && last > first ? kernels.simplifyShort(
                           x.data(), y.data(), first, last, count, tolerance, tolerance)
                                              : 0;
            };
            const std::uint64_t keptPoints = simplified(plain);
            const auto limitsOf = [&](const VectorKernels &kernels) {
                std::vector<double> limits(static_cast<size_t>(std::max(last - first - 1, 0)));
                if (finite && !limits.empty())
                    kernels.limitsOfShort(x.data(), y.data(), first, last, count, limits.data());
                return limits;
            };
            const std::vector<double> limits = limitsOf(plain);
            for (size_t i = 0; i < limits.size() && keptPoints != VectorKernels::undecided; ++i)
                QCOMPARE(limits[i] > tolerance, bool(keptPoints >> (i + 1) & 1));

            for (const VectorKernels *kernels : allVectorKernels()) {
                if (!kernels)
                    continue;
                QCOMPARE(simplified(*kernels), keptPoints);
                QVERIFY(limitsOf(*kernels) == limits);
                Farthest farthest;
                kernels->farthest(x.data(), y.data(), first, end, count, segment, farthest);
                QCOMPARE(farthest.index, wanted.index);
                QVERIFY(farthest.squaredDistance == wanted.squaredDistance);

                const int whole = count / VectorKernels::widest * VectorKernels::widest;
                std::vector<double> distances(x.size());
                kernels->squaredDistances(x.data(), y.data(), whole, segment, distances.data());
                for (int i = 0; i < whole; ++i) {
                    Farthest one;
                    plain.farthest(x.data(), y.data(), i, i + 1, count, segment, one);
                    QVERIFY(distances[static_cast<size_t>(i)] == one.squaredDistance);
                }

                if (finite) {
                    verifyChord(*kernels, x, y, first, end - 1);
                    Kdop other;
                    kernels->enclose(x.data(), y.data(), first, end, other);
                    QVERIFY(std::equal(kdop.support.begin(), kdop.support.end(),
                                       other.support.begin()));
                    QVERIFY(kernels->farthestOf(other, segment) == bound);
                }
            }
        }
    }

    void everyWidthSeesWhatIsNotFinite()
    {
        for (const VectorKernels *kernels : allVectorKernels()) {
            for (int hole = 0; kernels && hole < 40; ++hole) {
                std::vector<double> x(40, 1.0);
                std::vector<double> y(40, -1.0);
                const auto deviation = [&] {
                    return kernels->boundsOfChord(x.data(), y.data(), 0, 39).squaredDeviation;
                };
                QCOMPARE(deviation(), 0.0);
                (hole % 2 ? x : y)[static_cast<size_t>(hole)] = hole % 3 ? notANumber : -infinity;
                QCOMPARE(deviation(), infinity);
            }
        }
    }
};

QTEST_APPLESS_MAIN(tst_VectorKernels)
#include "tst_vectorkernels.moc"
