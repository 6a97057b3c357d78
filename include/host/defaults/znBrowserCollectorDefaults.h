// The default answers of `znIBrowserCollector`.
#ifndef ZN_BROWSER_COLLECTOR_DEFAULTS_H
#define ZN_BROWSER_COLLECTOR_DEFAULTS_H

#include "../znBrowserDataItems.h"
#include "../znIBrowserCollector.h"

#include <vector>

/// `znIBrowserCollector` for hosts that have a part of it: override what there is.
class znBrowserCollectorDefaults : public znIBrowserCollector {
public:
    bool GetKinds(znIBrowserView*, std::vector<znIBrowserDataSourceSimple*>& kinds) override {
        kinds.clear();
        return false;
    }
    bool SetKind(const char*) override { return false; }
    bool Collect(znIBrowserView*, ZNBROWSER_COLLECT, ZNBROWSER_COLLECT_FROM,
                 znIBrowserDataSourceSimple*) override {
        return false;
    }
    bool CollectByValues(znIBrowserView*, ZNBROWSER_COLLECT, znIBrowserViewProperty*,
                         const std::vector<znString>&, znIBrowserDataSourceSimple*) override {
        return false;
    }
    bool ClearCollection(znIBrowserView*) override { return false; }
    bool GetCollectedCounts(znIBrowserView*, std::vector<znBrowserCollectedCount>& counts) override {
        counts.clear();
        return false;
    }
    bool GetCollectedItems(znIBrowserView*, znBrowserDataItems&) override { return false; }
    bool ChangeDisplay(znIBrowserView*, ZNBROWSER_COLLECTOR_DISPLAY) override { return false; }
    void GetOptionNames(std::vector<znString>& names) override { names.clear(); }
    const char* GetCurrentOption() const override { return nullptr; }
    bool SetCurrentOption(const char*) override { return false; }
    bool CreateOption(const char*, const char*) override { return false; }
    bool DeleteOption(const char*) override { return false; }
    bool PerformOption(znIBrowserView*, const char*) override { return false; }
    ZNBROWSER_COLLECTOR_CLICK GetClickMode() const override { return {}; }
    bool SetClickMode(ZNBROWSER_COLLECTOR_CLICK) override { return false; }
    bool GetAutofit() const override { return false; }
    bool SetAutofit(bool) override { return false; }
    bool GetPreselector() const override { return false; }
    bool SetPreselector(bool) override { return false; }
    bool GetPreselectedItem(znIBrowserView*, znBrowserDataItem&) const override { return false; }
    void GetStepNames(znIBrowserView*, std::vector<znString>& names) override { names.clear(); }
    std::size_t GetStepCount(znIBrowserView*) override { return 0; }
    std::size_t GetRestorableCount(znIBrowserView*) override { return 0; }
    bool Undo(znIBrowserView*) override { return false; }
    bool Restore(znIBrowserView*) override { return false; }
    bool ClearSteps(znIBrowserView*) override { return false; }
    void GetNamedCollections(znIBrowserView*, std::vector<znString>& names) override { names.clear(); }
    const char* GetCurrentNamedCollection(znIBrowserView*) const override { return nullptr; }
    bool CreateNamedCollection(znIBrowserView*, const char*) override { return false; }
    bool SetCurrentNamedCollection(znIBrowserView*, const char*) override { return false; }
    bool DeleteNamedCollection(znIBrowserView*, const char*) override { return false; }
    bool AddToNamedCollection(znIBrowserView*, const char*) override { return false; }
    bool IsBarShown(znIBrowserWindowAccess*) override { return false; }
    bool SetBarShown(znIBrowserWindowAccess*, bool) override { return false; }
    bool IsControlShown(znIBrowserWindowAccess*, ZNBROWSER_COLLECTOR_CONTROL) override { return false; }
    bool SetControlShown(znIBrowserWindowAccess*, ZNBROWSER_COLLECTOR_CONTROL, bool) override {
        return false;
    }
    bool IsControlEnabled(znIBrowserWindowAccess*, ZNBROWSER_COLLECTOR_CONTROL) override { return false; }
    bool SetControlEnabled(znIBrowserWindowAccess*, ZNBROWSER_COLLECTOR_CONTROL, bool) override {
        return false;
    }

protected:
    ~znBrowserCollectorDefaults() = default;
};

#endif
