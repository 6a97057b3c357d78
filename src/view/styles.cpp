// Styles of the current column.
#include "frame/current_lifetimes.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserStyle.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewColumn.h"
#include "host/znIBrowserViewItem.h"
#include "view/view_messages.h"
#include "znBrowserMessages.h"

using namespace znlayer;
using namespace view_messages;

namespace {

znIBrowserStyle* FindStyle(znIBrowserViewColumn* column, const char* name) {
    return FindNamed(column, &znIBrowserViewColumn::FindStyle, name);
}

} // namespace

bool znBrowserManagerTcl::CreateViewStyle(const char* name) {
    const Operation operation(*this);
    if (!current_.column || !name) return false;
    znIBrowserStyle* const existing = FindStyle(current_.column, name);
    if (!existing && !current_.column->CreateStyle(name)) return false;
    znIBrowserStyle* const style = existing ? existing : FindStyle(current_.column, name);
    if (!style) return false;
    SetCurrentStyle(style);
    if (current_.column) current_.column->SetStyle(style);
    // One that exists is taken into use all the same.
    return !existing || operation.Fail({"Can't Create, Style already exists: ", name});
}

bool znBrowserManagerTcl::DeleteViewStyle(const char* name) {
    const Operation operation(*this);
    if (!current_.column) return false;
    znIBrowserStyle* const style = FindStyle(current_.column, name);
    if (!style) {
        return operation.Fail({"View style ", name, " in current column ", current_.column->GetName(),
                               " does not exist, therefore cannot be deleted."});
    }
    const znBrowserCurrentObjects doomed = CurrentsInside(*this, style);
    const auto deletion = [&] { return current_.column->DeleteStyle(style); };
    return DeleteAndForget(*this, doomed, deletion) ||
           operation.Fail({"View style \"", name, "\" cannot be deleted"});
}

bool znBrowserManagerTcl::SetCurrentStyle(const char* name) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewHandle);
    znIBrowserStyle* const style = FindStyle(current_.column, name);
    if (!style) return operation.Fail({"Cannot not find style: ", name, " in the current column"});
    SetCurrentStyle(style);
    UpdateCurrentStyleElement(style);
    return GetState();
}

bool znBrowserManagerTcl::GetCurrentStyle(znString& out) {
    const Operation operation(*this);
    if (!current_.style) return operation.Fail(noStyleName);
    out = current_.style->GetName();
    return true;
}

bool znBrowserManagerTcl::GetStyleNames(znString& out) {
    const Operation operation(*this);
    if (!current_.column) return operation.Fail(noColumnName);
    std::vector<znIBrowserStyle*> styles;
    current_.column->GetStyles(styles);
    return NameList(EntryForm::Braced).AddNames(styles, NullName::IsLeftOut).Give(*this, out);
}

bool znBrowserManagerTcl::SetViewItemStyle(znIBrowserViewItem* item) {
    const Operation operation(*this);
    if (!current_.column) return operation.Fail(noColumnHandle);
    if (!current_.style) return operation.Fail(noStyleHandle);
    const char* const name = current_.style->GetName();
    znIBrowserStyle* const style = FindStyle(current_.column, name);
    if (!style) return operation.Fail({"Cannot not find style: ", name, " in the current column"});
    if (!item) return operation.Fail(znBrowserMessages::nullPointer);
    return operation.HostAnswer(item->SetStyle(style));
}
