// Saved states.
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserState.h"
#include "host/znIBrowserWindowAccess.h"
#include "model/browser.h"

namespace znhost {

bool Browser::RestoreState(znIBrowserState* state, znIBrowserWindowAccess* window) {
    if (Refused("znIBrowser::RestoreState", state, window)) return false;
    return Fail("The state \"" + NameOf(log_, state) + "\" is unknown");
}

bool Browser::AddStateEntities(znIBrowserDataCtrl* control, znIBrowserState* state,
                               const std::vector<znString>& entities) {
    if (Refused("znIBrowser::AddStateEntities", control, state, entities)) return false;
    return Fail("The state \"" + NameOf(log_, state) + "\" is unknown");
}

bool Browser::RemoveStateEntities(znIBrowserDataCtrl* control, znIBrowserState* state,
                                  const std::vector<znString>& entities) {
    if (Refused("znIBrowser::RemoveStateEntities", control, state, entities)) return false;
    return Fail("The state \"" + NameOf(log_, state) + "\" is unknown");
}

} // namespace znhost
