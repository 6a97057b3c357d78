#include "rows/filter_matches.h"

#include "base/text.h"
#include "rows/text_matcher.h"

#include <algorithm>

namespace znhost {

namespace {

/// What so many texts found is kept: who takes letters back finds it.
constexpr std::size_t mostKept = 12;

bool HasWildcard(const std::string& pattern) { return pattern.find_first_of("*?") != pattern.npos; }

} // namespace

bool AddsTo(const TextFilter& narrow, const TextFilter& wide) {
    if (narrow.matchCase != wide.matchCase || narrow.matchWord || wide.matchWord) return false;
    if (HasWildcard(narrow.pattern) || HasWildcard(wide.pattern)) return false;
    if (narrow.matchCase) return narrow.pattern.find(wide.pattern) != std::string::npos;
    return Fold(narrow.pattern).find(Fold(wide.pattern)) != std::string::npos;
}

/// What is known of the text, or the beginning of a search for it.
FilterMatches::Known& FilterMatches::Find(RowSource& source, const TextFilter& filter,
                                          const SearchedProperties& properties) {
    Results& results = known_[&source];
    const std::uint64_t version = source.Version();
    results.remove_if([version](const Known& known) {
        return known.version != version || known.scan.failed || known.broken;
    });
    const Known* widest = nullptr;
    for (Known& known : results) {
        if (known.properties != properties) continue;
        if (known.filter == filter) return known;
        const bool isBetter = !widest || known.rows->Size() < widest->rows->Size();
        if (known.scan.done && isBetter && AddsTo(filter, known.filter)) widest = &known;
    }
    Known known;
    known.filter = filter;
    known.properties = properties;
    known.version = version;
    known.rows = std::make_shared<RowSet>();
    if (widest) known.among = widest->rows;
    known.scan.among = known.among.get();
    for (znIBrowserDataProperty* const property : properties)
        (source.IsStored(property) ? known.scan.properties : known.computed).push_back(property);
    TextMatcher::Options options;
    options.matchCase = filter.matchCase;
    options.matchWord = filter.matchWord;
    options.glob = true;
    const auto matcher = std::make_shared<TextMatcher>(filter.pattern, options);
    known.scan.holds = matcher->Held();
    known.scan.accept = [matcher](std::size_t, std::string_view text) { return matcher->Matches(text); };
    results.push_front(std::move(known));
    if (results.size() > mostKept) results.pop_back();
    return results.front();
}

const RowSet& FilterMatches::Of(RowSource& source, const TextFilter& filter, const Asked& asked) {
    Known& known = Find(source, filter, asked.properties(source));
    if (!IsSearching(filter)) Run(source, known, Clock::time_point::max(), asked);
    return *known.rows;
}

/// Values that scripts compute are asked for when no statement is open any more.
void FilterMatches::Run(RowSource& source, Known& known, Clock::time_point until, const Asked& asked) {
    constexpr auto slice = std::chrono::milliseconds(2);
    known.broken = true;
    while (!known.scan.done && !known.scan.failed) {
        const bool computes = !known.computed.empty();
        std::vector<std::int64_t> found;
        std::vector<std::int64_t> others;
        source.Scan(known.scan, computes ? std::min(until, Clock::now() + slice) : until, found,
                    computes ? &others : nullptr);
        if (computes) Compute(source, known, std::move(others), found, asked);
        if (!found.empty()) known.rows->Add(std::move(found));
        if (Clock::now() >= until) break;
    }
    known.broken = false;
}

/// Of each property in turn, as the others may be gone when its script has run.
void FilterMatches::Compute(RowSource& source, Known& known, std::vector<std::int64_t> rows,
                            std::vector<std::int64_t>& found, const Asked& asked) {
    RowSet left;
    left.Add(std::move(rows));
    for (znIBrowserDataProperty* const property : known.computed) {
        if (left.IsEmpty()) return;
        if (!asked.stopped()) {
            const SearchedProperties now = asked.properties(source);
            known.scan.failed = std::find(now.begin(), now.end(), property) == now.end();
        }
        if (known.scan.failed || asked.stopped()) break;
        RowQuery query;
        query.conditions.emplace_back();
        query.conditions.back().property = property;
        query.conditions.back().accept = [&known](std::string_view text) {
            return known.scan.accept(0, text);
        };
        query.among = &left;
        std::vector<std::int64_t> hits;
        source.List(query, hits);
        left.Remove(hits);
        found.insert(found.end(), hits.begin(), hits.end());
    }
    if (asked.stopped()) known.scan.failed = true;
}

// ---- A search ahead ----

void FilterMatches::Begin(TextFilter filter, std::vector<SearchTask> tasks) {
    searching_ = true;
    stale_ = false;
    wanted_ = std::move(filter);
    tasks_ = std::move(tasks);
}

SearchProgress FilterMatches::GoOn(Clock::time_point until, const Asked& asked) {
    SearchProgress progress;
    progress.done = true;
    for (const SearchTask& task : tasks_) {
        if (asked.stopped()) break;
        Known& known = Find(*task.source, wanted_, task.properties);
        if (Clock::now() < until) Run(*task.source, known, until, asked);
        progress.looked += known.scan.looked;
        progress.found += static_cast<std::int64_t>(known.rows->Size());
        if (!known.scan.done && !known.scan.failed) progress.done = false;
    }
    if (progress.done) {
        searching_ = false;
        tasks_.clear();
    }
    return progress;
}

} // namespace znhost
