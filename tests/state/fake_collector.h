// A collector that notes what it is asked, and answers what a test has put into it.
#ifndef FAKE_COLLECTOR_H
#define FAKE_COLLECTOR_H

#include "host/znBrowserDataItems.h"
#include "host/znIBrowserCollector.h"

#include <string>

class FakeCollector final : public znIBrowserCollector {
public:
    using View = znIBrowserView*;
    using Window = znIBrowserWindowAccess*;
    using Control = ZNBROWSER_COLLECTOR_CONTROL;
    using Sources = std::vector<znIBrowserDataSourceSimple*>;
    using Names = std::vector<znString>;

    std::string calls;        ///< the changes asked for, each with its arguments
    Sources kinds;            ///< of every view
    Names names;              ///< of the actions, the steps and the named collections
    const char* name = "";    ///< of the chosen action and collection
    std::size_t steps = 0;    ///< that can be taken back, and restored
    znBrowserDataItems items; ///< collected
    bool accepts = true;      ///< whether changes are made
    void (*during)() = [] {}; ///< what happens in each change

    bool GetKinds(View, Sources& out) override {
        out = kinds;
        return accepts;
    }
    bool SetKind(const char* kind) override { return Note("SetKind", kind); }
    bool Collect(View, ZNBROWSER_COLLECT change, ZNBROWSER_COLLECT_FROM from,
                 znIBrowserDataSourceSimple* kind) override {
        return Note("Collect", change, from, kind ? "kind" : "all");
    }
    bool CollectByValues(View, ZNBROWSER_COLLECT change, znIBrowserViewProperty*, const Names& values,
                         znIBrowserDataSourceSimple* kind) override {
        return Note("CollectByValues", change, values.size(), kind ? "kind" : "all");
    }
    bool ClearCollection(View) override { return Note("ClearCollection"); }
    bool GetCollectedCounts(View, std::vector<znBrowserCollectedCount>& counts) override {
        counts = {{nullptr, 3}};
        for (znIBrowserDataSourceSimple* const kind : kinds) counts.push_back({kind, 2});
        return accepts;
    }
    bool GetCollectedItems(View, znBrowserDataItems& out) override {
        out = items;
        return accepts;
    }
    bool ChangeDisplay(View, ZNBROWSER_COLLECTOR_DISPLAY change) override {
        return Note("ChangeDisplay", change);
    }
    void GetOptionNames(Names& out) override { out = names; }
    const char* GetCurrentOption() const override { return name; }
    bool SetCurrentOption(const char* option) override { return Note("SetCurrentOption", option); }
    bool CreateOption(const char* option, const char* procedure) override {
        return Note("CreateOption", option, procedure);
    }
    bool DeleteOption(const char* option) override { return Note("DeleteOption", option); }
    bool PerformOption(View, const char* option) override { return Note("PerformOption", option); }
    ZNBROWSER_COLLECTOR_CLICK GetClickMode() const override { return ZNBROWSER_COLLECTOR_CLICK_TOGGLE; }
    bool SetClickMode(ZNBROWSER_COLLECTOR_CLICK mode) override { return Note("SetClickMode", mode); }
    bool GetAutofit() const override { return true; }
    bool SetAutofit(bool autofit) override { return Note("SetAutofit", autofit); }
    bool GetPreselector() const override { return true; }
    bool SetPreselector(bool on) override { return Note("SetPreselector", on); }
    bool GetPreselectedItem(View, znBrowserDataItem& item) const override {
        if (!items.rows.empty()) item = {items.runs.front().source, items.rows.front()};
        return !items.rows.empty();
    }
    void GetStepNames(View, Names& out) override { out = names; }
    std::size_t GetStepCount(View) override { return steps; }
    std::size_t GetRestorableCount(View) override { return steps; }
    bool Undo(View) override { return Note("Undo"); }
    bool Restore(View) override { return Note("Restore"); }
    bool ClearSteps(View) override { return Note("ClearSteps"); }
    void GetNamedCollections(View, Names& out) override { out = names; }
    const char* GetCurrentNamedCollection(View) const override { return name; }
    bool CreateNamedCollection(View, const char* n) override { return Note("CreateNamedCollection", n); }
    bool SetCurrentNamedCollection(View, const char* n) override {
        return Note("SetCurrentNamedCollection", n);
    }
    bool DeleteNamedCollection(View, const char* n) override { return Note("DeleteNamedCollection", n); }
    bool AddToNamedCollection(View, const char* n) override { return Note("AddToNamedCollection", n); }
    bool IsBarShown(Window) override { return true; }
    bool SetBarShown(Window, bool shown) override { return Note("SetBarShown", shown); }
    bool IsControlShown(Window, Control control) override { return control == ZNBROWSER_COLLECTOR_UNDO; }
    bool SetControlShown(Window, Control control, bool shown) override {
        return Note("SetControlShown", control, shown);
    }
    bool IsControlEnabled(Window, Control control) override { return control == ZNBROWSER_COLLECTOR_UNDO; }
    bool SetControlEnabled(Window, Control control, bool enabled) override {
        return Note("SetControlEnabled", control, enabled);
    }

private:
    static std::string Text(const char* text) { return text ? text : "(null)"; }
    template <class Number>
    static std::string Text(Number number) {
        return std::to_string(static_cast<int>(number));
    }
    template <class... Arguments>
    bool Note(const char* operation, Arguments... arguments) {
        calls += operation;
        ((calls += ' ' + Text(arguments)), ...);
        calls += '\n';
        during();
        return accepts;
    }
};

#endif
