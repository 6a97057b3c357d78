// Fuzzes the command: any words, in any order, on a fresh embedded host.
//
// An input is lines; a line is a command, its words stand between blanks. Most bytes stand for themselves, so
// a corpus file reads like a script. The bytes that UTF-8 never has are escapes: 0xF8 to 0xFA and the byte
// behind take a word from the tables of keywords, names and numbers, 0xFB grows a word, 0xFC and 0xFD are a
// blank and a line end inside a word. A NUL is what Tcl makes of it, C0 80. An input that begins with "-"
// starts without the opening.
//
// Scripts inside host calls: the word "again" is a Tcl command that runs the next line of the input. As the
// script of an operation, a listener, a callback or a property it makes the command run inside itself.
#include "fuzz/fenced_host.h"
#include "src/frame/keyword_table.h"
#include "tests/faults/living_objects.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <sstream>
#include <string_view>

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

/// What some inputs start from: a view on the gearbox, and a window that shows it.
constexpr const char* opening[] = {
    "datactrl current gearbox",
    "datasource hierarchical create structure 0 0",
    "datasource hierarchical connect parent assembly x",
    "datasource hierarchical connect child assembly assembly.parent_id",
    "datasource hierarchical connect child part part.assembly_id",
    "view create v",
    "view datactrl connect",
    "view datasource hierarchical connect structure",
    "view datasource simple connect part",
    "view property create title",
    "view property type string",
    "view property connect part name",
    "view property connect assembly name",
    "view tree create structure",
    "datasource simple current part",
    "window create win",
};

/// The lines of one input, handed out one by one: to the top level, or to a script inside a host call.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

    bool Ended() const { return rest_.empty(); }
    /// The words of the next line.
    std::vector<std::string> NextLine() {
        std::vector<std::string> words{"znbrowsermanager"};
        bool inWord = false;
        while (!rest_.empty()) {
            const char byte = Take();
            if (byte == '\n') break;
            if (byte == ' ') {
                inWord = false;
            } else {
                if (!inWord) words.emplace_back();
                inWord = true;
                Append(words.back(), byte);
            }
        }
        return words;
    }

private:
    char Take() {
        const char byte = rest_.front();
        rest_.remove_prefix(1);
        return byte;
    }
    std::size_t TakeIndex(std::size_t count) {
        return rest_.empty() ? 0 : static_cast<std::uint8_t>(Take()) % count;
    }
    void Append(std::string& word, char byte) {
        constexpr std::size_t longest = 1 << 16;
        switch (static_cast<std::uint8_t>(byte)) {
        case 0: word += "\xC0\x80"; break;
        case 0xF8: word += keyword_table::rows[TakeIndex(std::size(keyword_table::rows))].spelling; break;
        case 0xF9: word += names[TakeIndex(names.size())]; break;
        case 0xFA: word += numbers[TakeIndex(numbers.size())]; break;
        case 0xFB: word.resize(std::min((word.size() + 1) * 64, longest), 'x'); break;
        case 0xFC: word += ' '; break;
        case 0xFD: word += '\n'; break;
        default: word += byte;
        }
    }

    std::string_view rest_;
};

void RunLine(Tcl_Interp* interp, const std::vector<std::string>& words) {
    std::vector<Tcl_Obj*> objects;
    for (const std::string& word : words) {
        objects.push_back(Tcl_NewStringObj(word.data(), static_cast<int>(word.size())));
        Tcl_IncrRefCount(objects.back());
    }
    Tcl_EvalObjv(interp, static_cast<int>(objects.size()), objects.data(), TCL_EVAL_GLOBAL);
    for (Tcl_Obj* const object : objects) Tcl_DecrRefCount(object);
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
    return "max_malloc_fill_size=0:malloc_context_size=5:quarantine_size_mb=16:allocator_release_to_os_"
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
    const bool opened = size > 0 && *data == '+';
    Input input(data + (opened ? 1 : 0), size - (opened ? 1 : 0));
    FencedHost fenced(&RunNextLine, &input);
    for (const char* const line : opening) {
        if (opened)
            RunLine(fenced.Interp(),
                    Input(reinterpret_cast<const std::uint8_t*>(line), strlen(line)).NextLine());
    }
    while (!input.Ended()) {
        RunLine(fenced.Interp(), input.NextLine());
        fenced.RunDue();
    }
    TouchCurrents(fenced.Host());
    return 0;
}
