// A window on tables of a million rows on a PostgreSQL server of the benchmarks' own, by the clock on the
// wall: the server works, too. Where PostgreSQL is not installed they are skipped.
#include "bench/bench_host.h"

#include "store/data_ctrl.h"
#include "window/window_list.h"

#include <chrono>
#include <map>
#include <random>

namespace {

using namespace znhost;
using zn_bench::BenchHost;

/// The server ends with the process.
class Server : public BenchHost {
public:
    static Server& Only() {
        static Server server;
        return server;
    }
    bool IsThere() const { return isThere_; }

private:
    Server() {
        Eval("source {" ZN_HARNESS "/server.tcl}");
        isThere_ = !Eval("server::programs").empty();
        if (!isThere_) return;
        Eval("set file [exec mktemp]; exec tclsh8.6 {" ZN_HARNESS "/shared_server.tcl} start $file\n"
             "set env(ZN_TEST_SERVER) $file; server::share\n"
             "zn app datactrl create model [server::url [server::database]]; zn datactrl current model");
        for (const char* const statement :
             {"CREATE TABLE dense (id integer PRIMARY KEY, number integer, name text)",
              "CREATE TABLE gaps (id integer PRIMARY KEY, number integer, name text)",
              "CREATE TABLE texts (code text PRIMARY KEY, number integer, name text)",
              "CREATE TABLE pairs (a integer, b text, number integer, name text, PRIMARY KEY (a, b))",
              "INSERT INTO dense SELECT i, i::bigint * 7919 % 1000000, 'item ' || i FROM generate_series(1, "
              "1000000) i",
              "INSERT INTO gaps SELECT id * 3, number, name FROM dense",
              "INSERT INTO texts SELECT 'code ' || id, number, name FROM dense",
              "INSERT INTO pairs SELECT id / 10, 'b' || id % 10, number, name FROM dense", "VACUUM ANALYZE"})
            Eval(std::string("zn app sql model {") + statement + "}");
    }

    bool isThere_ = false;
};

/// A window on all rows of one of the tables.
class Listed {
public:
    static Listed& Of(const std::string& table) {
        static std::map<std::string, std::unique_ptr<Listed>> all;
        std::unique_ptr<Listed>& listed = all[table];
        if (!listed) listed.reset(new Listed(table));
        return *listed;
    }
    RowModel& Rows() { return Host().App().Model().Windows().All().Find(table_)->Rows(); }
    View& Shown() { return *Host().App().Model().Views().Find(table_); }
    void Expand() {
        if (!Rows().Expand(Rows().Read(0, 1)[0].index)) std::abort();
    }
    void Close() { Rows().Collapse(Rows().Read(0, 1)[0].index); }
    std::size_t Page(std::int64_t first) { return Rows().Read(first, 50).size(); }

    /// What one command does takes that many seconds.
    template <class Work>
    double SecondsOf(Work&& work) {
        const HostServices::OneLook look(Host().App());
        const auto start = std::chrono::steady_clock::now();
        work();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

private:
    explicit Listed(const std::string& table) : table_(table) {
        Server::Only().Eval("zn view create " + table +
                            " false; zn view datactrl connect\n"
                            "zn view folder current " +
                            table +
                            "\n"
                            "foreach {property type} {number integer name string} {\n"
                            "  zn view property create $property; zn view property type $type\n"
                            "  zn view property connect " +
                            table +
                            " $property; zn view column create $property}\n"
                            "zn view folder current " +
                            table + "; zn view list create " + table +
                            "\n"
                            "zn window create " +
                            table);
    }
    znhost::EmbeddedHost& Host() { return Server::Only().Host(); }

    const std::string table_;
};

/// Calls `measure`, which gives the seconds, for each round.
template <class Measure>
void Run(benchmark::State& state, const char* table, Measure&& measure) {
    if (!Server::Only().IsThere()) return state.SkipWithError("PostgreSQL is not installed");
    Listed& listed = Listed::Of(table);
    for (auto _ : state) state.SetIterationTime(measure(listed));
}

void ServerOpen(benchmark::State& state, const char* table) {
    Run(state, table, [](Listed& listed) {
        listed.Close();
        return listed.SecondsOf([&] {
            listed.Expand();
            if (listed.Page(0) != 50) std::abort();
        });
    });
}

void ServerPages(benchmark::State& state, const char* table) {
    std::int64_t place = 0;
    Run(state, table, [&](Listed& listed) {
        if (place == 0) listed.Expand();
        place += 50;
        return listed.SecondsOf([&] { listed.Page(place); });
    });
}

void ServerJump(benchmark::State& state, const char* table) {
    std::mt19937 random(1);
    std::uniform_int_distribution<std::int64_t> place(1, 999950);
    Run(state, table, [&](Listed& listed) {
        listed.Close();
        listed.Expand();
        return listed.SecondsOf([&] { listed.Page(place(random)); });
    });
}

void ServerSort(benchmark::State& state, const char* column) {
    Run(state, "gaps", [&](Listed& listed) {
        listed.Shown().SortBy(nullptr, true);
        listed.Expand();
        listed.Page(0);
        const double seconds = listed.SecondsOf([&] {
            listed.Shown().SortBy(listed.Shown().Columns().Find(column), true);
            listed.Page(0);
        });
        listed.Shown().SortBy(nullptr, true);
        return seconds;
    });
}

BENCHMARK_CAPTURE(ServerOpen, dense, "dense")->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ServerOpen, gaps, "gaps")->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ServerOpen, texts, "texts")->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ServerOpen, pairs, "pairs")->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ServerPages, dense, "dense")
    ->Iterations(200)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ServerPages, gaps, "gaps")->Iterations(200)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ServerPages, texts, "texts")
    ->Iterations(200)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ServerPages, pairs, "pairs")
    ->Iterations(200)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ServerJump, gaps, "gaps")->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ServerSort, number, "number")
    ->Iterations(2)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ServerSort, name, "name")->Iterations(2)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
