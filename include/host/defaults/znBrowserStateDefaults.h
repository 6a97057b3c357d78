// The default answers of `znIBrowserState`.
#ifndef ZN_BROWSER_STATE_DEFAULTS_H
#define ZN_BROWSER_STATE_DEFAULTS_H

#include "../znIBrowserState.h"
#include "../znutl/znString.h"

#include <map>
#include <vector>

/// `znIBrowserState` for hosts that have a part of it: override what there is.
class znBrowserStateDefaults : public znIBrowserState {
public:
    const char* GetName() const override { return nullptr; }
    bool GetWindowPartVisibility(std::map<znString, bool>& visibility) override {
        visibility.clear();
        return true;
    }
    bool GetTreeAreaColumnVisibility(std::map<znString, bool>& visibility) override {
        visibility.clear();
        return true;
    }
    bool GetOptions(std::map<znString, bool>& options) override {
        options.clear();
        return true;
    }
    bool GetFolderTrees(std::map<znString, znString>& trees) override {
        trees.clear();
        return true;
    }
    bool GetFolderLists(std::map<znString, std::vector<znString>>& lists) override {
        lists.clear();
        return true;
    }
    bool GetViewPropertyTypeMappings(std::map<znString, Pairs>& mappings) override {
        mappings.clear();
        return true;
    }
    bool GetGuiMapTypes(std::map<znString, znString>& types) override {
        types.clear();
        return true;
    }
    bool GetGuiMapRecords(std::map<znString, Pairs>& records) override {
        records.clear();
        return true;
    }

protected:
    ~znBrowserStateDefaults() = default;
};

/// `znIBrowserStateContainer` for hosts that have a part of it: override what there is.
class znBrowserStateContainerDefaults : public znIBrowserStateContainer {
public:
    void GetStates(std::vector<znIBrowserState*>& states) override { states.clear(); }
    znIBrowserState* FindState(const char*) override { return nullptr; }
    bool SaveState(znIBrowserState*, znIBrowserWindowAccess*) override { return false; }

protected:
    ~znBrowserStateContainerDefaults() = default;
};

#endif
