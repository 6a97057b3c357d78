// States: saved configurations of a window, kept by the data control.
#include "frame/name_list.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserState.h"
#include "znBrowserManagerTcl.h"

namespace {

constexpr char noDataCtrl[] = "Cannot get handle to the current datactrl";
constexpr char noState[] = "Cannot get handle to the current state";
constexpr char noWindow[] = "Cannot get handle to the current window access";

znIBrowserStateContainer* StatesOf(znIBrowserDataCtrl* control) {
    return control ? control->GetStateContainer() : nullptr;
}

} // namespace

bool znBrowserManagerTcl::SetCurrentState(const char* name) {
    BeginOperation();
    if (!current_.dataCtrl) return Fail(noDataCtrl);
    znIBrowserStateContainer* const states = StatesOf(current_.dataCtrl);
    znIBrowserState* const state = states && name ? states->FindState(name) : nullptr;
    if (!state) return FailWith({"Cannot find state name : ", name});
    SetCurrentState(state);
    return true;
}

bool znBrowserManagerTcl::GetCurrentState(znString& out) {
    BeginOperation();
    out = current_.state ? current_.state->GetName() : "";
    return true;
}

bool znBrowserManagerTcl::GetStateNames(znString& out) {
    BeginOperation();
    if (!current_.dataCtrl) return Fail(noDataCtrl);
    std::vector<znIBrowserState*> states;
    znIBrowserStateContainer* const container = StatesOf(current_.dataCtrl);
    if (container) container->GetStates(states);
    return NameList(EntryForm::Plain, ExtraBlanks::After).AddNames(states).Give(*this, out);
}

bool znBrowserManagerTcl::SaveCurrentState() {
    BeginOperation();
    if (!current_.state) return Fail(noState);
    if (!current_.windowAccess) return Fail(noWindow);
    znIBrowserStateContainer* const states = StatesOf(current_.dataCtrl);
    return (states && states->SaveState(current_.state, current_.windowAccess)) ||
           Fail("Cannot save configuration to the current state");
}

bool znBrowserManagerTcl::RestoreCurrentState() {
    BeginOperation();
    if (!current_.state) return Fail(noState);
    if (!current_.windowAccess) return Fail(noWindow);
    znIBrowser* const browser = GetBrowser();
    return (browser && browser->RestoreState(current_.state, current_.windowAccess)) ||
           Fail("Cannot restore configuration from the current state");
}

bool znBrowserManagerTcl::CurrentStateAddEntities(const std::vector<znString>& entities) {
    BeginOperation();
    if (!current_.dataCtrl) return Fail(noDataCtrl);
    if (!current_.state) return Fail(noState);
    znIBrowser* const browser = GetBrowser();
    return (browser && browser->AddStateEntities(current_.dataCtrl, current_.state, entities)) ||
           Fail("Cannot add entities to the current state");
}

bool znBrowserManagerTcl::CurrentStateRemoveEntities(const std::vector<znString>& entities) {
    BeginOperation();
    if (!current_.dataCtrl) return Fail(noDataCtrl);
    if (!current_.state) return Fail(noState);
    znIBrowser* const browser = GetBrowser();
    return (browser && browser->RemoveStateEntities(current_.dataCtrl, current_.state, entities)) ||
           Fail("Cannot remove entities from the current state");
}
