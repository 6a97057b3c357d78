// What the collector keeps of one view.
#ifndef ZN_HOST_VIEW_COLLECTOR_H
#define ZN_HOST_VIEW_COLLECTOR_H

#include "host/znBrowserDataItems.h"
#include "model/collector_steps.h"
#include "model/row_names.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace znhost {

class ReadTrouble;

/// A collection that was kept under a name.
struct NamedCollection {
    std::string name;
    ItemSets items;
};

/// The collection, the display state, the steps and the named collections of a view. It knows nothing of
/// windows: whoever changes it takes down how they look, and brings that back.
class ViewCollector {
public:
    const ItemSets& Collected() const { return now_.collected; }
    const DisplayState& Display() const { return now_.display; }
    const CollectorState& Now() const { return now_; }
    StepStack& Done() { return done_; }
    StepStack& Undone() { return undone_; }
    /// The numbers of rows in looks.
    RowNames& Names() { return names_; }

    // Changing. What is `Prepare`d takes memory, and may fail; to `Commit` it takes none.
    /// A step that is to come, and what comes of it.
    struct Prepared {
        CollectorState state;
        CollectorStep step;
        CollectorLook look;
    };
    /// The step from that state, in which the windows looked like that, to that other one; none when nothing
    /// changes.
    std::optional<Prepared> Prepare(std::string name, const CollectorState& from, CollectorState to,
                                    CollectorLook look);
    void Commit(Prepared prepared) noexcept;
    /// Replaces the state. It is no step, but part of one.
    void Replace(CollectorState state) noexcept { now_ = std::move(state); }
    /// Takes the top step of one stack to the other one, which keeps `look`, that of the windows now.
    void Travel(StepStack& from, StepStack& to, CollectorLook look);
    void ClearSteps() noexcept;
    /// Nothing is collected any more, and no step can be taken back; the display state and the named
    /// collections stay.
    void Reset() noexcept;

    /// How all was when an action began.
    struct Before {
        CollectorState state;
        CollectorLook look;
    };
    /// Of the actions that run, by how deep they lie in each other.
    std::map<int, Before>& Befores() { return befores_; }
    /// Counts how often what does not exist any more was looked for.
    std::size_t Looks() const { return looks_; }

    // Named collections.
    const std::vector<NamedCollection>& Named() const { return named_; }
    NamedCollection* FindNamed(std::string_view name);
    const std::string& CurrentNamed() const { return currentNamed_; }
    void SetCurrentNamed(std::string name) noexcept { currentNamed_ = std::move(name); }
    /// A collection of that name, made when there is none.
    void SetNamed(const std::string& name, ItemSets items);
    void DeleteNamed(std::string_view name);

    // The item under the pointer.
    const znBrowserDataItem& Preselected() const { return preselected_; }
    void SetPreselected(const znBrowserDataItem& item) { preselected_ = item; }

    // Lets go of what does not exist any more.
    void Forget(const ItemSets::Source* source) noexcept;
    void ForgetWindow(const ViewObserver* window) noexcept;
    /// Lets go of items that have vanished, and takes note of those that are new, in one look at each source.
    /// What cannot be read stays as it is. Answers whether something changed that windows show.
    bool LookAgain(const ReadTrouble& trouble, std::uint64_t since);

private:
    void ForgetRows(ItemSets::Source* source, const RowSet& rows);
    bool ForgetMissing(std::uint64_t since);
    bool AddNewRows(const ReadTrouble& trouble);

    CollectorState now_;
    StepStack done_;
    StepStack undone_;
    std::map<int, Before> befores_;
    std::size_t looks_ = 0;
    std::vector<NamedCollection> named_;
    std::string currentNamed_;
    znBrowserDataItem preselected_;
    RowNames names_;
};

} // namespace znhost

#endif
