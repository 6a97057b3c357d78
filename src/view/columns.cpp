// Columns of the current view.
#include "frame/current_lifetimes.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserPopupMenu.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewColumn.h"
#include "host/znIBrowserWindowAccess.h"
#include "view/view_messages.h"
#include "znBrowserMessages.h"

#include <string>

using namespace znlayer;
using namespace view_messages;

namespace {

constexpr char missing[] = "\" doesn't exists";

/// Unlike other messages these have no blanks between their pieces.
bool FailOnColumn(const Operation& operation, const char* name, const char* ending) {
    return operation.Fail((std::string("Column \"") + (name ? name : "") + ending).c_str());
}

znIBrowserViewColumn* FindColumn(znIBrowserView* view, const char* name) {
    return FindNamed(view, &znIBrowserView::FindColumn, name);
}

/// A column of the current view by name; null when there is none, with the error set.
znIBrowserViewColumn* RequireColumn(znBrowserManagerTcl& manager, const char* name) {
    znIBrowserView* const view = manager.GetCurrentViewPtr();
    znIBrowserViewColumn* const column = FindColumn(view, name);
    const Operation operation(manager, Operation::State::Kept);
    if (!view) operation.Fail(noViewHandle);
    if (view && !column) FailOnColumn(operation, name, missing);
    return column;
}

/// As `RequireColumn`, but a built-in column is refused: its message ends with `refusal`.
znIBrowserViewColumn* RequireScriptedColumn(znBrowserManagerTcl& manager, const char* name,
                                            const char* refusal) {
    znIBrowserViewColumn* const column = RequireColumn(manager, name);
    if (!column || !column->IsBuiltIn()) return column;
    FailOnColumn(Operation(manager, Operation::State::Kept), column->GetName(), refusal);
    return nullptr;
}

/// Asks the browser object for a new column in the current view, and makes it current.
template <class... Parameters, class... Arguments>
bool CreateColumn(znBrowserManagerTcl& manager,
                  bool (znIBrowser::*request)(znIBrowserView*, const char*, Parameters...), const char* name,
                  Arguments... arguments) {
    const Operation operation(manager);
    znIBrowserView* const view = manager.GetCurrentViewPtr();
    if (!view || !name) return operation.Fail(view ? nullName : noViewHandle);
    if (!operation.Ask(request, view, name, arguments...)) return false;
    znIBrowserViewColumn* const column = FindColumn(manager.GetCurrentViewPtr(), name);
    // A new column has no style yet: the current one stays as it is.
    if (column) manager.SetCurrentColumn(column);
    return true;
}

/// The column whose sorting by a property the current column stands for: its view's default column.
znIBrowserViewColumn* DefaultColumn(znIBrowserViewColumn* column) {
    znIBrowserView* const view = column ? column->GetView() : nullptr;
    return view ? view->GetDefaultColumn() : nullptr;
}

} // namespace

bool znBrowserManagerTcl::CreateButtonColumn(const char* name, const char* argument) {
    return CreateColumn(*this, &znIBrowser::CreateButtonColumn, name, argument);
}

bool znBrowserManagerTcl::CreateTextBoxColumn(const char* name, const char* argument) {
    return CreateColumn(*this, &znIBrowser::CreateTextBoxColumn, name, argument);
}

bool znBrowserManagerTcl::CreateIconColumn(const char* name, const char* argument, const char* icon) {
    return CreateColumn(*this, &znIBrowser::CreateIconColumn, name, argument, icon);
}

bool znBrowserManagerTcl::CreateCheckBoxColumn(const char*, const char*) {
    const Operation operation(*this);
    return true;
}

bool znBrowserManagerTcl::CreateComboBoxColumn(const char*, const char*) {
    const Operation operation(*this);
    return true;
}

bool znBrowserManagerTcl::DeleteScriptedColumn(const char* name) {
    const Operation operation(*this);
    znIBrowserViewColumn* const column = RequireScriptedColumn(*this, name, "\" cannot be deleted");
    if (!column) return false;
    const znBrowserCurrentObjects doomed = CurrentsInside(*this, column);
    const auto deletion = [&] { return operation.Ask(&znIBrowser::DeleteColumn, column); };
    if (!DeleteAndForget(*this, doomed, deletion)) return false;
    SetCurrentColumn(current_.view ? current_.view->GetDefaultColumn() : nullptr);
    return true;
}

bool znBrowserManagerTcl::ShowScriptedColumn(const char* name, bool show) {
    const Operation operation(*this);
    znIBrowserViewColumn* const column = RequireScriptedColumn(*this, name, "\" cannot be showed on/off");
    return column && operation.HostAnswer(column->SetShown(show));
}

bool znBrowserManagerTcl::MoveCurrentColumn(const char* name, int position) {
    const Operation operation(*this);
    znIBrowserViewColumn* const column = RequireScriptedColumn(*this, name, "\" cannot be moved");
    return column && operation.Ask(&znIBrowser::MoveColumn, current_.view, column, position);
}

bool znBrowserManagerTcl::SetViewColumnJustify(const char* name, const char* justify) {
    const Operation operation(*this);
    znIBrowserViewColumn* const column = RequireScriptedColumn(*this, name, "\" cannot be justified");
    return column && operation.Ask(&znIBrowser::SetColumnJustify, current_.view, column, justify);
}

bool znBrowserManagerTcl::SetViewColumnWidth(const char* name, const char* width) {
    const Operation operation(*this);
    znIBrowserViewColumn* const column = RequireColumn(*this, name);
    return column && operation.Ask(&znIBrowser::SetColumnWidth, column, width);
}

bool znBrowserManagerTcl::GetViewColumnWidth(const char* name) {
    const Operation operation(*this);
    if (!current_.windowAccess) return operation.Fail(znBrowserMessages::noCurrentWindow);
    if (!current_.view) return operation.Fail(znBrowserMessages::noCurrentView);
    znIBrowserViewColumn* const column = RequireColumn(*this, name);
    if (column) current_.windowAccess->ReportColumnWidth(column);
    return column != nullptr;
}

bool znBrowserManagerTcl::SetCurrentColumn(const char* name) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewHandle);
    znIBrowserViewColumn* const column = FindColumn(current_.view, name);
    if (!column) return operation.Fail({"Unable to find column: ", name});
    SetCurrentColumn(column);
    UpdateCurrentStyle(column);
    return GetState();
}

bool znBrowserManagerTcl::GetCurrentColumn(znString& out) {
    const Operation operation(*this);
    if (!current_.column) return operation.Fail(noColumnName);
    out = current_.column->GetName();
    return true;
}

bool znBrowserManagerTcl::GetColumnNames(znString& out) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewHandle);
    std::vector<znIBrowserViewColumn*> columns;
    if (!current_.view->GetColumns(columns)) return operation.Fail("Cannot get list of view columns");
    return NameList().AddNames(columns, NullName::IsLeftOut).Give(*this, out);
}

bool znBrowserManagerTcl::GetColumnCaption(znString& out) {
    const Operation operation(*this);
    if (!current_.column) return operation.Fail(noColumnHandle);
    out = current_.column->GetCaption();
    return true;
}

bool znBrowserManagerTcl::SetColumnCaption(const char* caption) {
    const Operation operation(*this);
    if (!current_.column) return operation.Fail(noColumnHandle);
    return operation.HostAnswer(current_.column->SetCaption(caption));
}

bool znBrowserManagerTcl::GetColumnItalic(znString& out) {
    const Operation operation(*this);
    if (!current_.column) return operation.Fail(noColumnHandle);
    return operation.GiveBool(current_.column->GetItalic(), out);
}

bool znBrowserManagerTcl::SetColumnItalic(bool italic) {
    const Operation operation(*this);
    if (!current_.column) return operation.Fail(noColumnHandle);
    return operation.HostAnswer(current_.column->SetItalic(italic));
}

bool znBrowserManagerTcl::GetColumnSorting(znString& out) {
    const Operation operation(*this);
    if (!current_.column) return operation.Fail(noColumnHandle);
    return operation.GiveBool(current_.column->GetSorting(), out);
}

bool znBrowserManagerTcl::SetColumnSorting(bool sorting) {
    const Operation operation(*this);
    if (!current_.column) return operation.Fail(noColumnHandle);
    return operation.HostAnswer(current_.column->SetSorting(sorting));
}

bool znBrowserManagerTcl::GetViewColumnShownState(znString& out) {
    const Operation operation(*this);
    if (!current_.column) return operation.Fail("Cannot get a handle to the current view column");
    return operation.GiveBool(current_.column->GetShown(), out);
}

bool znBrowserManagerTcl::SortDefaultColumnByCustomProperty(znString& out) {
    const Operation operation(*this);
    const znIBrowserViewColumn* const column = DefaultColumn(current_.column);
    if (!column) return operation.Fail(noColumnHandle);
    out = column->GetSortProperty();
    return true;
}

bool znBrowserManagerTcl::SetSortDefaultColumnByCustomProperty(const char* property) {
    const Operation operation(*this);
    znIBrowserViewColumn* const column = DefaultColumn(current_.column);
    if (!column) return operation.Fail(noColumnHandle);
    return operation.HostAnswer(column->SetSortProperty(property));
}

bool znBrowserManagerTcl::SetCurrentColumnPopupMenu(const char* name) {
    const Operation operation(*this);
    if (!current_.column) return operation.Fail(noColumnHandle);
    return operation.HostAnswer(current_.column->SetPopupMenu(name));
}

bool znBrowserManagerTcl::GetCurrentColumnPopupMenu(znString& out) {
    const Operation operation(*this);
    if (!current_.column) return operation.Fail(noColumnHandle);
    const znIBrowserPopupMenu* const menu = current_.column->GetPopupMenu();
    out = menu ? menu->GetName() : "";
    return true;
}
