// What trees cost: expanding and collapsing all of them, and restoring what was expanded. The elements are
// the containers.
#include "bench/bench_host.h"
#include "window/window_list.h"

#include <malloc.h>

#include <map>

namespace {

using namespace znhost;
using zn_bench::BenchHost;
using zn_bench::MeasureElements;
using zn_bench::SecondsOf;

/// A window on parts, each of the first half with two others below it, and on as many items with one part
/// each.
class Trees : public BenchHost {
public:
    static Trees& Of(std::int64_t containers) {
        static std::map<std::int64_t, std::unique_ptr<Trees>> all;
        std::unique_ptr<Trees>& trees = all[containers];
        if (!trees) trees.reset(new Trees(containers));
        return *trees;
    }
    RowModel& Rows() { return Host().App().Model().Windows().All().First()->Rows(); }
    void Expect(std::int64_t rows) {
        if (Rows().Count() == rows) return;
        std::fprintf(stderr, "%lld rows\n", static_cast<long long>(Rows().Count()));
        std::abort();
    }

private:
    explicit Trees(std::int64_t containers) {
        const std::string half = std::to_string(containers / 2);
        Eval("zn app datactrl create model; zn datactrl current model\n"
             "foreach statement {\n"
             "  {create table part (id integer primary key, part_id integer references part, name text)}\n"
             "  {create table item (id integer primary key, name text)}\n"
             "  {create table detail (id integer primary key, item_id integer references item, name text)}\n"
             "  {insert into part with recursive n(i) as (select 1 union all select i + 1 from n where i <= "
             "2 * " +
             half +
             ")\n   select i, nullif(i / 2, 0), 'part ' || i from n}\n"
             "  {insert into item select id, 'item ' || id from part where id <= " +
             half +
             "}\n"
             "  {insert into detail select id, id, 'detail' from item}\n"
             "  {create index part_by_part on part (part_id)} {create index detail_by_item on detail "
             "(item_id)}\n"
             "} {zn app sql model $statement}\n"
             "zn view create v false; zn view datactrl connect; zn view folder current v\n"
             "zn datasource hierarchical create parts true false\n"
             "zn datasource hierarchical connect parent part -\n"
             "zn view tree create parts; zn view list create item\n"
             "zn view folder tree parentchild item detail detail.item_id\n"
             "zn window create w");
    }
};

constexpr std::int64_t most = 100000;

void ExpandAll(benchmark::State& state) {
    Trees& trees = Trees::Of(state.range(0));
    MeasureElements(state, most, [&trees] {
        trees.Rows().CollapseAll();
        return SecondsOf([&trees] { trees.Rows().ExpandAll(); });
    });
    trees.Expect(state.range(0) * 2 + 3);
}

void CollapseAll(benchmark::State& state) {
    Trees& trees = Trees::Of(state.range(0));
    MeasureElements(state, most, [&trees] {
        trees.Rows().ExpandAll();
        return SecondsOf([&trees] { trees.Rows().CollapseAll(); });
    });
    trees.Expect(2);
}

/// The containers at the top and what lies below them.
void ExpandSelected(benchmark::State& state) {
    Trees& trees = Trees::Of(state.range(0));
    MeasureElements(state, most, [&trees] {
        trees.Rows().CollapseAll();
        trees.Rows().Select(RowModel::Selecting::Replace, trees.Rows().IndicesFrom(0, 2));
        return SecondsOf([&trees] { trees.Rows().ExpandSelected(); });
    });
    trees.Expect(state.range(0) * 2 + 3);
    trees.Rows().Select(RowModel::Selecting::Replace, std::vector<std::uint32_t>());
}

/// A look with everything expanded.
void RestoreExpanded(benchmark::State& state) {
    Trees& trees = Trees::Of(state.range(0));
    trees.Rows().ExpandAll();
    const std::vector<KeptRow> kept = trees.Rows().Expanded();
    MeasureElements(state, most, [&] {
        trees.Rows().CollapseAll();
        return SecondsOf([&] { trees.Rows().SetExpanded(kept); });
    });
    trees.Expect(state.range(0) * 2 + 3);
}

/// The same with the state written to the database and read from it.
void RestoreState(benchmark::State& state) {
    Trees& trees = Trees::Of(state.range(0));
    trees.Rows().ExpandAll();
    trees.Eval("zn app state create model s; zn window current w; zn state current s; zn state save");
    MeasureElements(state, most, [&trees] {
        trees.Rows().CollapseAll();
        return SecondsOf([&trees] { trees.Eval("zn state restore"); });
    });
    trees.Expect(state.range(0) * 2 + 3);
    trees.Eval("zn app state delete model s");
}

/// Everything that is expanded is listed anew.
void RefreshExpanded(benchmark::State& state) {
    Trees& trees = Trees::Of(state.range(0));
    trees.Rows().ExpandAll();
    MeasureElements(state, most, [&trees] {
        return SecondsOf([&trees] {
            trees.Rows().OnViewChanged(VIEW_ROWS);
            trees.Rows().Count();
        });
    });
    trees.Expect(state.range(0) * 2 + 3);
}

void Sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(10000)->Arg(100000)->Arg(1000000)->Iterations(1)->UseManualTime()->Unit(
        benchmark::kMillisecond);
}

BENCHMARK(ExpandAll)->Apply(Sizes);
BENCHMARK(CollapseAll)->Apply(Sizes);
BENCHMARK(ExpandSelected)->Apply(Sizes);
BENCHMARK(RestoreExpanded)->Apply(Sizes);
BENCHMARK(RestoreState)->Apply(Sizes);
BENCHMARK(RefreshExpanded)->Apply(Sizes);

} // namespace
