#include "reference.h"

#include "app/embedded_host.h"
#include "znBrowserTclCommandTree.h"
#include "znBrowserVersion.h"

#include <map>
#include <vector>

namespace {

constexpr const char* notation =
    R"(A word may be written in any mixture of upper and lower case. Of the arguments, those in capitals stand for a kind,
all others for themselves; ?...? may be left out, a|b is one or the other, and ... says that the last may be repeated.
Words with "..." behind them lead on to others, below in a section of their own. At the prompt of znbrowsersh,
"help WORD ..." shows the same.
)";

/// One form of the reference.
class Writer {
public:
    virtual ~Writer() = default;
    virtual std::string Beginning() const = 0;
    virtual std::string Section(const std::string& title, bool isWords) const = 0;
    virtual std::string Text(const std::string& text) const = 0;
    /// Says that a section is the same as another.
    virtual std::string Same(const std::string& title) const = 0;
    virtual std::string TableHead(const std::string& what) const = 0;
    virtual std::string Row(const std::string& words, const std::string& meaning) const = 0;
};

class Markdown final : public Writer {
public:
    std::string Beginning() const override {
        return "# The words of `znbrowsermanager`\n\nWritten by `./dev docs` from the command tables: "
               "`znbrowsersh --reference` prints it.\n" +
               std::string(notation);
    }
    std::string Section(const std::string& title, bool isWords) const override {
        return isWords ? "\n## `" + title + "`\n" : "\n## " + title + "\n";
    }
    std::string Text(const std::string& text) const override { return "\n" + text + "\n"; }
    std::string Same(const std::string& title) const override { return "\nAs `" + title + "`.\n"; }
    std::string TableHead(const std::string& what) const override {
        return "\n| " + what + " | meaning |\n|---|---|\n";
    }
    std::string Row(const std::string& words, const std::string& meaning) const override {
        return "| `" + InCell(words) + "` | " + InCell(meaning) + " |\n";
    }

private:
    static std::string InCell(const std::string& text) {
        std::string cell;
        for (const char character : text) {
            if (character == '|') cell += '\\';
            cell += character;
        }
        return cell;
    }
};

class ManualPage final : public Writer {
public:
    std::string Beginning() const override {
        return ".TH znbrowsermanager n \"\" \"znBrowserScripting " ZN_BROWSER_VERSION
               "\" \"Model browser\"\n.SH NAME\nznbrowsermanager \\- builds and drives the browsers of a "
               "model\n.SH SYNOPSIS\n.B znbrowsermanager\n.I WORD\n?\\fIWORD ...\\fR?\n.SH DESCRIPTION\n"
               "Views, data controls and data sources, windows with their parts, events and searches, and "
               "saved states are made, asked and deleted by the words of this command. Its answer is a text; "
               "where something is wrong, the text says so behind \"[Error]\", and with "
               "the option \\-\\-strict of\n.BR znbrowsersh (1)\nit is a Tcl error.\n.PP\n" +
               Plain(notation);
    }
    std::string Section(const std::string& title, bool isWords) const override {
        return (isWords ? ".SH \"" : ".SH ") + Plain(title) + (isWords ? "\"\n" : "\n");
    }
    std::string Text(const std::string& text) const override { return Plain(text) + "\n"; }
    std::string Same(const std::string& title) const override { return "As \\fB" + Plain(title) + "\\fR.\n"; }
    std::string TableHead(const std::string&) const override { return ""; }
    std::string Row(const std::string& words, const std::string& meaning) const override {
        return ".TP\n.B \"" + Plain(words) + "\"\n" + Plain(meaning) + "\n";
    }

private:
    /// As a line of a page of roff shows it.
    static std::string Plain(const std::string& text) {
        std::string plain;
        for (const char character : text) {
            switch (character) {
            case '\\': plain += "\\e"; break;
            case '-': plain += "\\-"; break;
            case '"': plain += "\\(dq"; break;
            case '.':
            case '\'':
                if (plain.empty() || plain.back() == '\n') plain += "\\&";
                plain += character;
                break;
            default: plain += character;
            }
        }
        return plain;
    }
};

/// The tables written so far, each with the words that it stands behind.
using Tables = std::map<std::string, std::string>;

std::string WordsOf(const std::string& word, const std::string& arguments) {
    return arguments.empty() ? word : word + ' ' + arguments;
}

void AddLevel(const Writer& writer, const std::vector<std::string>& words, const std::string& heading,
              Tables& tables, std::string& page) {
    std::vector<znBrowserTclCommand> commands;
    znBrowserTclCommandTree::GetCommands(words, commands);
    if (commands.empty()) return;
    std::string table = writer.TableHead("word");
    for (const znBrowserTclCommand& command : commands)
        table += writer.Row(WordsOf(command.word, command.arguments) + (command.leadsOn ? " ..." : ""),
                            command.summary);
    page += writer.Section(heading, true);
    const auto [same, isNew] = tables.emplace(table, heading);
    page += isNew ? table : writer.Same(same->second);
    if (!isNew) return;
    for (const znBrowserTclCommand& command : commands) {
        std::vector<std::string> below = words;
        below.push_back(command.word);
        if (command.leadsOn) AddLevel(writer, below, heading + ' ' + command.word, tables, page);
    }
}

void AddApp(const Writer& writer, std::string& page) {
    page += writer.Section("znbrowsermanager app", true);
    page += writer.Text("The words of the embedded host; another host has its own.");
    page += writer.TableHead("word");
    for (const auto& command : znhost::EmbeddedHost::GetAppCommands({}))
        page += writer.Row(WordsOf(command.words, command.arguments), command.summary);
}

void AddKinds(const Writer& writer, std::string& page) {
    std::vector<znBrowserTclArgumentKind> kinds;
    znBrowserTclCommandTree::GetArgumentKinds(kinds);
    page += writer.Section("Kinds of arguments", false);
    page += writer.TableHead("kind");
    for (const znBrowserTclArgumentKind& kind : kinds) page += writer.Row(kind.word, kind.meaning);
}

std::string Write(const Writer& writer) {
    std::string page = writer.Beginning();
    Tables tables;
    AddLevel(writer, {}, "znbrowsermanager", tables, page);
    AddApp(writer, page);
    AddKinds(writer, page);
    return page;
}

} // namespace

std::string Reference() { return Write(Markdown()); }

std::string Manual() { return Write(ManualPage()); }
