// An event of a window part.
#ifndef ZN_I_BROWSER_EVENT_H
#define ZN_I_BROWSER_EVENT_H

#include "znutl/znString.h"

class znIBrowserWindowAccess;
class znIBrowserWindowPart;

/// Something that happens in a window part and fires the callbacks attached to it. Which events a part offers
/// is the host's; it lists them with `znIBrowserWindowAccess::GetEvents`, and they live as long as the part.
class znIBrowserEvent {
public:
    /// The window in which the event happens.
    virtual znIBrowserWindowAccess* GetWindowAccess() = 0;
    /// Puts the event's name, unique in the part, into `name`.
    virtual void GetName(znString& name) const = 0;
    /// The part that offers the event.
    virtual znIBrowserWindowPart* GetWindowPart() = 0;

protected:
    ~znIBrowserEvent() = default;
};

#endif
