// How the rows of a window look.
#include "base/services.h"
#include "host/znIBrowserDataReference.h"
#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "model/browser.h"
#include "model/view.h"
#include "rows/row_model.h"

#include <algorithm>
#include <map>

namespace znhost {

bool RowModel::HasRows(const Row& row) const {
    return row.IsItem() ? plan_.HasRows(row.Content(), row.Number()) : plan_.HasRows(row.Content());
}

bool RowModel::IsSelected(const Row& row) const {
    if (row.IsItem())
        return view_->Selected().IsSelected(row.Content().source->GetSource(), row.KnownNumber());
    if (row.Content().kind == RowKind::Folder) return row.Content().folder->IsSelected();
    return selectedContainers_.count(row.Index()) != 0;
}

bool RowModel::IsCollected(const Row& row) const {
    if (!row.IsItem() || view_->Collector().Collected().IsEmpty()) return false;
    return view_->Collector().Collected().Has(row.Content().source->GetSource(), row.KnownNumber());
}

/// How the rows look, those of each block at once. Fewer when the work had to be given up.
std::vector<RowLook> RowModel::LooksOf(const std::vector<Row>& rows, bool countsBelow) {
    std::vector<RowLook> looks = LooksOfContainers(rows);
    std::vector<LookedAt> all = ItemsOf(rows);
    const ReadTrouble::Watch watch(Services().Trouble());
    if (plan_.IsWhole()) AskAlong(all, rows, countsBelow);
    for (LookedAt& items : all) ReadNumbers(items, rows);
    NoteTrouble(watch);
    for (std::size_t i = 0; i < rows.size(); ++i) NotePlace(rows[i], looks[i]);
    for (const LookedAt& items : all) {
        if (!stopped_) LookAtItems(items, looks);
    }
    if (countsBelow && !stopped_) CountBelow(all, looks);
    if (stopped_) looks.clear();
    KeepLooks(looks);
    return looks;
}

/// The items, those of each block together; but each page of a long list that has not been read by itself.
std::vector<RowModel::LookedAt> RowModel::ItemsOf(const std::vector<Row>& rows) {
    constexpr std::size_t read = ~std::size_t{0};
    std::map<std::pair<const RowBlock*, std::size_t>, std::vector<std::size_t>> places;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!rows[i].IsItem()) continue;
        const bool isToCome = rows[i].block->rows.IsToCome(rows[i].position);
        places[{rows[i].block, isToCome ? rows[i].position / SharedRows::pageSize : read}].push_back(i);
    }
    std::vector<LookedAt> all;
    for (auto& [key, inBlock] : places) {
        all.push_back({key.first, std::move(inBlock), {}, {}, false});
        if (key.second == read) ReadNumbers(all.back(), rows);
    }
    return all;
}

void RowModel::ReadNumbers(LookedAt& items, const std::vector<Row>& rows) {
    if (!items.numbers.empty()) return;
    for (const std::size_t place : items.places) items.numbers.push_back(rows[place].Number());
    if (items.toCome) items.block->rows.Came(*items.toCome, items.numbers);
}

/// How many rows lie below each. What was asked along is told by the same questions.
void RowModel::CountBelow(const std::vector<LookedAt>& all, std::vector<RowLook>& looks) {
    const auto count = [&](const LookedAt& items) {
        for (std::size_t i = 0; i < items.places.size(); ++i) {
            RowLook& look = looks[items.places[i]];
            look.below = look.hasRows ? plan_.Count(items.block->content, items.numbers[i]) : 0;
        }
    };
    for (const LookedAt& items : all) {
        if (!items.asked) continue;
        RowPlan::Ahead ahead(plan_, false);
        ahead.Expect(items.block->content, items.numbers);
        count(items);
    }
    RowPlan::Ahead ahead(plan_, false);
    for (const LookedAt& items : all) {
        for (std::size_t i = 0; i < items.places.size() && !items.asked; ++i) {
            if (looks[items.places[i]].hasRows) ahead.Expect(items.block->content, {items.numbers[i]});
        }
    }
    for (const LookedAt& items : all) {
        if (!items.asked) count(items);
    }
    for (RowLook& look : looks) {
        if (look.kind != RowKind::Item) look.below = CountBelow(look.index);
    }
}

/// Asks what the items show, together where answers take long.
void RowModel::AskAlong(std::span<LookedAt> all, const std::vector<Row>& rows, bool countsBelow) {
    if (all.empty()) return;
    LookedAt& items = all.front();
    const RowContent& block = items.block->content;
    block.source->AskAlong([&] {
        std::vector<std::int64_t> numbers = items.numbers;
        if (numbers.empty()) {
            items.toCome = items.block->rows.Expect(rows[items.places.front()].position, items.places.size());
            numbers.push_back(*items.toCome);
        }
        items.asked = true;
        plan_.HaveRows(block, numbers);
        cells_.Ask(block, numbers);
        if (countsBelow) {
            RowPlan::Ahead ahead(plan_, false);
            ahead.Expect(block, numbers);
            plan_.Count(block, numbers.front());
        }
        AskAlong(all.subspan(1), rows, countsBelow);
    });
    if (!items.asked) AskAlong(all.subspan(1), rows, countsBelow);
}

/// As many as are on a screen are kept.
void RowModel::KeepLooks(const std::vector<RowLook>& looks) {
    constexpr std::size_t most = 1000;
    if (looks.empty() || looks.size() > most || !trouble_.empty()) return;
    shown_.clear();
    for (const RowLook& look : looks) {
        if (look.kind == RowKind::Item) shown_.emplace(look.index, look);
    }
}

/// The looks of the containers. Whether there is something in a container is not worth a wait.
std::vector<RowLook> RowModel::LooksOfContainers(const std::vector<Row>& rows) {
    constexpr auto timeForContainers = std::chrono::milliseconds(100);
    const HostServices::Hurry hurry(Services(), timeForContainers);
    std::vector<RowLook> looks(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].IsItem()) continue;
        looks[i] = LookOf(rows[i]);
        looks[i].hasRows = rows[i].IsExpanded() || MayHaveRows(rows[i]);
    }
    return looks;
}

/// Where the row stands, and what has been done with it.
void RowModel::NotePlace(const Row& row, RowLook& look) const {
    look.index = row.Index();
    look.expanded = row.IsExpanded();
    if (const Row above = RowTree::RowOf(row.Owner())) look.parent = above.Index();
    look.depth = row.Depth();
    look.selected = IsSelected(row);
    look.collected = IsCollected(row);
}

void RowModel::LookAtItems(const LookedAt& looked, std::vector<RowLook>& looks) {
    const RowBlock& block = *looked.block;
    const ReadTrouble::Watch watch(Services().Trouble());
    const std::vector<bool> have = plan_.HaveRows(block.content, looked.numbers);
    std::vector<ItemCells> items = cells_.Read(block.content, looked.numbers, [this] { return stopped_; });
    const bool failed = NoteTrouble(watch);
    const std::string source = items.empty() ? "" : NameOf(log_, block.content.source->GetSource());
    for (std::size_t i = 0; i < items.size(); ++i) {
        RowLook& look = looks[looked.places[i]];
        look.source = source;
        if (failed || looked.numbers[i] == RowPages::nowhere) {
            const auto shown = shown_.find(look.index);
            if (shown == shown_.end()) {
                look.text = "cannot be read: " + watch.Text();
            } else {
                look.hasRows = look.expanded || shown->second.hasRows;
                look.text = shown->second.text;
                look.cells = shown->second.cells;
            }
            continue;
        }
        look.hasRows = look.expanded || have[i];
        look.text = std::move(items[i].name);
        look.cells = std::move(items[i].cells);
    }
}

namespace {

/// Whether other rows of the same source lie below the same item, along another reference.
bool IsOneOfSeveral(const RowContent& group) {
    if (!group.link.reference) return false;
    const std::vector<RowLink>& links = group.scope->links;
    return std::any_of(links.begin(), links.end(), [&group](const RowLink& link) {
        return link.parent == group.link.parent && link.child == group.link.child &&
               link.reference != group.link.reference;
    });
}

/// The column by which a reference "table.column" is made.
std::string ColumnOf(const znIBrowserDataReference& reference) {
    const std::string name = TextOf(reference.GetName());
    return name.substr(name.rfind('.') + 1);
}

} // namespace

/// What a container is called, without the number of its rows.
std::string RowModel::CaptionOf(const RowContent& container) const {
    if (container.kind == RowKind::Folder) return container.folder->Name();
    if (container.kind == RowKind::Tree) return NameOf(log_, container.scope->tree);
    znIBrowserDataSourceSimple* const source = container.source->GetSource();
    const FolderList* const list = container.link.reference ? nullptr : container.folder->FindList(source);
    std::string text = list && !list->caption.empty() ? list->caption : TextOf(source->GetCaption());
    if (text.empty()) text = NameOf(log_, source);
    return IsOneOfSeveral(container) ? text + " · " + ColumnOf(*container.link.reference) : text;
}

/// What a container shows of itself.
RowLook RowModel::LookOf(const Row& row) {
    const RowContent& container = row.Content();
    const FolderSettings& settings = container.folder->Settings();
    RowLook look;
    look.kind = container.kind;
    look.icon = container.kind == RowKind::Folder ? "folder"
                : container.kind == RowKind::Tree ? "tree"
                : container.source->IsOfView()    ? "view"
                                                  : "list";
    if (container.IsNote()) {
        look.icon = "note";
        look.italic = true;
        look.text = "cannot be read: " + container.note;
        return look;
    }
    look.text = CaptionOf(container);
    if (container.kind == RowKind::Folder) {
        look.bold = settings.bold;
        look.italic = settings.italic;
    } else if (container.kind != RowKind::Tree) {
        look.source = NameOf(log_, container.source->GetSource());
    }
    if (!settings.countByNumber && !settings.countByImage) return look;
    const std::optional<std::int64_t> count = CountOf(row);
    if (settings.countByNumber) look.text += CountText(row, count);
    if (settings.countByImage && count)
        look.icon = *count == 0 ? "count_none" : *count == 1 ? "count_one" : "count_many";
    return look;
}

} // namespace znhost
