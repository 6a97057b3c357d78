// A step of the collector happens as a whole or not at all, whatever fails in the middle of it.
#include "tests/faults/allocations.h"
#include "tests/window/collector_model.h"

#include <algorithm>
#include <functional>
#include <new>

namespace {

using Act = std::function<bool(CollectorModel& model)>;

/// A model in which something is collected, hidden and selected, and a step has been taken back.
std::unique_ptr<CollectorModel> MakeModel() {
    auto model = std::make_unique<CollectorModel>();
    model->Window(true).SelectionUpdate(model->Window(true).Rows().IndicesFrom(4, 3));
    model->Eval(
        "zn collector selection set; zn collector showhide hide\n"
        "zn collector selection set all; zn collector undo\n"
        "zn collector option create act act\n"
        "proc act args {foreach words {isolate {selection clear} {showhide all} {selection add displayed}\n"
        "    isolateonly} {if {[string match *Error* [zn collector {*}$words]]} {error failed}}}");
    model->Window(false).Rows().Collapse(model->Window(false).Rows().IndicesFrom(0, 1)[0]);
    return model;
}

const struct {
    const char* name;
    Act act;
} acts[] = {
    {"isolate",
     [](CollectorModel& model) {
         return model.Collector().ChangeDisplay(&model.View(), ZNBROWSER_COLLECTOR_ISOLATE);
     }},
    {"collect",
     [](CollectorModel& model) {
         return model.Collector().Collect(&model.View(), ZNBROWSER_COLLECT_TOGGLE, ZNBROWSER_COLLECT_FROM_ALL,
                                          nullptr);
     }},
    {"undo", [](CollectorModel& model) { return model.Collector().Undo(&model.View()); }},
    {"restore", [](CollectorModel& model) { return model.Collector().Restore(&model.View()); }},
    {"script", [](CollectorModel& model) { return model.Collector().PerformOption(&model.View(), "act"); }},
};

/// After a step that may have failed all is as before it, and it was none, or as after it; then it can be
/// taken back and done again.
void Check(CollectorModel& model, CollectorModel& before, CollectorModel& after, const char* name) {
    const auto stands = [&model](CollectorModel& other) {
        return model.Look() == other.Look() && model.Steps() == other.Steps() &&
               model.Collector().GetRestorableCount(&model.View()) ==
                   other.Collector().GetRestorableCount(&other.View());
    };
    ASSERT_TRUE(stands(before) || stands(after)) << name << ": half of the step has happened";
    while (model.Steps() > 0) ASSERT_TRUE(model.Collector().Undo(&model.View()));
    while (model.Collector().GetRestorableCount(&model.View()) > 0)
        ASSERT_TRUE(model.Collector().Restore(&model.View()));
}

TEST(CollectorFaults, MemoryRunsOutInTheMiddleOfAStep) {
    for (const auto& [name, act] : acts) {
        const auto before = MakeModel();
        const auto after = MakeModel();
        ASSERT_TRUE(act(*after)) << name;
        bool failed = true;
        for (std::size_t n = 0; failed && !testing::Test::HasFatalFailure();
             n += std::max<std::size_t>(1, n / 40)) {
            const auto model = MakeModel();
            model->Look();
            const long living = allocations.living;
            allocations = {true, false, n, false, living};
            try {
                act(*model);
            } catch (const std::bad_alloc&) {
            }
            failed = allocations.failed;
            allocations.armed = false;
            SCOPED_TRACE("allocation " + std::to_string(n));
            Check(*model, *before, *after, name);
        }
    }
}

/// Each host call that the procedure of an action leads to is refused or throws: the action is taken back.
TEST(CollectorFaults, AnActionOfAScriptFailsAsAWhole) {
    for (const znhost::CallLog::Fault fault :
         {znhost::CallLog::Fault::Refuse, znhost::CallLog::Fault::Throw}) {
        const auto before = MakeModel();
        bool failed = true;
        for (std::size_t n = 2; failed && !testing::Test::HasFatalFailure();
             ++n) { // the first is the action itself
            const auto model = MakeModel();
            model->Host().Calls().FailCall(n, fault);
            const bool done = model->Collector().PerformOption(&model->View(), "act");
            failed = model->Host().Calls().HasFailed();
            model->Host().Calls().FailCall(0);
            if (done) continue; // what failed was not needed
            EXPECT_EQ(model->Look(), before->Look()) << "call " << n;
            EXPECT_EQ(model->Steps(), before->Steps()) << "call " << n;
        }
    }
}

} // namespace
