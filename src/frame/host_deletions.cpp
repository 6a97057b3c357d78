// What a host says before it deletes an object on its own account.
#include "frame/current_lifetimes.h"
#include "znBrowserManagerTcl.h"

using namespace znlayer;

namespace {

template <class Dying>
void ForgetWith(znBrowserManagerTcl& manager, Dying* dying) {
    if (!dying) return;
    znBrowserCurrentObjects doomed = CurrentsInside(manager, dying);
    // The current list is one of the current folder's.
    if (doomed.freeFolder) doomed.list = CurrentAccess::Of(manager).list;
    Forget(manager, doomed);
}

} // namespace

void znBrowserManagerTcl::AboutToDelete(znIBrowserView* view) { ForgetWith(*this, view); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserViewColumn* column) { ForgetWith(*this, column); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserStyle* style) { ForgetWith(*this, style); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserStyleElement* element) { ForgetWith(*this, element); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserViewProperty* property) { ForgetWith(*this, property); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserViewOperation* operation) { ForgetWith(*this, operation); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserViewItemFreeFolder* folder) { ForgetWith(*this, folder); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserWindowAccess* window) { ForgetWith(*this, window); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserWindowPart* part) { ForgetWith(*this, part); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserEvent* event) { ForgetWith(*this, event); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserWindowCallback* callback) { ForgetWith(*this, callback); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserFindRequest* request) { ForgetWith(*this, request); }
void znBrowserManagerTcl::AboutToDelete(znBrowserProperty* property) { ForgetWith(*this, property); }
void znBrowserManagerTcl::AboutToDelete(znBrowserCriterion* criterion) { ForgetWith(*this, criterion); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserGuiMap* map) { ForgetWith(*this, map); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserDataCtrl* control) { ForgetWith(*this, control); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserDataSourceSimple* source) { ForgetWith(*this, source); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserDataSourceHierarchical* source) {
    ForgetWith(*this, source);
}
void znBrowserManagerTcl::AboutToDelete(znIBrowserCriteria* criteria) { ForgetWith(*this, criteria); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserDataOperation* operation) { ForgetWith(*this, operation); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserInputField* field) { ForgetWith(*this, field); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserState* state) { ForgetWith(*this, state); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserPopupMenu* menu) { ForgetWith(*this, menu); }
void znBrowserManagerTcl::AboutToDelete(znIBrowserPopupMenuItem* item) { ForgetWith(*this, item); }
