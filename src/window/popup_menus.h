// What the operations of popup menus share.
#ifndef POPUP_MENUS_H
#define POPUP_MENUS_H

class znBrowserManagerTcl;
class znIBrowserPopupMenu;
class znIBrowserPopupMenuList;

namespace znlayer {

/// The host's popup menus; null for a host that has none, with the error set.
znIBrowserPopupMenuList* RequirePopupMenuList(znBrowserManagerTcl& manager);
/// The popup menu of that name; null when there is none, with the error set.
znIBrowserPopupMenu* RequirePopupMenu(znBrowserManagerTcl& manager, const char* name);

} // namespace znlayer

#endif
