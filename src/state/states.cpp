// States: saved configurations of a window, kept by the data control.
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserState.h"
#include "znBrowserManagerTcl.h"

using namespace znlayer;

namespace {

constexpr char noDataCtrl[] = "Cannot get handle to the current datactrl";
constexpr char noState[] = "Cannot get handle to the current state";
constexpr char noWindow[] = "Cannot get handle to the current window access";

znIBrowserStateContainer* StatesOf(znIBrowserDataCtrl* control) {
    return control ? control->GetStateContainer() : nullptr;
}

} // namespace

bool znBrowserManagerTcl::SetCurrentState(const char* name) {
    const Operation operation(*this);
    if (!current_.dataCtrl) return operation.Fail(noDataCtrl);
    znIBrowserStateContainer* const states = StatesOf(current_.dataCtrl);
    znIBrowserState* const state = FindNamed(states, &znIBrowserStateContainer::FindState, name);
    if (!state) return operation.Fail({"Cannot find state name : ", name});
    SetCurrentState(state);
    return true;
}

bool znBrowserManagerTcl::GetCurrentState(znString& out) {
    const Operation operation(*this);
    out = current_.state ? current_.state->GetName() : "";
    return true;
}

bool znBrowserManagerTcl::GetStateNames(znString& out) {
    const Operation operation(*this);
    if (!current_.dataCtrl) return operation.Fail(noDataCtrl);
    std::vector<znIBrowserState*> states;
    znIBrowserStateContainer* const container = StatesOf(current_.dataCtrl);
    if (container) container->GetStates(states);
    return NameList(EntryForm::Plain, ExtraBlanks::After).AddNames(states).Give(*this, out);
}

bool znBrowserManagerTcl::SaveCurrentState() {
    const Operation operation(*this);
    if (!current_.state) return operation.Fail(noState);
    if (!current_.windowAccess) return operation.Fail(noWindow);
    znIBrowserStateContainer* const states = StatesOf(current_.dataCtrl);
    return (states && states->SaveState(current_.state, current_.windowAccess)) ||
           operation.Fail("Cannot save configuration to the current state");
}

bool znBrowserManagerTcl::RestoreCurrentState() {
    const Operation operation(*this);
    if (!current_.state) return operation.Fail(noState);
    if (!current_.windowAccess) return operation.Fail(noWindow);
    znIBrowser* const browser = BrowserOf(*this);
    return (browser && browser->RestoreState(current_.state, current_.windowAccess)) ||
           operation.Fail("Cannot restore configuration from the current state");
}

bool znBrowserManagerTcl::CurrentStateAddEntities(const std::vector<znString>& entities) {
    const Operation operation(*this);
    if (!current_.dataCtrl) return operation.Fail(noDataCtrl);
    if (!current_.state) return operation.Fail(noState);
    znIBrowser* const browser = BrowserOf(*this);
    return (browser && browser->AddStateEntities(current_.dataCtrl, current_.state, entities)) ||
           operation.Fail("Cannot add entities to the current state");
}

bool znBrowserManagerTcl::CurrentStateRemoveEntities(const std::vector<znString>& entities) {
    const Operation operation(*this);
    if (!current_.dataCtrl) return operation.Fail(noDataCtrl);
    if (!current_.state) return operation.Fail(noState);
    znIBrowser* const browser = BrowserOf(*this);
    return (browser && browser->RemoveStateEntities(current_.dataCtrl, current_.state, entities)) ||
           operation.Fail("Cannot remove entities from the current state");
}
