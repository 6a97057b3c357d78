#include "rows/row_finder.h"

#include "base/services.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "model/browser.h"
#include "model/view.h"
#include "rows/text_matcher.h"

#include <algorithm>
#include <cstdlib>

namespace znhost {

namespace {

/// What is found may be reached in several ways. More rows than this nobody looks through.
constexpr std::size_t mostEntries = 8'000'000;

bool IsNumber(ZNBROWSER_DATA_TYPE type) {
    return type == ZNBROWSER_DATA_BOOL || type == ZNBROWSER_DATA_UNSIGNED || type == ZNBROWSER_DATA_INT ||
           type == ZNBROWSER_DATA_DOUBLE;
}

/// The text as a number: "true" and "false" too.
bool ReadNumber(std::string& text) {
    if (text == "true" || text == "false") text = text == "true" ? "1" : "0";
    char* end = nullptr;
    std::strtod(text.c_str(), &end);
    return !text.empty() && end == text.c_str() + text.size();
}

/// How a value is to match. False, with the reason, when the criterion cannot be used.
bool MakeCondition(const znBrowserCriterion& criterion, ZNBROWSER_DATA_TYPE type, RowCondition& condition,
                   std::string& error) {
    condition.value = criterion.value.Str();
    const bool isText = criterion.useregexp || !IsNumber(type) || !ReadNumber(condition.value);
    if (criterion.type == ZNBROWSER_CRITERION_MORE_THAN || criterion.type == ZNBROWSER_CRITERION_LESS_THAN) {
        const bool isMore = criterion.type == ZNBROWSER_CRITERION_MORE_THAN;
        condition.compare = isMore ? RowCondition::Compare::More : RowCondition::Compare::Less;
        return true;
    }
    if (!isText) {
        condition.compare = RowCondition::Compare::Equal;
        return true;
    }
    TextMatcher::Options options;
    options.matchCase = criterion.matchcase;
    options.matchWord = criterion.matchword;
    options.regexp = criterion.useregexp;
    const auto matcher = std::make_shared<TextMatcher>(criterion.value.View(), options);
    error = matcher->GetError();
    condition.holds = matcher->Held();
    condition.accept = [matcher](std::string_view text) { return matcher->Matches(text); };
    return error.empty();
}

} // namespace

bool operator==(const FindCriterion& a, const FindCriterion& b) {
    const znBrowserCriterion& x = a.criterion;
    const znBrowserCriterion& y = b.criterion;
    return a.property == b.property && x.type == y.type && x.value == y.value && x.matchcase == y.matchcase &&
           x.matchword == y.matchword && x.useregexp == y.useregexp;
}

RowFinder::RowFinder(View& view, RowModel& model, std::vector<FindCriterion> criteria)
    : model_(model), criteria_(std::move(criteria)) {
    const ReadTrouble::Watch watch(view.Owner().Services().Trouble());
    const RowModel::Answering answering(model); // may run a script that deletes the view
    revision_ = model.Revision();
    if (!model.IsStopped() && Prepare(view)) Walk(view.Owner().Services());
    if (watch.Seen() && error_.empty()) error_ = watch.Text();
    if (model.IsStopped()) error_ = "What was to be searched has been deleted";
}

bool RowFinder::IsUpToDate(const std::vector<FindCriterion>& criteria) const {
    const RowModel::Answering answering(model_);
    return error_.empty() && revision_ == model_.Revision() && criteria == criteria_;
}

// ---- What matches ----

bool RowFinder::Prepare(const View& view) {
    if (criteria_.empty()) error_ = "There is nothing to look for";
    for (const FindCriterion& wanted : criteria_) {
        ViewProperty* const property = view.Properties().Find(wanted.property);
        if (!property && wanted.property != Column::builtInName) {
            error_ = "The view \"" + view.Name() + "\" has no property \"" + wanted.property + "\"";
            return false;
        }
        tests_.emplace_back(RowCondition(), property ? property->shared_from_this() : nullptr);
        const ZNBROWSER_DATA_TYPE type = property ? property->Type() : ZNBROWSER_DATA_STRING;
        if (!MakeCondition(wanted.criterion, type, tests_.back().first, error_)) return false;
    }
    return error_.empty();
}

bool RowFinder::ConditionsFor(RowSource& source, std::vector<RowCondition>& conditions) const {
    for (const auto& [condition, property] : tests_) { // a deleted property has no values any more
        conditions.push_back(condition);
        if (!property) continue;
        conditions.back().property = property->DataProperty(source.GetSource());
        if (!conditions.back().property) return false;
    }
    return true;
}

void RowFinder::Match(RowSource& source, std::vector<std::int64_t>& rows) const {
    RowQuery query;
    if (const std::optional<TextFilter> filter = AsFilter()) {
        rows = model_.Plan().Matches(source, *filter).ToVector();
    } else if (ConditionsFor(source, query.conditions)) {
        source.List(query, rows);
    }
}

/// What a filter on the items' texts would look for; nothing when that is not what is looked for.
std::optional<TextFilter> RowFinder::AsFilter() const {
    const znBrowserCriterion& criterion = criteria_[0].criterion;
    const bool compares =
        criterion.type == ZNBROWSER_CRITERION_MORE_THAN || criterion.type == ZNBROWSER_CRITERION_LESS_THAN;
    const std::string pattern = criterion.value.Str();
    if (criteria_.size() != 1 || tests_[0].second || compares || criterion.useregexp) return std::nullopt;
    if (pattern.find_first_of("*?") != pattern.npos) return std::nullopt;
    return TextFilter{pattern, criterion.matchcase, criterion.matchword, false};
}

std::shared_ptr<const RowFilter> RowFinder::FilterFor(const RowContent& block) {
    std::shared_ptr<const RowFilter>& filter = filters_[{block.scope.get(), block.source}];
    if (!filter) {
        filter = std::make_shared<RowFilter>(
            std::vector<RowSource*>{block.source}, block.scope->links,
            [this](RowSource& source, std::vector<std::int64_t>& rows) { Match(source, rows); },
            block.scope->display.get(), [this] { return model_.IsStopped(); });
    }
    return filter;
}

// ---- The walk ----

void RowFinder::Walk(const HostServices& services) {
    constexpr std::size_t stepsBetweenQuestions = 4096;
    std::size_t steps = 0;
    frames_.push_back({});
    frames_.back().contents = model_.Plan().Below(model_.Top());
    while (!frames_.empty() && !model_.IsStopped() && entries_.size() < mostEntries) {
        if (++steps % stepsBetweenQuestions == 0 && !(error_ = services.WhyStop()).empty()) return;
        Frame& frame = frames_.back();
        if (frame.nextRow < frame.rows.size()) {
            WalkRow(frame);
        } else if (frame.next < frame.contents.size()) {
            WalkContent(frame);
        } else {
            if (frame.item.first) way_.erase(frame.item);
            frames_.pop_back();
        }
    }
    frames_.clear();
    way_.clear();
    filters_.clear();
}

std::uint32_t RowFinder::AddEntry(std::uint32_t above, std::uint32_t content, std::int64_t row) {
    const auto entry = static_cast<std::uint32_t>(entries_.size());
    entries_.push_back({frames_.size() > 1 ? above : entry, content, row});
    return entry;
}

void RowFinder::WalkContent(Frame& frame) {
    const RowContent& content = frame.contents[frame.next++];
    frame.content = static_cast<std::uint32_t>(contents_.size());
    contents_.push_back(content);
    if (content.kind != RowKind::Item) {
        Frame below;
        below.above = AddEntry(frame.above, frame.content, 0);
        below.contents = model_.Plan().Below(content);
        frames_.push_back(std::move(below));
        return;
    }
    frame.filter = FilterFor(content);
    if (model_.IsStopped()) return;
    frame.rows = model_.Plan().List(content, frame.filter->Kept(content.source));
    frame.nextRow = 0;
}

void RowFinder::WalkRow(Frame& frame) {
    const RowContent& block = frame.contents[frame.next - 1];
    const std::int64_t row = frame.rows[frame.nextRow++];
    const std::uint32_t entry = AddEntry(frame.above, frame.content, row);
    if (frame.filter->IsMatch(block.source, row)) hits_.push_back(entry);
    const std::vector<RowLink>& links = block.scope->links;
    const bool leads = std::any_of(links.begin(), links.end(), [&](const RowLink& link) {
        return link.parent == block.source && frame.filter->KeepsBelow(link, row);
    });
    if (!leads || !way_.insert({block.source, row}).second)
        return; // an item below itself is not walked again
    Frame below;
    below.above = entry;
    below.item = {block.source, row};
    below.contents = model_.Plan().Below(block, row);
    frames_.push_back(std::move(below));
}

// ---- The hits ----

znBrowserDataItem RowFinder::Item(std::size_t hit) const {
    const Entry& entry = entries_[hits_[hit]];
    return {contents_[entry.content].source->GetSource(), entry.row};
}

std::vector<RowStep> RowFinder::PathTo(std::size_t hit) const {
    std::vector<RowStep> path;
    for (std::uint32_t at = hits_[hit];; at = entries_[at].above) {
        path.push_back({contents_[entries_[at].content], entries_[at].row});
        if (entries_[at].above == at) break;
    }
    std::reverse(path.begin(), path.end());
    return path;
}

/// The hit after or before the first selected item that leads to one; not that item again, where it is shown
/// twice.
std::size_t RowFinder::NextToSelected(bool forward, const View& view) const {
    const std::size_t count = hits_.size();
    const auto selected = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
        const RowContent& content = contents_[entry.content];
        return content.kind == RowKind::Item &&
               view.Selected().IsSelected(content.source->GetSource(), entry.row);
    });
    if (selected == entries_.end()) return forward ? 0 : count - 1;
    const auto at = static_cast<std::uint32_t>(selected - entries_.begin());
    const auto hit = forward ? std::upper_bound(hits_.begin(), hits_.end(), at)
                             : std::lower_bound(hits_.begin(), hits_.end(), at);
    const std::size_t step = forward ? 1 : count - 1;
    std::size_t next = (static_cast<std::size_t>(hit - hits_.begin()) + (forward ? 0 : count - 1)) % count;
    for (std::size_t tries = 1; tries < count && view.Selected().IsSelected(Item(next)); ++tries) {
        next = (next + step) % count;
    }
    return next;
}

void RowFinder::GoOnFrom(const RowFinder& earlier) {
    if (!earlier.hasLast_) return;
    const std::vector<RowStep> path = earlier.PathTo(earlier.last_);
    const auto isSame = [](const RowStep& a, const RowStep& b) {
        return a.row == b.row && a.content.IsSame(b.content);
    };
    for (std::size_t hit = 0; hit < hits_.size() && !hasLast_; ++hit) {
        if (entries_[hits_[hit]].row != path.back().row) continue;
        const std::vector<RowStep> steps = PathTo(hit);
        hasLast_ = std::equal(steps.begin(), steps.end(), path.begin(), path.end(), isSame);
        last_ = hit;
    }
}

std::size_t RowFinder::Next(bool forward, const View& view) {
    const std::size_t count = hits_.size();
    const bool goesOn = hasLast_ && view.Selected().IsSelected(Item(last_));
    last_ = goesOn ? (last_ + (forward ? 1 : count - 1)) % count : NextToSelected(forward, view);
    hasLast_ = true;
    return last_;
}

} // namespace znhost
