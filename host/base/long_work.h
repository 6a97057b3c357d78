// Work that may take so long that somebody waits for it.
#ifndef ZN_HOST_LONG_WORK_H
#define ZN_HOST_LONG_WORK_H

namespace znhost {

/// Decides whether long work continues. Whatever may take long asks it at short intervals.
class LongWork {
public:
    /// False: the user has cancelled the work; it stops as it is.
    virtual bool GoesOn() = 0;
    /// False: the time granted for the work has run out; it stops with what it has.
    virtual bool HasTime() = 0;

protected:
    ~LongWork() = default;
};

} // namespace znhost

#endif
