// What the cells of an item show.
#ifndef ZN_HOST_ROW_CELLS_H
#define ZN_HOST_ROW_CELLS_H

#include "rows/row_plan.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class znIBrowserDataProperty;

namespace znhost {

class GuiMap;
class StyleElement;

/// One drawn element of a cell.
struct CellElement {
    enum Kind { Text, Icon, DisabledIcon, CheckBox, Button };

    Kind kind = Text;
    std::string name;   ///< of the style's element; "" where the column has no style
    std::string text;   ///< what is written; of an icon: its file; of a check box: "true" or "false"
    std::string colour; ///< "" for the usual one
};

/// One cell: the elements that have something to show.
struct RowCell {
    const Column* column = nullptr;
    std::vector<CellElement> elements;

    /// What all elements say, one blank between.
    std::string Text() const;
};

/// Reads the cells of items: column, style, elements, view properties, data properties and GUI maps are
/// looked up once for each kind of item, so that a cell costs no more than its values.
class RowCells {
public:
    RowCells(View& view, const RowPlan& plan) : view_(view), plan_(plan) {}

    /// Forgets what was looked up: something in the view changed.
    void Forget() { layouts_.clear(); }
    /// The cells of the shown columns, in their order.
    std::vector<RowCell> Read(const RowContent& block, std::int64_t row);
    /// What the item is called: its cell in the built-in column.
    std::string Name(const RowContent& block, std::int64_t row);

    /// The view property of an element, by its name; with an unknown one, the property that the column shows.
    /// Null when there is none.
    ViewProperty* PropertyOf(const RowContent& block, const Column& column, const std::string& element) const;

private:
    struct Element {
        std::string name;
        znIBrowserDataProperty* property = nullptr;
        bool isBoolean = false;
        std::shared_ptr<GuiMap> map;
    };
    struct Layout {
        std::shared_ptr<Column> column;
        std::vector<Element>
            elements; ///< none: the item's text in the built-in column, else what the column always shows
    };
    using Layouts = std::vector<Layout>;

    std::shared_ptr<const Layouts> LayoutsOf(const RowContent& block);
    Layout MakeLayout(const std::shared_ptr<Column>& column, const RowContent& block) const;
    Element MakeElement(ViewProperty* property, const StyleElement* element, const RowContent& block) const;
    RowCell ReadCell(const Layout& layout, const RowContent& block, std::int64_t row) const;
    static bool ReadElement(const Element& element, const RowContent& block, std::int64_t row,
                            CellElement& out);

    View& view_;
    const RowPlan& plan_;
    std::map<std::pair<const FreeFolder*, const RowSource*>, std::shared_ptr<const Layouts>> layouts_;
};

} // namespace znhost

#endif
