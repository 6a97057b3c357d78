// Saved states: bringing a window back to one, and the entities kept with them.
#include "state/browser_states.h"

#include "host/znIBrowserDataCtrl.h"
#include "state/state_container.h"
#include "state/window_settings.h"
#include "window/window.h"

namespace znhost {

namespace {

/// Null, with an error text, when there is no data control.
StateContainer* ContainerOf(CallLog& log, znIBrowserDataCtrl* control) {
    const CallLog::Quiet quiet(log);
    if (control) return static_cast<StateContainer*>(control->GetStateContainer());
    log.SetError("No data control to change the states of");
    return nullptr;
}

} // namespace

bool BrowserStates::RestoreState(znIBrowserState* state, znIBrowserWindowAccess* window) {
    if (Refused("znIBrowser::RestoreState", state, window)) return false;
    if (!state || !window) return Fail("No state, or no window to restore it in");
    const State& own = static_cast<const State&>(*state);
    Settings settings;
    if (!own.Read(settings)) return false;
    if (settings.empty()) return Fail("Nothing has been saved in the state \"" + own.Name() + "\"");
    std::string text;
    const bool restored = RestoreSettings(static_cast<Window&>(*window), std::move(settings), text);
    log_.SetError(text);
    return restored;
}

bool BrowserStates::AddStateEntities(znIBrowserDataCtrl* control, znIBrowserState* state,
                                     const std::vector<znString>& entities) {
    if (Refused("znIBrowser::AddStateEntities", control, state, entities)) return false;
    StateContainer* const states = ContainerOf(log_, control);
    return states && states->ChangeEntities(state, entities, &StateStore::AddEntities);
}

bool BrowserStates::RemoveStateEntities(znIBrowserDataCtrl* control, znIBrowserState* state,
                                        const std::vector<znString>& entities) {
    if (Refused("znIBrowser::RemoveStateEntities", control, state, entities)) return false;
    StateContainer* const states = ContainerOf(log_, control);
    return states && states->ChangeEntities(state, entities, &StateStore::RemoveEntities);
}

} // namespace znhost
