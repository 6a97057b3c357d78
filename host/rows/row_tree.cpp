#include "rows/row_tree.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <numeric>
#include <utility>

namespace znhost {

bool RowContent::IsSame(const RowContent& other) const {
    return kind == other.kind && folder == other.folder && source == other.source && link == other.link &&
           parent == other.parent && top == other.top && note == other.note;
}

TreePart::TreePart() = default;
TreePart::TreePart(TreePart&& other) noexcept = default;
TreePart& TreePart::operator=(TreePart&& other) noexcept = default;
TreePart::~TreePart() = default;

std::int64_t TreePart::Size() const { return node ? 1 + node->visible : block->Size(); }

std::uint32_t RowBlock::SlotAt(std::size_t position) const {
    return slotAt.empty() ? static_cast<std::uint32_t>(position) : slotAt[position];
}

std::uint32_t RowBlock::PositionOf(std::uint32_t slot) const {
    if (positionOf.empty()) return slot < rows.size() ? slot : gone;
    return slot < positionOf.size() ? positionOf[slot] : gone;
}

std::uint32_t RowBlock::IndexAt(std::size_t position) const {
    const std::uint32_t slot = SlotAt(position);
    const auto after =
        std::upper_bound(ranges.begin(), ranges.end(), slot,
                         [](std::uint32_t value, const Range& range) { return value < range.firstSlot; });
    const Range& range = *std::prev(after);
    return range.firstIndex + (slot - range.firstSlot);
}

std::int64_t RowBlock::Size() const {
    return sums.Empty() ? static_cast<std::int64_t>(rows.size()) : sums.Before(rows.size());
}

RowTree::RowTree() = default;
RowTree::~RowTree() { ReleaseParts(root_); }

Row RowTree::At(std::int64_t position) const {
    const RowNode* node = &root_;
    for (;;) {
        const std::size_t place = node->sums.Find(position);
        position -= node->sums.Before(place);
        const TreePart& part = node->parts[place];
        if (part.node) {
            if (position == 0) return {part.node.get(), nullptr, 0};
            --position;
            node = part.node.get();
            continue;
        }
        RowBlock& block = *part.block;
        if (block.sums.Empty()) return {nullptr, &block, static_cast<std::uint32_t>(position)};
        const std::size_t at = block.sums.Find(position);
        position -= block.sums.Before(at);
        const Row item = ItemAt(block, static_cast<std::uint32_t>(at));
        if (position == 0) return item;
        --position;
        node = item.node;
    }
}

/// The first row of a part and those after it; no row when all are empty.
Row RowTree::FirstFrom(const RowNode& node, std::size_t place) {
    for (; place < node.parts.size(); ++place) {
        const TreePart& part = node.parts[place];
        if (part.node) return {part.node.get(), nullptr, 0};
        if (!part.block->rows.empty()) return ItemAt(*part.block, 0);
    }
    return {};
}

Row RowTree::ItemAt(RowBlock& block, std::uint32_t position) {
    const auto child = block.children.find(block.SlotAt(position));
    return {child == block.children.end() ? nullptr : child->second.get(), &block, position};
}

Row RowTree::Next(const Row& row) const {
    if (row.node) {
        if (const Row below = FirstFrom(*row.node, 0)) return below;
    }
    Row at = row;
    for (;;) {
        if (at.block && at.position + 1 < at.block->rows.size()) return ItemAt(*at.block, at.position + 1);
        RowNode& owner = at.Owner();
        if (const Row next = FirstFrom(owner, (at.block ? at.block->place : at.node->place) + std::size_t{1}))
            return next;
        if (&owner == &root_) return {};
        at = RowOf(owner);
    }
}

Row RowTree::Find(std::uint32_t index) const {
    const TkIndices::Owner owner = indices_.Find(index);
    if (!owner.block) return {owner.node, nullptr, 0};
    const std::uint32_t position = owner.block->PositionOf(owner.slot);
    if (position == RowBlock::gone) return {};
    return ItemAt(*owner.block, position);
}

std::int64_t RowTree::PositionOf(const Row& row) const {
    std::int64_t position = 0;
    const RowBlock* block = row.block;
    std::uint32_t at = row.position;
    const RowNode* node = row.node;
    for (;;) {
        std::uint32_t place = 0;
        if (block) {
            position += block->sums.Empty() ? std::int64_t{at} : block->sums.Before(at);
            place = block->place;
            node = block->owner;
        } else {
            place = node->place;
            node = node->parent;
        }
        position += node->sums.Before(place);
        if (node == &root_) return position;
        ++position; // the row of the container itself
        block = node->block;
        if (block) at = block->PositionOf(node->place);
    }
}

Row RowTree::RowOf(RowNode& node) {
    if (node.block) return {&node, node.block, node.block->PositionOf(node.place)};
    return {node.parent ? &node : nullptr, nullptr, 0};
}

RowNode& RowTree::NodeOf(const Row& item) {
    if (item.node) return *item.node;
    RowBlock& block = *item.block;
    auto child = std::make_unique<RowNode>();
    child->block = &block;
    child->parent = block.owner;
    child->place = block.SlotAt(item.position);
    child->level = block.owner->level + 1;
    if (block.sums.Empty()) block.sums.AssignOnes(block.rows.size());
    return *block.children.emplace(child->place, std::move(child)).first->second;
}

TreePart RowTree::MakeNode(RowContent content) {
    TreePart part;
    part.node = std::make_unique<RowNode>();
    part.node->content = std::move(content);
    return part;
}

TreePart RowTree::MakeBlock(RowContent content, SharedRows rows) {
    TreePart part;
    part.block = std::make_unique<RowBlock>();
    part.block->content = std::move(content);
    part.block->rows = std::move(rows);
    return part;
}

void RowTree::SetParts(RowNode& node, std::vector<TreePart> parts) {
    ReleaseParts(node);
    node.expanded = true;
    const auto isEmpty = [](const TreePart& part) { return !part.node && part.block->rows.empty(); };
    for (TreePart& part : parts) {
        if (isEmpty(part)) ReleaseIndices(part);
    }
    parts.erase(std::remove_if(parts.begin(), parts.end(), isEmpty), parts.end());
    node.parts = std::move(parts);
    for (std::uint32_t place = 0; place < node.parts.size(); ++place) Attach(node, place);
    if (!uncounted_) Grow(&node, MakeSums(node) - node.visible);
}

/// Tells the part at that place, old or new, where it lies now.
void RowTree::Attach(RowNode& node, std::uint32_t place) {
    const TreePart& part = node.parts[place];
    if (part.node) {
        part.node->parent = &node;
        part.node->place = place;
        part.node->level = node.level + 1;
        if (!part.node->index) part.node->index = indices_.Take(1, {part.node.get(), nullptr, 0});
        return;
    }
    RowBlock& block = *part.block;
    block.owner = &node;
    block.place = place;
    if (!block.ranges.empty()) return;
    block.slotCount = static_cast<std::uint32_t>(block.rows.size());
    if (!TakeIndices(block, 0, block.slotCount)) block.rows = {};
}

/// False, and nothing changed, when so many indices are not to be had.
bool RowTree::TakeIndices(RowBlock& block, std::uint32_t firstSlot, std::uint32_t count) {
    const std::uint32_t first = indices_.Take(count, {nullptr, &block, firstSlot});
    if (first) block.ranges.push_back({firstSlot, first});
    return first != 0;
}

void RowTree::Collapse(RowNode& node) noexcept {
    ReleaseParts(node);
    node.sums.Clear();
    node.expanded = false;
    if (uncounted_) node.visible = 0;
    Grow(&node, -node.visible);
    if (node.block) node.block->children.erase(node.place);
}

/// Takes parts apart, from the bottom up, and gives their indices back. It needs no memory, so that rows can
/// go when there is none left, and is no recursion: there is no limit to the depth.
void RowTree::Release(std::vector<TreePart> parts) noexcept {
    RowNode top;
    top.parts = std::move(parts);
    for (RowNode* node = &top; node != &top || !node->parts.empty();) {
        if (node->parts.empty()) {
            node = node->parent;
            continue;
        }
        const TreePart& last = node->parts.back();
        RowNode* below = last.node.get();
        if (last.block && !last.block->children.empty()) {
            below = last.block->children.begin()->second.get();
            if (below->parts.empty()) {
                last.block->children.erase(last.block->children.begin());
                continue;
            }
        }
        if (below && !below->parts.empty()) {
            below->parent = node;
            node = below;
            continue;
        }
        ReleaseIndices(last);
        node->parts.pop_back();
    }
}

void RowTree::ReleaseIndices(const TreePart& part) noexcept {
    if (part.node) indices_.Release(part.node->index);
    if (!part.block) return;
    for (const RowBlock::Range& range : part.block->ranges) indices_.Release(range.firstIndex);
}

void RowTree::Clear() noexcept {
    ReleaseParts(root_);
    indices_.ReleaseAll();
    root_.sums.Clear();
    root_.visible = 0;
    root_.expanded = false;
    broken_ = false;
}

namespace {

/// The slots of a block by their rows: where the row numbers lie close together in a list of all between the
/// lowest and the highest one, else in a sorted list.
class SlotsByRow {
public:
    explicit SlotsByRow(const RowBlock& block) {
        const SharedRows::Rows& rows = block.rows.Known();
        if (rows.empty()) return;
        const auto [lowest, highest] = std::minmax_element(rows.begin(), rows.end());
        lowest_ = *lowest;
        const std::uint64_t distance = Distance(*highest);
        const bool isDense = distance / farApart <= rows.size();
        if (isDense) dense_.resize(distance + 1, RowBlock::gone);
        if (!isDense && !block.rows.IsPaged()) sparse_.reserve(rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (rows[i] == RowPages::nowhere) continue;
            if (isDense) dense_[Distance(rows[i])] = block.SlotAt(i);
            if (!isDense) sparse_.emplace_back(rows[i], block.SlotAt(i));
        }
        std::sort(sparse_.begin(), sparse_.end());
    }
    /// `RowBlock::gone` when the row is not among them.
    std::uint32_t Of(std::int64_t row) const {
        if (!dense_.empty()) return Distance(row) < dense_.size() ? dense_[Distance(row)] : RowBlock::gone;
        const auto known = std::lower_bound(sparse_.begin(), sparse_.end(), std::pair(row, std::uint32_t{0}));
        return known != sparse_.end() && known->first == row ? known->second : RowBlock::gone;
    }

private:
    static constexpr std::uint64_t farApart = 4;

    std::uint64_t Distance(std::int64_t row) const {
        return static_cast<std::uint64_t>(row) - static_cast<std::uint64_t>(lowest_);
    }

    std::int64_t lowest_ = 0;
    std::vector<std::uint32_t> dense_;
    std::vector<std::pair<std::int64_t, std::uint32_t>> sparse_;
};

/// The slots of the rows: those that they have; others get what was held for rows that nobody has looked at,
/// and then new ones, counted up from `slots`.
std::vector<std::uint32_t> SlotsFor(const RowBlock& block, const SharedRows::Rows& rows,
                                    std::uint32_t& slots) {
    const SlotsByRow known(block);
    const SharedRows::Rows& before = block.rows.Known();
    std::vector<std::uint32_t> slotAt(rows.size(), RowBlock::gone);
    std::size_t next = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i] != RowPages::nowhere) slotAt[i] = known.Of(rows[i]);
        if (slotAt[i] != RowBlock::gone) continue;
        while (next < before.size() && before[next] != RowPages::nowhere) ++next;
        slotAt[i] = next < before.size() ? block.SlotAt(next++) : slots++;
    }
    return slotAt;
}

} // namespace

void RowTree::SetRows(RowBlock& block, SharedRows rows) {
    if (rows.Continues(block.rows)) {
        block.rows = std::move(rows);
        return;
    }
    std::uint32_t slots = block.slotCount;
    std::vector<std::uint32_t> slotAt = SlotsFor(block, rows.Known(), slots);
    if (slots > block.slotCount && !TakeIndices(block, block.slotCount, slots - block.slotCount)) return;
    block.slotCount = slots;
    block.positionOf.assign(slots, RowBlock::gone);
    for (std::size_t i = 0; i < slotAt.size(); ++i)
        block.positionOf[slotAt[i]] = static_cast<std::uint32_t>(i);
    const std::int64_t size = block.Size();
    block.rows = std::move(rows);
    block.slotAt = std::move(slotAt);
    for (auto child = block.children.begin(); child != block.children.end();) {
        const bool stays = block.PositionOf(child->first) != RowBlock::gone;
        if (!stays) ReleaseParts(*child->second);
        child = stays ? std::next(child) : block.children.erase(child);
    }
    if (uncounted_) return;
    MakeSums(block);
    GrowOwner(block, block.Size() - size);
}

/// Gives each slot its position again, from that one on; the slots that stand nowhere are not touched.
void RowTree::NumberFrom(RowBlock& block, std::size_t position) {
    for (; position < block.slotAt.size(); ++position)
        block.positionOf[block.slotAt[position]] = static_cast<std::uint32_t>(position);
}

/// Each row has a slot from now on that need not be its position.
void RowTree::NumberSlots(RowBlock& block) {
    if (!block.slotAt.empty()) return;
    block.slotAt.resize(block.rows.size());
    std::iota(block.slotAt.begin(), block.slotAt.end(), 0U);
    block.positionOf = block.slotAt;
}

/// Runs a change that memory may run out for when it is half done.
template <class Change>
void RowTree::ChangeBlock(RowBlock& block, std::int64_t delta, Change&& change) {
    try {
        change();
        GrowOwner(block, delta);
    } catch (...) {
        broken_ = true;
        throw;
    }
}

void RowTree::InsertRow(RowBlock& block, std::uint32_t position, std::int64_t row) {
    ChangeBlock(block, 1, [&] {
        const std::uint32_t slot = block.slotCount;
        const bool behindAll = position == block.rows.size();
        const bool slotIsPosition = behindAll && block.slotAt.empty() && slot == position;
        if (!slotIsPosition) NumberSlots(block);
        if (!TakeIndices(block, slot, 1)) throw std::bad_alloc();
        ++block.slotCount;
        std::vector<std::int64_t>& rows = block.rows.Own();
        rows.insert(rows.begin() + position, row);
        if (!slotIsPosition) {
            block.slotAt.insert(block.slotAt.begin() + position, slot);
            block.positionOf.resize(block.slotCount, RowBlock::gone);
            NumberFrom(block, position);
        }
        behindAll && !block.sums.Empty() ? block.sums.Append(1) : MakeSums(block);
    });
}

void RowTree::RemoveRow(RowBlock& block, std::uint32_t position) {
    if (const Row row = ItemAt(block, position); row.node) Collapse(*row.node);
    ChangeBlock(block, -1, [&] {
        NumberSlots(block);
        std::vector<std::int64_t>& rows = block.rows.Own();
        rows.erase(rows.begin() + position);
        block.positionOf[block.slotAt[position]] = RowBlock::gone;
        block.slotAt.erase(block.slotAt.begin() + position);
        NumberFrom(block, position);
        MakeSums(block);
    });
}

void RowTree::MakeSums(RowBlock& block) {
    block.sums.Clear();
    if (block.children.empty()) return;
    std::vector<std::int64_t> sizes(block.rows.size(), 1);
    for (const auto& [slot, child] : block.children) sizes[block.PositionOf(slot)] += child->visible;
    block.sums.Assign(std::move(sizes));
}

/// Gives the number of visible rows in the container.
std::int64_t RowTree::MakeSums(RowNode& node) {
    std::vector<std::int64_t> sizes;
    sizes.reserve(node.parts.size());
    for (const TreePart& part : node.parts) sizes.push_back(part.Size());
    const std::int64_t visible = std::accumulate(sizes.begin(), sizes.end(), std::int64_t{0});
    node.sums.Assign(std::move(sizes));
    return visible;
}

/// The rows below a container became that many more: tells it and all containers around it.
void RowTree::Grow(RowNode* node, std::int64_t delta) {
    while (node && delta != 0) {
        node->visible += delta;
        if (RowBlock* const block = node->block) {
            block->sums.Add(block->PositionOf(node->place), delta);
            block->owner->sums.Add(block->place, delta);
            node = block->owner;
        } else {
            if (node->parent) node->parent->sums.Add(node->place, delta);
            node = node->parent;
        }
    }
}

void RowTree::GrowOwner(RowBlock& block, std::int64_t delta) {
    block.owner->sums.Add(block.place, delta);
    Grow(block.owner, delta);
}

std::vector<RowNode*> RowTree::Expanded(RowNode& node) {
    std::vector<RowNode*> found;
    if (node.expanded) found.push_back(&node);
    for (std::size_t i = 0; i < found.size(); ++i) {
        for (const TreePart& part : found[i]->parts) {
            if (part.node && part.node->expanded) found.push_back(part.node.get());
            if (!part.block) continue;
            for (const auto& child : part.block->children) {
                if (child.second->expanded) found.push_back(child.second.get());
            }
        }
    }
    return found;
}

/// Recomputes the sums of a container and of what was changed below it.
void RowTree::Count(RowNode& top) {
    const std::int64_t before = top.visible;
    const std::vector<RowNode*> nodes = Expanded(top);
    for (auto node = nodes.rbegin(); node != nodes.rend(); ++node) {
        for (const TreePart& part : (*node)->parts) {
            if (part.block) MakeSums(*part.block);
        }
        (*node)->visible = MakeSums(**node);
    }
    const std::int64_t delta = top.visible - before;
    top.visible = before;
    Grow(&top, delta);
}

RowTree::ManyChanges::~ManyChanges() {
    tree_.uncounted_ = outer_;
    if (outer_) return;
    if (std::uncaught_exceptions() > exceptions_) tree_.broken_ = true;
    try {
        if (!tree_.broken_) tree_.Count(top_);
    } catch (const std::bad_alloc&) {
        tree_.broken_ = true;
    }
}

} // namespace znhost
