// What people have changed in the rows of a database, to be undone in order.
#ifndef ZN_HOST_CHANGE_LOG_H
#define ZN_HOST_CHANGE_LOG_H

#include "store/database.h"

#include <deque>
#include <string>
#include <vector>

namespace znhost {

class ChangeLog {
public:
    /// A statement that gives one row back what it had, as long as it has what it was given.
    struct Step {
        std::string sql;
        std::vector<Value> values;
    };
    struct Change {
        std::string what; ///< for a person: "part: visible = 1"
        std::vector<Step> steps;
    };

    void Add(Change change);
    void Clear() { changes_.clear(); }
    /// The first one first.
    const std::deque<Change>& All() const { return changes_; }
    /// Undoes the last change, all of it or nothing. @return false, with the reason, when there is none, or
    /// when a row is not any more as the change left it
    bool Undo(Database& database, std::string& error);

private:
    std::deque<Change> changes_;
};

} // namespace znhost

#endif
