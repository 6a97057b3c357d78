// The mark of everything that the library shows to the outside.
#ifndef ZN_BROWSER_EXPORT_H
#define ZN_BROWSER_EXPORT_H

/// Stands before each public class. The library is compiled with hidden symbols; only what bears this
/// mark can be linked against.
#define ZN_API __attribute__((visibility("default")))

#endif
