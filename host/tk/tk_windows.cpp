#include "tk/tk_windows.h"

#include "app/application.h"
#include "app/embedded_host.h"
#include "app/manager_command.h"
#include "base/kept_result.h"
#include "base/tcl_values.h"
#include "tk/tk_scripts.h"
#include "tk/tk_words.h"
#include "window/window.h"
#include "window/window_list.h"

#include <tcl.h>

#include <exception>
#include <utility>

namespace znhost {

namespace {

constexpr const char* hostCommand = "::znbrowser::host";
constexpr const char* managerCommand = "::znbrowser::manager";

enum class OnError { Answer, Report };

/// Evaluates a command at the global level. The result of the command in whose course this happens is as it
/// was. @return false when it failed; `result` receives the result, or the message.
bool Evaluate(Tcl_Interp* interp, Tcl_Obj* command, std::string& result, OnError onError) {
    const KeptResult kept(interp);
    Tcl_IncrRefCount(command);
    const int code = Tcl_EvalObjEx(interp, command, TCL_EVAL_GLOBAL | TCL_EVAL_DIRECT);
    Tcl_DecrRefCount(command);
    result = Tcl_GetStringResult(interp);
    if (code != TCL_OK && onError == OnError::Report) Tcl_BackgroundException(interp, code);
    return code == TCL_OK;
}

bool Evaluate(Tcl_Interp* interp, std::string_view script, std::string& result) {
    return Evaluate(interp, NewText(script), result, OnError::Answer);
}

int AnswerManagerWords(ClientData windows, Tcl_Interp*, int objc, Tcl_Obj* const objv[]) {
    return static_cast<TkWindows*>(windows)->EvalManagerCommand(objc, objv);
}

/// Tk takes the options that it knows out of "argv". These are the script's: Tk sees none while one lives.
class HiddenArguments {
public:
    explicit HiddenArguments(Tcl_Interp* interp) : interp_(interp), argv_(Get(interp)) {
        Tcl_IncrRefCount(argv_);
        Set(Tcl_NewObj());
    }
    ~HiddenArguments() {
        Set(argv_);
        Tcl_DecrRefCount(argv_);
    }
    HiddenArguments(const HiddenArguments&) = delete;
    HiddenArguments& operator=(const HiddenArguments&) = delete;

private:
    static Tcl_Obj* Get(Tcl_Interp* interp) {
        Tcl_Obj* const argv = Tcl_GetVar2Ex(interp, "argv", nullptr, TCL_GLOBAL_ONLY);
        return argv ? argv : Tcl_NewObj();
    }
    void Set(Tcl_Obj* argv) {
        int count = 0;
        Tcl_ListObjLength(nullptr, argv, &count);
        Tcl_SetVar2Ex(interp_, "argv", nullptr, argv, TCL_GLOBAL_ONLY);
        Tcl_SetVar2Ex(interp_, "argc", nullptr, Tcl_NewIntObj(count), TCL_GLOBAL_ONLY);
    }

    Tcl_Interp* const interp_;
    Tcl_Obj* argv_;
};

} // namespace

// ---- An open window ----

/// One open window. It gathers what changes, and tells the scripts when Tcl has nothing else to do.
class TkWindows::Shown final : public RowObserver {
public:
    Shown(const TkWindows& owner, Window& window, unsigned number)
        : owner_(owner), window_(window), number_(number) {
        window_.Rows().AddObserver(*this);
    }
    ~Shown() {
        Tcl_CancelIdleCall(Tell, this);
        window_.Rows().RemoveObserver(*this);
    }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;

    Window& Of() const { return window_; }

    void OnRowsChanged(const std::vector<RowChange>& changes) override {
        if (!isDue_) Tcl_DoWhenIdle(Tell, this);
        isDue_ = true;
        for (const RowChange& change : changes) {
            // Where to scroll is said by the last; everything else needs to be said once.
            if (change.kind == RowChange::Shown) changes_.erase(change.kind);
            changes_.emplace(change.kind, change.index);
        }
    }
    TkChanges TakeChanges() { return std::exchange(changes_, {}); }

private:
    /// Called by Tcl, which knows no exceptions. What could not be told for want of memory is told with the
    /// next change.
    static void Tell(ClientData data) {
        Shown& self = *static_cast<Shown*>(data);
        Tcl_Interp* const interp = self.owner_.application_.Interp();
        self.isDue_ = false;
        try {
            self.owner_.Run({"::znbrowser::changed", std::to_string(self.number_)});
        } catch (const std::exception& failure) {
            const KeptResult kept(interp);
            Tcl_SetObjResult(interp, Tcl_NewStringObj(failure.what(), -1));
            Tcl_BackgroundException(interp, TCL_ERROR);
        }
    }

    const TkWindows& owner_;
    Window& window_;
    const unsigned number_;
    TkChanges changes_;
    bool isDue_ = false; ///< Tcl is going to tell
};

// ---- Loading ----

TkWindows::TkWindows(Application& application, const ManagerCommand& command)
    : application_(application), command_(command), work_(application.Interp(), &command.token) {}

std::shared_ptr<TkWindows> TkWindows::Load(Application& application, const ManagerCommand& command,
                                           std::string& error) {
    Tcl_Interp* const interp = application.Interp();
    const bool hadTk = Evaluate(interp, "package present Tk", error);
    {
        const HiddenArguments hidden(interp);
        if (!Evaluate(interp, "package require Tk", error)) return nullptr;
    }
    std::shared_ptr<TkWindows> windows(new TkWindows(application, command));
    if (!Evaluate(interp, "package require treectrl", error) || !windows->LoadScripts(error)) return nullptr;
    // The main window of who had Tk already is theirs.
    if (!hadTk && !Evaluate(interp, "wm withdraw .", error)) return nullptr;
    application.SetWork(&windows->work_);
    return windows;
}

bool ShowWindows(EmbeddedHost& host, std::string& error) {
    if (host.HasDisplay()) return true;
    std::shared_ptr<TkWindows> windows = TkWindows::Load(host.App(), host.Command(), error);
    if (!windows) return false;
    host.SetDisplay(std::move(windows));
    return true;
}

bool TkWindows::LoadScripts(std::string& error) {
    Tcl_Interp* const interp = application_.Interp();
    if (!Evaluate(interp, "namespace eval ::znbrowser {}", error)) return false;
    Tcl_CreateObjCommand(interp, hostCommand, AnswerTkWord, this, nullptr);
    Tcl_CreateObjCommand(interp, managerCommand, AnswerManagerWords, this, nullptr);
    for (const TkScript& script : TkScripts()) {
        if (Evaluate(interp, script.text, error)) continue;
        error.insert(0, std::string(script.file) + ": ");
        return false;
    }
    return Evaluate(interp, "::znbrowser::prepare", error);
}

TkWindows::~TkWindows() {
    while (!shown_.empty()) Close(shown_.begin()->second->Of());
    application_.Model().Windows().SetDisplay(nullptr);
    application_.SetWork(nullptr);
    if (Tcl_InterpDeleted(application_.Interp())) return;
    for (const char* const name : {hostCommand, managerCommand})
        Tcl_DeleteCommand(application_.Interp(), name);
}

int TkWindows::EvalManagerCommand(int objc, Tcl_Obj* const objv[]) {
    Tcl_Interp* const interp = application_.Interp();
    if (work_.IsServing()) return AnswerBusy(nullptr, interp, objc, objv);
    return command_.procedure(command_.data, interp, objc, objv);
}

// ---- Windows ----

/// Calls a procedure of the scripts, and gives its result. An error goes to the interpreter's background
/// error handler.
std::string TkWindows::Run(const std::vector<std::string>& words) const {
    Tcl_Interp* const interp = application_.Interp();
    std::string result;
    if (Tcl_InterpDeleted(interp)) return result;
    return Evaluate(interp, NewList(words), result, OnError::Report) ? result : std::string();
}

unsigned TkWindows::NumberOf(const Window& window) const {
    for (const auto& [number, shown] : shown_) {
        if (&shown->Of() == &window) return number;
    }
    return 0;
}

std::shared_ptr<Window> TkWindows::Find(unsigned number) const {
    const auto found = shown_.find(number);
    return found == shown_.end() ? nullptr : found->second->Of().shared_from_this();
}

TkChanges TkWindows::TakeChanges(unsigned number) {
    const auto found = shown_.find(number);
    return found == shown_.end() ? TkChanges() : found->second->TakeChanges();
}

void TkWindows::Open(Window& window) {
    if (NumberOf(window)) return;
    const unsigned number = ++opened_;
    shown_.emplace(number, std::make_unique<Shown>(*this, window, number));
    const std::string frame =
        Run({"::znbrowser::open", std::to_string(number), window.Name(), window.TkFrame()});
    window.SetTkFrame(frame);
}

void TkWindows::Close(Window& window) {
    const unsigned number = NumberOf(window);
    if (!number) return;
    shown_.erase(number);
    std::vector<std::string> words{"::znbrowser::close", std::to_string(number)};
    for (const auto& part : window.Parts()) words.push_back(part->FramePath());
    Run(words);
}

void TkWindows::MakePart(const std::string& frame) { Run({"::znbrowser::makePart", frame}); }

void TkWindows::PackPart(Window& window, const std::string& frame, const std::vector<std::string>& behind) {
    std::vector<std::string> words{"::znbrowser::packPart", std::to_string(NumberOf(window)), frame};
    words.insert(words.end(), behind.begin(), behind.end());
    Run(words);
}

void TkWindows::HidePart(const std::string& frame) { Run({"::znbrowser::hidePart", frame}); }

void TkWindows::RemovePart(const std::string& frame) { Run({"::znbrowser::removePart", frame}); }

// ---- Popup menus ----

void TkWindows::ClosePopup(Window& window) {
    if (const unsigned number = NumberOf(window)) Run({"::znbrowser::dropMenu", std::to_string(number)});
}

namespace {

/// Puts the elements of a list behind its first into the values. False when they are not as many.
bool TakeAnswer(Tcl_Obj* answer, InputValues& values) {
    int count = 0;
    Tcl_Obj** elements = nullptr;
    if (Tcl_ListObjGetElements(nullptr, answer, &count, &elements) != TCL_OK) return false;
    if (static_cast<std::size_t>(count) != values.size() + 1) return false;
    for (InputValue& value : values) value.text = Tcl_GetString(*++elements);
    return true;
}

} // namespace

// The scripts answer an empty list when the user cancels, else a word and the values.
bool TkWindows::AskInput(Window& window, const std::string& title, InputValues& values) {
    const unsigned number = NumberOf(window);
    if (!number) return true;
    std::vector<std::string> words{"::znbrowser::askInput", std::to_string(number), title};
    for (const InputValue& value : values) {
        words.push_back(value.field);
        words.push_back(std::to_string(value.type));
        words.push_back(value.text);
        words.push_back(ListText(value.choices));
    }
    const TkWork::Rest rest(work_);
    Tcl_Obj* const answer = NewText(Run(words));
    Tcl_IncrRefCount(answer);
    const bool taken = TakeAnswer(answer, values);
    Tcl_DecrRefCount(answer);
    return taken;
}

} // namespace znhost
