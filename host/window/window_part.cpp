#include "window/window_part.h"

#include "window/window.h"

#include <algorithm>

namespace znhost {

namespace {

std::string Text(const char* text) { return text ? text : ""; }

} // namespace

WindowPart::WindowPart(Window& window, WindowPart* parent, std::string name, unsigned number)
    : HostObject(window.Log()), window_(window), parent_(parent), name_(std::move(name)), number_(number) {
    for (std::size_t i = 0; i < eventKinds; ++i) {
        events_[i] = std::make_unique<WindowEvent>(*this, static_cast<EventKind>(i));
    }
}

WindowPart::~WindowPart() = default;

std::string WindowPart::FramePath() const {
    const std::string above = parent_ ? parent_->FramePath() : window_.TkFrame();
    return (above == "." ? "" : above) + ".part" + std::to_string(number_);
}

WindowPart::Parts& WindowPart::Siblings() const { return parent_ ? parent_->children_ : window_.Parts(); }

int WindowPart::Position() const {
    const Parts& siblings = Siblings();
    const auto self =
        std::find_if(siblings.begin(), siblings.end(), [this](auto& part) { return part.get() == this; });
    return static_cast<int>(self - siblings.begin());
}

bool WindowPart::Holds(const WindowPart& part) const {
    for (const WindowPart* above = &part; above; above = above->parent_) {
        if (above == this) return true;
    }
    return false;
}

void WindowPart::MoveBelow(WindowPart* parent) {
    Parts& from = Siblings();
    Parts& to = parent ? parent->children_ : window_.Parts();
    to.emplace_back(); // what may fail comes first
    const auto self = from.begin() + Position();
    to.back() = std::move(*self);
    from.erase(self);
    parent_ = parent;
}

bool WindowPart::MoveTo(int position) {
    Parts& siblings = Siblings();
    if (position < 0 || static_cast<std::size_t>(position) >= siblings.size()) return false;
    const auto from = siblings.begin() + Position();
    const auto to = siblings.begin() + position;
    if (from < to) {
        std::rotate(from, from + 1, to + 1);
    } else {
        std::rotate(to, from, from + 1);
    }
    return true;
}

void WindowPart::Append(const Parts& parts, bool recursive, std::vector<WindowPart*>& out) {
    for (const std::unique_ptr<WindowPart>& part : parts) {
        out.push_back(part.get());
        if (recursive) Append(part->children_, true, out);
    }
}

znIBrowserWindowAccess* WindowPart::GetWindowAccess() {
    if (Refused("znIBrowserWindowPart::GetWindowAccess")) return nullptr;
    return &window_;
}

const char* WindowPart::GetName() const {
    if (Refused("znIBrowserWindowPart::GetName")) return nullptr;
    return name_.c_str();
}

znIBrowserWindowPart* WindowPart::GetParent() {
    if (Refused("znIBrowserWindowPart::GetParent")) return nullptr;
    return parent_;
}

const char* WindowPart::GetFramePath() const {
    if (Refused("znIBrowserWindowPart::GetFramePath")) return nullptr;
    framePath_ = FramePath();
    return framePath_.c_str();
}

void WindowPart::SetCreateProc(const char* procedure, const char* argument) {
    if (Refused("znIBrowserWindowPart::SetCreateProc", procedure, argument)) return;
    window_.SetCreateProcedure(*this, {Text(procedure), Text(argument)});
}

void WindowPart::SetPackProc(const char* procedure, const char* argument) {
    if (Refused("znIBrowserWindowPart::SetPackProc", procedure, argument)) return;
    window_.SetPackProcedure(*this, {Text(procedure), Text(argument)});
}

void WindowPart::GetChildParts(std::vector<znIBrowserWindowPart*>& parts, bool recursive) {
    parts.clear();
    if (Refused("znIBrowserWindowPart::GetChildParts", recursive)) return;
    std::vector<WindowPart*> found;
    Append(children_, recursive, found);
    parts.assign(found.begin(), found.end());
}

int WindowPart::GetPosition() const {
    if (Refused("znIBrowserWindowPart::GetPosition")) return 0;
    return Position();
}

} // namespace znhost
