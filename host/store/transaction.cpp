#include "store/transaction.h"

#include <sqlite3.h>

namespace znhost {

bool Transaction::Begin(std::string& error, Purpose purpose) {
    const bool inside = database_.InTransaction();
    savepoint_ = inside || purpose == Purpose::Copy;
    copiesAlone_ = !inside && purpose == Purpose::Copy;
    // Savepoints of the same name nest; the innermost one is meant.
    open_ = database_.Execute(savepoint_ ? "SAVEPOINT znbrowser" : "BEGIN IMMEDIATE", error);
    return open_;
}

bool Transaction::Commit(std::string& error) {
    if (!database_.Execute(savepoint_ ? "RELEASE znbrowser" : "COMMIT", error)) return false;
    open_ = false;
    return true;
}

Transaction::~Transaction() {
    if (!open_) return;
    // A copy alone is nothing that anybody has looked at.
    if (!copiesAlone_) database_.NoteRollback();
    // SQLite may have rolled back by itself already. It is asked directly, which needs no memory of ours.
    const char* const undo = savepoint_ ? "ROLLBACK TO znbrowser; RELEASE znbrowser" : "ROLLBACK";
    sqlite3_exec(database_.Handle(), undo, nullptr, nullptr, nullptr);
}

} // namespace znhost
