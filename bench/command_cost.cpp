// Runs a command of five words COUNT times, for a tool that counts instructions: see instructions.tcl.
//
//     command_cost noop|znbrowsermanager COUNT
#include "bench/bench_host.h"

#include <iterator>

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    zn_bench::BenchHost bench;
    Tcl_Interp* const interp = bench.Interp();
    Tcl_CreateObjCommand(
        interp, "noop", [](void*, Tcl_Interp*, int, Tcl_Obj* const*) { return TCL_OK; }, nullptr, nullptr);
    bench.Eval("zn view create v; zn view column create c");
    Tcl_Obj* words[] = {Tcl_NewStringObj(argv[1], -1), Tcl_NewStringObj("view", -1),
                        Tcl_NewStringObj("column", -1), Tcl_NewStringObj("caption", -1),
                        Tcl_NewStringObj("X", -1)};
    for (Tcl_Obj* const word : words) Tcl_IncrRefCount(word);
    int outcome = TCL_OK;
    for (int count = std::atoi(argv[2]); count > 0 && outcome == TCL_OK; --count)
        outcome = Tcl_EvalObjv(interp, static_cast<int>(std::size(words)), words, 0);
    for (Tcl_Obj* const word : words) Tcl_DecrRefCount(word);
    // A column has that caption now, if it was the command that ran, and not its complaint.
    const bool ran = argv[1] == std::string("noop") || bench.Eval("zn view column caption") == "X";
    return ran && outcome == TCL_OK ? 0 : 1;
}
