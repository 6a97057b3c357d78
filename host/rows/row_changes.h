// What the row model tells a window that is drawn.
#ifndef ZN_HOST_ROW_CHANGES_H
#define ZN_HOST_ROW_CHANGES_H

#include <cstdint>
#include <vector>

namespace znhost {

/// One change. Rows are named by their Tk indices, which were and are valid as the kind of change says.
struct RowChange {
    enum Kind {
        Filled,    ///< `index` was expanded or collapsed, or its rows are others or in another order now
        Refreshed, ///< `index` itself looks different
        AllFilled, ///< what every container holds may be different: look at them all
        AllCells,  ///< all texts and columns may be different
        Selection, ///< other rows are selected
        Collector, ///< what the window's collector bar tells may be different
        Shown,     ///< `index` became visible on purpose: scroll there
    };
    /// The root, which has no index of its own.
    static constexpr std::uint32_t root = 0;

    Kind kind = AllFilled;
    std::uint32_t index = root;
};

/// Whoever draws the rows.
class RowObserver {
public:
    /// The changes since the last call, in order. The observer may do anything, also with the model.
    virtual void OnRowsChanged(const std::vector<RowChange>& changes) = 0;

protected:
    ~RowObserver() = default;
};

} // namespace znhost

#endif
