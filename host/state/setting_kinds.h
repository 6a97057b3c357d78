// How each kind of setting is taken down and brought back.
#ifndef ZN_HOST_SETTING_KINDS_H
#define ZN_HOST_SETTING_KINDS_H

#include "model/free_folder.h"
#include "state/setting.h"
#include "window/window.h"

#include <map>
#include <string>
#include <unordered_set>
#include <vector>

namespace znhost {

/// A window on its way into settings.
struct Keeping {
    Window& window;
    View& view;
    Settings& settings;
    const char* kind = nullptr; ///< what is being taken down now

    void Add(std::string subject, std::string key, std::string value) {
        settings.push_back({kind, std::move(subject), std::move(key), std::move(value)});
    }
};

/// Settings on their way into a window.
class Restoring {
public:
    Restoring(Window& window, Settings settings);

    Window& Target() const { return window_; }
    /// The view that the window shows; a script may close it, so it is not to be asked for after one ran.
    View& Shown() const { return *window_.ShownView(); }
    CallLog& Log() const { return window_.Log(); }
    const Settings& Of(const char* kind) { return byKind_[kind]; }

    /// Notes that something has not been restored: `column "mass"`, say.
    void Skip(const char* what, const std::string& name);
    /// What was skipped, as one text; "" for nothing.
    std::string Skipped() const;

    // Data sources and references of the view's data control; null for those that are gone.
    znIBrowserDataSource* FindSource(const std::string& name) const;
    znIBrowserDataSourceSimple* FindSimple(const std::string& name) const;
    znIBrowserDataSourceHierarchical* FindHierarchical(const std::string& name) const;
    znIBrowserDataReference* FindReference(const std::string& name) const;

    /// The folders by their numbers; null for those that are gone.
    std::vector<FreeFolder*> folders;
    FreeFolder* Folder(const std::string& number) const;
    FolderList* List(const std::string& number) const;
    /// The names of the ties' parents, by the ties' numbers.
    std::map<std::string, std::string> tieParents;
    /// The lists by their numbers, each as a folder and a data source; null for those that are gone.
    std::vector<std::pair<FreeFolder*, znIBrowserDataSourceSimple*>> lists;

private:
    Window& window_;
    std::map<std::string, Settings> byKind_;
    std::vector<std::string> skipped_; ///< each once
    std::unordered_set<std::string> known_;
};

/// One kind: its word, and both ways.
struct SettingKind {
    const char* name;
    void (*keep)(Keeping& keeping);
    void (*restore)(Restoring& restoring, const Settings& settings);
};

// All kinds by what they are about, in the order in which they are brought back.
const std::vector<SettingKind>& FolderKinds();
const std::vector<SettingKind>& ViewKinds();
const std::vector<SettingKind>& GuiMapKinds();
const std::vector<SettingKind>& CollectorKinds();
const std::vector<SettingKind>& PopupKinds();
const std::vector<SettingKind>& WindowKinds();

} // namespace znhost

#endif
