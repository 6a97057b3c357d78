// Whether a script has used the command since a certain moment.
#ifndef COMMAND_COUNT_H
#define COMMAND_COUNT_H

#include <cstdint>

namespace znlayer {

/// How many commands this thread has begun. A host call may run a script; as long as the count is what it was
/// before the call, the script has changed nothing, and what was found before is still there.
inline thread_local std::uint64_t commandsBegun = 0;

} // namespace znlayer

#endif
