// A column of a view.
#ifndef ZN_I_BROWSER_VIEW_COLUMN_H
#define ZN_I_BROWSER_VIEW_COLUMN_H

#include <vector>

class znIBrowserPopupMenu;
class znIBrowserStyle;
class znIBrowserView;

/// How a column sorts the rows now.
enum ZNBROWSER_SORT_ORDER : int { ZNBROWSER_UNSORTED = 0, ZNBROWSER_ASCENDING, ZNBROWSER_DESCENDING };

/// A column of a view. A built-in column comes with the view; the others are made by scripts.
class znIBrowserViewColumn {
public:
    virtual const char* GetName() const = 0;
    virtual bool IsBuiltIn() const = 0;
    /// The view that owns the column.
    virtual znIBrowserView* GetView() = 0;

    virtual const char* GetCaption() const = 0;
    virtual bool SetCaption(const char* caption) = 0;
    virtual bool GetItalic() const = 0;
    virtual bool SetItalic(bool italic) = 0;
    virtual bool GetShown() const = 0;
    virtual bool SetShown(bool shown) = 0;

    // Sorting.
    /// Whether the column may sort the rows.
    virtual bool GetSorting() const = 0;
    virtual bool SetSorting(bool sorting) = 0;
    /// The direction in which the column sorts now.
    virtual bool GetSortOrder(ZNBROWSER_SORT_ORDER& order) const = 0;
    /// The view property by which the default column sorts; "" when it sorts by its text.
    virtual const char* GetSortProperty() const = 0;
    virtual bool SetSortProperty(const char* property) = 0;

    // Styles.
    /// The column's styles, in order.
    virtual void GetStyles(std::vector<znIBrowserStyle*>& styles) = 0;
    /// Tells the column which style is current for scripts; null for none.
    virtual void SetCurrentStyle(znIBrowserStyle* style) = 0;
    virtual bool CreateStyle(const char* name) = 0;
    virtual znIBrowserStyle* FindStyle(const char* name) = 0;
    /// Deletes a style and its elements.
    virtual bool DeleteStyle(znIBrowserStyle* style) = 0;
    /// The column draws its items with that style from now on.
    virtual void SetStyle(znIBrowserStyle* style) = 0;

    // Popup menu.
    virtual znIBrowserPopupMenu* GetPopupMenu() = 0;
    virtual bool SetPopupMenu(const char* name) = 0;

protected:
    ~znIBrowserViewColumn() = default;
};

#endif
