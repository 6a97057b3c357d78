#include "window/popup_entries.h"

#include "base/services.h"
#include "host/znBrowserDataItems.h"
#include "host/znIBrowserDataCtrl.h"
#include "model/data_sources.h"
#include "model/view.h"
#include "window/browser_windows.h"
#include "window/window.h"

#include <set>
#include <unordered_map>
#include <unordered_set>

namespace znhost {

const char* KindName(PopupEntry::Kind kind) {
    switch (kind) {
    case PopupEntry::Kind::Check: return "check";
    case PopupEntry::Kind::Separator: return "separator";
    case PopupEntry::Kind::Cascade: return "cascade";
    case PopupEntry::Kind::Source: return "source";
    case PopupEntry::Kind::Command: break;
    }
    return "command";
}

// ---- The rows ----

PopupRows LookAt(RowModel& rows, const std::vector<std::uint32_t>& indices) {
    const RowModel::Answering answering(rows);
    std::set<std::pair<const void*, std::int64_t>> different; // items by number, all else by index
    PopupRows seen;
    for (const std::uint32_t index : indices) {
        const RowContent* const content = rows.ContentAt(index);
        if (!content) continue;
        znBrowserDataItem item;
        const bool isItem = rows.GetItem(index, item);
        if (different.size() < 2)
            different.emplace(isItem ? item.source : nullptr, isItem ? item.row : index);
        seen.folder = seen.folder || content->kind == RowKind::Folder;
    }
    seen.single = different.size() == 1;
    return seen;
}

std::vector<std::uint32_t> RowsOf(Window& window, const PopupClick& click) {
    RowModel& rows = window.Rows();
    const RowModel::Answering answering(rows);
    if (click.rows.empty()) return rows.SelectedRows();
    std::vector<std::uint32_t> there = click.rows;
    RemoveWhere(there, [&rows](std::uint32_t index) { return !rows.Has(index); });
    return there;
}

std::string RowList(const std::vector<std::uint32_t>& rows) {
    std::string list;
    for (const std::uint32_t row : rows) list += (list.empty() ? "" : " ") + std::to_string(row);
    return list;
}

// ---- Which menu ----

namespace {

PopupMenu* MenuOfSource(CallLog& log, znIBrowserDataSourceSimple* source) {
    const CallLog::Quiet quiet(log);
    return source ? static_cast<PopupMenu*>(source->GetPopupMenu()) : nullptr;
}

PopupMenu* MenuOfRow(RowModel& rows, std::uint32_t index, CallLog& log) {
    znBrowserDataItem item;
    const RowModel::Answering answering(rows);
    PopupMenu* menu = rows.GetItem(index, item) ? MenuOfSource(log, item.source) : nullptr;
    const RowContent* const content = rows.ContentAt(index);
    const FreeFolder* folder = content ? content->folder.get() : nullptr;
    for (; folder && !menu; folder = folder->Parent()) menu = folder->Popup();
    return menu;
}

} // namespace

PopupMenu* ChooseMenu(Window& window, const PopupClick& click) {
    const std::shared_ptr<Column> column = click.column.lock();
    PopupMenu* menu = column ? column->Popup() : nullptr;
    if (menu) return menu;
    const std::vector<std::uint32_t> rows = RowsOf(window, click);
    if (!rows.empty()) menu = MenuOfRow(window.Rows(), rows.front(), window.Log());
    const View* const view = window.ShownView();
    return menu || !view ? menu : view->Popup();
}

// ---- Post scripts ----

namespace {

/// Menus in the order found, each once.
class FoundMenus {
public:
    void Add(PopupMenu& menu) {
        if (known_.insert(&menu).second) menus.push_back(menu.shared_from_this());
    }
    void AddCascades(const PopupMenu& menu) {
        for (const auto& item : menu.Items()) {
            if (item->Settings().visible && item->Kind() == PopupKind::Cascade) Add(*item->Cascade());
        }
    }

    PopupMenus menus; ///< holds them: no other menu comes to lie where a known one was

private:
    std::unordered_set<const PopupMenu*> known_;
};

} // namespace

// A script may give a cascade to a menu that had its turn: such menus are looked for at the end.
PopupMenus TellPosting(Window& window, const PopupClick& click, PopupMenu& menu) {
    const std::shared_ptr<Column> column = click.column.lock();
    const std::string rows = RowList(RowsOf(window, click));
    FoundMenus found;
    found.Add(menu);
    for (std::size_t next = 0; next < found.menus.size(); ++next) {
        const std::shared_ptr<PopupMenu> now = found.menus[next];
        const std::string script = now->PostScript();
        if (!script.empty() && !now->IsDeleted()) {
            window.Owner().Services().RunProcedure(
                {script, window.Name(), column ? column->Name() : std::string(), rows});
        }
        if (window.IsClosed() || menu.IsDeleted()) return {};
        found.AddCascades(*now);
        if (next + 1 < found.menus.size()) continue;
        const PopupMenus told = found.menus;
        for (const auto& each : told) found.AddCascades(*each);
    }
    RemoveWhere(found.menus, [](const auto& each) { return each->IsDeleted(); });
    return found.menus;
}

// ---- The entries ----

namespace {

/// Turns the items of menus into entries. Each menu is listed once, however many items open it.
class EntryLister {
public:
    EntryLister(Window& window, const PopupMenu& top, const PopupRows& rows)
        : window_(window), top_(top), rows_(rows) {}

    std::shared_ptr<const PopupEntries> List(const PopupMenu& menu) {
        const auto known = listed_.find(&menu);
        if (known != listed_.end() && known->second) return known->second;
        const auto entries = std::make_shared<PopupEntries>();
        if (known != listed_.end() || depth_ == deepestCascade) return entries; // inside itself, or too deep
        listed_.emplace(&menu, nullptr);
        ++depth_;
        for (const auto& item : menu.Items()) {
            if (item->Settings().visible && (item->Settings().showOnFolder || !rows_.folder))
                Append(*item, *entries);
        }
        --depth_;
        return listed_[&menu] = entries;
    }

private:
    void Append(const PopupItem& item, PopupEntries& entries) {
        const PopupItemSettings& settings = item.Settings();
        PopupEntry entry;
        entry.item = (item.Menu() == &top_ ? "" : item.Menu()->Name() + '/') + item.Name();
        entry.caption = settings.caption;
        entry.help = settings.help;
        entry.description = settings.description;
        entry.icon = settings.icon;
        entry.enabled = settings.enabled && (rows_.single || !settings.onSingleItem);
        switch (item.Kind()) {
        case PopupKind::Container: return AppendSources(settings, entry, entries);
        case PopupKind::Separator:
            entry.kind = PopupEntry::Kind::Separator;
            entry.enabled = false;
            break;
        case PopupKind::Cascade:
            entry.kind = PopupEntry::Kind::Cascade;
            entry.entries = List(*item.Cascade());
            entry.enabled = entry.enabled && !entry.entries->empty();
            break;
        case PopupKind::Check:
            entry.kind = PopupEntry::Kind::Check;
            entry.checked = settings.checked;
            break;
        case PopupKind::Command: break;
        }
        entries.push_back(std::move(entry));
    }

    void AppendSources(const PopupItemSettings& settings, PopupEntry& entry, PopupEntries& entries) {
        View* const view = window_.ShownView();
        if (!view) return;
        entry.kind = PopupEntry::Kind::Source;
        for (auto& [name, caption] : SourcesInContainer(*view, settings.container, settings.containerAll)) {
            entry.value = std::move(name);
            entry.caption = std::move(caption);
            entries.push_back(entry);
        }
    }

    Window& window_;
    const PopupMenu& top_;
    const PopupRows rows_;
    std::unordered_map<const PopupMenu*, std::shared_ptr<const PopupEntries>> listed_;
    std::size_t depth_ = 0;
};

} // namespace

PopupEntries ListEntries(Window& window, const PopupMenu& menu, const PopupRows& rows) {
    return *EntryLister(window, menu, rows).List(menu);
}

PopupEntries MakeEntries(Window& window, const PopupClick& click, PopupMenu& menu, PopupMenus& shown) {
    const std::shared_ptr<Window> self = window.shared_from_this();
    const std::shared_ptr<PopupMenu> hold = menu.shared_from_this();
    shown = TellPosting(window, click, menu);
    const PopupRows rows = LookAt(window.Rows(), RowsOf(window, click)); // may run scripts as well
    if (window.IsClosed() || menu.IsDeleted()) return {};
    return ListEntries(window, menu, rows);
}

// ---- Containers ----

namespace {

template <class Source>
const char* CaptionOf(Source& source) {
    if constexpr (std::is_same_v<Source, znIBrowserDataSourceSimple>) {
        return source.GetCaption();
    } else {
        return source.GetName();
    }
}

template <class Source>
SourceNames NamesOf(const std::vector<Source*>& sources) {
    SourceNames names;
    names.reserve(sources.size());
    for (Source* const source : sources) {
        names.emplace_back(TextOf(source->GetName()), TextOf(CaptionOf(*source)));
    }
    return names;
}

} // namespace

SourceNames SourcesInContainer(View& view, ZNBROWSER_POPUP_CONTAINER kind, bool all) {
    const CallLog::Quiet quiet(view.Log());
    znIBrowserDataCtrl* const control = view.DataControl();
    if (kind == ZNBROWSER_POPUP_CONTAINER_NONE || (all && !control)) return {};
    if (kind == ZNBROWSER_POPUP_CONTAINER_SIMPLE) {
        std::vector<znIBrowserDataSourceSimple*> sources;
        all ? control->GetDataSourcesSimple(sources) : view.GetDataSourcesSimple(sources);
        return NamesOf(sources);
    }
    std::vector<znIBrowserDataSourceHierarchical*> sources;
    all ? control->GetDataSourcesHierarchical(sources) : view.GetDataSourcesHierarchical(sources);
    return NamesOf(sources);
}

} // namespace znhost
