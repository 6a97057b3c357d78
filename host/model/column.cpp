#include "model/column.h"

#include "model/browser.h"
#include "model/view.h"

namespace znhost {

namespace {

constexpr int builtInWidth = 240;
constexpr int usualWidth = 120;

} // namespace

Column::Column(View& view, std::string name, ColumnKind kind, std::string icon)
    : HostObject(view.Log()), view_(view), name_(std::move(name)), kind_(kind), icon_(std::move(icon)),
      caption_(name_), width_(kind == ColumnKind::BuiltIn ? builtInWidth : usualWidth) {}

bool Column::Changed(unsigned what) const {
    view_.Changed(what);
    return true;
}

void Column::SetWidth(int pixels) {
    width_ = pixels;
    Changed(VIEW_COLUMNS);
}

void Column::SetJustification(Justify justify) {
    justify_ = justify;
    Changed(VIEW_COLUMNS);
}

void Column::SetSortsNaturally(bool naturally) {
    naturally_ = naturally;
    Changed(VIEW_ROWS | VIEW_COLUMNS);
}

void Column::SetFilter(ColumnFilter filter) {
    if (filter == filter_) return;
    filter_ = std::move(filter);
    Changed(VIEW_FILTER | VIEW_COLUMNS);
}

void Column::Forget(const ViewProperty& property) {
    if (sortProperty_ == property.Name()) sortProperty_.clear();
}

ZNBROWSER_SORT_ORDER Column::SortOrder() const { return view_.SortOrderOf(*this); }

const char* Column::GetName() const {
    if (Refused("znIBrowserViewColumn::GetName")) return nullptr;
    return name_.c_str();
}

bool Column::IsBuiltIn() const {
    if (Refused("znIBrowserViewColumn::IsBuiltIn")) return false;
    return kind_ == ColumnKind::BuiltIn;
}

znIBrowserView* Column::GetView() {
    if (Refused("znIBrowserViewColumn::GetView")) return nullptr;
    return &view_;
}

const char* Column::GetCaption() const {
    if (Refused("znIBrowserViewColumn::GetCaption")) return nullptr;
    return caption_.c_str();
}

bool Column::SetCaption(const char* caption) {
    if (Refused("znIBrowserViewColumn::SetCaption", caption)) return false;
    caption_.assign(caption ? caption : "");
    return Changed(VIEW_COLUMNS);
}

bool Column::GetItalic() const {
    if (Refused("znIBrowserViewColumn::GetItalic")) return false;
    return italic_;
}

bool Column::SetItalic(bool italic) {
    if (Refused("znIBrowserViewColumn::SetItalic", italic)) return false;
    italic_ = italic;
    return Changed(VIEW_CELLS);
}

bool Column::GetShown() const {
    if (Refused("znIBrowserViewColumn::GetShown")) return false;
    return shown_;
}

bool Column::SetShown(bool shown) {
    if (Refused("znIBrowserViewColumn::SetShown", shown)) return false;
    shown_ = shown;
    return Changed(VIEW_COLUMNS);
}

bool Column::GetSorting() const {
    if (Refused("znIBrowserViewColumn::GetSorting")) return false;
    return sorting_;
}

bool Column::SetSorting(bool sorting) {
    if (Refused("znIBrowserViewColumn::SetSorting", sorting)) return false;
    sorting_ = sorting;
    if (!sorting && SortOrder() != ZNBROWSER_UNSORTED) view_.SortBy(nullptr, true);
    return Changed(VIEW_COLUMNS);
}

bool Column::GetSortOrder(ZNBROWSER_SORT_ORDER& order) const {
    if (Refused("znIBrowserViewColumn::GetSortOrder")) return false;
    order = SortOrder();
    return true;
}

const char* Column::GetSortProperty() const {
    if (Refused("znIBrowserViewColumn::GetSortProperty")) return nullptr;
    return sortProperty_.c_str();
}

bool Column::SetSortProperty(const char* property) {
    if (Refused("znIBrowserViewColumn::SetSortProperty", property)) return false;
    const std::string name = TextOf(property);
    if (!name.empty() && !view_.Properties().Find(name)) {
        return Fail("The view \"" + view_.Name() + "\" has no property \"" + name + "\"");
    }
    sortProperty_ = name;
    return Changed(VIEW_ROWS);
}

void Column::GetStyles(std::vector<znIBrowserStyle*>& styles) {
    styles.clear();
    if (Refused("znIBrowserViewColumn::GetStyles")) return;
    styles_.CopyTo(styles);
}

void Column::SetCurrentStyle(znIBrowserStyle* style) {
    if (Refused("znIBrowserViewColumn::SetCurrentStyle", style)) return;
    currentStyle_ = static_cast<Style*>(style);
}

bool Column::CreateStyle(const char* name) {
    if (Refused("znIBrowserViewColumn::CreateStyle", name)) return false;
    const std::string newName = TextOf(name);
    if (styles_.Find(newName)) {
        return Fail("The column \"" + name_ + "\" already has a style \"" + newName + "\"");
    }
    styles_.Add(std::make_shared<Style>(*this, newName));
    return true;
}

znIBrowserStyle* Column::FindStyle(const char* name) {
    if (Refused("znIBrowserViewColumn::FindStyle", name)) return nullptr;
    return styles_.Find(TextOf(name));
}

bool Column::DeleteStyle(znIBrowserStyle* style) {
    if (Refused("znIBrowserViewColumn::DeleteStyle", style)) return false;
    Style* const doomed = static_cast<Style*>(style);
    if (!doomed || !styles_.Remove(*doomed)) return Fail("The column \"" + name_ + "\" has no such style");
    if (styleInUse_ == doomed) styleInUse_ = nullptr;
    if (currentStyle_ == doomed) currentStyle_ = nullptr;
    return Changed(VIEW_CELLS);
}

void Column::SetStyle(znIBrowserStyle* style) {
    if (Refused("znIBrowserViewColumn::SetStyle", style)) return;
    styleInUse_ = static_cast<Style*>(style);
    Changed(VIEW_CELLS);
}

znIBrowserPopupMenu* Column::GetPopupMenu() {
    if (Refused("znIBrowserViewColumn::GetPopupMenu")) return nullptr;
    return Popup();
}

bool Column::SetPopupMenu(const char* name) {
    if (Refused("znIBrowserViewColumn::SetPopupMenu", name)) return false;
    return popupMenu_.Set(view_.Owner(), name);
}

} // namespace znhost
