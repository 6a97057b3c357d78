// A window: its life, its parts and listeners, and the scripts that it runs.
#include "window/window.h"

#include "base/services.h"
#include "base/tcl_values.h"
#include "rows/row_finder.h"
#include "window/browser_windows.h"
#include "window/window_display.h"

#include <algorithm>
#include <new>
#include <utility>

namespace znhost {

Window::Window(BrowserWindows& browser, View& view, std::string name)
    : HostObject(browser.Log()), browser_(browser), view_(&view), name_(std::move(name)), rows_(view) {
    findRequests_.Add(std::make_shared<FindRequest>(log_, *this, FindRequest::defaultName));
    view.AddObserver(*this);
}

Window::~Window() { Close(); }

void Window::Close() {
    if (closed_) return;
    closed_ = true;
    if (WindowDisplay* const display = Display()) display->Close(*this);
    popup_.Close();
    finder_.reset();
    if (view_) view_->RemoveObserver(*this);
    view_ = nullptr;
    rows_.OnViewDeleted();
    parts_.clear();
    listeners_.clear();
}

void Window::OnViewDeleted() noexcept {
    finder_.reset();
    view_ = nullptr;
    rows_.OnViewDeleted();
}

/// What is expanded before a filter hides it. Without memory it is not kept: then the rows stay collapsed.
void Window::KeepExpanded() {
    expanded_.clear();
    try {
        expanded_ = rows_.WereExpanded();
    } catch (const std::bad_alloc&) {
        // A change of the view must be noted all the same.
    }
}

namespace {

/// Those of the rows that are no items, nor lie in any.
std::vector<KeptRow> ContainersOf(const std::vector<KeptRow>& rows) {
    std::vector<KeptRow> containers;
    std::vector<std::size_t> numbers{0}; // of each of `rows`; none for what is left out
    constexpr auto none = static_cast<std::size_t>(-1);
    for (KeptRow row : rows) {
        row.above = numbers[row.above];
        const bool stays = row.kind != RowKind::Item && row.above != none;
        if (stays) containers.push_back(row);
        numbers.push_back(stays ? containers.size() : none);
    }
    return containers;
}

} // namespace

// Rows that a filter hides are collapsed. When it is gone, they are as they were; and when it lets others
// through, the lists and folders are that have something to show again.
void Window::OnViewChanged(unsigned changes) {
    const std::shared_ptr<Window> self = shared_from_this(); // listing the rows may run scripts
    const bool filtered = filters_;
    filters_ = view_ && view_->IsFiltered();
    if (filters_ && !filtered) KeepExpanded();
    rows_.OnViewChanged(changes);
    if (!filters_ && filtered) rows_.ExpandAlso(std::exchange(expanded_, {}));
    if (filters_ && filtered && (changes & VIEW_FILTER)) rows_.ExpandAlso(ContainersOf(expanded_));
}

void Window::OnExpanded(FreeFolder& folder, znIBrowserDataSourceSimple* list, bool expanded, bool recursive) {
    const std::shared_ptr<Window> self = shared_from_this();
    rows_.SetExpanded(folder, list, expanded, recursive);
}

void Window::SetStripes(bool on) {
    stripes_ = on;
    rows_.Tell(RowChange::AllCells);
}

void Window::SetBackground(std::string colour) {
    background_ = std::move(colour);
    rows_.Tell(RowChange::AllCells);
}

// ---- Scripts ----

/// Calls a Tcl procedure; an error goes to the interpreter's background error handler.
void Window::Call(const std::vector<std::string>& words) { browser_.Services().RunProcedure(words); }

/// An event of the window: each part's callbacks, then the listeners. What is to be done is noted before
/// anything is done, and ends with the window.
void Window::Fire(EventKind kind) {
    struct Reaction {
        std::string procedure;
        std::shared_ptr<Window> target;
        ZNBROWSER_CALLBACK_OPERATION operation;
    };
    std::vector<Reaction> reactions;
    for (WindowPart* const part : AllParts()) {
        for (const auto& callback : part->Event(kind).Callbacks()) {
            Window* const target = callback->ActionWindow();
            if (!callback->IsWindowOperation()) {
                reactions.push_back({callback->Name(), nullptr, ZNBROWSER_CALLBACK_UNDEFINED});
            } else if (target) {
                reactions.push_back({"", target->shared_from_this(), callback->Operation()});
            }
        }
    }
    for (const std::string& listener : listeners_)
        reactions.push_back({listener, nullptr, ZNBROWSER_CALLBACK_UNDEFINED});
    for (const Reaction& reaction : reactions) {
        if (closed_) return;
        if (reaction.target) {
            RunWindowOperation(*reaction.target, reaction.operation);
        } else {
            Call({reaction.procedure, name_, EventName(kind)});
        }
    }
}

void Window::RunWindowOperation(Window& target, ZNBROWSER_CALLBACK_OPERATION operation) {
    if (!view_ || operation == ZNBROWSER_CALLBACK_UNDEFINED) return;
    znBrowserDataItems items;
    view_->Selected().AppendTo(items);
    target.rows_.SelectRelated(items, operation == ZNBROWSER_CALLBACK_TREE_AREA_SELECT_PARENT_ITEMS);
}

void Window::SetOpen(Aid aid, bool open) {
    open_[static_cast<std::size_t>(aid)] = open;
    rows_.Tell(RowChange::Refreshed);
}

void Window::Post(bool posted) {
    if (posted == posted_) return;
    open_ = {};
    const std::shared_ptr<Window> self = shared_from_this();
    WindowDisplay* const display = Display();
    posted_ = posted;
    if (display) posted ? display->Open(*this) : display->Close(*this);
    if (posted) FillParts(AllParts());
    Fire(posted ? EventKind::Posted : EventKind::Unposted);
}

/// Null when the part is not one of this window.
WindowPart* Window::Own(znIBrowserWindowPart* part) const {
    WindowPart* const own = static_cast<WindowPart*>(part);
    return own && &own->Owner() == this ? own : nullptr;
}

WindowEvent* Window::Own(znIBrowserEvent* event) const {
    WindowEvent* const own = static_cast<WindowEvent*>(event);
    return own && &own->Part().Owner() == this ? own : nullptr;
}

// ---- Finding ----

/// What the criteria find. Null when a script that gave a value closed the window or deleted its view.
std::shared_ptr<RowFinder> Window::Search(std::vector<FindCriterion> criteria) {
    std::shared_ptr<RowFinder> finder = finder_;
    const bool known = finder && finder->IsUpToDate(criteria);
    if (!known && view_) {
        const std::shared_ptr<RowFinder> earlier = finder && finder->IsFor(criteria) ? finder : nullptr;
        finder = std::make_shared<RowFinder>(*view_, rows_, std::move(criteria));
        if (earlier) finder->GoOnFrom(*earlier);
    }
    finder_ = view_ ? finder : nullptr;
    return finder_;
}

bool Window::Perform(FindRequest& request) {
    const std::shared_ptr<Window> self = shared_from_this();
    if (!view_) return Fail("The window \"" + name_ + "\" shows no view");
    const ZNBROWSER_FIND_REQUEST_TYPE type = request.Type();
    if (type == ZNBROWSER_FIND_REQUEST_UNKNOWN)
        return Fail("The find request \"" + request.Name() + "\" has no type");
    std::vector<FindCriterion> criteria;
    for (const znBrowserProperty& property : request.Properties()) {
        for (const znBrowserCriterion* const criterion : property.criteria) {
            criteria.push_back({property.name.Str(), *criterion});
        }
    }
    const std::shared_ptr<RowFinder> finder = Search(std::move(criteria));
    if (!finder) return Fail("The window \"" + name_ + "\" was closed while it was searched");
    if (!finder->GetError().empty()) return Fail(finder->GetError());
    if (finder->Size() == 0) return Fail("Nothing is found");
    const bool all = type == ZNBROWSER_FIND_REQUEST_ALL;
    const std::size_t shown = all ? 0 : finder->Next(type == ZNBROWSER_FIND_REQUEST_NEXT, *view_);
    znBrowserDataItems found;
    const auto add = [&found](const znBrowserDataItem& item) { found.Append(item.source, item.row); };
    if (all && !rows_.IsSingle()) {
        for (std::size_t hit = 0; hit < finder->Size(); ++hit) add(finder->Item(hit));
    } else {
        add(finder->Item(shown));
    }
    view_->Selected().Replace(found); // first: expanding may run scripts, which may delete what was found
    rows_.Reveal(finder->PathTo(shown));
    Fire(EventKind::SelectionChanged);
    return true;
}

} // namespace znhost
