// Expanding and collapsing, and keeping what is expanded through changes of the view.
#include "base/services.h"
#include "model/browser.h"
#include "model/view.h"
#include "rows/row_model.h"

#include <algorithm>
#include <set>
#include <unordered_map>
#include <unordered_set>

namespace znhost {

namespace {

const void* KeyOf(const RowContent& content) {
    return content.kind == RowKind::Folder ? static_cast<const void*>(content.folder.get()) : content.source;
}

const RowContent& ContentOf(const TreePart& part) {
    return part.node ? part.node->content : part.block->content;
}

} // namespace

/// What is to stand in a container: another container, or a block with its rows.
struct RowModel::Listed {
    RowContent content;
    SharedRows rows;
    std::string problem; ///< why the rows could not be read; "" when they could

    TreePart MakePart() && {
        return content.kind == RowKind::Item ? RowTree::MakeBlock(std::move(content), std::move(rows))
                                             : RowTree::MakeNode(std::move(content));
    }
};

// ---- Filling ----

bool RowModel::GoesOn() const {
    if (!view_) return true;
    return view_->Owner().Services().WhyStop().empty();
}

void RowModel::SetFlat(bool flat) {
    if (flat_ == flat) return;
    flat_ = flat;
    OnViewChanged(VIEW_ROWS);
}

std::vector<RowContent> RowModel::ContentsOf(const RowNode& node) const {
    std::vector<RowContent> contents = plan_.Below(node.content);
    if (!flat_ || node.parent || node.block) return contents;
    std::vector<RowContent> items;
    for (RowContent& content : contents) {
        if (content.kind != RowKind::List) {
            items.push_back(std::move(content));
            continue;
        }
        for (RowContent& block : plan_.Below(content)) items.push_back(std::move(block));
    }
    return items;
}

/// Lists what stands in a container. Scripts give the values by which rows are sorted, so the tree is left as
/// it is meanwhile. False when the work must be given up.
bool RowModel::ListBelow(RowNode& node, std::vector<Listed>& all) {
    if (!node.block && node.content.IsNote()) return true;
    const Row row = RowTree::RowOf(node);
    const ReadTrouble::Watch whole(Services().Trouble()); // the filter is made with what stands below
    for (RowContent& content : node.block ? plan_.Below(row.Content(), row.Number()) : ContentsOf(node)) {
        Listed listed{std::move(content), {}, {}};
        if (listed.content.kind == RowKind::Item)
            listed.rows = view_->Lists().Share(plan_.ListToShow(listed.content));
        if (stopped_) return false;
        if (listed.content.kind == RowKind::Item && whole.Seen()) listed.problem = whole.Text();
        all.push_back(std::move(listed));
    }
    NoteTrouble(whole);
    return true;
}

/// A row that stands where the rows of the block would, and says why they cannot be read.
TreePart RowModel::MakeNote(const Listed& listed) {
    RowContent content = listed.content;
    content.kind = RowKind::List;
    content.note = listed.problem;
    return RowTree::MakeNode(std::move(content));
}

/// Makes what stands in a container. False when there is nothing, or the work must be given up.
bool RowModel::Fill(RowNode& node) {
    std::vector<Listed> all;
    if (!ListBelow(node, all)) return false;
    std::vector<TreePart> parts;
    parts.reserve(all.size());
    for (Listed& listed : all)
        parts.push_back(listed.problem.empty() ? std::move(listed).MakePart() : MakeNote(listed));
    tree_.SetParts(node, std::move(parts));
    return !node.parts.empty();
}

/// Fills a container, and below it whatever is to be expanded as soon as it is there.
void RowModel::FillAndExpand(RowNode& top) {
    const RowTree::ManyChanges many(tree_, top);
    const RowPlan::Ahead ahead(plan_, false);
    std::vector<std::pair<RowNode*, int>> open{{&top, 0}};
    while (!open.empty() && !stopped_ && GoesOn()) {
        const auto [node, depth] = open.back();
        open.pop_back();
        if (Fill(*node)) ExpandAsCreated(*node, depth, open);
    }
}

void RowModel::ExpandAsCreated(RowNode& node, int depth, std::vector<std::pair<RowNode*, int>>& open) {
    for (const TreePart& part : node.parts) {
        const RowContent& content = ContentOf(part);
        if (content.kind == RowKind::Folder && content.folder->IsExpanded())
            open.emplace_back(part.node.get(), 0);
        if (content.kind == RowKind::List) {
            const FolderList* const list =
                content.link.reference ? nullptr : content.folder->FindList(content.source->GetSource());
            if (list && list->expanded) open.emplace_back(part.node.get(), 0);
        }
        if (content.kind != RowKind::Item) continue;
        // Below an item of the same kind the count goes on; it does not start again.
        const bool goesOn =
            content.link.reference && !content.top && content.link.parent == content.link.child;
        const int own = goesOn ? 0 : content.folder->CreateExpandedDepth(content.source->GetSource());
        const int left = std::max(own, depth);
        if (left <= 0) continue;
        const std::vector<bool> have = plan_.HaveRows(content, part.block->rows);
        for (std::uint32_t i = 0; i < have.size(); ++i) {
            if (have[i]) open.emplace_back(&tree_.NodeOf(RowTree::ItemAt(*part.block, i)), left - 1);
        }
    }
}

// ---- Expanding ----

/// Asks for what lies directly below a row.
void RowModel::AskBelow(const Row& row) {
    const RowPlan::Ahead ahead(plan_, false);
    const bool isItem = row.IsItem();
    HasRows(row);
    for (const RowContent& content :
         isItem ? plan_.Below(row.Content(), row.Number()) : plan_.Below(row.Content())) {
        if (!isItem && content.kind == RowKind::Item) plan_.ListToShow(content);
    }
}

bool RowModel::ExpandRow(const Row& row) {
    if (!row) return false;
    if (row.IsExpanded()) return true;
    if (row.Content().source && plan_.IsWhole()) row.Content().source->AskAlong([&] { AskBelow(row); });
    const RowPlan::Ahead ahead(plan_, false); // whether there are any is seen by the rows themselves
    if (!HasRows(row)) return false;
    RowNode& node = row.IsItem() ? tree_.NodeOf(row) : *row.node;
    FillAndExpand(node);
    Tell(RowChange::Filled, row.Index());
    return !stopped_ && !tree_.IsBroken();
}

bool RowModel::Expand(std::uint32_t index) {
    const Change change(*this);
    return change && ExpandRow(Find(index));
}

bool RowModel::ExpandAllBelow(std::uint32_t index) {
    const Change change(*this);
    const Row row = change ? Find(index) : Row();
    if (!row || !(row.IsExpanded() || HasRows(row))) return false;
    ExpandBelow(row.IsItem() ? tree_.NodeOf(row) : *row.node);
    Tell(RowChange::Filled, index);
    return true;
}

bool RowModel::Collapse(std::uint32_t index) {
    const Change change(*this);
    const Row row = change ? Find(index) : Row();
    if (!row) return false;
    if (!row.IsExpanded()) return true;
    tree_.Collapse(*row.node);
    Tell(RowChange::Filled, index);
    return true;
}

/// A way down to the leafs, not by recursion and not into an item that lies below itself.
struct RowModel::Descent {
    using Item = std::pair<const RowSource*, std::int64_t>;
    struct Step {
        RowNode* node;
        bool leaves; ///< what lies below it is done
    };
    std::set<Item> way; ///< the items above the node in hand
    std::vector<Step> open;

    explicit Descent(RowNode& top) : open{{&top, false}} {
        for (RowNode* node = top.parent; node; node = node->parent) {
            if (node->block) way.insert(ItemOf(*node));
        }
    }
    static Item ItemOf(RowNode& node) { return {node.block->content.source, RowTree::RowOf(node).Number()}; }
};

void RowModel::ExpandBelow(RowNode& top) {
    Descent descent(top);
    const RowTree::ManyChanges many(tree_, top);
    const RowPlan::Ahead ahead(plan_, true);
    while (!descent.open.empty() && !stopped_ && GoesOn()) {
        const Descent::Step step = descent.open.back();
        descent.open.pop_back();
        RowNode& node = *step.node;
        if (step.leaves) {
            descent.way.erase(Descent::ItemOf(node));
            continue;
        }
        if (node.block) {
            if (!descent.way.insert(Descent::ItemOf(node)).second) continue;
            descent.open.push_back({&node, true});
        }
        if (!node.expanded && !Fill(node)) {
            if (node.expanded && node.parent && !node.block) tree_.Collapse(node); // nothing lies in it
            continue;
        }
        // What is taken from `open` first must be pushed last: work that is given up has done the top rows.
        for (auto part = node.parts.rbegin(); part != node.parts.rend(); ++part) OpenBelow(*part, descent);
    }
}

void RowModel::OpenBelow(const TreePart& part, Descent& descent) {
    if (part.node) {
        descent.open.push_back({part.node.get(), false});
        return;
    }
    RowBlock& block = *part.block;
    const std::vector<bool> have = plan_.HaveRows(block.content, block.rows);
    for (std::size_t i = have.size(); i-- > 0;) {
        if (!have[i] || descent.way.count({block.content.source, block.rows[i]})) continue;
        const Row item = RowTree::ItemAt(block, static_cast<std::uint32_t>(i));
        descent.open.push_back({&tree_.NodeOf(item), false});
    }
}

void RowModel::ExpandAll() {
    const Change change(*this);
    if (!change) return;
    ExpandBelow(tree_.Root());
    Tell(RowChange::AllFilled);
}

void RowModel::CollapseInside(RowNode& node) {
    const RowTree::ManyChanges many(tree_, node);
    for (const TreePart& part : node.parts) {
        if (part.node && part.node->expanded) tree_.Collapse(*part.node);
        while (part.block && !part.block->children.empty())
            tree_.Collapse(*part.block->children.begin()->second);
    }
}

void RowModel::CollapseAll() {
    const Change change(*this);
    if (!change) return;
    CollapseInside(tree_.Root());
    Tell(RowChange::AllFilled);
}

void RowModel::CollapseAround(RowNode& node, const std::unordered_set<const RowNode*>& stays) {
    std::vector<RowNode*> expanded;
    for (const TreePart& part : node.parts) {
        if (part.node && part.node->expanded) expanded.push_back(part.node.get());
        if (!part.block) continue;
        for (const auto& child : part.block->children) expanded.push_back(child.second.get());
    }
    for (RowNode* const below : expanded) {
        if (stays.count(below)) {
            CollapseAround(*below, stays);
        } else if (below->expanded) {
            tree_.Collapse(*below);
        }
    }
}

void RowModel::CollapseButSelected() {
    const Change change(*this);
    if (!change) return;
    std::unordered_set<const RowNode*> stays;
    for (const std::uint32_t index : SelectedIndices()) {
        const Row row = Find(index);
        const RowNode* node = row ? &row.Owner() : nullptr;
        while (node && stays.insert(node).second) node = node->parent;
    }
    const RowTree::ManyChanges many(tree_, tree_.Root());
    CollapseAround(tree_.Root(), stays);
    Tell(RowChange::AllFilled);
}

void RowModel::ExpandSelected() {
    const Change change(*this);
    if (!change) return;
    for (const std::uint32_t index : SelectedIndices()) {
        const Row row = Find(index); // none when the work was given up
        if (!row || !HasRows(row)) continue;
        ExpandBelow(row.IsItem() ? tree_.NodeOf(row) : *row.node);
    }
    Tell(RowChange::AllFilled);
}

void RowModel::CollapseSelected() {
    const Change change(*this);
    if (!change) return;
    for (const std::uint32_t index : SelectedIndices()) {
        const Row row = Find(index); // gone when what it lay in was selected too
        if (row && row.IsExpanded()) tree_.Collapse(*row.node);
    }
    Tell(RowChange::AllFilled);
}

RowNode* RowModel::FindContainer(const FreeFolder& folder, const znIBrowserDataSourceSimple* list) {
    if (!list && tree_.Root().content.folder.get() == &folder) return &tree_.Root();
    for (RowNode* const node : RowTree::Expanded(tree_.Root())) {
        for (const TreePart& part : node->parts) {
            if (!part.node || part.node->content.folder.get() != &folder) continue;
            const RowContent& content = part.node->content;
            const bool isList = content.kind == RowKind::List && !content.link.reference;
            if (list ? isList && content.source->GetSource() == list : content.kind == RowKind::Folder) {
                return part.node.get();
            }
        }
    }
    return nullptr;
}

void RowModel::SetExpanded(const FreeFolder& folder, const znIBrowserDataSourceSimple* list, bool expanded,
                           bool recursive) {
    const Change change(*this);
    RowNode* const node = change ? FindContainer(folder, list) : nullptr;
    if (!node) return;
    if (expanded && recursive) {
        ExpandBelow(*node);
    } else if (expanded) {
        ExpandRow(RowTree::RowOf(*node));
    } else if (node == &tree_.Root()) {
        if (recursive) CollapseInside(*node);
    } else if (node->expanded) {
        tree_.Collapse(*node);
    }
    Tell(RowChange::AllFilled);
}

bool RowModel::Reveal(const std::vector<RowStep>& path) {
    const Change change(*this);
    if (!change) return false;
    RowNode* node = &tree_.Root();
    for (const RowStep& step : path) {
        if (flat_ && node == &tree_.Root() && step.content.kind == RowKind::List) continue;
        if (!node->expanded && !(ExpandRow(RowTree::RowOf(*node)))) return false;
        const auto part =
            std::find_if(node->parts.begin(), node->parts.end(), [&step](const TreePart& candidate) {
                return ContentOf(candidate).IsSame(step.content);
            });
        if (part == node->parts.end()) return false;
        if (part->node) {
            node = part->node.get();
            continue;
        }
        part->block->rows.Look({step.row});
        const SharedRows::Rows& rows = part->block->rows.Known();
        const auto found = std::find(rows.begin(), rows.end(), step.row);
        if (found == rows.end()) return false;
        const Row row = RowTree::ItemAt(*part->block, static_cast<std::uint32_t>(found - rows.begin()));
        if (&step != &path.back()) {
            node = &tree_.NodeOf(row);
        } else {
            Tell(RowChange::Shown, row.Index());
        }
    }
    return true;
}

// ---- Taking over changes of the view ----

/// Everything that is expanded is planned anew. What is still there keeps its indices and what lies below it.
void RowModel::Refresh() {
    RowNode& root = tree_.Root();
    if (!root.expanded) {
        FillAndExpand(root);
        return;
    }
    const RowTree::ManyChanges many(tree_, root);
    RowPlan::Ahead ahead(plan_, false);
    std::vector<RowNode*> open{&root};
    for (std::size_t next = 0; next < open.size() && !stopped_; ++next) { // level by level, each read at once
        RowNode& node = *open[next];
        RefreshNode(node);
        for (const TreePart& part : node.parts) {
            if (part.node && part.node->expanded) open.push_back(part.node.get());
            if (part.block) OpenExpanded(*part.block, ahead, open);
        }
    }
}

/// The expanded items of the block; what lies below them is going to be asked for.
void RowModel::OpenExpanded(const RowBlock& block, RowPlan::Ahead& ahead, std::vector<RowNode*>& open) {
    std::vector<std::int64_t> expanded;
    for (const auto& child : block.children) {
        if (!child.second->expanded) continue;
        open.push_back(child.second.get());
        expanded.push_back(RowTree::RowOf(*child.second).Number());
    }
    if (!expanded.empty()) ahead.Expect(block.content, expanded);
}

/// What was there before stays, but with the present links and filter, and the present rows.
void RowModel::RefreshNode(RowNode& node) {
    std::vector<Listed> all;
    if (!ListBelow(node, all)) return;
    std::unordered_multimap<const void*, TreePart*> old;
    for (TreePart& part : node.parts) old.emplace(KeyOf(ContentOf(part)), &part);
    std::vector<TreePart> parts(all.size());
    std::vector<TreePart*> stay(all.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        const auto range = old.equal_range(KeyOf(all[i].content));
        const auto known = std::find_if(range.first, range.second, [&](const auto& entry) {
            return ContentOf(*entry.second).IsSame(all[i].content);
        });
        if (known == range.second) {
            parts[i] = all[i].problem.empty() ? std::move(all[i]).MakePart() : MakeNote(all[i]);
            continue;
        }
        stay[i] = known->second;
        old.erase(known);
        Update(*stay[i], std::move(all[i]));
    }
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (stay[i]) parts[i] = std::move(*stay[i]);
    }
    tree_.SetParts(node, std::move(parts));
}

void RowModel::Update(const TreePart& part, Listed&& now) {
    if (part.block) {
        const ReadTrouble::Watch watch(Services().Trouble());
        now.rows.Follow(part.block->rows);
        if (NoteTrouble(watch) || !now.problem.empty()) return; // what is shown stays shown
        part.block->content = std::move(now.content);
        tree_.SetRows(*part.block, std::move(now.rows));
    } else {
        part.node->content = std::move(now.content);
    }
}

} // namespace znhost
