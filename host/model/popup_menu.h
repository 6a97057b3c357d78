// Popup menus, and where they are shown.
#ifndef ZN_HOST_POPUP_MENU_H
#define ZN_HOST_POPUP_MENU_H

#include "base/host_call.h"
#include "base/named_list.h"
#include "host/znIBrowserPopupMenu.h"
#include "model/popup_item.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace znhost {

class Browser;

/// A popup menu. Whoever runs a script meanwhile holds it, and asks afterwards whether it was deleted.
class PopupMenu final : public znIBrowserPopupMenu,
                        public HostObject,
                        public std::enable_shared_from_this<PopupMenu> {
public:
    PopupMenu(Browser& browser, std::string name);

    const std::string& Name() const { return name_; }
    Browser& Owner() const { return browser_; }
    const NamedList<PopupItem>& Items() const { return items_; }
    const std::string& PostScript() const { return postScript_; }
    /// The menu has left the browser, with all its items.
    void Delete();
    bool IsDeleted() const { return deleted_; }

    const char* GetName() const override;
    bool CreateItem(const char* name, int place) override;
    bool DeleteItem(znIBrowserPopupMenuItem* item) override;
    bool MoveItem(znIBrowserPopupMenuItem* item, int place) override;
    znIBrowserPopupMenuItem* FindItem(const char* name) override;
    bool GetItems(std::vector<znIBrowserPopupMenuItem*>& items) override;
    const char* GetPostScript() const override;
    bool SetPostScript(const char* procedure) override;

private:
    Browser& browser_;
    const std::string name_;
    NamedList<PopupItem> items_;
    std::string postScript_;
    bool deleted_ = false;
};

/// The popup menus, in the order created.
class PopupMenuList final : public znIBrowserPopupMenuList, public HostObject {
public:
    explicit PopupMenuList(CallLog& log) : HostObject(log) {}
    ~PopupMenuList() override;

    NamedList<PopupMenu>& All() { return menus_; }

    znIBrowserPopupMenu* FindPopupMenu(const char* name) override;
    bool GetPopupMenus(std::vector<znIBrowserPopupMenu*>& menus) override;

private:
    NamedList<PopupMenu> menus_;
};

} // namespace znhost

#endif
