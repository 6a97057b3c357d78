// Work that may take so long that somebody waits for it.
#ifndef ZN_HOST_LONG_WORK_H
#define ZN_HOST_LONG_WORK_H

#include <cstdint>

namespace znhost {

/// Decides whether long work continues. Whatever may take long asks it at short intervals.
class LongWork {
public:
    /// False: the user has cancelled the work; it stops as it is.
    virtual bool GoesOn() = 0;
    /// False: the time granted for the work has run out; it stops with what it has.
    virtual bool HasTime() = 0;
    /// So many more rows have been read for it: what is told to who waits.
    virtual void Did(std::uint64_t /*rows*/) {}

protected:
    ~LongWork() = default;
};

} // namespace znhost

#endif
