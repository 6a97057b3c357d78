// What the filters let through, and searches ahead of them.
#include "model/data_sources.h"
#include "model/view.h"
#include "rows/row_plan.h"
#include "rows/text_matcher.h"

#include <algorithm>

namespace znhost {

/// The rows that fulfil the filters of all columns, and hold the text.
void RowPlan::Match(RowSource& source, std::vector<std::int64_t>& rows) const {
    const TextFilter& filter = view_.Filter();
    const std::optional<RowSet> fulfilling = Fulfilling(source);
    if (filter.pattern.empty() && fulfilling) {
        rows = fulfilling->ToVector();
        return;
    }
    RowSet matches = Matches(source, filter);
    if (fulfilling) matches.Narrow(*fulfilling);
    rows = matches.ToVector();
}

const RowSet& RowPlan::Matches(RowSource& source, const TextFilter& filter) const {
    return matches_.Of(source, filter, Asked(filter));
}

FilterMatches::Asked RowPlan::Asked(const TextFilter& filter) const {
    return {[this] { return IsStopped(); },
            [this, filter](RowSource& source) { return SearchedIn(source, filter); }};
}

/// What the filter of a column asks of the values of a property; null: of the items' texts.
RowCondition RowPlan::ConditionFor(const ColumnFilter& filter, znIBrowserDataProperty* property) {
    using Kind = ColumnFilter::Kind;
    RowCondition condition;
    condition.property = property;
    condition.value = filter.value;
    if (filter.kind == Kind::Null) condition.compare = RowCondition::Compare::Null;
    if (filter.kind == Kind::Between) condition.compare = RowCondition::Compare::AtLeast;
    if (filter.kind == Kind::Equals) condition.compare = RowCondition::Compare::Equal;
    if (filter.kind != Kind::Contains) return condition;
    const auto matcher = std::make_shared<TextMatcher>(filter.value, TextMatcher::Options());
    condition.holds = matcher->Held();
    condition.accept = [matcher](std::string_view text) { return matcher->Matches(text); };
    return condition;
}

/// The rows with values that the filters of all columns let through; nothing when no column has one.
std::optional<RowSet> RowPlan::Fulfilling(RowSource& source) const {
    RowQuery query;
    bool isSet = false;
    bool hasAll = true;
    for (const std::shared_ptr<Column>& column : view_.Columns()) {
        const ColumnFilter& filter = column->Filter();
        if (!filter.IsSet()) continue;
        isSet = true;
        const Style* const style = view_.RootFolder().ItemStyleIn(*column, source.GetSource());
        ViewProperty* const property = PropertyOf(*column, style);
        znIBrowserDataProperty* const data = property ? property->DataProperty(source.GetSource()) : nullptr;
        hasAll = hasAll && (property ? data != nullptr : column->Kind() == ColumnKind::BuiltIn);
        query.conditions.push_back(ConditionFor(filter, data));
        if (filter.kind != ColumnFilter::Kind::Between) continue;
        query.conditions.push_back(query.conditions.back());
        query.conditions.back().compare = RowCondition::Compare::AtMost;
        query.conditions.back().value = filter.to;
    }
    if (!isSet) return std::nullopt;
    std::vector<std::int64_t> rows;
    if (hasAll) source.List(query, rows);
    RowSet set;
    set.Add(std::move(rows));
    return set;
}

/// What the filter looks at in the rows of a source.
SearchedProperties RowPlan::SearchedIn(RowSource& source, const TextFilter& filter) const {
    if (!filter.allColumns) return {nullptr};
    SearchedProperties all;
    for (FreeFolder* const folder : view_.RootFolder().WithBelow()) AddShownProperties(*folder, source, all);
    return all;
}

/// What is ticked is no text to look for.
void RowPlan::AddShownProperties(const FreeFolder& folder, RowSource& source, SearchedProperties& all) const {
    for (const std::shared_ptr<Column>& column : view_.Columns()) {
        if (!column->IsShown()) continue;
        const Style* const style = folder.ItemStyleIn(*column, source.GetSource());
        std::vector<ViewProperty*> shown{PropertyOf(*column, style)};
        if (style) {
            for (const std::shared_ptr<StyleElement>& element : style->Elements())
                shown.push_back(view_.Properties().Find(element->PropertyName()));
        }
        for (ViewProperty* const property : shown) {
            if (property ? property->Type() == ZNBROWSER_DATA_BOOL : column->Kind() != ColumnKind::BuiltIn)
                continue;
            znIBrowserDataProperty* const data =
                property ? property->DataProperty(source.GetSource()) : nullptr;
            if (property && !data) continue;
            if (std::find(all.begin(), all.end(), data) == all.end()) all.push_back(data);
        }
    }
}

// ---- A search ahead ----

void RowPlan::BeginSearch(const TextFilter& filter) {
    std::vector<SearchTask> tasks;
    for (znIBrowserDataSourceSimple* const simple : view_.ShowableSources()) {
        RowSource* const source = GetRowSource(simple);
        if (source && IsShown(source)) tasks.push_back({source, SearchedIn(*source, filter)});
    }
    matches_.Begin(filter, std::move(tasks));
}

SearchProgress RowPlan::GoOnSearching(std::chrono::milliseconds time) {
    if (matches_.IsStale()) BeginSearch(TextFilter(matches_.Wanted()));
    return matches_.GoOn(FilterMatches::Clock::now() + time, Asked(matches_.Wanted()));
}

std::int64_t RowPlan::CountMatches() const {
    std::map<const RowSource*, std::size_t> counts;
    for (const auto& [place, filter] : filters_) {
        for (const auto& [source, count] : filter->CountMatches())
            counts[source] = std::max(counts[source], count);
    }
    std::size_t sum = 0;
    for (const auto& [source, count] : counts) sum += count;
    return static_cast<std::int64_t>(sum);
}

} // namespace znhost
