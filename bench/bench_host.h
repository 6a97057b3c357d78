// What the benchmarks of commands share: an interpreter with the embedded host, and a clock that tells how
// the time grows with the number of elements.
#ifndef BENCH_HOST_H
#define BENCH_HOST_H

#include "app/embedded_host.h"

#include <benchmark/benchmark.h>
#include <tcl.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <map>
#include <memory>
#include <string>

namespace zn_bench {

/// An interpreter with the embedded host, in which "zn" stands for the command.
class BenchHost {
public:
    BenchHost() : interp_(Tcl_CreateInterp()), host_(std::make_unique<znhost::EmbeddedHost>(interp_)) {
        Eval("interp alias {} zn {} znbrowsermanager");
    }
    ~BenchHost() {
        host_.reset();
        Tcl_DeleteInterp(interp_);
    }
    BenchHost(const BenchHost&) = delete;
    BenchHost& operator=(const BenchHost&) = delete;

    Tcl_Interp* Interp() const { return interp_; }
    bool Try(const std::string& script) { return Tcl_Eval(interp_, script.c_str()) == TCL_OK; }
    std::string Eval(const std::string& script) {
        if (!Try(script)) {
            std::fprintf(stderr, "%s\n", Tcl_GetStringResult(interp_));
            std::abort();
        }
        return Tcl_GetStringResult(interp_);
    }

private:
    Tcl_Interp* const interp_;
    std::unique_ptr<znhost::EmbeddedHost> host_;
};

/// The seconds of processor time that `work` takes: what else the machine does counts little.
template <class Work>
double SecondsOf(Work&& work) {
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    const double start = now();
    work();
    return now() - start;
}

/// Reports the time per element, from the shortest measurement of each size, as the counter "ns_per_element",
/// and as "growth" how much more that is than with the smallest number of elements, which has to be measured
/// first. Small sizes are run as often as makes their elements as many as the largest has: so what else the
/// machine does meanwhile lengthens all measurements alike.
class Growth {
public:
    explicit Growth(std::int64_t most) : most_(most) {}

    /// @param run  does the work once, with as many elements as the argument of the benchmark, and tells the
    ///             seconds it took
    template <class Run>
    void Measure(benchmark::State& state, Run&& run) {
        const std::int64_t elements = state.range(0);
        const std::int64_t repeats = std::max<std::int64_t>(1, most_ / elements);
        double& best = best_.try_emplace(elements, std::numeric_limits<double>::max()).first->second;
        for (auto _ : state) {
            double seconds = 0;
            for (std::int64_t i = 0; i < repeats; ++i) seconds += run();
            state.SetIterationTime(seconds);
            best = std::min(best, seconds / static_cast<double>(repeats * elements));
        }
        state.counters["ns_per_element"] = best * 1e9;
        state.counters["growth"] = best / best_.begin()->second;
    }

private:
    const std::int64_t most_;
    std::map<std::int64_t, double> best_; // seconds per element, by the number of elements
};

} // namespace zn_bench

#endif
