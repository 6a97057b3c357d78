// Styles of the current column.
#include "frame/deletion.h"
#include "frame/messages.h"
#include "frame/name_list.h"
#include "host/znIBrowserStyle.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewColumn.h"
#include "host/znIBrowserViewItem.h"
#include "view/view_messages.h"

using namespace view_messages;

namespace {

znIBrowserStyle* FindStyle(znIBrowserViewColumn* column, const char* name) {
    return column && name ? column->FindStyle(name) : nullptr;
}

} // namespace

bool znBrowserManagerTcl::CreateViewStyle(const char* name) {
    BeginOperation();
    if (!current_.column || !name) return false;
    znIBrowserStyle* const existing = FindStyle(current_.column, name);
    if (!existing && !current_.column->CreateStyle(name)) return false;
    znIBrowserStyle* const style = existing ? existing : FindStyle(current_.column, name);
    if (!style) return false;
    SetCurrentStyle(style);
    if (current_.column) current_.column->SetStyle(style);
    // One that exists is taken into use all the same.
    return !existing || FailWith({"Can't Create, Style already exists: ", name});
}

bool znBrowserManagerTcl::DeleteViewStyle(const char* name) {
    BeginOperation();
    if (!current_.column) return false;
    znIBrowserStyle* const style = FindStyle(current_.column, name);
    if (!style) {
        return FailWith({"View style ", name, " in current column ", current_.column->GetName(),
                         " does not exist, therefore cannot be deleted."});
    }
    const znBrowserCurrentObjects doomed = CurrentsInside(style);
    const auto deletion = [&] { return current_.column->DeleteStyle(style); };
    return DeleteAndForget(deletion, [&] { Forget(doomed); }) ||
           FailWith({"View style \"", name, "\" cannot be deleted"});
}

bool znBrowserManagerTcl::SetCurrentStyle(const char* name) {
    BeginOperation();
    if (!current_.view) return Fail(noViewHandle);
    znIBrowserStyle* const style = FindStyle(current_.column, name);
    if (!style) return FailWith({"Cannot not find style: ", name, " in the current column"});
    SetCurrentStyle(style);
    UpdateCurrentStyleElement(style);
    return GetState();
}

bool znBrowserManagerTcl::GetCurrentStyle(znString& out) {
    BeginOperation();
    if (!current_.style) return Fail(noStyleName);
    out = current_.style->GetName();
    return true;
}

bool znBrowserManagerTcl::GetStyleNames(znString& out) {
    BeginOperation();
    if (!current_.column) return Fail(noColumnName);
    std::vector<znIBrowserStyle*> styles;
    current_.column->GetStyles(styles);
    return NameList(EntryForm::Braced).AddNames(styles, NullName::IsLeftOut).Give(*this, out);
}

bool znBrowserManagerTcl::SetViewItemStyle(znIBrowserViewItem* item) {
    BeginOperation();
    if (!current_.column) return Fail(noColumnHandle);
    if (!current_.style) return Fail(noStyleHandle);
    const char* const name = current_.style->GetName();
    znIBrowserStyle* const style = FindStyle(current_.column, name);
    if (!style) return FailWith({"Cannot not find style: ", name, " in the current column"});
    if (!item) return Fail(messages::nullPointer);
    return HostAnswer(item->SetStyle(style));
}
