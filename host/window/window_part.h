// The parts of a window.
#ifndef ZN_HOST_WINDOW_PART_H
#define ZN_HOST_WINDOW_PART_H

#include "base/host_call.h"
#include "host/znIBrowserWindowPart.h"
#include "window/window_event.h"

#include <array>
#include <memory>
#include <string>

namespace znhost {

class Window;

/// A named frame of a window. Its children, owned by it, are kept in the order of their positions.
class WindowPart final : public znIBrowserWindowPart, public HostObject {
public:
    using Parts = std::vector<std::unique_ptr<WindowPart>>;
    /// A Tcl procedure and the argument that it is called with after the path of the part's frame.
    struct Procedure {
        std::string name;
        std::string argument;

        bool operator==(const Procedure& other) const {
            return name == other.name && argument == other.argument;
        }
    };

    /// @param number  unlike those of the window's other parts; the frame is named after it, as any user's
    ///                text would not do in a Tk path
    WindowPart(Window& window, WindowPart* parent, std::string name, unsigned number);
    ~WindowPart() override;

    const std::string& Name() const { return name_; }
    unsigned Number() const { return number_; }
    Window& Owner() const { return window_; }
    WindowPart* Parent() const { return parent_; }
    Parts& Children() { return children_; }
    /// The children of its parent, itself among them.
    Parts& Siblings() const;
    std::string FramePath() const;
    /// The place among its parent's children.
    int Position() const;
    const Procedure& CreateProcedure() const { return create_; }
    const Procedure& PackProcedure() const { return pack_; }
    void SetCreateProcedure(Procedure procedure) { create_ = std::move(procedure); }
    void SetPackProcedure(Procedure procedure) { pack_ = std::move(procedure); }
    /// Whether its frame has been made, or is about to be, since the window was posted.
    bool HasFrame() const { return hasFrame_; }
    void SetHasFrame(bool has) { hasFrame_ = has; }
    bool IsShown() const { return shown_; }
    void SetShown(bool shown) { shown_ = shown; }
    WindowEvent& Event(EventKind kind) { return *events_[static_cast<std::size_t>(kind)]; }
    /// Whether `part` is this one or lies below it.
    bool Holds(const WindowPart& part) const;
    /// Puts the part at the end of the children of `parent`, or of the window's own; it must not hold
    /// `parent`.
    void MoveBelow(WindowPart* parent);
    /// False when the position is not one of the parent's children.
    bool MoveTo(int position);
    /// Appends the parts: each one, then with `recursive` those below it.
    static void Append(const Parts& parts, bool recursive, std::vector<WindowPart*>& out);

    znIBrowserWindowAccess* GetWindowAccess() override;
    const char* GetName() const override;
    znIBrowserWindowPart* GetParent() override;
    const char* GetFramePath() const override;
    void SetCreateProc(const char* procedure, const char* argument) override;
    void SetPackProc(const char* procedure, const char* argument) override;
    void GetChildParts(std::vector<znIBrowserWindowPart*>& parts, bool recursive) override;
    int GetPosition() const override;

private:
    Window& window_;
    WindowPart* parent_;
    const std::string name_;
    const unsigned number_;
    Parts children_;
    Procedure create_;
    Procedure pack_;
    bool shown_ = true;
    bool hasFrame_ = false;
    std::array<std::unique_ptr<WindowEvent>, eventKinds> events_;
    mutable std::string framePath_; ///< the text last given by `GetFramePath`
};

} // namespace znhost

#endif
