// The GUI maps of the embedded host.
#ifndef ZN_HOST_GUI_MAP_LIST_H
#define ZN_HOST_GUI_MAP_LIST_H

#include "base/named_list.h"
#include "model/gui_map.h"

#include <memory>
#include <string>

namespace znhost {

/// All GUI maps, in the order created. Two are there from the start and stay.
class GuiMapList final : public znIBrowserGuiMapList, public HostObject {
public:
    static constexpr const char* defaultImages = "default_images_guimap";
    static constexpr const char* defaultColours = "default_colors_guimap";

    explicit GuiMapList(CallLog& log);

    NamedList<GuiMap>& All() { return maps_; }
    /// The map of that name, to be held while a cell is drawn; null when there is none.
    std::shared_ptr<GuiMap> Share(const std::string& name) const;

    znIBrowserGuiMap* FindGuiMap(const char* name) override;
    void GetGuiMaps(std::vector<znIBrowserGuiMap*>& maps) override;

private:
    NamedList<GuiMap> maps_;
};

} // namespace znhost

#endif
