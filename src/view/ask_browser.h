// Requests to the browser object.
#ifndef ASK_BROWSER_H
#define ASK_BROWSER_H

#include "host/znIBrowser.h"
#include "host/znIBrowserApplication.h"
#include "znBrowserManagerTcl.h"

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

#endif
