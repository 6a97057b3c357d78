// Popup menus, as far as columns name them.
#ifndef ZN_HOST_POPUP_MENU_H
#define ZN_HOST_POPUP_MENU_H

#include "base/host_call.h"
#include "host/znIBrowserPopupMenu.h"

#include <string>
#include <utility>

namespace znhost {

/// A popup menu. It exists from the first time that a column names it, and stays.
class PopupMenu final : public znIBrowserPopupMenu, public HostObject {
public:
    PopupMenu(CallLog& log, std::string name) : HostObject(log), name_(std::move(name)) {}

    const std::string& Name() const { return name_; }

    const char* GetName() const override {
        if (Refused("znIBrowserPopupMenu::GetName")) return nullptr;
        return name_.c_str();
    }

private:
    const std::string name_;
};

} // namespace znhost

#endif
