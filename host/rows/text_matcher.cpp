#include "rows/text_matcher.h"

#include <tcl.h>

namespace znhost {

namespace {

/// The text in lower case, in a storage that is used again.
const std::string& Fold(std::string_view text, std::string& folded) {
    folded.assign(text);
    // Lower case may be shorter than what it was made of, never longer.
    if (!folded.empty()) folded.resize(static_cast<std::size_t>(Tcl_UtfToLower(folded.data())));
    return folded;
}

bool IsWordCharacter(Tcl_UniChar character) { return Tcl_UniCharIsAlnum(character) || character == '_'; }

/// Whether a word begins or ends between the two characters at `place`.
bool IsWordBorder(std::string_view text, std::size_t place) {
    if (place == 0 || place >= text.size()) return true;
    Tcl_UniChar before = 0;
    Tcl_UniChar after = 0;
    Tcl_UtfToUniChar(Tcl_UtfPrev(text.data() + place, text.data()), &before);
    Tcl_UtfToUniChar(text.data() + place, &after);
    return !IsWordCharacter(before) || !IsWordCharacter(after);
}

} // namespace

void TextMatcher::Release::operator()(Tcl_Obj* object) const { Tcl_DecrRefCount(object); }

TextMatcher::TextMatcher(std::string_view pattern, const Options& options) : options_(options) {
    if (options.regexp) {
        const std::string expression =
            options.matchWord ? "\\m(?:" + std::string(pattern) + ")\\M" : std::string(pattern);
        expression_.reset(Tcl_NewStringObj(expression.data(), static_cast<int>(expression.size())));
        Tcl_IncrRefCount(expression_.get());
        const int flags = TCL_REG_ADVANCED | (options.matchCase ? 0 : TCL_REG_NOCASE);
        Tcl_Interp* const scratch = Tcl_CreateInterp(); // takes the error text
        if (!Tcl_GetRegExpFromObj(scratch, expression_.get(), flags)) error_ = Tcl_GetStringResult(scratch);
        Tcl_DeleteInterp(scratch);
        return;
    }
    options_.glob = options.glob && pattern.find_first_of("*?") != pattern.npos;
    if (options.matchCase) {
        pattern_ = pattern;
    } else {
        Fold(pattern, pattern_);
    }
    // Of Tcl's glob patterns only "*" and "?" are wanted.
    for (std::size_t i = 0; options_.glob && i < pattern_.size(); ++i) {
        if (pattern_[i] == '[' || pattern_[i] == '\\') pattern_.insert(i++, 1, '\\');
    }
}

bool TextMatcher::Matches(std::string_view text) const {
    if (options_.regexp) return error_.empty() && FindRegexp(text);
    if (!options_.matchCase) text = Fold(text, folded_);
    if (options_.glob) return Tcl_StringMatch(std::string(text).c_str(), pattern_.c_str()) != 0;
    return FindPlain(text);
}

bool TextMatcher::FindPlain(std::string_view text) const {
    std::size_t place = text.find(pattern_);
    if (!options_.matchWord) return place != text.npos;
    for (; place != text.npos; place = text.find(pattern_, place + 1)) {
        if (IsWordBorder(text, place) && IsWordBorder(text, place + pattern_.size())) return true;
    }
    return false;
}

bool TextMatcher::FindRegexp(std::string_view text) const {
    const int flags = TCL_REG_ADVANCED | (options_.matchCase ? 0 : TCL_REG_NOCASE);
    const Tcl_RegExp compiled = Tcl_GetRegExpFromObj(nullptr, expression_.get(), flags);
    Tcl_Obj* const object = Tcl_NewStringObj(text.data(), static_cast<int>(text.size()));
    Tcl_IncrRefCount(object);
    const bool found = compiled && Tcl_RegExpExecObj(nullptr, compiled, object, 0, 0, 0) > 0;
    Tcl_DecrRefCount(object);
    return found;
}

} // namespace znhost
