// The sequence type of the host's utility library.
#ifndef ZN_STL_VECTOR_H
#define ZN_STL_VECTOR_H

#include <vector>

/// The host's vector is the standard one under a name of its own.
template <class T>
using znStlVector = std::vector<T>;

#endif
