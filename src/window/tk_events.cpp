// Events of the Tk tree and of the collector bar: the window that an event names becomes current, and takes
// the event.
//
// The error state is not cleared first; choosing the window does that. A window may run scripts for an event,
// and a script may delete the window: nothing here touches it after it has answered.
#include "frame/operation.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserWindowAccess.h"
#include "znBrowserManagerTcl.h"

using namespace znlayer;

namespace {

/// The window that an event names, made current; null, and an error, when there is none.
znIBrowserWindowAccess* SelectWindow(znBrowserManagerTcl& manager, const char* name) {
    manager.ResetBuff();
    if (!FindWindowAccess(manager, name)) {
        Operation(manager, Operation::State::Kept).Fail({"Cannot find window called : ", name});
        return nullptr;
    }
    manager.SetCurrentWindowAccess(name);
    // Once more: whoever heard of the choice may have deleted the window.
    return FindWindowAccess(manager, name);
}

} // namespace

bool znBrowserManagerTcl::OnTkTreeRequestExpand(const char* window, unsigned int tkIndex) {
    znIBrowserWindowAccess* const target = SelectWindow(*this, window);
    return target && target->RequestExpand(tkIndex);
}

bool znBrowserManagerTcl::OnTkTreeRequestCollapse(const char* window, unsigned int tkIndex) {
    znIBrowserWindowAccess* const target = SelectWindow(*this, window);
    return target && target->RequestCollapse(tkIndex);
}

bool znBrowserManagerTcl::OnTkTreeSetStatePos(const char* window, int position) {
    znIBrowserWindowAccess* const target = SelectWindow(*this, window);
    return target && target->SetStatePos(position);
}

bool znBrowserManagerTcl::OnTkTreeSelectionAdded(const char* window,
                                                 const std::vector<unsigned int>& indices) {
    znIBrowserWindowAccess* const target = SelectWindow(*this, window);
    return target && target->SelectionAdded(indices);
}

bool znBrowserManagerTcl::OnTkTreeSelectionRemoved(const char* window,
                                                   const std::vector<unsigned int>& indices) {
    znIBrowserWindowAccess* const target = SelectWindow(*this, window);
    return target && target->SelectionRemoved(indices);
}

bool znBrowserManagerTcl::OnTkTreeSelectionUpdate(const char* window,
                                                  const std::vector<unsigned int>& indices) {
    znIBrowserWindowAccess* const target = SelectWindow(*this, window);
    return target && target->SelectionUpdate(indices);
}

bool znBrowserManagerTcl::OnTkTreeSelectionChangeFinished(const char* window) {
    znIBrowserWindowAccess* const target = SelectWindow(*this, window);
    return target && target->SelectionChangeFinished();
}

bool znBrowserManagerTcl::OnTkTreePopupMenu(const char* window, bool on) {
    znIBrowserWindowAccess* const target = SelectWindow(*this, window);
    return target && target->PopupMenu(on);
}

bool znBrowserManagerTcl::OnTkTreeCheckBoxClick(const char* window, const char* column, const char* element,
                                                unsigned int tkIndex, bool value) {
    znIBrowserWindowAccess* const target = SelectWindow(*this, window);
    return target && target->CheckBoxClick(column, element, tkIndex, value);
}

bool znBrowserManagerTcl::OnTkTreeWindowButtonClick(const char* window, const char* column,
                                                    const char* element, unsigned int tkIndex,
                                                    const char* value) {
    znIBrowserWindowAccess* const target = SelectWindow(*this, window);
    return target && target->WindowButtonClick(column, element, tkIndex, value);
}

bool znBrowserManagerTcl::OnTkTreeLeftHandClick(const char* window, const char* column, const char* element,
                                                unsigned int tkIndex) {
    znIBrowserWindowAccess* const target = SelectWindow(*this, window);
    return target && target->LeftHandClick(column, element, tkIndex);
}

bool znBrowserManagerTcl::OnTkTreeRightHandClick(const char* window, const char* column,
                                                 const std::vector<unsigned int>& indices) {
    znIBrowserWindowAccess* const target = SelectWindow(*this, window);
    if (!target) return false;
    znIBrowserView* const view = target->GetView();
    znIBrowserViewColumn* const found = FindNamed(view, &znIBrowserView::FindColumn, column);
    if (!found) {
        return Operation(*this, Operation::State::Kept).Fail({"Cannot find column called : ", column});
    }
    return target->RightHandClick(found, indices);
}

bool znBrowserManagerTcl::OnTkTreeSetDropItem(const char* window, unsigned int target,
                                              const std::vector<unsigned int>& indices) {
    znIBrowserWindowAccess* const access = SelectWindow(*this, window);
    return access && access->SetDropItem(target, indices);
}

bool znBrowserManagerTcl::OnTkTreePerformPopupOperation(const char* window, const char* first,
                                                        const char* second) {
    znIBrowserWindowAccess* const target = SelectWindow(*this, window);
    return target && target->PerformPopupOperation(first, second);
}

bool znBrowserManagerTcl::OnTkTreeDispElemsToggleClick(const char* window, int) {
    if (FindWindowAccess(*this, window)) return true;
    return Operation(*this, Operation::State::Kept).Fail({"Cannot find window called : ", window});
}

bool znBrowserManagerTcl::OnTkTreeDispGeomsToggleClick(const char* window, int value) {
    return OnTkTreeDispElemsToggleClick(window, value);
}

// The collector bar belongs to the window, what is chosen in it to the collector.
bool znBrowserManagerTcl::OnTkColListItemSelected(const char* window, const char* dataSource) {
    return SelectWindow(*this, window) && SetCurrentCollectorDataSourceSimple(dataSource);
}

bool znBrowserManagerTcl::OnTkColOptionItemSelected(const char* window, const char* option) {
    return SelectWindow(*this, window) && SetCurrentCollectorOption(option);
}
