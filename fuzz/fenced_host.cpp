#include "fuzz/fenced_host.h"

#include "fuzz/hostile_databases.h"
#include "host/app/application.h"
#include "host/store/data_ctrl.h"
#include "host/store/sqlite/sqlite_database.h"
#include "host/tk/tk_scripts.h"

#include <sanitizer/asan_interface.h>
#include <sqlite3.h>

#include <algorithm>
#include <cstring>
#include <memory_resource>
#include <string>
#include <utility>

namespace {

/// SQLite's file system, but for named files, which cannot be opened or deleted.
void FenceFiles() {
    static sqlite3_vfs fenced = *sqlite3_vfs_find(nullptr);
    static const auto openAny = fenced.xOpen;
    fenced.zName = "fenced";
    fenced.pNext = nullptr;
    fenced.xOpen = [](sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags, int* outFlags) {
        file->pMethods = nullptr;
        return name ? SQLITE_CANTOPEN : openAny(vfs, name, file, flags, outFlags);
    };
    fenced.xDelete = [](sqlite3_vfs*, const char*, int) { return SQLITE_IOERR_DELETE; };
    sqlite3_vfs_register(&fenced, 1);
}

/// SQLite's memory, from a pool: most of the memory of a run is SQLite's, and the sanitizer's own allocator
/// takes its time. What was given back is poisoned, so that a text read too late is found all the same.
class SqliteMemory {
public:
    static sqlite3_mem_methods Methods() {
        return {Allocate,     Free,   Reallocate, Size, Round, [](void*) { return SQLITE_OK; },
                [](void*) {}, nullptr};
    }

private:
    static constexpr int header = 8; ///< holds the size, and is all the alignment that SQLite wants

    static std::pmr::memory_resource& Pool() {
        static std::pmr::unsynchronized_pool_resource pool;
        return pool;
    }
    static int Size(void* memory) {
        int size = 0;
        std::memcpy(&size, static_cast<char*>(memory) - header, sizeof size);
        return size;
    }
    static int Round(int size) { return (size + 7) & ~7; }
    static void* Allocate(int size) {
        auto* const block =
            static_cast<char*>(Pool().allocate(static_cast<std::size_t>(size + header), header));
        std::memcpy(block, &size, sizeof size);
        ASAN_UNPOISON_MEMORY_REGION(block + header, static_cast<std::size_t>(size));
        return block + header;
    }
    static void Free(void* memory) {
        const auto size = static_cast<std::size_t>(Size(memory) + header);
        ASAN_POISON_MEMORY_REGION(memory, size - header);
        Pool().deallocate(static_cast<char*>(memory) - header, size, header);
    }
    static void* Reallocate(void* memory, int size) {
        void* const moved = Allocate(size);
        std::memcpy(moved, memory, static_cast<std::size_t>(std::min(size, Size(memory))));
        Free(memory);
        return moved;
    }
};

/// SQLite without locks and statistics, which take their time.
bool HurrySqlite() {
    static const sqlite3_mem_methods memory = SqliteMemory::Methods();
    return sqlite3_config(SQLITE_CONFIG_SINGLETHREAD) == SQLITE_OK &&
           sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0) == SQLITE_OK &&
           sqlite3_config(SQLITE_CONFIG_MALLOC, &memory) == SQLITE_OK;
}

/// Limits a new connection, whoever opens it.
int LimitConnection(sqlite3* database, char**, const sqlite3_api_routines*) {
    sqlite3_limit(database, SQLITE_LIMIT_ATTACHED, 0);
    return SQLITE_OK;
}

/// Whether the text holds what Tcl makes of a NUL, or of a character beyond the basic plane: both are no
/// UTF-8.
bool IsInTclForm(std::string_view text) {
    for (std::size_t at = 0; (at = text.find_first_of("\xC0\xED", at)) != text.npos; ++at) {
        const auto byte = [text, at](std::size_t i) {
            return at + i < text.size() ? static_cast<unsigned char>(text[at + i]) : 0U;
        };
        if (byte(0) == 0xC0 && byte(1) == 0x80) return true;
        if (byte(0) == 0xED && (byte(1) & 0xF0U) == 0xA0 && byte(3) == 0xED && (byte(4) & 0xF0U) == 0xB0)
            return true;
    }
    return false;
}

/// Looks at each statement as it begins, with the values bound to it: what comes from Tcl must come as UTF-8.
int LookAtStatement(unsigned, void*, void* statement, void*) {
    char* const sql = sqlite3_expanded_sql(static_cast<sqlite3_stmt*>(statement));
    if (sql && IsInTclForm(sql)) Die(std::string("the database is told what is not UTF-8: ") + sql);
    sqlite3_free(sql);
    return 0;
}

/// Whoever calls this took a name of the model for a script.
int NameThatRan(ClientData, Tcl_Interp*, int, Tcl_Obj* const[]) {
    Die("a name of the model ran as a script");
}

/// The default browser, and what the host calls in the applications' scripts.
void AddScripts(Tcl_Interp* interp) {
    Tcl_Eval(interp, R"(
        proc value {item} {return v}
        proc ignore args {}
        interp bgerror {} ignore
        proc puts args {}
        proc tcl::mathfunc::min args {lindex [lsort -real $args] 0}
        proc tcl::mathfunc::max args {lindex [lsort -real $args] end}
        namespace eval znbrowser {
            proc ResetSelectedFreeFoldersArray {} {}
            proc AddToSelectedFreeFoldersArray {name} {}
            proc UpdatePopupInputScript {script} {}
        })");
    for (const znhost::TkScript& script : znhost::TkScripts()) {
        if (script.file != "default_browser.tcl") continue;
        if (Tcl_EvalEx(interp, script.text.data(), static_cast<int>(script.text.size()), TCL_EVAL_GLOBAL) !=
            TCL_OK)
            Die(Tcl_GetStringResult(interp));
    }
}

/// A new safe interpreter.
Tcl_Interp* MakeInterp() {
    Tcl_Interp* const interp = Tcl_CreateInterp();
    Tcl_MakeSafe(interp);
    AddScripts(interp);
    Tcl_CreateObjCommand(interp, "name_that_ran", NameThatRan, nullptr, nullptr);
    Tcl_Eval(interp, "catch error"); // so that the variables of the last error are there from the start
    return interp;
}

/// What scripts may have changed in an interpreter.
std::string StateOf(Tcl_Interp* interp) {
    const int code = Tcl_Eval(
        interp, "list [info commands] [info vars] [info procs] [namespace children] [after info] [value x]");
    return code == TCL_OK ? Tcl_GetStringResult(interp) : "";
}

/// The interpreter of the last run as long as that left it as it was, else a new one.
struct KeptInterp {
    Tcl_Interp* interp = nullptr;
    std::string state;

    Tcl_Interp* Take() {
        if (!interp) state = StateOf(interp = MakeInterp());
        return std::exchange(interp, nullptr);
    }
    void GiveBack(Tcl_Interp* used) {
        Tcl_LimitTypeReset(used, TCL_LIMIT_COMMANDS);
        if (StateOf(used) == state)
            interp = used;
        else
            Tcl_DeleteInterp(used);
    }
} keptInterp;

} // namespace

void FencedHost::Prepare() {
    static const bool isReady = [] {
        Tcl_FindExecutable(nullptr); // makes the encodings known
        if (!HurrySqlite()) Die("SQLite is in use already");
        DatabaseImages();
        FenceFiles();
        return sqlite3_auto_extension(reinterpret_cast<void (*)()>(&LimitConnection)) == SQLITE_OK;
    }();
    if (!isReady) Die("SQLite takes no limits");
}

FencedHost::FencedHost(const DatabaseImage& image, Tcl_ObjCmdProc* again, void* data)
    : interp_(keptInterp.Take()) {
    patience_.questions = image.IsHostile() ? 80 : 500;
    Tcl_CreateObjCommand(interp_, "again", again, data, nullptr);
    host_ = std::make_unique<znhost::EmbeddedHost>(interp_);
    std::string error;
    if (!host_->CreateDataCtrl("gearbox", "", error)) Die(error);
    znhost::Database& opened = host_->App().DataControls().Find("gearbox")->Db();
    sqlite3* const database = static_cast<znhost::SqliteDatabase&>(opened).Handle();
    sqlite3_limit(database, SQLITE_LIMIT_LENGTH, 1 << 20);
    image.CopyTo(database);
    host_->App().SetWork(&patience_);
    host_->App().ForbidFiles();
    // What the hostile ones hold is read and asked for again as it is.
    if (!image.IsHostile()) sqlite3_trace_v2(database, SQLITE_TRACE_STMT, LookAtStatement, nullptr);
    Tcl_Eval(interp_, "expr {[info cmdcount] + 40000}");
    int lastCommand = 0;
    Tcl_GetIntFromObj(nullptr, Tcl_GetObjResult(interp_), &lastCommand);
    Tcl_LimitSetCommands(interp_, lastCommand);
    Tcl_LimitTypeSet(interp_, TCL_LIMIT_COMMANDS);
}

FencedHost::~FencedHost() {
    host_->App().SetWork(nullptr);
    host_.reset();
    RunDue();
    Tcl_DeleteCommand(interp_, "again");
    keptInterp.GiveBack(interp_);
}

void FencedHost::Browse() { Tcl_Eval(interp_, "::znbrowser::any::browse gearbox"); }

void FencedHost::RunDue() {
    for (int due = 0; due < 8 && Tcl_DoOneEvent(TCL_IDLE_EVENTS | TCL_DONT_WAIT); ++due) continue;
}
