// A part of a window.
#ifndef ZN_I_BROWSER_WINDOW_PART_H
#define ZN_I_BROWSER_WINDOW_PART_H

#include <vector>

class znIBrowserWindowAccess;

/// A named frame of a window. Parts form a tree under the window's main frame (the top level).
class znIBrowserWindowPart {
public:
    /// The window that the part belongs to.
    virtual znIBrowserWindowAccess* GetWindowAccess() = 0;
    virtual const char* GetName() const = 0;
    /// The parent part; null for a part directly under the top level.
    virtual znIBrowserWindowPart* GetParent() = 0;
    virtual const char* GetFramePath() const = 0;
    /// The Tcl procedure that fills the part's frame, and an argument passed through unchanged.
    virtual bool SetCreateProc(const char* procedure, const char* argument) = 0;
    /// The Tcl procedure that packs the part's frame, and an argument passed through unchanged.
    virtual bool SetPackProc(const char* procedure, const char* argument) = 0;
    /// The parts under this one: its children or, with `recursive`, all.
    virtual void GetChildParts(std::vector<znIBrowserWindowPart*>& parts, bool recursive) = 0;
    virtual int GetPosition() const = 0;

protected:
    ~znIBrowserWindowPart() = default;
};

#endif
