// GUI maps.
#include "host/znIBrowserGuiMap.h"
#include "model/browser.h"
#include "model/gui_map_list.h"

namespace znhost {

znIBrowserGuiMapList* Browser::GetGuiMapList() {
    if (Refused("znIBrowser::GetGuiMapList")) return nullptr;
    return guiMaps_.get();
}

bool Browser::DeleteGuiMap(const char* name) {
    if (Refused("znIBrowser::DeleteGuiMap", name)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::CreateGuiMapRecord(znIBrowserGuiMap* map, bool key, const char* value) {
    if (Refused("znIBrowser::CreateGuiMapRecord", map, key, value)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::CreateGuiMapRecord(znIBrowserGuiMap* map, unsigned int key, const char* value) {
    if (Refused("znIBrowser::CreateGuiMapRecord", map, key, value)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::CreateGuiMapRecord(znIBrowserGuiMap* map, double key, const char* value) {
    if (Refused("znIBrowser::CreateGuiMapRecord", map, key, value)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::CreateGuiMapRecord(znIBrowserGuiMap* map, int key, const char* value) {
    if (Refused("znIBrowser::CreateGuiMapRecord", map, key, value)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::CreateGuiMapRecord(znIBrowserGuiMap* map, const char* key, const char* value) {
    if (Refused("znIBrowser::CreateGuiMapRecord", map, key, value)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, bool key, const char* value) {
    if (Refused("znIBrowser::CreateGuiMapDisabledRecord", map, key, value)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, unsigned int key, const char* value) {
    if (Refused("znIBrowser::CreateGuiMapDisabledRecord", map, key, value)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, double key, const char* value) {
    if (Refused("znIBrowser::CreateGuiMapDisabledRecord", map, key, value)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, int key, const char* value) {
    if (Refused("znIBrowser::CreateGuiMapDisabledRecord", map, key, value)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, const char* key, const char* value) {
    if (Refused("znIBrowser::CreateGuiMapDisabledRecord", map, key, value)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::DeleteGuiMapRecord(znIBrowserGuiMap* map, const char* key) {
    if (Refused("znIBrowser::DeleteGuiMapRecord", map, key)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::DeleteGuiMapRecord(znIBrowserGuiMap* map, bool key) {
    if (Refused("znIBrowser::DeleteGuiMapRecord", map, key)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::DeleteGuiMapRecord(znIBrowserGuiMap* map, unsigned int key) {
    if (Refused("znIBrowser::DeleteGuiMapRecord", map, key)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::DeleteGuiMapRecord(znIBrowserGuiMap* map, double key) {
    if (Refused("znIBrowser::DeleteGuiMapRecord", map, key)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::DeleteGuiMapRecord(znIBrowserGuiMap* map, int key) {
    if (Refused("znIBrowser::DeleteGuiMapRecord", map, key)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::CreateGuiMap(const char* name) {
    if (Refused("znIBrowser::CreateGuiMap", name)) return false;
    return Fail("There is no such GUI map");
}

bool Browser::SetGuiMapType(znIBrowserGuiMap* map, ZNBROWSER_GUIMAP_TYPE type) {
    if (Refused("znIBrowser::SetGuiMapType", map, type)) return false;
    return Fail("There is no such GUI map");
}

} // namespace znhost
