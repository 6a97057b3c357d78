// Work that may take so long that somebody waits for it.
#ifndef ZN_HOST_LONG_WORK_H
#define ZN_HOST_LONG_WORK_H

namespace znhost {

/// Whoever looks after the one who waits. It is asked again and again by whatever may take long.
class LongWork {
public:
    /// False: nobody waits any longer, and the work is to be left as it is.
    virtual bool GoesOn() = 0;
    /// False: the work was to be done as far as there is time, and that is over.
    virtual bool HasTime() = 0;

protected:
    ~LongWork() = default;
};

} // namespace znhost

#endif
