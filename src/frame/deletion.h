// Deleting with the host's help.
#ifndef DELETION_H
#define DELETION_H

/// Runs `deletion`, and after it `forget`, unless the host refused it. A host that throws may have deleted
/// all the same: no current object is safer than a dead one.
/// @return what `deletion` answers
template <class Deletion, class Forget>
bool DeleteAndForget(Deletion deletion, Forget forget) {
    bool deleted = true;
    try {
        deleted = deletion();
    } catch (...) {
        forget();
        throw;
    }
    if (deleted) forget();
    return deleted;
}

#endif
