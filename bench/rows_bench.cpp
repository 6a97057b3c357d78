// What a window costs on long lists: expanding, a page of rows, expanders, selecting, sorting, filtering,
// finding. Most run with 10,000 and with 1,000,000 items.
#include "bench/bench_host.h"
#include "bench/bench_items.h"

#include <malloc.h>
#include <sqlite3.h>

#include <random>

namespace {

using namespace znhost;
using zn_bench::Items;

void ExpandList(benchmark::State& state) {
    Items& items = Items::Of(state.range(0));
    const std::uint32_t list = items.ListIndex();
    items.Rows().Collapse(list);
    const std::size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
    for (auto _ : state) {
        items.Rows().Expand(list);
        state.PauseTiming();
        const std::size_t used = mallinfo2().uordblks + mallinfo2().hblkhd - before;
        state.counters["MiB"] = static_cast<double>(used) / 1048576.0;
        items.Rows().Collapse(list);
        state.ResumeTiming();
    }
}

void Page(benchmark::State& state) {
    Items& items = Items::Of(state.range(0));
    items.Expand();
    std::mt19937 random(1);
    std::uniform_int_distribution<std::int64_t> place(1, state.range(0) - 50);
    for (auto _ : state) benchmark::DoNotOptimize(items.Rows().Read(place(random), 50));
}

/// What a page must take: the same columns of 50 rows, each read by its key and kept as a text.
void PageByKey(benchmark::State& state) {
    sqlite3* database = nullptr;
    sqlite3_stmt* statement = nullptr;
    const std::string count = std::to_string(state.range(0));
    const std::string fill = Items::tables[0] + (";" + Items::ItemsSql(count));
    if (sqlite3_open(":memory:", &database) != SQLITE_OK ||
        sqlite3_exec(database, fill.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK ||
        sqlite3_prepare_v2(database, "SELECT name, name, weight, shown FROM item WHERE id = ?", -1,
                           &statement, nullptr) != SQLITE_OK)
        std::abort();
    std::mt19937 random(1);
    std::uniform_int_distribution<std::int64_t> place(1, state.range(0) - 50);
    for (auto _ : state) {
        std::vector<std::string> texts;
        const std::int64_t first = place(random);
        for (std::int64_t row = first; row < first + 50; ++row) {
            sqlite3_bind_int64(statement, 1, row);
            if (sqlite3_step(statement) != SQLITE_ROW) std::abort();
            for (int column = 0; column < 4; ++column)
                texts.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)));
            sqlite3_reset(statement);
        }
        benchmark::DoNotOptimize(texts);
    }
    sqlite3_finalize(statement);
    sqlite3_close(database);
}

/// A page while rows here and there are expanded.
void PageAmongExpanded(benchmark::State& state) {
    Items& items = Items::Of(state.range(0));
    items.Expand();
    for (std::int64_t i = 10; i < 5000; i += 11) items.Rows().Expand(items.Rows().Read(i, 1)[0].index);
    std::mt19937 random(1);
    std::uniform_int_distribution<std::int64_t> place(1, state.range(0) - 50);
    for (auto _ : state) benchmark::DoNotOptimize(items.Rows().Read(place(random), 50));
    items.Rows().CollapseAll();
}

/// Whether items can be expanded, asked for a page of them.
void ExpandersOfPage(benchmark::State& state) {
    Items& items = Items::Of(state.range(0));
    const RowContent block = items.Block();
    const RowModel::Answering answering(items.Rows());
    std::mt19937 random(1);
    std::uniform_int_distribution<std::int64_t> row(1, state.range(0));
    std::vector<std::int64_t> rows(50);
    for (auto _ : state) {
        for (std::int64_t& number : rows) number = row(random);
        benchmark::DoNotOptimize(items.Rows().Plan().HaveRows(block, rows));
    }
}

/// OnTkTreeRequestSelect with that many indices of a list of 1,000,000.
/// The same rows in each size, in events of so many: those of a small event alone would stay in the cache.
void SelectRows(benchmark::State& state) {
    constexpr std::int64_t most = 100000;
    Items& items = Items::Of(1000000);
    items.Expand();
    const auto first = static_cast<std::int64_t>(items.Rows().Read(1, 1)[0].index);
    std::string events;
    for (std::int64_t i = 0; i < most; ++i) {
        if (i % state.range(0) == 0)
            events += (i ? "} " : "") + std::string("{znbrowsermanager OnTkTreeRequestSelectionUpdate w");
        events += " " + std::to_string(first + i * 7919 % 1000000);
    }
    items.Eval("set events [list " + events + "}]; set next -1");
    zn_bench::MeasureElements(state, most, [&items] {
        return zn_bench::SecondsOf([&items] { items.Eval("{*}[lindex $events [incr next]]"); });
    });
    items.Eval("zn view selection clear");
}

void SortByText(benchmark::State& state) {
    Items& items = Items::Of(state.range(0));
    items.Expand();
    bool ascending = true;
    for (auto _ : state) {
        items.Shown().SortBy(&items.Shown().DefaultColumn(), ascending);
        items.Rows().Count();
        ascending = !ascending;
    }
    items.Shown().SortBy(nullptr, true);
}

void FilterByText(benchmark::State& state) {
    Items& items = Items::Of(state.range(0));
    items.Expand();
    int number = 0;
    for (auto _ : state) {
        items.Eval("zn view filter string current 77" + std::to_string(number++ % 10));
        items.Rows().Count();
    }
    items.Eval("zn view filter string current {}");
}

/// The first hit; the next ones are known then.
void FindFirst(benchmark::State& state) {
    Items& items = Items::Of(state.range(0));
    items.Expand();
    items.Eval("zn window find property add name; zn window find property current name\n"
               "zn window find property criterion current value; zn window find type next");
    static int number = 0; // on through all repetitions: the hits of the same text would be known
    for (auto _ : state) {
        items.Eval("zn window find property criterion value 77" + std::to_string(number++ % 10) +
                   "; zn window find perform");
    }
}

BENCHMARK(ExpandList)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(Page)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMicrosecond);
BENCHMARK(PageByKey)->Arg(1000000)->Unit(benchmark::kMicrosecond);
BENCHMARK(PageAmongExpanded)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMicrosecond);
BENCHMARK(ExpandersOfPage)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMicrosecond);
BENCHMARK(SelectRows)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(SortByText)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(FilterByText)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(FindFirst)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);

} // namespace
