// Which items of a view are shown.
#ifndef ZN_HOST_DISPLAY_STATE_H
#define ZN_HOST_DISPLAY_STATE_H

#include "model/item_sets.h"
#include "model/row_source.h"

#include <map>
#include <memory>

namespace znhost {

/// Which items of one source are shown: only those of a set, or all but those. The set is that of which there
/// are fewer.
struct DisplayedRows {
    bool only = false;
    RowSet rows;
    RowMark mark; ///< with `only`: rows beyond it are new, and shown

    bool Shows(RowSet::Row row) const { return rows.Has(row) == only; }
    bool ShowsAll() const { return !only && rows.IsEmpty(); }
};

/// The display state of a view. Copies share what they have in common.
class DisplayState {
public:
    using Source = ItemSets::Source;
    using Rows = std::shared_ptr<const DisplayedRows>;
    using Sources = std::map<Source*, Rows>;

    bool ShowsAll() const { return sources_.empty(); }
    bool Shows(const Source* source, RowSet::Row row) const;
    /// Null: all items of the source are shown.
    Rows Of(const Source* source) const;
    const Sources& All() const { return sources_; }

    // Changes. Each reads the source where that is needed to keep the smaller set.
    void Show(Source* source, const RowSet& rows);
    void Hide(Source* source, const RowSet& rows);
    /// Shows those of the items that are hidden, and hides the others.
    void Toggle(Source* source, const RowSet& rows);
    void ShowOnly(Source* source, RowSet rows);
    void ShowAll() noexcept { sources_.clear(); }
    /// As it stands, whichever set is smaller.
    void Set(Source* source, DisplayedRows rows);
    void Forget(const Source* source) noexcept { sources_.erase(const_cast<Source*>(source)); }

private:
    template <class Change>
    void Alter(Source* source, Change&& change);

    Sources sources_; ///< only those that hide something
};

/// Makes the set of `rows` that of which there are fewer: of items shown, or of items hidden.
void KeepSmaller(DisplayState::Source* source, DisplayedRows& rows);

} // namespace znhost

#endif
