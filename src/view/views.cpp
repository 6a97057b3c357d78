// Views: created, chosen, deleted and redrawn.
#include "frame/current_lifetimes.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserWindowAccess.h"
#include "view/view_messages.h"
#include "znBrowserMessages.h"

using namespace znlayer;

namespace {

/// The first window that shows the view, or null.
znIBrowserWindowAccess* FindWindowOf(znIBrowser& browser, znIBrowserView* view) {
    std::vector<znIBrowserWindowAccess*> windows;
    znIBrowserWindowAccessList* const list = browser.GetWindowAccessList();
    if (list) list->GetWindowAccesses(windows, 0);
    for (znIBrowserWindowAccess* const window : windows) {
        if (window && window->GetView() == view) return window;
    }
    return nullptr;
}

std::vector<znIBrowserView*> Views(znIBrowser& browser) {
    std::vector<znIBrowserView*> views;
    znIBrowserViewList* const list = browser.GetViewList();
    if (list) list->GetViews(views, 0);
    return views;
}

} // namespace

znIBrowserView* znlayer::FindView(const znBrowserManagerTcl& manager, const char* name) {
    znIBrowser* const browser = BrowserOf(manager);
    return FindNamed(browser ? browser->GetViewList() : nullptr, &znIBrowserViewList::FindView, name);
}

bool znBrowserManagerTcl::CreateView(const char* name, bool flag) {
    const Operation operation(*this);
    znIBrowser* const browser = BrowserOf(*this);
    if (!name || !browser) return false;
    if (!browser->CreateView(name, flag)) throw "Could not create view";
    znIBrowserView* const view = FindView(*this, name);
    if (!view) return false;
    SetCurrentView(view);
    return true;
}

bool znBrowserManagerTcl::DeleteView(const char* name) {
    const Operation operation(*this);
    znIBrowser* const browser = BrowserOf(*this);
    if (!browser) return false;
    znIBrowserView* const view = FindView(*this, name);
    if (!view) return operation.Fail({"Cannot find view : ", name});
    if (znIBrowserWindowAccess* const window = FindWindowOf(*browser, view)) {
        return operation.Fail({"Cannot delete view : ", view->GetName().c_str(),
                               " It is used by at least one window : ", window->GetName()});
    }
    const znBrowserCurrentObjects doomed = CurrentsInside(*this, view);
    const auto deletion = [&] { return operation.Ask(&znIBrowser::DeleteView, view); };
    if (!DeleteAndForget(*this, doomed, deletion)) return false;
    const std::vector<znIBrowserView*> remaining = Views(*browser);
    UpdateCurrentView(remaining.empty() ? nullptr : remaining.front());
    return GetState();
}

bool znBrowserManagerTcl::SetCurrentView(const char* name) {
    const Operation operation(*this);
    if (!name) return operation.Fail("Cannot set current view to NULL");
    znIBrowserView* const view = FindView(*this, name);
    if (!view) return operation.Fail({"Cannot not find view : ", name});
    UpdateCurrentView(view);
    return GetState();
}

bool znBrowserManagerTcl::GetViewNames(znString& out) {
    const Operation operation(*this);
    znIBrowser* const browser = BrowserOf(*this);
    return browser && NameList().AddNames(Views(*browser), NullName::IsLeftOut).Give(*this, out);
}

bool znBrowserManagerTcl::RedrawAllViews() {
    znIBrowser* const browser = BrowserOf(*this);
    if (!current_.dataCtrl || !browser) return false;
    browser->RedrawViews(current_.dataCtrl);
    return true;
}

bool znBrowserManagerTcl::SetItalic(bool italic) {
    const Operation operation(*this);
    return current_.view ? SetColumnItalic(italic) : operation.Fail(view_messages::noViewName);
}

bool znBrowserManagerTcl::GetItalic(znString& out) {
    const Operation operation(*this);
    return current_.view ? GetColumnItalic(out) : operation.Fail(view_messages::noViewName);
}
