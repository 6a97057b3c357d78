// A callback of an event.
#ifndef ZN_I_BROWSER_WINDOW_CALLBACK_H
#define ZN_I_BROWSER_WINDOW_CALLBACK_H

#include "../znBrowserTypes.h"

class znIBrowserEvent;
class znIBrowserWindowAccess;

/// A named reaction to an event: a window operation on another window (the action window), or something else.
/// It belongs to its event and is changed through `znIBrowser`; no command deletes it.
class znIBrowserWindowCallback {
public:
    /// The name, unique in the event.
    virtual const char* GetName() const = 0;
    /// The window on which the operation works; null when not set, or when that window was deleted.
    virtual znIBrowserWindowAccess* GetActionWindow() = 0;
    /// What the callback does there; undefined until set.
    virtual ZNBROWSER_CALLBACK_OPERATION GetOperation() const = 0;
    /// The event that the callback is attached to.
    virtual znIBrowserEvent* GetEvent() = 0;

protected:
    ~znIBrowserWindowCallback() = default;
};

#endif
