// Performing an item of a popup menu.
#include "base/services.h"
#include "host/znIBrowserDataCtrl.h"
#include "model/data_sources.h"
#include "model/view.h"
#include "window/browser_windows.h"
#include "window/popup_input.h"
#include "window/window.h"
#include "window/window_display.h"
#include "window/window_list.h"
#include "znIBrowserManagerTcl.h"

#include <algorithm>
#include <tcl.h>

namespace znhost {

namespace {

/// One item, being performed on the selected rows of a window. Each step may run scripts, which may delete
/// everything else that is named here: so it is held, or looked up by the step that needs it.
class Performing {
public:
    Performing(Window& window, PopupItem& item, std::string value)
        : window_(window.shared_from_this()), item_(item.shared_from_this()), log_(window.Log()),
          services_(window.Owner().Services()), value_(std::move(value)) {}

    bool Run();

private:
    const PopupItemSettings& Settings() const { return item_->Settings(); }
    View* ShownView() const { return window_->ShownView(); }
    bool Fail(const std::string& reason) const;
    const char* WhyNotChosen() const;
    bool TakeValue();
    bool HasEntry() const;
    bool Begin();
    bool CheckReferences() const;
    bool HasLost() const;
    bool IsGone() const;
    bool Call(const char* what, const std::string& procedure, std::string* answer) const;

    // The steps. False when one fails; `calledOff_` when nothing more is to be done.
    bool AskBefore();
    bool TakeInput();
    bool AskUser(InputValues& values);
    bool HandOn(const InputValues& values);
    bool TurnCheck();
    bool RunViewOperation();
    bool RunDataOperation();
    bool RunItemScript();

    const std::shared_ptr<Window> window_;
    const std::shared_ptr<PopupItem> item_;
    CallLog& log_;
    HostServices& services_;
    std::string value_;
    bool checked_ = false;
    bool calledOff_ = false;
};

bool Performing::Fail(const std::string& reason) const {
    log_.SetError("The popup menu item \"" + item_->Name() + "\" " + reason);
    return false;
}

bool Performing::Run() {
    if (!Begin()) return false;
    for (const auto step :
         {&Performing::AskBefore, &Performing::TakeInput, &Performing::TurnCheck,
          &Performing::RunViewOperation, &Performing::RunDataOperation, &Performing::RunItemScript}) {
        if (!(this->*step)()) return false;
        if (calledOff_ || IsGone()) return true;
    }
    return true;
}

// ---- Whether it can be performed ----

/// Null when it can be chosen.
const char* Performing::WhyNotChosen() const {
    const PopupItemSettings& settings = Settings();
    if (item_->Kind() == PopupKind::Separator) return "cannot be chosen: it is a separator";
    if (item_->Kind() == PopupKind::Cascade) return "cannot be chosen: it opens a menu";
    if (!settings.visible) return "cannot be chosen: it is not visible";
    if (!settings.enabled) return "cannot be chosen: it is disabled";
    const PopupRows rows = LookAt(window_->Rows(), window_->Rows().SelectedRows());
    if (settings.onSingleItem && !rows.single)
        return "cannot be chosen: it is for a single row, and not exactly one is selected";
    if (!settings.showOnFolder && rows.folder)
        return "cannot be chosen: it is not for folders, and one is selected";
    return nullptr;
}

bool Performing::HasEntry() const {
    View* const view = ShownView();
    const SourceNames sources =
        view ? SourcesInContainer(*view, Settings().container, Settings().containerAll) : SourceNames();
    return std::any_of(sources.begin(), sources.end(),
                       [this](const auto& source) { return source.first == value_; });
}

/// What the value means for the item.
bool Performing::TakeValue() {
    if (item_->Kind() == PopupKind::Container)
        return HasEntry() || Fail("has no entry for a data source \"" + value_ + "\"");
    if (item_->Kind() != PopupKind::Check) return true;
    int checked = Settings().checked ? 0 : 1;
    if (!value_.empty() && Tcl_GetBoolean(nullptr, value_.c_str(), &checked) != TCL_OK)
        return Fail("is checkable: its value must be true or false, but is \"" + value_ + "\"");
    checked_ = checked != 0;
    value_ = checked_ ? "true" : "false";
    return true;
}

bool Performing::CheckReferences() const {
    const CallLog::Quiet quiet(log_);
    View* const view = ShownView();
    znIBrowserDataCtrl* const control = view->DataControl();
    const std::string where = control ? " of the data control \"" + NameOf(log_, control) + "\""
                                      : ": the view \"" + view->Name() + "\" has no data control";
    const std::string& operation = Settings().operation;
    if (!operation.empty() && !view->Operations().Find(operation))
        return Fail("performs \"" + operation + "\", which is no operation of the view \"" + view->Name() +
                    "\"");
    const std::string& data = Settings().dataOperation;
    if (!data.empty() && !(control && control->FindDataOperation(data.c_str())))
        return Fail("performs \"" + data + "\", which is no data operation" + where);
    for (const std::string& field : Settings().userInput) {
        if (!FindField(log_, control, field))
            return Fail("asks for \"" + field + "\", which is no input field" + where);
    }
    return true;
}

bool Performing::Begin() {
    if (!ShownView())
        return Fail("cannot be performed: the window \"" + window_->Name() + "\" shows no view");
    if (const char* const reason = WhyNotChosen()) return Fail(reason);
    calledOff_ = HasLost(); // looking at the rows may have run scripts
    return calledOff_ || (TakeValue() && CheckReferences());
}

/// Whether the window, its view or the item is gone.
bool Performing::HasLost() const { return window_->IsClosed() || !ShownView() || !item_->Menu(); }

/// Whether one of them is, or what the value means.
bool Performing::IsGone() const {
    return HasLost() || (item_->Kind() == PopupKind::Container && !HasEntry());
}

// ---- The steps ----

bool Performing::Call(const char* what, const std::string& procedure, std::string* answer) const {
    const std::string rows = RowList(window_->Rows().SelectedRows());
    if (services_.RunProcedure({procedure, window_->Name(), item_->Name(), rows, value_}, answer))
        return true;
    return Fail(std::string("has a ") + what + " \"" + procedure + "\" that failed: " + log_.Error());
}

bool Performing::AskBefore() {
    if (calledOff_ || Settings().preOperation.empty()) return true;
    std::string answer;
    if (!Call("pre-operation", Settings().preOperation, &answer)) return false;
    int goesOn = 1;
    if (Tcl_GetBoolean(nullptr, answer.c_str(), &goesOn) != TCL_OK) goesOn = 1;
    calledOff_ = !goesOn || !Settings().enabled;
    return true;
}

/// @return false when the user cancelled
bool Performing::AskUser(InputValues& values) {
    WindowDisplay* const display = window_->Owner().Windows().Display();
    return !display || !window_->IsShown() || display->AskInput(*window_, Settings().caption, values);
}

bool Performing::TakeInput() {
    const auto find = [this](const std::string& name) {
        return FindField(log_, ShownView()->DataControl(), name);
    };
    InputValues values;
    for (const std::string& name : Settings().userInput) {
        if (znIBrowserInputField* const field = find(name)) values.push_back(ReadField(log_, *field));
    }
    if (values.empty()) return true;
    calledOff_ = !AskUser(values) || IsGone();
    if (calledOff_) return true;
    for (const InputValue& value : values) {
        const std::string reason = WhyNoValue(value);
        if (!reason.empty())
            return Fail("got \"" + value.text + "\" for the input field \"" + value.field + "\": " + reason);
        calledOff_ = calledOff_ || !find(value.field);
    }
    if (calledOff_) return true;
    for (const InputValue& value : values) {
        if (!WriteField(log_, *find(value.field), value)) return false;
    }
    return HandOn(values);
}

/// Scripts that want to know the values define the procedure that receives them.
bool Performing::HandOn(const InputValues& values) {
    constexpr const char* procedure = "::znbrowser::UpdatePopupInputScript";
    if (!Tcl_FindCommand(services_.Interp(), procedure, nullptr, TCL_GLOBAL_ONLY)) return true;
    const std::string script = InputScript(values);
    if (services_.Notify([&script](auto& manager) { return manager.UpdateTclInputScript(script.c_str()); }))
        return true;
    return Fail("could not hand on its values: " + log_.Error());
}

bool Performing::TurnCheck() {
    if (item_->Kind() == PopupKind::Check) item_->Check(checked_);
    return true;
}

// An operation that a script has deleted meanwhile ends the performing.
bool Performing::RunViewOperation() {
    if (Settings().operation.empty()) return true;
    ViewOperation* const operation = ShownView()->Operations().Find(Settings().operation);
    calledOff_ = !operation;
    return !operation || operation->Run();
}

bool Performing::RunDataOperation() {
    if (Settings().dataOperation.empty()) return true;
    znIBrowserDataCtrl* const control = ShownView()->DataControl();
    znIBrowserDataOperation* operation = nullptr;
    if (control) {
        const CallLog::Quiet quiet(log_);
        operation = control->FindDataOperation(Settings().dataOperation.c_str());
    }
    calledOff_ = !operation;
    return !operation || window_->Owner().RunDataOperation(*operation);
}

bool Performing::RunItemScript() {
    return Settings().script.empty() || Call("script", Settings().script, nullptr);
}

} // namespace

bool BrowserWindows::PerformPopupItem(PopupItem& item, znIBrowserWindowAccess& window,
                                      const std::string& value) {
    return Performing(static_cast<Window&>(window), item, value).Run();
}

} // namespace znhost
