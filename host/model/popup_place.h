// A place that shows a popup menu.
#ifndef ZN_HOST_POPUP_PLACE_H
#define ZN_HOST_POPUP_PLACE_H

#include <memory>

namespace znhost {

class Browser;
class PopupMenu;

/// What shows a menu: a view, folder, column or data source, or the item of a cascade. It shows none as soon
/// as the menu is deleted.
class PopupPlace {
public:
    /// Null for none.
    PopupMenu* Get() const;
    void Set(PopupMenu* menu);
    /// Shows the menu of that name, or none for "". @return false, with an error text, when there is none
    bool Set(Browser& browser, const char* name);

private:
    std::weak_ptr<PopupMenu> menu_;
};

} // namespace znhost

#endif
