// Fuzzes the command: any words, in any order, on a fresh embedded host; see input.h for what an input says.
//
// An input that begins with "+" starts from a view and its window, one that begins with "*" from a furnished
// one. The letter of a hostile database (see hostile_databases.cpp) starts it in the default browser on that,
// and its rows are read and drawn at the end. Any other starts from nothing. A "~" before that puts the run
// into a foreign locale.
//
// Scripts inside host calls: the word "again" is a Tcl command that runs the next line of the input. As the
// script of an operation, a listener, a callback or a property it makes the command run inside itself.
#include "fuzz/fenced_host.h"
#include "fuzz/hostile_databases.h"
#include "fuzz/input.h"
#include "host/znIBrowserPopupMenu.h"
#include "host/znIBrowserPopupMenuItem.h"
#include "tests/faults/living_objects.h"

#include <clocale>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace {

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

/// What is asked of a window on a hostile database when the input has ended.
constexpr char readings[] = "window current gearbox\n"
                            "window expandall\n"
                            "app rows gearbox\n"
                            "app draw gearbox\n";

void RunLine(FencedHost& fenced, const Line& words) {
    std::vector<Tcl_Obj*> objects;
    objects.reserve(words.size());
    bool hasNull = false;
    for (const Word& word : words) {
        hasNull |= word.isNull;
        objects.push_back(
            word.isNull ? nullptr : Tcl_NewStringObj(word.text.data(), static_cast<int>(word.text.size())));
        if (objects.back()) Tcl_IncrRefCount(objects.back());
    }
    // The command turns the words of "app" around in the array that it is given.
    std::vector<Tcl_Obj*> passed = objects;
    const int count = static_cast<int>(passed.size());
    if (hasNull) // Tcl itself takes none
        fenced.Host().Manager().EvalTclCommand(count, passed.data());
    else
        Tcl_EvalObjv(fenced.Interp(), count, passed.data(), TCL_EVAL_GLOBAL);
    for (Tcl_Obj* const object : objects) {
        if (object) Tcl_DecrRefCount(object);
    }
}

void RunLines(FencedHost& fenced, const std::vector<Line>& lines) {
    for (const Line& line : lines) RunLine(fenced, line);
}

/// One run: what is left of its input, and the host.
struct Run {
    Input input;
    FencedHost* fenced = nullptr;
};

/// The Tcl command "again".
int RunNextLine(ClientData data, Tcl_Interp* interp, int, Tcl_Obj* const[]) {
    Run& run = *static_cast<Run*>(data);
    if (run.fenced && !run.input.Ended()) RunLine(*run.fenced, run.input.NextLine());
    Tcl_SetObjResult(interp, Tcl_NewStringObj("v", 1));
    return TCL_OK;
}

/// Reads the name of each current object: a dead one is touched here, under the eyes of the sanitizer.
void TouchCurrents(znhost::EmbeddedHost& host) {
    VisitCurrents(host.Manager(),
                  [&host](const char*, auto* current) { znhost::NameOf(host.Calls(), current); });
}

/// Reads the rows that a window on a hostile database shows at the end. A page of it must fit into memory
/// many times over, whatever the cells hold.
void ReadRows(FencedHost& fenced) {
    static const std::vector<Line> lines = LinesOf(readings);
    constexpr int longest = 1 << 20; // a row of six long cells, twice over for the quotes of lists
    for (const Line& line : lines) {
        RunLine(fenced, line);
        int length = 0;
        Tcl_GetStringFromObj(Tcl_GetObjResult(fenced.Interp()), &length);
        if (length > longest) Die(std::to_string(length) + " bytes for a page of rows");
    }
}

/// Letters with another lower case, numbers with a comma, file names in Latin-1.
class ForeignLocale {
public:
    ForeignLocale() : encoding_(Tcl_GetEncodingName(nullptr)) {
        if (!std::setlocale(LC_ALL, "tr_TR.UTF-8")) std::setlocale(LC_ALL, "C.UTF-8");
        Tcl_SetSystemEncoding(nullptr, "iso8859-1");
    }
    ~ForeignLocale() {
        std::setlocale(LC_ALL, "C");
        Tcl_SetSystemEncoding(nullptr, encoding_.c_str());
    }
    ForeignLocale(const ForeignLocale&) = delete;
    ForeignLocale& operator=(const ForeignLocale&) = delete;

private:
    std::string encoding_;
};

void RunInput(std::string_view text) {
    static const std::vector<Line> openingLines = LinesOf(opening), furnitureLines = LinesOf(furniture);
    const char start = text.empty() ? '\0' : text.front();
    const DatabaseImage& image = DatabaseImageOf(start);
    const bool furnished = start == '*', opened = furnished || start == '+';
    if (opened || image.IsHostile()) text.remove_prefix(1);
    Run run{Input(text)};
    FencedHost fenced(image, &RunNextLine, &run);
    if (opened) RunLines(fenced, openingLines);
    if (furnished) RunLines(fenced, furnitureLines);
    if (image.IsHostile()) fenced.Browse();
    run.fenced = &fenced;
    while (!run.input.Ended()) {
        RunLine(fenced, run.input.NextLine());
        fenced.RunDue();
    }
    if (image.IsHostile()) ReadRows(fenced);
    TouchCurrents(fenced.Host());
    run.fenced = nullptr;
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
    FencedHost::Prepare();
    std::string_view text(reinterpret_cast<const char*>(data), size);
    if (text.empty() || text.front() != '~') {
        RunInput(text);
        return 0;
    }
    const ForeignLocale foreign;
    RunInput(text.substr(1));
    return 0;
}
