// What the current popup menu item shows.
#include "frame/operation.h"
#include "host/znIBrowserPopupMenuItem.h"
#include "window/popup_menu_items.h"

using namespace znlayer;

using Manager = znBrowserManagerTcl;
using Item = znIBrowserPopupMenuItem;

bool Manager::SetPopupMenuItemCaption(const char* caption) {
    return SetInItem(*this, &Item::SetCaption, caption);
}
bool Manager::GetPopupMenuItemCaption(znString& out) { return GetText(*this, &Item::GetCaption, out); }

bool Manager::SetPopupMenuItemHelp(const char* help) { return SetInItem(*this, &Item::SetHelp, help); }
bool Manager::GetPopupMenuItemHelp(znString& out) { return GetText(*this, &Item::GetHelp, out); }

bool Manager::SetPopupMenuItemDescription(const char* description) {
    return SetInItem(*this, &Item::SetDescription, description);
}
bool Manager::GetPopupMenuItemDescription(znString& out) {
    return GetText(*this, &Item::GetDescription, out);
}

bool Manager::SetPopupMenuItemIcon(const char* file) { return SetInItem(*this, &Item::SetIcon, file); }
bool Manager::GetPopupMenuItemIcon(znString& out) { return GetText(*this, &Item::GetIcon, out); }

bool Manager::SetPopupMenuItemSeparator(bool separator) {
    return SetInItem(*this, &Item::SetSeparator, separator);
}
bool Manager::GetPopupMenuItemSeparator(znString& out) { return GetFlag(*this, &Item::GetSeparator, out); }

bool Manager::SetPopupMenuItemCheckable(bool checkable) {
    return SetInItem(*this, &Item::SetCheckable, checkable);
}
bool Manager::GetPopupMenuItemCheckable(znString& out) { return GetFlag(*this, &Item::GetCheckable, out); }

bool Manager::SetPopupMenuItemChecked(bool checked) {
    const Operation operation(*this);
    if (checked && current_.popupMenuItem && !current_.popupMenuItem->GetCheckable())
        return operation.Fail({"Popup menu item is not checkable: ", current_.popupMenuItem->GetName()});
    return SetInItem(*this, &Item::SetChecked, checked);
}
bool Manager::GetPopupMenuItemChecked(znString& out) { return GetFlag(*this, &Item::GetChecked, out); }

bool Manager::SetPopupMenuItemEnabled(bool enabled) { return SetInItem(*this, &Item::SetEnabled, enabled); }
bool Manager::GetPopupMenuItemEnabled(znString& out) { return GetFlag(*this, &Item::GetEnabled, out); }

bool Manager::SetPopupMenuItemDisabled(bool disabled) { return SetPopupMenuItemEnabled(!disabled); }
bool Manager::GetPopupMenuItemDisabled(znString& out) {
    const Operation operation(*this);
    znIBrowserPopupMenuItem* const item = RequireItem(*this);
    return item && operation.GiveBool(!item->GetEnabled(), out);
}

bool Manager::SetPopupMenuItemVisible(bool visible) { return SetInItem(*this, &Item::SetVisible, visible); }
bool Manager::GetPopupMenuItemVisible(znString& out) { return GetFlag(*this, &Item::GetVisible, out); }

bool Manager::SetPopupMenuItemOnSingleItem(bool single) {
    return SetInItem(*this, &Item::SetOnSingleItem, single);
}
bool Manager::GetPopupMenuItemOnSingleItem(znString& out) {
    return GetFlag(*this, &Item::GetOnSingleItem, out);
}

bool Manager::SetPopupMenuItemShowOnFolder(bool show) {
    return SetInItem(*this, &Item::SetShowOnFolder, show);
}
bool Manager::GetPopupMenuItemShowOnFolder(znString& out) {
    return GetFlag(*this, &Item::GetShowOnFolder, out);
}
