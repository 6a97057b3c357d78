// What the tests of the collector's steps share: a small model in two windows, and how all of it looks.
#ifndef COLLECTOR_MODEL_H
#define COLLECTOR_MODEL_H

#include "app/application.h"
#include "app/embedded_host.h"
#include "window/collector.h"
#include "window/window_list.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

/// Assemblies that nest, three parts in each, and loose stamps; all collected, shown and hidden in one view.
class CollectorModel {
public:
    CollectorModel() : interp_(Tcl_CreateInterp(), Tcl_DeleteInterp), host_(interp_.get()) {
        Eval("interp alias {} zn {} znbrowsermanager; zn app datactrl create model\n"
             "foreach statement {\n"
             "  {create table assembly (id integer primary key, parent integer references assembly, name "
             "text)}\n"
             "  {create index by_parent on assembly (parent)}\n"
             "  {create table part (id integer primary key, owner integer references assembly, name text)}\n"
             "  {create index by_owner on part (owner)}\n"
             "  {create table stamp (id integer primary key, name text)}\n"
             "  {insert into assembly values (1, null, 'a1'), (2, 1, 'a2'), (3, 1, 'a3'), (4, 2, 'a4'),\n"
             "     (5, null, 'a5'), (6, 5, 'a6')}\n"
             "  {insert into part with recursive n(i) as (select 1 union all select i + 1 from n where i < "
             "18)\n"
             "     select i, (i - 1) / 3 + 1, 'p' || i from n}\n"
             "  {insert into stamp values (1, 's1'), (2, 's2'), (3, 's3'), (4, 's4')}\n"
             "} {zn app sql model $statement}\n"
             "zn datactrl current model; zn datasource hierarchical create tree false false\n"
             "zn datasource hierarchical connect parent assembly x\n"
             "zn datasource hierarchical connect child assembly assembly.parent\n"
             "zn datasource hierarchical connect child part part.owner\n"
             "zn view create v false; zn view datactrl connect; zn view folder current v\n"
             "zn view property create number; zn view property type integer; zn view property connect part "
             "id\n"
             "foreach {folder kind what} {structure tree tree parts list part stamps list stamp} {\n"
             "  zn view folder current v; zn view folder create $folder; zn view $kind create $what}\n"
             "zn window create W1; zn window create W2");
        for (const auto& window : host_.App().Model().Windows().All()) window->Rows().ExpandAll();
    }

    std::string Eval(const std::string& script) {
        EXPECT_EQ(Tcl_EvalEx(interp_.get(), script.c_str(), -1, TCL_EVAL_GLOBAL), TCL_OK)
            << Tcl_GetStringResult(interp_.get());
        return Tcl_GetStringResult(interp_.get());
    }
    znhost::EmbeddedHost& Host() { return host_; }
    znhost::Collector& Collector() { return host_.App().Model().VirtualCollector(); }
    znhost::View& View() { return *host_.App().Model().Views().First(); }
    znhost::Window& Window(bool first) {
        return *host_.App().Model().Windows().All().Find(first ? "W1" : "W2");
    }
    std::size_t Steps() { return Collector().GetStepCount(&View()); }

    /// All that a step brings back, a line for each row; without the rows of these texts.
    std::vector<std::string> Look(const std::set<std::string>& without = {}) {
        std::vector<std::string> lines;
        for (const bool first : {true, false}) {
            lines.push_back("window, at " + std::to_string(Window(first).ScrollPosition()));
            for (const znhost::RowLook& look : Window(first).Rows().Read(0, 1000)) {
                if (without.count(look.text)) continue;
                lines.push_back(std::string(2 * look.depth, ' ') + look.text +
                                (look.expanded ? " open" : "") + (look.selected ? " selected" : "") +
                                (look.collected ? " collected" : ""));
            }
        }
        return lines;
    }

private:
    std::unique_ptr<Tcl_Interp, void (*)(Tcl_Interp*)> interp_;
    znhost::EmbeddedHost host_;
};

#endif
