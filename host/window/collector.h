// The virtual collector of the embedded host.
#ifndef ZN_HOST_COLLECTOR_H
#define ZN_HOST_COLLECTOR_H

#include "base/host_call.h"
#include "host/znIBrowserCollector.h"
#include "model/view.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace znhost {

class BrowserWindows;
class HostServices;
class Window;

/// What is collected, shown and hidden stands in the views; how it came about, and what becomes of the
/// windows with it, is decided here. Each change is worked out first: then it takes no more memory to make
/// it.
class Collector final : public znIBrowserCollector, public HostObject {
public:
    explicit Collector(BrowserWindows& browser);

    /// An action of the user in a window, which collects as the click mode says.
    void OnSelected(View& view);
    void OnClicked(View& view, const znBrowserDataItem& item);
    /// Brings back what a saved state keeps; the display state by a step.
    bool RestoreState(View& view, DisplayState display, std::vector<NamedCollection> named);
    /// The item under the pointer is another one; without a source: none is under it.
    void Preselect(View& view, const znBrowserDataItem& item);
    const std::string& Kind() const { return kind_; }
    /// How many items of the view are hidden.
    std::size_t CountHidden(View& view) const;

    bool GetKinds(znIBrowserView* view, std::vector<znIBrowserDataSourceSimple*>& kinds) override;
    bool SetKind(const char* name) override;
    bool Collect(znIBrowserView* view, ZNBROWSER_COLLECT change, ZNBROWSER_COLLECT_FROM from,
                 znIBrowserDataSourceSimple* kind) override;
    bool CollectByValues(znIBrowserView* view, ZNBROWSER_COLLECT change, znIBrowserViewProperty* property,
                         const std::vector<znString>& values, znIBrowserDataSourceSimple* kind) override;
    bool ClearCollection(znIBrowserView* view) override;
    bool GetCollectedCounts(znIBrowserView* view, std::vector<znBrowserCollectedCount>& counts) override;
    bool GetCollectedItems(znIBrowserView* view, znBrowserDataItems& items) override;
    bool ChangeDisplay(znIBrowserView* view, ZNBROWSER_COLLECTOR_DISPLAY change) override;
    void GetOptionNames(std::vector<znString>& names) override;
    const char* GetCurrentOption() const override;
    bool SetCurrentOption(const char* name) override;
    bool CreateOption(const char* name, const char* procedure) override;
    bool DeleteOption(const char* name) override;
    bool PerformOption(znIBrowserView* view, const char* name) override;
    ZNBROWSER_COLLECTOR_CLICK GetClickMode() const override;
    bool SetClickMode(ZNBROWSER_COLLECTOR_CLICK mode) override;
    bool GetAutofit() const override;
    bool SetAutofit(bool autofit) override;
    bool GetPreselector() const override;
    bool SetPreselector(bool on) override;
    bool GetPreselectedItem(znIBrowserView* view, znBrowserDataItem& item) const override;
    void GetStepNames(znIBrowserView* view, std::vector<znString>& names) override;
    std::size_t GetStepCount(znIBrowserView* view) override;
    std::size_t GetRestorableCount(znIBrowserView* view) override;
    bool Undo(znIBrowserView* view) override;
    bool Restore(znIBrowserView* view) override;
    bool ClearSteps(znIBrowserView* view) override;
    void GetNamedCollections(znIBrowserView* view, std::vector<znString>& names) override;
    const char* GetCurrentNamedCollection(znIBrowserView* view) const override;
    bool CreateNamedCollection(znIBrowserView* view, const char* name) override;
    bool SetCurrentNamedCollection(znIBrowserView* view, const char* name) override;
    bool DeleteNamedCollection(znIBrowserView* view, const char* name) override;
    bool AddToNamedCollection(znIBrowserView* view, const char* name) override;
    bool IsBarShown(znIBrowserWindowAccess* window) override;
    bool SetBarShown(znIBrowserWindowAccess* window, bool shown) override;
    bool IsControlShown(znIBrowserWindowAccess* window, ZNBROWSER_COLLECTOR_CONTROL control) override;
    bool SetControlShown(znIBrowserWindowAccess* window, ZNBROWSER_COLLECTOR_CONTROL control,
                         bool shown) override;
    bool IsControlEnabled(znIBrowserWindowAccess* window, ZNBROWSER_COLLECTOR_CONTROL control) override;
    bool SetControlEnabled(znIBrowserWindowAccess* window, ZNBROWSER_COLLECTOR_CONTROL control,
                           bool enabled) override;

private:
    using Views = std::vector<std::shared_ptr<View>>;
    /// Works out what becomes of a state; false when that is refused.
    using Work = std::function<bool(CollectorState& state)>;
    /// Gives the items that are to be collected; false when they are refused.
    using Choice = std::function<bool(ItemSets& items)>;
    struct Option {
        std::string name;
        std::string procedure;
    };

    // Steps.
    bool Make(View& view, const std::string& name, const Work& work);
    bool Finish(View& view, const std::string& name, CollectorState next, CollectorLook look);
    bool Travel(View* view, bool back);
    void Tell(View& view, unsigned changes) noexcept;
    CollectorLook TakeLook(View& view);
    struct Brought;
    Brought PrepareLook(View& view, const CollectorLook& look, const CollectorLook& now);
    void BringBack(View& view, Brought brought) noexcept;
    bool IsThere(const View& view) const;

    // What is collected, and what is shown.
    bool CollectChosen(View& view, ZNBROWSER_COLLECT change, const std::string& name,
                       znIBrowserDataSourceSimple* kind, const Choice& choose);
    bool Choose(View& view, ZNBROWSER_COLLECT_FROM from, znIBrowserDataSourceSimple* kind, ItemSets& items);
    bool ChooseByValues(View& view, ViewProperty& property, const std::vector<znString>& values,
                        znIBrowserDataSourceSimple* kind, ItemSets& items);
    static znBrowserDataItems CollectedItems(View& view);
    bool Display(View& view, ZNBROWSER_COLLECTOR_DISPLAY change, const std::string& name);
    void Fit(View& view);

    // Actions.
    const Option* FindOption(const std::string& name) const;
    bool Run(View& view, const std::string& name, const std::string& procedure);
    void Begin(const Views& views);
    void End(const Views& views, const std::string& name);
    void TakeBack(const Views& views) noexcept;

    Views ViewsNow() const;
    std::vector<std::shared_ptr<Window>> WindowsOf(const View& view) const;
    void TellBars(const View* view) noexcept;
    HostServices& Services() const;
    bool FailWithout(const void* object, const char* what) const;

    BrowserWindows& browser_;
    std::string kind_;
    std::vector<Option> options_; ///< of scripts, in the order created
    std::string option_ = "showhide";
    ZNBROWSER_COLLECTOR_CLICK clickMode_ = ZNBROWSER_COLLECTOR_CLICK_NONE;
    bool autofit_ = false;
    bool preselector_ = false;
    int acting_ = 0;       ///< how many actions of scripts run, one in the other
    bool working_ = false; ///< a change is being worked out
};

} // namespace znhost

#endif
