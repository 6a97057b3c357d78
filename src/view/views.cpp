// Views: created, chosen, deleted and redrawn.
#include "frame/deletion.h"
#include "frame/messages.h"
#include "frame/name_list.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserWindowAccess.h"
#include "view/ask_browser.h"
#include "view/view_messages.h"

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

znIBrowserView* znBrowserManagerTcl::FindView(const char* name) const {
    znIBrowser* const browser = GetBrowser();
    znIBrowserViewList* const list = browser ? browser->GetViewList() : nullptr;
    return list && name ? list->FindView(name) : nullptr;
}

bool znBrowserManagerTcl::CreateView(const char* name, bool flag) {
    BeginOperation();
    znIBrowser* const browser = GetBrowser();
    if (!name || !browser) return false;
    if (!browser->CreateView(name, flag)) throw "Could not create view";
    znIBrowserView* const view = FindView(name);
    if (!view) return false;
    SetCurrentView(view);
    return true;
}

bool znBrowserManagerTcl::DeleteView(const char* name) {
    BeginOperation();
    znIBrowser* const browser = GetBrowser();
    if (!browser) return false;
    znIBrowserView* const view = FindView(name);
    if (!view) return FailWith({"Cannot find view : ", name});
    if (znIBrowserWindowAccess* const window = FindWindowOf(*browser, view)) {
        return FailWith({"Cannot delete view : ", view->GetName().c_str(),
                         " It is used by at least one window : ", window->GetName()});
    }
    const znBrowserCurrentObjects doomed = CurrentsInside(view);
    const auto deletion = [&] { return AskBrowser(*this, &znIBrowser::DeleteView, view); };
    if (!DeleteAndForget(deletion, [&] { Forget(doomed); })) return false;
    const std::vector<znIBrowserView*> remaining = Views(*browser);
    UpdateCurrentView(remaining.empty() ? nullptr : remaining.front());
    return GetState();
}

bool znBrowserManagerTcl::SetCurrentView(const char* name) {
    BeginOperation();
    if (!name) return Fail("Cannot set current view to NULL");
    znIBrowserView* const view = FindView(name);
    if (!view) return FailWith({"Cannot not find view : ", name});
    UpdateCurrentView(view);
    return GetState();
}

bool znBrowserManagerTcl::GetViewNames(znString& out) {
    BeginOperation();
    znIBrowser* const browser = GetBrowser();
    return browser && NameList().AddNames(Views(*browser), NullName::IsLeftOut).Give(*this, out);
}

bool znBrowserManagerTcl::RedrawAllViews() {
    znIBrowser* const browser = GetBrowser();
    if (!current_.dataCtrl || !browser) return false;
    browser->RedrawViews(current_.dataCtrl);
    return true;
}

bool znBrowserManagerTcl::SetItalic(bool italic) {
    BeginOperation();
    return current_.view ? SetColumnItalic(italic) : Fail(view_messages::noViewName);
}

bool znBrowserManagerTcl::GetItalic(znString& out) {
    BeginOperation();
    return current_.view ? GetColumnItalic(out) : Fail(view_messages::noViewName);
}
