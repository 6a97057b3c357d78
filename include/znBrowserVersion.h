// The version of the library that these headers belong to.
#ifndef ZN_BROWSER_VERSION_H
#define ZN_BROWSER_VERSION_H

/// While the first number is 0, a new second number may change the interfaces; a new third one never does.
#define ZN_BROWSER_VERSION_MAJOR 0
#define ZN_BROWSER_VERSION_MINOR 2
#define ZN_BROWSER_VERSION_PATCH 0
/// The same as a text.
#define ZN_BROWSER_VERSION "0.2.0"
/// One number to compare with: `#if ZN_BROWSER_VERSION_NUMBER >= ZN_BROWSER_VERSION_OF(0, 2, 0)`.
#define ZN_BROWSER_VERSION_NUMBER                                                                            \
    ZN_BROWSER_VERSION_OF(ZN_BROWSER_VERSION_MAJOR, ZN_BROWSER_VERSION_MINOR, ZN_BROWSER_VERSION_PATCH)
#define ZN_BROWSER_VERSION_OF(major, minor, patch) ((major)*10000 + (minor)*100 + (patch))

#endif
