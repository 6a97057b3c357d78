// GUI maps: how values become the texts, icons, colours and buttons of tree cells.
#include "frame/data_types.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserGuiMap.h"
#include "znBrowserManagerTcl.h"

#include <string>

using namespace znlayer;

namespace {

constexpr char noMap[] = "Cannot get a handle to current GUI map";

znIBrowserGuiMap* FindMap(znIBrowser* browser, const char* name) {
    znIBrowserGuiMapList* const list = browser ? browser->GetGuiMapList() : nullptr;
    return FindNamed(list, &znIBrowserGuiMapList::FindGuiMap, name);
}

std::string KeyText(bool key) {
    return key ? znBrowserTclKeywords::KEYWORD_TRUE : znBrowserTclKeywords::KEYWORD_FALSE;
}
std::string KeyText(const char* key) { return key; }
std::string KeyText(int key) { return std::to_string(key); }
/// Printed as a signed number, as ever.
std::string KeyText(unsigned int key) { return std::to_string(static_cast<int>(key)); }
std::string KeyText(double key) { return std::to_string(key); }

// Add and remove a record of the current GUI map, whatever the type of its key.

template <class Key>
bool AddRecord(znBrowserManagerTcl& manager, Key key, const char* value, bool disabled) {
    const Operation operation(manager);
    znIBrowserGuiMap* const map = manager.GetCurrentGuiMapPtr();
    if (!map) return operation.Fail(noMap);
    znIBrowser* const browser = BrowserOf(manager);
    if (!browser) return operation.FailWithHostError();
    if (!value) value = "";
    return operation.HostAnswer(disabled ? browser->CreateGuiMapDisabledRecord(map, key, value)
                                         : browser->CreateGuiMapRecord(map, key, value));
}

template <class Key>
bool RemoveRecord(znBrowserManagerTcl& manager, Key key) {
    const Operation operation(manager);
    znIBrowserGuiMap* const map = manager.GetCurrentGuiMapPtr();
    if (!map) return operation.Fail(noMap);
    if (!map->HasRecord(key))
        return operation.Fail(("Record does not exist at index : " + KeyText(key)).c_str());
    znIBrowser* const browser = BrowserOf(manager);
    return operation.HostAnswer(browser && browser->DeleteGuiMapRecord(map, key));
}

} // namespace

// A map that exists already is an error, and becomes current all the same. That the host makes none is no
// error.
bool znBrowserManagerTcl::CreateGuiMap(const char* name) {
    const Operation operation(*this);
    if (!name) return false;
    znIBrowser* const browser = BrowserOf(*this);
    if (znIBrowserGuiMap* const map = FindMap(browser, name)) {
        SetCurrentGuiMap(map);
        return operation.Fail({"Gui map ", name, " already exists"});
    }
    if (browser && browser->CreateGuiMap(name)) SetCurrentGuiMap(FindMap(browser, name));
    return true;
}

bool znBrowserManagerTcl::DeleteGuiMap(const znString& name) {
    const Operation operation(*this);
    znIBrowser* const browser = BrowserOf(*this);
    const znIBrowserGuiMap* const map = FindMap(browser, name.c_str());
    if (!map)
        return operation.Fail({"Gui map ", name.c_str(), " does not exist, therefore cannot be deleted."});
    if (name == DEFAULT_IMAGES_GUIMAP) return operation.Fail("Can't delete the default guimap");
    if (name == DEFAULT_COLORS_GUIMAP) return operation.Fail("Can't delete the default color map");
    if (map == current_.guiMap) ResetCurrentGuiMap();
    browser->DeleteGuiMap(name.c_str());
    return true;
}

bool znBrowserManagerTcl::UpdateCurrentGuiMap(const char* name) {
    const Operation operation(*this);
    znIBrowserGuiMap* const map = FindMap(BrowserOf(*this), name);
    if (!map) return operation.Fail({"Unable to find gui map: ", name});
    SetCurrentGuiMap(map);
    return true;
}

const char* znBrowserManagerTcl::GetCurrentGuiMapName() const {
    const char* const name = current_.guiMap ? current_.guiMap->GetName() : nullptr;
    return name ? name : "";
}

bool znBrowserManagerTcl::GetGuiMapNames(znString& out) {
    const Operation operation(*this);
    std::vector<znIBrowserGuiMap*> maps;
    znIBrowser* const browser = BrowserOf(*this);
    znIBrowserGuiMapList* const list = browser ? browser->GetGuiMapList() : nullptr;
    if (list) list->GetGuiMaps(maps);
    return NameList(EntryForm::Plain, ExtraBlanks::Between).AddNames(maps).Give(*this, out);
}

ZNBROWSER_GUIMAP_TYPE znBrowserManagerTcl::GetCurrentGuiMapType() const {
    ZNBROWSER_GUIMAP_TYPE type = ZNBROWSER_GUIMAP_UNDEFINED;
    return current_.guiMap && current_.guiMap->GetType(type) ? type : ZNBROWSER_GUIMAP_UNDEFINED;
}

// An error that is pending is not cleared, and is what the operation ends with.
bool znBrowserManagerTcl::CreateGuiMappingTypetoType(const char* keyType, const char* shownType) {
    const Operation operation(*this, Operation::State::Kept);
    if (!current_.guiMap) return operation.Fail("Current gui map not set, cannot set type.");
    const ZNBROWSER_GUIMAP_TYPE type =
        GuiMapTypeFromWords(keyType ? keyType : "", shownType ? shownType : "");
    if (type == ZNBROWSER_GUIMAP_UNDEFINED) return operation.Fail("ZNBROWSER_GUIMAP_UNDEFINED");
    if (type == GetCurrentGuiMapType()) return operation.Fail("Type is same as current type.");
    znIBrowser* const browser = BrowserOf(*this);
    if (!browser || !browser->SetGuiMapType(current_.guiMap, type)) return operation.FailWithHostError();
    return GetState();
}

// ---- Records: one operation per type of key ----
bool znBrowserManagerTcl::CreateGuiMapRecord(bool key, const char* value) {
    return AddRecord(*this, key, value, false);
}

bool znBrowserManagerTcl::CreateGuiMapRecord(unsigned int key, const char* value) {
    return AddRecord(*this, key, value, false);
}

bool znBrowserManagerTcl::CreateGuiMapRecord(double key, const char* value) {
    return AddRecord(*this, key, value, false);
}

bool znBrowserManagerTcl::CreateGuiMapRecord(int key, const char* value) {
    return AddRecord(*this, key, value, false);
}

bool znBrowserManagerTcl::CreateGuiMapRecord(const char* key, const char* value) {
    return AddRecord(*this, key ? key : "", value, false);
}

bool znBrowserManagerTcl::CreateGuiMapDisabledRecord(bool key, const char* value) {
    return AddRecord(*this, key, value, true);
}

bool znBrowserManagerTcl::CreateGuiMapDisabledRecord(unsigned int key, const char* value) {
    return AddRecord(*this, key, value, true);
}

bool znBrowserManagerTcl::CreateGuiMapDisabledRecord(double key, const char* value) {
    return AddRecord(*this, key, value, true);
}

bool znBrowserManagerTcl::CreateGuiMapDisabledRecord(int key, const char* value) {
    return AddRecord(*this, key, value, true);
}

bool znBrowserManagerTcl::CreateGuiMapDisabledRecord(const char* key, const char* value) {
    return AddRecord(*this, key ? key : "", value, true);
}

bool znBrowserManagerTcl::DeleteGuiMapRecord(bool key) { return RemoveRecord(*this, key); }

bool znBrowserManagerTcl::DeleteGuiMapRecord(unsigned int key) { return RemoveRecord(*this, key); }

bool znBrowserManagerTcl::DeleteGuiMapRecord(double key) { return RemoveRecord(*this, key); }

bool znBrowserManagerTcl::DeleteGuiMapRecord(int key) { return RemoveRecord(*this, key); }

bool znBrowserManagerTcl::DeleteGuiMapRecord(const char* key) { return RemoveRecord(*this, key ? key : ""); }

// Keys and values in turn, each in braces.
bool znBrowserManagerTcl::GetGuiMapRecordNames(znString& out) {
    const Operation operation(*this);
    if (!current_.guiMap) return operation.Fail(noMap);
    std::vector<std::pair<znString, znString>> records;
    if (!current_.guiMap->GetRecords(records)) return operation.FailWithHostError();
    for (const auto& [key, value] : records) {
        AppendToListBuff(key.c_str());
        AppendToListBuff(value.c_str());
    }
    return operation.GiveBuffer(out);
}
