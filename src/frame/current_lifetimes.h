// Which current objects die with an object that the host deletes.
//
// The host does not tell when an object dies. So an operation that has one deleted asks beforehand which of
// the current objects lie in it, and clears those afterwards.
#ifndef CURRENT_LIFETIMES_H
#define CURRENT_LIFETIMES_H

#include "znBrowserCurrentObjects.h"

class znBrowserManagerTcl;

namespace znlayer {

/// The way to the manager's current objects for what is not its own operation.
class CurrentAccess {
public:
    static znBrowserCurrentObjects& Of(znBrowserManagerTcl& manager);
    static const znBrowserCurrentObjects& Of(const znBrowserManagerTcl& manager);
};

/// The current objects that lie in one that is about to be deleted, itself included. An object that cannot
/// tell its owner is taken for one that dies: losing a current object does less harm than keeping a dead one.
/// Offered for each kind of current object.
template <class Dying>
znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl& manager, Dying* dying);

/// Clears those of them that are still current.
void Forget(znBrowserManagerTcl& manager, const znBrowserCurrentObjects& doomed);

/// Has an object deleted: runs `deletion` and, unless it answers false, forgets what is doomed. When the host
/// throws, the object may be gone, too: then what is doomed is forgotten before the exception passes on.
/// @return what `deletion` answers
template <class Deletion>
bool DeleteAndForget(znBrowserManagerTcl& manager, const znBrowserCurrentObjects& doomed, Deletion deletion) {
    bool deleted = true;
    try {
        deleted = deletion();
    } catch (...) {
        Forget(manager, doomed);
        throw;
    }
    if (deleted) Forget(manager, doomed);
    return deleted;
}

} // namespace znlayer

#endif
