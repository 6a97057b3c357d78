// The parts of a window, and their frames: whatever happens to a part of a posted window happens to its
// frame.
//
// The frames are made and packed by procedures of scripts, which may do anything: delete the part, move it,
// close the window. So a part is known by its number here, and looked for again after each call.
#include "base/services.h"
#include "window/browser_windows.h"
#include "window/window.h"
#include "window/window_display.h"
#include "window/window_list.h"

#include <algorithm>
#include <utility>

namespace znhost {

// ---- What there is ----

std::vector<WindowPart*> Window::AllParts() const {
    std::vector<WindowPart*> parts;
    WindowPart::Append(parts_, true, parts);
    return parts;
}

WindowPart* Window::FindPart(std::string_view name) {
    const std::vector<WindowPart*> parts = AllParts();
    const auto found =
        std::find_if(parts.begin(), parts.end(), [name](auto* part) { return part->Name() == name; });
    return found == parts.end() ? nullptr : *found;
}

/// The part of that number whose frame is the one of that path; null when it has gone or moved, and when the
/// window is not posted any more.
WindowPart* Window::PostedPart(unsigned number) const {
    if (!posted_ || closed_) return nullptr;
    const std::vector<WindowPart*> parts = AllParts();
    const auto found =
        std::find_if(parts.begin(), parts.end(), [number](auto* part) { return part->Number() == number; });
    return found == parts.end() ? nullptr : *found;
}

WindowPart* Window::PostedPart(unsigned number, const std::string& frame) const {
    WindowPart* const part = PostedPart(number);
    return part && part->FramePath() == frame ? part : nullptr;
}

WindowDisplay* Window::Display() const { return browser_.Windows().Display(); }

// ---- Frames ----

void Window::CallForPart(const WindowPart::Procedure& procedure, const std::string& frame) {
    if (procedure.name.empty()) return;
    std::vector<std::string> words{procedure.name, frame};
    if (!procedure.argument.empty()) words.push_back(procedure.argument);
    Call(words);
}

/// Makes the frame of a part that has none yet, behind that in which it lies.
void Window::MakeFrame(unsigned number) {
    WindowPart* part = PostedPart(number);
    if (part && part->Parent()) MakeFrame(part->Parent()->Number());
    part = PostedPart(number);
    if (!part || part->HasFrame()) return;
    part->SetHasFrame(true); // first: the procedure may lead here again
    const std::string frame = part->FramePath();
    CallForPart(WindowPart::Procedure(part->CreateProcedure()), frame);
    if (WindowDisplay* const display = Display()) {
        PostedPart(number, frame) ? display->MakePart(frame) : display->RemovePart(frame);
    }
}

/// Gives the frame of a part that is shown its place.
void Window::PackFrame(unsigned number) {
    const WindowPart* part = PostedPart(number);
    if (!part || !part->IsShown()) return;
    const std::string frame = part->FramePath();
    const WindowPart::Procedure procedure = part->PackProcedure();
    if (Display()) Display()->MakePart(frame); // a script may have destroyed it
    CallForPart(procedure, frame);
    part = PostedPart(number, frame);
    if (!Display() || !part || !part->IsShown()) return;
    std::vector<std::string> behind;
    const WindowPart::Parts& siblings = part->Siblings();
    for (std::size_t i = static_cast<std::size_t>(part->Position()) + 1; i < siblings.size(); ++i)
        behind.push_back(siblings[i]->FramePath());
    Display()->PackPart(*this, frame, behind);
}

/// Makes the frames of parts, then packs them. A part that a procedure deletes is not asked for any more.
void Window::FillParts(const std::vector<WindowPart*>& parts) {
    std::vector<unsigned> numbers;
    numbers.reserve(parts.size());
    for (WindowPart* const part : parts) {
        part->SetHasFrame(false);
        numbers.push_back(part->Number());
    }
    for (const unsigned number : numbers) MakeFrame(number);
    for (const unsigned number : numbers) PackFrame(number);
}

/// Makes the frame of a part anew, and those that lie in it.
/// @param before  the path of the frame that it has had
void Window::RefillPart(WindowPart& part, const std::string& before) {
    std::vector<WindowPart*> parts{&part};
    WindowPart::Append(part.Children(), true, parts);
    for (WindowPart* const each : parts) each->SetHasFrame(true); // until the old one has gone
    const unsigned number = part.Number();
    if (Display()) Display()->RemovePart(before);
    if (WindowPart* const left = PostedPart(number)) {
        parts = {left};
        WindowPart::Append(left->Children(), true, parts);
        FillParts(parts);
    }
}

/// Packs a part anew, as its place or its procedure is another one.
void Window::RepackPart(const WindowPart& part) {
    const unsigned number = part.Number();
    if (Display() && part.IsShown()) Display()->HidePart(part.FramePath());
    PackFrame(number);
}

// ---- What happens to them ----

void Window::AddPart(const std::string& name, WindowPart* parent) {
    const std::shared_ptr<Window> self = shared_from_this();
    WindowPart::Parts& siblings = parent ? parent->Children() : parts_;
    siblings.push_back(std::make_unique<WindowPart>(*this, parent, name, ++partsMade_));
    if (posted_) FillParts({siblings.back().get()});
}

void Window::DeletePart(WindowPart& part) {
    const std::shared_ptr<Window> self = shared_from_this(); // somebody may wait for the end of a frame
    const std::string frame = part.FramePath();
    WindowPart::Parts& siblings = part.Siblings();
    siblings.erase(siblings.begin() + part.Position());
    if (posted_ && Display()) Display()->RemovePart(frame);
}

void Window::ShowPart(WindowPart& part, bool shown) {
    const std::shared_ptr<Window> self = shared_from_this();
    if (part.IsShown() == shown) return;
    part.SetShown(shown);
    if (!posted_) return;
    if (shown) {
        PackFrame(part.Number());
    } else if (Display()) {
        Display()->HidePart(part.FramePath());
    }
}

void Window::MovePart(WindowPart& part, WindowPart* parent) {
    const std::shared_ptr<Window> self = shared_from_this();
    const std::string before = part.FramePath();
    const bool stays = part.Parent() == parent;
    part.MoveBelow(parent);
    if (!posted_) return;
    stays ? RepackPart(part) : RefillPart(part, before);
}

bool Window::PlacePart(WindowPart& part, int position) {
    const std::shared_ptr<Window> self = shared_from_this();
    const int before = part.Position();
    if (!part.MoveTo(position)) return false;
    if (posted_ && position != before) RepackPart(part);
    return true;
}

void Window::SetCreateProcedure(WindowPart& part, WindowPart::Procedure procedure) {
    const std::shared_ptr<Window> self = shared_from_this();
    if (procedure == part.CreateProcedure()) return;
    part.SetCreateProcedure(std::move(procedure));
    if (posted_ && part.HasFrame()) RefillPart(part, part.FramePath());
}

void Window::SetPackProcedure(WindowPart& part, WindowPart::Procedure procedure) {
    const std::shared_ptr<Window> self = shared_from_this();
    if (procedure == part.PackProcedure()) return;
    part.SetPackProcedure(std::move(procedure));
    if (posted_ && part.HasFrame()) RepackPart(part);
}

// A widget cannot move into another frame: what stands in the old one goes, and is made anew in the new one.
void Window::MoveInto(std::string frame) {
    if (frame == tkFrame_) return;
    const std::shared_ptr<Window> self = shared_from_this();
    if (posted_ && Display()) Display()->Close(*this);
    tkFrame_ = std::move(frame);
    if (!posted_ || closed_) return;
    if (Display()) Display()->Open(*this);
    FillParts(AllParts());
}

} // namespace znhost
