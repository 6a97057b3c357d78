// The rows of a window as a structure: containers, blocks of items, and where each row lies.
#ifndef ZN_HOST_ROW_TREE_H
#define ZN_HOST_ROW_TREE_H

#include "base/shared_rows.h"
#include "model/row_source.h"
#include "rows/row_sums.h"
#include "rows/tk_indices.h"

#include <cstdint>
#include <exception>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

class znIBrowserDataSourceHierarchical;

namespace znhost {

class FreeFolder;
struct RowScope;

enum class RowKind {
    Folder, ///< the root folder too, which is no row itself
    Tree,
    List, ///< a list of a folder, or a group of items that lie below the same item
    Item,
};

/// What stands in a container or in a block: enough to list its content again.
struct RowContent {
    RowKind kind = RowKind::Folder;
    std::shared_ptr<FreeFolder> folder;    ///< the folder, or the one that holds the rest
    std::shared_ptr<const RowScope> scope; ///< null for a folder
    RowSource* source = nullptr;           ///< of lists and items
    RowLink link;                          ///< without a reference: all items of the source
    std::int64_t parent = 0;               ///< the item whose children they are
    bool top = false;                      ///< they are nobody's children
    std::string note; ///< of a list: it stands where rows would, and says why they cannot be read

    bool IsNote() const { return !note.empty(); }

    /// Whether both mean the same things, now and at an earlier time.
    bool IsSame(const RowContent& other) const;
};

struct RowBlock;
struct RowNode;

/// One piece of the content of an expanded container: another container, or a block of items.
struct TreePart {
    std::unique_ptr<RowNode> node;
    std::unique_ptr<RowBlock> block;

    TreePart();
    TreePart(TreePart&& other) noexcept;
    TreePart& operator=(TreePart&& other) noexcept;
    ~TreePart();
    /// How many visible rows the part makes.
    std::int64_t Size() const;
};

/// A container: a folder, tree or list, or an item that is expanded. It costs nothing below while not
/// expanded.
struct RowNode {
    RowContent content;
    RowNode* parent = nullptr; ///< null at the root
    RowBlock* block = nullptr; ///< an item: the block in which it lies
    std::uint32_t place = 0;   ///< its place among the parent's parts; an item: its slot in the block
    std::uint32_t index = 0;   ///< its Tk index; 0 for an item, whose block knows
    std::uint32_t level = 0;   ///< how deep the rows in it lie: 0 in the root
    bool expanded = false;
    std::vector<TreePart> parts; ///< empty unless expanded
    RowSums sums;                ///< of the parts' sizes
    std::int64_t visible = 0;    ///< all visible rows below
};

/// Items of one source that stand one after the other: their row numbers, and no more. An item's slot is its
/// place when the block was made; it never changes, while the items may be sorted, added and removed.
struct RowBlock {
    struct Range {
        std::uint32_t firstSlot;
        std::uint32_t firstIndex;
    };
    static constexpr std::uint32_t gone = ~std::uint32_t{0};

    RowContent content;
    RowNode* owner = nullptr;
    std::uint32_t place = 0; ///< its place among the owner's parts
    SharedRows rows;
    std::vector<Range> ranges; ///< the Tk indices of the slots
    std::uint32_t slotCount = 0;
    // Empty while the slot of each row is its position.
    std::vector<std::uint32_t> slotAt;     ///< by position
    std::vector<std::uint32_t> positionOf; ///< by slot; `gone` when the row is no more
    std::unordered_map<std::uint32_t, std::unique_ptr<RowNode>> children; ///< the expanded items, by slot
    RowSums sums; ///< of the rows' sizes; empty while no item is expanded

    std::uint32_t SlotAt(std::size_t position) const;
    /// `gone` when there is no such row.
    std::uint32_t PositionOf(std::uint32_t slot) const;
    std::uint32_t IndexAt(std::size_t position) const;
    std::int64_t Size() const;
};

/// One row: a container, or an item at a position of a block, with its node when it is expanded; or none.
struct Row {
    RowNode* node = nullptr;
    RowBlock* block = nullptr;
    std::uint32_t position = 0;

    explicit operator bool() const { return node || block; }
    bool IsItem() const { return block != nullptr; }
    const RowContent& Content() const { return block ? block->content : node->content; }
    std::int64_t Number() const { return block->rows[position]; }
    /// The number as far as it has been read, else `RowPages::nowhere`.
    std::int64_t KnownNumber() const { return block->rows.Known()[position]; }
    bool IsExpanded() const { return node && node->expanded; }
    std::uint32_t Index() const { return block ? block->IndexAt(position) : node->index; }
    /// The container in which the row lies.
    RowNode& Owner() const { return block ? *block->owner : *node->parent; }
    std::uint32_t Depth() const { return Owner().level; }
};

/// The rows. Every visible row has a position, counted from 0 at the top, and a Tk index, which it keeps as
/// long as it exists. Finding a row by either, and either of a row, takes logarithmic time; a change of what
/// a container holds takes time for that content and for the depth.
class RowTree {
public:
    RowTree();
    ~RowTree();
    RowTree(const RowTree&) = delete;
    RowTree& operator=(const RowTree&) = delete;

    RowNode& Root() { return root_; }
    std::int64_t Count() const { return root_.visible; }
    /// @param position  at least 0 and less than `Count()`.
    Row At(std::int64_t position) const;
    /// The row below it on the screen; no row after the last one. Takes the same time however many rows there
    /// are.
    Row Next(const Row& row) const;
    Row First() const { return FirstFrom(root_, 0); }
    /// No row when the index is unknown.
    Row Find(std::uint32_t index) const;
    std::int64_t PositionOf(const Row& row) const;
    static Row ItemAt(RowBlock& block, std::uint32_t position);
    /// The row of a container; no row for the root.
    static Row RowOf(RowNode& node);
    /// The item's node, made when it has none.
    RowNode& NodeOf(const Row& item);

    static TreePart MakeNode(RowContent content);
    static TreePart MakeBlock(RowContent content, SharedRows rows);
    /// Replaces what the container holds and marks it expanded. Parts taken out of it before may be among
    /// `parts`; blocks without rows are left out.
    void SetParts(RowNode& node, std::vector<TreePart> parts);
    /// Collapses: nothing is left below. An item's node is gone then.
    void Collapse(RowNode& node) noexcept;
    /// Replaces the rows of a block: those that stay keep their Tk indices and what lies below them.
    void SetRows(RowBlock& block, SharedRows rows);
    /// Puts one row more at that position of a block. Of a long block the numbers behind it are moved, no
    /// more. Not while changes are not counted.
    void InsertRow(RowBlock& block, std::uint32_t position, std::int64_t row);
    /// Takes one of several rows out of a block.
    void RemoveRow(RowBlock& block, std::uint32_t position);

    /// While one lives, changes at or below a container are not counted; that is done once, at the end.
    /// Positions are of no use meanwhile. Of several, one inside the other, the outermost counts. An
    /// exception that passes leaves the tree half changed: then it `IsBroken`.
    class ManyChanges {
    public:
        ManyChanges(RowTree& tree, RowNode& top)
            : tree_(tree), top_(top), outer_(tree.uncounted_), exceptions_(std::uncaught_exceptions()) {
            tree.uncounted_ = true;
        }
        ~ManyChanges();
        ManyChanges(const ManyChanges&) = delete;
        ManyChanges& operator=(const ManyChanges&) = delete;

    private:
        RowTree& tree_;
        RowNode& top_;
        bool outer_;
        int exceptions_;
    };

    /// The containers at and below this one that are expanded, each before those below it.
    static std::vector<RowNode*> Expanded(RowNode& node);
    /// Whether changes are being made that are not counted yet.
    bool IsChanging() const { return uncounted_; }
    /// Whether memory ran out in the middle of changes: `Clear` is all that helps.
    bool IsBroken() const { return broken_; }
    /// Nothing is left but the root, collapsed.
    void Clear() noexcept;

private:
    static Row FirstFrom(const RowNode& node, std::size_t place);
    void Attach(RowNode& node, std::uint32_t place);
    void Release(std::vector<TreePart> parts) noexcept;
    void ReleaseIndices(const TreePart& part) noexcept;
    void ReleaseParts(RowNode& node) noexcept { Release(std::exchange(node.parts, {})); }
    bool TakeIndices(RowBlock& block, std::uint32_t firstSlot, std::uint32_t count);
    static void MakeSums(RowBlock& block);
    static void NumberSlots(RowBlock& block);
    static void NumberFrom(RowBlock& block, std::size_t position);
    template <class Change>
    void ChangeBlock(RowBlock& block, std::int64_t delta, Change&& change);
    static std::int64_t MakeSums(RowNode& node);
    void Count(RowNode& top);
    static void Grow(RowNode* node, std::int64_t delta);
    void GrowOwner(RowBlock& block, std::int64_t delta);

    TkIndices indices_;
    RowNode root_;
    bool uncounted_ = false;
    bool broken_ = false;
};

} // namespace znhost

#endif
