// How the collector is set: clicks, autofit, the preselector, and the bars of the windows.
#include "window/browser_windows.h"
#include "window/collector.h"
#include "window/window.h"

namespace znhost {

namespace {

Window* Own(znIBrowserWindowAccess* window) { return static_cast<Window*>(window); }

/// Null when there is no such control.
CollectorBar::Control* ControlOf(znIBrowserWindowAccess* window, ZNBROWSER_COLLECTOR_CONTROL control) {
    const auto place = static_cast<std::size_t>(control);
    return window && place < CollectorBar::controls ? &Own(window)->Bar().control[place] : nullptr;
}

} // namespace

ZNBROWSER_COLLECTOR_CLICK Collector::GetClickMode() const {
    if (Refused("znIBrowserCollector::GetClickMode")) return ZNBROWSER_COLLECTOR_CLICK_NONE;
    return clickMode_;
}

bool Collector::SetClickMode(ZNBROWSER_COLLECTOR_CLICK mode) {
    if (Refused("znIBrowserCollector::SetClickMode", mode)) return false;
    clickMode_ = mode;
    TellBars(nullptr);
    return true;
}

bool Collector::GetAutofit() const {
    if (Refused("znIBrowserCollector::GetAutofit")) return false;
    return autofit_;
}

bool Collector::SetAutofit(bool autofit) {
    if (Refused("znIBrowserCollector::SetAutofit", autofit)) return false;
    autofit_ = autofit;
    TellBars(nullptr);
    return true;
}

bool Collector::GetPreselector() const {
    if (Refused("znIBrowserCollector::GetPreselector")) return false;
    return preselector_;
}

bool Collector::SetPreselector(bool on) {
    if (Refused("znIBrowserCollector::SetPreselector", on)) return false;
    preselector_ = on;
    if (!on) {
        for (const auto& view : browser_.Views()) view->Collector().SetPreselected({});
    }
    TellBars(nullptr);
    return true;
}

// ---- Bars ----

bool Collector::IsBarShown(znIBrowserWindowAccess* window) {
    if (Refused("znIBrowserCollector::IsBarShown", window)) return false;
    return window && Own(window)->Bar().shown;
}

bool Collector::SetBarShown(znIBrowserWindowAccess* window, bool shown) {
    if (Refused("znIBrowserCollector::SetBarShown", window, shown)) return false;
    if (!FailWithout(window, "window")) return false;
    Own(window)->Bar().shown = shown;
    Own(window)->Rows().Tell(RowChange::Collector);
    return true;
}

bool Collector::IsControlShown(znIBrowserWindowAccess* window, ZNBROWSER_COLLECTOR_CONTROL control) {
    if (Refused("znIBrowserCollector::IsControlShown", window, control)) return false;
    const CollectorBar::Control* const own = ControlOf(window, control);
    return own && own->shown;
}

bool Collector::SetControlShown(znIBrowserWindowAccess* window, ZNBROWSER_COLLECTOR_CONTROL control,
                                bool shown) {
    if (Refused("znIBrowserCollector::SetControlShown", window, control, shown)) return false;
    CollectorBar::Control* const own = ControlOf(window, control);
    if (!FailWithout(own, "control in a window")) return false;
    own->shown = shown;
    if (shown) Own(window)->Bar().shown = true;
    Own(window)->Rows().Tell(RowChange::Collector);
    return true;
}

bool Collector::IsControlEnabled(znIBrowserWindowAccess* window, ZNBROWSER_COLLECTOR_CONTROL control) {
    if (Refused("znIBrowserCollector::IsControlEnabled", window, control)) return false;
    const CollectorBar::Control* const own = ControlOf(window, control);
    return own && own->enabled;
}

bool Collector::SetControlEnabled(znIBrowserWindowAccess* window, ZNBROWSER_COLLECTOR_CONTROL control,
                                  bool enabled) {
    if (Refused("znIBrowserCollector::SetControlEnabled", window, control, enabled)) return false;
    CollectorBar::Control* const own = ControlOf(window, control);
    if (!FailWithout(own, "control in a window")) return false;
    own->enabled = enabled;
    Own(window)->Rows().Tell(RowChange::Collector);
    return true;
}

} // namespace znhost
