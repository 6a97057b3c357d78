// The rows of one window: what is expanded, and what the rows show.
#ifndef ZN_HOST_ROW_MODEL_H
#define ZN_HOST_ROW_MODEL_H

#include "base/host_call.h"
#include "base/read_trouble.h"
#include "rows/row_cells.h"
#include "rows/row_changes.h"
#include "rows/row_plan.h"
#include "rows/row_tree.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

struct znBrowserDataItem;
struct znBrowserDataItems;
class znIBrowserDataSource;

namespace znhost {

class HostServices;
class FreeFolder;
class View;
struct WantedRow;

/// What a row shows beside its cells.
struct RowLook {
    std::uint32_t index = 0;
    std::int64_t parent = -1; ///< the Tk index of the row above it, -1 at the top
    std::uint32_t depth = 0;
    RowKind kind = RowKind::Item;
    std::string text;
    bool expanded = false;
    bool selected = false;
    bool collected = false;
    bool hasRows = false; ///< it can be expanded
    bool bold = false;
    bool italic = false;
    std::string icon;        ///< a key of the default images
    std::string source;      ///< an item: the name of its data source
    std::int64_t below = -1; ///< how many rows lie directly below, where that was asked for
    std::vector<RowCell> cells;
};

/// One step on the way down to an item: the container, or the block and the item in it.
struct RowStep {
    RowContent content;
    std::int64_t row = 0;
};

/// An expanded row by what it is, so that another process finds it again.
struct KeptRow {
    std::size_t above = 0; ///< the row in which it lies: its place in the list, counted from 1; 0: the top
    RowKind kind = RowKind::Item;
    std::string name;     ///< of the folder, or of the data source
    std::int64_t row = 0; ///< an item's number
};

/// The rows that a window shows of its view, top to bottom. They are made when they are needed: what is not
/// expanded costs nothing. Changes of the view are taken over with the next question asked.
///
/// Values may come from scripts, and a script may delete anything. So while a question is being answered
/// nothing is taken apart: what goes meanwhile is let go of at the end, and the work in hand is given up. A
/// script may ask for the rows itself; while they are being listed there are none. When memory runs out in
/// the middle of a change the rows are collapsed, and listed again with the next question.
class RowModel {
public:
    explicit RowModel(View& view);
    RowModel(const RowModel&) = delete;
    RowModel& operator=(const RowModel&) = delete;

    // What the view tells. To take note of it needs no memory.
    void OnViewChanged(unsigned changes) noexcept;
    void OnSourceDeleted(znIBrowserDataSource& source) noexcept;
    void OnFolderDeleted(FreeFolder& folder) noexcept;
    /// The view goes: no rows are left.
    void OnViewDeleted() noexcept;

    // The rows.
    std::int64_t Count();
    /// How the rows from position `first` on look, at most `count` of them.
    /// @param countsBelow  asks for `RowLook::below`, too, which is as `CountBelow` tells
    std::vector<RowLook> Read(std::int64_t first, std::int64_t count, bool countsBelow = false);
    /// Looks from position `first` on for a row whose text begins so, letter case aside, and no longer than
    /// that.
    struct FoundBeginning {
        std::int64_t position = -1; ///< where it is
        std::int64_t next = -1;     ///< where to go on looking; -1: there is no more
    };
    FoundBeginning FindBeginning(const std::string& beginning, std::int64_t first,
                                 std::chrono::milliseconds time);
    /// The way to a row by names, from the top. Behind a name stands "#2" when the row is the second one of
    /// that name there, and "#1" when the name itself ends in such a number. Empty for an unknown index.
    std::vector<std::string> PathOf(std::uint32_t index);
    /// The row at the end of such a way; 0, and the place of the step that leads nowhere, when there is none.
    std::uint32_t FindPath(const std::vector<std::string>& path, std::size_t& wrong);
    /// The same, row by row as long as `take` is true: for more rows than are to be held at once.
    void ReadEach(std::int64_t first, std::int64_t count, const std::function<bool(const RowLook&)>& take);
    /// How the rows directly below that one look (0: at the top), from the `first`; for a tree filled by
    /// branch.
    std::vector<RowLook> ReadBelow(std::uint32_t index, std::int64_t first, std::int64_t count);
    bool Has(std::uint32_t index);
    bool HasAll(const std::vector<std::uint32_t>& indices);
    /// How many rows lie directly below, or would when it is expanded; -1 for an unknown index, and when that
    /// cannot be found out in a moment.
    std::int64_t CountBelow(std::uint32_t index);
    /// The row's position from the top; -1 for an unknown index.
    std::int64_t PositionOf(std::uint32_t index);
    /// How many items, folders, trees and lists are selected, visible or not.
    std::int64_t CountSelected();
    /// The indices of the selected rows that are visible, top to bottom.
    std::vector<std::uint32_t> SelectedRows();
    /// The Tk indices of at most `count` rows from position `first` on.
    std::vector<std::uint32_t> IndicesFrom(std::int64_t first, std::int64_t count);
    /// False when the row is not an item's.
    bool GetItem(std::uint32_t index, znBrowserDataItem& item);
    /// What stands there: what the row itself stands for; an item's block. Null when the index is unknown.
    const RowContent* ContentAt(std::uint32_t index);
    /// The view property behind an element of an item's cell; null when there is none.
    ViewProperty* PropertyOf(std::uint32_t index, const Column& column, const std::string& element);

    // Expanding. False when nothing can be expanded or collapsed there.
    bool Expand(std::uint32_t index);
    bool Collapse(std::uint32_t index);
    /// Everything; an item that lies below itself is expanded only once on the way down.
    void ExpandAll();
    /// A row with all that lies below.
    bool ExpandAllBelow(std::uint32_t index);
    void CollapseAll();
    /// The selected rows, with `ExpandSelected` each with all that lies below.
    void ExpandSelected();
    void CollapseSelected();
    /// Whatever holds no selected row.
    void CollapseButSelected();
    /// A folder, or one list in it, if it has a row; with `recursive` what lies below it too.
    void SetExpanded(const FreeFolder& folder, const znIBrowserDataSourceSimple* list, bool expanded,
                     bool recursive);
    /// Makes an item visible by expanding what it lies in: the contents and rows on the way to it, from the
    /// top.
    bool Reveal(const std::vector<RowStep>& path);

    /// The expanded rows, each before those below it.
    std::vector<KeptRow> Expanded();
    /// Those that were when a question was answered last: what changed since is not taken over.
    std::vector<KeptRow> WereExpanded();
    /// Expands exactly these rows. Answers the places in `rows` of those that do not exist (any more); what
    /// would lie below them is not mentioned.
    std::vector<std::size_t> SetExpanded(const std::vector<KeptRow>& rows);
    /// Expands these rows, as far as they exist, and leaves expanded what is.
    void ExpandAlso(const std::vector<KeptRow>& rows);
    /// The trees and lists that are selected, each in the row `above` among those of `Expanded`.
    std::vector<KeptRow> SelectedContainers();
    /// With the next question, or as soon after it as there is memory, exactly `expanded` is expanded, and
    /// exactly those of the trees and lists are selected, as far as they exist.
    void BringBack(std::vector<KeptRow> expanded, std::vector<KeptRow> selected) noexcept;

    /// Whether the items of the lists at the top stand there themselves, without a row for each list.
    void SetFlat(bool flat);
    bool IsFlat() const { return flat_; }

    // Selection: of items and folders it is the view's; that of trees and lists is the window's own.
    enum class Selecting { Add, Remove, Replace };
    /// False, and nothing changes, when an index is unknown.
    bool Select(Selecting how, const std::vector<std::uint32_t>& indices);
    /// Every row that is visible. False, and nothing changes, when the work is given up, or one row at most
    /// may be selected.
    bool SelectAll();
    /// With one row at most selected, selecting another deselects it.
    void SetSingle(bool single);
    bool IsSingle() const { return single_; }

    /// Selects exactly what lies directly above or below these items, along any reference that the view
    /// shows.
    void SelectRelated(const znBrowserDataItems& items, bool parents);

    /// Moves items below another item. False, with the reason in `error`, when no reference allows it
    /// or the database refuses.
    bool Drop(std::uint32_t target, const std::vector<std::uint32_t>& indices, std::string& error);

    /// The position of the first visible row of a collected item; -1 for none. Who draws the rows scrolls
    /// there.
    std::int64_t ShowCollected();

    // Observers are not owned.
    void AddObserver(RowObserver& observer) { observers_.push_back(&observer); }
    void RemoveObserver(const RowObserver& observer);
    /// Notes a change; the observers hear of it at once, or when the question in hand is answered.
    void Tell(RowChange::Kind kind, std::uint32_t index = RowChange::root) noexcept;

    /// While one lives a question is being answered: no row is freed, and calls between host objects are not
    /// recorded. The outermost one first brings the rows up to date.
    class Answering {
    public:
        explicit Answering(RowModel& model);
        ~Answering();
        Answering(const Answering&) = delete;
        Answering& operator=(const Answering&) = delete;

        RowModel& Model() const { return model_; }

    private:
        RowModel& model_;
        CallLog::Quiet quiet_;
    };
    // Filtering takes a moment: what a filter will leave is found before, a little at a time.
    /// Begins to look for what that filter will leave.
    void BeginSearch(const TextFilter& filter);
    /// Goes on with it. What was found so far is shown when the view has that filter already.
    SearchProgress GoOnSearching(std::chrono::milliseconds time);
    /// How many items the filter lets through because of what they are themselves, collapsed ones too.
    std::int64_t CountMatches();
    /// The index of the first selected row that is visible; 0 for none.
    std::uint32_t FirstSelected();

    /// Whether the work in hand must be given up, because something that it may hold was deleted.
    bool IsStopped() const { return stopped_; }
    const RowPlan& Plan() const { return plan_; }
    CallLog& Log() const { return log_; }
    /// The root folder.
    const RowContent& Top() { return tree_.Root().content; }
    /// Counts the changes of rows and cells: what was found at another number may be out of date.
    std::uint64_t Revision() const { return revision_; }

    // What could not be read. What was shown before stays shown, and is read again with the next question as
    // soon as others allow it; where nothing was shown a row says why.
    /// The last reason since this was asked; "" for none.
    std::string TakeTrouble() { return std::exchange(trouble_, {}); }
    /// Whether the number of rows of something shown is not known, because there was no time to count them.
    bool IsUncounted() const { return !uncounted_.empty(); }
    /// Goes on counting: the rows of one of those, in more time than it was given before. What takes longer
    /// than seconds is given up.
    void CountMore();

private:
    /// A change of the tree. It cannot begin while a question is being answered: a script asked for it then.
    class Change {
    public:
        explicit Change(RowModel& model) : begins_(!model.answering_), answering_(model) {}
        explicit operator bool() const { return begins_ && answering_.Model().IsReady(); }

    private:
        bool begins_;
        Answering answering_;
    };

    bool GoesOn() const;
    void EndAnswer() noexcept;
    void LetGo() noexcept;
    void ForgetCounts() noexcept;
    void TakeOver();
    void Note(const RowChange& change) noexcept;
    void Deliver() noexcept;
    void DeliverToAll(const std::vector<RowChange>& changes);
    /// Whether the rows can be looked at: they are all there, and so is what they show.
    bool IsReady() const { return view_ && !stopped_ && !tree_.IsChanging() && !tree_.IsBroken(); }
    /// No row when the index is unknown.
    Row Find(std::uint32_t index) const { return IsReady() ? tree_.Find(index) : Row(); }
    HostServices& Services() const;
    bool NoteTrouble(const ReadTrouble::Watch& watch);
    /// Items of a block that are looked at together.
    struct LookedAt {
        const RowBlock* block;
        std::vector<std::size_t> places;    ///< among all rows that are looked at
        std::vector<std::int64_t> numbers;  ///< none yet: their page is still to be read
        std::optional<std::int64_t> toCome; ///< what stands for those when it is asked for
        bool asked;                         ///< along with others
    };
    std::vector<RowLook> LooksOf(const std::vector<Row>& rows, bool countsBelow = false);
    static std::vector<LookedAt> ItemsOf(const std::vector<Row>& rows);
    static void ReadNumbers(LookedAt& items, const std::vector<Row>& rows);
    void AskAlong(std::span<LookedAt> all, const std::vector<Row>& rows, bool countsBelow);
    std::vector<RowLook> LooksOfContainers(const std::vector<Row>& rows);
    void NotePlace(const Row& row, RowLook& look) const;
    void CountBelow(const std::vector<LookedAt>& all, std::vector<RowLook>& looks);
    void KeepLooks(const std::vector<RowLook>& looks);
    static std::optional<std::int64_t> CountIn(const RowNode& node);
    std::optional<std::int64_t> CountOf(const Row& container);
    bool MayHaveRows(const Row& container);
    bool IsWaiting(const RowContent& container) const;
    bool IsTooLong(const ReadTrouble::Watch& watch, const RowContent& container);
    void LookAtItems(const LookedAt& looked, std::vector<RowLook>& looks);
    RowLook LookOf(const Row& container);
    std::string CaptionOf(const RowContent& container) const;
    std::vector<std::string> TextsOf(const std::vector<Row>& rows);
    std::string StepTo(const Row& row);
    Row FindStep(RowNode& node, const std::string& name, std::size_t number);
    std::vector<std::int64_t> Named(const RowContent& block, const std::string& name) const;
    bool HasRows(const Row& row) const;
    void LookFor(const ItemSets& items);
    bool IsSelected(const Row& row) const;
    bool IsCollected(const Row& row) const;
    std::vector<std::uint32_t> SelectedIndices();
    std::string CountText(const Row& container, std::optional<std::int64_t> count);

    struct Listed;
    std::vector<RowContent> ContentsOf(const RowNode& node) const;
    bool ListBelow(RowNode& node, std::vector<Listed>& all);
    static TreePart MakeNote(const Listed& listed);
    bool Fill(RowNode& node);
    void FillAndExpand(RowNode& top);
    void ExpandAsCreated(RowNode& node, int depth, std::vector<std::pair<RowNode*, int>>& open);
    void AskBelow(const Row& row);
    bool ExpandRow(const Row& row);
    struct Descent;
    void ExpandBelow(RowNode& top);
    void OpenBelow(const TreePart& part, Descent& descent);
    void Refresh();
    static void OpenExpanded(const RowBlock& block, RowPlan::Ahead& ahead, std::vector<RowNode*>& open);
    void RefreshNode(RowNode& node);
    struct ChangedItems;
    bool RefreshItems(std::uint64_t since);
    bool RefreshNode(RowNode& node, ChangedItems& changed);
    bool TakeChanges(RowNode& list, ChangedItems& changed);
    bool TakeChange(RowBlock& block, const RowOrder& order, std::int64_t row);
    void Update(const TreePart& part, Listed&& now);
    struct Expanding;
    void ExpandExactly(RowNode& node, std::span<WantedRow> wanted, Expanding& all);
    void ExpandExactly(RowBlock& block, std::span<WantedRow> wanted, Expanding& all);
    bool ExpandWanted(RowNode& node, const Row& row);
    void ExpandWanted(RowBlock& block, std::uint32_t position, WantedRow& item, Expanding& all);
    std::vector<std::size_t> ExpandExactly(const std::vector<KeptRow>& rows, std::vector<RowNode*>& found);
    void BringBackKept();
    RowNode* FindContainer(const FreeFolder& folder, const znIBrowserDataSourceSimple* list);
    void CollapseInside(RowNode& node);
    void CollapseAround(RowNode& node, const std::unordered_set<const RowNode*>& stays);
    struct Chosen;
    void Select(Selecting how, Chosen chosen);
    const RowLink* FindLink(const RowContent& block, RowSource* child, std::string& error) const;

    View* view_;
    bool flat_ = false;
    CallLog& log_;
    RowPlan plan_;
    RowCells cells_;
    RowTree tree_;
    unsigned pending_;
    std::uint64_t itemsSeen_ = 0; ///< when the rows were last brought up to date, as `ChangeCount` tells
    int answering_ = 0;
    bool stopped_ = false;
    bool single_ = false;
    bool delivering_ = false;
    std::uint64_t revision_ = 0;
    std::set<std::uint32_t> selectedContainers_; ///< of trees and lists: their Tk indices
    std::string trouble_;
    std::unordered_map<std::uint32_t, RowLook> shown_; ///< the items read last, for when they cannot be read
    using Place = std::pair<const FreeFolder*, const void*>;
    static Place PlaceOf(const RowContent& container);
    std::map<Place, std::optional<std::int64_t>>
        slow_; ///< what takes long to count, and its count when known
    struct Uncounted {
        RowContent container;
        std::chrono::milliseconds tried{}; ///< for so long it was counted
    };
    std::vector<Uncounted> uncounted_;
    std::map<Place, std::optional<std::int64_t>> whole_; ///< how many rows there would be if none were hidden
    struct Kept {
        std::vector<KeptRow> expanded;
        std::vector<KeptRow> selected;
    };
    std::optional<Kept> kept_; ///< to be brought back
    std::vector<RowChange> changes_;
    bool untold_ = false; ///< Memory ran out over what changed: everything may have.
    std::vector<RowObserver*> observers_;
};

} // namespace znhost

#endif
