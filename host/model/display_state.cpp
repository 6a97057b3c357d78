#include "model/display_state.h"

#include <utility>
#include <vector>

namespace znhost {

bool DisplayState::Shows(const Source* source, RowSet::Row row) const {
    const Rows rows = Of(source);
    return !rows || rows->Shows(row);
}

DisplayState::Rows DisplayState::Of(const Source* source) const {
    const auto found = sources_.find(const_cast<Source*>(source));
    return found == sources_.end() ? nullptr : found->second;
}

void DisplayState::Set(Source* source, DisplayedRows rows) {
    if (rows.ShowsAll()) {
        Forget(source);
    } else {
        sources_[source] = std::make_shared<const DisplayedRows>(std::move(rows));
    }
}

template <class Change>
void DisplayState::Alter(Source* source, Change&& change) {
    const Rows now = Of(source);
    DisplayedRows rows = now ? *now : DisplayedRows();
    change(rows);
    KeepSmaller(source, rows);
    Set(source, std::move(rows));
}

void DisplayState::Show(Source* source, const RowSet& shown) {
    Alter(source,
          [&shown](DisplayedRows& rows) { rows.only ? rows.rows.Add(shown) : rows.rows.Remove(shown); });
}

void DisplayState::Hide(Source* source, const RowSet& hidden) {
    Alter(source,
          [&hidden](DisplayedRows& rows) { rows.only ? rows.rows.Remove(hidden) : rows.rows.Add(hidden); });
}

void DisplayState::Toggle(Source* source, const RowSet& toggled) {
    Alter(source, [&toggled](DisplayedRows& rows) { rows.rows.Toggle(toggled); });
}

void DisplayState::ShowOnly(Source* source, RowSet shown) {
    Alter(source, [&](DisplayedRows& rows) {
        rows.mark = GetRowSource(source)->Mark();
        rows.only = true;
        rows.rows = std::move(shown);
    });
}

void KeepSmaller(DisplayState::Source* source, DisplayedRows& rows) {
    RowSource& items = *GetRowSource(source);
    const std::size_t size = rows.rows.Size();
    // Half of the items shown, half hidden: the hidden ones are kept.
    if (rows.only ? items.HasMoreThan(2 * size) : size == 0 || items.HasMoreThan(2 * size - 1)) return;
    if (!rows.only) rows.mark = items.Mark();
    std::vector<std::int64_t> all;
    items.List({}, all);
    RowSet others;
    others.Add(std::move(all));
    others.Remove(rows.rows);
    rows.rows = std::move(others);
    rows.only = !rows.only;
    if (!rows.only) rows.mark = {};
}

} // namespace znhost
