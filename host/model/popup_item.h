// An item of a popup menu.
#ifndef ZN_HOST_POPUP_ITEM_H
#define ZN_HOST_POPUP_ITEM_H

#include "base/host_call.h"
#include "host/znIBrowserPopupMenuItem.h"
#include "model/popup_place.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace znhost {

class PopupMenu;

/// What an item is: the first of these that it is set to be.
enum class PopupKind { Separator, Cascade, Container, Check, Command };

/// What scripts set of an item.
struct PopupItemSettings {
    std::string caption;
    std::string help;
    std::string description;
    std::string icon;
    bool separator = false;
    bool checkable = false;
    bool checked = false;
    bool enabled = true;
    bool visible = true;
    bool onSingleItem = false;
    bool showOnFolder = false;
    ZNBROWSER_POPUP_CONTAINER container = ZNBROWSER_POPUP_CONTAINER_NONE;
    bool containerAll = false;
    // By name: the item belongs to no view and to no data control.
    std::string operation;
    std::string dataOperation;
    std::string script;
    std::string preOperation;
    std::vector<std::string> userInput;
};

class PopupItem final : public znIBrowserPopupMenuItem,
                        public HostObject,
                        public std::enable_shared_from_this<PopupItem> {
public:
    PopupItem(PopupMenu& menu, std::string name);

    const std::string& Name() const { return name_; }
    /// Null when the item was deleted: whoever runs a script meanwhile holds it.
    PopupMenu* Menu() const { return menu_; }
    void Detach() { menu_ = nullptr; }
    const PopupItemSettings& Settings() const { return settings_; }
    PopupKind Kind() const;
    /// The menu that it opens; null for none.
    PopupMenu* Cascade() const { return cascade_.Get(); }
    /// Ticks the check box of a checkable item, or not.
    void Check(bool checked) { settings_.checked = checked && settings_.checkable; }
    void Enable(bool enabled) { settings_.enabled = enabled; }

    const char* GetName() const override;
    znIBrowserPopupMenu* GetMenu() override;
    const char* GetCaption() const override;
    bool SetCaption(const char* caption) override;
    const char* GetHelp() const override;
    bool SetHelp(const char* help) override;
    const char* GetDescription() const override;
    bool SetDescription(const char* description) override;
    const char* GetIcon() const override;
    bool SetIcon(const char* file) override;
    bool GetSeparator() const override;
    bool SetSeparator(bool separator) override;
    bool GetCheckable() const override;
    bool SetCheckable(bool checkable) override;
    bool GetChecked() const override;
    bool SetChecked(bool checked) override;
    bool GetEnabled() const override;
    bool SetEnabled(bool enabled) override;
    bool GetVisible() const override;
    bool SetVisible(bool visible) override;
    bool GetOnSingleItem() const override;
    bool SetOnSingleItem(bool single) override;
    bool GetShowOnFolder() const override;
    bool SetShowOnFolder(bool show) override;
    znIBrowserPopupMenu* GetCascade() override;
    bool SetCascade(znIBrowserPopupMenu* menu) override;
    ZNBROWSER_POPUP_CONTAINER GetContainer() const override;
    bool GetContainerAll() const override;
    bool SetContainer(ZNBROWSER_POPUP_CONTAINER container, bool all) override;
    const char* GetOperation() const override;
    bool SetOperation(const char* name) override;
    const char* GetDataOperation() const override;
    bool SetDataOperation(const char* name) override;
    const char* GetScript() const override;
    bool SetScript(const char* procedure) override;
    const char* GetPreOperation() const override;
    bool SetPreOperation(const char* procedure) override;
    bool GetUserInput(std::vector<znString>& fields) override;
    bool SetUserInput(const std::vector<znString>& fields) override;
    bool Perform(znIBrowserWindowAccess* window, const char* value) override;

private:
    template <class Value>
    bool Set(Value PopupItemSettings::*setting, Value value) {
        settings_.*setting = std::move(value);
        return true;
    }

    PopupMenu* menu_;
    const std::string name_;
    PopupItemSettings settings_;
    PopupPlace cascade_;
};

} // namespace znhost

#endif
