// Columns of the current view.
#include "frame/deletion.h"
#include "frame/messages.h"
#include "frame/name_list.h"
#include "host/znIBrowserPopupMenu.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewColumn.h"
#include "host/znIBrowserWindowAccess.h"
#include "view/ask_browser.h"
#include "view/view_messages.h"

#include <string>

using namespace view_messages;

namespace {

constexpr char missing[] = "\" doesn't exists";

/// Unlike other messages these have no blanks between their pieces.
bool FailOnColumn(znBrowserManagerTcl& manager, const char* name, const char* ending) {
    manager.SetError(std::string("Column \"") + (name ? name : "") + ending);
    return false;
}

znIBrowserViewColumn* FindColumn(znIBrowserView* view, const char* name) {
    return view && name ? view->FindColumn(name) : nullptr;
}

/// A column of the current view by name; null when there is none, with the error set.
znIBrowserViewColumn* RequireColumn(znBrowserManagerTcl& manager, const char* name) {
    znIBrowserView* const view = manager.GetCurrentViewPtr();
    znIBrowserViewColumn* const column = FindColumn(view, name);
    if (!view) manager.SetError(noViewHandle);
    if (view && !column) FailOnColumn(manager, name, missing);
    return column;
}

/// As `RequireColumn`, but a built-in column is refused: its message ends with `refusal`.
znIBrowserViewColumn* RequireScriptedColumn(znBrowserManagerTcl& manager, const char* name,
                                            const char* refusal) {
    znIBrowserViewColumn* const column = RequireColumn(manager, name);
    if (!column || !column->IsBuiltIn()) return column;
    FailOnColumn(manager, column->GetName(), refusal);
    return nullptr;
}

/// Asks the browser object for a new column in the current view, and makes it current.
template <class... Parameters, class... Arguments>
bool CreateColumn(znBrowserManagerTcl& manager,
                  bool (znIBrowser::*request)(znIBrowserView*, const char*, Parameters...), const char* name,
                  Arguments... arguments) {
    manager.SetOk();
    manager.ResetBuff();
    znIBrowserView* const view = manager.GetCurrentViewPtr();
    if (!view || !name) {
        manager.SetError(view ? nullName : noViewHandle);
        return false;
    }
    if (!AskBrowser(manager, request, view, name, arguments...)) return false;
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
    BeginOperation();
    return true;
}

bool znBrowserManagerTcl::CreateComboBoxColumn(const char*, const char*) {
    BeginOperation();
    return true;
}

bool znBrowserManagerTcl::DeleteScriptedColumn(const char* name) {
    BeginOperation();
    znIBrowserViewColumn* const column = RequireScriptedColumn(*this, name, "\" cannot be deleted");
    if (!column) return false;
    const znBrowserCurrentObjects doomed = CurrentsInside(column);
    const auto deletion = [&] { return AskBrowser(*this, &znIBrowser::DeleteColumn, column); };
    if (!DeleteAndForget(deletion, [&] { Forget(doomed); })) return false;
    SetCurrentColumn(current_.view ? current_.view->GetDefaultColumn() : nullptr);
    return true;
}

bool znBrowserManagerTcl::ShowScriptedColumn(const char* name, bool show) {
    BeginOperation();
    znIBrowserViewColumn* const column = RequireScriptedColumn(*this, name, "\" cannot be showed on/off");
    return column && HostAnswer(column->SetShown(show));
}

bool znBrowserManagerTcl::MoveCurrentColumn(const char* name, int position) {
    BeginOperation();
    znIBrowserViewColumn* const column = RequireScriptedColumn(*this, name, "\" cannot be moved");
    return column && AskBrowser(*this, &znIBrowser::MoveColumn, current_.view, column, position);
}

bool znBrowserManagerTcl::SetViewColumnJustify(const char* name, const char* justify) {
    BeginOperation();
    znIBrowserViewColumn* const column = RequireScriptedColumn(*this, name, "\" cannot be justified");
    return column && AskBrowser(*this, &znIBrowser::SetColumnJustify, current_.view, column, justify);
}

bool znBrowserManagerTcl::SetViewColumnWidth(const char* name, const char* width) {
    BeginOperation();
    znIBrowserViewColumn* const column = RequireColumn(*this, name);
    return column && AskBrowser(*this, &znIBrowser::SetColumnWidth, column, width);
}

bool znBrowserManagerTcl::GetViewColumnWidth(const char* name) {
    BeginOperation();
    if (!current_.windowAccess) return Fail(messages::noCurrentWindow);
    if (!current_.view) return Fail(messages::noCurrentView);
    znIBrowserViewColumn* const column = RequireColumn(*this, name);
    if (column) current_.windowAccess->ReportColumnWidth(column);
    return column != nullptr;
}

bool znBrowserManagerTcl::SetCurrentColumn(const char* name) {
    BeginOperation();
    if (!current_.view) return Fail(noViewHandle);
    znIBrowserViewColumn* const column = FindColumn(current_.view, name);
    if (!column) return FailWith({"Unable to find column: ", name});
    SetCurrentColumn(column);
    UpdateCurrentStyle(column);
    return GetState();
}

bool znBrowserManagerTcl::GetCurrentColumn(znString& out) {
    BeginOperation();
    if (!current_.column) return Fail(noColumnName);
    out = current_.column->GetName();
    return true;
}

bool znBrowserManagerTcl::GetColumnNames(znString& out) {
    BeginOperation();
    if (!current_.view) return Fail(noViewHandle);
    std::vector<znIBrowserViewColumn*> columns;
    if (!current_.view->GetColumns(columns)) return Fail("Cannot get list of view columns");
    return NameList().AddNames(columns, NullName::IsLeftOut).Give(*this, out);
}

bool znBrowserManagerTcl::GetColumnCaption(znString& out) {
    BeginOperation();
    if (!current_.column) return Fail(noColumnHandle);
    out = current_.column->GetCaption();
    return true;
}

bool znBrowserManagerTcl::SetColumnCaption(const char* caption) {
    BeginOperation();
    if (!current_.column) return Fail(noColumnHandle);
    return HostAnswer(current_.column->SetCaption(caption));
}

bool znBrowserManagerTcl::GetColumnItalic(znString& out) {
    BeginOperation();
    if (!current_.column) return Fail(noColumnHandle);
    return GiveBool(current_.column->GetItalic(), out);
}

bool znBrowserManagerTcl::SetColumnItalic(bool italic) {
    BeginOperation();
    if (!current_.column) return Fail(noColumnHandle);
    return HostAnswer(current_.column->SetItalic(italic));
}

bool znBrowserManagerTcl::GetColumnSorting(znString& out) {
    BeginOperation();
    if (!current_.column) return Fail(noColumnHandle);
    return GiveBool(current_.column->GetSorting(), out);
}

bool znBrowserManagerTcl::SetColumnSorting(bool sorting) {
    BeginOperation();
    if (!current_.column) return Fail(noColumnHandle);
    return HostAnswer(current_.column->SetSorting(sorting));
}

bool znBrowserManagerTcl::GetViewColumnShownState(znString& out) {
    BeginOperation();
    if (!current_.column) return Fail("Cannot get a handle to the current view column");
    return GiveBool(current_.column->GetShown(), out);
}

bool znBrowserManagerTcl::SortDefaultColumnByCustomProperty(znString& out) {
    BeginOperation();
    const znIBrowserViewColumn* const column = DefaultColumn(current_.column);
    if (!column) return Fail(noColumnHandle);
    out = column->GetSortProperty();
    return true;
}

bool znBrowserManagerTcl::SetSortDefaultColumnByCustomProperty(const char* property) {
    BeginOperation();
    znIBrowserViewColumn* const column = DefaultColumn(current_.column);
    if (!column) return Fail(noColumnHandle);
    return HostAnswer(column->SetSortProperty(property));
}

bool znBrowserManagerTcl::SetCurrentColumnPopupMenu(const char* name) {
    BeginOperation();
    if (!current_.column) return Fail(noColumnHandle);
    return HostAnswer(current_.column->SetPopupMenu(name));
}

bool znBrowserManagerTcl::GetCurrentColumnPopupMenu(znString& out) {
    BeginOperation();
    if (!current_.column) return Fail(noColumnHandle);
    const znIBrowserPopupMenu* const menu = current_.column->GetPopupMenu();
    out = menu ? menu->GetName() : "";
    return true;
}
