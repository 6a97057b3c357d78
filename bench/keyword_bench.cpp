// Keyword lookup, by the words that scripts use and by words that are no keywords, beside a perfect hash of
// the same words: what a lookup must take.
#include "znBrowserTclKeywords.h"

#include "frame/keyword_table.h"

#include <benchmark/benchmark.h>

#include <strings.h>

#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

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

/// Each word has a slot of its own, found by trying one multiplier after the other when the table is
/// made.
class PerfectHash {
public:
    PerfectHash() {
        while (!Fill()) multiplier_ += 2;
    }
    int Find(const char* word) const {
        const std::string_view& slot = slots_[SlotOf(word)];
        return slot.data() && strcasecmp(slot.data(), word) == 0 ? static_cast<int>(slot.size()) : -1;
    }

private:
    static constexpr std::size_t size = 1 << 16;

    std::size_t SlotOf(const char* word) const {
        std::uint64_t hash = 0;
        for (; *word; ++word) hash = (hash ^ static_cast<unsigned char>(*word | 0x20)) * multiplier_;
        return hash >> 48;
    }
    bool Fill() {
        slots_.assign(size, {});
        for (const znlayer::KeywordRow& row : znlayer::keyword_table::rows) {
            std::string_view& slot = slots_[SlotOf(row.spelling.data())];
            if (slot.data() && slot != row.spelling) return false;
            slot = row.spelling;
        }
        return true;
    }

    std::uint64_t multiplier_ = 0x9E3779B97F4A7C15;
    std::vector<std::string_view> slots_;
};

template <std::size_t count>
void HashLookup(benchmark::State& state, const char* const (&words)[count]) {
    static const PerfectHash hash;
    for (auto _ : state) {
        for (const char* word : words) benchmark::DoNotOptimize(hash.Find(word));
    }
}

void PerfectHashHit(benchmark::State& state) { HashLookup(state, hits); }
void PerfectHashMiss(benchmark::State& state) { HashLookup(state, misses); }
void KeywordHit(benchmark::State& state) { Lookup(state, hits); }
void KeywordMiss(benchmark::State& state) { Lookup(state, misses); }

BENCHMARK(PerfectHashHit);
BENCHMARK(PerfectHashMiss);
BENCHMARK(KeywordHit);
BENCHMARK(KeywordMiss);

} // namespace
