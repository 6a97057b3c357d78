// What a window costs on long lists: expanding, a page of rows, expanders, selecting, sorting, filtering,
// finding. Most run with 10,000 and with 1,000,000 items.
#include "app/application.h"
#include "app/embedded_host.h"
#include "window/window_list.h"

#include <benchmark/benchmark.h>
#include <malloc.h>
#include <tcl.h>

#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace znhost;

/// A window on a list of items, each with three columns and a child in every tenth; made once for each size.
class Items {
public:
    static Items& Of(std::int64_t count) {
        static std::map<std::int64_t, std::unique_ptr<Items>> all;
        std::unique_ptr<Items>& items = all[count];
        if (!items) items.reset(new Items(count));
        return *items;
    }

    void Eval(const std::string& script) {
        if (Tcl_Eval(interp_, script.c_str()) != TCL_OK) std::abort();
    }
    RowModel& Rows() { return host_.App().Model().Windows().All().First()->Rows(); }
    View& Shown() { return *host_.App().Model().Views().First(); }
    RowContent Block() {
        const RowModel::Answering answering(Rows());
        const RowPlan& plan = Rows().Plan();
        return plan.Below(plan.Below(Rows().Top())[0])[0];
    }
    std::uint32_t ListIndex() { return Rows().Read(0, 1)[0].index; }
    void Expand() {
        if (!Rows().Expand(ListIndex())) std::abort();
    }

private:
    explicit Items(std::int64_t count) : interp_(Tcl_CreateInterp()), host_(interp_) {
        const std::string number = std::to_string(count);
        Eval("interp alias {} zn {} znbrowsermanager; zn app datactrl create model\n"
             "foreach statement {\n"
             "  {create table item (id integer primary key, name text, weight real, shown boolean)}\n"
             "  {create table child (id integer primary key, item_id integer references item, name text)}\n"
             "  {insert into item with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
             number + ")\n   select i, 'item ' || (i * 7919 % " + number +
             "), i * 0.5, i % 2 from n}\n"
             "  {insert into child (item_id, name) select id, 'child' from item where id % 10 = 0}\n"
             "  {create index child_by_item on child (item_id)}\n"
             "} {zn app sql model $statement}\n"
             "zn datactrl current model; zn view create v false; zn view datactrl connect\n"
             "foreach {property type} {name string weight double shown bool} {\n"
             "  zn view property create $property; zn view property type $type\n"
             "  zn view property connect item $property; zn view column create $property}\n"
             "zn view folder current v; zn view list create item\n"
             "zn view folder tree parentchild item child child.item_id\n"
             "zn window create w; zn view column current Name");
    }

    Tcl_Interp* interp_;
    EmbeddedHost host_;
};

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
void SelectRows(benchmark::State& state) {
    Items& items = Items::Of(1000000);
    items.Expand();
    const auto first = static_cast<std::int64_t>(items.Rows().Read(1, 1)[0].index);
    std::string indices;
    for (std::int64_t i = 0; i < state.range(0); ++i)
        indices += " " + std::to_string(first + i * 7919 % 1000000);
    items.Eval("set event [list znbrowsermanager OnTkTreeRequestSelectionUpdate w" + indices + "]");
    for (auto _ : state) items.Eval("{*}$event");
    state.SetComplexityN(state.range(0));
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
BENCHMARK(PageAmongExpanded)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMicrosecond);
BENCHMARK(ExpandersOfPage)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMicrosecond);
BENCHMARK(SelectRows)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);
BENCHMARK(SortByText)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(FilterByText)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(FindFirst)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);

} // namespace
