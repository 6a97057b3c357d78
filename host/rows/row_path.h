// The way from the top of a window down to an item.
#ifndef ZN_HOST_ROW_PATH_H
#define ZN_HOST_ROW_PATH_H

#include "rows/row_model.h"

#include <string>
#include <vector>

namespace znhost {

/// The contents and rows on the way to that item, for `RowModel::Reveal`: to where it stands by itself or
/// below items of its own kind, else below others. Empty when the window has no such place.
std::vector<RowStep> PathToItem(RowModel& rows, const std::string& source, std::int64_t row);

} // namespace znhost

#endif
