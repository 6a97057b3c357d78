// A column of a view.
#ifndef ZN_I_BROWSER_VIEW_COLUMN_H
#define ZN_I_BROWSER_VIEW_COLUMN_H

#include <vector>

class znIBrowserPopupMenu;
class znIBrowserStyle;
class znIBrowserView;

/// How a column sorts the rows now. Any other value prints as unsorted.
enum ZNBROWSER_SORT_ORDER : int { ZNBROWSER_UNSORTED = 0, ZNBROWSER_ASCENDING, ZNBROWSER_DESCENDING };

/// A column of a view. A built-in column comes with the view; the others are made by scripts. It owns its
/// styles. Width, justification, place and sorting direction are set through `znIBrowser`.
class znIBrowserViewColumn {
public:
    /// The name, unique in the view. Clicks in the Tk tree name the column by it.
    virtual const char* GetName() const = 0;
    /// Whether the column comes with the view. Scripts cannot delete, hide, move or justify it.
    virtual bool IsBuiltIn() const = 0;
    /// The view that owns the column.
    virtual znIBrowserView* GetView() = 0;

    /// The heading of the column; its name until a script sets another.
    virtual const char* GetCaption() const = 0;
    /// Sets the heading, also of a built-in column; it may be "".
    virtual bool SetCaption(const char* caption) = 0;
    /// Whether the cells are written in italics.
    virtual bool GetItalic() const = 0;
    /// Writes the cells in italics, or upright.
    virtual bool SetItalic(bool italic) = 0;
    /// Whether the column is shown.
    virtual bool GetShown() const = 0;
    /// Shows or hides the column. Never asked for a built-in one.
    virtual bool SetShown(bool shown) = 0;

    // Sorting.
    /// Whether the column may sort the rows.
    virtual bool GetSorting() const = 0;
    /// Lets the column sort the rows, or forbids it. One that sorts now and may not any more is unsorted.
    virtual bool SetSorting(bool sorting) = 0;
    /// The direction in which the column sorts now; unsorted while another one does. The text of a refusal is
    /// not read.
    virtual bool GetSortOrder(ZNBROWSER_SORT_ORDER& order) const = 0;
    /// The view property by which the default column sorts; "" when it sorts by its text.
    virtual const char* GetSortProperty() const = 0;
    /// Sets that property, always of the view's default column; "" for the text. Whether the property exists
    /// is for the host to check.
    virtual bool SetSortProperty(const char* property) = 0;

    // Styles.
    /// The column's styles, in order. The first one becomes current when a script chooses the column.
    virtual void GetStyles(std::vector<znIBrowserStyle*>& styles) = 0;
    /// Tells the column which style is current for scripts; null for none.
    virtual void SetCurrentStyle(znIBrowserStyle* style) = 0;
    /// Makes a style without elements. No style has that name yet. The text of a refusal is not read.
    virtual bool CreateStyle(const char* name) = 0;
    /// The style of that name, or null.
    virtual znIBrowserStyle* FindStyle(const char* name) = 0;
    /// Deletes a style of the column and its elements; where it is in use, nothing takes its place. The text
    /// of a refusal is not read.
    virtual bool DeleteStyle(znIBrowserStyle* style) = 0;
    /// The column draws its items with that style from now on, which is one of its own.
    virtual void SetStyle(znIBrowserStyle* style) = 0;

    // Popup menu.
    /// The popup menu of the column's cells; null for none.
    virtual znIBrowserPopupMenu* GetPopupMenu() = 0;
    /// Gives the cells the popup menu of that name; "" for none. Whether it must exist is the host's: the
    /// embedded host refuses one that does not.
    virtual bool SetPopupMenu(const char* name) = 0;

protected:
    ~znIBrowserViewColumn() = default;
};

#endif
