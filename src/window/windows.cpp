// Windows: making, choosing, showing and deleting them.
#include "frame/deletion.h"
#include "frame/messages.h"
#include "frame/name_list.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserApplication.h"
#include "host/znIBrowserWindowAccess.h"
#include "znBrowserManagerTcl.h"

#include <cstring>

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

znIBrowserWindowAccess* znBrowserManagerTcl::FindWindowAccess(const char* name) const {
    znIBrowser* const browser = GetBrowser();
    znIBrowserWindowAccessList* const list = browser ? browser->GetWindowAccessList() : nullptr;
    return list && name ? list->FindWindowAccess(name) : nullptr;
}

bool znBrowserManagerTcl::CreateWindowAccess(const char* name) {
    BeginOperation();
    if (!name) return false;
    if (!current_.view) return Fail("Cannot get handle to the current view");
    if (FindWindowAccess(name)) return FailWith({"Window ", name, " already exists"});
    znIBrowser* const browser = GetBrowser();
    if (!browser || !browser->CreateWindowAccess(name, current_.view)) return FailWithHostError();
    znIBrowserWindowAccess* const window = FindWindowAccess(name);
    if (!window) return false;
    SetCurrentWindowAccess(window);
    return true;
}

bool znBrowserManagerTcl::DeleteWindowAccess(const char* name) {
    BeginOperation();
    if (!name) return true;
    znIBrowserWindowAccess* const window = FindWindowAccess(name);
    if (!window) return FailWith({"Window : ", name, " not found"});
    const znBrowserCurrentObjects doomed = CurrentsInside(window);
    znIBrowser* const browser = GetBrowser();
    const auto deletion = [&] { return browser && browser->DeleteWindowAccess(window); };
    if (!DeleteAndForget(deletion, [&] { Forget(doomed); })) return FailWithHostError();
    const std::vector<znIBrowserWindowAccess*> remaining = Windows(GetBrowser());
    if (remaining.empty()) {
        ResetCurrentWindowAccess(); // the host knows that none is left
    } else {
        SetCurrentWindowAccess(remaining.front());
    }
    ResetCurrentWindowPart();
    return true;
}

bool znBrowserManagerTcl::SetCurrentWindowAccess(const char* name) {
    BeginOperation();
    if (!name) return true;
    if (IsCalled(current_.windowAccess, name)) {
        application_->GetWindowReselectedSignal().Emit(name);
        return true;
    }
    znIBrowserWindowAccess* const window = FindWindowAccess(name);
    if (!window) return FailWith({"Cannot not find window access : ", name});
    SetCurrentWindowAccess(window);
    UpdateCurrentView(window->GetView());
    return true;
}

// The name is only given while a column is current: scripts have come to rely on it.
bool znBrowserManagerTcl::GetCurrentWindowAccess(znString& out) {
    BeginOperation();
    out = current_.column && current_.windowAccess ? current_.windowAccess->GetName() : "";
    return true;
}

bool znBrowserManagerTcl::GetWindowAccessNames(znString& out) {
    BeginOperation();
    return NameList(EntryForm::Plain, ExtraBlanks::Between).AddNames(Windows(GetBrowser())).Give(*this, out);
}

bool znBrowserManagerTcl::PostWindowAccess(bool post) {
    BeginOperation();
    znIBrowserWindowAccess* const window = current_.windowAccess;
    if (!window) return true;
    znIBrowser* const browser = GetBrowser();
    const bool accepted = HostAnswer(browser && browser->PostWindowAccess(window, post));
    // Posting runs the scripts that fill the window, and these may have chosen another one or deleted this
    // one.
    if (current_.windowAccess == window) SetCurrentWindowAccess(window);
    return accepted;
}

bool znBrowserManagerTcl::IsWindowAccessPosted(bool& posted) {
    BeginOperation();
    if (current_.windowAccess) posted = current_.windowAccess->IsPosted();
    return true;
}

bool znBrowserManagerTcl::SetWindowBackgroundColor(const char* color, bool flag) {
    BeginOperation();
    if (!current_.windowAccess) return Fail(noHandle);
    znIBrowser* const browser = GetBrowser();
    return HostAnswer(browser && browser->SetWindowBackgroundColor(current_.windowAccess, color, flag));
}

bool znBrowserManagerTcl::GetCurrentWindowBackgroundColor(znString& out) {
    BeginOperation();
    if (current_.windowAccess) out = current_.windowAccess->GetBackgroundColor();
    return true;
}

bool znBrowserManagerTcl::SetWindowStripeDisplay(bool on, bool all) {
    BeginOperation();
    if (!all && !current_.windowAccess) return Fail(noHandle);
    znIBrowser* const browser = GetBrowser();
    return HostAnswer(browser && browser->SetWindowStripeDisplay(current_.windowAccess, on, all));
}

bool znBrowserManagerTcl::GetCurrentWindowStripeDisplay(bool& on) {
    BeginOperation();
    if (current_.windowAccess) on = current_.windowAccess->GetStripeDisplay();
    return true;
}

bool znBrowserManagerTcl::SetCurrentWindowTkFrame(const znString& frame) {
    BeginOperation();
    if (!current_.windowAccess) return Fail(messages::noCurrentWindow);
    znIBrowser* const browser = GetBrowser();
    if (!browser) return FailWithHostError();
    browser->SetWindowTkFrame(current_.windowAccess, frame.c_str());
    return true;
}

bool znBrowserManagerTcl::GetCurrentWindowTkFrame(znString& out) {
    BeginOperation();
    if (!current_.windowAccess) return Fail(noHandle);
    out = current_.windowAccess->GetTkFrame();
    return true;
}

bool znBrowserManagerTcl::CollapseAllItems() {
    BeginOperation();
    return current_.windowAccess ? HostAnswer(current_.windowAccess->CollapseAllItems()) : Fail(noTree);
}

bool znBrowserManagerTcl::CollapseSelectedItems() {
    BeginOperation();
    return current_.windowAccess ? HostAnswer(current_.windowAccess->CollapseSelectedItems()) : Fail(noTree);
}

bool znBrowserManagerTcl::ExpandAllItems() {
    BeginOperation();
    return current_.windowAccess ? HostAnswer(current_.windowAccess->ExpandAllItems()) : Fail(noTree);
}

bool znBrowserManagerTcl::ExpandSelectedItems() {
    BeginOperation();
    return current_.windowAccess ? HostAnswer(current_.windowAccess->ExpandSelectedItems()) : Fail(noTree);
}
