// The names of what is there, kind by kind.
#ifndef LIVE_NAMES_H
#define LIVE_NAMES_H

#include "frame/arguments.h"

#include <string>
#include <vector>

class znBrowserManagerTcl;

namespace znlayer {

/// Adds the names that an argument of that kind may be, in the host's order; none for a kind of free words.
/// The host is asked without an operation: no error state changes, and what it refuses to list is left out.
void AddLiveNames(const znBrowserManagerTcl& manager, ArgumentKind kind, std::vector<std::string>& names);

} // namespace znlayer

#endif
