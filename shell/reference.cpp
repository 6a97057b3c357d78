#include "reference.h"

#include "app/embedded_host.h"
#include "znBrowserTclCommandTree.h"

#include <map>
#include <vector>

namespace {

constexpr const char* beginning = R"(# The words of `znbrowsermanager`

Written by `./dev docs` from the command tables: `znbrowsersh --reference` prints it. A word may be written in any mixture
of upper and lower case. Of the arguments, those in capitals stand for a kind, all others for themselves; `?...?` may be
left out, `a|b` is one or the other, and `...` says that the last may be repeated. Words with "..." behind them lead on to
others, below in a section of their own. At the prompt, `help WORD ...` shows the same.
)";

std::string InCell(const std::string& text) {
    std::string cell;
    for (const char character : text) {
        if (character == '|') cell += '\\';
        cell += character;
    }
    return cell;
}

void AddRow(const std::string& words, const std::string& meaning, std::string& page) {
    page += "| `" + InCell(words) + "` | " + InCell(meaning) + " |\n";
}

void AddTable(const char* what, std::string& page) {
    page += std::string("\n| ") + what + " | meaning |\n|---|---|\n";
}

/// The tables written so far, each with the words that it stands behind.
using Tables = std::map<std::string, std::string>;

void AddLevel(const std::vector<std::string>& words, const std::string& heading, Tables& tables,
              std::string& page) {
    std::vector<znBrowserTclCommand> commands;
    znBrowserTclCommandTree::GetCommands(words, commands);
    if (commands.empty()) return;
    std::string table;
    AddTable("word", table);
    for (const znBrowserTclCommand& command : commands) {
        const std::string arguments = command.arguments.empty() ? "" : ' ' + command.arguments;
        AddRow(command.word + arguments + (command.leadsOn ? " ..." : ""), command.summary, table);
    }
    page += "\n## `" + heading + "`\n";
    const auto [same, isNew] = tables.emplace(table, heading);
    page += isNew ? table : "\nAs `" + same->second + "`.\n";
    if (!isNew) return;
    for (const znBrowserTclCommand& command : commands) {
        std::vector<std::string> below = words;
        below.push_back(command.word);
        if (command.leadsOn) AddLevel(below, heading + ' ' + command.word, tables, page);
    }
}

void AddApp(std::string& page) {
    page += "\n## `znbrowsermanager app`\n\nThe words of the embedded host; another host has its own.\n";
    AddTable("word", page);
    for (const auto& command : znhost::EmbeddedHost::GetAppCommands({}))
        AddRow(command.words + (command.arguments.empty() ? "" : ' ' + command.arguments), command.summary,
               page);
}

void AddKinds(std::string& page) {
    std::vector<znBrowserTclArgumentKind> kinds;
    znBrowserTclCommandTree::GetArgumentKinds(kinds);
    page += "\n## Kinds of arguments\n";
    AddTable("kind", page);
    for (const znBrowserTclArgumentKind& kind : kinds) AddRow(kind.word, kind.meaning, page);
}

} // namespace

std::string Reference() {
    std::string page = beginning;
    Tables tables;
    AddLevel({}, "znbrowsermanager", tables, page);
    AddApp(page);
    AddKinds(page);
    return page;
}
