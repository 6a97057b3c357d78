// Events of the Tk tree: the window that an event names becomes current, and takes the event.
//
// The error state is not cleared first; choosing the window does that. A window may run scripts for an event,
// and a script may delete the window: nothing here touches it after it has answered.
#include "host/znIBrowserView.h"
#include "host/znIBrowserWindowAccess.h"
#include "znBrowserManagerTcl.h"

znIBrowserWindowAccess* znBrowserManagerTcl::SelectEventWindow(const char* name) {
    ResetBuff();
    if (!FindWindowAccess(name)) {
        FailWith({"Cannot find window called : ", name});
        return nullptr;
    }
    SetCurrentWindowAccess(name);
    return FindWindowAccess(name); // Once more: whoever heard of the choice may have deleted the window.
}

bool znBrowserManagerTcl::OnTkTreeRequestExpand(const char* window, unsigned int tkIndex) {
    znIBrowserWindowAccess* const target = SelectEventWindow(window);
    return target && target->RequestExpand(tkIndex);
}

bool znBrowserManagerTcl::OnTkTreeRequestCollapse(const char* window, unsigned int tkIndex) {
    znIBrowserWindowAccess* const target = SelectEventWindow(window);
    return target && target->RequestCollapse(tkIndex);
}

bool znBrowserManagerTcl::OnTkTreeSetStatePos(const char* window, int position) {
    znIBrowserWindowAccess* const target = SelectEventWindow(window);
    return target && target->SetStatePos(position);
}

bool znBrowserManagerTcl::OnTkTreeSelectionAdded(const char* window,
                                                 const std::vector<unsigned int>& indices) {
    znIBrowserWindowAccess* const target = SelectEventWindow(window);
    return target && target->SelectionAdded(indices);
}

bool znBrowserManagerTcl::OnTkTreeSelectionRemoved(const char* window,
                                                   const std::vector<unsigned int>& indices) {
    znIBrowserWindowAccess* const target = SelectEventWindow(window);
    return target && target->SelectionRemoved(indices);
}

bool znBrowserManagerTcl::OnTkTreeSelectionUpdate(const char* window,
                                                  const std::vector<unsigned int>& indices) {
    znIBrowserWindowAccess* const target = SelectEventWindow(window);
    return target && target->SelectionUpdate(indices);
}

bool znBrowserManagerTcl::OnTkTreeSelectionChangeFinished(const char* window) {
    znIBrowserWindowAccess* const target = SelectEventWindow(window);
    return target && target->SelectionChangeFinished();
}

bool znBrowserManagerTcl::OnTkTreePopupMenu(const char* window, bool on) {
    znIBrowserWindowAccess* const target = SelectEventWindow(window);
    return target && target->PopupMenu(on);
}

bool znBrowserManagerTcl::OnTkTreeCheckBoxClick(const char* window, const char* column, const char* element,
                                                unsigned int tkIndex, bool value) {
    znIBrowserWindowAccess* const target = SelectEventWindow(window);
    return target && target->CheckBoxClick(column, element, tkIndex, value);
}

bool znBrowserManagerTcl::OnTkTreeWindowButtonClick(const char* window, const char* column,
                                                    const char* element, unsigned int tkIndex,
                                                    const char* value) {
    znIBrowserWindowAccess* const target = SelectEventWindow(window);
    return target && target->WindowButtonClick(column, element, tkIndex, value);
}

bool znBrowserManagerTcl::OnTkTreeLeftHandClick(const char* window, const char* column, const char* element,
                                                unsigned int tkIndex) {
    znIBrowserWindowAccess* const target = SelectEventWindow(window);
    return target && target->LeftHandClick(column, element, tkIndex);
}

bool znBrowserManagerTcl::OnTkTreeRightHandClick(const char* window, const char* column,
                                                 const std::vector<unsigned int>& indices) {
    znIBrowserWindowAccess* const target = SelectEventWindow(window);
    if (!target) return false;
    znIBrowserView* const view = target->GetView();
    znIBrowserViewColumn* const found = view && column ? view->FindColumn(column) : nullptr;
    if (!found) {
        ResetBuff();
        return FailWith({"Cannot find column called : ", column});
    }
    return target->RightHandClick(found, indices);
}

bool znBrowserManagerTcl::OnTkTreeSetDropItem(const char* window, unsigned int target,
                                              const std::vector<unsigned int>& indices) {
    znIBrowserWindowAccess* const access = SelectEventWindow(window);
    return access && access->SetDropItem(target, indices);
}

bool znBrowserManagerTcl::OnTkTreePerformPopupOperation(const char* window, const char* first,
                                                        const char* second) {
    znIBrowserWindowAccess* const target = SelectEventWindow(window);
    return target && target->PerformPopupOperation(first, second);
}

bool znBrowserManagerTcl::OnTkTreeDispElemsToggleClick(const char* window, int) {
    if (FindWindowAccess(window)) return true;
    ResetBuff();
    return FailWith({"Cannot find window called : ", window});
}

bool znBrowserManagerTcl::OnTkTreeDispGeomsToggleClick(const char* window, int value) {
    return OnTkTreeDispElemsToggleClick(window, value);
}
