// The default answers of `znIBrowserGuiMap`.
#ifndef ZN_BROWSER_GUI_MAP_DEFAULTS_H
#define ZN_BROWSER_GUI_MAP_DEFAULTS_H

#include "../znIBrowserGuiMap.h"
#include "../znutl/znString.h"

#include <utility>
#include <vector>

/// `znIBrowserGuiMap` for hosts that have a part of it: override what there is.
class znBrowserGuiMapDefaults : public znIBrowserGuiMap {
public:
    const char* GetName() const override { return nullptr; }
    bool GetType(ZNBROWSER_GUIMAP_TYPE&) const override { return false; }
    bool HasRecord(bool) const override { return false; }
    bool HasRecord(unsigned int) const override { return false; }
    bool HasRecord(double) const override { return false; }
    bool HasRecord(int) const override { return false; }
    bool HasRecord(const char*) const override { return false; }
    bool GetRecords(std::vector<std::pair<znString, znString>>& records) const override {
        records.clear();
        return true;
    }

protected:
    ~znBrowserGuiMapDefaults() = default;
};

/// `znIBrowserGuiMapList` for hosts that have a part of it: override what there is.
class znBrowserGuiMapListDefaults : public znIBrowserGuiMapList {
public:
    znIBrowserGuiMap* FindGuiMap(const char*) override { return nullptr; }
    void GetGuiMaps(std::vector<znIBrowserGuiMap*>& maps) override { maps.clear(); }

protected:
    ~znBrowserGuiMapListDefaults() = default;
};

#endif
