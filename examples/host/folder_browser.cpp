// A browser of folders: folder_browser SCRIPT FOLDER ...
#include "folder_host.h"

#include <znBrowserScripting/znBrowserManagerTcl.h>

#include <cstdio>

namespace {

/// Adds a folder of the file system to the model. @return false when there is none, or one of that name
/// already
bool Add(Files& files, const char* path) try {
    Folder folder = ReadFolder(path);
    if (files.FindDataSourceSimple(folder.name.c_str())) return false;
    files.folders.emplace_back(std::move(folder));
    return true;
} catch (const std::filesystem::filesystem_error&) {
    return false;
}

/// @return false with a message when a folder cannot be added or the script fails
bool Run(Tcl_Interp* interp, Application& application, char** arguments) {
    for (char** folder = arguments + 1; *folder; ++folder) {
        if (Add(application.files, *folder)) continue;
        std::fprintf(stderr, "not a folder, or one of that name is there: %s\n", *folder);
        return false;
    }
    if (Tcl_Init(interp) == TCL_OK && Tcl_EvalFile(interp, arguments[0]) == TCL_OK) return true;
    std::fprintf(stderr, "%s\n", Tcl_GetStringResult(interp));
    return false;
}

} // namespace

// What is made first goes last, but for the interpreter: it is deleted while the manager and the model are
// there, as its scripts may use them until it is.
int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: folder_browser SCRIPT FOLDER ...\n");
        return 2;
    }
    Tcl_FindExecutable(argv[0]);
    Tcl_Interp* const interp = Tcl_CreateInterp();
    Application application(interp);
    znBrowserManagerTcl manager(&application); // from here on there is a command "znbrowsermanager"
    const bool done = Run(interp, application, argv + 1);
    Tcl_DeleteInterp(interp);
    manager.DeleteBrowserManagerCollectorTcl();
    return done ? 0 : 1;
}
