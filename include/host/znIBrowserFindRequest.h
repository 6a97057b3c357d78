// A find request of a window, and the records that say what is searched.
#ifndef ZN_I_BROWSER_FIND_REQUEST_H
#define ZN_I_BROWSER_FIND_REQUEST_H

#include "../znBrowserTypes.h"
#include "znutl/znString.h"
#include <vector>

class znIBrowserWindowAccess;

/// How a value is matched: a plain record of the host's that the scripting layer reads and writes. The host
/// hears of no change: it reads the record when it searches.
struct znBrowserCriterion {
    znString name;                                               ///< unique in the property; never written
    ZNBROWSER_CRITERION_TYPE type = ZNBROWSER_CRITERION_UNKNOWN; ///< never written: scripts can only read it
    znString value;                                              ///< what is looked for
    bool matchcase = false;                                      ///< letter case counts
    bool matchword = false;                                      ///< whole words only
    bool useregexp = false;                                      ///< `value` is a regular expression
};

/// A property to search on, with its criteria in the order created. The criteria belong to the host. The
/// layer keeps pointers to both records: they must stay where they are until the window is deleted.
struct znBrowserProperty {
    znString name; ///< of a view property, or what else the host lets people search; never written
    std::vector<znBrowserCriterion*> criteria;
};

/// A search that a window can perform. The host makes find requests with the window; a window's first one
/// becomes current with it. It is changed and performed through `znIBrowser`.
class znIBrowserFindRequest {
public:
    /// The name, unique in the window; null ends a script's list of names.
    virtual const char* GetName() const = 0;
    /// The window that owns the request.
    virtual znIBrowserWindowAccess* GetWindowAccess() = 0;
    /// The properties, in the order added. They belong to the request.
    virtual void GetProperties(std::vector<znBrowserProperty*>& properties) = 0;
    /// The property of that name, or null.
    virtual znBrowserProperty* FindProperty(const char* name) = 0;
    /// Which matches are asked for, as last set.
    virtual ZNBROWSER_FIND_REQUEST_TYPE GetType() const = 0;

protected:
    ~znIBrowserFindRequest() = default;
};

#endif
