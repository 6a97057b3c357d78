// The rows of a window as lines of text, for other programs.
#ifndef ZN_HOST_ROW_EXPORT_H
#define ZN_HOST_ROW_EXPORT_H

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace znhost {

class HostServices;
class Window;

enum class ExportFormat {
    Csv,   ///< commas between the cells
    Tsv,   ///< tabs between them
    Cells, ///< the same, without the line of captions
    Lines  ///< no cells: each row is a line that `linesOf` makes
};

struct ExportedRows {
    enum Which { All, Selected, Below } which = All;
    std::uint32_t index = 0; ///< the row of what lies below: it is expanded when it is not
    bool deep = false;       ///< closed rows are expanded meanwhile
    /// Hands the lines of the rows with those Tk indices to `take`, none for a row that has none. False: it
    /// cannot, or `take` says so.
    std::function<bool(const std::vector<std::uint32_t>& indices,
                       const std::function<bool(std::string_view)>& take, std::string& error)>
        linesOf;
};

/// Hands the rows to `write`, a line each, behind a line with the captions of the columns that are shown. A
/// cell is what is written in it, without pictures. One with a border, a line break or a quote in it stands
/// between quotes, and quotes in it are doubled. Not more than a page of rows is held.
/// @param write  false: it could not take the line
/// @return how many rows there were; nothing, with the reason in `error` unless `write` has it, when not all
/// could be read
std::optional<std::int64_t> ExportRows(Window& window, const ExportedRows& which, ExportFormat format,
                                       HostServices& services,
                                       const std::function<bool(std::string_view)>& write,
                                       std::string& error);

} // namespace znhost

#endif
