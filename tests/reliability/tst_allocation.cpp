// SPDX-FileCopyrightText: 2026 The VnaWidgets authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The parts without widgets while memory runs out: each allocation of each task fails once. What
// comes is std::bad_alloc or the right result, nothing is leaked, and the next try succeeds.
#include <controls/scaledunitadapter.h>
#include <panel/touchstone/touchstone.h>
#include <panel/touchstone/touchstonewriter.h>
#include <smithchart/gridgeometry.h>
#include <smithchart/indexedtrace_p.h>
#include <utils/formatting.h>

#include <fuzz/tracejudge.h>

#include <cmath>
#include <new>

#include <vnatest.h>

using namespace VnaTest;

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *old, std::size_t size);
void __libc_free(void *memory);
}

namespace
{

thread_local long t_failAt = 0; ///< the allocation to fail, counted down; 0: none
thread_local long t_held = 0; ///< blocks allocated and not freed

[[maybe_unused]] bool failsNow()
{
    return t_failAt > 0 && --t_failAt == 0;
}

[[maybe_unused]] void *counted(void *memory)
{
    t_held += memory ? 1 : 0;
    return memory;
}

} // namespace

#ifndef __SANITIZE_ADDRESS__ // which has an allocator of its own

// Those of the program take the place of the C library's, in Qt's libraries, too.
#define TAKES_OVER extern "C" __attribute__((visibility("default")))

TAKES_OVER void *malloc(std::size_t size)
{
    return failsNow() ? nullptr : counted(__libc_malloc(size));
}

TAKES_OVER void *calloc(std::size_t count, std::size_t size)
{
    return failsNow() ? nullptr : counted(__libc_calloc(count, size));
}

TAKES_OVER void *realloc(void *old, std::size_t size)
{
    if (failsNow())
        return nullptr;
    return old ? __libc_realloc(old, size) : counted(__libc_realloc(old, size));
}

TAKES_OVER void free(void *memory)
{
    t_held -= memory ? 1 : 0;
    __libc_free(memory);
}

#endif

namespace
{

TraceJudge::Trace spiral()
{
    TraceJudge::Trace trace;
    for (int i = 0; i < 3000; ++i) {
        trace.real << std::cos(i * 0.01) * i / 3000;
        trace.imag << std::sin(i * 0.01) * i / 3000;
    }
    return trace;
}

SmithRender::Viewport view()
{
    SmithRender::Viewport view;
    view.width = view.height = 300;
    return view;
}

/// A task, and what it gives: false for a wrong result.
using Task = std::function<bool()>;

} // namespace

Q_DECLARE_METATYPE(Task)

class tst_Allocation : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anyAllocationMayFail_data()
    {
        columns<Task>("task");
        const TraceJudge::Trace trace = spiral();
        const QVector<int> kept = SmithRender::decimate(trace.real, trace.imag, view()).keptIndices;
        row("decimation", Task([=] {
                return SmithRender::decimate(trace.real, trace.imag, view()).keptIndices == kept;
            }));
        // One that goes on living after it failed.
        const auto tree = std::make_shared<SmithRender::IndexedTrace>();
        row("trace index in use", Task([=] {
                tree->setSource(trace.imag, trace.real);
                (void)tree->decimate(view());
                tree->setSource(trace.real, trace.imag);
                const int nearest = tree->nearestIndex(view(), {1.0, 1.0});
                return tree->decimate(view()).keptIndices == kept && nearest >= 0;
            }));
        row("grid", Task([] {
                const auto grid = SmithChart::gridGeometry({0.0, 1.0}, {-1.0, 1.0}, 24);
                return grid.impedance.circles.x.size() == grid.impedance.circles.y.size()
                    && grid.boundaryX.size() == 25 && !grid.admittance.labels.text.isEmpty();
            }));
        row("Touchstone", Task([] {
                const auto result =
                    Panel::parseTouchstone("# MHz S DB R 75\n1 -3 45\n2 -4 46\n", 1);
                return result.ok() && result.network.points() == 2
                    && result.network.s(1, 1).imag.size() == 2;
            }));
        row("Touchstone of version 2, and written", Task([] {
                const auto result = Panel::parseTouchstone(
                    "[Version] 2.0\n# Hz Z RI\n[Number of Ports] 2\n[Two-Port Data Order] 12_21\n"
                    "[Number of Frequencies] 1\n[Reference]\n50 75 ! ohms\n[Network Data]\n"
                    "1 9 0 1 0 1 0 9 0\n[End]\n",
                    0);
                QBuffer buffer;
                buffer.open(QIODevice::WriteOnly);
                Panel::writeTouchstone(buffer, result.network, 2);
                return result.ok() && result.network.comments.size() == 1
                    && Panel::parseTouchstone(buffer.data(), 0).network.reference(2) == 75.0;
            }));
        row("Touchstone refused", Task([] {
                const auto result = Panel::parseTouchstone("# MHz S DB R 75\n1 -3 x\n", 1);
                return !result.ok()
                    && result.sentence("a.s1p"_s).startsWith("a.s1p, line 2: \"x\""_s);
            }));
        row("formatting", Task([] { return Utils::toString(-1234.5, 3) == "-1234.5"_s; }));
        const auto adapter = std::make_shared<Controls::ScaledUnitAdapter>(
            QVector<Controls::ScaledUnitAdapter::Unit>{{"GHz"_s, 1e9}, {"Hz"_s, 1.0}});
        row("parsing", Task([=] {
                QString unit;
                adapter->setRealValue(0.0);
                const double value = adapter->convertInputTextToValue(" +2.5e0 ghz"_s, unit);
                if (std::isnan(value))
                    throw std::bad_alloc(); // refused, as is a text that is no number
                if (value != 2.5e9)
                    return false;
                adapter->setRealValue(2.5e9);
                return adapter->getInputText() == "2.5GHz"_s;
            }));
    }

    void anyAllocationMayFail()
    {
        QFETCH(Task, task);
#ifdef __SANITIZE_ADDRESS__
        QSKIP("AddressSanitizer has an allocator of its own");
#endif
        QVERIFY(task()); // what is made once for good
        int failures = 0;
        for (long k = 1;; ++k) {
            const long before = t_held;
            bool right = false, threw = false;
            t_failAt = k;
            try {
                right = task();
            } catch (const std::bad_alloc &) {
                threw = true;
            }
            const bool happened = t_failAt == 0;
            t_failAt = 0;
            QVERIFY2(right || threw, qPrintable("wrong after allocation %1"_s.arg(k)));
            QVERIFY2(task(), qPrintable("wrong after the failed allocation %1"_s.arg(k)));
            QVERIFY2(t_held <= before, qPrintable("leaked at allocation %1"_s.arg(k)));
            if (!happened)
                break;
            ++failures;
        }
        QVERIFY(failures > 0);
        qInfo("%d allocations failed, one at a time", failures);
    }
};

QTEST_GUILESS_MAIN(tst_Allocation)
#include "tst_allocation.moc"
