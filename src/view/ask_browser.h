// What operations do without being members of the manager: requests to the browser object, and refusals.
#ifndef ASK_BROWSER_H
#define ASK_BROWSER_H

#include "host/znIBrowser.h"
#include "host/znIBrowserApplication.h"
#include "znBrowserManagerTcl.h"

#include <initializer_list>

/// Asks the browser object for a change. A refusal takes over its error text; without a browser object the
/// answer is false, and no text is set.
template <class... Parameters, class... Arguments>
bool AskBrowser(znBrowserManagerTcl& manager, bool (znIBrowser::*request)(Parameters...),
                Arguments... arguments) {
    znIBrowser* const browser = manager.GetApplication()->GetBrowser();
    if (!browser) return false;
    if ((browser->*request)(arguments...)) return true;
    manager.SetError(browser->GetError());
    return false;
}

/// Fails with a message: its pieces joined by blanks, the null ones left out. @return false
inline bool Refuse(znBrowserManagerTcl& manager, std::initializer_list<const char*> pieces) {
    manager.ResetBuff();
    for (const char* const piece : pieces) manager.AppendToBuff(piece, true, false);
    manager.SetError(manager.GetBuff());
    return false;
}

#endif
