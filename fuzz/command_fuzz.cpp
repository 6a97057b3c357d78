// Fuzzes the command: any words, in any order, on a fresh embedded host.
//
// An input is lines; a line is a command, its words stand between blanks. Most bytes stand for themselves, so
// a corpus file reads like a script. The bytes that UTF-8 never has are escapes: 0xF8 to 0xFA and the byte
// behind take a word from the tables of keywords, names and numbers, 0xFB grows a word, 0xFC and 0xFD are a
// blank and a line end inside a word. A NUL is what Tcl makes of it, C0 80. An input that begins with "+"
// starts from a view and its window, one that begins with "*" from a furnished one, any other from nothing.
//
// Scripts inside host calls: the word "again" is a Tcl command that runs the next line of the input. As the
// script of an operation, a listener, a callback or a property it makes the command run inside itself.
#include "fuzz/fenced_host.h"
#include "host/znIBrowserPopupMenu.h"
#include "host/znIBrowserPopupMenuItem.h"
#include "src/frame/keyword_table.h"
#include "tests/faults/living_objects.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <sstream>
#include <string_view>

using namespace znlayer;

namespace {

/// The words of a text.
std::vector<std::string> Split(const char* text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

const std::vector<std::string> names = Split(
    "gearbox part assembly feature heavy_part own structure v w win pane title released mass name Name c2 s "
    "e f g op "
    "default value again saved POSTED SELECTION_CHANGED WINDOW_OPERATION part.assembly_id assembly.parent_id "
    "feature.part_id TREE_AREA_SELECT_CHILDREN_ITEMS equalto id>?");
const std::vector<std::string> numbers = Split("0 1 2 3 5 7 -1 4294967295 2147483647 -2147483648 1e9 1.5 "
                                               "0x10 4294967296 99999999999999999999 nan 1e999 08 +4");

/// What an input may start from: a view on the gearbox with a tree, and a window that shows it.
constexpr char opening[] = "datactrl current gearbox\n"
                           "datasource hierarchical create structure 0 0\n"
                           "datasource hierarchical connect parent assembly x\n"
                           "datasource hierarchical connect child assembly assembly.parent_id\n"
                           "datasource hierarchical connect child part part.assembly_id\n"
                           "view create v\n"
                           "view datactrl connect\n"
                           "view datasource simple connect assembly\n"
                           "view datasource hierarchical connect structure\n"
                           "view property create title\n"
                           "view property type string\n"
                           "view property connect assembly name\n"
                           "view property connect part name\n"
                           "view folder current v\n"
                           "view folder create f\n"
                           "view tree create structure\n"
                           "datasource simple current part\n"
                           "window create win\n";

/// What may stand in it: one of each of the other kinds of objects, their scripts run the lines that follow.
constexpr char furniture[] = "datasource simple create own Own name\n"
                             "datasource simple connect assembly\n"
                             "datasource simple criteria create c\n"
                             "dataoperation create o\n"
                             "dataoperation script x again\n"
                             "view datasource simple connect own\n"
                             "view property create flag\n"
                             "view property type bool\n"
                             "view property connect part released\n"
                             "view property current title\n"
                             "view column create c2\n"
                             "view style create s\n"
                             "view element create e\n"
                             "view element connect property title\n"
                             "view folder current v\n"
                             "view folder create g\n"
                             "view list create assembly\n"
                             "view folder current v\n"
                             "view operation create op\n"
                             "view operation script again\n"
                             "datasource simple current assembly\n"
                             "window part create part\n"
                             "window listener connect again\n";

/// The words of a command.
using Line = std::vector<std::string>;

/// The lines of one input, handed out one by one: to the top level, or to a script inside a host call.
class Input {
public:
    explicit Input(std::string_view text) : rest_(text) {}

    bool Ended() const { return rest_.empty(); }
    /// The words of the next line.
    Line NextLine() {
        Line words;
        words.reserve(12);
        words.emplace_back("znbrowsermanager");
        bool inWord = false;
        while (!rest_.empty()) {
            const std::size_t plain = std::min(rest_.find_first_of(special), rest_.size());
            if (plain > 0) {
                if (!inWord) words.emplace_back();
                inWord = true;
                words.back().append(rest_, 0, plain);
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

private:
    static constexpr std::string_view special{"\0 \n\xF8\xF9\xFA\xFB\xFC\xFD", 9};

    char Take() {
        const char byte = rest_.front();
        rest_.remove_prefix(1);
        return byte;
    }
    std::size_t TakeIndex(std::size_t count) {
        return rest_.empty() ? 0 : static_cast<std::uint8_t>(Take()) % count;
    }
    void AppendSpecial(std::string& word, char byte) {
        constexpr std::size_t longest = 1 << 16;
        switch (static_cast<std::uint8_t>(byte)) {
        case 0: word += "\xC0\x80"; break;
        case 0xF8: word += keyword_table::rows[TakeIndex(std::size(keyword_table::rows))].spelling; break;
        case 0xF9: word += names[TakeIndex(names.size())]; break;
        case 0xFA: word += numbers[TakeIndex(numbers.size())]; break;
        case 0xFB: word.resize(std::min((word.size() + 1) * 64, longest), 'x'); break;
        case 0xFC: word += ' '; break;
        default: word += '\n';
        }
    }

    std::string_view rest_;
};

void RunLine(Tcl_Interp* interp, const Line& words) {
    std::vector<Tcl_Obj*> objects;
    objects.reserve(words.size());
    for (const std::string& word : words) {
        objects.push_back(Tcl_NewStringObj(word.data(), static_cast<int>(word.size())));
        Tcl_IncrRefCount(objects.back());
    }
    Tcl_EvalObjv(interp, static_cast<int>(objects.size()), objects.data(), TCL_EVAL_GLOBAL);
    for (Tcl_Obj* const object : objects) Tcl_DecrRefCount(object);
}

void RunLines(Tcl_Interp* interp, const std::vector<Line>& lines) {
    for (const Line& line : lines) RunLine(interp, line);
}

/// The lines of a text, read once.
std::vector<Line> LinesOf(std::string_view text) {
    std::vector<Line> lines;
    for (Input input(text); !input.Ended();) lines.push_back(input.NextLine());
    return lines;
}

/// The Tcl command "again".
int RunNextLine(ClientData input, Tcl_Interp* interp, int, Tcl_Obj* const[]) {
    Input& lines = *static_cast<Input*>(input);
    if (!lines.Ended()) RunLine(interp, lines.NextLine());
    Tcl_SetObjResult(interp, Tcl_NewStringObj("v", 1));
    return TCL_OK;
}

/// Reads the name of each current object: a dead one is touched here, under the eyes of the sanitizer.
void TouchCurrents(znhost::EmbeddedHost& host) {
    VisitCurrents(host.Manager(),
                  [&host](const char*, auto* current) { znhost::NameOf(host.Calls(), current); });
}

void WriteDictionary(const char* path) {
    std::FILE* const file = std::fopen(path, "w");
    if (!file) std::abort();
    std::fputs("# Written by \"./dev fuzz dictionary\" from the keyword table.\n", file);
    for (const KeywordRow& row : keyword_table::rows)
        std::fprintf(file, "\"%.*s \"\n", static_cast<int>(row.spelling.size()), row.spelling.data());
    for (const std::string& name : names) std::fprintf(file, "\"%s \"\n", name.c_str());
    std::fclose(file);
}

} // namespace

/// Speed: leaks and dead objects are found without filled memory and deep stacks, too.
extern "C" const char* __asan_default_options() {
    return "max_malloc_fill_size=0:malloc_context_size=2:quarantine_size_mb=8:allocator_release_to_os_"
           "interval_ms=-1";
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    if (*argc == 3 && !std::strcmp((*argv)[1], "--dictionary")) {
        WriteDictionary((*argv)[2]);
        std::exit(0);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::vector<Line> openingLines = LinesOf(opening), furnitureLines = LinesOf(furniture);
    std::string_view text(reinterpret_cast<const char*>(data), size);
    const char start = text.empty() ? '\0' : text.front();
    const bool furnished = start == '*', opened = furnished || start == '+';
    if (opened) text.remove_prefix(1);
    Input input(text);
    FencedHost fenced(&RunNextLine, &input);
    if (opened) RunLines(fenced.Interp(), openingLines);
    if (furnished) RunLines(fenced.Interp(), furnitureLines);
    while (!input.Ended()) {
        RunLine(fenced.Interp(), input.NextLine());
        fenced.RunDue();
    }
    TouchCurrents(fenced.Host());
    return 0;
}
