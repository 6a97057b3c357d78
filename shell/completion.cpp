#include "completion.h"

#include "app/embedded_host.h"
#include "base/text.h"
#include "znBrowserTclCommandTree.h"
#include "znBrowserTclKeywords.h"

#include <tcl.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr std::string_view HELP_WORD = "help";
constexpr std::string_view HOST_WORD = "app";
constexpr std::string_view SHELL_WORDS[] = {"exit", HELP_WORD, "znbrowsermanager"};

/// True for the words behind which our command words stand.
bool IsOurs(std::string_view command) {
    return command == HELP_WORD || command == "znbrowsermanager" || command == "::znbrowsermanager";
}

char Fold(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Command words are the same in upper and lower case.
bool BeginsWith(std::string_view text, std::string_view beginning) {
    return text.size() >= beginning.size() && std::equal(beginning.begin(), beginning.end(), text.begin(),
                                                         [](char a, char b) { return Fold(a) == Fold(b); });
}

/// True when `word` is `plain` in some spelling: letter case, or an abbreviation that the command accepts.
bool IsSpelling(std::string_view word, std::string_view plain) {
    if (word.size() == plain.size() && BeginsWith(word, plain)) return true;
    constexpr znBrowserTclKeywords keywords(true);
    const ZNBROWSER_TCLAPI_KEYWORD keyword = keywords.GetZnBrowserTclApiEnum(plain);
    return keyword != ZNBROWSER_TCLAPI_KEYWORD::Unknown && keyword == keywords.GetZnBrowserTclApiEnum(word);
}

std::string AsListElement(const std::string& name) {
    int flags = 0;
    const int length = static_cast<int>(name.size());
    std::string element(static_cast<std::size_t>(Tcl_ScanCountedElement(name.data(), length, &flags)), '\0');
    element.resize(
        static_cast<std::size_t>(Tcl_ConvertCountedElement(name.data(), length, element.data(), flags)));
    return element;
}

/// The command in which the typing stands: its finished words, and what is known of the next one.
struct TypedCommand {
    char opener = '\0'; ///< '[' or '{'; none for the outermost
    bool inWord = false;
    bool quoted = false;
    bool known = true; ///< false when the next word holds what a command in brackets will give
    std::size_t wordStart = 0;
    std::string partial; ///< the next word, its quotes and backslashes taken off
    std::vector<std::string> words;
};

/// Walks over typed text and keeps the commands that are open in it, the innermost last.
class TypedScanner {
public:
    explicit TypedScanner(std::string_view text) : text_(text) {
        for (; at_ < text_.size(); ++at_) Add(text_[at_]);
        if (TypedCommand& last = commands_.back(); !last.inWord) last.wordStart = at_ - (escaped_ ? 1 : 0);
    }

    /// The readings of the text, the likelier first. What stands behind an opening brace may be a name, a
    /// word of the outer command, or the beginning of a script.
    std::vector<TypedCommand> Readings() const {
        std::vector<TypedCommand> readings;
        if (commands_.back().opener == '{') {
            readings.push_back(commands_[commands_.size() - 2]);
            readings.back().partial = text_.substr(readings.back().wordStart + 1);
        }
        readings.push_back(commands_.back());
        return readings;
    }

private:
    void Add(char c) {
        TypedCommand& command = commands_.back();
        if (escaped_) {
            escaped_ = false;
            c == '\n' ? EndWord() : AddToWord(c, 1);
        } else if (c == '\\') {
            escaped_ = true;
        } else if (c == '"' && (command.quoted || !command.inWord)) {
            BeginWord(0);
            command.quoted = !command.quoted;
        } else if (c == '[' || (c == '{' && !command.inWord)) {
            Open(c);
        } else if ((c == ']' && command.opener == '[') || (c == '}' && command.opener == '{')) {
            Close();
        } else if (!command.quoted && (c == ' ' || c == '\t')) {
            EndWord();
        } else if (!command.quoted && (c == '\n' || c == ';')) {
            EndWord();
            command.words.clear();
        } else {
            AddToWord(c, 0);
        }
    }

    /// The word begins `before` characters before this one.
    void BeginWord(std::size_t before) {
        TypedCommand& command = commands_.back();
        if (!command.inWord) command.wordStart = at_ - before;
        command.inWord = true;
    }
    void AddToWord(char c, std::size_t before) {
        BeginWord(before);
        commands_.back().partial += c;
    }
    void EndWord() {
        TypedCommand& command = commands_.back();
        if (!command.inWord) return;
        command.words.push_back(std::move(command.partial));
        command.partial.clear();
        command.inWord = command.quoted = false;
        command.known = true;
    }
    void Open(char opener) {
        BeginWord(0);
        commands_.emplace_back();
        commands_.back().opener = opener;
    }
    // Braces hold their text; what a command in brackets would give is not known.
    void Close() {
        const bool braced = commands_.back().opener == '{';
        commands_.pop_back();
        TypedCommand& outer = commands_.back();
        outer.known = outer.known && braced;
        if (braced) outer.partial = text_.substr(outer.wordStart + 1, at_ - outer.wordStart - 1);
    }

    std::string_view text_;
    std::size_t at_ = 0;
    bool escaped_ = false;
    std::vector<TypedCommand> commands_{TypedCommand()};
};

/// Keeps the texts that begin with `beginning`.
void Narrow(std::vector<std::string>& texts, const std::string& beginning) {
    texts.erase(std::remove_if(texts.begin(), texts.end(),
                               [&](const std::string& text) { return !BeginsWith(text, beginning); }),
                texts.end());
}

/// The words and the names that may stand behind `words`; without names where `objectNames` is empty.
std::vector<std::string> FindExpected(const std::vector<std::string>& words, const ObjectNames& objectNames) {
    std::vector<std::string> found = FindNextWords(words);
    if (!objectNames) return found;
    if (!words.empty() && IsHostWord(words.front())) return found.empty() ? objectNames("") : found;
    znBrowserTclExpectation expected;
    znBrowserTclCommandTree::GetExpected(words, expected);
    for (const std::string& kind : expected.kinds) {
        const std::vector<std::string> names = objectNames(kind);
        expected.words.insert(expected.words.end(), names.begin(), names.end());
    }
    return expected.words;
}

/// The words that may stand for the next one, plain; sorted, each once.
std::vector<std::string> FindWords(const TypedCommand& typed, const ObjectNames& objectNames) {
    std::vector<std::string> found;
    if (!typed.known) return found;
    if (typed.words.empty()) {
        found.assign(std::begin(SHELL_WORDS), std::end(SHELL_WORDS));
    } else if (const std::string& command = typed.words.front(); IsOurs(command)) {
        found = FindExpected({typed.words.begin() + 1, typed.words.end()},
                             command == HELP_WORD ? ObjectNames() : objectNames);
    }
    Narrow(found, typed.partial);
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

/// The longest text, in whole characters, with which all of `texts` begin; there is at least one of them.
std::string CommonBeginning(const std::vector<std::string>& texts) {
    const std::string& first = texts.front();
    std::size_t length = first.size();
    for (const std::string& text : texts) {
        const auto end = first.begin() + static_cast<std::ptrdiff_t>(length);
        const auto ends = std::mismatch(first.begin(), end, text.begin(), text.end());
        length = static_cast<std::size_t>(ends.first - first.begin());
    }
    return std::string(znhost::Beginning(first, length));
}

/// The beginning of a word that is still to be typed on: a brace that it needs stays open.
std::string AsOpenElement(const std::string& beginning) {
    std::string element = AsListElement(beginning);
    if (element != beginning && element.front() == '{') element.pop_back();
    return element;
}

} // namespace

bool IsHostWord(const std::string& word) { return IsSpelling(word, HOST_WORD); }

std::vector<std::string> FindNextWords(const std::vector<std::string>& words) {
    if (!words.empty() && IsHostWord(words.front())) {
        return znhost::EmbeddedHost::GetAppWords({words.begin() + 1, words.end()});
    }
    std::vector<std::string> next;
    znBrowserTclCommandTree::GetNextWords(words, next);
    return next;
}

std::optional<std::string> FindUnknownWord(const std::vector<std::string>& words) {
    std::vector<std::string> known;
    for (const std::string& word : words) {
        const std::vector<std::string> next = FindNextWords(known);
        if (next.empty()) return std::nullopt;
        const auto isWord = [&](const std::string& other) { return IsSpelling(word, other); };
        if (std::none_of(next.begin(), next.end(), isWord)) return word;
        known.push_back(word);
    }
    return std::nullopt;
}

Completion CompleteTyped(std::string_view text, const ObjectNames& objectNames) {
    for (const TypedCommand& typed : TypedScanner(text).Readings()) {
        std::vector<std::string> words = FindWords(typed, objectNames);
        if (words.empty()) continue;
        Completion completion;
        completion.replaced = text.substr(typed.wordStart);
        const std::string common = CommonBeginning(words);
        if (words.size() == 1) {
            completion.replacement = AsListElement(common) + ' ';
        } else if (common.size() > typed.partial.size()) {
            completion.replacement = AsOpenElement(common);
        }
        std::transform(words.begin(), words.end(), words.begin(), AsListElement);
        completion.choices = std::move(words);
        return completion;
    }
    return {};
}
