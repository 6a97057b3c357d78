// A saved state: the configuration of a window, by name.
#ifndef ZN_I_BROWSER_STATE_H
#define ZN_I_BROWSER_STATE_H

#include "host/znutl/znString.h"
#include <map>
#include <utility>
#include <vector>

class znIBrowserWindowAccess;

/// A saved configuration of a browser window. Each getter fills a map ordered by name; false when the state
/// cannot deliver it.
class znIBrowserState {
public:
    using Pairs = std::vector<std::pair<znString, znString>>;

    virtual const char* GetName() const = 0;
    virtual bool GetWindowPartVisibility(std::map<znString, bool>& visibility) = 0;
    virtual bool GetTreeAreaColumnVisibility(std::map<znString, bool>& visibility) = 0;
    virtual bool GetOptions(std::map<znString, bool>& options) = 0;
    /// Folder name to the name of the folder's tree.
    virtual bool GetFolderTrees(std::map<znString, znString>& trees) = 0;
    /// Folder name to the names of the folder's lists.
    virtual bool GetFolderLists(std::map<znString, std::vector<znString>>& lists) = 0;
    /// View property name to its mapped types, two texts each.
    virtual bool GetViewPropertyTypeMappings(std::map<znString, Pairs>& mappings) = 0;
    /// GUI map name to its type's name.
    virtual bool GetGuiMapTypes(std::map<znString, znString>& types) = 0;
    /// GUI map name to its records, key and value as text.
    virtual bool GetGuiMapRecords(std::map<znString, Pairs>& records) = 0;

protected:
    ~znIBrowserState() = default;
};

/// The saved states of one data control.
class znIBrowserStateContainer {
public:
    /// All states, in the host's order.
    virtual void GetStates(std::vector<znIBrowserState*>& states) = 0;
    /// The state of that name, or null.
    virtual znIBrowserState* FindState(const char* name) = 0;
    /// Saves the window's configuration into the state.
    virtual bool SaveState(znIBrowserState* state, znIBrowserWindowAccess* window) = 0;

protected:
    ~znIBrowserStateContainer() = default;
};

#endif
