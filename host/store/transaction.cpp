#include "store/transaction.h"

namespace znhost {

bool Transaction::Begin(std::string& error, Purpose purpose) {
    savepoint_ = purpose == Purpose::Copy || database_.InTransaction();
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
    database_.NoteRollback();
    std::string ignored; // SQLite may have rolled back by itself already
    if (!savepoint_) {
        database_.Execute("ROLLBACK", ignored);
    } else if (database_.Execute("ROLLBACK TO znbrowser", ignored)) {
        database_.Execute("RELEASE znbrowser", ignored);
    }
}

} // namespace znhost
