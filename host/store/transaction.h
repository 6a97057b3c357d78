// A transaction that is undone unless it is committed.
#ifndef ZN_HOST_TRANSACTION_H
#define ZN_HOST_TRANSACTION_H

#include "store/database.h"

namespace znhost {

/// Everything that happens between `Begin` and `Commit`, or nothing of it. Inside another transaction, also
/// one that a script began, it is a part of that one: undone alone when it fails, kept only when the outer
/// one is. Transactions end in the opposite order of their beginning, as objects on the stack do.
class Transaction {
public:
    enum class Purpose {
        Write, ///< takes the write lock at once: a lock held by others shows now, not in the middle
        Copy   ///< reads the database and writes temporary tables only; does not lock out other writers
    };

    explicit Transaction(Database& database) : database_(database) {}
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    /// Undoes what is not committed.
    ~Transaction();

    bool Begin(std::string& error, Purpose purpose = Purpose::Write);
    /// On failure the transaction stays open: it can be tried again, or is undone by the destructor.
    bool Commit(std::string& error);

private:
    Database& database_;
    bool open_ = false;
    bool savepoint_ = false;
    bool copiesAlone_ = false;
};

} // namespace znhost

#endif
