// Numbers the moments at which rows change and are looked at, over all databases.
#ifndef ZN_HOST_CHANGE_COUNT_H
#define ZN_HOST_CHANGE_COUNT_H

#include <cstdint>

namespace znhost {

/// Who looks at rows keeps the number of that moment, and asks later what changed since.
class ChangeCount {
public:
    /// The number of this moment: greater than all before.
    static std::uint64_t Now() { return ++last_; }
    static std::uint64_t Last() { return last_; }

private:
    static inline std::uint64_t last_ = 0;
};

} // namespace znhost

#endif
