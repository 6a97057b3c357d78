#include "rows/row_cells.h"

#include "base/text.h"
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

std::vector<ItemCells> RowCells::Read(const RowContent& block, const std::vector<std::int64_t>& rows,
                                      const std::function<bool()>& isStopped) {
    const std::shared_ptr<const Layout> layout = LayoutOf(block, Showing::All);
    std::vector<std::optional<std::string>> texts;
    block.source->ReadTexts(rows, layout->stored, texts);
    std::vector<ItemCells> items;
    for (std::size_t i = 0; i < rows.size() && !isStopped(); ++i) {
        const Item item{block, rows[i], texts.data() + i * layout->stored.size(), isStopped};
        items.emplace_back();
        for (const ColumnLayout& column : layout->columns) {
            RowCell cell = ReadCell(column, item);
            if (column.column->Kind() == ColumnKind::BuiltIn) items.back().name = cell.Text();
            if (column.column->IsShown()) items.back().cells.push_back(std::move(cell));
        }
    }
    return items;
}

void RowCells::Ask(const RowContent& block, const std::vector<std::int64_t>& rows) {
    std::vector<std::optional<std::string>> texts;
    block.source->ReadTexts(rows, LayoutOf(block, Showing::All)->stored, texts);
}

std::vector<std::string> RowCells::ReadNames(const RowContent& block, const std::vector<std::int64_t>& rows,
                                             const std::function<bool()>& isStopped) {
    const std::shared_ptr<const Layout> layout = LayoutOf(block, Showing::Names);
    std::vector<std::optional<std::string>> texts;
    block.source->ReadTexts(rows, layout->stored, texts);
    std::vector<std::string> names;
    for (std::size_t i = 0; i < rows.size() && !isStopped(); ++i) {
        const Item item{block, rows[i], texts.data() + i * layout->stored.size(), isStopped};
        names.push_back(ReadCell(layout->columns.front(), item).Text());
    }
    return names;
}

// ---- What is looked up ----

std::shared_ptr<const RowCells::Layout> RowCells::LayoutOf(const RowContent& block, Showing what) {
    std::shared_ptr<const Layout>& known = layouts_[{block.folder.get(), block.source, what}];
    if (!known) {
        const auto layout = std::make_shared<Layout>();
        for (const std::shared_ptr<Column>& column : view_.Columns()) {
            const bool isShown = what == Showing::All && column->IsShown();
            if (isShown || column->Kind() == ColumnKind::BuiltIn) AddColumn(column, block, *layout);
        }
        known = layout;
    }
    return known;
}

void RowCells::AddColumn(const std::shared_ptr<Column>& column, const RowContent& block,
                         Layout& layout) const {
    ColumnLayout made;
    made.column = column;
    const Style* const style = block.folder->ItemStyleIn(*column, block.source->GetSource());
    ViewProperty* property = plan_.PropertyOf(*column, style);
    if (style) {
        for (const std::shared_ptr<StyleElement>& element : style->Elements()) {
            // An element that has only a map shows the property before it.
            if (ViewProperty* const own = view_.Properties().Find(element->PropertyName())) property = own;
            if (property) made.elements.push_back(MakeElement(*property, element.get(), block, layout));
        }
    }
    if (made.elements.empty() && property)
        made.elements.push_back(MakeElement(*property, nullptr, block, layout));
    if (made.elements.empty() && column->Kind() == ColumnKind::BuiltIn) {
        made.text = layout.stored.size();
        layout.stored.push_back(nullptr);
    }
    layout.columns.push_back(std::move(made));
}

RowCells::Element RowCells::MakeElement(ViewProperty& property, const StyleElement* element,
                                        const RowContent& block, Layout& layout) const {
    Element made;
    made.property = property.shared_from_this();
    if (znIBrowserDataProperty* const data = property.DataProperty(block.source->GetSource());
        data && block.source->IsStored(data)) {
        made.stored = layout.stored.size();
        layout.stored.push_back(data);
    }
    if (!element) return made;
    made.name = element->Name();
    made.map = view_.Owner().GuiMaps().Share(element->MapName());
    return made;
}

// ---- What is read ----

RowCell RowCells::ReadCell(const ColumnLayout& column, const Item& item) {
    RowCell cell;
    cell.column = column.column.get();
    for (const Element& element : column.elements) {
        CellElement shown;
        if (ReadElement(element, item, shown)) cell.elements.push_back(std::move(shown));
    }
    if (!column.elements.empty()) return cell;
    CellElement shown;
    switch (column.column->Kind()) {
    case ColumnKind::BuiltIn: shown.text = item.texts[column.text].value_or(""); break;
    case ColumnKind::Icon:
        shown.kind = CellElement::Icon;
        shown.text = column.column->Icon();
        break;
    case ColumnKind::Button:
        shown.kind = CellElement::Button;
        shown.text = column.column->Caption();
        break;
    case ColumnKind::TextBox: break;
    }
    if (!shown.text.empty()) cell.elements.push_back(std::move(shown));
    return cell;
}

/// False when the item has no value. One that is computed is asked for through the view property, which knows
/// whether there still is something to ask.
bool RowCells::ReadText(const Element& element, const Item& item, std::string& text) {
    if (element.stored != computed) {
        const std::optional<std::string>& stored = item.texts[element.stored];
        if (stored) text = *stored;
        return stored.has_value();
    }
    if (item.isStopped()) return false;
    znIBrowserDataSourceSimple* const source = item.block.source->GetSource();
    znIBrowserDataProperty* const property = element.property->DataProperty(source);
    znString value;
    if (!property || !property->GetValueString({source, item.row}, 0, value)) return false;
    text = Cut(value.View(), longestCell);
    return true;
}

/// False when there is nothing to see.
bool RowCells::ReadElement(const Element& element, const Item& item, CellElement& out) {
    std::string text;
    out.name = element.name;
    if (!ReadText(element, item, text)) {
        out.kind = CellElement::Null; // there is a value that could be shown, and it is NULL
        return element.stored != computed && !element.map;
    }
    const ZNBROWSER_DATA_TYPE type = element.property->Type();
    const GuiMapRecord* const record = element.map ? element.map->Find(ReadValue(text, type)) : nullptr;
    const GuiMapShows shows = element.map ? element.map->Shows() : GuiMapShows::Nothing;
    if (record && shows != GuiMapShows::Colour) {
        out.text = record->value;
        if (shows == GuiMapShows::Icon)
            out.kind = record->disabled ? CellElement::DisabledIcon : CellElement::Icon;
        if (shows == GuiMapShows::Button) out.kind = CellElement::Button;
        return true;
    }
    if (!record && shows == GuiMapShows::Icon) return false;
    if (record) out.colour = record->value;
    out.text = std::move(text);
    if (type == ZNBROWSER_DATA_BOOL && !element.map) {
        out.kind = CellElement::CheckBox;
        out.text = IsTrue(ReadValue(out.text, type)) ? "true" : "false";
    }
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
