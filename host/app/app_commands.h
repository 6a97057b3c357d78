// The host's own words: "znbrowsermanager app ...".
#ifndef ZN_HOST_APP_COMMANDS_H
#define ZN_HOST_APP_COMMANDS_H

#include "app/application.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace znhost {

/// One "app" command: its arguments, and the ways to answer. The words that chose the command are not among
/// the arguments.
class AppCall {
public:
    AppCall(Application& application, int objc, Tcl_Obj* const objv[]);

    Application& App() const { return application_; }
    std::size_t Count() const { return objects_.size(); }
    /// "" when there is no such argument.
    std::string Text(std::size_t position) const;
    Tcl_Obj* Word(std::size_t position) const { return objects_.at(position); }

    // The answers; each returns the Tcl code.
    int Answer(std::string_view text) const;
    int Answer(const std::vector<std::string>& list) const;
    /// Takes over an object without references.
    int Answer(Tcl_Obj* result) const;
    /// A Tcl error with the error code {ZNBROWSER APP KIND ?DETAIL?}.
    int Fail(const std::string& message, const char* kind, const std::string& detail = {}) const;

    /// The data control that the argument names. Null, and the error stands in the interpreter, when there
    /// is none.
    DataCtrl* DataControl(std::size_t position) const;
    /// A whole number that is not negative. False, and the error stands in the interpreter, when it is none.
    bool Number(std::size_t position, const char* meaning, std::size_t& number) const;

private:
    Application& application_;
    std::vector<Tcl_Obj*> objects_;
};

/// One row of the table of "app" words.
struct AppWord {
    /// The word, and the second one where the command has two: "journal on".
    const char* words;
    /// The arguments as the help shows them: "NAME ?FILE?".
    const char* arguments;
    const char* answers; ///< in the same notation; "" for nothing
    const char* help;
    std::size_t fewest;
    std::size_t most;
    int (*answer)(AppCall& call);
};

/// The rows of the table that begin with these words, in its order.
std::vector<const AppWord*> AppWordsBelow(const std::vector<std::string>& words);

/// The words that may follow "app WORD ...", in the order of the table; empty where arguments stand, or where
/// the words lead nowhere.
std::vector<std::string> NextAppWords(const std::vector<std::string>& words);

} // namespace znhost

#endif
