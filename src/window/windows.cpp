// Windows: making, choosing, showing and deleting them.
#include "frame/current_lifetimes.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserApplication.h"
#include "host/znIBrowserWindowAccess.h"
#include "znBrowserManagerTcl.h"
#include "znBrowserMessages.h"

#include <cstring>

using namespace znlayer;

namespace {

constexpr char noHandle[] = "Cannot get handle to current window";
constexpr char noTree[] = "Cannot get handle to window";

bool IsCalled(const znIBrowserWindowAccess* window, const char* name) {
    const char* const own = window ? window->GetName() : nullptr;
    return own && std::strcmp(own, name) == 0;
}

std::vector<znIBrowserWindowAccess*> Windows(znIBrowser* browser) {
    std::vector<znIBrowserWindowAccess*> windows;
    znIBrowserWindowAccessList* const list = browser ? browser->GetWindowAccessList() : nullptr;
    if (list) list->GetWindowAccesses(windows, 0);
    return windows;
}

} // namespace

znIBrowserWindowAccess* znlayer::FindWindowAccess(const znBrowserManagerTcl& manager, const char* name) {
    znIBrowser* const browser = BrowserOf(manager);
    znIBrowserWindowAccessList* const list = browser ? browser->GetWindowAccessList() : nullptr;
    return FindNamed(list, &znIBrowserWindowAccessList::FindWindowAccess, name);
}

bool znBrowserManagerTcl::CreateWindowAccess(const char* name) {
    const Operation operation(*this);
    if (!name) return false;
    if (!current_.view) return operation.Fail("Cannot get handle to the current view");
    if (FindWindowAccess(*this, name)) return operation.Fail({"Window ", name, " already exists"});
    znIBrowser* const browser = BrowserOf(*this);
    if (!browser || !browser->CreateWindowAccess(name, current_.view)) return operation.FailWithHostError();
    znIBrowserWindowAccess* const window = FindWindowAccess(*this, name);
    if (!window) return false;
    SetCurrentWindowAccess(window);
    return true;
}

bool znBrowserManagerTcl::DeleteWindowAccess(const char* name) {
    const Operation operation(*this);
    if (!name) return true;
    znIBrowserWindowAccess* const window = FindWindowAccess(*this, name);
    if (!window) return operation.Fail({"Window : ", name, " not found"});
    const znBrowserCurrentObjects doomed = CurrentsInside(*this, window);
    znIBrowser* const browser = BrowserOf(*this);
    const auto deletion = [&] { return browser && browser->DeleteWindowAccess(window); };
    if (!DeleteAndForget(*this, doomed, deletion)) return operation.FailWithHostError();
    const std::vector<znIBrowserWindowAccess*> remaining = Windows(BrowserOf(*this));
    if (remaining.empty()) {
        ResetCurrentWindowAccess(); // the host knows that none is left
    } else {
        SetCurrentWindowAccess(remaining.front());
    }
    ResetCurrentWindowPart();
    return true;
}

bool znBrowserManagerTcl::SetCurrentWindowAccess(const char* name) {
    const Operation operation(*this);
    if (!name) return true;
    if (IsCalled(current_.windowAccess, name)) {
        application_->GetWindowReselectedSignal().Emit(name);
        return true;
    }
    znIBrowserWindowAccess* const window = FindWindowAccess(*this, name);
    if (!window) return operation.Fail({"Cannot not find window access : ", name});
    SetCurrentWindowAccess(window);
    UpdateCurrentView(window->GetView());
    return true;
}

// The name is only given while a column is current: scripts have come to rely on it.
bool znBrowserManagerTcl::GetCurrentWindowAccess(znString& out) {
    const Operation operation(*this);
    out = current_.column && current_.windowAccess ? current_.windowAccess->GetName() : "";
    return true;
}

bool znBrowserManagerTcl::GetWindowAccessNames(znString& out) {
    const Operation operation(*this);
    return NameList(EntryForm::Plain, ExtraBlanks::Between)
        .AddNames(Windows(BrowserOf(*this)))
        .Give(*this, out);
}

bool znBrowserManagerTcl::PostWindowAccess(bool post) {
    const Operation operation(*this);
    znIBrowserWindowAccess* const window = current_.windowAccess;
    if (!window) return true;
    znIBrowser* const browser = BrowserOf(*this);
    const bool accepted = operation.HostAnswer(browser && browser->PostWindowAccess(window, post));
    // Posting runs the scripts that fill the window, and these may have chosen another one or deleted this
    // one.
    if (current_.windowAccess == window) SetCurrentWindowAccess(window);
    return accepted;
}

bool znBrowserManagerTcl::IsWindowAccessPosted(bool& posted) {
    const Operation operation(*this);
    if (current_.windowAccess) posted = current_.windowAccess->IsPosted();
    return true;
}

bool znBrowserManagerTcl::SetWindowBackgroundColor(const char* color, bool flag) {
    const Operation operation(*this);
    if (!current_.windowAccess) return operation.Fail(noHandle);
    znIBrowser* const browser = BrowserOf(*this);
    return operation.HostAnswer(browser &&
                                browser->SetWindowBackgroundColor(current_.windowAccess, color, flag));
}

bool znBrowserManagerTcl::GetCurrentWindowBackgroundColor(znString& out) {
    const Operation operation(*this);
    if (current_.windowAccess) out = current_.windowAccess->GetBackgroundColor();
    return true;
}

bool znBrowserManagerTcl::SetWindowStripeDisplay(bool on, bool all) {
    const Operation operation(*this);
    if (!all && !current_.windowAccess) return operation.Fail(noHandle);
    znIBrowser* const browser = BrowserOf(*this);
    return operation.HostAnswer(browser && browser->SetWindowStripeDisplay(current_.windowAccess, on, all));
}

bool znBrowserManagerTcl::GetCurrentWindowStripeDisplay(bool& on) {
    const Operation operation(*this);
    if (current_.windowAccess) on = current_.windowAccess->GetStripeDisplay();
    return true;
}

bool znBrowserManagerTcl::SetCurrentWindowTkFrame(const znString& frame) {
    const Operation operation(*this);
    if (!current_.windowAccess) return operation.Fail(znBrowserMessages::noCurrentWindow);
    znIBrowser* const browser = BrowserOf(*this);
    if (!browser) return operation.FailWithHostError();
    browser->SetWindowTkFrame(current_.windowAccess, frame.c_str());
    return true;
}

bool znBrowserManagerTcl::GetCurrentWindowTkFrame(znString& out) {
    const Operation operation(*this);
    if (!current_.windowAccess) return operation.Fail(noHandle);
    out = current_.windowAccess->GetTkFrame();
    return true;
}

bool znBrowserManagerTcl::CollapseAllItems() {
    const Operation operation(*this);
    return current_.windowAccess ? operation.HostAnswer(current_.windowAccess->CollapseAllItems())
                                 : operation.Fail(noTree);
}

bool znBrowserManagerTcl::CollapseSelectedItems() {
    const Operation operation(*this);
    return current_.windowAccess ? operation.HostAnswer(current_.windowAccess->CollapseSelectedItems())
                                 : operation.Fail(noTree);
}

bool znBrowserManagerTcl::ExpandAllItems() {
    const Operation operation(*this);
    return current_.windowAccess ? operation.HostAnswer(current_.windowAccess->ExpandAllItems())
                                 : operation.Fail(noTree);
}

bool znBrowserManagerTcl::ExpandSelectedItems() {
    const Operation operation(*this);
    return current_.windowAccess ? operation.HostAnswer(current_.windowAccess->ExpandSelectedItems())
                                 : operation.Fail(noTree);
}
