// What the display state of a view leaves of its rows.
#ifndef ZN_HOST_ROW_DISPLAY_H
#define ZN_HOST_ROW_DISPLAY_H

#include "base/row_set.h"
#include "model/display_state.h"
#include "model/row_source.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace znhost {

class ReadTrouble;

/// A display state as the rows of a window need it, as long as neither it nor the data change: which rows are
/// shown, and below which rows some are. What has been found out is kept.
class RowDisplay {
public:
    RowDisplay(DisplayState state, const ReadTrouble& trouble)
        : state_(std::move(state)), trouble_(trouble) {}

    /// Takes out of `rows` what is hidden.
    void Narrow(const RowSource* source, std::vector<std::int64_t>& rows) const;
    /// Whether items of that source are hidden.
    bool Hides(RowSource* source) const { return Of(source) != nullptr; }
    /// How many of all rows of the source are shown.
    std::int64_t Count(RowSource& source) const;
    /// For each of `parents`, whether shown items lie below it along that link. What cannot be read may be
    /// there.
    std::vector<bool> HaveChildren(const RowLink& link, const std::vector<std::int64_t>& parents) const;

private:
    /// What is known of a link: the rows with items of the set below them, whether those are the shown or the
    /// hidden ones; and of rows with hidden items whether there are others.
    struct Below {
        RowLink link;
        RowSet withSet;
        RowSet asked;
        RowSet withShown;
    };

    DisplayState::Rows Of(const RowSource* source) const;
    Below& BelowAlong(const RowLink& link, const DisplayedRows& rows) const;
    bool HasShown(Below& below, std::int64_t parent) const;

    const DisplayState state_;
    const ReadTrouble& trouble_;
    mutable std::vector<Below> below_;
};

} // namespace znhost

#endif
