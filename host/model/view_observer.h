// What a view tells those who show it.
#ifndef ZN_HOST_VIEW_OBSERVER_H
#define ZN_HOST_VIEW_OBSERVER_H

class znIBrowserDataSource;
class znIBrowserDataSourceSimple;

namespace znhost {

class Column;
class FreeFolder;

/// What changed in a view, as bits.
enum ViewChange : unsigned {
    VIEW_ROWS = 1,       ///< Which rows there are, or their order: folders, trees, lists, sorting.
    VIEW_COLUMNS = 2,    ///< Which columns there are, or how they are laid out.
    VIEW_CELLS = 4,      ///< What cells show: properties, connections, styles, fonts.
    VIEW_SELECTION = 8,  ///< What is selected.
    VIEW_COLLECTED = 16, ///< What is collected.
    VIEW_FILTER = 32,    ///< Which of the rows the filter lets through.
    VIEW_ITEMS =
        64, ///< Some items: the data sources know which, they are all else that came, went or changed.
    VIEW_ALL = 127
};

/// Whoever shows a view. Changes come in batches, so an observer takes note and looks at the view when it
/// next draws; what is deleted is told at once, before it goes.
class ViewObserver {
public:
    /// `changes` are bits of `ViewChange`. An observer that throws has taken note of them before.
    virtual void OnViewChanged(unsigned changes) = 0;
    /// A folder, or one list in it, is expanded or collapsed; with `recursive` everything below it too.
    virtual void OnExpanded(FreeFolder& folder, znIBrowserDataSourceSimple* list, bool expanded,
                            bool recursive) = 0;
    virtual void OnFolderDeleted(FreeFolder& folder) = 0;
    virtual void OnColumnDeleted(Column& column) = 0;
    virtual void OnDataSourceDeleted(znIBrowserDataSource& source) = 0;
    /// The view goes; it needs no `RemoveObserver` any more.
    virtual void OnViewDeleted() noexcept = 0;

protected:
    ~ViewObserver() = default;
};

} // namespace znhost

#endif
