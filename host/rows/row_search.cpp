// Looking for rows: by how their texts begin, by the names on the way to them, and for what a filter will
// leave.
#include "base/text.h"
#include "model/browser.h"
#include "model/view.h"
#include "rows/row_model.h"

#include <algorithm>
#include <charconv>

namespace znhost {

// ---- By how a text begins ----

/// What rows show in the column "Name", without the numbers behind containers.
std::vector<std::string> RowModel::TextsOf(const std::vector<Row>& rows) {
    std::vector<std::string> texts(rows.size());
    for (std::size_t first = 0; first < rows.size() && !stopped_;) {
        const Row& row = rows[first];
        if (!row.IsItem()) {
            texts[first++] = row.Content().IsNote() ? std::string() : CaptionOf(row.Content());
            continue;
        }
        std::vector<std::int64_t> numbers;
        std::size_t end = first;
        for (; end < rows.size() && rows[end].block == row.block; ++end)
            numbers.push_back(rows[end].Number());
        std::vector<std::string> names =
            cells_.ReadNames(row.Content(), numbers, [this] { return stopped_; });
        std::move(names.begin(), names.end(), texts.begin() + static_cast<std::ptrdiff_t>(first));
        first = end;
    }
    return texts;
}

RowModel::FoundBeginning RowModel::FindBeginning(const std::string& beginning, std::int64_t first,
                                                 std::chrono::milliseconds time) {
    constexpr std::size_t atOnce = 2000;
    const auto until = std::chrono::steady_clock::now() + time;
    const Answering answering(*this);
    if (!IsReady() || first < 0 || first >= tree_.Count()) return {};
    Row row = tree_.At(first);
    while (row && !stopped_) {
        std::vector<Row> rows;
        for (; row && rows.size() < atOnce; row = tree_.Next(row)) rows.push_back(row);
        const std::vector<std::string> texts = TextsOf(rows);
        const auto found = std::find_if(texts.begin(), texts.end(), [&](const std::string& text) {
            return BeginsWithFolded(text, beginning);
        });
        if (found != texts.end() && !stopped_) return {first + (found - texts.begin()), -1};
        first += static_cast<std::int64_t>(rows.size());
        if (row && std::chrono::steady_clock::now() >= until) return {-1, first};
    }
    return {};
}

// ---- By names ----

namespace {

/// A step of a path: the name, and which of the rows of that name; counted from 1.
std::pair<std::string, std::size_t> TakeStep(const std::string& step) {
    const std::size_t sign = step.rfind('#');
    std::size_t number = 0;
    if (sign != std::string::npos) {
        const char* const end = step.data() + step.size();
        const auto [stop, problem] = std::from_chars(step.data() + sign + 1, end, number);
        if (problem == std::errc() && stop == end && number > 0 && step[sign + 1] != '0')
            return {step.substr(0, sign), number};
    }
    return {step, 1};
}

} // namespace

/// The rows of a block with that text, in the order of the source.
std::vector<std::int64_t> RowModel::Named(const RowContent& block, const std::string& name) const {
    RowCondition condition;
    condition.holds = Fold(name);
    condition.accept = [&name](std::string_view text) { return text == name; };
    return plan_.ListFulfilling(block, condition);
}

/// The step that leads to a row from what it lies in.
std::string RowModel::StepTo(const Row& row) {
    std::string name = row.IsItem() ? std::string() : CaptionOf(row.Content());
    if (row.IsItem()) row.Content().source->GetText(row.Number(), name);
    std::size_t number = 1;
    for (const TreePart& part : row.Owner().parts) {
        if (part.node) {
            if (part.node.get() == row.node && !row.IsItem()) break;
            if (!part.node->content.IsNote() && CaptionOf(part.node->content) == name) ++number;
            continue;
        }
        RowSet same;
        same.Add(Named(part.block->content, name));
        part.block->rows.Look(same.ToVector());
        const SharedRows::Rows& rows = part.block->rows.Known();
        const bool isHere = part.block.get() == row.block;
        const auto end = isHere ? rows.begin() + row.position : rows.end();
        if (same.Size() > (isHere ? 1U : 0U))
            number += static_cast<std::size_t>(
                std::count_if(rows.begin(), end, [&](auto at) { return same.Has(at); }));
        if (isHere) break;
    }
    const bool looksNumbered = TakeStep(name).first != name;
    return number > 1 || looksNumbered ? name + '#' + std::to_string(number) : name;
}

std::vector<std::string> RowModel::PathOf(std::uint32_t index) {
    const Answering answering(*this);
    std::vector<std::string> path;
    for (Row row = Find(index); row; row = RowTree::RowOf(row.Owner())) path.push_back(StepTo(row));
    std::reverse(path.begin(), path.end());
    return path;
}

Row RowModel::FindStep(RowNode& node, const std::string& name, std::size_t number) {
    for (const TreePart& part : node.parts) {
        if (part.node) {
            if (part.node->content.IsNote() || CaptionOf(part.node->content) != name) continue;
            if (--number == 0) return RowTree::RowOf(*part.node);
            continue;
        }
        RowSet same;
        same.Add(Named(part.block->content, name));
        if (same.IsEmpty()) continue;
        part.block->rows.Look(same.ToVector());
        const SharedRows::Rows& rows = part.block->rows.Known();
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (same.Has(rows[i]) && --number == 0)
                return RowTree::ItemAt(*part.block, static_cast<std::uint32_t>(i));
        }
    }
    return {};
}

std::uint32_t RowModel::FindPath(const std::vector<std::string>& path, std::size_t& wrong) {
    const Answering answering(*this);
    wrong = 0;
    if (!IsReady()) return 0;
    RowNode* node = &tree_.Root();
    Row row;
    for (; wrong < path.size(); ++wrong) {
        const auto [name, number] = TakeStep(path[wrong]);
        row = node ? FindStep(*node, name, number) : Row();
        if (!row) return 0;
        node = row.node && row.node->expanded ? row.node : nullptr;
    }
    return row ? row.Index() : 0;
}

std::uint32_t RowModel::FirstSelected() {
    const Answering answering(*this);
    if (!IsReady() || CountSelected() == 0) return 0;
    LookFor(view_->Selected().Items());
    for (Row row = tree_.First(); row; row = tree_.Next(row)) {
        if (IsSelected(row)) return row.Index();
    }
    return 0;
}

// ---- What a filter will leave ----

void RowModel::BeginSearch(const TextFilter& filter) {
    const Answering answering(*this);
    if (view_ && !stopped_) plan_.BeginSearch(filter);
}

SearchProgress RowModel::GoOnSearching(std::chrono::milliseconds time) {
    const Answering answering(*this);
    if (!view_ || stopped_) return {true, 0, 0};
    const bool isShown = plan_.IsSearching(view_->Filter());
    const SearchProgress progress = plan_.GoOnSearching(time);
    if (progress.done && isShown) OnViewChanged(VIEW_FILTER);
    return progress;
}

std::int64_t RowModel::CountMatches() {
    const Answering answering(*this);
    return IsReady() && view_->IsFiltered() ? plan_.CountMatches() : 0;
}

} // namespace znhost
