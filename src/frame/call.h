// One evaluation of the command: the manager, the words, and the reply.
#ifndef CALL_H
#define CALL_H

#include "frame/word_keyword.h"
#include "frame/word_text.h"
#include "znBrowserManagerTcl.h"

#include <string_view>

namespace znlayer {

using Keyword = ZNBROWSER_TCLAPI_KEYWORD;

/// What an answer function works with. Positions count from the command word, which is 0.
///
/// The reply becomes the interpreter result piece by piece, in the order answered. Whatever scripts that ran
/// inside a host call left there is dropped: the result holds what the command answered, or nothing.
class Call {
public:
    using Getter = bool (znBrowserManagerTcl::*)(znString&);
    using FlagGetter = bool (znBrowserManagerTcl::*)(bool&);
    using TextSetter = bool (znBrowserManagerTcl::*)(const char*);
    using Action = bool (znBrowserManagerTcl::*)();

    Call(znBrowserManagerTcl& callManager, int objc, Tcl_Obj* const objv[]);

    znBrowserManagerTcl& manager;

    // ---- The words ----
    int Count() const { return objc_; }
    /// Whether there is a word at that position.
    bool Has(int position) const { return position < objc_ && objv_[position]; }
    /// The word's text; null when there is none.
    const char* Text(int position) const {
        return position < objc_ ? WordText(objv_[position]).data() : nullptr;
    }
    /// The word's text, or `fallback` when there is no such word.
    const char* TextOr(int position, const char* fallback) const;
    /// The keyword that the word stands for; unknown when there is no such word.
    Keyword Word(int position) const {
        return position < objc_ ? WordKeyword(objv_[position]) : Keyword::Unknown;
    }
    bool Is(int position, Keyword keyword) const { return Word(position) == keyword; }
    /// Numbers and booleans as Tcl reads them. @return false when the word is missing or is none, silently.
    bool Integer(int position, int& value) const;
    bool Long(int position, long& value) const;
    bool Double(int position, double& value) const;
    bool Boolean(int position, bool& value) const;
    /// As `Boolean`, but Tcl's own message about a bad word becomes part of the reply.
    bool BooleanOrMessage(int position, bool& value);
    /// Integers from `position` to the last word, none of them negative.
    /// @return false at the first word that is not one
    bool Indices(int position, std::vector<unsigned int>& values) const;
    /// The texts from `position` to the last word.
    std::vector<znString> TextsFrom(int position) const;
    Tcl_Obj* const* Words() const { return objv_; }

    // ---- The reply ----
    /// More than 512 MiB in all are refused: then the reply is the error banner that says so.
    void Answer(std::string_view text);
    void Answer(const char* text) { Answer(std::string_view(text ? text : "")); }
    void Answer(const znString& text) { Answer(text.View()); }
    /// "true" or "false".
    void Answer(bool value);
    /// The error banner of the manager.
    void AnswerError();
    /// The banner when an operation failed, else nothing.
    void AnswerOutcome(bool succeeded);
    /// `text` when an operation succeeded, else the banner.
    void AnswerOutcome(bool succeeded, const char* text);
    /// What a getter gives, or the banner.
    void AnswerValue(Getter getter);
    void AnswerValue(FlagGetter getter);
    /// Without a word at that position the getter's value. With one, sets it first: a failure answers the
    /// banner.
    void SetThenAnswer(int position, TextSetter setter, Getter getter);
    /// The outcome of an operation without arguments.
    void Run(Action action) { AnswerOutcome((manager.*action)()); }

    /// Empties the interpreter result, and from then on leaves in it what an operation puts there itself.
    void KeepResult();
    /// The command ends with a Tcl error.
    void Raise();
    /// Ends the call. @return the Tcl code
    int Finish();

private:
    void AnswerTooLarge();

    Tcl_Interp* interp_;
    int objc_;
    Tcl_Obj* const* objv_;
    bool replied_ = false;
    int code_;
};

} // namespace znlayer

#endif
