// What the manager tells about itself.
#ifndef ZN_I_BROWSER_INFO_H
#define ZN_I_BROWSER_INFO_H

/// Information about the scripting layer, created and owned by the manager: the one object here that a host
/// does not implement. Copies of the manager share it.
class znIBrowserInfo {
public:
    virtual ~znIBrowserInfo() = default;
    /// The version of the command language, "1.0"; never null.
    virtual const char* GetVersion() const = 0;
};

#endif
