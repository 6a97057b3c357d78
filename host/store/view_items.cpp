#include "store/view_items.h"

#include "model/data_sources.h"
#include "store/data_ctrl.h"
#include "store/link_reader.h"

#include <algorithm>

namespace znhost {

// Level by level: each row is entered once, so that circles end.
void ViewItems::AddBelow(const std::vector<RowLink>& links) {
    struct Step {
        SimpleSource* source;
        std::vector<std::int64_t> rows;
    };
    const auto leadsDown = [this](const RowLink& link) {
        return &SourceOf(*link.parent) == &source_ && &SourceOf(*link.child) != &source_;
    };
    if (std::none_of(links.begin(), links.end(), leadsDown)) return;
    std::vector<Step> steps(1);
    steps.front().source = &source_;
    source_.List({}, steps.front().rows);
    while (!steps.empty()) {
        const Step step = std::move(steps.back());
        steps.pop_back();
        for (const RowLink& link : links) {
            SimpleSource& child = SourceOf(*link.child);
            if (&SourceOf(*link.parent) != step.source || &child == &source_) continue;
            std::vector<std::int64_t> rows;
            LinkReader(link).RelatedToAny(LINK_CHILD, step.rows, rows);
            RowSet& known = below_[&child];
            RemoveWhere(rows, [&known](std::int64_t row) { return known.Has(row); });
            if (rows.empty()) continue;
            known.Add(rows);
            AddNew(sources_, &child);
            steps.push_back({&child, std::move(rows)});
        }
    }
}

std::vector<std::int64_t> ViewItems::List(SimpleSource& source, const RowQuery& query) const {
    std::vector<std::int64_t> rows;
    source.List(query, rows);
    const auto below = below_.find(&source);
    if (&source != &source_ && below != below_.end()) {
        RemoveWhere(rows, [&below](std::int64_t row) { return !below->second.Has(row); });
    }
    return rows;
}

} // namespace znhost
