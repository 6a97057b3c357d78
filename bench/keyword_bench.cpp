// Keyword lookup, by the words that scripts use and by words that are no keywords.
#include "znBrowserTclKeywords.h"

#include <benchmark/benchmark.h>

namespace {

constexpr const char* hits[] = {"view",    "column",   "caption",  "create",
                                "current", "names",    "datactrl", "VIEW",
                                "cur",     "selected", "sort",     "OnTkTreeRequestExpand",
                                "window",  "dataitem", "property", "del"};
constexpr const char* misses[] = {"gearbox", "Bolt M8",         "viewx",    "7",
                                  "",        "::browser::post", "colum",    "parts.id",
                                  "createx", "Housing",         "shaft",    "OnTkTreeRequestExplode",
                                  "steel",   "suppliers",       "window_1", "0.25 inch"};

template <std::size_t count>
void Lookup(benchmark::State& state, const char* const (&words)[count]) {
    const znBrowserTclKeywords keywords(true);
    for (auto _ : state) {
        for (const char* word : words) benchmark::DoNotOptimize(keywords.GetZnBrowserTclApiEnum(word));
    }
    state.counters["per_word"] =
        benchmark::Counter(static_cast<double>(count),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void KeywordHit(benchmark::State& state) { Lookup(state, hits); }
void KeywordMiss(benchmark::State& state) { Lookup(state, misses); }

BENCHMARK(KeywordHit);
BENCHMARK(KeywordMiss);

} // namespace
