// What the benchmarks of commands share: an interpreter with the embedded host, and clocks.
#ifndef BENCH_HOST_H
#define BENCH_HOST_H

#include "app/application.h"
#include "app/embedded_host.h"

#include <benchmark/benchmark.h>
#include <tcl.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <limits>
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
    znhost::EmbeddedHost& Host() const { return *host_; }
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

/// Runs `work`, which tells the seconds it took, once for each iteration, but for small sizes as often as
/// makes their elements as many as the largest size has: so what else the machine does meanwhile lengthens
/// all measurements alike. The time per element, of the shortest run, is the counter "ns_per_element"; how it
/// grows from size to size is told where the results are read.
template <class Work>
void MeasureElements(benchmark::State& state, std::int64_t most, Work&& work) {
    const std::int64_t elements = state.range(0);
    const std::int64_t repeats = std::max<std::int64_t>(1, most / elements);
    double best = std::numeric_limits<double>::max();
    for (auto _ : state) {
        double seconds = 0;
        for (std::int64_t i = 0; i < repeats; ++i) seconds += work();
        state.SetIterationTime(seconds);
        best = std::min(best, seconds / static_cast<double>(repeats * elements));
    }
    state.counters["ns_per_element"] = best * 1e9;
}

} // namespace zn_bench

#endif
