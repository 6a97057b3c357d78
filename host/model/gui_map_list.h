// The GUI maps of the embedded host.
#ifndef ZN_HOST_GUI_MAP_LIST_H
#define ZN_HOST_GUI_MAP_LIST_H

#include "host/znIBrowserGuiMap.h"
#include "model/host_call.h"

namespace znhost {

class GuiMapList final : public znIBrowserGuiMapList, public HostObject {
public:
    explicit GuiMapList(CallLog& log) : HostObject(log) {}

    znIBrowserGuiMap* FindGuiMap(const char* name) override {
        static_cast<void>(Refused("znIBrowserGuiMapList::FindGuiMap", name));
        return nullptr;
    }
    void GetGuiMaps(std::vector<znIBrowserGuiMap*>& maps) override {
        maps.clear();
        static_cast<void>(Refused("znIBrowserGuiMapList::GetGuiMaps"));
    }
};

} // namespace znhost

#endif
