#include "reference.h"

#include "app/embedded_host.h"
#include "examples.h"
#include "mishaps.h"
#include "znBrowserTclCommandTree.h"
#include "znBrowserVersion.h"

#include <tcl.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <utility>
#include <vector>

namespace {

constexpr const char* introduction[] = {
    R"(A word may be written in any mixture of upper and lower case. Some have a second spelling, as "enable" for "enabled"
in the usage texts. Of the arguments, those in capitals stand for a kind, all others for themselves; ?...? may be left out,
a|b is one or the other, and ... says that the last may be repeated. What a word answers is written in the same way:
COLUMN ... is a list of columns, ?COLUMN? may be empty, and where nothing is written the answer is empty. Words with "..."
behind them lead on to others, below in a section of their own.)",
    R"(Where something goes wrong, the answer is the command behind "[Command]", and behind "[Error]" on the next line the
text that is told here. Words that are missing, or that cannot be read, are answered with the usage text of the family.)",
    R"(The examples are run when this is written, each on a host of its own and behind the lines of the opening. At the prompt
of znbrowsersh, "help WORD ..." shows the same for one word.)",
};

std::string Joined(const std::vector<std::string>& words, const char* border) {
    std::string all;
    for (const std::string& word : words) all += (all.empty() ? "" : border) + word;
    return all;
}

/// One form of the reference.
class Writer {
public:
    virtual ~Writer() = default;
    virtual std::string Beginning() const = 0;
    virtual std::string Section(const std::string& title, bool isWords) const = 0;
    virtual std::string Text(const std::string& text) const = 0;
    /// Says that a section is the same as another.
    virtual std::string Same(const std::string& title) const = 0;
    virtual std::string TableHead(const std::vector<std::string>& columns) const = 0;
    /// The first cell holds words, the second what is said of them.
    virtual std::string Row(const std::string& words, const std::string& meaning) const = 0;
    /// The same, with what they answer.
    virtual std::string Row(const std::string& words, const std::string& meaning,
                            const std::string& answer) const = 0;
    virtual std::string Mishap(const std::vector<std::string>& words, const std::string& when,
                               const std::string& answer) const = 0;
    /// Lines as they are.
    virtual std::string Lines(const std::string& lines) const = 0;
};

class Markdown final : public Writer {
public:
    std::string Beginning() const override {
        return "# The words of `znbrowsermanager`\n\nWritten by `./dev docs` from the command tables and "
               "from "
               "what the examples answer:\n`znbrowsersh --reference` prints it.\n";
    }
    std::string Section(const std::string& title, bool isWords) const override {
        return isWords ? "\n## `" + title + "`\n" : "\n## " + title + "\n";
    }
    std::string Text(const std::string& text) const override { return "\n" + text + "\n"; }
    std::string Same(const std::string& title) const override { return "\nAs `" + title + "`.\n"; }
    std::string TableHead(const std::vector<std::string>& columns) const override {
        std::string names = "\n|";
        std::string lines = "\n|";
        for (const std::string& column : columns) {
            names += ' ' + column + " |";
            lines += "---|";
        }
        return names + lines + '\n';
    }
    std::string Row(const std::string& words, const std::string& meaning) const override {
        return "| " + Code(words) + " | " + InCell(meaning) + " |\n";
    }
    std::string Row(const std::string& words, const std::string& meaning,
                    const std::string& answer) const override {
        return "| " + Code(words) + " | " + InCell(meaning) + " | " + Code(answer) + " |\n";
    }
    std::string Mishap(const std::vector<std::string>& words, const std::string& when,
                       const std::string& answer) const override {
        std::string cell;
        for (const std::string& word : words) cell += (cell.empty() ? "" : ", ") + Code(word);
        return "| " + cell + " | " + InCell(when) + " | " + Code(answer) + " |\n";
    }
    std::string Lines(const std::string& lines) const override { return "\n```tcl\n" + lines + "```\n"; }

private:
    static std::string Code(const std::string& text) { return text.empty() ? "" : '`' + InCell(text) + '`'; }
    static std::string InCell(const std::string& text) {
        std::string cell;
        for (const char character : text) {
            if (character == '|') cell += '\\';
            cell += character == '\n' ? ' ' : character;
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
               "the option \\-\\-strict of\n.BR znbrowsersh (1)\nit is a Tcl error.\n";
    }
    std::string Section(const std::string& title, bool isWords) const override {
        return (isWords ? ".SH \"" : ".SH ") + Plain(title) + (isWords ? "\"\n" : "\n");
    }
    std::string Text(const std::string& text) const override { return ".PP\n" + Plain(text) + "\n"; }
    std::string Same(const std::string& title) const override { return "As \\fB" + Plain(title) + "\\fR.\n"; }
    std::string TableHead(const std::vector<std::string>& columns) const override {
        return columns.back() == "error" ? ".PP\n\\fIWhat goes wrong:\\fR\n" : "";
    }
    std::string Row(const std::string& words, const std::string& meaning) const override {
        return ".TP\n.B \"" + Plain(words) + "\"\n" + Plain(meaning) + "\n";
    }
    std::string Row(const std::string& words, const std::string& meaning,
                    const std::string& answer) const override {
        return Row(words, answer.empty() ? meaning : meaning + " Answers: " + answer);
    }
    std::string Mishap(const std::vector<std::string>& words, const std::string& when,
                       const std::string& answer) const override {
        return Row(Joined(words, ", "), "When " + when + ": " + answer);
    }
    std::string Lines(const std::string& lines) const override {
        return ".PP\n.nf\n" + Plain(lines) + ".fi\n";
    }

private:
    /// As lines of a page of roff show it. A character beyond ASCII has its number there.
    static std::string Plain(const std::string& text) {
        std::string plain;
        std::size_t behind = 0; // a character of several bytes
        for (std::size_t i = 0; i < text.size(); ++i) {
            const char character = text[i];
            if (i < behind) continue;
            if (static_cast<unsigned char>(character) >= 0x80) {
                Tcl_UniChar number = 0;
                behind = i + static_cast<std::size_t>(Tcl_UtfToUniChar(text.c_str() + i, &number));
                char escape[16];
                std::snprintf(escape, sizeof escape, "\\[u%04X]", static_cast<unsigned>(number));
                plain += escape;
                continue;
            }
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

/// The words before the last; those of the host all stand behind "app".
std::string SectionOf(const std::string& words) {
    const std::size_t last = words.rfind("app ", 0) == 0 ? 3 : words.rfind(' ');
    return last == words.npos ? "" : words.substr(0, last);
}

/// What goes wrong with the words of a section: those that fail in the same way are told together.
std::string MishapsShown(const Writer& writer, const std::string& section) {
    std::vector<std::pair<Mishap, std::vector<std::string>>> together; // each with the words that share it
    for (const Example& example : Examples()) {
        for (const Mishap& mishap : MishapsIn(example)) {
            if (SectionOf(mishap.words) != section) continue;
            const std::string word = mishap.words.substr(section.empty() ? 0 : section.size() + 1);
            const auto isSame = [&](const auto& other) {
                return other.first.when == mishap.when && other.first.answer == mishap.answer;
            };
            const auto same = std::find_if(together.begin(), together.end(), isSame);
            if (same == together.end())
                together.push_back({mishap, {word}});
            else
                same->second.push_back(word);
        }
    }
    std::string rows;
    for (const auto& [mishap, words] : together) rows += writer.Mishap(words, mishap.when, mishap.answer);
    return rows.empty() ? rows : writer.TableHead({"goes wrong", "when", "error"}) + rows;
}

/// What goes wrong, and the example that is about the section.
std::string Shown(const Writer& writer, const std::string& section) {
    const std::string mishaps = MishapsShown(writer, section);
    const Example& example = ExampleAbout(section);
    return example.words == section ? mishaps + writer.Lines(AsTyped(Answered(example))) : mishaps;
}

void AddLevel(const Writer& writer, const std::vector<std::string>& words, const std::string& heading,
              Tables& tables, std::string& page) {
    std::vector<znBrowserTclCommand> commands;
    znBrowserTclCommandTree::GetCommands(words, commands);
    if (commands.empty()) return;
    std::string table = writer.TableHead({"word", "meaning", "answer"});
    for (const znBrowserTclCommand& command : commands)
        table += writer.Row(WordsOf(command.word, command.arguments) + (command.leadsOn ? " ..." : ""),
                            command.summary, command.answer);
    page += writer.Section(heading, true);
    const auto [same, isNew] = tables.emplace(table, heading);
    page += isNew ? table : writer.Same(same->second);
    if (!isNew) return;
    page += Shown(writer, Joined(words, " "));
    for (const znBrowserTclCommand& command : commands) {
        std::vector<std::string> below = words;
        below.push_back(command.word);
        if (command.leadsOn) AddLevel(writer, below, heading + ' ' + command.word, tables, page);
    }
}

void AddApp(const Writer& writer, std::string& page) {
    page += writer.Section("znbrowsermanager app", true);
    page +=
        writer.Text("The words of the embedded host; another host has its own. Their errors are Tcl errors.");
    page += writer.TableHead({"word", "meaning", "answer"});
    for (const auto& command : znhost::EmbeddedHost::GetAppCommands({}))
        page += writer.Row(WordsOf(command.words, command.arguments), command.summary, command.answer);
    page += Shown(writer, "app");
}

void AddKinds(const Writer& writer, std::string& page) {
    std::vector<znBrowserTclArgumentKind> kinds;
    znBrowserTclCommandTree::GetArgumentKinds(kinds);
    page += writer.Section("Kinds of arguments", false);
    page += writer.TableHead({"kind", "meaning"});
    for (const znBrowserTclArgumentKind& kind : kinds) page += writer.Row(kind.word, kind.meaning);
}

std::string Write(const Writer& writer) {
    std::string page = writer.Beginning();
    for (const char* const paragraph : introduction) page += writer.Text(paragraph);
    page += writer.Section("The opening", false) + writer.Lines(AsTyped(ExampleOpening().lines));
    Tables tables;
    AddLevel(writer, {}, "znbrowsermanager", tables, page);
    AddApp(writer, page);
    AddKinds(writer, page);
    return page;
}

} // namespace

std::string Reference() { return Write(Markdown()); }

std::string Manual() { return Write(ManualPage()); }
