// Selecting rows, and dropping rows on others.
#include "host/znBrowserDataItems.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "model/view.h"
#include "rows/row_model.h"

#include <algorithm>
#include <map>

namespace znhost {

/// Reads the rows of long lists that are among those, wherever they stand.
void RowModel::LookFor(const ItemSets& items) {
    for (const RowNode* const node : RowTree::Expanded(tree_.Root())) {
        for (const TreePart& part : node->parts) {
            if (!part.block || !part.block->rows.IsPaged()) continue;
            const RowSet* const rows = items.Of(part.block->content.source->GetSource());
            if (rows) part.block->rows.Look(rows->ToVector());
        }
    }
}

/// The indices of the selected rows that are visible, top to bottom.
std::vector<std::uint32_t> RowModel::SelectedIndices() {
    std::vector<std::uint32_t> indices;
    if (CountSelected() == 0) return indices;
    LookFor(view_->Selected().Items());
    for (Row row = tree_.First(); row; row = tree_.Next(row)) {
        if (IsSelected(row)) indices.push_back(row.Index());
    }
    return indices;
}

std::int64_t RowModel::CountSelected() {
    const Answering answering(*this);
    if (!view_) return 0;
    std::size_t count = view_->Selected().Size() + selectedContainers_.size();
    for (const FreeFolder* const folder : view_->RootFolder().WithBelow()) count += folder->IsSelected();
    return static_cast<std::int64_t>(count);
}

/// Rows to be selected, by what they stand for.
struct RowModel::Chosen {
    znBrowserDataItems items;
    std::set<FreeFolder*> folders;
    std::set<std::uint32_t> containers;

    void Take(const Row& row) {
        const RowContent& content = row.Content();
        if (row.IsItem()) {
            items.Append(content.source->GetSource(), row.Number());
        } else if (content.kind == RowKind::Folder) {
            folders.insert(content.folder.get());
        } else {
            containers.insert(row.Index());
        }
    }
};

bool RowModel::Select(Selecting how, const std::vector<std::uint32_t>& indices) {
    const Change change(*this);
    if (!change) return false;
    Chosen chosen;
    Row last;
    for (const std::uint32_t index : indices) {
        last = Find(index);
        if (!last) return false;
        chosen.Take(last);
    }
    if (single_ && how != Selecting::Remove && last) {
        chosen = {};
        chosen.Take(last);
        how = Selecting::Replace;
    }
    Select(how, std::move(chosen));
    return true;
}

bool RowModel::SelectAll() {
    constexpr std::size_t atOnce = 4096;
    const Change change(*this);
    if (!change || single_) return false;
    Chosen chosen;
    std::size_t taken = 0;
    for (const RowNode* const node : RowTree::Expanded(tree_.Root())) {
        for (const TreePart& part : node->parts) {
            if (part.block) part.block->rows.Get();
        }
    }
    for (Row row = tree_.First(); row; row = tree_.Next(row)) {
        if (++taken % atOnce == 0 && !GoesOn()) return false;
        chosen.Take(row);
    }
    Select(Selecting::Replace, std::move(chosen));
    return true;
}

void RowModel::Select(Selecting how, Chosen chosen) {
    Selection& selection = view_->Selected();
    const bool selects = how != Selecting::Remove;
    if (how == Selecting::Replace) {
        selection.Replace(chosen.items);
        for (FreeFolder* const folder : view_->RootFolder().WithBelow())
            view_->SelectFolder(*folder, chosen.folders.count(folder) != 0);
        selectedContainers_.swap(chosen.containers);
    } else {
        selects ? selection.Select(chosen.items) : selection.Deselect(chosen.items);
        for (FreeFolder* const folder : chosen.folders) view_->SelectFolder(*folder, selects);
        for (const std::uint32_t index : chosen.containers) {
            selects ? static_cast<void>(selectedContainers_.insert(index))
                    : static_cast<void>(selectedContainers_.erase(index));
        }
    }
    Tell(RowChange::Selection);
}

void RowModel::SetSingle(bool single) {
    const Change change(*this);
    if (!change) return;
    single_ = single;
    if (!single || view_->Selected().Size() <= 1) return;
    znBrowserDataItems items;
    view_->Selected().AppendTo(items);
    znBrowserDataItems first;
    first.Append(items.runs.front().source, items.rows.front());
    view_->Selected().Replace(first);
}

void RowModel::SelectRelated(const znBrowserDataItems& items, bool parents) {
    const Change change(*this);
    if (!change) return;
    std::map<const znIBrowserDataSourceSimple*, std::vector<std::int64_t>> rows;
    items.ForEach([&rows](const znBrowserDataItem& item) { rows[item.source].push_back(item.row); });
    znBrowserDataItems related;
    std::vector<std::int64_t> found;
    const auto append = [&](RowSource& source) {
        for (const std::int64_t row : found) related.Append(source.GetSource(), row);
    };
    for (const RowLink& link : plan_.AllLinks()) {
        const auto from = rows.find((parents ? link.child : link.parent)->GetSource());
        if (from == rows.end()) continue;
        if (parents) {
            link.child->Parents(link, from->second, found);
            append(*link.parent);
            continue;
        }
        for (const std::int64_t row : from->second) {
            RowQuery query;
            query.link = &link;
            query.parent = row;
            link.child->List(query, found);
            append(*link.child);
        }
    }
    view_->Selected().Replace(related);
}

/// The link along which items of `child` lie below those of the block; null, with the reason, when there is
/// none.
const RowLink* RowModel::FindLink(const RowContent& block, RowSource* child, std::string& error) const {
    for (const RowLink& link : block.scope->links) {
        if (link.parent == block.source && link.child == child) return &link;
    }
    error = "No data reference leads from " + NameOf(log_, child->GetSource()) + " to " +
            NameOf(log_, block.source->GetSource());
    return nullptr;
}

bool RowModel::Drop(std::uint32_t target, const std::vector<std::uint32_t>& indices, std::string& error) {
    const Change change(*this);
    const Row onto = change ? Find(target) : Row();
    if (!onto) return false;
    std::map<RowSource*, std::vector<std::int64_t>> dropped;
    for (const std::uint32_t index : indices) {
        const Row row = Find(index);
        if (!row) return false;
        if (!row.IsItem() || !onto.IsItem()) {
            error = "Only items can be dropped, and only on items";
            return false;
        }
        dropped[row.Content().source].push_back(row.Number());
    }
    std::vector<const RowLink*> links;
    for (const auto& entry : dropped) {
        links.push_back(FindLink(onto.Content(), entry.first, error));
        if (!links.back()) return false;
    }
    const std::int64_t parent = onto.Number();
    for (const RowLink* const link : links) {
        if (!link->child->MoveBelow(*link, dropped[link->child], parent, error)) return false;
    }
    return true;
}

} // namespace znhost
