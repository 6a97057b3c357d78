// What one evaluation of the command costs, beside a command that does nothing and beside a namespace
// ensemble.
#include "app/embedded_host.h"

#include <benchmark/benchmark.h>
#include <tcl.h>

#include <string>
#include <vector>

namespace {

/// An interpreter with the embedded host, a view and a column.
class Bench {
public:
    Bench() : interp_(Tcl_CreateInterp()), host_(new znhost::EmbeddedHost(interp_)) {
        Tcl_CreateObjCommand(
            interp_, "noop", [](void*, Tcl_Interp*, int, Tcl_Obj* const*) { return TCL_OK; }, nullptr,
            nullptr);
        Eval("namespace eval ens {proc column {what value} {set value}; namespace export column}\n"
             "namespace eval ens {namespace ensemble create}\n"
             "znbrowsermanager view create v\nznbrowsermanager view column create c");
    }
    ~Bench() {
        delete host_;
        Tcl_DeleteInterp(interp_);
    }
    Bench(const Bench&) = delete;
    Bench& operator=(const Bench&) = delete;

    void Eval(const std::string& script) { Tcl_Eval(interp_, script.c_str()); }

    void Run(benchmark::State& state, const std::vector<std::string>& texts) {
        std::vector<Tcl_Obj*> words;
        for (const std::string& text : texts) {
            words.push_back(Tcl_NewStringObj(text.data(), static_cast<int>(text.size())));
            Tcl_IncrRefCount(words.back());
        }
        for (auto _ : state) {
            if (Tcl_EvalObjv(interp_, static_cast<int>(words.size()), words.data(), 0) != TCL_OK)
                state.SkipWithError(Tcl_GetStringResult(interp_));
        }
        for (Tcl_Obj* const word : words) Tcl_DecrRefCount(word);
    }

private:
    Tcl_Interp* interp_;
    znhost::EmbeddedHost* host_;
};

void NoOpCommand(benchmark::State& state) { Bench().Run(state, {"noop", "view", "column", "caption", "X"}); }
void EnsembleCommand(benchmark::State& state) { Bench().Run(state, {"ens", "column", "caption", "X"}); }
void SetColumnCaption(benchmark::State& state) {
    Bench().Run(state, {"znbrowsermanager", "view", "column", "caption", "X"});
}
void GetColumnCaption(benchmark::State& state) {
    Bench().Run(state, {"znbrowsermanager", "view", "column", "caption"});
}
void UsageText(benchmark::State& state) {
    Bench().Run(state, {"znbrowsermanager", "view", "column", "nosuch", "X"});
}

BENCHMARK(NoOpCommand);
BENCHMARK(EnsembleCommand);
BENCHMARK(SetColumnCaption);
BENCHMARK(GetColumnCaption);
BENCHMARK(UsageText);

} // namespace
