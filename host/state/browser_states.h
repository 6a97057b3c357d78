// The saved states of the browser object.
#ifndef ZN_HOST_BROWSER_STATES_H
#define ZN_HOST_BROWSER_STATES_H

#include "window/browser_windows.h"

#include <vector>

namespace znhost {

/// The browser object as a whole: with the states in which its windows are kept.
class BrowserStates final : public BrowserWindows {
public:
    using BrowserWindows::BrowserWindows;

    bool RestoreState(znIBrowserState* state, znIBrowserWindowAccess* window) override;
    bool AddStateEntities(znIBrowserDataCtrl* control, znIBrowserState* state,
                          const std::vector<znString>& entities) override;
    bool RemoveStateEntities(znIBrowserDataCtrl* control, znIBrowserState* state,
                             const std::vector<znString>& entities) override;
};

} // namespace znhost

#endif
