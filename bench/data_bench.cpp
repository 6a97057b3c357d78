// Lists of data sources and of items, as scripts ask for them: the time for one must not grow with their
// number.
#include "bench_host.h"

namespace {

using zn_bench::BenchHost;
using zn_bench::MeasureElements;
using zn_bench::SecondsOf;

void MeasureCommand(benchmark::State& state, std::int64_t most, BenchHost& host, const std::string& command) {
    MeasureElements(state, most, [&] { return SecondsOf([&] { host.Eval(command); }); });
}

/// The names of base sources: a table each.
void SourceNames(benchmark::State& state) {
    BenchHost host;
    host.Eval("zn app datactrl create model; zn datactrl current model\n"
              "for {set i 0} {$i < " +
              std::to_string(state.range(0)) +
              "} {incr i} {zn app sql model \"create table part$i (name)\"}");
    MeasureCommand(state, 1000, host, "zn datasource simple names");
}

/// The names of custom sources.
void CustomSourceNames(benchmark::State& state) {
    BenchHost host;
    host.Eval("zn app datactrl create model; zn datactrl current model\n"
              "for {set i 0} {$i < " +
              std::to_string(state.range(0)) + "} {incr i} {zn datasource simple create part$i}");
    MeasureCommand(state, 1000, host, "zn datasource simple script names");
}

/// The items of a source, each as the value of a property.
void Items(benchmark::State& state) {
    BenchHost host;
    const std::string count = std::to_string(state.range(0));
    host.Eval("zn app datactrl create model; zn datactrl current model\n"
              "zn app sql model {create table item (id integer primary key, name text)}\n"
              "zn app sql model {insert into item with recursive n(i) as\n"
              "    (select 1 union all select i + 1 from n where i < " +
              count +
              ") select i, 'item ' || (i * 7919 % 1000) from n}\n"
              "zn view create v; zn view datactrl connect; zn datasource simple current item\n"
              "zn view property create p; zn view property type string; zn view property connect item name");
    MeasureCommand(state, 1000000, host, "zn datasource simple dataitem");
}

BENCHMARK(SourceNames)->Arg(10)->Arg(100)->Arg(1000)->Iterations(20)->UseManualTime();
BENCHMARK(CustomSourceNames)->Arg(10)->Arg(100)->Arg(1000)->Iterations(20)->UseManualTime();
BENCHMARK(Items)->Arg(10000)->Arg(100000)->Arg(1000000)->Iterations(1)->UseManualTime()->Unit(
    benchmark::kMillisecond);

} // namespace
