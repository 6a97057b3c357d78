#include "rows/text_matcher.h"

#include "base/tcl_values.h"
#include "base/text.h"

#include <algorithm>
#include <tcl.h>

namespace znhost {

namespace {

/// Tcl knows the letters of the basic plane.
bool IsWordCharacter(char32_t character) {
    return character < 0x10000 && (Tcl_UniCharIsAlnum(static_cast<int>(character)) || character == '_');
}

/// Whether a word begins or ends between the two characters at `place`.
bool IsWordBorder(std::string_view text, std::size_t place) {
    if (place == 0 || place >= text.size()) return true;
    std::string_view after = text.substr(place);
    return !IsWordCharacter(LastCharacter(text.substr(0, place))) || !IsWordCharacter(TakeCharacter(after));
}

/// Takes a character off both, if the pattern has one that lets it.
bool TakeBoth(std::string_view& text, std::string_view& pattern) {
    if (pattern.empty()) return false;
    const char32_t wanted = TakeCharacter(pattern);
    return TakeCharacter(text) == wanted || wanted == U'?';
}

/// Whether the pattern, with its "*" and "?", is the whole text. Only the last "*" that was met ever takes
/// more, which is enough: the time is at most the product of the lengths.
bool MatchesGlob(std::string_view text, std::string_view pattern) {
    std::string_view textBehind; // what that "*" has not taken, and the pattern behind it
    std::string_view patternBehind;
    bool starred = false;
    while (!text.empty()) {
        if (!pattern.empty() && pattern.front() == '*') {
            pattern.remove_prefix(1);
            starred = true;
            textBehind = text;
            patternBehind = pattern;
        } else if (!TakeBoth(text, pattern)) {
            if (!starred) return false;
            TakeCharacter(textBehind);
            text = textBehind;
            pattern = patternBehind;
        }
    }
    return pattern.find_first_not_of('*') == pattern.npos;
}

} // namespace

void TextMatcher::Release::operator()(Tcl_Obj* object) const { Tcl_DecrRefCount(object); }

TextMatcher::TextMatcher(std::string_view pattern, const Options& options) : options_(options) {
    if (options.regexp) {
        const std::string expression =
            options.matchWord ? "\\m(?:" + std::string(pattern) + ")\\M" : std::string(pattern);
        expression_.reset(NewText(expression));
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
}

bool TextMatcher::Matches(std::string_view text) const {
    if (options_.regexp) return error_.empty() && FindRegexp(text);
    if (!options_.matchCase) text = Fold(text, folded_);
    if (options_.glob) return MatchesGlob(text, pattern_);
    return FindPlain(text);
}

std::string TextMatcher::Held() const {
    if (options_.regexp) return {};
    std::string_view longest;
    for (std::string_view rest = pattern_; !rest.empty();) {
        const std::size_t end = options_.glob ? std::min(rest.find_first_of("*?"), rest.size()) : rest.size();
        if (end > longest.size()) longest = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return Fold(longest);
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
    Tcl_Obj* const object = NewText(text);
    Tcl_IncrRefCount(object);
    const bool found = compiled && Tcl_RegExpExecObj(nullptr, compiled, object, 0, 0, 0) > 0;
    Tcl_DecrRefCount(object);
    return found;
}

} // namespace znhost
