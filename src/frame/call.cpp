#include "frame/call.h"

#include <tcl.h>

namespace znlayer {

/// Tcl ends the process above 2 GiB, and a list in which the answer stands may be twice as long.
constexpr std::size_t longestAnswer = std::size_t{1} << 29;

Call::Call(znBrowserManagerTcl& callManager, int objc, Tcl_Obj* const objv[])
    : manager(callManager), interp_(callManager.GetTclInterp()), objc_(objc), objv_(objv), code_(TCL_OK) {}

const char* Call::TextOr(int position, const char* fallback) const {
    const char* const text = Text(position);
    return text ? text : fallback;
}

bool Call::Integer(int position, int& value) const {
    return Has(position) && Tcl_GetIntFromObj(nullptr, objv_[position], &value) == TCL_OK;
}

bool Call::Long(int position, long& value) const {
    return Has(position) && Tcl_GetLongFromObj(nullptr, objv_[position], &value) == TCL_OK;
}

bool Call::Double(int position, double& value) const {
    return Has(position) && Tcl_GetDoubleFromObj(nullptr, objv_[position], &value) == TCL_OK;
}

bool Call::Boolean(int position, bool& value) const {
    int read = 0;
    if (!Has(position) || Tcl_GetBooleanFromObj(nullptr, objv_[position], &read) != TCL_OK) return false;
    value = read != 0;
    return true;
}

bool Call::BooleanOrMessage(int position, bool& value) {
    if (!Has(position)) return false;
    if (Boolean(position, value)) return true;
    int read = 0;
    Tcl_GetBooleanFromObj(interp_, objv_[position], &read);
    replied_ = true;
    return false;
}

bool Call::Indices(int position, std::vector<unsigned int>& values) const {
    values.reserve(static_cast<std::size_t>(objc_ > position ? objc_ - position : 0));
    for (; position < objc_; ++position) {
        int value = 0;
        if (!Integer(position, value) || value < 0) return false;
        values.push_back(static_cast<unsigned int>(value));
    }
    return true;
}

std::vector<znString> Call::TextsFrom(int position) const {
    std::vector<znString> texts;
    for (; position < objc_; ++position) {
        if (const char* const text = Text(position)) texts.emplace_back(text);
    }
    return texts;
}

void Call::Answer(std::string_view text) {
    Tcl_Obj* result = Tcl_GetObjResult(interp_);
    if (Tcl_IsShared(result)) {
        result = replied_ ? Tcl_DuplicateObj(result) : Tcl_NewObj();
        Tcl_SetObjResult(interp_, result);
    }
    int before = 0;
    if (replied_) Tcl_GetStringFromObj(result, &before);
    if (text.size() > longestAnswer - static_cast<std::size_t>(before)) return AnswerTooLarge();
    const int length = static_cast<int>(text.size());
    if (replied_)
        Tcl_AppendToObj(result, text.data(), length);
    else
        Tcl_SetStringObj(result, text.data(), length);
    replied_ = true;
}

void Call::AnswerTooLarge() {
    manager.SetError(
        ("The answer is too large: the limit is " + std::to_string(longestAnswer) + " bytes").c_str());
    replied_ = false;
    AnswerError();
}

void Call::Answer(bool value) {
    Answer(value ? znBrowserTclKeywords::KEYWORD_TRUE : znBrowserTclKeywords::KEYWORD_FALSE);
}

void Call::AnswerError() { Answer(manager.GetError()); }

void Call::AnswerOutcome(bool succeeded) {
    if (!succeeded) AnswerError();
}

void Call::AnswerOutcome(bool succeeded, const char* text) {
    if (!succeeded) return AnswerError();
    Answer(text);
}

void Call::AnswerValue(Getter getter) {
    znString value;
    if (!(manager.*getter)(value)) return AnswerError();
    Answer(value);
}

void Call::AnswerValue(FlagGetter getter) {
    bool value = false;
    if (!(manager.*getter)(value)) return AnswerError();
    Answer(value);
}

void Call::SetThenAnswer(int position, TextSetter setter, Getter getter) {
    if (!Has(position)) return AnswerValue(getter);
    Tcl_Obj* const word = objv_[position];
    const std::string_view text = WordText(word);
    if (!(manager.*setter)(text.data())) return AnswerError();
    znString value;
    if (!(manager.*getter)(value)) return AnswerError();
    // What was set is nearly always what is there now: then the word itself is the answer, without a copy.
    if (!replied_ && value.View() == text) {
        Tcl_SetObjResult(interp_, word);
        replied_ = true;
    } else {
        Answer(value);
    }
}

void Call::Raise() { code_ = TCL_ERROR; }

void Call::KeepResult() {
    Tcl_ResetResult(interp_);
    replied_ = true;
}

int Call::Finish() {
    if (!replied_) Tcl_ResetResult(interp_);
    return code_;
}

} // namespace znlayer
