// A long list in a window, which the benchmarks of rows and of the collector share.
#ifndef BENCH_ITEMS_H
#define BENCH_ITEMS_H

#include "app/application.h"
#include "app/embedded_host.h"
#include "window/window_list.h"

#include <benchmark/benchmark.h>
#include <tcl.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace zn_bench {

using namespace znhost;

/// A window on a list of items, each with three columns and a child in every tenth; made once for each size.
class Items {
public:
    static Items& Of(std::int64_t count) {
        static std::map<std::int64_t, std::unique_ptr<Items>> all;
        std::unique_ptr<Items>& items = all[count];
        if (!items) items.reset(new Items(count));
        return *items;
    }

    void Sql(const std::string& statement) { Eval("zn app sql model {" + statement + "}"); }
    void Eval(const std::string& script) {
        if (Tcl_Eval(interp_, script.c_str()) != TCL_OK) std::abort();
    }
    RowModel& Rows() { return host_.App().Model().Windows().All().First()->Rows(); }
    Application& App() { return host_.App(); }
    View& Shown() { return *host_.App().Model().Views().First(); }
    RowContent Block() {
        const RowModel::Answering answering(Rows());
        const RowPlan& plan = Rows().Plan();
        return plan.Below(plan.Below(Rows().Top())[0])[0];
    }
    std::uint32_t ListIndex() { return Rows().Read(0, 1)[0].index; }
    void Expand() {
        if (!Rows().Expand(ListIndex())) std::abort();
    }

    static constexpr const char* tables[] = {
        "create table item (id integer primary key, name text, weight real, shown boolean)",
        "create table child (id integer primary key, item_id integer references item, name text)"};
    static std::string ItemsSql(const std::string& count) {
        return "insert into item with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
               count + ") select i, 'item ' || (i * 7919 % " + count + "), i * 0.5, i % 2 from n";
    }

private:
    explicit Items(std::int64_t count) : interp_(Tcl_CreateInterp()), host_(interp_) {
        const std::string number = std::to_string(count);
        Eval("interp alias {} zn {} znbrowsermanager; zn app datactrl create model");
        for (const char* const table : tables) Sql(table);
        Sql(ItemsSql(number));
        Sql("insert into child (item_id, name) select id, 'child' from item where id % 10 = 0");
        Sql("create index child_by_item on child (item_id)");
        Eval("zn datactrl current model; zn view create v false; zn view datactrl connect\n"
             "foreach {property type} {name string weight double shown bool} {\n"
             "  zn view property create $property; zn view property type $type\n"
             "  zn view property connect item $property; zn view column create $property}\n"
             "zn view folder current v; zn view list create item\n"
             "zn view folder tree parentchild item child child.item_id\n"
             "zn window create w; zn view column current Name");
    }

    Tcl_Interp* interp_;
    EmbeddedHost host_;
};

} // namespace zn_bench

#endif
