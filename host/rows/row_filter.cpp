#include "rows/row_filter.h"

#include "rows/row_display.h"

#include <algorithm>
#include <utility>

namespace znhost {

RowFilter::RowFilter(const std::vector<RowSource*>& sources, const std::vector<RowLink>& links,
                     const Matches& matches, const RowDisplay* display,
                     const std::function<bool()>& isStopped)
    : links_(links), parents_(links.size()) {
    std::vector<RowSource*> all = sources;
    for (const RowLink& link : links) {
        all.push_back(link.parent);
        all.push_back(link.child);
    }
    std::sort(all.begin(), all.end());
    all.erase(std::unique(all.begin(), all.end()), all.end());
    std::vector<std::pair<RowSource*, std::vector<std::int64_t>>> found;
    for (RowSource* const source : all) {
        if (!source) continue;
        std::vector<std::int64_t> rows;
        matches(*source, rows);
        if (isStopped()) return;
        if (display) display->Narrow(source, rows);
        matches_[source].Add(rows);
        kept_[source].Add(rows);
        found.emplace_back(source, std::move(rows));
    }
    for (auto& [source, rows] : found) KeepParents(source, std::move(rows), display);
}

const RowSet& RowFilter::Of(const Sets& sets, const RowSource* source) {
    static const RowSet none;
    const auto set = sets.find(source);
    return set == sets.end() ? none : set->second;
}

std::map<const RowSource*, std::size_t> RowFilter::CountMatches() const {
    std::map<const RowSource*, std::size_t> counts;
    for (const auto& [source, rows] : matches_) counts.emplace(source, rows.Size());
    return counts;
}

/// Each item is looked at once: what is kept already has had its parents kept.
void RowFilter::KeepParents(RowSource* source, std::vector<std::int64_t> rows, const RowDisplay* display) {
    std::vector<std::pair<RowSource*, std::vector<std::int64_t>>> open;
    open.emplace_back(source, std::move(rows));
    while (!open.empty()) {
        const auto [child, children] = std::move(open.back());
        open.pop_back();
        for (std::size_t i = 0; i < links_.size(); ++i) {
            const RowLink& link = links_[i];
            if (link.child != child || children.empty()) continue;
            std::vector<std::int64_t> parents;
            child->Parents(link, children, parents);
            if (display) display->Narrow(link.parent, parents);
            parents_[i].Add(parents);
            RowSet& kept = kept_[link.parent];
            parents.erase(std::remove_if(parents.begin(), parents.end(),
                                         [&kept](std::int64_t row) { return kept.Has(row); }),
                          parents.end());
            kept.Add(parents);
            if (!parents.empty()) open.emplace_back(link.parent, std::move(parents));
        }
    }
}

bool RowFilter::KeepsBelow(const RowLink& link, std::int64_t parent) const {
    const auto found = std::find(links_.begin(), links_.end(), link);
    return found != links_.end() && parents_[static_cast<std::size_t>(found - links_.begin())].Has(parent);
}

} // namespace znhost
