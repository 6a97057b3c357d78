// An application whose model lies in a database: the embedded host gives it a browser.
#include <znBrowserScripting/znBrowserHost.h>
#include <znBrowserScripting/znBrowserManagerTcl.h>

#include <cstdio>
#include <tcl.h>

namespace {

const char* const model = "znbrowsermanager app datactrl create box;"
                          "znbrowsermanager app sql box {CREATE TABLE part (id INTEGER PRIMARY KEY, name)};"
                          "znbrowsermanager app sql box {INSERT INTO part (name) VALUES ('shaft'), ('gear')}";

int Fail(const char* why) {
    std::fprintf(stderr, "%s\n", why);
    return 1;
}

} // namespace

int main(int, char** argv) {
    Tcl_FindExecutable(argv[0]);
    Tcl_Interp* const interp = Tcl_CreateInterp();
    if (Tcl_Init(interp) != TCL_OK) return Fail(Tcl_GetStringResult(interp));
    znBrowserHost* const host = znBrowserHost::Attach(interp);
    if (!host) return Fail(Tcl_GetStringResult(interp));
    if (znBrowserHost::Attach(interp)) return Fail("a second host in the same interpreter");
    if (host->CreateDataCtrl("no", "/no/such/directory/x.db")) return Fail("a data control on nothing");
    if (!*host->GetError()) return Fail("no reason");
    if (Tcl_Eval(interp, model) != TCL_OK) return Fail(Tcl_GetStringResult(interp));
    if (!host->Browse("box")) return Fail(host->GetError());
    for (const std::string& drawing : host->DrawWindows()) std::puts(drawing.c_str());
    std::puts(host->GetManager().GetCurrentView());
    Tcl_DeleteInterp(interp);
}
