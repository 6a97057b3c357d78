// GUI maps: how values become the texts, icons, colours and buttons of tree cells.
#include "frame/data_types.h"
#include "frame/name_list.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserGuiMap.h"
#include "znBrowserManagerTcl.h"

#include <string>

namespace {

constexpr char noMap[] = "Cannot get a handle to current GUI map";

znIBrowserGuiMap* FindMap(znIBrowser* browser, const char* name) {
    znIBrowserGuiMapList* const list = browser ? browser->GetGuiMapList() : nullptr;
    return list && name ? list->FindGuiMap(name) : nullptr;
}

std::string KeyText(bool key) {
    return key ? znBrowserTclKeywords::KEYWORD_TRUE : znBrowserTclKeywords::KEYWORD_FALSE;
}
std::string KeyText(const char* key) { return key; }
std::string KeyText(int key) { return std::to_string(key); }
/// Printed as a signed number, as ever.
std::string KeyText(unsigned int key) { return std::to_string(static_cast<int>(key)); }
std::string KeyText(double key) { return std::to_string(key); }

} // namespace

// A map that exists already is an error, and becomes current all the same. That the host makes none is no
// error.
bool znBrowserManagerTcl::CreateGuiMap(const char* name) {
    BeginOperation();
    if (!name) return false;
    znIBrowser* const browser = GetBrowser();
    if (znIBrowserGuiMap* const map = FindMap(browser, name)) {
        SetCurrentGuiMap(map);
        return FailWith({"Gui map ", name, " already exists"});
    }
    if (browser && browser->CreateGuiMap(name)) SetCurrentGuiMap(FindMap(browser, name));
    return true;
}

bool znBrowserManagerTcl::DeleteGuiMap(const znString& name) {
    BeginOperation();
    znIBrowser* const browser = GetBrowser();
    const znIBrowserGuiMap* const map = FindMap(browser, name.c_str());
    if (!map) return FailWith({"Gui map ", name.c_str(), " does not exist, therefore cannot be deleted."});
    if (name == DEFAULT_IMAGES_GUIMAP) return Fail("Can't delete the default guimap");
    if (name == DEFAULT_COLORS_GUIMAP) return Fail("Can't delete the default color map");
    if (map == current_.guiMap) ResetCurrentGuiMap();
    browser->DeleteGuiMap(name.c_str());
    return true;
}

bool znBrowserManagerTcl::UpdateCurrentGuiMap(const char* name) {
    BeginOperation();
    znIBrowserGuiMap* const map = FindMap(GetBrowser(), name);
    if (!map) return FailWith({"Unable to find gui map: ", name});
    SetCurrentGuiMap(map);
    return true;
}

const char* znBrowserManagerTcl::GetCurrentGuiMapName() const {
    const char* const name = current_.guiMap ? current_.guiMap->GetName() : nullptr;
    return name ? name : "";
}

bool znBrowserManagerTcl::GetGuiMapNames(znString& out) {
    BeginOperation();
    std::vector<znIBrowserGuiMap*> maps;
    znIBrowser* const browser = GetBrowser();
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
    if (!current_.guiMap) return Fail("Current gui map not set, cannot set type.");
    const ZNBROWSER_GUIMAP_TYPE type =
        GuiMapTypeFromWords(keyType ? keyType : "", shownType ? shownType : "");
    if (type == ZNBROWSER_GUIMAP_UNDEFINED) return Fail("ZNBROWSER_GUIMAP_UNDEFINED");
    if (type == GetCurrentGuiMapType()) return Fail("Type is same as current type.");
    znIBrowser* const browser = GetBrowser();
    if (!browser || !browser->SetGuiMapType(current_.guiMap, type)) return FailWithHostError();
    return GetState();
}

// ---- Records: one operation per type of key ----
template <class Key>
bool znBrowserManagerTcl::AddGuiMapRecord(Key key, const char* value, bool disabled) {
    BeginOperation();
    if (!current_.guiMap) return Fail(noMap);
    znIBrowser* const browser = GetBrowser();
    if (!browser) return FailWithHostError();
    if (!value) value = "";
    return HostAnswer(disabled ? browser->CreateGuiMapDisabledRecord(current_.guiMap, key, value)
                               : browser->CreateGuiMapRecord(current_.guiMap, key, value));
}

template <class Key>
bool znBrowserManagerTcl::RemoveGuiMapRecord(Key key) {
    BeginOperation();
    if (!current_.guiMap) return Fail(noMap);
    if (!current_.guiMap->HasRecord(key))
        return Fail(("Record does not exist at index : " + KeyText(key)).c_str());
    znIBrowser* const browser = GetBrowser();
    return HostAnswer(browser && browser->DeleteGuiMapRecord(current_.guiMap, key));
}

bool znBrowserManagerTcl::CreateGuiMapRecord(bool key, const char* value) {
    return AddGuiMapRecord(key, value, false);
}

bool znBrowserManagerTcl::CreateGuiMapRecord(unsigned int key, const char* value) {
    return AddGuiMapRecord(key, value, false);
}

bool znBrowserManagerTcl::CreateGuiMapRecord(double key, const char* value) {
    return AddGuiMapRecord(key, value, false);
}

bool znBrowserManagerTcl::CreateGuiMapRecord(int key, const char* value) {
    return AddGuiMapRecord(key, value, false);
}

bool znBrowserManagerTcl::CreateGuiMapRecord(const char* key, const char* value) {
    return AddGuiMapRecord(key ? key : "", value, false);
}

bool znBrowserManagerTcl::CreateGuiMapDisabledRecord(bool key, const char* value) {
    return AddGuiMapRecord(key, value, true);
}

bool znBrowserManagerTcl::CreateGuiMapDisabledRecord(unsigned int key, const char* value) {
    return AddGuiMapRecord(key, value, true);
}

bool znBrowserManagerTcl::CreateGuiMapDisabledRecord(double key, const char* value) {
    return AddGuiMapRecord(key, value, true);
}

bool znBrowserManagerTcl::CreateGuiMapDisabledRecord(int key, const char* value) {
    return AddGuiMapRecord(key, value, true);
}

bool znBrowserManagerTcl::CreateGuiMapDisabledRecord(const char* key, const char* value) {
    return AddGuiMapRecord(key ? key : "", value, true);
}

bool znBrowserManagerTcl::DeleteGuiMapRecord(bool key) { return RemoveGuiMapRecord(key); }

bool znBrowserManagerTcl::DeleteGuiMapRecord(unsigned int key) { return RemoveGuiMapRecord(key); }

bool znBrowserManagerTcl::DeleteGuiMapRecord(double key) { return RemoveGuiMapRecord(key); }

bool znBrowserManagerTcl::DeleteGuiMapRecord(int key) { return RemoveGuiMapRecord(key); }

bool znBrowserManagerTcl::DeleteGuiMapRecord(const char* key) { return RemoveGuiMapRecord(key ? key : ""); }

// Keys and values in turn, each in braces.
bool znBrowserManagerTcl::GetGuiMapRecordNames(znString& out) {
    BeginOperation();
    if (!current_.guiMap) return Fail(noMap);
    std::vector<std::pair<znString, znString>> records;
    if (!current_.guiMap->GetRecords(records)) return FailWithHostError();
    for (const auto& [key, value] : records) {
        AppendToListBuff(key.c_str());
        AppendToListBuff(value.c_str());
    }
    return GiveBuffer(out);
}
