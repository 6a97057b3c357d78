// What the collector costs in a list of 1,000,000 items that is expanded in a window.
#include "bench/bench_items.h"
#include "window/collector.h"

#include <malloc.h>

#include <random>

namespace {

using namespace znhost;
using zn_bench::Items;

constexpr std::int64_t all = 1000000;

std::size_t UsedBytes() { return mallinfo2().uordblks + mallinfo2().hblkhd; }

/// The items, of which every so many are selected.
class Picked {
public:
    explicit Picked(std::int64_t count) : items_(Items::Of(all)) {
        items_.Expand();
        znIBrowserDataSourceSimple* const source = items_.Block().source->GetSource();
        std::vector<std::int64_t> rows;
        for (std::int64_t i = 1; i <= count; ++i) rows.push_back(i * (all / count));
        items_.Shown().Selected().Clear();
        items_.Shown().Selected().Select(source, rows);
        items_.Rows().Count();
    }
    ~Picked() {
        items_.Shown().Selected().Clear();
        while (Collects().GetStepCount(&items_.Shown()) > 0) Undo();
        Collects().ClearSteps(&items_.Shown());
    }
    Picked(const Picked&) = delete;
    Picked& operator=(const Picked&) = delete;

    /// Until the window has taken it over.
    void Isolate() {
        const bool done = Collects().Collect(&items_.Shown(), ZNBROWSER_COLLECT_SET,
                                             ZNBROWSER_COLLECT_FROM_SELECTED, nullptr) &&
                          Collects().ChangeDisplay(&items_.Shown(), ZNBROWSER_COLLECTOR_ISOLATE);
        if (!done || items_.Rows().Count() > all) std::abort();
    }
    void Undo() {
        if (!Collects().Undo(&items_.Shown())) std::abort();
        items_.Rows().Count();
    }
    RowModel& Rows() { return items_.Rows(); }

private:
    Collector& Collects() { return items_.App().Model().VirtualCollector(); }

    Items& items_;
};

void CollectAndIsolate(benchmark::State& state) {
    Picked picked(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        const std::size_t before = UsedBytes();
        state.ResumeTiming();
        picked.Isolate();
        state.PauseTiming();
        // What the rows of the window no longer take counts against it.
        const double used = static_cast<double>(UsedBytes()) - static_cast<double>(before);
        state.counters["MiB"] = used / 1048576.0;
        picked.Undo();
        picked.Undo();
        state.ResumeTiming();
    }
}

/// The isolation alone: the other step only collects.
void UndoIsolation(benchmark::State& state) {
    Picked picked(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        picked.Isolate();
        state.ResumeTiming();
        picked.Undo();
        state.PauseTiming();
        picked.Undo();
        state.ResumeTiming();
    }
}

void Pages(benchmark::State& state, RowModel& rows) {
    std::mt19937 random(1);
    std::uniform_int_distribution<std::int64_t> place(1, rows.Count() - 50);
    for (auto _ : state) benchmark::DoNotOptimize(rows.Read(place(random), 50));
}

void PageOfWhole(benchmark::State& state) {
    Picked picked(state.range(0));
    Pages(state, picked.Rows());
}

void PageOfIsolated(benchmark::State& state) {
    Picked picked(state.range(0));
    picked.Isolate();
    Pages(state, picked.Rows());
}

BENCHMARK(CollectAndIsolate)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(UndoIsolation)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(PageOfWhole)->Arg(100000)->Unit(benchmark::kMicrosecond);
BENCHMARK(PageOfIsolated)->Arg(100000)->Unit(benchmark::kMicrosecond);

} // namespace
