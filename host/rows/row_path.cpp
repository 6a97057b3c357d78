#include "rows/row_path.h"

#include "model/data_sources.h"

#include <algorithm>
#include <set>
#include <utility>

namespace znhost {

namespace {

/// Looks for one item, from the containers at the top.
class Way {
public:
    Way(const RowPlan& plan, CallLog& log, const std::string& source, std::int64_t row)
        : plan_(plan), log_(log), source_(source), row_(row) {}

    /// Whether there is a way through what stands in a container; then it is behind `path`. Where the item
    /// stands by itself, or below others of its kind, is looked for first.
    bool Through(const RowContent& container, bool belowOthers, std::vector<RowStep>& path) {
        const std::vector<RowContent> contents = plan_.Below(container);
        return std::any_of(contents.begin(), contents.end(),
                           [&](const RowContent& content) { return Into(content, belowOthers, path); });
    }

private:
    /// An item on the way, and along which link it lies below the one before.
    struct Stage {
        RowSource* source;
        std::int64_t row;
        RowLink link;
    };

    bool Into(const RowContent& content, bool belowOthers, std::vector<RowStep>& path) {
        if (content.IsNote()) return false;
        if (content.kind == RowKind::Item) return InBlock(content, belowOthers, path);
        path.push_back({content, 0});
        if (Through(content, belowOthers, path)) return true;
        path.pop_back();
        return false;
    }

    bool Is(RowSource* source) { return NameOf(log_, source->GetSource()) == source_; }

    bool InBlock(const RowContent& block, bool belowOthers, std::vector<RowStep>& path) {
        RowSource* wanted = Is(block.source) ? block.source : nullptr;
        for (const RowLink& link : block.scope->links) {
            if (belowOthers && !wanted && Is(link.child)) wanted = link.child;
        }
        if (!wanted || !wanted->HasRow(row_)) return false;
        seen_.clear();
        stages_.clear();
        return Climb(block, {wanted, row_, {}}, belowOthers) && Descend(block, path);
    }

    /// Whether the block has the item, or one above it; then the stages lead from there, the last one first.
    bool Climb(const RowContent& block, const Stage& stage, bool belowOthers) {
        if (seen_.size() >= mostSeen || !seen_.insert({stage.source, stage.row}).second) return false;
        stages_.push_back(stage);
        if (stage.source == block.source && IsAtTop(block, stage.row)) return true;
        for (const RowLink& link : block.scope->links) {
            if (link.child != stage.source || (!belowOthers && link.parent != link.child)) continue;
            std::vector<std::int64_t> above;
            stage.source->Parents(link, {stage.row}, above);
            stages_.back().link = link;
            for (const std::int64_t row : above) {
                if (Climb(block, {link.parent, row, {}}, belowOthers)) return true;
            }
        }
        stages_.pop_back();
        return false;
    }

    static bool IsAtTop(const RowContent& block, std::int64_t row) {
        if (!block.top || !block.link.reference) return true;
        std::vector<std::int64_t> above;
        block.source->Parents(block.link, {row}, above);
        return above.empty();
    }

    bool Descend(RowContent content, std::vector<RowStep>& path) {
        for (auto stage = stages_.rbegin(); stage != stages_.rend(); ++stage) {
            path.push_back({content, stage->row});
            const auto next = stage + 1;
            if (next != stages_.rend() && !Below(content, stage->row, next->link, path)) return false;
        }
        return true;
    }

    /// What holds the rows below a row along the link, through the group in which they may stand.
    bool Below(RowContent& content, std::int64_t row, const RowLink& link, std::vector<RowStep>& path) {
        for (const RowContent& below : plan_.Below(content, row)) {
            if (!(below.link == link)) continue;
            content = below;
            if (below.kind == RowKind::Item) return true;
            path.push_back({below, 0});
            content = plan_.Below(below).front();
            return true;
        }
        return false;
    }

    static constexpr std::size_t mostSeen = 10000; ///< a way that is longer nobody wants to see opened

    const RowPlan& plan_;
    CallLog& log_;
    const std::string& source_;
    const std::int64_t row_;
    std::set<std::pair<const RowSource*, std::int64_t>> seen_;
    std::vector<Stage> stages_;
};

} // namespace

std::vector<RowStep> PathToItem(RowModel& rows, const std::string& source, std::int64_t row) {
    const RowModel::Answering answering(rows);
    std::vector<RowStep> path;
    if (!rows.Top().folder) return path;
    Way way(rows.Plan(), rows.Log(), source, row);
    if (!way.Through(rows.Top(), false, path)) way.Through(rows.Top(), true, path);
    return path;
}

} // namespace znhost
