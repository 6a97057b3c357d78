// A part of a window.
#ifndef ZN_I_BROWSER_WINDOW_PART_H
#define ZN_I_BROWSER_WINDOW_PART_H

#include <vector>

class znIBrowserWindowAccess;

/// A named frame of a window. Parts form a tree under the window's main frame (the top level), which is no
/// part itself: where the layer has no current part, it means that one.
class znIBrowserWindowPart {
public:
    /// The window that the part belongs to.
    virtual znIBrowserWindowAccess* GetWindowAccess() = 0;
    /// The name, unique in the window; null ends a script's list of names.
    virtual const char* GetName() const = 0;
    /// The parent part; null for a part directly under the top level.
    virtual znIBrowserWindowPart* GetParent() = 0;
    /// The path of the part's Tk frame. The frame itself may not exist yet.
    virtual const char* GetFramePath() const = 0;
    /// The Tcl procedure that fills the part's frame, and an argument passed through unchanged; "" when the
    /// script gave none. The host calls it when the window is posted: the embedded host with the frame's path
    /// and, unless it is "", the argument.
    virtual void SetCreateProc(const char* procedure, const char* argument) = 0;
    /// The Tcl procedure that packs the part's frame, and its argument, in the same way. Without one the host
    /// packs parts in rows.
    virtual void SetPackProc(const char* procedure, const char* argument) = 0;
    /// The parts under this one: its children or, with `recursive`, all.
    virtual void GetChildParts(std::vector<znIBrowserWindowPart*>& parts, bool recursive) = 0;
    /// The place among the parts of the same parent, counted as in
    /// `znIBrowserWindowAccess::SetWindowPartPosition`.
    virtual int GetPosition() const = 0;

protected:
    ~znIBrowserWindowPart() = default;
};

#endif
