#include "rows/row_cells.h"

#include "host/znBrowserDataItems.h"
#include "host/znIBrowserDataProperty.h"
#include "model/browser.h"
#include "model/gui_map_list.h"
#include "model/variants.h"
#include "model/view.h"

namespace znhost {

std::string RowCell::Text() const {
    std::string text;
    for (const CellElement& element : elements) {
        if (!text.empty() && !element.text.empty()) text += ' ';
        text += element.text;
    }
    return text;
}

std::vector<RowCell> RowCells::Read(const RowContent& block, std::int64_t row) {
    const std::shared_ptr<const Layouts> layouts =
        LayoutsOf(block); // held: a scripted value may change the view
    std::vector<RowCell> cells;
    for (const Layout& layout : *layouts) {
        if (layout.column->IsShown()) cells.push_back(ReadCell(layout, block, row));
    }
    return cells;
}

std::string RowCells::Name(const RowContent& block, std::int64_t row) {
    const std::shared_ptr<const Layouts> layouts = LayoutsOf(block);
    for (const Layout& layout : *layouts) {
        if (layout.column->Kind() == ColumnKind::BuiltIn) return ReadCell(layout, block, row).Text();
    }
    return {};
}

std::shared_ptr<const RowCells::Layouts> RowCells::LayoutsOf(const RowContent& block) {
    std::shared_ptr<const Layouts>& known = layouts_[{block.folder.get(), block.source}];
    if (!known) {
        const auto layouts = std::make_shared<Layouts>();
        for (const std::shared_ptr<Column>& column : view_.Columns())
            layouts->push_back(MakeLayout(column, block));
        known = layouts;
    }
    return known;
}

RowCells::Layout RowCells::MakeLayout(const std::shared_ptr<Column>& column, const RowContent& block) const {
    Layout layout;
    layout.column = column;
    const Style* const style = block.folder->ItemStyleIn(*column, block.source->GetSource());
    ViewProperty* property = nullptr;
    if (style) {
        for (const std::shared_ptr<StyleElement>& element : style->Elements()) {
            // An element that has only a map shows the property before it.
            if (ViewProperty* const own = view_.Properties().Find(element->PropertyName())) property = own;
            if (!property) property = plan_.PropertyOf(*column, style);
            if (property) layout.elements.push_back(MakeElement(property, element.get(), block));
        }
    }
    if (layout.elements.empty()) property = plan_.PropertyOf(*column, style);
    if (layout.elements.empty() && property) layout.elements.push_back(MakeElement(property, nullptr, block));
    return layout;
}

RowCells::Element RowCells::MakeElement(ViewProperty* property, const StyleElement* element,
                                        const RowContent& block) const {
    Element made;
    made.property = property->DataProperty(block.source->GetSource());
    made.isBoolean = property->Type() == ZNBROWSER_DATA_BOOL;
    if (!element) return made;
    made.name = element->Name();
    made.map = view_.Owner().GuiMaps().Share(element->MapName());
    return made;
}

RowCell RowCells::ReadCell(const Layout& layout, const RowContent& block, std::int64_t row) const {
    RowCell cell;
    cell.column = layout.column.get();
    for (const Element& element : layout.elements) {
        CellElement shown;
        if (ReadElement(element, block, row, shown)) cell.elements.push_back(std::move(shown));
    }
    if (!layout.elements.empty()) return cell;
    CellElement shown;
    switch (layout.column->Kind()) {
    case ColumnKind::BuiltIn: block.source->GetText(row, shown.text); break;
    case ColumnKind::Icon:
        shown.kind = CellElement::Icon;
        shown.text = layout.column->Icon();
        break;
    case ColumnKind::Button:
        shown.kind = CellElement::Button;
        shown.text = layout.column->Caption();
        break;
    case ColumnKind::TextBox: break;
    }
    if (!shown.text.empty()) cell.elements.push_back(std::move(shown));
    return cell;
}

/// False when there is nothing to see.
bool RowCells::ReadElement(const Element& element, const RowContent& block, std::int64_t row,
                           CellElement& out) {
    if (!element.property) return false;
    const znBrowserDataItem item{block.source->GetSource(), row};
    out.name = element.name;
    const GuiMapRecord* const record =
        element.map ? element.map->Find(element.property->GetValue(item)) : nullptr;
    const GuiMapShows shows = record ? element.map->Shows() : GuiMapShows::Nothing;
    if (record && shows != GuiMapShows::Colour) {
        out.text = record->value;
        if (shows == GuiMapShows::Icon)
            out.kind = record->disabled ? CellElement::DisabledIcon : CellElement::Icon;
        if (shows == GuiMapShows::Button) out.kind = CellElement::Button;
        return true;
    }
    if (element.map && !record && element.map->Shows() == GuiMapShows::Icon) return false;
    if (record) out.colour = record->value;
    if (element.isBoolean && !element.map) {
        const znVariant value = element.property->GetValue(item);
        if (value.GetType() == znVariant::Undefined) return false;
        out.kind = CellElement::CheckBox;
        out.text = IsTrue(value) ? "true" : "false";
        return true;
    }
    znString value;
    if (!element.property->GetValueString(item, 0, value)) return false;
    out.text = value.Str();
    return true;
}

ViewProperty* RowCells::PropertyOf(const RowContent& block, const Column& column,
                                   const std::string& element) const {
    const Style* const style = block.folder->ItemStyleIn(column, block.source->GetSource());
    const StyleElement* const found = style ? style->Elements().Find(element) : nullptr;
    ViewProperty* const own = found ? view_.Properties().Find(found->PropertyName()) : nullptr;
    return own ? own : plan_.PropertyOf(column, style);
}

} // namespace znhost
