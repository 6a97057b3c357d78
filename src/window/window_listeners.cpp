// Listeners: named procedures that hear of the events of a window.
#include "frame/name_list.h"
#include "host/znIBrowserWindowAccess.h"
#include "znBrowserManagerTcl.h"

namespace {

constexpr char noWindow[] = "Cannot find current window!!";

} // namespace

bool znBrowserManagerTcl::AddWindowListener(const char* name) {
    BeginOperation();
    if (!current_.windowAccess) return Fail(noWindow);
    return HostAnswer(name && current_.windowAccess->AddListener(name));
}

bool znBrowserManagerTcl::DeleteWindowListener(const char* name) {
    BeginOperation();
    if (!current_.windowAccess) return Fail(noWindow);
    return HostAnswer(name && current_.windowAccess->DeleteListener(name));
}

bool znBrowserManagerTcl::GetWindowListenerNames(znString& out) {
    BeginOperation();
    if (!current_.windowAccess) return Fail(noWindow);
    std::vector<znString> names;
    current_.windowAccess->GetListenerNames(names);
    return NameList(EntryForm::Plain, ExtraBlanks::Between).AddTexts(names).Give(*this, out);
}
