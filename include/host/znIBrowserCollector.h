// The virtual collector: which items of a view are picked, which are shown, and every step taken back.
#ifndef ZN_I_BROWSER_COLLECTOR_H
#define ZN_I_BROWSER_COLLECTOR_H

#include "../znBrowserTypes.h"
#include "znutl/znString.h"
#include <cstddef>
#include <vector>

struct znBrowserDataItem;
struct znBrowserDataItems;
class znIBrowserDataSourceSimple;
class znIBrowserView;
class znIBrowserViewProperty;
class znIBrowserWindowAccess;

/// How many items of one data source are collected.
struct znBrowserCollectedCount {
    znIBrowserDataSourceSimple* source = nullptr;
    std::size_t count = 0;
};

/// The collector of the host. What holds for all host interfaces stands at `znIBrowserApplication`; of a
/// refusal the error text of the browser object is read, unless a comment says otherwise.
///
/// Of each view it keeps
/// - the **collection**: a set of items, each in it once. An item that vanishes from its data source leaves
/// it;
///   that is no step.
/// - the **display state**: which items are shown; all, until an action changes it. What it hides no window
/// of
///   the view shows, nor a container all of whose items are hidden. New items are shown.
/// - the **steps**: what one operation changed of the collection or the display state of the view is one
/// step,
///   and what changed nothing is none. At least the last 100 are kept. A step that is taken back leaves, in
///   every window of the view, what is shown, collected, expanded, selected and scrolled exactly as it was
///   before it; items that have vanished meanwhile stay away. The next step forgets those that were taken
///   back.
/// - the **named collections**, one of which may be the current one.
/// All of them end with the view. What windows then show differently, and marks, is brought to them by the
/// host; scripts may run there.
///
/// Each operation that makes steps happens as a whole or, when it is refused or throws, not at all.
///
/// The **kind** is the data source whose items are collected; none stands for items of every data source. The
/// layer keeps it by name, tells it once to the host, for its windows, and gives it along with each operation
/// that collects.
class znIBrowserCollector {
public:
    // ---- The kind ----
    /// The data sources whose items can be collected in the view: the simple ones that it can show anywhere,
    /// each once, in the host's order. The layer finds the kind among them, by name.
    virtual bool GetKinds(znIBrowserView* view, std::vector<znIBrowserDataSourceSimple*>& kinds) = 0;
    /// From now on clicks in windows collect items of the data source of that name, and the windows show it;
    /// "" for items of every data source, as it is from the start. A view that has no such source collects
    /// nothing by clicks.
    virtual bool SetKind(const char* name) = 0;

    // ---- The collection ----
    // With a kind, adding, toggling and setting make it a collection of that kind alone: items of other data
    // sources leave it in the same step. Removing leaves those alone.
    /// Collects items of the view, of that kind (null: of every kind).
    virtual bool Collect(znIBrowserView* view, ZNBROWSER_COLLECT change, ZNBROWSER_COLLECT_FROM from,
                         znIBrowserDataSourceSimple* kind) = 0;
    /// Collects the items of the view whose value of the property, which is the view's, is one of `values`,
    /// of which there is at least one; compared as `znIBrowserDataSource::SelectItemsByValues` does, and with
    /// the help of an index where there is one. Never asked to toggle. Values may be computed by scripts,
    /// which then run.
    virtual bool CollectByValues(znIBrowserView* view, ZNBROWSER_COLLECT change,
                                 znIBrowserViewProperty* property, const std::vector<znString>& values,
                                 znIBrowserDataSourceSimple* kind) = 0;
    /// Empties the collection, whatever the kind.
    virtual bool ClearCollection(znIBrowserView* view) = 0;
    /// How many items are collected, by data source, in the order of `GetCollectedItems`; none of a source
    /// without collected items.
    virtual bool GetCollectedCounts(znIBrowserView* view, std::vector<znBrowserCollectedCount>& counts) = 0;
    /// The collected items, by data source in the host's order, and in the order of their data source.
    virtual bool GetCollectedItems(znIBrowserView* view, znBrowserDataItems& items) = 0;

    // ---- The display state ----
    /// Changes what the view shows. Every change but `ZNBROWSER_COLLECTOR_SHOW_ALL` is refused, with a
    /// reason, while nothing is collected.
    virtual bool ChangeDisplay(znIBrowserView* view, ZNBROWSER_COLLECTOR_DISPLAY change) = 0;

    // ---- Actions ----
    // They are the same in every view. Four are there from the start: "showhide" (which toggles), "showonly",
    // "isolate" and "isolateonly". The first of them is the current one then.
    /// The names of all actions: those four, then those of scripts in the order created.
    virtual void GetOptionNames(std::vector<znString>& names) = 0;
    /// The name of the action that is chosen, never null; that of an action that exists.
    virtual const char* GetCurrentOption() const = 0;
    /// Chooses an action; the layer has looked whether it exists. It is not performed.
    virtual bool SetCurrentOption(const char* name) = 0;
    /// Makes an action of a Tcl procedure, which need not exist yet. The layer has looked whether the name is
    /// free; it may be empty: refuse then. The action is not chosen.
    virtual bool CreateOption(const char* name, const char* procedure) = 0;
    /// Deletes an action of a script; one of the first four is for the host to refuse. When it was chosen,
    /// the first action is chosen instead.
    virtual bool DeleteOption(const char* name) = 0;
    /// Performs an action in a view; the layer has looked whether it exists. One of a script calls its
    /// procedure, at global level, with two words: the name of the view, and the list of the collected items,
    /// each a list of its data source's name and its number. What the procedure changes, by whatever
    /// operation here, is one step of each view concerned. When it ends with an error, what it changed is
    /// taken back, and the action is refused with the procedure's message. The procedure may delete the view
    /// and the action. While it runs, steps are not taken back, restored or forgotten: those are refused; an
    /// action performed by it is part of it.
    virtual bool PerformOption(znIBrowserView* view, const char* name) = 0;

    // ---- Clicks, autofit and the preselector ----
    /// How clicks in windows collect; not at all, until set.
    virtual ZNBROWSER_COLLECTOR_CLICK GetClickMode() const = 0;
    /// Sets how clicks collect; one of the three.
    virtual bool SetClickMode(ZNBROWSER_COLLECTOR_CLICK mode) = 0;
    /// Whether the windows scroll to the first collected item that they show after an action; false, until
    /// set.
    virtual bool GetAutofit() const = 0;
    /// Switches that.
    virtual bool SetAutofit(bool autofit) = 0;
    /// Whether windows mark the item under the pointer; false, until set.
    virtual bool GetPreselector() const = 0;
    /// Switches that. Switched off, no item is marked.
    virtual bool SetPreselector(bool on) = 0;
    /// The item of the view that is marked. How windows tell their listeners when another one is, is the
    /// host's. @return false when none is; no text goes with it.
    virtual bool GetPreselectedItem(znIBrowserView* view, znBrowserDataItem& item) const = 0;

    // ---- Steps ----
    /// What the steps that can be taken back did, the last one last: the words of the command that do the
    /// same, as in "isolate", "selection add" or "option perform NAME".
    virtual void GetStepNames(znIBrowserView* view, std::vector<znString>& names) = 0;
    /// How many can be taken back.
    virtual std::size_t GetStepCount(znIBrowserView* view) = 0;
    /// How many were taken back and can be restored.
    virtual std::size_t GetRestorableCount(znIBrowserView* view) = 0;
    /// Takes back the last step; the layer has looked whether there is one.
    virtual bool Undo(znIBrowserView* view) = 0;
    /// Does again the step that was taken back last; the layer has looked whether there is one.
    virtual bool Restore(znIBrowserView* view) = 0;
    /// Forgets all steps, those taken back too. What they did stays.
    virtual bool ClearSteps(znIBrowserView* view) = 0;

    // ---- Named collections ----
    // They belong to the view. Making, deleting and adding to one is no step.
    /// Their names, in the order created.
    virtual void GetNamedCollections(znIBrowserView* view, std::vector<znString>& names) = 0;
    /// The name of the current one; "" when none is.
    virtual const char* GetCurrentNamedCollection(znIBrowserView* view) const = 0;
    /// Keeps what is collected now, which may be nothing, under a name, and makes that the current one. The
    /// layer has looked whether the name is free; it may be empty: refuse then.
    virtual bool CreateNamedCollection(znIBrowserView* view, const char* name) = 0;
    /// Collects what a named collection holds, in place of what was collected, and makes it the current one;
    /// the layer has looked whether it exists. Taking that step back does not change which one is current.
    virtual bool SetCurrentNamedCollection(znIBrowserView* view, const char* name) = 0;
    /// Deletes one; the layer has looked whether it exists. What is collected stays so. When it was the
    /// current one, none is.
    virtual bool DeleteNamedCollection(znIBrowserView* view, const char* name) = 0;
    /// Adds what is collected now to a named collection; the layer has looked whether it exists.
    virtual bool AddToNamedCollection(znIBrowserView* view, const char* name) = 0;

    // ---- The collector bar of a window ----
    /// Whether the window has its bar, or will have it as soon as there is a display; false, until set.
    virtual bool IsBarShown(znIBrowserWindowAccess* window) = 0;
    /// Shows or hides the bar.
    virtual bool SetBarShown(znIBrowserWindowAccess* window, bool shown) = 0;
    /// Whether a control stands in the bar; true, until set.
    virtual bool IsControlShown(znIBrowserWindowAccess* window, ZNBROWSER_COLLECTOR_CONTROL control) = 0;
    /// Puts a control into the bar, which is shown then too, or takes it out.
    virtual bool SetControlShown(znIBrowserWindowAccess* window, ZNBROWSER_COLLECTOR_CONTROL control,
                                 bool shown) = 0;
    /// Whether a control answers to the user; true, until set.
    virtual bool IsControlEnabled(znIBrowserWindowAccess* window, ZNBROWSER_COLLECTOR_CONTROL control) = 0;
    /// Lets a control answer to the user, or not. Scripts are not hindered.
    virtual bool SetControlEnabled(znIBrowserWindowAccess* window, ZNBROWSER_COLLECTOR_CONTROL control,
                                   bool enabled) = 0;

protected:
    ~znIBrowserCollector() = default;
};

#endif
