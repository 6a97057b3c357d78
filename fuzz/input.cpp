#include "fuzz/input.h"

#include "fuzz/hostile_databases.h"
#include "host/app/embedded_host.h"
#include "src/frame/keyword_table.h"
#include "znBrowserTclCommandTree.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <iterator>
#include <sstream>
#include <tcl.h>

namespace {

using Words = std::vector<std::string>;

/// The words of a text.
Words Split(const char* text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// The spellings of all keywords.
const Words& Keywords() {
    static const Words keywords = [] {
        Words spellings;
        for (const znlayer::KeywordRow& row : znlayer::keyword_table::rows)
            spellings.emplace_back(row.spelling);
        return spellings;
    }();
    return keywords;
}

/// The names in the databases, those of what an input starts from, and words of the host.
const Words& Names() {
    static const Words names =
        Split("gearbox part assembly feature heavy_part own structure v w win pane title released mass name "
              "Name c2 s e f g op default value again saved POSTED SELECTION_CHANGED WINDOW_OPERATION "
              "part.assembly_id assembly.parent_id feature.part_id TREE_AREA_SELECT_CHILDREN_ITEMS equalto "
              "id>? code select empty deep part.up znIBrowser::DeleteView");
    return names;
}

const Words& Numbers() {
    static const Words numbers =
        Split("0 1 2 3 5 7 -1 4294967295 2147483647 -2147483648 1e9 1.5 0x10 4294967296 "
              "99999999999999999999 nan 1e999 08 +4");
    return numbers;
}

/// What goes on in a database behind the host's back: rows and tables come, change and go.
const Words& Statements() {
    static const Words statements = {
        "DROP TABLE part",
        "DELETE FROM part",
        "DELETE FROM assembly WHERE id = 2",
        "UPDATE part SET name = char(0x1F600) || name",
        "UPDATE part SET name = ?",
        "INSERT INTO part (name) VALUES (?)",
        "ALTER TABLE part RENAME TO feature2",
        "ALTER TABLE part RENAME COLUMN name TO other",
        "ALTER TABLE part ADD COLUMN more",
        "CREATE TABLE more (id INTEGER PRIMARY KEY, part REFERENCES part, name)",
        "CREATE VIEW more AS SELECT * FROM part",
        "SELECT * FROM part",
        "BEGIN",
        "COMMIT",
        "ROLLBACK",
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT i FROM n WHERE i < 0",
        "id > ? OR name = ?",
        "name GLOB ?",
    };
    return statements;
}

/// The texts that the tests loop over, in Tcl's form.
const Words& HostileTexts() {
    static const Words texts = [] {
        Words read;
        Tcl_Interp* const interp = Tcl_CreateInterp();
        int count = 0;
        Tcl_Obj** elements = nullptr;
        if (Tcl_EvalFile(interp, ZN_SOURCE_DIR "/tests/hostile_texts.tcl") != TCL_OK ||
            Tcl_Eval(interp, "dict values $hostile::texts") != TCL_OK ||
            Tcl_ListObjGetElements(interp, Tcl_GetObjResult(interp), &count, &elements) != TCL_OK)
            Die(Tcl_GetStringResult(interp));
        for (int i = 0; i < count; ++i) {
            int length = 0;
            const char* const text = Tcl_GetStringFromObj(elements[i], &length);
            read.emplace_back(text, static_cast<std::size_t>(length));
        }
        Tcl_DeleteInterp(interp);
        return read;
    }();
    return texts;
}

/// An escape and the table in which the byte behind it chooses. The numbers of the bytes are those of the
/// files in the corpus.
struct WordTable {
    char escape;
    const Words& (*words)();
};
constexpr WordTable wordTables[] = {
    {'\xF6', Statements}, {'\xF7', HostileTexts}, {'\xF8', Keywords}, {'\xF9', Names}, {'\xFA', Numbers}};

constexpr std::string_view special{"\0 \n\xF6\xF7\xF8\xF9\xFA\xFB\xFC\xFD\xFE", 12};

/// The commands' words, each path in the tree of commands.
void VisitCommands(const Words& path, const std::function<void(const Words&)>& visit) {
    Words next;
    znBrowserTclCommandTree::GetNextWords(path, next);
    if (!path.empty() && path.front() == "app") {
        next = znhost::EmbeddedHost::GetAppWords({path.begin() + 1, path.end()});
    }
    for (const std::string& word : next) {
        Words longer = path;
        longer.push_back(word);
        visit(longer);
        VisitCommands(longer, visit);
    }
}

/// An entry as libFuzzer reads it.
void PutEntry(std::FILE* file, std::string_view bytes) {
    std::fputc('"', file);
    for (const char byte : bytes) {
        if (byte >= ' ' && byte <= '~' && byte != '"' && byte != '\\')
            std::fputc(byte, file);
        else
            std::fprintf(file, "\\x%02X", static_cast<unsigned>(static_cast<std::uint8_t>(byte)));
    }
    std::fputs("\"\n", file);
}

} // namespace

Line Input::NextLine() {
    Line words;
    words.reserve(12);
    words.push_back({"znbrowsermanager"});
    bool inWord = false;
    while (!rest_.empty()) {
        const std::size_t plain = std::min(rest_.find_first_of(special), rest_.size());
        if (plain > 0) {
            if (!inWord) words.emplace_back();
            inWord = true;
            words.back().text.append(rest_, 0, plain);
            rest_.remove_prefix(plain);
            continue;
        }
        const char byte = Take();
        if (byte == '\n') break;
        if (byte == ' ') {
            inWord = false;
            continue;
        }
        if (!inWord) words.emplace_back();
        inWord = true;
        AppendSpecial(words.back(), byte);
    }
    return words;
}

char Input::Take() {
    const char byte = rest_.front();
    rest_.remove_prefix(1);
    return byte;
}

const std::string& Input::TakeFrom(const std::vector<std::string>& table) {
    return table[rest_.empty() ? 0 : static_cast<std::uint8_t>(Take()) % table.size()];
}

void Input::AppendSpecial(Word& word, char byte) {
    constexpr std::size_t longest = 1 << 16;
    for (const WordTable& table : wordTables) {
        if (byte == table.escape) word.text += TakeFrom(table.words());
    }
    switch (static_cast<std::uint8_t>(byte)) {
    case 0: word.text += "\xC0\x80"; break;
    case 0xFB: word.text.resize(std::min((word.text.size() + 1) * 64, longest), 'x'); break;
    case 0xFC: word.text += ' '; break;
    case 0xFD: word.text += '\n'; break;
    case 0xFE: word.isNull = true; break;
    default: break;
    }
}

std::vector<Line> LinesOf(std::string_view text) {
    std::vector<Line> lines;
    for (Input input(text); !input.Ended();) lines.push_back(input.NextLine());
    return lines;
}

void WriteDictionary(const char* path) {
    std::FILE* const file = std::fopen(path, "w");
    if (!file) Die(std::string("cannot write ") + path);
    VisitCommands({}, [file](const Words& words) {
        std::string line;
        for (const std::string& word : words) line += word + ' ';
        PutEntry(file, line);
    });
    for (const std::string& keyword : Keywords()) PutEntry(file, keyword + ' ');
    for (const std::string& name : Names()) PutEntry(file, name + ' ');
    // Of the other tables the bytes that choose a word, as their words hold blanks.
    for (const WordTable& table : {wordTables[0], wordTables[1]}) {
        for (std::size_t i = 0; i < table.words().size(); ++i)
            PutEntry(file, std::string{table.escape, static_cast<char>(i), ' '});
    }
    PutEntry(file, "\xFE ");
    PutEntry(file, "again ");
    std::fclose(file);
}
