// Windows on a screen.
#ifndef ZN_HOST_WINDOW_DISPLAY_H
#define ZN_HOST_WINDOW_DISPLAY_H

#include "window/popup_input.h"

#include <cstddef>
#include <string>
#include <vector>

namespace znhost {

class Window;

/// Whoever puts posted windows on a screen. Without one, windows exist in the model only.
class WindowDisplay {
public:
    /// The window is posted. Where it names no frame that exists it is given one.
    virtual void Open(Window& window) = 0;
    /// The procedure that creates a part was called, if there is one: now the part's frame must exist.
    virtual void MakePart(const std::string& frame) = 0;
    /// The procedure that packs a part was called, if there is one: now the frame must have its place.
    /// @param behind  the frames of the parts behind it
    virtual void PackPart(Window& window, const std::string& frame,
                          const std::vector<std::string>& behind) = 0;
    /// A part of a posted window is hidden.
    virtual void HidePart(const std::string& frame) = 0;
    /// A part has gone, or stands elsewhere now. Nothing happens when there is no such frame.
    virtual void RemovePart(const std::string& frame) = 0;
    /// The window is not posted any more, or goes, and its parts' frames with it. Nothing happens when it was
    /// not open.
    virtual void Close(Window& window) = 0;
    /// The popup menu that is open in the window is not to be used any more.
    virtual void ClosePopup(Window& window) = 0;
    /// Asks the user of a posted window for values, and waits. Everything may have been deleted when he
    /// answers. The values shown first are those given, and values that `WhyNoValue` has a reason against are
    /// not taken.
    /// @param title  what the values are for
    /// @return false when the user does not want it
    virtual bool AskInput(Window& window, const std::string& title, InputValues& values) = 0;
    /// How many windows stand on the screen.
    virtual std::size_t OpenWindows() const = 0;

protected:
    ~WindowDisplay() = default;
};

} // namespace znhost

#endif
