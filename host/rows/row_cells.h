// What the cells of an item show.
#ifndef ZN_HOST_ROW_CELLS_H
#define ZN_HOST_ROW_CELLS_H

#include "rows/row_plan.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

class znIBrowserDataProperty;

namespace znhost {

class GuiMap;
class StyleElement;

/// One drawn element of a cell.
struct CellElement {
    enum Kind { Text, Icon, DisabledIcon, CheckBox, Button, Null };

    Kind kind = Text;
    std::string name; ///< of the style's element; "" where the column has no style
    std::string
        text; ///< what is written; of an icon: its file; of a check box: "true" or "false"; of NULL: nothing
    std::string colour; ///< "" for the usual one
};

/// One cell: the elements that have something to show.
struct RowCell {
    const Column* column = nullptr;
    std::vector<CellElement> elements;

    /// What all elements say, one blank between.
    std::string Text() const;
};

/// What an item shows: its name, which is its cell in the built-in column, and the cells of the shown
/// columns.
struct ItemCells {
    std::string name;
    std::vector<RowCell> cells;
};

/// Reads the cells of items. Column, style, elements, view properties, data properties and GUI maps are
/// looked up once for each kind of item, and what stands in the database is read with one look at each item.
class RowCells {
public:
    RowCells(View& view, const RowPlan& plan) : view_(view), plan_(plan) {}

    /// Forgets what was looked up: something in the view may have changed.
    void Forget() { layouts_.clear(); }
    /// What these items of the block show. Values may come from scripts that delete anything: `isStopped`
    /// tells when no more is to be read, and fewer items are given then.
    std::vector<ItemCells> Read(const RowContent& block, const std::vector<std::int64_t>& rows,
                                const std::function<bool()>& isStopped);

    /// Asks for what stands in the database of them, and for nothing that has to be computed.
    void Ask(const RowContent& block, const std::vector<std::int64_t>& rows);
    /// What they are called only: what they show in the built-in column.
    std::vector<std::string> ReadNames(const RowContent& block, const std::vector<std::int64_t>& rows,
                                       const std::function<bool()>& isStopped);

    /// The view property of an element, by its name; with an unknown one, the property that the column shows.
    /// Null when there is none.
    ViewProperty* PropertyOf(const RowContent& block, const Column& column, const std::string& element) const;

private:
    static constexpr std::size_t computed = static_cast<std::size_t>(-1);

    struct Element {
        std::string name;
        std::shared_ptr<ViewProperty> property;
        std::shared_ptr<GuiMap> map;
        std::size_t stored = computed; ///< its place among the stored properties
    };
    struct ColumnLayout {
        std::shared_ptr<Column> column;
        std::vector<Element> elements; ///< none: what the column always shows
        std::size_t text = computed;   ///< the place of the item's text, where that is shown
    };
    struct Layout {
        std::vector<ColumnLayout> columns;
        std::vector<znIBrowserDataProperty*> stored;
    };
    struct Item {
        const RowContent& block;
        std::int64_t row;
        const std::optional<std::string>* texts; ///< of the stored properties
        const std::function<bool()>& isStopped;
    };

    enum class Showing { All, Names };
    std::shared_ptr<const Layout> LayoutOf(const RowContent& block, Showing what);
    void AddColumn(const std::shared_ptr<Column>& column, const RowContent& block, Layout& layout) const;
    Element MakeElement(ViewProperty& property, const StyleElement* element, const RowContent& block,
                        Layout& layout) const;
    static RowCell ReadCell(const ColumnLayout& column, const Item& item);
    static bool ReadElement(const Element& element, const Item& item, CellElement& out);
    static bool ReadText(const Element& element, const Item& item, std::string& text);

    View& view_;
    const RowPlan& plan_;
    std::map<std::tuple<const FreeFolder*, const RowSource*, Showing>, std::shared_ptr<const Layout>>
        layouts_;
};

} // namespace znhost

#endif
