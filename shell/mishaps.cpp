#include "mishaps.h"

#include "base/tcl_values.h"
#include "example_host.h"

#include <algorithm>
#include <map>
#include <memory>
#include <sstream>

namespace {

struct Attempt {
    std::string when;
    std::string command;
};

/// The places of the arguments in the notation: "NAME", "?true|false?".
std::vector<std::string> PlacesOf(const std::string& notation) {
    std::vector<std::string> places;
    std::istringstream words(notation);
    for (std::string word; words >> word;) {
        if (word.rfind("...", 0) == 0) continue;
        places.push_back(word);
    }
    return places;
}

bool IsOneOf(const std::string& word, std::initializer_list<const char*> words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

/// What to say when a word that makes no sense stands in that place; "" where every word does.
std::string WhenWrong(std::string place) {
    place.erase(std::remove(place.begin(), place.end(), '?'), place.end());
    std::string kinds;
    std::istringstream alternatives(place);
    for (std::string word; std::getline(alternatives, word, '|');) {
        if (word[0] < 'A' || word[0] > 'Z') continue;
        if (IsOneOf(word, {"ANY", "FILE", "FRAME", "NAME", "PROC", "SCRIPT", "TEXT", "VALUE"})) return "";
        kinds += (kinds.empty() ? "" : "|") + word;
    }
    if (kinds.empty()) return "a word is not " + place;
    const bool isRead = IsOneOf(kinds, {"BOOL", "COUNT", "FIRST", "INDEX", "INT", "STATEMENT", "TYPE"});
    return (isRead ? "a word is no " : "there is no such ") + kinds;
}

std::string Joined(const std::vector<std::string>& beginning, const std::vector<std::string>& arguments) {
    std::vector<std::string> words = beginning;
    words.insert(words.end(), arguments.begin(), arguments.end());
    Tcl_Obj* const list = znhost::NewList(words);
    Tcl_IncrRefCount(list);
    std::string command = Tcl_GetString(list);
    Tcl_DecrRefCount(list);
    return command;
}

/// The line with one argument changed, each in turn, and without any.
std::vector<Attempt> AttemptsOf(const KnownLine& line) {
    std::vector<Attempt> attempts;
    const std::vector<std::string> places = PlacesOf(line.notation);
    for (std::size_t i = 0; i < line.arguments.size() && !places.empty(); ++i) {
        const std::string when = WhenWrong(places[std::min(i, places.size() - 1)]);
        std::vector<std::string> arguments = line.arguments;
        arguments[i] = "nosuch";
        if (!when.empty()) attempts.push_back({when, Joined(line.beginning, arguments)});
    }
    const bool isOfHost = line.words.rfind("app ", 0) == 0; // its usage is part of the error
    if (!places.empty() && places.front().front() != '?' && !isOfHost)
        attempts.push_back({"words are missing", Joined(line.beginning, {})});
    return attempts;
}

constexpr const char* BANNER = "\n\t[Error] ";

/// Whether the answer is an error, which is then told in short.
bool TakeError(int code, std::string& answer) {
    const bool hasBanner = answer.find(BANNER) != std::string::npos;
    if (hasBanner) answer.erase(0, answer.find(BANNER) + std::string(BANNER).size());
    answer.erase(std::min(answer.size(), answer.find("[Command] ")));
    return hasBanner || code != TCL_OK || answer.rfind("No current ", 0) == 0;
}

/// Tries the lines of one example, each before it is run.
class Trial {
public:
    explicit Trial(const Example& example) : example_(example) { Restart(0); }

    template <class Found>
    void Run(Found found) {
        for (std::size_t i = 0; i < example_.lines.size(); ++i) {
            const ExampleLine& line = example_.lines[i];
            if (IsFirst(i)) Try(i, found);
            host_->Run(line.command, answer_);
        }
    }

private:
    void Restart(std::size_t end) {
        host_ = std::make_unique<ExampleHost>();
        for (const ExampleLine& line : ExampleOpening().lines) host_->Run(line.command, answer_);
        for (std::size_t i = 0; i < end; ++i) host_->Run(example_.lines[i].command, answer_);
    }

    bool IsFirst(std::size_t i) const {
        const std::string& words = example_.lines[i].words;
        const auto isSame = [&](const ExampleLine& line) { return line.words == words; };
        const auto line = example_.lines.begin() + static_cast<long>(i);
        return !words.empty() && &ExampleAbout(words) == &example_ &&
               std::none_of(example_.lines.begin(), line, isSame);
    }

    template <class Found>
    void Try(std::size_t i, Found found) {
        const ExampleLine& line = example_.lines[i];
        if (!bare_) bare_ = std::make_unique<ExampleHost>();
        const KnownLine known = *Recognize(line.command);
        const auto isNamed = [&](const std::string& word) { return answer_.find(word) != answer_.npos; };
        if (!TakeError(bare_->Run(line.command, answer_), answer_))
            bare_.reset(); // something may be current now
        else if (std::none_of(known.arguments.begin(), known.arguments.end(), isNamed))
            found(line.words, "nothing is current", answer_);
        for (const Attempt& attempt : AttemptsOf(known)) {
            if (TakeError(host_->Run(attempt.command, answer_), answer_))
                found(line.words, attempt.when, answer_);
            else
                Restart(i);
        }
    }

    const Example& example_;
    std::unique_ptr<ExampleHost> host_;
    std::unique_ptr<ExampleHost> bare_; ///< one in which nothing is
    std::string answer_;
};

} // namespace

const std::vector<Mishap>& MishapsIn(const Example& example) {
    static std::map<const Example*, std::vector<Mishap>> known;
    const auto [found, isNew] = known.try_emplace(&example);
    std::vector<Mishap>& mishaps = found->second;
    const auto add = [&](const std::string& words, const std::string& when, const std::string& answer) {
        mishaps.push_back({words, when, answer});
    };
    if (isNew) Trial(example).Run(add);
    return mishaps;
}
