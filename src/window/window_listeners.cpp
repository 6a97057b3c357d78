// Listeners: named procedures that hear of the events of a window.
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserWindowAccess.h"
#include "znBrowserManagerTcl.h"

using namespace znlayer;

namespace {

constexpr char noWindow[] = "Cannot find current window!!";

} // namespace

bool znBrowserManagerTcl::AddWindowListener(const char* name) {
    const Operation operation(*this);
    if (!current_.windowAccess) return operation.Fail(noWindow);
    return operation.HostAnswer(name && current_.windowAccess->AddListener(name));
}

bool znBrowserManagerTcl::DeleteWindowListener(const char* name) {
    const Operation operation(*this);
    if (!current_.windowAccess) return operation.Fail(noWindow);
    return operation.HostAnswer(name && current_.windowAccess->DeleteListener(name));
}

bool znBrowserManagerTcl::GetWindowListenerNames(znString& out) {
    const Operation operation(*this);
    if (!current_.windowAccess) return operation.Fail(noWindow);
    std::vector<znString> names;
    current_.windowAccess->GetListenerNames(names);
    return NameList(EntryForm::Plain, ExtraBlanks::Between).AddTexts(names).Give(*this, out);
}
