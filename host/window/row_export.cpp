#include "window/row_export.h"

#include "base/services.h"
#include "model/view.h"
#include "window/window.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

namespace znhost {

namespace {

constexpr std::int64_t toTheEnd = std::numeric_limits<std::int64_t>::max();

/// The first of some rows that follow each other, and how many they are.
using Range = std::pair<std::int64_t, std::int64_t>;

std::vector<Range> SelectedRanges(RowModel& rows) {
    std::vector<Range> ranges;
    for (const std::uint32_t index : rows.SelectedRows()) {
        const std::int64_t position = rows.PositionOf(index);
        if (!ranges.empty() && position == ranges.back().first + ranges.back().second)
            ++ranges.back().second;
        else
            ranges.emplace_back(position, 1);
    }
    return ranges;
}

std::string TextOf(const RowCell& cell) {
    std::string text;
    for (const CellElement& element : cell.elements) {
        if (element.kind == CellElement::Icon || element.kind == CellElement::DisabledIcon) continue;
        if (!text.empty() && !element.text.empty()) text += ' ';
        text += element.text;
    }
    return text;
}

class Export {
public:
    Export(Window& window, const ExportedRows& which, ExportFormat format, HostServices& services,
           const std::function<bool(std::string_view)>& write)
        : rows_(window.Rows()), which_(which), services_(services), isLines_(format == ExportFormat::Lines),
          border_(format == ExportFormat::Csv ? ',' : '\t'), write_(write) {
        if (!window.ShownView()) return;
        for (const std::shared_ptr<Column>& column : window.ShownView()->Columns()) {
            if (column->IsShown()) columns_.push_back(column);
        }
    }

    bool WriteCaptions() {
        line_.clear();
        for (const auto& column : columns_) Add(column->Caption());
        return WriteLine();
    }

    void Write(const Range& range) {
        rows_.ReadEach(range.first, range.second, [&](const RowLook& look) {
            if (IsBehind(look)) return false;
            failed_ = !MayGoOn() || !(isLines_ ? Add(look.index) : WriteRow(look));
            return !failed_;
        });
    }
    /// Lines need not be looked at.
    void Write(const std::vector<std::uint32_t>& indices) {
        for (std::size_t i = 0; !failed_ && i < indices.size(); ++i) failed_ = !Add(indices[i]);
    }
    /// @return how many were written; nothing when one could not be
    std::optional<std::int64_t> Finish() {
        failed_ = failed_ || !WriteLines();
        if (failed_) return std::nullopt;
        return count_;
    }
    bool HasFailed() const { return failed_; }
    /// Why a line could not be made.
    const std::string& Error() const { return error_; }
    /// Rows that do not lie below one of that depth are not written.
    void KeepBelow(std::int64_t depth) { depth_ = depth; }

private:
    bool IsBehind(const RowLook& look) const { return std::int64_t{look.depth} <= depth_; }
    bool MayGoOn() const { return services_.WhyStop().empty(); }

    bool Add(std::uint32_t index) {
        added_.push_back(index);
        return added_.size() < atOnce || WriteLines();
    }

    bool WriteLines() {
        const std::vector<std::uint32_t> added = std::exchange(added_, {});
        const auto take = [this](std::string_view line) {
            ++count_;
            return MayGoOn() && write_(line);
        };
        return added.empty() || which_.linesOf(added, take, error_);
    }

    bool WriteRow(const RowLook& look) {
        line_.clear();
        for (const auto& column : columns_) {
            const auto isOfColumn = [&](const RowCell& cell) { return cell.column == column.get(); };
            const auto cell = std::find_if(look.cells.begin(), look.cells.end(), isOfColumn);
            if (cell != look.cells.end())
                Add(TextOf(*cell));
            else
                Add(column->Kind() == ColumnKind::BuiltIn ? look.text : std::string());
        }
        ++count_;
        return WriteLine();
    }

    void Add(const std::string& text) {
        const char special[] = {border_, '\n', '\r', '"', '\0'};
        if (text.find_first_of(special) == text.npos) {
            line_ += text;
        } else {
            line_ += '"';
            for (const char character : text) line_.append(character == '"' ? 2 : 1, character);
            line_ += '"';
        }
        line_ += border_;
    }

    bool WriteLine() {
        if (line_.empty()) line_ += border_;
        line_.back() = '\n';
        return write_(line_);
    }

    static constexpr std::size_t atOnce = 1000;

    RowModel& rows_;
    const ExportedRows& which_;
    const HostServices& services_;
    const bool isLines_;
    const char border_;
    const std::function<bool(std::string_view)>& write_;
    std::vector<std::shared_ptr<Column>> columns_;
    std::string line_;
    std::vector<std::uint32_t> added_; ///< rows whose lines are not made yet
    std::int64_t count_ = 0;
    std::string error_;
    std::int64_t depth_ = -1;
    bool failed_ = false;
};

/// While one lives the rows that are wanted are open.
class Opened {
public:
    Opened(RowModel& rows, const ExportedRows& which) : rows_(rows), deep_(which.deep) {
        if (deep_) {
            before_ = rows_.Expanded();
            selected_ = rows_.SelectedContainers();
        }
        if (deep_ && which.which == ExportedRows::All) rows_.ExpandAll();
        if (which.which != ExportedRows::Below) return;
        deep_ ? rows_.ExpandAllBelow(which.index) : rows_.Expand(which.index);
    }
    ~Opened() {
        if (deep_) rows_.BringBack(std::move(before_), std::move(selected_));
    }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;

private:
    RowModel& rows_;
    const bool deep_;
    std::vector<KeptRow> before_;
    std::vector<KeptRow> selected_;
};

} // namespace

std::optional<std::int64_t> ExportRows(Window& window, const ExportedRows& which, ExportFormat format,
                                       HostServices& services,
                                       const std::function<bool(std::string_view)>& write,
                                       std::string& error) {
    RowModel& rows = window.Rows();
    const Opened opened(rows, which);
    const RowModel::Answering answering(rows);
    rows.TakeTrouble();
    Export writer(window, which, format, services, write);
    const bool areLines = format == ExportFormat::Lines;
    std::vector<Range> ranges{{0, toTheEnd}};
    if (which.which == ExportedRows::Selected)
        ranges = areLines ? std::vector<Range>() : SelectedRanges(rows);
    if (which.which == ExportedRows::Below) {
        const std::int64_t position = rows.PositionOf(which.index);
        for (const RowLook& look : rows.Read(position, 1)) writer.KeepBelow(look.depth);
        ranges = {{position + 1, toTheEnd}};
    }
    const bool hasCaptions = format == ExportFormat::Csv || format == ExportFormat::Tsv;
    if (hasCaptions && !writer.WriteCaptions()) return std::nullopt;
    for (const Range& range : ranges) {
        if (!writer.HasFailed()) writer.Write(range);
    }
    if (areLines && which.which == ExportedRows::Selected) writer.Write(rows.SelectedRows());
    const std::optional<std::int64_t> count = writer.Finish();
    error = services.WhyStop();
    if (error.empty()) error = writer.Error();
    if (error.empty()) error = rows.TakeTrouble();
    if (error.empty() && rows.IsStopped()) error = "what is shown has changed meanwhile";
    if (!error.empty()) return std::nullopt;
    return count;
}

} // namespace znhost
