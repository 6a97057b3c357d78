#include "completion.h"

#include "znBrowserTclCommandTree.h"

#include <tcl.h>

#include <algorithm>
#include <iterator>

namespace {

constexpr std::string_view HELP_WORD = "help";
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

std::string AsListElement(const std::string& name) {
    int flags = 0;
    const int length = static_cast<int>(name.size());
    std::string element(static_cast<std::size_t>(Tcl_ScanCountedElement(name.data(), length, &flags)), '\0');
    element.resize(
        static_cast<std::size_t>(Tcl_ConvertCountedElement(name.data(), length, element.data(), flags)));
    return element;
}

/// Walks over typed text and keeps the commands that are open in it, the innermost last.
class TypedScanner {
public:
    void Add(char c) {
        if (escaped_) {
            escaped_ = false;
            AddToWord(c);
        } else if (c == '\\') {
            escaped_ = true;
        } else if (c == '"' && (quoted_ || !inWord_)) {
            quoted_ = !quoted_;
            inWord_ = true;
        } else if (c == '[' || (c == '{' && !inWord_ && !quoted_)) {
            Open();
        } else if ((c == ']' || c == '}') && commands_.size() > 1) {
            Close();
        } else if (!quoted_ && (c == ' ' || c == '\t')) {
            EndWord();
        } else if (!quoted_ && (c == '\n' || c == ';')) {
            EndWord();
            commands_.back() = {};
        } else {
            AddToWord(c);
        }
    }

    TypedCommand Get() const { return commands_.back(); }

private:
    void AddToWord(char c) {
        inWord_ = true;
        commands_.back().partial += c;
    }
    void EndWord() {
        if (!inWord_) return;
        TypedCommand& command = commands_.back();
        command.words.push_back(std::move(command.partial));
        command.partial.clear();
        inWord_ = false;
    }
    void Open() {
        commands_.emplace_back();
        inWord_ = quoted_ = false;
    }
    // The closed command stands for part of a word of the outer one; what it would give is not known.
    void Close() {
        commands_.pop_back();
        inWord_ = true;
        quoted_ = false;
    }

    std::vector<TypedCommand> commands_{TypedCommand()};
    bool inWord_ = false;
    bool quoted_ = false;
    bool escaped_ = false;
};

/// Keeps the texts that begin with `beginning`.
void Narrow(std::vector<std::string>& texts, const std::string& beginning) {
    texts.erase(std::remove_if(texts.begin(), texts.end(),
                               [&](const std::string& text) { return !BeginsWith(text, beginning); }),
                texts.end());
}

} // namespace

TypedCommand FindTypedCommand(std::string_view text) {
    TypedScanner scanner;
    for (const char c : text) scanner.Add(c);
    return scanner.Get();
}

std::vector<std::string> FindCompletions(const TypedCommand& typed,
                                         const std::function<std::vector<std::string>()>& objectNames) {
    std::vector<std::string> found;
    bool areNames = false;
    if (typed.words.empty()) {
        found.assign(std::begin(SHELL_WORDS), std::end(SHELL_WORDS));
    } else if (const std::string& command = typed.words.front(); IsOurs(command)) {
        znBrowserTclCommandTree::GetNextWords({typed.words.begin() + 1, typed.words.end()}, found);
        areNames = found.empty() && command != HELP_WORD;
    }
    if (areNames) found = objectNames();
    Narrow(found, typed.partial);
    if (areNames) std::transform(found.begin(), found.end(), found.begin(), AsListElement);
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

std::string CommonBeginning(const std::vector<std::string>& texts) {
    if (texts.empty()) return "";
    std::string_view common = texts.front();
    for (const std::string& text : texts) {
        const auto ends = std::mismatch(common.begin(), common.end(), text.begin(), text.end());
        common = common.substr(0, static_cast<std::size_t>(ends.first - common.begin()));
    }
    return std::string(common);
}
