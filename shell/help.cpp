#include "help.h"

#include "app/embedded_host.h"
#include "completion.h"
#include "example_host.h"
#include "mishaps.h"
#include "znBrowserTclCommandTree.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace {

/// One line of help: a command as it is typed, and what it does.
struct HelpLine {
    std::string command;
    std::string summary;
};

std::string Joined(const std::string& word, const std::string& arguments) {
    return arguments.empty() ? word : word + ' ' + arguments;
}

std::string Joined(const std::vector<std::string>& words) {
    std::string all;
    for (const std::string& word : words) all += (all.empty() ? "" : " ") + word;
    return all;
}

std::vector<HelpLine> LinesOf(const std::vector<znBrowserTclCommand>& commands) {
    std::vector<HelpLine> lines;
    for (const znBrowserTclCommand& command : commands) {
        const std::string typed = Joined(command.word, command.arguments);
        lines.push_back({command.leadsOn ? typed + " ..." : typed, command.summary});
    }
    return lines;
}

std::vector<HelpLine> LinesOfApp(const std::vector<std::string>& words) {
    std::vector<HelpLine> lines;
    for (const auto& command : znhost::EmbeddedHost::GetAppCommands(words))
        lines.push_back({Joined(command.words, command.arguments), command.summary});
    return lines;
}

/// The kinds of arguments that the lines name, each with its meaning.
std::vector<HelpLine> KindsIn(const std::vector<HelpLine>& lines) {
    std::vector<znBrowserTclArgumentKind> kinds;
    znBrowserTclCommandTree::GetArgumentKinds(kinds);
    std::vector<HelpLine> named;
    for (const znBrowserTclArgumentKind& kind : kinds) {
        const auto names = [&](const HelpLine& line) {
            const std::size_t at = line.command.find(kind.word);
            if (at == std::string::npos) return false;
            const std::size_t end = at + kind.word.size();
            const auto isCapital = [&](std::size_t place) {
                return place < line.command.size() && line.command[place] >= 'A' &&
                       line.command[place] <= 'Z';
            };
            return !isCapital(end) && (at == 0 || !isCapital(at - 1));
        };
        if (std::any_of(lines.begin(), lines.end(), names)) named.push_back({kind.word, kind.meaning});
    }
    return named;
}

/// Two columns, the first as wide as its texts, up to a limit beyond which the second begins a line.
void Append(const std::vector<HelpLine>& lines, std::string& text) {
    constexpr std::size_t widest = 40;
    std::size_t width = 0;
    for (const HelpLine& line : lines) width = std::max(width, std::min(line.command.size(), widest));
    for (const HelpLine& line : lines) {
        text += "\n  " + line.command;
        if (line.command.size() > width)
            text += "\n  " + std::string(width, ' ');
        else
            text.append(width - line.command.size(), ' ');
        text += "  " + line.summary;
    }
}

/// What goes wrong with the word, and the lines of the example that use it.
std::string ShownOf(const std::vector<std::string>& typed) {
    const std::optional<KnownLine> known = Recognize("znbrowsermanager " + Joined(typed));
    if (!known || !known->arguments.empty()) return "";
    const Example& example = ExampleAbout(known->words);
    std::vector<HelpLine> mishaps;
    for (const Mishap& mishap : MishapsIn(example)) {
        if (mishap.words == known->words) mishaps.push_back({"when " + mishap.when, mishap.answer});
    }
    std::vector<ExampleLine> lines;
    for (ExampleLine& line : Answered(example)) {
        if (line.words == known->words) lines.push_back(std::move(line));
    }
    std::string text;
    if (!mishaps.empty()) text += '\n';
    Append(mishaps, text);
    if (!lines.empty()) text += "\n\n" + AsTyped(lines);
    while (!text.empty() && text.back() == '\n') text.pop_back();
    return text;
}

} // namespace

std::string HelpOn(const std::vector<std::string>& words) {
    if (const std::optional<std::string> unknown = FindUnknownWord(words))
        return "unknown word \"" + *unknown + "\"";
    std::string text = Joined(words);
    const bool app = IsHostWord(words.front());
    std::vector<HelpLine> lines;
    znBrowserTclCommand command;
    if (app) {
        lines = LinesOfApp({words.begin() + 1, words.end()});
    } else {
        if (znBrowserTclCommandTree::GetCommand(words, command))
            text = Joined(text, command.arguments) + (command.answer.empty() ? "" : " -> " + command.answer) +
                   "\n  " + command.summary;
        std::vector<znBrowserTclCommand> commands;
        znBrowserTclCommandTree::GetCommands(words, commands);
        lines = LinesOf(commands);
    }
    Append(lines, text);
    std::vector<HelpLine> all = lines;
    all.push_back({command.arguments + ' ' + command.answer, {}});
    const std::vector<HelpLine> kinds = app ? std::vector<HelpLine>() : KindsIn(all);
    if (!kinds.empty()) text += '\n';
    Append(kinds, text);
    return text + ShownOf(words);
}
