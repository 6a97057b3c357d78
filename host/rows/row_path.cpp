#include "rows/row_path.h"

#include "base/row_set.h"
#include "model/data_sources.h"

#include <algorithm>

namespace znhost {

namespace {

/// Looks for one item.
class Way {
public:
    Way(const RowPlan& plan, CallLog& log, const std::string& source, std::int64_t row)
        : plan_(plan), log_(log), source_(source), row_(row) {}

    /// Whether there is a way through what stands in a container; then it is behind `path`.
    bool Through(const RowContent& container, std::vector<RowStep>& path) {
        const std::vector<RowContent> contents = plan_.Below(container);
        return std::any_of(contents.begin(), contents.end(),
                           [&](const RowContent& content) { return Into(content, path); });
    }

private:
    bool Into(const RowContent& content, std::vector<RowStep>& path) {
        if (content.IsNote()) return false;
        if (content.kind == RowKind::Item) return InBlock(content, path);
        path.push_back({content, 0});
        if (Through(content, path)) return true;
        path.pop_back();
        return false;
    }

    bool InBlock(const RowContent& block, std::vector<RowStep>& path) {
        if (NameOf(log_, block.source->GetSource()) != source_ || !block.source->HasRow(row_)) return false;
        const std::vector<std::int64_t> way = RowsAbove(block);
        RowContent content = block;
        for (auto row = way.rbegin(); row != way.rend(); ++row) {
            path.push_back({content, *row});
            if (row + 1 != way.rend() && !Below(content, *row, block, path)) return false;
        }
        return true;
    }

    /// The item and those above it along the reference by which the rows of the block nest, from below.
    std::vector<std::int64_t> RowsAbove(const RowContent& block) const {
        std::vector<std::int64_t> way{row_};
        RowSet seen;
        std::vector<std::int64_t> above;
        while (block.top && block.link.reference && seen.Add(way.back())) {
            block.source->Parents(block.link, {way.back()}, above);
            if (above.empty()) break;
            way.push_back(above.front());
        }
        return way;
    }

    /// What holds the rows of the same kind below a row, through the group in which they may stand.
    bool Below(RowContent& content, std::int64_t row, const RowContent& block, std::vector<RowStep>& path) {
        for (const RowContent& below : plan_.Below(content, row)) {
            if (below.source != block.source || below.link.reference != block.link.reference) continue;
            content = below;
            if (below.kind == RowKind::Item) return true;
            path.push_back({below, 0});
            content = plan_.Below(below).front();
            return true;
        }
        return false;
    }

    const RowPlan& plan_;
    CallLog& log_;
    const std::string& source_;
    const std::int64_t row_;
};

} // namespace

std::vector<RowStep> PathToItem(RowModel& rows, const std::string& source, std::int64_t row) {
    const RowModel::Answering answering(rows);
    std::vector<RowStep> path;
    if (!rows.Top().folder) return path;
    Way(rows.Plan(), rows.Log(), source, row).Through(rows.Top(), path);
    return path;
}

} // namespace znhost
