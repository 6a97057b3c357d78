// What views cost: a column's caption beside a heading of Tk's own tree, many folders, and the selection of
// items by value.
#include "bench_host.h"

#include <initializer_list>
#include <vector>

namespace {

using zn_bench::BenchHost;
using zn_bench::MeasureElements;
using zn_bench::SecondsOf;

/// A command as words, ready to be evaluated without any script around it.
class Words {
public:
    Words(Tcl_Interp* interp, std::initializer_list<const char*> texts) : interp_(interp) {
        for (const char* const text : texts) {
            words_.push_back(Tcl_NewStringObj(text, -1));
            Tcl_IncrRefCount(words_.back());
        }
    }
    ~Words() {
        for (Tcl_Obj* const word : words_) Tcl_DecrRefCount(word);
    }
    Words(const Words&) = delete;
    Words& operator=(const Words&) = delete;

    void Eval() const {
        if (Tcl_EvalObjv(interp_, static_cast<int>(words_.size()), words_.data(), 0) != TCL_OK) std::abort();
    }

private:
    Tcl_Interp* const interp_;
    std::vector<Tcl_Obj*> words_;
};

/// Sets and reads a column's caption, and the heading of a ttk::treeview, in turn. The counter "ratio" is the
/// one time by the other, both of their shortest runs. Needs a display.
void ColumnCaptionToTreeviewHeading(benchmark::State& state) {
    BenchHost host;
    Tcl_Interp* const interp = host.Interp();
    if (Tcl_Init(interp) != TCL_OK || !host.Try("package require Tk"))
        return state.SkipWithError("skipped: there is no display");
    host.Eval("zn view create v; zn view column create c\n"
              "ttk::treeview .tree -columns c; pack .tree; update");
    const Words setCaption(interp, {"znbrowsermanager", "view", "column", "caption", "X"});
    const Words getCaption(interp, {"znbrowsermanager", "view", "column", "caption"});
    const Words setHeading(interp, {".tree", "heading", "c", "-text", "X"});
    const Words getHeading(interp, {".tree", "heading", "c", "-text"});
    constexpr int runs = 1000;
    const auto time = [](const Words& set, const Words& get) {
        return SecondsOf([&] {
            for (int i = 0; i < runs; ++i) {
                set.Eval();
                get.Eval();
            }
        });
    };
    double caption = std::numeric_limits<double>::max();
    double heading = caption;
    for (auto _ : state) {
        const double seconds = time(setCaption, getCaption);
        state.SetIterationTime(seconds);
        caption = std::min(caption, seconds);
        heading = std::min(heading, time(setHeading, getHeading));
    }
    state.counters["caption_ns"] = caption / runs * 1e9;
    state.counters["heading_ns"] = heading / runs * 1e9;
    state.counters["ratio"] = caption / heading;
}

/// Folders below one parent.
void CreateFolders(benchmark::State& state) {
    const std::string create = "for {set i 0} {$i < " + std::to_string(state.range(0)) +
                               "} {incr i} {znbrowsermanager view folder create folder$i}";
    MeasureElements(state, 10000, [&create] {
        BenchHost host;
        host.Eval("zn view create v; zn view folder current v");
        return SecondsOf([&] { host.Eval(create); });
    });
}

/// A list of items: each has a number of its own, and a kind that it shares with a tenth of them; both have
/// an index. Made once for each size.
class IndexedItems : public BenchHost {
public:
    static IndexedItems& Of(std::int64_t count) {
        static std::map<std::int64_t, std::unique_ptr<IndexedItems>> all;
        std::unique_ptr<IndexedItems>& items = all[count];
        if (!items) items.reset(new IndexedItems(count));
        return *items;
    }
    /// Selects the items with that value. @return the seconds it took
    double Select(const std::string& property, const std::string& value) {
        Eval("zn view selection clear; zn view property current " + property);
        return SecondsOf([&] { Eval("zn view dataitem simple select bypropval " + value + " false"); });
    }

private:
    explicit IndexedItems(std::int64_t count) {
        Eval("zn app datactrl create model; zn datactrl current model\n"
             "foreach statement {\n"
             "  {create table item (id integer primary key, name text, number integer, kind integer)}\n"
             "  {insert into item with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
             std::to_string(count) +
             ")\n   select i, 'item ' || i, i, i % 10 from n}\n"
             "  {create index by_number on item (number)} {create index by_kind on item (kind)}\n"
             "} {zn app sql model $statement}\n"
             "zn view create v false; zn view datactrl connect; zn view folder current v\n"
             "zn datasource simple current item\n"
             "foreach property {number kind} {\n"
             "  zn view property create $property; zn view property type integer\n"
             "  zn view property connect item $property}\n"
             "zn view list create item");
    }
};

/// A tenth of the items, by a value that these share. The elements are those selected.
void SelectTenthByValue(benchmark::State& state) {
    IndexedItems& items = IndexedItems::Of(state.range(0) * 10);
    MeasureElements(state, 100000, [&items] { return items.Select("kind", "3"); });
    if (const std::string count = items.Eval("llength [zn view dataitem selected]");
        count != std::to_string(state.range(0))) {
        state.SkipWithError((count + " items are selected").c_str());
    }
}

void SelectOneByValue(benchmark::State& state) {
    IndexedItems& items = IndexedItems::Of(state.range(0));
    for (auto _ : state) state.SetIterationTime(items.Select("number", "777"));
}

BENCHMARK(ColumnCaptionToTreeviewHeading)->Iterations(30)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(CreateFolders)->Arg(100)->Arg(1000)->Arg(10000)->Iterations(3)->UseManualTime();
BENCHMARK(SelectTenthByValue)->Arg(1000)->Arg(10000)->Arg(100000)->Iterations(3)->UseManualTime();
BENCHMARK(SelectOneByValue)
    ->Arg(10000)
    ->Arg(1000000)
    ->Iterations(300)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

} // namespace
