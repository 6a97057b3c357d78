// A saved state: the configuration of a window, by name.
#ifndef ZN_I_BROWSER_STATE_H
#define ZN_I_BROWSER_STATE_H

#include "znutl/znString.h"
#include <map>
#include <utility>
#include <vector>

class znIBrowserWindowAccess;

/// A saved configuration of a browser window. Each getter fills a map ordered by name; false when the state
/// cannot deliver it. "state data" prints the eight of them in this order, and ends in silence at a false
/// one. A state in which nothing was saved gives empty maps.
class znIBrowserState {
public:
    /// Two texts each, in the order saved.
    using Pairs = std::vector<std::pair<znString, znString>>;

    /// The name, unique in the data control; null ends a script's list of names.
    virtual const char* GetName() const = 0;
    /// Window part name to whether it is shown.
    virtual bool GetWindowPartVisibility(std::map<znString, bool>& visibility) = 0;
    /// Column name to whether it is shown.
    virtual bool GetTreeAreaColumnVisibility(std::map<znString, bool>& visibility) = 0;
    /// The host's options by name: what is switched on or off in the window and its view.
    virtual bool GetOptions(std::map<znString, bool>& options) = 0;
    /// Folder name to the name of the folder's tree; of one that data references tie, to theirs, with blanks
    /// between.
    virtual bool GetFolderTrees(std::map<znString, znString>& trees) = 0;
    /// Folder name to the names of the folder's lists.
    virtual bool GetFolderLists(std::map<znString, std::vector<znString>>& lists) = 0;
    /// View property name to its mapped types, two texts each. What they say is the host's.
    virtual bool GetViewPropertyTypeMappings(std::map<znString, Pairs>& mappings) = 0;
    /// GUI map name to its type's name.
    virtual bool GetGuiMapTypes(std::map<znString, znString>& types) = 0;
    /// GUI map name to its records, key and value as text.
    virtual bool GetGuiMapRecords(std::map<znString, Pairs>& records) = 0;

protected:
    ~znIBrowserState() = default;
};

/// The saved states of one data control. The host makes them: no command creates or deletes one.
class znIBrowserStateContainer {
public:
    /// All states, in the host's order.
    virtual void GetStates(std::vector<znIBrowserState*>& states) = 0;
    /// The state of that name, or null.
    virtual znIBrowserState* FindState(const char* name) = 0;
    /// Saves the window's configuration into the state, in place of what was saved there. The state may
    /// belong to another data control: refuse then. The text of a refusal is not read.
    virtual bool SaveState(znIBrowserState* state, znIBrowserWindowAccess* window) = 0;

protected:
    ~znIBrowserStateContainer() = default;
};

#endif
