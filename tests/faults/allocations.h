// The memory of the test program, which runs out when a test wants it to.
#ifndef ALLOCATIONS_H
#define ALLOCATIONS_H

#include <cstddef>

/// What operator new does. No other thread allocates while a sweep runs.
struct Allocations {
    bool armed = false;
    bool andFollowing = false;
    std::size_t left = 0; ///< allocations before the one that fails
    bool failed = false;
    long living = 0; ///< allocated and not freed

    bool Fails() {
        if (!armed || (left > 0 && left-- > 0) || (failed && !andFollowing)) return false;
        failed = true;
        return true;
    }
};
extern Allocations allocations;

#endif
