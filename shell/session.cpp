#include "session.h"

#include "app/embedded_host.h"
#include "base/native.h"
#include "base/tcl_values.h"
#include "strict.h"
#include "tk/browse.h"
#include "tk/tk_windows.h"
#include "znBrowserVersion.h"

#include <algorithm>

using znhost::FromNative;
using znhost::NewText;

namespace {

const char* const COMMAND = "znbrowsermanager";
/// The package that gives other shells the command: a script may require it here, too.
const char* const PACKAGE = "znbrowser";

bool IsBlank(Tcl_Obj* text) {
    const std::string_view all = Tcl_GetString(text);
    return all.find_first_not_of(" \t\r\n") == all.npos;
}

} // namespace

Session::Session() : interp_(Tcl_CreateInterp()) { Tcl_CreateExitHandler(CloseAtExit, this); }

// The interpreter ends with the program: taking it down, word by word, would be felt in the time of a short
// script.
Session::~Session() {
    Tcl_DeleteExitHandler(CloseAtExit, this);
    Close();
}

void Session::Close() {
    interrupts_.reset();
    host_.reset();
}

// `exit` in a script leaves through Tcl_Exit, and no destructor runs.
void Session::CloseAtExit(ClientData session) { static_cast<Session*>(session)->Close(); }

bool Session::Start(const Options& options) {
    if (Tcl_Init(interp_) != TCL_OK) {
        PrintLine(TCL_STDERR, Tcl_GetObjResult(interp_));
        return false;
    }
    host_ = std::make_unique<znhost::EmbeddedHost>(interp_);
    Tcl_PkgProvide(interp_, PACKAGE, ZN_BROWSER_VERSION);
    SetArguments(options);
    interrupts_ = std::make_unique<Interrupts>(interp_, *host_);
    if (options.strict && !MakeStrict(interp_, COMMAND)) {
        PrintLine(TCL_STDERR, std::string("znbrowsersh: the host registered no command ") + COMMAND);
        return false;
    }
    readsOnly_ = options.tk && !options.script && !options.write;
    if (!AddDatabases(options.databases)) return false;
    if (options.tk) FindDisplay();
    if (options.dark && windows_ == Windows::OnDisplay) {
        const bool dark = Tcl_Eval(interp_, "::znbrowser::theme dark") == TCL_OK;
        if (!dark) PrintLine(TCL_STDERR, Tcl_GetObjResult(interp_));
    }
    return true;
}

void Session::FindDisplay() {
    std::string reason;
    windows_ = znhost::ShowWindows(*host_, reason) ? Windows::OnDisplay : Windows::AsText;
    std::replace(reason.begin(), reason.end(), '\n', ' ');
    if (windows_ == Windows::AsText)
        PrintLine(TCL_STDERR, "znbrowsersh: no windows, their rows are drawn as text: " + reason);
}

void Session::SetArguments(const Options& options) {
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    for (const std::string& argument : options.arguments) {
        Tcl_ListObjAppendElement(nullptr, list, NewText(FromNative(argument)));
    }
    const int count = static_cast<int>(options.arguments.size());
    Tcl_SetVar2Ex(interp_, "argv", nullptr, list, TCL_GLOBAL_ONLY);
    Tcl_SetVar2Ex(interp_, "argc", nullptr, Tcl_NewIntObj(count), TCL_GLOBAL_ONLY);
    const std::string argv0 = FromNative(options.script.value_or(options.program));
    Tcl_SetVar2Ex(interp_, "argv0", nullptr, NewText(argv0), TCL_GLOBAL_ONLY);
    Tcl_SetVar2Ex(interp_, "tcl_interactive", nullptr, Tcl_NewIntObj(0), TCL_GLOBAL_ONLY);
}

bool Session::AddDatabases(const std::vector<DatabaseOption>& databases) {
    for (const DatabaseOption& database : databases) {
        std::string file;
        std::string error;
        const std::string name = FromNative(database.name);
        const bool onServer = znhost::IsOnServer(database.file);
        const bool named = onServer || znhost::FileOfNative(database.file, file, error);
        if (onServer) file = FromNative(database.file);
        if (!named || !host_->CreateDataCtrl(name, file, error, readsOnly_)) {
            const std::string shown = name + (onServer ? "" : "=" + FromNative(database.file)); // no password
            PrintLine(TCL_STDERR, "znbrowsersh: --db " + shown + ": " + error);
            return false;
        }
        browsed_.push_back(name);
    }
    return true;
}

/// For a script, which writes what it says.
bool Session::AllowChanges() {
    if (!readsOnly_) return true;
    std::string error;
    for (const std::string& name : browsed_) {
        if (host_->AllowChanges(name, error)) continue;
        PrintLine(TCL_STDERR, "znbrowsersh: " + name + ": " + error);
        return false;
    }
    return true;
}

bool Session::OpenBrowsers() {
    return std::all_of(browsed_.begin(), browsed_.end(), [this](const auto& name) { return Browse(name); });
}

bool Session::Browse(const std::string& control) {
    std::string reason;
    const Interrupts::Running running(*interrupts_);
    if (znhost::OpenDefaultBrowser(interp_, control, windows_ == Windows::AsText, reason)) return true;
    PrintLine(TCL_STDERR, "znbrowsersh: cannot browse " + control + ": " + reason);
    return false;
}

ExitCode Session::RunScript(const std::string& file) {
    std::string name;
    std::string error;
    if (!znhost::FileOfNative(file, name, error)) {
        PrintLine(TCL_STDERR, "znbrowsersh: cannot open the script: " + error);
        return EXIT_FAILED;
    }
    Tcl_Obj* const path = NewText(name);
    Tcl_IncrRefCount(path);
    int code = TCL_OK;
    {
        const Interrupts::Running running(*interrupts_);
        code = Tcl_FSEvalFileEx(interp_, path, nullptr);
    }
    Tcl_DecrRefCount(path);
    return Finish(code);
}

ExitCode Session::RunStandardInput() {
    Tcl_Obj* const script = Tcl_NewObj();
    Tcl_IncrRefCount(script);
    const Tcl_Channel input = Tcl_GetStdChannel(TCL_STDIN);
    int code = TCL_OK;
    if (input && Tcl_ReadChars(input, script, -1, 0) < 0) {
        Tcl_SetObjResult(interp_, Tcl_ObjPrintf("couldn't read standard input: %s", Tcl_PosixError(interp_)));
        code = TCL_ERROR;
    } else if (windows_ != Windows::Hidden && IsBlank(script)) {
        Tcl_DecrRefCount(script);
        if (!OpenBrowsers()) return EXIT_FAILED;
        return Finish(TCL_OK);
    } else if (!AllowChanges()) {
        Tcl_DecrRefCount(script);
        return EXIT_FAILED;
    } else {
        const Interrupts::Running running(*interrupts_);
        code = Tcl_EvalObjEx(interp_, script, TCL_EVAL_DIRECT | TCL_EVAL_GLOBAL);
        if (code == TCL_ERROR) { // say where, as Tcl does for a file
            const int line = Tcl_GetErrorLine(interp_);
            Tcl_AppendObjToErrorInfo(interp_, Tcl_ObjPrintf("\n    (file \"stdin\" line %d)", line));
        }
    }
    Tcl_DecrRefCount(script);
    return Finish(code);
}

ExitCode Session::Finish(int code) {
    const bool failed = code != TCL_OK && code != TCL_RETURN;
    if (failed) PrintFailure(code);
    ServePending();
    return failed || !ShowToTheEnd() ? EXIT_FAILED : EXIT_DONE;
}

bool Session::ShowToTheEnd() {
    DrawWindows();
    while (windows_ == Windows::OnDisplay && host_->OpenWindows() > 0) {
        Tcl_DoOneEvent(TCL_ALL_EVENTS);
        if (!interrupts_->Take()) continue;
        PrintLine(TCL_STDERR, "znbrowsersh: interrupted");
        return false;
    }
    return true;
}

void Session::DrawWindows() const {
    if (windows_ != Windows::AsText) return;
    for (const std::string& drawing : host_->DrawWindows()) PrintLine(TCL_STDOUT, drawing);
}

// An error from within a script has its place in errorInfo; without one, the script could not be read, and
// the text is ours.
void Session::PrintFailure(int code) {
    Tcl_Obj* const options = Tcl_GetReturnOptions(interp_, code);
    Tcl_IncrRefCount(options);
    Tcl_Obj* const key = Tcl_NewStringObj("-errorinfo", -1);
    Tcl_IncrRefCount(key);
    Tcl_Obj* errorInfo = nullptr;
    Tcl_DictObjGet(nullptr, options, key, &errorInfo);
    const std::string result = Tcl_GetString(Tcl_GetObjResult(interp_));
    if (!errorInfo) {
        PrintLine(TCL_STDERR, result);
    } else if (result == Tcl_GetString(errorInfo)) {
        PrintLine(TCL_STDERR, "znbrowsersh: " + result);
    } else {
        PrintLine(TCL_STDERR, errorInfo);
    }
    Tcl_DecrRefCount(key);
    Tcl_DecrRefCount(options);
}

// Whether a script has told Tcl to do something later.
bool Session::IsAnythingLater() const {
    const Tcl_InterpState state = Tcl_SaveInterpState(interp_, TCL_OK);
    const bool known = Tcl_EvalEx(interp_, "::after info", -1, TCL_EVAL_GLOBAL) == TCL_OK;
    const bool found = !known || *Tcl_GetStringResult(interp_);
    Tcl_RestoreInterpState(interp_, state);
    return found;
}

// The first call runs the timers that are due, the second the idle scripts, among them reports of background
// errors that either has left. Once each: an idle script that schedules itself again would never end a loop.
// To look for timers Tcl starts a thread, which takes a good part of the time of a short script: it is not
// done in vain.
void Session::ServePending() {
    if (windows_ == Windows::OnDisplay || IsAnythingLater()) Tcl_DoOneEvent(TCL_TIMER_EVENTS | TCL_DONT_WAIT);
    Tcl_DoOneEvent(TCL_IDLE_EVENTS | TCL_DONT_WAIT);
    Tcl_DoOneEvent(TCL_IDLE_EVENTS | TCL_DONT_WAIT);
}

std::vector<std::string> Session::GetNames(const std::string& kind) const {
    if (!host_) return {};
    return kind.empty() ? host_->GetObjectNames() : host_->GetNames(kind);
}

void PrintLine(int channel, Tcl_Obj* text) {
    const Tcl_Channel output = Tcl_GetStdChannel(channel);
    if (!output) return;
    Tcl_WriteObj(output, text);
    Tcl_WriteChars(output, "\n", 1);
    Tcl_Flush(output);
}

void PrintLine(int channel, const std::string& text) {
    Tcl_Obj* const object = NewText(text);
    Tcl_IncrRefCount(object);
    PrintLine(channel, object);
    Tcl_DecrRefCount(object);
}
