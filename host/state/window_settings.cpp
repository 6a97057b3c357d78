#include "state/window_settings.h"

#include "host/znIBrowserDataCtrl.h"
#include "model/data_sources.h"
#include "state/setting_kinds.h"
#include "window/browser_windows.h"

#include <algorithm>
#include <iterator>

namespace znhost {

namespace {

/// Rows come last: by then it is decided what the folders show.
constexpr const std::vector<SettingKind>& (*allKinds[])() = {FolderKinds, ViewKinds,      GuiMapKinds,
                                                             PopupKinds,  CollectorKinds, WindowKinds};

/// While one lives the windows do not hear of changes.
class HeldBack {
public:
    explicit HeldBack(Browser& browser) : browser_(browser), flush_(!browser.HoldsBack()) {
        browser_.SetFlushFlag(false);
    }
    ~HeldBack() {
        try {
            browser_.SetFlushFlag(flush_);
        } catch (const std::bad_alloc&) {
            // The flag is set; what a view could not tell it tells with its next change.
        }
    }
    HeldBack(const HeldBack&) = delete;
    HeldBack& operator=(const HeldBack&) = delete;

private:
    Browser& browser_;
    const bool flush_;
};

} // namespace

Restoring::Restoring(Window& window, Settings settings) : window_(window) {
    for (auto next = settings.begin(); next != settings.end();) { // those of a kind stand together
        const auto first = next;
        next = std::find_if(first, settings.end(),
                            [first](const Setting& setting) { return setting.kind != first->kind; });
        Settings& same = byKind_[first->kind];
        same.insert(same.end(), std::make_move_iterator(first), std::make_move_iterator(next));
    }
}

void Restoring::Skip(const char* what, const std::string& name) {
    std::string text = std::string(what) + " \"" + name + "\"";
    if (known_.insert(text).second) skipped_.push_back(std::move(text));
}

std::string Restoring::Skipped() const {
    constexpr std::size_t most = 20; // nobody reads more, and it may be every row of a tree
    std::string text;
    for (std::size_t i = 0; i < std::min(skipped_.size(), most); ++i) text += (i ? ", " : "") + skipped_[i];
    if (text.empty()) return text;
    if (skipped_.size() > most) text += " and " + std::to_string(skipped_.size() - most) + " more";
    return "Not restored, as it does not exist any more: " + text;
}

znIBrowserDataSource* Restoring::FindSource(const std::string& name) const {
    znIBrowserDataCtrl* const control = Shown().DataControl();
    return control ? control->FindDataSource(name.c_str()) : nullptr;
}

znIBrowserDataSourceSimple* Restoring::FindSimple(const std::string& name) const {
    znIBrowserDataCtrl* const control = Shown().DataControl();
    return control ? control->FindDataSourceSimple(name.c_str()) : nullptr;
}

znIBrowserDataSourceHierarchical* Restoring::FindHierarchical(const std::string& name) const {
    znIBrowserDataCtrl* const control = Shown().DataControl();
    return control ? control->FindDataSourceHierarchical(name.c_str()) : nullptr;
}

znIBrowserDataReference* Restoring::FindReference(const std::string& name) const {
    znIBrowserDataCtrl* const control = Shown().DataControl();
    return control ? control->FindDataReference(name.c_str()) : nullptr;
}

FreeFolder* Restoring::Folder(const std::string& number) const {
    const std::size_t place = NumberOf(number);
    return place < folders.size() ? folders[place] : nullptr;
}

FolderList* Restoring::List(const std::string& number) const {
    const std::size_t place = NumberOf(number);
    if (place >= lists.size() || !lists[place].first) return nullptr;
    return lists[place].first->FindList(lists[place].second);
}

bool KeepSettings(Window& window, Settings& settings, std::string& error) {
    settings.clear();
    const CallLog::Quiet quiet(window.Log());
    const std::shared_ptr<Window> self = window.shared_from_this();
    for (const auto kinds : allKinds) {
        for (const SettingKind& kind : kinds()) {
            View* const view = window.ShownView();
            if (!view) {
                error = "The window \"" + window.Name() + "\" shows no view";
                return false;
            }
            Keeping keeping{window, *view, settings, kind.name};
            kind.keep(keeping);
        }
    }
    return true;
}

bool RestoreSettings(Window& window, Settings settings, std::string& skipped) {
    const CallLog::Quiet quiet(window.Log());
    const std::shared_ptr<Window> self = window.shared_from_this();
    Restoring restoring(window, std::move(settings));
    const auto restore = [&](const std::vector<SettingKind>& kinds) {
        for (const SettingKind& kind : kinds) {
            if (window.ShownView()) kind.restore(restoring, restoring.Of(kind.name));
        }
    };
    {
        const HeldBack heldBack(window.Owner());
        for (const auto kinds : allKinds) {
            if (kinds != WindowKinds) restore(kinds());
        }
    }
    if (window.ShownView()) window.ShownView()->Flush();
    restore(WindowKinds());
    skipped = window.ShownView() ? restoring.Skipped() : "The window \"" + window.Name() + "\" shows no view";
    return window.ShownView() != nullptr;
}

} // namespace znhost
