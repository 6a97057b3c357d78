// The steps of a view's collector: what each changed, and how the windows looked before it.
#ifndef ZN_HOST_COLLECTOR_STEPS_H
#define ZN_HOST_COLLECTOR_STEPS_H

#include "model/display_state.h"
#include "model/item_sets.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace znhost {

class ViewObserver;

/// What steps change: the collection and the display state of a view.
struct CollectorState {
    ItemSets collected;
    DisplayState display;
};

/// The difference between two such states. Taken twice it changes nothing: it leads either way.
struct CollectorChange {
    ItemSets collected; ///< the items that joined or left the collection
    ItemSets displayed; ///< the rows that joined or left the sets of the display state
    /// The sources whose set is of the other sort on the other side, with the mark that it has there.
    std::map<ItemSets::Source*, RowMark> turned;

    bool IsEmpty() const { return collected.IsEmpty() && displayed.IsEmpty() && turned.empty(); }
    static CollectorChange Between(const CollectorState& from, const CollectorState& to);
    /// What `state` is on the other side of the change. The marks change sides.
    CollectorState Apply(const CollectorState& state);
};

/// How the windows of a view look, in sets: what is expanded, selected and scrolled. The difference between
/// two of them is one, too.
struct CollectorLook {
    /// Rows by the numbers that they have in a table of the view.
    struct Window {
        RowSet expanded;
        RowSet selected; ///< trees and lists
        std::uint32_t scroll = 0;
        bool known = false; ///< the window was there
    };

    ItemSets selected;
    RowSet folders; ///< the selected ones, by the same numbers
    std::map<const ViewObserver*, Window> windows;

    /// Makes this look the difference to the other one; or, when it is that difference, the look itself.
    void Toggle(const CollectorLook& other);
};

/// One step.
struct CollectorStep {
    std::string name;
    CollectorChange change;
    /// The look before it, as the difference to the look of the step below it on the stack.
    CollectorLook look;
};

/// Steps, the last one on top, each with the look to which the windows return when it is taken off. Only the
/// look of the top step is held as a whole: a step costs what changed.
class StepStack {
public:
    bool IsEmpty() const { return steps_.empty(); }
    std::size_t Size() const { return steps_.size(); }
    const std::vector<CollectorStep>& Steps() const { return steps_; }
    CollectorStep& Top() { return steps_.back(); }
    const CollectorLook& TopLook() const { return topLook_; }

    /// Makes room for one more: then `Push` needs no memory. @param look  of the step to come; receives what
    /// that keeps of it
    CollectorLook Prepare(CollectorLook& look);
    void Push(CollectorStep step, CollectorLook topLook) noexcept;
    /// The look of the step below the top one.
    CollectorLook LookBelow() const;
    CollectorStep Pop(CollectorLook lookBelow) noexcept;
    void Clear() noexcept;

    // Lets go of what does not exist any more.
    void Forget(const ItemSets::Source* source) noexcept;
    void ForgetWindow(const ViewObserver* window) noexcept;
    void Forget(ItemSets::Source* source, const RowSet& rows);
    /// A step as it will be.
    struct Grown {
        CollectorStep* step = nullptr;
        ItemSets displayed;
        void Commit() noexcept {
            if (step) step->change.displayed = std::move(displayed);
        }
    };
    /// Rows of a source have come: the set of the display state has them on this side of the last step that
    /// turned it.
    Grown AddNew(ItemSets::Source* source, const RowSet& rows);
    /// Adds the rows of each source that the steps know of to `rows`.
    void AddRowsTo(std::map<ItemSets::Source*, RowSet>& rows) const;

private:
    void ForEachLook(const std::function<void(CollectorLook&)>& visit);

    std::vector<CollectorStep> steps_;
    CollectorLook topLook_;
};

} // namespace znhost

#endif
