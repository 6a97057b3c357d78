#include "window/row_drawing.h"

#include "base/text.h"
#include "model/view.h"
#include "window/window.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace znhost {

namespace {

constexpr std::size_t widest = 48; ///< longer texts are cut off

struct Range {
    char32_t first;
    char32_t last;
};

/// Characters that take two places on a terminal.
constexpr Range wideRanges[] = {{0x1100, 0x115F},   {0x2E80, 0x303E},  {0x3041, 0x33FF}, {0x3400, 0x4DBF},
                                {0x4E00, 0x9FFF},   {0xA000, 0xA4CF},  {0xAC00, 0xD7A3}, {0xF900, 0xFAFF},
                                {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},  {0xFFE0, 0xFFE6}, {0x1F300, 0x1F64F},
                                {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD}};

std::size_t PlacesOf(char32_t character) {
    const bool isWide =
        std::any_of(std::begin(wideRanges), std::end(wideRanges), [character](const Range& range) {
            return character >= range.first && character <= range.last;
        });
    const bool combines = character >= 0x300 && character <= 0x36F;
    return combines ? 0 : isWide ? 2 : 1;
}

/// A text of one line, and how many places it takes.
struct DrawnText {
    std::string text;
    std::size_t places = 0;

    DrawnText() = default;
    explicit DrawnText(const std::string& full) {
        for (std::string_view rest = full; !rest.empty();) {
            std::string_view behind = rest;
            const char32_t character = TakeCharacter(behind);
            const std::size_t more = PlacesOf(character);
            if (places + more > widest - (behind.empty() ? 0 : 1)) {
                text += "…";
                ++places;
                return;
            }
            if (character < ' ' || character == 0x7F)
                text += ' ';
            else
                text += rest.substr(0, rest.size() - behind.size());
            places += more;
            rest = behind;
        }
    }
};

std::string DrawElement(const CellElement& element) {
    const auto bare = [](std::string file) {
        file.erase(0, file.find_last_of('/') + 1);
        return file.substr(0, file.find_last_of('.'));
    };
    switch (element.kind) {
    case CellElement::CheckBox: return element.text == "true" ? "[x]" : "[ ]";
    case CellElement::Button: return "[" + element.text + "]";
    case CellElement::Icon: return "<" + bare(element.text) + ">";
    case CellElement::DisabledIcon: return "(" + bare(element.text) + ")";
    case CellElement::Text:
    case CellElement::Null: break;
    }
    return element.text;
}

std::string DrawCell(const RowCell& cell) {
    std::string text;
    for (const CellElement& element : cell.elements) {
        const std::string drawn = DrawElement(element);
        if (!text.empty() && !drawn.empty()) text += ' ';
        text += drawn;
    }
    return text;
}

std::string Caption(const View& view, const Column& column) {
    if (view.SortColumn() != &column) return column.Caption();
    return column.Caption() + (view.SortsAscending() ? " ▲" : " ▼");
}

struct DrawnColumn {
    const Column* column;
    std::vector<DrawnText> cells; ///< the caption, then a cell for each row
    std::size_t width = 0;

    void Add(DrawnText cell) {
        width = std::max(width, cell.places);
        cells.push_back(std::move(cell));
    }
};

/// Rows below this depth are not drawn further to the right: each tells its depth, counted from 0, instead.
constexpr std::size_t deepestIndent = 40;

/// The text of a row, below and to the right of what it lies in.
DrawnText TreeText(const RowLook& look, const std::string& text) {
    DrawnText drawn(text);
    const std::size_t depth{look.depth};
    std::string before(2 * std::min(depth, deepestIndent), ' ');
    if (depth > deepestIndent) before += std::to_string(depth) + " ";
    drawn.places += before.size() + 2;
    drawn.text.insert(0, before + (look.expanded ? "▾ " : look.hasRows ? "▸ " : "  "));
    return drawn;
}

void AddRow(const RowLook& look, std::vector<DrawnColumn>& columns) {
    for (DrawnColumn& drawn : columns) {
        const auto cell =
            std::find_if(look.cells.begin(), look.cells.end(),
                         [&drawn](const RowCell& candidate) { return candidate.column == drawn.column; });
        const std::string text = cell == look.cells.end() ? "" : DrawCell(*cell);
        if (drawn.column->Kind() != ColumnKind::BuiltIn) {
            drawn.Add(DrawnText(text));
        } else {
            drawn.Add(TreeText(look, look.kind == RowKind::Item ? text : look.text));
        }
    }
}

std::string DrawLine(const std::vector<DrawnColumn>& columns, std::size_t line) {
    std::string text;
    for (const DrawnColumn& drawn : columns) {
        const DrawnText& cell = drawn.cells[line];
        const std::size_t room = drawn.width - cell.places;
        const Justify justify = drawn.column->Justification();
        const std::size_t before = justify == Justify::Right    ? room
                                   : justify == Justify::Center ? room / 2
                                                                : 0;
        text += "  " + std::string(before, ' ') + cell.text + std::string(room - before, ' ');
    }
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string DrawRule(const std::vector<DrawnColumn>& columns) {
    std::string text;
    for (const DrawnColumn& drawn : columns) {
        text += "  ";
        for (std::size_t i = 0; i < drawn.width; ++i) text += "─";
    }
    return text;
}

} // namespace

std::string DrawRows(Window& window) {
    const RowModel::Answering answering(window.Rows());
    const View* const view = window.ShownView();
    if (!view) return {};
    std::vector<std::shared_ptr<Column>> held;
    std::vector<DrawnColumn> columns;
    for (const std::shared_ptr<Column>& column : view->Columns()) {
        if (!column->IsShown()) continue;
        held.push_back(column);
        columns.push_back({column.get(), {}, 0});
        columns.back().Add(DrawnText(Caption(*view, *column)));
    }
    std::vector<std::string> marks; // the selected rows, and the collected ones
    window.Rows().ReadEach(0, std::numeric_limits<std::int64_t>::max(), [&](const RowLook& look) {
        AddRow(look, columns);
        marks.push_back(std::string(look.selected ? "*" : " ") + (look.collected ? "+" : " "));
        return true;
    });
    std::string text = DrawLine(columns, 0) + "\n" + DrawRule(columns);
    for (std::size_t i = 0; i < marks.size(); ++i)
        text += "\n" + DrawLine(columns, i + 1).replace(0, marks[i].size(), marks[i]);
    return text;
}

} // namespace znhost
