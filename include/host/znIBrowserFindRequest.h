// A find request of a window, and the records that say what is searched.
#ifndef ZN_I_BROWSER_FIND_REQUEST_H
#define ZN_I_BROWSER_FIND_REQUEST_H

#include "host/znutl/znString.h"
#include "znBrowserTypes.h"
#include <vector>

class znIBrowserWindowAccess;

/// How a value is matched: a plain record of the host's that the scripting layer reads and writes.
struct znBrowserCriterion {
    znString name;
    ZNBROWSER_CRITERION_TYPE type = ZNBROWSER_CRITERION_UNKNOWN;
    znString value;
    bool matchcase = false;
    bool matchword = false;
    bool useregexp = false;
};

/// A property to search on, with its criteria in the order created. The criteria belong to the host.
struct znBrowserProperty {
    znString name;
    std::vector<znBrowserCriterion*> criteria;
};

/// A search that a window can perform.
class znIBrowserFindRequest {
public:
    virtual const char* GetName() const = 0;
    /// The window that owns the request.
    virtual znIBrowserWindowAccess* GetWindowAccess() = 0;
    /// The properties, in the order added. They belong to the request.
    virtual void GetProperties(std::vector<znBrowserProperty*>& properties) = 0;
    /// The property of that name, or null.
    virtual znBrowserProperty* FindProperty(const char* name) = 0;
    virtual ZNBROWSER_FIND_REQUEST_TYPE GetType() const = 0;

protected:
    ~znIBrowserFindRequest() = default;
};

#endif
