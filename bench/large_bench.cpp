// What windows cost where there is much of something: ten million rows, hundreds of columns, long texts, a
// thousand windows; and what a change of one row costs among many.
#include "bench/bench_host.h"
#include "bench/bench_items.h"

#include <malloc.h>

#include <random>

namespace {

using namespace znhost;
using zn_bench::BenchHost;
using zn_bench::Items;
using zn_bench::MeasureElements;
using zn_bench::SecondsOf;

double UsedMebibytes() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / 1048576.0;
}

/// A window on a list of all rows of a table "item", with a column for each of `columns`.
class Listed : public BenchHost {
public:
    Listed(const std::string& table, const std::string& fill, const std::string& columns) {
        Eval("zn app datactrl create model; zn datactrl current model\n"
             "zn app sql model {" +
             table + "}; zn app sql model {" + fill +
             "}\n"
             "zn view create v false; zn view datactrl connect; zn view folder current v\n"
             "foreach {property type} {" +
             columns +
             "} {\n"
             "  zn view property create $property; zn view property type $type\n"
             "  zn view property connect item $property; zn view column create $property}\n"
             "zn view folder current v; zn view list create item; zn window create w");
    }
    static std::string Numbers(std::int64_t count) {
        return "with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
               std::to_string(count) + ") ";
    }
    RowModel& Rows() { return Host().App().Model().Windows().All().First()->Rows(); }
    View& Shown() { return *Host().App().Model().Views().First(); }
    std::uint32_t List() { return Rows().Read(0, 1)[0].index; }
    void Expand() {
        if (!Rows().Expand(List())) std::abort();
    }
    void Sort(const char* column, bool ascending) {
        Shown().SortBy(column ? Shown().Columns().Find(column) : nullptr, ascending);
        Rows().Count();
    }
};

/// Items with a number that has an index.
class Numbered : public Listed {
public:
    static Numbered& Of(std::int64_t count) {
        static std::map<std::int64_t, std::unique_ptr<Numbered>> all;
        std::unique_ptr<Numbered>& items = all[count];
        if (!items) items.reset(new Numbered(count));
        return *items;
    }

private:
    explicit Numbered(std::int64_t count)
        : Listed("create table item (id integer primary key, number integer)",
                 "insert into item " + Numbers(count) + "select i, i * 7919 % " + std::to_string(count) +
                     " from n",
                 "id integer number integer") {
        if (count <= 1000000) Eval("zn app sql model {create index by_number on item (number)}");
        Expand();
    }
};

void OpenList(benchmark::State& state) {
    Numbered& items = Numbered::Of(state.range(0));
    double used = 0;
    for (auto _ : state) {
        items.Rows().Collapse(items.List());
        const double before = UsedMebibytes();
        state.SetIterationTime(SecondsOf([&items] {
            items.Expand();
            benchmark::DoNotOptimize(items.Rows().Read(0, 50));
        }));
        used = UsedMebibytes() - before;
    }
    state.counters["MiB"] = used;
}

void PageOfList(benchmark::State& state) {
    Numbered& items = Numbered::Of(state.range(0));
    std::mt19937 random(1);
    std::uniform_int_distribution<std::int64_t> place(1, state.range(0) - 50);
    for (auto _ : state) benchmark::DoNotOptimize(items.Rows().Read(place(random), 50));
}

void PageAtEnd(benchmark::State& state) {
    Numbered& items = Numbered::Of(state.range(0));
    for (auto _ : state) benchmark::DoNotOptimize(items.Rows().Read(items.Rows().Count() - 50, 50));
}

void SortBy(benchmark::State& state, const char* column) {
    Numbered& items = Numbered::Of(state.range(0));
    bool ascending = true;
    for (auto _ : state) {
        state.SetIterationTime(SecondsOf([&] { items.Sort(column, ascending); }));
        ascending = !ascending;
    }
    items.Sort(nullptr, true);
}

void SortByKey(benchmark::State& state) { SortBy(state, "id"); }
void SortByIndex(benchmark::State& state) { SortBy(state, "number"); }

/// A statement that changes one row of a list in which all are selected, and the page that is drawn then.
void ChangeRow(benchmark::State& state, const char* statement) {
    Items& items = Items::Of(state.range(0));
    items.Expand();
    std::vector<std::int64_t> rows(static_cast<std::size_t>(state.range(0)));
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = static_cast<std::int64_t>(i) + 1;
    items.Shown().Selected().Select(items.Block().source->GetSource(), std::move(rows));
    items.Rows().Count();
    items.Sql(statement); // from now on it is known what changes
    items.Rows().Count();
    for (auto _ : state) {
        state.SetIterationTime(SecondsOf([&] {
            items.Sql(statement);
            benchmark::DoNotOptimize(items.Rows().Read(1000, 50));
        }));
    }
    items.Shown().Selected().Clear();
}

void UpdateRow(benchmark::State& state) {
    ChangeRow(state, "update item set weight = weight + 1 where id = 5000");
}
/// A new one at the end, the one before it goes.
void ReplaceRow(benchmark::State& state) {
    ChangeRow(state, "update item set id = id + 1 where id = (select max(id) from item)");
}

void WidePage(benchmark::State& state) {
    static std::map<std::int64_t, std::unique_ptr<Listed>> all;
    std::unique_ptr<Listed>& listed = all[state.range(0)];
    if (!listed) {
        std::string columns;
        std::string values;
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            columns += ", c" + std::to_string(i) + " text";
            values += ", 'text ' || i";
        }
        listed = std::make_unique<Listed>(
            "create table item (id integer primary key, name text" + columns + ")",
            "insert into item " + Listed::Numbers(10000) + "select i, 'item ' || i" + values + " from n",
            "c0 string c1 string c2 string");
        listed->Expand();
    }
    std::mt19937 random(1);
    std::uniform_int_distribution<std::int64_t> place(1, 9950);
    for (auto _ : state) benchmark::DoNotOptimize(listed->Rows().Read(place(random), 50));
}

/// Texts of that many bytes.
void LongPage(benchmark::State& state) {
    static std::map<std::int64_t, std::unique_ptr<Listed>> all;
    std::unique_ptr<Listed>& listed = all[state.range(0)];
    if (!listed) {
        listed = std::make_unique<Listed>("create table item (id integer primary key, name text, body text)",
                                          "insert into item " + Listed::Numbers(100) +
                                              "select i, 'item ' || i, printf('%." +
                                              std::to_string(state.range(0)) + "c', 'x') from n",
                                          "body string");
        listed->Expand();
    }
    for (auto _ : state) benchmark::DoNotOptimize(listed->Rows().Read(10, 50));
}

/// That many windows on a view, each with the list expanded.
void Windows(benchmark::State& state) {
    Numbered& items = Numbered::Of(1000000);
    for (auto _ : state) {
        const double before = UsedMebibytes();
        items.Eval("zn view current v");
        for (std::int64_t i = 0; i < state.range(0); ++i) {
            items.Eval("zn window create w" + std::to_string(i));
            RowModel& rows = items.Host().App().Model().Windows().All().Find("w" + std::to_string(i))->Rows();
            rows.Expand(rows.Read(0, 1)[0].index);
            if (rows.Count() != 1000001) std::abort();
        }
        state.counters["MiB"] = UsedMebibytes() - before;
        items.Eval(
            "foreach name [zn window names] {if {$name ne {w}} {zn window current $name; zn window delete}}");
    }
}

void AllRows(benchmark::State& state, const char* word) {
    Items& items = Items::Of(state.range(0));
    items.Expand();
    MeasureElements(state, 100000, [&] {
        return SecondsOf([&] { items.Eval(std::string("zn app ") + word + " w; list"); });
    });
}
void AppRows(benchmark::State& state) { AllRows(state, "rows"); }
void AppDraw(benchmark::State& state) { AllRows(state, "draw"); }

constexpr std::int64_t million = 1000000;

BENCHMARK(OpenList)
    ->Arg(million)
    ->Arg(10 * million)
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(PageOfList)->Arg(10000)->Arg(million)->Arg(10 * million)->Unit(benchmark::kMicrosecond);
BENCHMARK(PageAtEnd)->Arg(10 * million)->Unit(benchmark::kMicrosecond);
BENCHMARK(SortByKey)
    ->Arg(million)
    ->Arg(10 * million)
    ->Iterations(2)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(SortByIndex)->Arg(million)->Iterations(2)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(UpdateRow)->Arg(10000)->Arg(100000)->Arg(million)->Iterations(20)->UseManualTime()->Unit(
    benchmark::kMicrosecond);
BENCHMARK(ReplaceRow)
    ->Arg(10000)
    ->Arg(100000)
    ->Arg(million)
    ->Iterations(20)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(WidePage)->Arg(3)->Arg(300)->Unit(benchmark::kMicrosecond);
BENCHMARK(LongPage)->Arg(10)->Arg(1 << 20)->Unit(benchmark::kMicrosecond);
BENCHMARK(Windows)->Arg(1)->Arg(1000)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(AppRows)->Arg(1000)->Arg(10000)->Arg(100000)->Iterations(1)->UseManualTime()->Unit(
    benchmark::kMillisecond);
BENCHMARK(AppDraw)->Arg(1000)->Arg(10000)->Arg(100000)->Iterations(1)->UseManualTime()->Unit(
    benchmark::kMillisecond);

} // namespace
