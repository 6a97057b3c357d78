// Whether a text contains what a person looks for.
#ifndef ZN_HOST_TEXT_MATCHER_H
#define ZN_HOST_TEXT_MATCHER_H

#include <memory>
#include <string>
#include <string_view>

struct Tcl_Obj;

namespace znhost {

/// A search pattern. Plain texts are found anywhere in the text; one with "*" or "?" is a glob pattern for
/// the whole text, in which each stands for characters, not bytes; a regular expression is one of Tcl's.
class TextMatcher {
public:
    struct Options {
        bool matchCase = false;
        bool matchWord = false; ///< what is found begins and ends at the border of a word
        bool regexp = false;
        bool glob = false; ///< "*" and "?" have their meaning
    };

    TextMatcher(std::string_view pattern, const Options& options);

    /// Empty; or why the pattern, a regular expression, cannot be used. It matches nothing then.
    const std::string& GetError() const { return error_; }
    bool Matches(std::string_view text) const;
    /// What each text that matches holds, letter case aside; "" for nothing known.
    std::string Held() const;

private:
    struct Release {
        void operator()(Tcl_Obj* object) const;
    };

    bool FindPlain(std::string_view text) const;
    bool FindRegexp(std::string_view text) const;

    Options options_;
    std::string pattern_;
    std::string error_;
    std::unique_ptr<Tcl_Obj, Release> expression_;
    mutable std::string folded_; ///< storage kept from text to text
};

} // namespace znhost

#endif
