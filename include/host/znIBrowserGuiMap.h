// A GUI map: how values become texts, icons, colours or buttons.
#ifndef ZN_I_BROWSER_GUI_MAP_H
#define ZN_I_BROWSER_GUI_MAP_H

#include "../znBrowserTypes.h"
#include "znutl/znString.h"
#include <utility>
#include <vector>

/// A table from data values to what a tree cell shows. Its type fixes the kind of keys and of shown things;
/// records are added and removed through `znIBrowser`.
class znIBrowserGuiMap {
public:
    /// The name, unique in the host, by which style elements refer to the map.
    virtual const char* GetName() const = 0;
    /// The map's type; false, or undefined, when the host does not know it.
    virtual bool GetType(ZNBROWSER_GUIMAP_TYPE& type) const = 0;

    // Whether a record for that key exists, of either form. The layer asks before it deletes one. A key of
    // another kind than the map's has no record.
    /// The keys of the BOOL_TO_ types.
    virtual bool HasRecord(bool key) const = 0;
    /// The keys of the UINT_TO_ types.
    virtual bool HasRecord(unsigned int key) const = 0;
    /// The keys of the DOUBLE_TO_ types, compared exactly.
    virtual bool HasRecord(double key) const = 0;
    /// The keys of the INT_TO_ types.
    virtual bool HasRecord(int key) const = 0;
    /// The keys of the STRING_TO_ types.
    virtual bool HasRecord(const char* key) const = 0;

    /// All records, key and value as text, in the order of the keys.
    virtual bool GetRecords(std::vector<std::pair<znString, znString>>& records) const = 0;

protected:
    ~znIBrowserGuiMap() = default;
};

/// The GUI maps of the host.
class znIBrowserGuiMapList {
public:
    /// The map of that exact name, or null.
    virtual znIBrowserGuiMap* FindGuiMap(const char* name) = 0;
    /// All maps in the host's order.
    virtual void GetGuiMaps(std::vector<znIBrowserGuiMap*>& maps) = 0;

protected:
    ~znIBrowserGuiMapList() = default;
};

#endif
