// The result buffer, and how operations begin and end.
#include "frame/text_piece.h"
#include "frame/word_text.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserApplication.h"
#include "znBrowserManagerTcl.h"

#include <cstdio>

bool znBrowserManagerTcl::_AppendToBuff(const char* text, bool quoted, bool separate,
                                        bool braceIfBlank) const {
    return AppendPiece(buffer_, text, quoted, separate, braceIfBlank);
}

bool znBrowserManagerTcl::AppendToBuff(const char* text, bool separate, bool braceIfBlank) const {
    return _AppendToBuff(text, false, separate, braceIfBlank);
}

bool znBrowserManagerTcl::AppendToBuff(int value, bool separate, bool braceIfBlank) const {
    char text[16];
    std::snprintf(text, sizeof text, "%d", value);
    return AppendToBuff(text, separate, braceIfBlank);
}

bool znBrowserManagerTcl::AppendToBuffWithQuotes(const char* text, bool separate, bool braceIfBlank) const {
    return _AppendToBuff(text, true, separate, braceIfBlank);
}

bool znBrowserManagerTcl::NewAppendToBuff(const char* text, bool separate, bool braceIfBlank,
                                          bool quoted) const {
    return _AppendToBuff(text, quoted, separate, braceIfBlank);
}

bool znBrowserManagerTcl::AppendToListBuff(const char* text) const {
    if (!text) return false;
    buffer_ += " {";
    buffer_ += text;
    buffer_ += '}';
    return true;
}

void znBrowserManagerTcl::ResetBuff() const { buffer_.clear(); }
void znBrowserManagerTcl::_ResetBuff() const { ResetBuff(); }
const char* znBrowserManagerTcl::GetBuff() const { return buffer_.c_str(); }

void znBrowserManagerTcl::SetCommand(int objc, Tcl_Obj* const objv[]) {
    ResetBuff();
    for (int i = 0; i < objc; ++i) {
        const std::string_view word = WordText(objv[i]);
        if (!word.data()) continue;
        if (!buffer_.empty()) buffer_ += ' ';
        buffer_ += word;
    }
    SetErrCommand(buffer_);
    ResetBuff();
}

void znBrowserManagerTcl::BeginOperation() {
    SetOk();
    ResetBuff();
}

bool znBrowserManagerTcl::Fail(const char* message) {
    SetError(message);
    return false;
}

bool znBrowserManagerTcl::FailWith(std::initializer_list<const char*> pieces) {
    for (const char* const piece : pieces) AppendToBuff(piece, true, false);
    SetError(buffer_);
    return false;
}

bool znBrowserManagerTcl::FailWithHostError() {
    znIBrowser* const browser = GetBrowser();
    return Fail(browser ? browser->GetError() : nullptr);
}

bool znBrowserManagerTcl::HostAnswer(bool accepted) { return accepted || FailWithHostError(); }

bool znBrowserManagerTcl::GiveBuffer(znString& out) {
    out.assign(buffer_.View());
    return GetState();
}

bool znBrowserManagerTcl::GiveBool(bool value, znString& out) {
    out = value ? znBrowserTclKeywords::KEYWORD_TRUE : znBrowserTclKeywords::KEYWORD_FALSE;
    return true;
}

znIBrowser* znBrowserManagerTcl::GetBrowser() const { return application_->GetBrowser(); }
