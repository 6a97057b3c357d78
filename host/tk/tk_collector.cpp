#include "tk/tk_collector.h"

#include "base/tcl_values.h"
#include "model/data_sources.h"
#include "model/view.h"
#include "window/browser_windows.h"
#include "window/collector.h"
#include "window/window.h"

#include <tcl.h>

namespace znhost {

namespace {

/// By their numbers.
constexpr const char* controlWords[] = {"addremove",   "entityselector", "optionselector", "pnlcolselector",
                                        "preselector", "undo",           "selection"};
constexpr const char* clickWords[] = {"none", "select", "toggle"};

Tcl_Obj* NewNames(const std::vector<znString>& names) {
    std::vector<std::string> words;
    for (const znString& name : names) words.push_back(name.Str());
    return NewList(words);
}

Tcl_Obj* NewCount(std::size_t count) { return Tcl_NewWideIntObj(static_cast<Tcl_WideInt>(count)); }

Tcl_Obj* NewControls(Window& window) {
    Tcl_Obj* const controls = Tcl_NewDictObj();
    for (std::size_t i = 0; i < CollectorBar::controls; ++i) {
        const CollectorBar::Control& control = window.Bar().control[i];
        Tcl_Obj* const states[] = {Tcl_NewBooleanObj(control.shown), Tcl_NewBooleanObj(control.enabled)};
        Put(controls, controlWords[i], Tcl_NewListObj(2, states));
    }
    return controls;
}

void PutView(Tcl_Obj* bar, Collector& collector, View& view) {
    std::vector<znIBrowserDataSourceSimple*> kinds;
    std::vector<znString> names;
    collector.GetKinds(&view, kinds);
    CopyNames(view.Log(), kinds, names);
    Put(bar, "kinds", NewNames(names));
    Put(bar, "collected", NewCount(view.Collector().Collected().Size()));
    Put(bar, "undo", NewCount(collector.GetStepCount(&view)));
    Put(bar, "restore", NewCount(collector.GetRestorableCount(&view)));
    const auto& steps = view.Collector().Done().Steps();
    Put(bar, "step", NewText(steps.empty() ? std::string() : steps.back().name));
    collector.GetNamedCollections(&view, names);
    Put(bar, "named", NewNames(names));
    Put(bar, "current", NewText(view.Collector().CurrentNamed()));
    Put(bar, "hidden", NewCount(collector.CountHidden(view)));
}

} // namespace

Tcl_Obj* NewCollectorBar(Window& window) {
    const CallLog::Quiet quiet(window.Log());
    Collector& collector = window.Owner().VirtualCollector();
    Tcl_Obj* const bar = Tcl_NewDictObj();
    std::vector<znString> options;
    collector.GetOptionNames(options);
    Put(bar, "shown", Tcl_NewBooleanObj(window.Bar().shown));
    Put(bar, "controls", NewControls(window));
    Put(bar, "kind", NewText(collector.Kind()));
    Put(bar, "options", NewNames(options));
    Put(bar, "option", NewText(collector.GetCurrentOption()));
    Put(bar, "click", NewText(clickWords[collector.GetClickMode()]));
    Put(bar, "autofit", Tcl_NewBooleanObj(collector.GetAutofit()));
    Put(bar, "preselector", Tcl_NewBooleanObj(collector.GetPreselector()));
    if (window.ShownView()) PutView(bar, collector, *window.ShownView());
    return bar;
}

} // namespace znhost
