#include "store/transaction.h"

namespace znhost {

bool Transaction::Begin(std::string& error, Purpose purpose) {
    const bool inside = database_.InTransaction();
    savepoint_ = inside || purpose == Purpose::Copy;
    copiesAlone_ = !inside && purpose == Purpose::Copy;
    // Savepoints of the same name nest; the innermost one is meant.
    open_ = database_.Execute(savepoint_ ? "SAVEPOINT znbrowser" : database_.Sql().begin, error);
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
    database_.Undo(savepoint_);
}

} // namespace znhost
