#include "fuzz/fenced_host.h"

#include "host/model/application.h"
#include "host/store/data_ctrl.h"

#include <sanitizer/asan_interface.h>
#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory_resource>
#include <string>
#include <utility>

namespace {

[[noreturn]] void Die(const std::string& reason) {
    std::fprintf(stderr, "fuzz: %s\n", reason.c_str());
    std::abort();
}

/// The tables of the gearbox that hang together, with few columns and few rows: reading the tables takes most
/// of the time of a run.
constexpr char tables[] =
    "CREATE TABLE assembly (id INTEGER PRIMARY KEY, parent_id INTEGER REFERENCES assembly (id), name TEXT, "
    "code TEXT);"
    "CREATE TABLE part (id INTEGER PRIMARY KEY, assembly_id INTEGER REFERENCES assembly (id), name TEXT, "
    "mass REAL,"
    " colour INTEGER, released BOOLEAN);"
    "CREATE TABLE feature (id INTEGER PRIMARY KEY, part_id INTEGER REFERENCES part (id), name TEXT, diameter "
    "REAL);"
    "CREATE VIEW heavy_part AS SELECT id, name, mass FROM part WHERE mass >= 1;"
    "INSERT INTO assembly VALUES (1, NULL, 'Gearbox', 'GB'), (2, 1, 'Housing', 'GB-HOU'), (3, 2, 'Rear "
    "cover', NULL);"
    "INSERT INTO part VALUES (1, 2, 'Main case', 11.5, 255, 1), (2, 3, 'bolt', 0.02, NULL, 0), (3, NULL, '', "
    "NULL, 0, NULL);"
    "INSERT INTO feature VALUES (1, 1, 'hole 1', 8.5), (2, 1, 'hole 2', 8.5), (3, 2, 'thread', 8)";

/// The small gearbox as the bytes of a database file.
class SmallGearbox {
public:
    SmallGearbox() {
        sqlite3* database = nullptr;
        sqlite3_open(":memory:", &database);
        if (sqlite3_exec(database, tables, nullptr, nullptr, nullptr)) Die(sqlite3_errmsg(database));
        bytes_ = sqlite3_serialize(database, "main", &size_, 0);
        sqlite3_close(database);
    }
    ~SmallGearbox() { sqlite3_free(bytes_); }
    SmallGearbox(const SmallGearbox&) = delete;
    SmallGearbox& operator=(const SmallGearbox&) = delete;

    void CopyTo(sqlite3* database) const {
        auto* const copy = static_cast<unsigned char*>(sqlite3_malloc64(static_cast<sqlite3_uint64>(size_)));
        std::memcpy(copy, bytes_, static_cast<std::size_t>(size_));
        constexpr unsigned own = SQLITE_DESERIALIZE_FREEONCLOSE | SQLITE_DESERIALIZE_RESIZEABLE;
        if (sqlite3_deserialize(database, "main", copy, size_, size_, own)) Die(sqlite3_errmsg(database));
    }

private:
    unsigned char* bytes_ = nullptr;
    sqlite3_int64 size_ = 0;
};

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

const SmallGearbox& Gearbox() {
    static const bool hurries = HurrySqlite();
    if (!hurries) Die("SQLite is in use already");
    static const SmallGearbox gearbox;
    static const bool isFenced = (FenceFiles(), true);
    static_cast<void>(isFenced);
    return gearbox;
}

/// Ends what runs too long: SQLite asks every 1000 steps.
void LimitSteps(sqlite3* database, int* left) {
    sqlite3_progress_handler(
        database, 1000, [](void* count) { return --*static_cast<int*>(count) < 0 ? 1 : 0; }, left);
    sqlite3_limit(database, SQLITE_LIMIT_ATTACHED, 0);
    sqlite3_limit(database, SQLITE_LIMIT_LENGTH, 1 << 20);
}

/// A new safe interpreter.
Tcl_Interp* MakeInterp() {
    Tcl_Interp* const interp = Tcl_CreateInterp();
    Tcl_MakeSafe(interp);
    Tcl_Eval(interp, "proc value {item} {return v}; proc ignore args {}; interp bgerror {} ignore");
    Tcl_Eval(interp, "namespace eval znbrowser {proc ResetSelectedFreeFoldersArray {} {}; "
                     "proc AddToSelectedFreeFoldersArray {name} {}}");
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

FencedHost::FencedHost(Tcl_ObjCmdProc* again, void* data) : interp_(keptInterp.Take()) {
    const SmallGearbox& gearbox = Gearbox();
    Tcl_CreateObjCommand(interp_, "again", again, data, nullptr);
    host_ = std::make_unique<znhost::EmbeddedHost>(interp_);
    std::string error;
    if (!host_->CreateDataCtrl("gearbox", "", error)) Die(error);
    sqlite3* const database = host_->App().DataControls().Find("gearbox")->Db().Handle();
    gearbox.CopyTo(database);
    static int stepsLeft;
    stepsLeft = 2000;
    LimitSteps(database, &stepsLeft);
    Tcl_Eval(interp_, "expr {[info cmdcount] + 20000}");
    int lastCommand = 0;
    Tcl_GetIntFromObj(nullptr, Tcl_GetObjResult(interp_), &lastCommand);
    Tcl_LimitSetCommands(interp_, lastCommand);
    Tcl_LimitTypeSet(interp_, TCL_LIMIT_COMMANDS);
}

FencedHost::~FencedHost() {
    host_.reset();
    RunDue();
    Tcl_DeleteCommand(interp_, "again");
    keptInterp.GiveBack(interp_);
}

void FencedHost::RunDue() {
    for (int due = 0; due < 8 && Tcl_DoOneEvent(TCL_IDLE_EVENTS | TCL_DONT_WAIT); ++due) continue;
}
