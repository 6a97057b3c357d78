// The events of a window's Tk tree.
#include "base/services.h"
#include "host/znBrowserDataItems.h"
#include "window/browser_windows.h"
#include "window/collector.h"
#include "window/window.h"
#include "znIBrowserManagerTcl.h"

#include <algorithm>
#include <iterator>
#include <tcl.h>

namespace znhost {

// ---- Expanding ----

bool Window::RequestExpand(unsigned int index) {
    if (Refused("znIBrowserWindowAccess::RequestExpand", index)) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    if (!rows_.Expand(index)) return false;
    const bool read = FailOnTrouble(); // what listens to the event may read as well
    Fire(EventKind::ItemExpanded);
    return read;
}

/// @return false, with the reason, when something that was to be shown could not be read
bool Window::FailOnTrouble() {
    const std::string trouble = rows_.TakeTrouble();
    return trouble.empty() || Fail(trouble);
}

bool Window::RequestCollapse(unsigned int index) {
    if (Refused("znIBrowserWindowAccess::RequestCollapse", index)) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    if (!rows_.Collapse(index)) return false;
    Fire(EventKind::ItemCollapsed);
    return true;
}

bool Window::ExpandAllItems() {
    if (Refused("znIBrowserWindowAccess::ExpandAllItems")) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    rows_.ExpandAll();
    return FailOnTrouble();
}

bool Window::ExpandSelectedItems() {
    if (Refused("znIBrowserWindowAccess::ExpandSelectedItems")) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    rows_.ExpandSelected();
    return FailOnTrouble();
}

bool Window::CollapseAllItems() {
    if (Refused("znIBrowserWindowAccess::CollapseAllItems")) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    rows_.CollapseAll();
    return true;
}

bool Window::CollapseSelectedItems() {
    if (Refused("znIBrowserWindowAccess::CollapseSelectedItems")) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    rows_.CollapseSelected();
    return true;
}

bool Window::SetStatePos(int position) {
    if (Refused("znIBrowserWindowAccess::SetStatePos", position) || position < 0) return false;
    scrollPosition_ = position;
    return true;
}

// ---- Selecting ----

bool Window::SelectionAdded(const std::vector<unsigned int>& indices) {
    if (Refused("znIBrowserWindowAccess::SelectionAdded", indices)) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    return rows_.Select(RowModel::Selecting::Add, indices);
}

bool Window::SelectionRemoved(const std::vector<unsigned int>& indices) {
    if (Refused("znIBrowserWindowAccess::SelectionRemoved", indices)) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    return rows_.Select(RowModel::Selecting::Remove, indices);
}

bool Window::SelectionUpdate(const std::vector<unsigned int>& indices) {
    if (Refused("znIBrowserWindowAccess::SelectionUpdate", indices)) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    return rows_.Select(RowModel::Selecting::Replace, indices);
}

bool Window::SelectionChangeFinished() {
    if (Refused("znIBrowserWindowAccess::SelectionChangeFinished")) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    if (view_) browser_.VirtualCollector().OnSelected(*view_);
    TellSelectedFolders();
    Fire(EventKind::SelectionChanged);
    return true;
}

/// Scripts that want to know the selected folders define the procedures that receive them.
void Window::TellSelectedFolders() {
    HostServices& services = browser_.Services();
    constexpr const char* procedure = "::znbrowser::ResetSelectedFreeFoldersArray";
    const bool wanted = Tcl_FindCommand(services.Interp(), procedure, nullptr, TCL_GLOBAL_ONLY) != nullptr;
    if (!view_ || !wanted || !services.Manager()) return;
    std::vector<std::shared_ptr<FreeFolder>> held; // the procedures may delete them
    std::vector<znIBrowserViewItemFreeFolder*> folders;
    for (FreeFolder* const folder : view_->RootFolder().WithBelow()) {
        if (!folder->IsSelected()) continue;
        held.push_back(folder->shared_from_this());
        folders.push_back(folder);
    }
    services.Notify([&folders](auto& manager) { return manager.UpdateTclFreeFolderSelection(folders); });
}

bool Window::SetSingleSelection() {
    if (Refused("znIBrowserWindowAccess::SetSingleSelection")) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    rows_.SetSingle(true);
    return true;
}

bool Window::SetMultipleSelection() {
    if (Refused("znIBrowserWindowAccess::SetMultipleSelection")) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    rows_.SetSingle(false);
    return true;
}

// ---- Clicks ----

Column* Window::FindColumn(const char* name) const {
    return view_ ? view_->Columns().Find(TextOf(name)) : nullptr;
}

/// The value of an item changed: the update script of its property is told or, without one, a boolean is
/// written to the database.
bool Window::WriteValue(ViewProperty& property, const znBrowserDataItem& item, const std::string& value) {
    if (!property.UpdateScript().empty()) return property.Update(item, value);
    znIBrowserDataProperty* const data = property.DataProperty(item.source);
    RowSource* const source = GetRowSource(item.source);
    if (!data || !source) return Fail("The property \"" + property.Name() + "\" has no value for the item");
    if (property.Type() != ZNBROWSER_DATA_BOOL)
        return Fail("The property \"" + property.Name() + "\" is no boolean");
    std::string error;
    if (!source->WriteBoolean(*data, item.row, value == "true", error)) return Fail(error);
    if (view_ && view_->DataControl()) browser_.DataChanged(*view_->DataControl(), VIEW_CELLS);
    return true;
}

/// What was clicked on, so that a script may delete it.
struct Window::Click {
    std::string column;
    znBrowserDataItem item;
    std::shared_ptr<ViewProperty> property; ///< null when the element shows none
};

/// False when there is no such column or item.
bool Window::FindClicked(const char* column, const char* element, unsigned int index, Click& click) {
    const RowModel::Answering answering(rows_); // takes over what changed, and that may run scripts
    const Column* const own = FindColumn(column);
    if (!own || !rows_.GetItem(index, click.item)) return false;
    click.column = own->Name();
    ViewProperty* const property = rows_.PropertyOf(index, *own, TextOf(element));
    if (property) click.property = property->shared_from_this();
    return true;
}

bool Window::CheckBoxClick(const char* column, const char* element, unsigned int index, bool value) {
    if (Refused("znIBrowserWindowAccess::CheckBoxClick", column, element, index, value)) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    Click click;
    if (!FindClicked(column, element, index, click)) return false;
    if (!click.property) return Fail("The column \"" + click.column + "\" shows no property");
    if (!WriteValue(*click.property, click.item, value ? "true" : "false")) return false;
    Fire(EventKind::CheckBoxClick);
    return true;
}

// A button runs the operation of the view that is called like its element, the element's property, its column
// or its value. A property with an update script is told the value instead.
bool Window::WindowButtonClick(const char* column, const char* element, unsigned int index,
                               const znString& value) {
    if (Refused("znIBrowserWindowAccess::WindowButtonClick", column, element, index, value)) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    Click click;
    if (!FindClicked(column, element, index, click)) return false;
    const std::shared_ptr<ViewProperty>& property = click.property;
    bool done = false;
    if (property && !property->UpdateScript().empty()) {
        done = WriteValue(*property, click.item, value.Str());
    } else {
        const std::string names[] = {TextOf(element), property ? property->Name() : "", click.column,
                                     value.Str()};
        done = std::any_of(std::begin(names), std::end(names),
                           [this](auto& name) { return RunOperation(name); });
        if (!done) Fail("The column \"" + click.column + "\" has no operation for the button");
    }
    if (done) Fire(EventKind::ButtonClick);
    return done;
}

/// False when the view has no such operation. How its script ends does not matter.
bool Window::RunOperation(const std::string& name) {
    ViewOperation* const operation = view_ ? view_->Operations().Find(name) : nullptr;
    if (operation) operation->Run();
    return operation != nullptr;
}

bool Window::LeftHandClick(const char* column, const char* element, unsigned int index) {
    if (Refused("znIBrowserWindowAccess::LeftHandClick", column, element, index)) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    if (!FindColumn(column) || !rows_.Has(index)) return false;
    znBrowserDataItem item;
    if (rows_.GetItem(index, item) && view_) browser_.VirtualCollector().OnClicked(*view_, item);
    Fire(EventKind::LeftClick);
    return true;
}

// ---- Dropping ----

bool Window::SetDropItem(unsigned int target, const std::vector<unsigned int>& indices) {
    if (Refused("znIBrowserWindowAccess::SetDropItem", target, indices)) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    std::string error;
    if (indices.empty() || !rows_.Drop(target, indices, error)) return error.empty() ? false : Fail(error);
    if (view_ && view_->DataControl()) browser_.DataChanged(*view_->DataControl(), VIEW_ROWS | VIEW_CELLS);
    Fire(EventKind::ItemsDropped);
    return true;
}

} // namespace znhost
